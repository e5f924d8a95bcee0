// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/NormalizedPath.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

/// The folder that "FOLDER/.." is.
fs::path above(const fs::path& folder) {
    std::error_code error;
    if (fs::is_symlink(folder, error)) {
        if (const fs::path target = fs::canonical(folder, error); !error)
            return target.parent_path();
    }
    return folder.parent_path();
}

} // namespace

std::string normalizedPath(const fs::path& path) {
    fs::path result;
    for (const fs::path& part : fs::absolute(path)) {
        if (part == "..")
            result = above(result);
        else if (!part.empty() && part != ".")
            result /= part;
    }
    return result.string();
}

} // namespace selvane
