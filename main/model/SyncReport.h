// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

namespace selvane {

/// What a sync did; each entry names one link as "title: item".
struct SyncReport {
    std::vector<std::string> added;
    std::vector<std::string> removed;

    bool isEmpty() const { return added.empty() && removed.empty(); }
    bool operator==(const SyncReport&) const = default;
};

} // namespace selvane
