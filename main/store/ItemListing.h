// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/Component.h"
#include "platform/files/OpenFolder.h"

namespace selvane {

/// The items in a collection's folder, which stays open for further questions about them. Throws if the
/// folder is there but can't be read.
struct ItemListing {
    ItemListing(Component component, const std::filesystem::path& path);

    std::optional<OpenFolder> folder; ///< nothing if there is none; then there are no entries
    std::vector<FolderEntry> entries; ///< in the folder's own order
};

} // namespace selvane
