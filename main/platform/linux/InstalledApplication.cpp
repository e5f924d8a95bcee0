// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/linux/InstalledApplication.h"

#include <fcntl.h>
#include <paths.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <string_view>

#include "platform/linux/DesktopServices.h"
#include "platform/services/Received.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

/// Folders that belong to no single application, even if one has put its executable there.
constexpr std::array<std::string_view, 12> kCommonFolders = {
    "/",          "/opt",           "/tmp",         "/usr",       "/usr/lib", "/usr/lib64",
    "/usr/local", "/usr/local/lib", "/usr/libexec", "/usr/share", "/var",     "/srv"};

bool isExecutableFile(const fs::path& file) {
    std::error_code error;
    return fs::is_regular_file(file, error) && ::faccessat(AT_FDCWD, file.c_str(), X_OK, AT_EACCESS) == 0;
}

/// Skips relative folders in PATH: the application starts in another folder.
std::optional<fs::path> findOnPath(const std::string& name, const Environment& environment) {
    if (name.empty())
        return std::nullopt;
    const auto variable = environment.find("PATH");
    std::string_view folders = _PATH_DEFPATH;
    if (variable != environment.end())
        folders = variable->second;
    while (!folders.empty()) {
        const std::size_t end = std::min(folders.find(':'), folders.size());
        const fs::path folder(folders.substr(0, end));
        folders.remove_prefix(std::min(end + 1, folders.size()));
        if (folder.is_absolute() && isExecutableFile(folder / name))
            return folder / name;
    }
    return std::nullopt;
}

std::optional<fs::path> findProgram(const std::string& word, const Environment& environment) {
    const fs::path program(word);
    if (program.is_absolute())
        return isExecutableFile(program) ? std::optional(program) : std::nullopt;
    return word.find('/') == std::string::npos ? findOnPath(word, environment) : std::nullopt;
}

/// Whether `folder` is `home` or contains it.
bool holdsHome(const fs::path& folder, const fs::path& home) {
    return std::mismatch(folder.begin(), folder.end(), home.begin(), home.end()).first == folder.end();
}

/// An AppImage is a single file that people keep anywhere. It runs from a mount elsewhere.
bool isAppImage(const fs::path& executable) {
    constexpr std::string_view kMark = "AI";
    constexpr std::streamoff kMarkPosition = 8;
    std::array<char, kMark.size()> bytes{};
    std::ifstream file(executable, std::ios::binary);
    file.seekg(kMarkPosition).read(bytes.data(), bytes.size());
    return file && std::equal(bytes.begin(), bytes.end(), kMark.begin());
}

/// The folder in which every program belongs to the application; empty if there is none.
fs::path ownFolder(const fs::path& executable, const fs::path& home) {
    std::error_code error;
    const fs::path resolved = fs::canonical(executable, error);
    fs::path folder = resolved.parent_path();
    const bool isCommon =
        std::find(kCommonFolders.begin(), kCommonFolders.end(), folder.native()) != kCommonFolders.end();
    if (error || isCommon || isProgramsFolder(folder) || holdsHome(folder, home) || isAppImage(resolved))
        return {};
    return folder;
}

/// Nothing if no such entry is installed. Its program is only the first word, not yet looked up.
std::optional<Application> findEntry(const std::string& id) {
    struct Found {
        std::vector<std::string> words;
        Application application;
    };
    Received<Found> received;
    const auto receive = [](void* context, const DesktopEntryView& entry) noexcept {
        Received<Found>::add(context, [&entry](Found& found) {
            std::string_view rest(entry.arguments, entry.argumentsSize);
            while (!rest.empty()) {
                const std::size_t end = std::min(rest.find('\0'), rest.size());
                found.words.emplace_back(rest.substr(0, end));
                rest.remove_prefix(std::min(end + 1, rest.size()));
            }
            found.application.entry = entry.file;
            if (entry.workingFolder != nullptr)
                found.application.workingFolder = entry.workingFolder;
        });
    };
    const bool isInstalled = desktopServices().desktopEntry(id.c_str(), receive, &received);
    Found found = received.take();
    if (!isInstalled || found.words.empty())
        return std::nullopt;
    found.application.executable = found.words.front();
    found.application.arguments.assign(found.words.begin() + 1, found.words.end());
    return found.application;
}

} // namespace

std::optional<Application> findApplication(const ApplicationIdentity& identity,
                                           const Environment& environment) {
    const fs::path home = homeFolder(environment);
    for (const std::string& id : identity.ids) {
        std::optional<Application> application = findEntry(id);
        const auto program =
            application ? findProgram(application->executable.native(), environment) : std::nullopt;
        if (!program)
            continue;
        application->executable = *program;
        application->folder = ownFolder(*program, home);
        return application;
    }
    const auto program = findOnPath(identity.executableName, environment);
    if (!program)
        return std::nullopt;
    Application application;
    application.executable = *program;
    application.folder = ownFolder(*program, home);
    return application;
}

bool isProgramsFolder(const fs::path& folder) {
    const fs::path name = folder.filename();
    return name == "bin" || name == "sbin" || name == "games";
}

} // namespace selvane
