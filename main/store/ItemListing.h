// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/Component.h"
#include "platform/files/OpenFolder.h"

namespace selvane {

/// What of a collection's folder are items, with the folder kept open to ask more about them.
struct ItemListing {
    ItemListing(Component component, const std::filesystem::path& path);

    std::optional<OpenFolder> folder; ///< nothing when it can't be read; then there are no entries
    std::vector<FolderEntry> entries; ///< in the order of the listing
};

} // namespace selvane
