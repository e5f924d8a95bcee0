// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>

#include <libproc.h>

namespace selvane {

/// The kernel's data on a process of this user; nothing if there is none, or if it has ended and only its
/// exit status is left.
std::optional<proc_bsdinfo> processStatus(std::int32_t pid);

/// Microseconds since 1970.
std::uint64_t startTimeOf(const proc_bsdinfo& status);

} // namespace selvane
