// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/OpenFolder.h"

#include <array>
#include <climits>
#include <sys/stat.h>

#include "platform/files/FileRemoval.h"

namespace selvane {

using files::Descriptor;
using files::fail;

namespace {

constexpr int kFolderFlags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;

} // namespace

OpenFolder::OpenFolder(std::filesystem::path path, Descriptor folder)
    : m_path(std::move(path)), m_folder(std::move(folder)) {}

OpenFolder::OpenFolder(const std::filesystem::path& folder)
    : OpenFolder(folder, Descriptor(::open(folder.c_str(), kFolderFlags | O_NOFOLLOW))) {
    if (!m_folder)
        fail("open", folder, errno);
}

std::optional<OpenFolder> OpenFolder::ifPresent(const std::filesystem::path& folder) {
    Descriptor open(::open(folder.c_str(), kFolderFlags));
    if (open)
        return OpenFolder(folder, std::move(open));
    const int error = errno;
    struct stat status = {};
    const bool isThere = ::lstat(folder.c_str(), &status) == 0;
    if (!files::meansMissing(error) || (isThere && S_ISLNK(status.st_mode)))
        fail("list", folder, error);
    if (!isThere && !files::meansMissing(errno))
        fail("list", folder, errno);
    return std::nullopt;
}

std::vector<FolderEntry> OpenFolder::entries() const {
    std::vector<FolderEntry> entries;
    std::vector<std::size_t> unknown; // not every file system tells what its entries are
    const int error = files::forEachEntry(m_folder.get(), [&](const char* name, unsigned char type) {
        if (type == DT_UNKNOWN)
            unknown.push_back(entries.size());
        entries.push_back({name, type == DT_LNK});
    });
    if (error != 0)
        fail("list", m_path, error);
    for (const std::size_t position : unknown) {
        struct stat status = {};
        FolderEntry& entry = entries[position];
        if (::fstatat(m_folder.get(), entry.name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0 &&
            errno != ENOENT)
            fail("list", m_path / entry.name, errno);
        entry.isLink = S_ISLNK(status.st_mode);
    }
    return entries;
}

std::optional<std::string> OpenFolder::linkTarget(const std::string& name) const {
    std::array<char, PATH_MAX> text;
    const ssize_t size = ::readlinkat(m_folder.get(), name.c_str(), text.data(), text.size());
    if (size < 0 && errno != EINVAL && !files::meansMissing(errno))
        fail("look up", m_path / name, errno);
    return size < 0 ? std::nullopt : std::optional(std::string(text.data(), static_cast<std::size_t>(size)));
}

bool OpenFolder::isPresent(const std::string& name) const {
    struct stat status = {};
    if (::fstatat(m_folder.get(), name.c_str(), &status, 0) == 0)
        return true;
    if (!files::meansMissing(errno))
        fail("look up", m_path / name, errno);
    return false;
}

void OpenFolder::createLink(const std::string& target, const std::string& name) const {
    if (::symlinkat(target.c_str(), m_folder.get(), name.c_str()) != 0)
        fail("create link", m_path / name, errno);
}

bool OpenFolder::removeLink(const std::string& name) const {
    return files::removeLink(m_folder.get(), name, m_path / name);
}

} // namespace selvane
