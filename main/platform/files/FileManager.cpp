// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/FileManager.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cstdio>
#include <sys/stat.h>

#include "platform/files/Descriptor.h"
#include "platform/files/DiskSync.h"
#include "platform/files/FileChanges.h"
#include "platform/files/FileRemoval.h"
#include "platform/files/Temporary.h"
#include "platform/files/Trash.h"

namespace selvane {

using files::Descriptor;
using files::fail;

namespace {

std::optional<struct stat> statusOf(const std::filesystem::path& path) {
    struct stat status = {};
    if (::lstat(path.c_str(), &status) == 0)
        return status;
    if (!files::meansMissing(errno))
        fail("look up", path, errno);
    return std::nullopt;
}

Descriptor openFolder(const std::filesystem::path& folder) {
    return Descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

/// All bytes of an open file of about `size` bytes; nothing, with errno, on failure or if there are more than
/// `longest`.
std::optional<std::string> readAll(int file, std::size_t size, std::size_t longest) {
    constexpr std::size_t kLeast = 4096;
    if (size > longest) {
        errno = EOVERFLOW;
        return std::nullopt;
    }
    // With room for one more byte, a file of the expected size shows its end at once.
    std::string bytes(std::max(size + 1, kLeast), '\0');
    std::size_t used = 0;
    while (true) {
        const ssize_t count = ::read(file, bytes.data() + used, bytes.size() - used);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return std::nullopt;
        used += static_cast<std::size_t>(count);
        // Files in /proc report size 0; only those must be read until the end.
        if (count == 0 || (size > 0 && used == size)) {
            bytes.resize(used);
            return bytes;
        }
        if (used > longest) {
            errno = EOVERFLOW;
            return std::nullopt;
        }
        if (used == bytes.size())
            bytes.resize(2 * used);
    }
}

} // namespace

bool FileManager::exists(const std::filesystem::path& path) const {
    return statusOf(path).has_value();
}

bool FileManager::isPresent(const std::filesystem::path& path) const {
    struct stat status = {};
    if (::stat(path.c_str(), &status) == 0)
        return true;
    if (!files::meansMissing(errno))
        fail("look up", path, errno);
    return false;
}

bool FileManager::isFolder(const std::filesystem::path& path) const {
    const auto status = statusOf(path);
    return status && S_ISDIR(status->st_mode);
}

bool FileManager::isRegularFile(const std::filesystem::path& path) const {
    const auto status = statusOf(path);
    return status && S_ISREG(status->st_mode);
}

std::optional<std::filesystem::path> FileManager::linkTarget(const std::filesystem::path& path) const {
    std::array<char, PATH_MAX> text;
    const ssize_t size = ::readlink(path.c_str(), text.data(), text.size());
    if (size < 0 && errno != EINVAL && !files::meansMissing(errno))
        fail("look up", path, errno);
    if (size < 0)
        return std::nullopt;
    return std::filesystem::path(std::string_view(text.data(), static_cast<std::size_t>(size)));
}

std::filesystem::path FileManager::resolved(const std::filesystem::path& path) const {
    return std::filesystem::canonical(path);
}

std::vector<std::string> FileManager::entries(const std::filesystem::path& folder) const {
    const Descriptor open = openFolder(folder);
    if (!open)
        fail("list", folder, errno);
    std::vector<std::string> names;
    const int error =
        files::forEachEntry(open.get(), [&](const char* name, unsigned char) { names.emplace_back(name); });
    if (error != 0)
        fail("list", folder, error);
    return names;
}

std::vector<std::string> FileManager::entriesIfPresent(const std::filesystem::path& folder,
                                                       Unreadable unreadable) const {
    try {
        return entries(folder);
    } catch (const std::filesystem::filesystem_error& error) {
        if (unreadable == Unreadable::fails && !files::meansMissing(error.code().value()))
            throw;
        return {};
    }
}

std::string FileManager::read(const std::filesystem::path& file, std::size_t longest) const {
    // O_NONBLOCK: opening a FIFO without a writer would block.
    const Descriptor open(::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat status = {};
    if (!open || ::fstat(open.get(), &status) != 0)
        fail("read", file, errno);
    if (!S_ISREG(status.st_mode))
        fail("read", file, S_ISDIR(status.st_mode) ? EISDIR : EINVAL);
    auto bytes = readAll(open.get(), static_cast<std::size_t>(status.st_size), longest);
    if (!bytes)
        fail("read", file, errno);
    return std::move(*bytes);
}

std::optional<std::string> FileManager::readIfPresent(const std::filesystem::path& file,
                                                      std::size_t longest) const {
    try {
        return read(file, longest);
    } catch (const std::filesystem::filesystem_error& error) {
        if (!files::meansMissing(error.code().value()))
            throw;
        return std::nullopt;
    }
}

std::optional<std::string> FileManager::readIfPossible(const std::filesystem::path& file,
                                                       std::size_t longest) const {
    try {
        return read(file, longest);
    } catch (const std::filesystem::filesystem_error&) {
        return std::nullopt;
    }
}

void FileManager::setMode(const std::filesystem::path& file, mode_t mode) const {
    if (::chmod(file.c_str(), mode) != 0)
        fail("set mode", file, errno);
}

std::optional<mode_t> FileManager::mode(const std::filesystem::path& path) const {
    const auto status = statusOf(path);
    return status ? std::optional<mode_t>(status->st_mode & ALLPERMS) : std::nullopt;
}

void FileManager::createFolders(const std::filesystem::path& folder, Privacy privacy) const {
    if (privacy == Privacy::inherited) {
        std::filesystem::create_directories(folder);
        return;
    }
    std::error_code error;
    std::filesystem::create_directories(folder.parent_path(), error);
    if (!error && ::mkdir(folder.c_str(), S_IRWXU) != 0)
        error.assign(errno, std::generic_category());
    if (error == std::errc::file_exists && !std::filesystem::is_directory(folder))
        error = std::make_error_code(std::errc::not_a_directory);
    if (error && error != std::errc::file_exists)
        fail("create folder", folder, error.value());
}

void FileManager::createFolder(const std::filesystem::path& folder) const {
    if (::mkdir(folder.c_str(), S_IRWXU) != 0)
        fail("create folder", folder, errno);
}

void FileManager::createFoldersBelow(const std::filesystem::path& top,
                                     const std::filesystem::path& folder) const {
    Descriptor open = openFolder(top);
    if (!open)
        fail("create folder", top, errno);
    std::filesystem::path path = top;
    for (const std::filesystem::path& name : folder.lexically_relative(top)) {
        path /= name;
        if (::mkdirat(open.get(), name.c_str(), ACCESSPERMS) != 0 && errno != EEXIST)
            fail("create folder", path, errno);
        open =
            Descriptor(::openat(open.get(), name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
        if (!open)
            fail("create folder", path, errno);
    }
}

std::optional<std::filesystem::path> FileManager::linkBelow(const std::filesystem::path& top,
                                                            const std::filesystem::path& folder) const {
    std::filesystem::path path = top;
    for (const std::filesystem::path& name : folder.lexically_relative(top)) {
        path /= name;
        if (const auto status = statusOf(path); !status || S_ISLNK(status->st_mode))
            return status ? std::optional(path) : std::nullopt;
    }
    return std::nullopt;
}

bool FileManager::removeEmptyFolder(const std::filesystem::path& folder) const {
    return ::rmdir(folder.c_str()) == 0;
}

void FileManager::createLink(const std::filesystem::path& target, const std::filesystem::path& link) const {
    if (::symlink(target.c_str(), link.c_str()) != 0)
        fail("create link", link, errno);
}

void FileManager::removeFile(const std::filesystem::path& file) const {
    if (::unlink(file.c_str()) != 0)
        fail("remove", file, errno);
}

bool FileManager::removeLink(const std::filesystem::path& link) const {
    const auto target = m_changes == nullptr ? std::nullopt : linkTarget(link);
    const bool isRemoved = files::removeLink(AT_FDCWD, link, link);
    if (isRemoved && m_changes != nullptr && target)
        m_changes->add(link, files::LinkText{*target}, files::Nothing{});
    return isRemoved;
}

void FileManager::removeTree(const std::filesystem::path& path) const {
    files::removeTree(path, path);
}

void FileManager::moveToTrash(const std::filesystem::path& path) const {
    const auto item = discard(path);
    if (m_changes != nullptr)
        m_changes->addTrashed(path, item);
}

std::optional<TrashedItem> FileManager::discard(const std::filesystem::path& path) const {
    auto item = selvane::moveToTrash(path);
    // Some file systems (btrfs) would let go of the old name before the new one is on the disk, or forget
    // what the Trash notes about it, if only the folder were waited for.
    if (const int error = files::syncAllWith(files::folderOf(path)); error != 0)
        fail("write", path, error);
    return item;
}

void FileManager::waitForContent(const std::filesystem::path& file) const {
    Descriptor open(::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC));
    const int error = open ? files::syncOne(open.get()) : errno;
    if (error != 0)
        fail("write", file, error);
}

void FileManager::waitForNames(const std::filesystem::path& folder) const {
    if (const int error = m_written == nullptr ? files::syncFolder(folder) : m_written->addFolder(folder);
        error != 0)
        fail("write", folder, error);
}

/// Waits until the folder that `path` is in has its name, or no longer has it.
void FileManager::waitForPlaceOf(const std::filesystem::path& path) const {
    waitForNames(files::folderOf(path));
}

} // namespace selvane
