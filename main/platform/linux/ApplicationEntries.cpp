// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/process/ApplicationEntries.h"

#include <fcntl.h>
#include <sys/stat.h>

#include "model/LauncherError.h"
#include "platform/files/DiskSync.h"
#include "platform/files/FileManager.h"
#include "platform/files/Locations.h"
#include "platform/text/EntryText.h"
#include "platform/text/Text.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kEnding = ".desktop";
constexpr std::string_view kOwnerKey = "X-Selvane-Owner";
constexpr std::string_view kLookKey = "X-Selvane-Icon";
constexpr std::string_view kProgramKey = "TryExec";

const FileManager kFiles;

void require(bool fits, const std::string& what) {
    if (!fits)
        throw LauncherError(text::singleLine(what) + ": non può stare in una voce del menu");
}

std::string line(std::string_view key, const std::string& value) {
    require(text::fitsEntry(value), value);
    return std::string(key) + "=" + text::entryValue(value) + "\n";
}

/// The command line. "env", which every system has, sets the variables. It also starts a program with "%" in
/// its path, which desktops look for as it is spelled here, doubled. It takes a path with "=" for a variable.
std::string command(const ApplicationEntry& entry) {
    const std::string program = entry.note.program.string();
    const bool usesEnv = !entry.environment.empty() || program.find('%') != program.npos;
    require(!usesEnv || program.find('=') == program.npos, program);
    std::vector<std::string> words;
    for (const auto& [name, value] : entry.environment)
        words.push_back(name + "=" + value);
    words.push_back(program);
    words.insert(words.end(), entry.arguments.begin(), entry.arguments.end());
    std::string line = usesEnv ? "env " : "";
    for (const std::string& word : words) {
        require(text::fitsEntry(word), word);
        line += text::entryWord(word) + " ";
    }
    line.pop_back();
    return line;
}

std::string textOf(const ApplicationEntry& entry) {
    std::string result = "[Desktop Entry]\nType=Application\n" + line("Name", entry.name);
    if (!entry.comment.empty())
        result += line("Comment", entry.comment);
    result += line("Icon", entry.id) + "Exec=" + command(entry) + "\n" +
              line(kProgramKey, entry.note.program.string()) +
              "Terminal=false\nCategories=Utility;\nStartupNotify=true\n" + line("StartupWMClass", entry.id) +
              line(kOwnerKey, entry.note.owner.string()) + line(kLookKey, entry.note.look);
    return result;
}

std::string valueOf(std::string_view entry, std::string_view key) {
    return text::fromEntryValue(text::entryKey(entry, key));
}

std::optional<EntryNote> noteIn(const std::optional<std::string>& entry) {
    if (!entry || text::entryKey(*entry, kOwnerKey).empty())
        return std::nullopt;
    return EntryNote{valueOf(*entry, kOwnerKey), valueOf(*entry, kLookKey), valueOf(*entry, kProgramKey)};
}

fs::path entryFile(const fs::path& applications, const std::string& id) {
    return applications / (id + std::string(kEnding));
}

/// The theme's name for pictures of a size.
std::string folderName(const IconSize& size) {
    const std::string side = std::to_string(size.points);
    return side + "x" + side + (size.scale == 1 ? "" : "@" + std::to_string(size.scale));
}

fs::path pictureFile(const fs::path& icons, const std::string& size, const std::string& id) {
    return icons / size / "apps" / (id + ".png");
}

bool isOwnPicture(const fs::path& file) {
    const auto bytes = kFiles.readIfPossible(file, FileManager::kLongestRecord);
    return bytes && bytes->find(kIconMark) != bytes->npos;
}

[[noreturn]] void throwInTheWay(const fs::path& file) {
    throw LauncherError("C'è già un file di un altro programma, spostalo e riprova: " +
                        text::singleLine(file.string()));
}

/// Desktops look into the theme anew only if its own folder has changed, and not only one inside it.
void touch(const fs::path& folder) {
    ::utimensat(AT_FDCWD, folder.c_str(), nullptr, 0);
}

} // namespace

ApplicationEntries::ApplicationEntries(const Environment& environment)
    : m_applications(userDataFolder(environment) / "applications"),
      m_icons(userDataFolder(environment) / "icons/hicolor") {}

std::vector<IconSize> ApplicationEntries::iconSizes() {
    std::vector<IconSize> sizes;
    for (const int points : {16, 22, 24, 32, 48, 64, 96, 128, 256}) {
        for (const int scale : {1, 2})
            sizes.push_back({points, scale});
    }
    return sizes;
}

std::vector<std::string> ApplicationEntries::windowArguments(const std::string& id) {
    return {"--class=" + id}; // the entry's StartupWMClass
}

std::vector<std::string> ApplicationEntries::ids() const {
    std::vector<std::string> result;
    for (std::string& name : kFiles.entriesIfReadable(m_applications)) {
        if (!name.starts_with("selvane-") || !name.ends_with(kEnding))
            continue;
        name.resize(name.size() - kEnding.size());
        if (note(name))
            result.push_back(std::move(name));
    }
    return result;
}

std::optional<EntryNote> ApplicationEntries::note(const std::string& id) const {
    return noteIn(kFiles.readIfPossible(entryFile(m_applications, id), FileManager::kLongestRecord));
}

bool ApplicationEntries::says(const ApplicationEntry& entry) const {
    try {
        return kFiles.readIfPossible(entryFile(m_applications, entry.id), FileManager::kLongestRecord) ==
               textOf(entry);
    } catch (const LauncherError&) { // it can't
        return false;
    }
}

void ApplicationEntries::write(const ApplicationEntry& entry, const std::vector<IconImage>& icon) const {
    const std::string text = textOf(entry);
    const fs::path file = entryFile(m_applications, entry.id);
    if (kFiles.exists(file) && !note(entry.id))
        throwInTheWay(file);
    std::vector<fs::path> pictures;
    for (const IconImage& image : icon) {
        pictures.push_back(pictureFile(m_icons, folderName(image.size), entry.id));
        if (kFiles.exists(pictures.back()) && !isOwnPicture(pictures.back()))
            throwInTheWay(pictures.back());
    }
    // The entry comes last: once it says so, the icon is there.
    files::DiskSync written;
    const FileManager many(written);
    for (std::size_t i = 0; i < icon.size(); ++i) {
        many.createFolders(pictures[i].parent_path());
        many.write(pictures[i], icon[i].png);
    }
    written.waitFor(m_icons);
    touch(m_icons);
    kFiles.createFolders(m_applications);
    kFiles.write(file, text);
}

void ApplicationEntries::remove(const std::string& id) const {
    if (!note(id))
        return;
    for (const std::string& size : kFiles.entriesIfReadable(m_icons)) {
        if (const fs::path picture = pictureFile(m_icons, size, id); isOwnPicture(picture))
            kFiles.removeFile(picture);
    }
    touch(m_icons);
    kFiles.removeFile(entryFile(m_applications, id));
}

} // namespace selvane
