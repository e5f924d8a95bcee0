// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/LockHolder.h"

namespace selvane {

std::optional<LockHolder> LockHolder::of(const struct stat& /*status*/) {
    return std::nullopt; // macOS doesn't tell who holds a flock()
}

} // namespace selvane
