// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "store/restore/TreeSwap.h"

namespace selvane {

/// What a restore is doing, on the disk, so that one that is killed can be completed.
struct RestoreJournal {
    struct Part {
        std::string title; ///< what the user calls it
        std::vector<TreeSwap> swaps;
    };

    std::filesystem::path archive;
    bool isComplete = false; ///< everything is unpacked, and the swaps have begun
    std::vector<Part> parts;

    static std::filesystem::path fileIn(const std::filesystem::path& root);
    /// Nothing if no restore has been interrupted, or the journal is damaged: then it tells nothing.
    static std::optional<RestoreJournal> read(const std::filesystem::path& root);
    /// On the disk when this returns.
    void write(const std::filesystem::path& root) const;
    static void remove(const std::filesystem::path& root);
};

} // namespace selvane
