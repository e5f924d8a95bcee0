// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <functional>
#include <string_view>
#include <sys/stat.h>

#include "platform/files/FileManager.h"

namespace selvane::files {

/// A path for a temporary beside `path`. It doesn't contain the name of `path`, which may already have the
/// maximum length.
std::filesystem::path newSibling(const std::filesystem::path& path);
/// The folder that `path` is in, "." if the path doesn't say.
std::filesystem::path folderOf(const std::filesystem::path& path);
/// Throws if `to` would be inside the folder `from`: copied there, it would keep growing during the copy.
void requireOutside(const char* operation, const std::filesystem::path& from,
                    const std::filesystem::path& to);
/// Returns 0 or the error.
int writeAll(int file, std::string_view bytes);

/// Something new beside `target`, removed again unless it is put in place.
class Temporary {
public:
    explicit Temporary(const std::filesystem::path& target) : m_path(newSibling(target)) {}
    Temporary(const Temporary&) = delete;
    Temporary& operator=(const Temporary&) = delete;
    ~Temporary();

    const std::filesystem::path& path() const { return m_path; }
    void setPlaced() { m_isPlaced = true; }

    /// Renames it to `target`, which must not exist.
    void place(const std::filesystem::path& target);
    /// Undoes `place` if possible.
    void takeBack(const std::filesystem::path& target);

private:
    std::filesystem::path m_path;
    bool m_isPlaced = false;
};

/// Lets `make` build the temporary. Errors about it name `target` instead, the path that the user knows.
void build(const Temporary& temporary, const std::filesystem::path& target,
           const std::function<void(const std::filesystem::path& temporary)>& make);

/// Whether there is anything at `path`, even a dangling link, which `status` then describes; else with errno.
bool isAnything(const std::filesystem::path& path, struct stat& status);
/// Whether a symbolic link is at `path`; false if that can't be told.
bool isLink(const std::filesystem::path& path);

/// Gives a new file the mode, access list and attributes of the one it replaces.
void inherit(int file, const std::filesystem::path& old, mode_t mode, Privacy privacy);

} // namespace selvane::files
