// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "model/Profile.h"
#include "platform/files/FileChanges.h"
#include "platform/json/Json.h"

namespace selvane {

/// What one operation of a `ProfileStore` has changed, for `ProfileStore::takeBack`.
struct Reversal {
    struct Record {
        Profile profile;
        ProfileMeta before;
        ProfileMeta after;
    };
    /// MCP servers in Claude Code's state, which that rewrites all the time: only their key is taken back.
    struct Servers {
        std::filesystem::path file;
        std::optional<std::string> created; ///< the whole file, if there was none before
        std::optional<Json> before;
        Json after;
        std::optional<TrashedItem> copy; ///< what was there, in the Trash
    };

    FileChanges files;
    std::vector<Profile> profiles; ///< those that it has locked
    std::vector<Record> records;
    std::optional<Servers> servers;
    bool isDeletion = false; ///< of the only one of `profiles`

    /// Whether all of it can be taken back: whether the Trash has told where everything is.
    bool isPossible() const { return files.canBeUndone(); }
};

} // namespace selvane
