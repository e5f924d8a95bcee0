// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstdint>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <sys/stat.h>

#include "platform/files/Descriptor.h"
#include "platform/files/FileManager.h"

/// What the file manager needs from the system beyond POSIX.
namespace selvane::files {

/// Opens a file to copy it: without following a link, waiting for a FIFO or, where the system allows that,
/// counting as a reader. Returns nothing, with errno, on failure.
Descriptor openOriginal(int folder, const char* name);

/// Copies the user's extended attributes and the access lists from one open file to another. Returns the bits
/// of `mode` that still mean at `to` what they mean at `from`, or nothing, with errno, on failure. A file
/// system without attributes is no failure. An `ownerOnly` copy gives nobody else access.
std::optional<mode_t> copyAttributes(int from, int to, mode_t mode, Privacy privacy);
/// Drops the access list that a new file inherited from its folder: it would allow others what the mode
/// denies.
void dropInheritedAccess(int file);

/// When a file was last read and last changed, in the form `utimensat` takes.
std::array<timespec, 2> timesOf(const struct stat& status);
/// When anything about a file last changed, even its name or its mode. No program can choose it.
timespec changeTimeOf(const struct stat& status);
/// Creates a FIFO, socket or device like the one `status` describes, for its owner alone. Returns 0 or the
/// error.
int makeSpecial(int folder, const char* name, const struct stat& status);

/// Renames `from` to `to`, each a path from an open folder unless it is absolute. Returns 0 or the error,
/// EEXIST if anything is at `to`.
int renameExclusively(int fromFolder, const std::filesystem::path& from, int toFolder,
                      const std::filesystem::path& to);
inline int renameExclusively(const std::filesystem::path& from, const std::filesystem::path& to) {
    return renameExclusively(AT_FDCWD, from, AT_FDCWD, to);
}
/// Between which places names can be moved.
struct MountId {
    dev_t device = 0;
    std::uint64_t mount = 0;

    bool operator==(const MountId&) const = default;
};
/// That of a folder; zeros for one that can't be looked at.
MountId mountOf(const std::filesystem::path& folder);
/// Exchanges two names in one step. Returns 0 or the error, ENOTSUP if the file system can't.
int exchangeNames(const std::filesystem::path& first, const std::filesystem::path& second);

} // namespace selvane::files
