// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <sys/stat.h>

namespace selvane::files {

/// What `listTree` calls. Paths are relative to the top, whose own is empty.
struct TreeVisitor {
    /// An entry. For a folder, the result says whether to list it too.
    std::function<bool(const std::string& path, const struct stat& status)> visit;
    /// An entry that can't be looked at, or a folder that can't be listed to its end.
    std::function<void(const std::string& path, int error)> failed;
};

/// Lists `top` and everything below it, however deep, in the order of the folders' listings. Symbolic links
/// are visited, not followed; only `top` itself is, if it ends in "/". What vanishes meanwhile is left out.
void listTree(const std::filesystem::path& top, const TreeVisitor& visitor);

} // namespace selvane::files
