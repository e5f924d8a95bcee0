// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/ZipList.h"

#include <algorithm>
#include <array>
#include <iterator>

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

/// With a slash after its name, zip stores what a link leads to. The link itself must then stay out: nothing
/// can be unpacked below it.
void follow(const std::string& link, ZipList& list) {
    list.exclusions.emplace_back(link);
    list.exclusions.emplace_back(link + "/");
}

/// Whether a link leads nowhere. One that can't be followed for another reason may well lead to something,
/// which must not be left out unnoticed.
bool isDangling(const std::error_code& failure) {
    return failure == std::errc::no_such_file_or_directory || failure == std::errc::not_a_directory ||
           failure == std::errc::too_many_symbolic_link_levels;
}

/// For a source that is a link, the user wants to keep what it leads to.
void addTarget(const fs::path& link, const fs::path& home, ZipList& list) {
    std::error_code failure;
    const fs::path target = fs::canonical(link, failure);
    if (isDangling(failure))
        return;
    if (failure || fs::is_directory(target)) {
        follow(list.paths.back(), list);
        list.paths.back() += '/';
    } else {
        list.paths.push_back(relativeToHome(target, home));
    }
}

bool liesIn(const fs::path& folder, const fs::path& path) {
    return std::mismatch(folder.begin(), folder.end(), path.begin(), path.end()).first == folder.end();
}

/// For a folder inside a source that is a link, unless it leads to what is stored anyway.
void addLinked(const fs::path& folder, const std::vector<fs::path>& sources, const fs::path& home,
               ZipList& list) {
    std::error_code failure;
    const fs::path target = fs::canonical(folder, failure);
    const bool leadsInside = std::any_of(sources.begin(), sources.end(), [&](const fs::path& source) {
        std::error_code ignored;
        return liesIn(fs::weakly_canonical(source, ignored), target);
    });
    if (failure ? isDangling(failure) : leadsInside || !fs::is_directory(target))
        return;
    const std::string path = relativeToHome(folder, home);
    follow(path, list);
    list.linked.push_back(path + "/");
}

} // namespace

bool Exclusion::matches(std::string_view name) const {
    const std::string_view start = archivedName(m_start);
    if (!name.starts_with(start))
        return false;
    name.remove_prefix(start.size());
    std::string_view rest = m_wildcards;
    const bool anyBefore = rest.starts_with('*');
    const bool anyAfter = rest.ends_with('*');
    rest.remove_prefix(anyBefore ? 1 : 0);
    rest.remove_suffix(anyAfter && !rest.empty() ? 1 : 0);
    if (anyBefore)
        return anyAfter ? name.find(rest) != std::string_view::npos : name.ends_with(rest);
    return anyAfter ? name.starts_with(rest) : name == rest;
}

std::string Exclusion::pattern() const {
    return patternFor(m_start) + std::string(m_wildcards);
}

bool ZipList::excludes(std::string_view name) const {
    return std::any_of(exclusions.begin(), exclusions.end(),
                       [&](const Exclusion& exclusion) { return exclusion.matches(name); });
}

std::string relativeToHome(const fs::path& path, const fs::path& home) {
    const std::string text = path.string();
    const std::string prefix = home.string() + "/";
    return text.starts_with(prefix) ? text.substr(prefix.size()) : text;
}

std::string_view archivedName(std::string_view path) {
    return path.substr(std::min(path.find_first_not_of('/'), path.size()));
}

ZipList zipList(const std::vector<fs::path>& sources, const std::vector<fs::path>& desktopFolders,
                const std::vector<fs::path>& ownFolders, const fs::path& home) {
    ZipList list;
    for (const fs::path& source : sources) {
        list.paths.push_back(relativeToHome(source, home));
        std::error_code failure;
        if (fs::is_symlink(source, failure))
            addTarget(source, home, list);
    }
    for (const fs::path& folder : ownFolders) {
        std::error_code failure;
        if (fs::is_symlink(folder, failure))
            addLinked(folder, sources, home, list);
    }
    for (const fs::path& folder : desktopFolders) {
        for (const std::string_view excluded : kBackupExcludedDesktopPaths)
            list.exclusions.emplace_back(relativeToHome(folder, home) + "/", excluded);
    }
    return list;
}

std::vector<std::string> zipArguments(const ZipList& list, const fs::path& archive, const fs::path& work) {
    std::vector<std::string> arguments = {"-r", "-y", "-q", "-b", work.string(), archive.string()};
    for (const auto* paths : {&list.paths, &list.linked})
        std::ranges::transform(*paths, std::back_inserter(arguments), asArgument);
    if (!list.exclusions.empty()) {
        arguments.emplace_back("-x");
        for (const Exclusion& exclusion : list.exclusions)
            arguments.push_back(exclusion.pattern());
    }
    return arguments;
}

} // namespace selvane
