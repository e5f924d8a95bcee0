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

bool isLink(int folder, const char* name) {
    struct stat status = {};
    return ::fstatat(folder, name, &status, AT_SYMLINK_NOFOLLOW) == 0 && S_ISLNK(status.st_mode);
}

} // namespace

OpenFolder::OpenFolder(std::filesystem::path path, Descriptor folder)
    : m_path(std::move(path)), m_folder(std::move(folder)) {}

OpenFolder::OpenFolder(const std::filesystem::path& folder)
    : OpenFolder(folder, Descriptor(::open(folder.c_str(), kFolderFlags | O_NOFOLLOW))) {
    if (!m_folder)
        fail("open", folder, errno);
}

std::optional<OpenFolder> OpenFolder::ifReadable(const std::filesystem::path& folder) {
    Descriptor open(::open(folder.c_str(), kFolderFlags));
    return open ? std::optional(OpenFolder(folder, std::move(open))) : std::nullopt;
}

std::vector<FolderEntry> OpenFolder::entriesIfReadable() const {
    std::vector<FolderEntry> entries;
    const int error = files::forEachEntry(m_folder.get(), [&](const char* name, unsigned char type) {
        const bool link = type == DT_LNK || (type == DT_UNKNOWN && isLink(m_folder.get(), name));
        entries.push_back({name, link});
    });
    return error == 0 ? entries : std::vector<FolderEntry>();
}

std::optional<std::string> OpenFolder::linkTarget(const std::string& name) const {
    std::array<char, PATH_MAX> text;
    const ssize_t size = ::readlinkat(m_folder.get(), name.c_str(), text.data(), text.size());
    return size < 0 ? std::nullopt : std::optional(std::string(text.data(), static_cast<std::size_t>(size)));
}

bool OpenFolder::existsFollowingLinks(const std::string& name) const {
    struct stat status = {};
    return ::fstatat(m_folder.get(), name.c_str(), &status, 0) == 0;
}

void OpenFolder::createLink(const std::string& target, const std::string& name) const {
    if (::symlinkat(target.c_str(), m_folder.get(), name.c_str()) != 0)
        fail("create link", m_path / name, errno);
}

bool OpenFolder::removeLink(const std::string& name) const {
    return files::removeLink(m_folder.get(), name, m_path / name);
}

} // namespace selvane
