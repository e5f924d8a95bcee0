// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/BackupContents.h"

#include <algorithm>
#include <cerrno>

#include "platform/files/TreeListing.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

using Kind = ArchivedEntry::Kind;

Kind kindOf(const struct stat& status) {
    if (S_ISREG(status.st_mode))
        return Kind::file;
    if (S_ISDIR(status.st_mode))
        return Kind::folder;
    return S_ISLNK(status.st_mode) ? Kind::link : Kind::other;
}

} // namespace

BackupContents::BackupContents(const ZipList& list, fs::path home) : m_home(std::move(home)) {
    for (const auto* paths : {&list.paths, &list.linked}) {
        for (const std::string& path : *paths)
            add(path, list);
    }
    const auto name = [](const Expected& entry) { return archivedName(entry.path); };
    std::ranges::sort(m_entries, {}, name);
    const auto areSame = [&](const Expected& a, const Expected& b) { return name(a) == name(b); };
    m_entries.erase(std::unique(m_entries.begin(), m_entries.end(), areSame), m_entries.end());
}

void BackupContents::add(const std::string& top, const ZipList& list) {
    const std::string base = top.ends_with('/') ? top.substr(0, top.size() - 1) : top;
    const auto full = [&](const std::string& below) { return below.empty() ? base : base + "/" + below; };
    const auto visit = [&](const std::string& below, const struct stat& status) {
        std::string path = full(below);
        const Kind kind = kindOf(status);
        const bool isFollowed = below.empty() && base != top;
        if (isFollowed)
            return true;
        if (list.excludes(std::string(archivedName(path)) + (kind == Kind::folder ? "/" : "")))
            return false;
        m_entries.push_back({std::move(path), kind, static_cast<std::uint64_t>(status.st_size), {}});
        return true;
    };
    const auto failed = [&](const std::string& below, int) { m_unlisted.push_back(full(below)); };
    files::listTree(m_home / top, {visit, failed});
}

std::int64_t BackupContents::bytes() const {
    std::int64_t bytes = 0;
    for (const Expected& entry : m_entries)
        bytes += entry.kind == Kind::file ? static_cast<std::int64_t>(entry.size) : 0;
    return bytes;
}

void BackupContents::compare(ArchiveReader& archive) {
    while (const std::optional<ArchiveEntry> entry = archive.next()) {
        ++m_archived;
        const auto expected =
            std::ranges::lower_bound(m_entries, std::string_view(entry->name), {},
                                     [](const Expected& each) { return archivedName(each.path); });
        if (expected != m_entries.end() && archivedName(expected->path) == entry->name &&
            expected->kind == entry->kind)
            expected->archivedSize = entry->size;
    }
}

/// A file that is being written to may have any size between those before and after the backup.
bool BackupContents::isMissing(const Expected& entry) const {
    if (entry.archivedSize && (entry.kind == Kind::folder || *entry.archivedSize == entry.size))
        return false;
    struct stat now = {};
    if (::lstat((m_home / entry.path).c_str(), &now) != 0)
        return errno != ENOENT && errno != ENOTDIR;
    if (!entry.archivedSize)
        return true;
    const auto size = static_cast<std::uint64_t>(now.st_size);
    const auto [least, most] = std::minmax(entry.size, size);
    return *entry.archivedSize < least || *entry.archivedSize > most;
}

std::vector<std::string> BackupContents::missing() const {
    std::vector<std::string> paths = m_unlisted;
    for (const Expected& entry : m_entries) {
        if (isMissing(entry))
            paths.push_back(entry.path);
    }
    std::ranges::sort(paths);
    paths.erase(std::unique(paths.begin(), paths.end()), paths.end());
    return paths;
}

} // namespace selvane
