// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/RuntimeFolder.h"

#include <limits.h>
#include <unistd.h>

#include <array>

namespace selvane {

/// The user's temporary folder, which the system empties when it boots.
std::vector<std::filesystem::path> runtimeFolderPlaces(const Environment& /*environment*/) {
    std::array<char, PATH_MAX> folder = {};
    const std::size_t size = ::confstr(_CS_DARWIN_USER_TEMP_DIR, folder.data(), folder.size());
    if (size == 0 || size > folder.size())
        return {};
    return {std::filesystem::path(folder.data()) / "selvane"};
}

} // namespace selvane
