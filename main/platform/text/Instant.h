// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string_view>

namespace selvane::text {

/// The moment that an ISO 8601 text such as "2026-11-22T14:02:00.125Z" names, in seconds since 1970. Nothing
/// if it is anything else, or has another zone than UTC.
std::optional<double> instant(std::string_view iso8601);

} // namespace selvane::text
