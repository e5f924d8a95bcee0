// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <sys/stat.h>
#include <variant>

/// What is at a path, so that it can be told later whether it still is.
namespace selvane::files {

/// One file or folder, whatever its name. Renaming it leaves this as it is, changing its content doesn't.
struct FileIdentity {
    dev_t device = 0;
    ino_t inode = 0;
    mode_t mode = 0;
    off_t size = 0;
    std::int64_t modified = 0; ///< in nanoseconds

    bool operator==(const FileIdentity&) const = default;
    static FileIdentity of(const struct stat& status);
};

struct Nothing {
    bool operator==(const Nothing&) const = default;
};

struct LinkText {
    std::filesystem::path target;

    bool operator==(const LinkText&) const = default;
};

/// A file, or a folder with everything in it. The content isn't read: anything that is written or replaced
/// shows in the identities and in when each entry last changed.
struct TreeState {
    struct Entry {
        FileIdentity identity;
        std::int64_t changed = 0; ///< as the system notes it, in nanoseconds

        bool operator==(const Entry&) const = default;
    };

    FileIdentity top;
    std::map<std::string, Entry> below; ///< by path from the top

    bool operator==(const TreeState&) const = default;
};

using FileState = std::variant<Nothing, LinkText, TreeState>;

/// Throws `filesystem_error` if all of it can't be looked at.
FileState stateOf(const std::filesystem::path& path);

} // namespace selvane::files
