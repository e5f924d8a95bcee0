// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/ProfileStore.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <functional>
#include <optional>
#include <random>
#include <system_error>
#include <unistd.h>

#include "model/LauncherError.h"
#include "platform/files/DiskSync.h"
#include "platform/files/FolderLock.h"
#include "platform/files/NormalizedPath.h"
#include "platform/files/Progress.h"
#include "platform/process/ProcInfo.h"
#include "platform/text/Text.h"
#include "store/BackupContents.h"
#include "store/BackupReadme.h"
#include "store/ZipList.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

const fs::path kZip = "/usr/bin/zip";
constexpr int kZipSkippedFiles = 18;

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

/// Where zip writes, beside the archive. One that is killed leaves its temporary there, where nothing of the
/// user's is, and the next backup of that name removes it.
class WorkFolder {
public:
    WorkFolder(const fs::path& archive, const Progress* progress)
        : m_path(archive.parent_path() /
                 (std::string(FileManager::kTemporaryPrefix) + archive.filename().string())) {
        do { // another backup that held the lock has removed the folder
            const bool isNew = !m_files.isPresent(m_path);
            m_files.createFolders(m_path, Privacy::ownerOnly);
            try {
                m_lock.emplace(m_path, progress);
            } catch (const fs::filesystem_error&) {
                if (isNew) // otherwise it may be another backup's
                    m_files.removeEmptyFolder(m_path);
                throw;
            }
        } while (!m_files.isPresent(m_path));
        for (const std::string& name : m_files.entries(m_path))
            m_files.removeTree(m_path / name);
    }
    ~WorkFolder() {
        try {
            m_files.removeTree(m_path);
        } catch (const fs::filesystem_error&) { // the next backup tries again
        }
    }
    WorkFolder(const WorkFolder&) = delete;
    WorkFolder& operator=(const WorkFolder&) = delete;

    const fs::path& path() const { return m_path; }

private:
    FileManager m_files;
    fs::path m_path;
    std::optional<FolderLock> m_lock; ///< two backups must not write the same archive
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

/// The names in a folder; none if it isn't there or can't be read: then zip can't read it either, and it
/// counts as skipped.
std::vector<std::string> entriesToSave(const fs::path& folder) {
    try {
        return FileManager().entries(folder);
    } catch (const fs::filesystem_error& failure) {
        if (failure.code() == std::errc::permission_denied ||
            failure.code() == std::errc::no_such_file_or_directory ||
            failure.code() == std::errc::not_a_directory)
            return {};
        throw;
    }
}

int runZip(const std::vector<std::string>& arguments, Environment environment, const fs::path& folder,
           const std::function<void(std::int32_t)>& look = {}) {
    // zip reads more options from these, such as "-m", which deletes what it has stored.
    environment.erase("ZIP");
    environment.erase("ZIPOPT");
    return process::run(kZip, arguments, environment, folder, process::kStopLimit, look);
}

/// Tells a progress how far a backup is, if there is one. Four fifths of the time go into writing the
/// archive, the rest into reading it back.
class BackupProgress {
public:
    BackupProgress(Progress* progress, std::int64_t bytes) : m_progress(progress), m_bytes(bytes) {
        if (m_progress != nullptr)
            m_progress->expect({.entries = 0, .bytes = bytes});
    }

    /// To be called while zip writes; throws if it is to stop.
    void look(std::int32_t zip) { reach(4 * std::min(ProcInfo::bytesRead(zip), m_bytes) / 5); }
    void addReadBack(std::size_t bytes) {
        m_readBack += static_cast<std::int64_t>(bytes);
        reach((4 * m_bytes + std::min(m_readBack, m_bytes)) / 5);
    }

private:
    void reach(std::int64_t bytes) {
        if (m_progress == nullptr)
            return;
        m_progress->requireWanted();
        m_progress->advance(0, std::max<std::int64_t>(bytes - m_progress->bytes(), 0));
    }

    Progress* m_progress;
    const std::int64_t m_bytes;
    std::int64_t m_readBack = 0;
};

void requireSuccess(int status) {
    if (status != 0)
        throw ZipError("Backup non riuscito (zip: errore " + std::to_string(status) + ")", status);
}

/// Lets the system write the archive to the disk while it is read back.
void startWriting(const fs::path& archive) {
    // What goes wrong here does so again, and is reported, when Selvane waits for the disk.
    if (const files::Descriptor open(::open(archive.c_str(), O_RDONLY | O_CLOEXEC)); open)
        static_cast<void>(files::startWriting(open.get()));
}

/// Reads all that is in the archive and throws unless it is whole and has this many entries.
void requireWhole(const fs::path& archive, std::size_t entries, BackupProgress& progress) {
    ArchiveReader reader(archive);
    std::size_t count = 0;
    for (; reader.next(); ++count)
        reader.read([&](std::string_view bytes) { progress.addReadBack(bytes.size()); });
    if (count != entries)
        throw LauncherError("Backup non riuscito: l'archivio riletto non è completo");
}

fs::path temporaryFolder(const Environment& environment) {
    const auto configured = environment.find("TMPDIR");
    return configured == environment.end() || configured->second.empty() ? "/tmp" : configured->second;
}

} // namespace

std::vector<fs::path> ProfileStore::backupSources(BackupScope scope) const {
    std::vector<fs::path> sources;
    if (scope.contains(BackupScope::principal()))
        sources = {defaultDir(), defaultGlobalJSON(), liveDesktopDir()};
    if (scope.contains(BackupScope::profiles()))
        sources.push_back(root());
    std::erase_if(sources, [](const fs::path& source) {
        std::error_code failure;
        const fs::file_type type = fs::symlink_status(source, failure).type();
        if (type == fs::file_type::none) // a source that can't be looked at must not be left out unnoticed
            throw fs::filesystem_error("look up", source, failure);
        return type == fs::file_type::not_found;
    });
    return sources;
}

/// The folders with Claude Desktop data among the sources and inside them.
std::vector<fs::path> ProfileStore::desktopFolders(const std::vector<fs::path>& in) const {
    std::vector<fs::path> folders = {liveDesktopDir()};
    for (const std::string& account : entriesToSave(desktopStore())) {
        std::error_code failure;
        const fs::file_type type = fs::status(desktopStore() / account, failure).type();
        const bool isFolder = type == fs::file_type::directory || type == fs::file_type::none;
        if (Profile::isPossibleId(account) && isFolder)
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

    // A profile or an account that the user keeps elsewhere, behind a link, is to be saved too.
    std::vector<fs::path> ownFolders = dataFolders;
    if (scope.contains(BackupScope::profiles())) {
        ownFolders.push_back(desktopStore());
        for (const std::string& name : entriesToSave(root())) {
            std::error_code failure;
            const fs::file_type record = fs::status(root() / name / kMetaFileName, failure).type();
            if (record != fs::file_type::not_found)
                ownFolders.push_back(root() / name);
        }
    }
    const TemporaryFolder readmeFolder(temporaryFolder(environment()));
    const fs::path partial = target.string() + ".partial";
    if (m_files.exists(partial))
        m_files.removeFile(partial);
    const WorkFolder work(target, m_progress);
    ZipList list = zipList(sources, dataFolders, ownFolders, home());
    list.exclusions.emplace_back(relativeToHome(work.path(), home()) + "/", "*");

    BackupResult result{.archive = target};
    try {
        BackupContents contents(list, home());
        BackupProgress progress(m_progress, contents.bytes());
        std::function<void(std::int32_t)> look;
        if (m_progress != nullptr)
            look = [&](std::int32_t zip) { progress.look(zip); };
        const int status = runZip(zipArguments(list, partial, work.path()), environment(), home(), look);
        requireSuccess(status == kZipSkippedFiles ? 0 : status);
        ArchiveReader reader(partial);
        contents.compare(reader);
        const std::vector<std::string> missing = contents.missing();
        result.skippedFiles = !missing.empty();

        const fs::path readme = readmeFolder.path() / kReadmeName;
        m_files.write(readme, backupReadme(list.paths, missing));
        requireSuccess(
            runZip({"-j", "-q", "-g", "-b", work.path().string(), partial.string(), readme.string()},
                   environment(), readmeFolder.path()));
        m_files.setMode(partial, 0600);
        startWriting(partial);
        requireWhole(partial, contents.archived() + 1, progress);
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
