// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace selvane {

/// One entry of a collection component's folder.
struct ComponentItem {
    std::string name;
    std::filesystem::path url;
    std::optional<std::string> linkTarget; ///< the text of the symbolic link; none for a file or folder
    bool isBroken = false;                 ///< a link that leads nowhere

    bool isLinked() const { return linkTarget.has_value(); }
    bool operator==(const ComponentItem&) const = default;
};

} // namespace selvane
