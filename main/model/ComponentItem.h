// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace selvane {

/// One item in the folder of a collection.
struct ComponentItem {
    std::string name;
    std::filesystem::path url;
    std::optional<std::string> linkTarget; ///< the link's text; nothing for a file or folder
    bool isBroken = false;                 ///< a dangling link

    bool isLinked() const { return linkTarget.has_value(); }
    bool operator==(const ComponentItem&) const = default;
};

} // namespace selvane
