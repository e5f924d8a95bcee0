// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/Temporary.h"

#include <algorithm>
#include <array>
#include <string>
#include <sys/random.h>
#include <system_error>
#include <unistd.h>

#include "platform/files/Descriptor.h"
#include "platform/files/FileCopy.h"
#include "platform/files/FileManager.h"
#include "platform/files/FileRemoval.h"

namespace selvane::files {

std::filesystem::path newSibling(const std::filesystem::path& path) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::array<unsigned char, 8> bytes = {};
    if (::getentropy(bytes.data(), bytes.size()) != 0)
        throw std::system_error(errno, std::generic_category(), "getentropy");
    std::string name(FileManager::kTemporaryPrefix);
    for (const unsigned char byte : bytes) {
        name += kDigits[byte >> 4];
        name += kDigits[byte & 15];
    }
    return path.parent_path() / name;
}

std::filesystem::path folderOf(const std::filesystem::path& path) {
    // A path that ends in "/" names a folder.
    const std::filesystem::path named = path.has_filename() ? path : path.parent_path();
    return named.has_parent_path() ? named.parent_path() : ".";
}

void requireOutside(const char* operation, const std::filesystem::path& from,
                    const std::filesystem::path& to) {
    const std::filesystem::path origin = std::filesystem::canonical(from);
    const std::filesystem::path folder = std::filesystem::canonical(folderOf(to));
    if (std::mismatch(origin.begin(), origin.end(), folder.begin(), folder.end()).first == origin.end())
        fail(operation, from, to, EINVAL);
}

int writeAll(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(file, bytes.data(), bytes.size());
        if (written >= 0)
            bytes.remove_prefix(static_cast<std::size_t>(written));
        else if (errno != EINTR)
            return errno;
    }
    return 0;
}

Temporary::~Temporary() {
    if (m_isPlaced)
        return;
    try {
        removeTree(m_path, m_path);
    } catch (const std::exception&) {
        // Report the error that led here.
    }
}

void Temporary::place(const std::filesystem::path& target) {
    if (const int error = renameExclusively(m_path, target); error != 0)
        fail("create", target, error);
    setPlaced();
}

void Temporary::takeBack(const std::filesystem::path& target) {
    m_isPlaced = renameExclusively(target, m_path) != 0;
}

void build(const Temporary& temporary, const std::filesystem::path& target,
           const std::function<void(const std::filesystem::path& temporary)>& make) {
    const auto named = [&](const std::filesystem::path& path) -> std::filesystem::path {
        const std::string& name = temporary.path().native();
        if (!path.native().starts_with(name))
            return path;
        return target.native() + path.native().substr(name.size());
    };
    try {
        make(temporary.path());
    } catch (const std::filesystem::filesystem_error& error) {
        throw std::filesystem::filesystem_error("create", named(error.path1()), named(error.path2()),
                                                error.code());
    }
}

bool isAnything(const std::filesystem::path& path, struct stat& status) {
    return ::lstat(path.c_str(), &status) == 0;
}

bool isLink(const std::filesystem::path& path) {
    struct stat status = {};
    return isAnything(path, status) && S_ISLNK(status.st_mode);
}

void inherit(int file, const std::filesystem::path& old, mode_t mode, Privacy privacy) {
    dropInheritedAccess(file);
    std::optional<mode_t> known = mode & ALLPERMS;
    // If the old file can't be read, its attributes can't be copied.
    const Descriptor origin(::open(old.c_str(), O_RDONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC));
    if (origin)
        known = copyAttributes(origin.get(), file, *known, privacy);
    else if (privacy == Privacy::ownerOnly)
        *known &= S_IRWXU;
    if (!known || ::fchmod(file, *known) != 0)
        fail("write", old, errno);
}

} // namespace selvane::files
