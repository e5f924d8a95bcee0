// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/ZipList.h"

#include <array>
#include <string_view>

namespace selvane {
namespace {

namespace fs = std::filesystem;

/// What Claude Desktop downloads again by itself.
constexpr std::array<std::string_view, 6> kBackupExcludedDesktopPaths = {
    "vm_bundles/*", "claude-code/*", "claude-code-vm/*", "Crashpad/*", "*Cache/*", "*CacheStorage/*"};

/// zip has wildcards in patterns, and takes one that begins with "-" for an option and with "@" for a file of
/// patterns.
std::string patternFor(const std::string& name) {
    std::string pattern;
    for (const char c : name) {
        const std::string_view special = pattern.empty() ? "*?[]\\-@" : "*?[]\\";
        if (special.find(c) != std::string_view::npos)
            pattern += '\\';
        pattern += c;
    }
    return pattern;
}

/// A leading "./" keeps zip from reading the path as an option; zip drops it from the stored name.
std::string asArgument(const std::string& path) {
    return path.starts_with('-') ? "./" + path : path;
}

/// For a source that is a link, the user wants to keep what it leads to.
void addTarget(const fs::path& link, const fs::path& home, ZipList& list) {
    std::error_code failure;
    const fs::path target = fs::canonical(link, failure);
    if (failure)
        return;
    if (fs::is_directory(target)) {
        // With a slash after the name, zip follows the link, but then it would store the name itself twice.
        list.paths.back() += '/';
        list.patterns.push_back(patternFor(list.paths.back()));
    } else {
        list.paths.push_back(relativeToHome(target, home));
    }
}

} // namespace

std::string relativeToHome(const fs::path& path, const fs::path& home) {
    const std::string text = path.string();
    const std::string prefix = home.string() + "/";
    return text.starts_with(prefix) ? text.substr(prefix.size()) : text;
}

ZipList zipList(const std::vector<fs::path>& sources, const std::vector<fs::path>& desktopFolders,
                const fs::path& home) {
    ZipList list;
    for (const fs::path& source : sources) {
        list.paths.push_back(relativeToHome(source, home));
        std::error_code failure;
        if (fs::is_symlink(source, failure))
            addTarget(source, home, list);
    }
    for (const fs::path& folder : desktopFolders) {
        const std::string path = patternFor(relativeToHome(folder, home));
        for (const std::string_view excluded : kBackupExcludedDesktopPaths)
            list.patterns.push_back(path + "/" + std::string(excluded));
    }
    return list;
}

std::vector<std::string> zipArguments(const ZipList& list, const fs::path& archive) {
    std::vector<std::string> arguments = {"-r", "-y", "-q", archive.string()};
    for (const std::string& path : list.paths)
        arguments.push_back(asArgument(path));
    if (!list.patterns.empty()) {
        arguments.emplace_back("-x");
        arguments.insert(arguments.end(), list.patterns.begin(), list.patterns.end());
    }
    return arguments;
}

} // namespace selvane
