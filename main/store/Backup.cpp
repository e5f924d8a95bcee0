// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/ProfileStore.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <functional>
#include <random>
#include <system_error>
#include <unistd.h>

#include "model/LauncherError.h"
#include "platform/files/Locations.h"
#include "platform/files/NormalizedPath.h"
#include "platform/text/Text.h"
#include "store/ZipList.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

const fs::path kZip = "/usr/bin/zip";
constexpr int kZipSkippedFiles = 18;
constexpr std::string_view kReadmeName = "LEGGIMI-backup.txt";

std::string backupReadme(const std::vector<std::string>& paths) {
    std::string text = "Backup di Claude creato da Selvane il " +
                       text::longDate(std::chrono::system_clock::now()) +
                       ".\n\nContiene (percorsi relativi alla cartella home):\n";
    for (std::size_t i = 0; i < paths.size(); ++i) {
        text += i == 0 ? "" : "\n";
        text += (paths[i].starts_with('/') ? "  " : "  ~/") + paths[i];
    }
    text +=
        "\n\nNon contiene cache, macchine virtuali e binari di Claude Code: Claude li riscarica da solo.\n"
        "I login restano nel Portachiavi di questo Mac: su un altro Mac servirà rifare l'accesso.\n"
        "\nPer ripristinare:\n"
        "1. chiudi Claude (e Selvane);\n"
        "2. sposta nel Cestino le cartelle elencate sopra, se esistono;\n"
        "3. nel Terminale: ditto -x -k \"<questo archivio>.zip\" ~\n";
    // The steps above are those of a Mac, where logins aren't in the archive.
    if (!keepsLoginsWithTheSystem())
        text +=
            "\nSu Linux:\n"
            "- i login di Claude Code (.credentials.json) sono nell'archivio: conservalo al sicuro;\n"
            "- al passo 3, nel terminale: unzip \"<questo archivio>.zip\" -d ~\n"
            "- i percorsi che iniziano con \"/\" stavano fuori dalla cartella home: unzip li estrae sotto "
            "~.\n";
    return text;
}

/// A new folder in the system's temporary folder, removed with this object.
class TemporaryFolder {
public:
    explicit TemporaryFolder(const fs::path& in) : m_path(in / ("selvane-backup-" + uuid())) {
        m_files.createFolder(m_path);
    }
    ~TemporaryFolder() {
        try {
            m_files.removeTree(m_path);
        } catch (const fs::filesystem_error&) { // the system empties that folder anyway
        }
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const fs::path& path() const { return m_path; }

private:
    static std::string uuid() {
        std::random_device random;
        std::array<unsigned, 4> words{};
        std::generate(words.begin(), words.end(), std::ref(random));
        words[1] = (words[1] & 0xFFFF0FFFU) | 0x4000U; // version 4
        words[2] = (words[2] & 0x3FFFFFFFU) | 0x80000000U;
        char text[40];
        std::snprintf(text, sizeof text, "%08X-%04X-%04X-%04X-%04X%08X", words[0], words[1] >> 16,
                      words[1] & 0xFFFFU, words[2] >> 16, words[2] & 0xFFFFU, words[3]);
        return text;
    }

    FileManager m_files;
    fs::path m_path;
};

/// Refuses a folder, which would go to the Trash whole, and a file that is itself to be saved.
void requireUsable(const fs::path& target, const std::vector<fs::path>& sources) {
    if (fs::is_directory(target))
        throw LauncherError(text::singleLine(target.string()) +
                            " è una cartella: indica il file dell'archivio");
    if (std::find(sources.begin(), sources.end(), target) != sources.end())
        throw LauncherError("L'archivio non può sostituire ciò che salva: " +
                            text::singleLine(target.string()));
    const fs::path folder = target.parent_path();
    if (access(folder.c_str(), W_OK | X_OK) != 0)
        throw fs::filesystem_error("archive folder", folder, std::error_code(errno, std::generic_category()));
}

/// zip silently skips folders that it can't read.
bool hasUnreadableFolder(const fs::path& source) {
    std::error_code failure;
    if (!fs::is_directory(source))
        return false;
    fs::recursive_directory_iterator entry(source, failure);
    while (!failure && entry != fs::recursive_directory_iterator())
        entry.increment(failure);
    return failure == std::errc::permission_denied;
}

int runZip(const std::vector<std::string>& arguments, Environment environment, const fs::path& folder) {
    // zip reads more options from these, such as "-m", which deletes what it has stored.
    environment.erase("ZIP");
    environment.erase("ZIPOPT");
    return process::run(kZip, arguments, environment, folder);
}

void requireSuccess(int status) {
    if (status != 0)
        throw LauncherError("Backup non riuscito (zip: errore " + std::to_string(status) + ")");
}

fs::path temporaryFolder(const Environment& environment) {
    const auto configured = environment.find("TMPDIR");
    return configured == environment.end() || configured->second.empty() ? "/tmp" : configured->second;
}

} // namespace

std::vector<fs::path> ProfileStore::backupSources(BackupScope scope) const {
    std::vector<fs::path> sources;
    if (scope.contains(BackupScope::principal()))
        sources = {m_defaultDir, m_defaultGlobalJSON, liveDesktopDir()};
    if (scope.contains(BackupScope::profiles()))
        sources.push_back(m_root);
    std::erase_if(sources, [this](const fs::path& source) { return !m_files.exists(source); });
    return sources;
}

/// The folders with Claude Desktop data among the sources and inside them.
std::vector<fs::path> ProfileStore::desktopFolders(const std::vector<fs::path>& in) const {
    std::vector<fs::path> folders = {liveDesktopDir()};
    for (const std::string& account : m_files.entriesIfReadable(desktopStore())) {
        if (Profile::isPossibleId(account) && m_files.isFolder(desktopStore() / account))
            folders.push_back(desktopStore() / account);
    }
    std::erase_if(folders, [&](const fs::path& folder) {
        return std::none_of(in.begin(), in.end(), [&](const fs::path& source) {
            return folder == source || folder.string().starts_with(source.string() + "/");
        });
    });
    return folders;
}

BackupResult ProfileStore::backup(BackupScope scope, const fs::path& archive) {
    const fs::path target = normalizedPath(archive);
    const std::vector<fs::path> sources = backupSources(scope);
    if (sources.empty())
        throw LauncherError("Non c'è niente da salvare");
    requireUsable(target, sources);
    const std::vector<fs::path> dataFolders = desktopFolders(sources);
    const auto inUse = [this](const fs::path& folder) { return desktopDataInUse(folder); };
    if (std::any_of(dataFolders.begin(), dataFolders.end(), inUse))
        throw LauncherError("Per un backup affidabile Claude va chiuso: chiudilo e riprova.");

    const TemporaryFolder readmeFolder(temporaryFolder(m_environment));
    const fs::path readme = readmeFolder.path() / kReadmeName;
    const ZipList list = zipList(sources, dataFolders, m_home);
    m_files.write(readme, backupReadme(list.paths));

    BackupResult result{.archive = target};
    const fs::path partial = target.string() + ".partial";
    if (m_files.exists(partial))
        m_files.removeFile(partial);
    try {
        const int status = runZip(zipArguments(list, partial), m_environment, m_home);
        requireSuccess(status == kZipSkippedFiles ? 0 : status);
        result.skippedFiles =
            status == kZipSkippedFiles || std::any_of(sources.begin(), sources.end(), hasUnreadableFolder);
        requireSuccess(
            runZip({"-j", "-q", partial.string(), readme.string()}, m_environment, readmeFolder.path()));
        m_files.setMode(partial, 0600);
        m_files.waitForContent(partial);
        result.size = static_cast<std::int64_t>(fs::file_size(partial));
        if (m_files.exists(target))
            m_files.moveToTrash(target);
        m_files.move(partial, target);
    } catch (...) {
        try {
            m_files.removeTree(partial);
        } catch (const fs::filesystem_error&) { // report the first error
        }
        throw;
    }
    return result;
}

} // namespace selvane
