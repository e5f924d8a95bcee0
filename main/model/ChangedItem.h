// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>

#include "model/Component.h"

namespace selvane {

/// An item of a shared component, or a shared CLAUDE.md, that is the profile's own although the source has
/// one of that name: a program has replaced the link by a file, and the profile no longer follows its source.
struct ChangedItem {
    Component component = Component::skills;
    std::string name;             ///< as on disk; "CLAUDE.md" for that file
    std::filesystem::path own;    ///< the profile's
    std::filesystem::path source; ///< the source's; may be a link to the source's own source

    bool operator==(const ChangedItem&) const = default;
};

} // namespace selvane
