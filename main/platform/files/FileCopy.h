// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <ctime>
#include <filesystem>
#include <optional>
#include <sys/stat.h>

#include "platform/files/FileManager.h"

/// What the file manager needs of the system beyond POSIX.
namespace selvane::files {

/// Copies what is at `from` to `to`, where nothing may be, as `FileManager::copy` says; what was made before
/// a failure stays. Errors name the path at or below
/// `from`, or at or below `named`, which is what the user calls `to`.
void copyTree(const std::filesystem::path& from, const std::filesystem::path& to,
              const std::filesystem::path& named, Privacy privacy);

/// Copies the user's extended attributes and the access lists of one open file to another. Returns the bits
/// of `mode` that then mean at `to` what they mean at `from`; nothing, and `errno`, on failure. File systems
/// that keep no attributes are no failure. An `ownerOnly` copy gives nobody else anything.
std::optional<mode_t> copyAttributes(int from, int to, mode_t mode, Privacy privacy);
/// Drops the access list that a new file has got from its folder, which would give others what its mode
/// denies them.
void dropInheritedAccess(int file);

/// When a file was last read and last changed, as `utimensat` takes them.
std::array<timespec, 2> timesOf(const struct stat& status);
/// Makes a FIFO, socket or device like the one of that status, for its owner alone. Returns 0 or the error.
int makeSpecial(int folder, const char* name, const struct stat& status);

/// Gives `from` the name `to`. Returns 0 or the error, EEXIST when anything is at `to`.
int renameExclusively(const std::filesystem::path& from, const std::filesystem::path& to);
/// Exchanges two names in one step. Returns 0 or the error, ENOTSUP where the file system can't.
int exchangeNames(const std::filesystem::path& first, const std::filesystem::path& second);

} // namespace selvane::files
