// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace selvane::text {

/// Texts and their Italian forms, the same under any locale of the system. Bytes that are not UTF-8 are
/// tolerated everywhere and sort as replacement characters.

/// Positions of `names` in ascending Italian order without regard to case; equal names keep their order.
std::vector<std::size_t> sortedOrder(const std::vector<std::string_view>& names);
/// `names` in that order.
std::vector<std::string> sorted(std::vector<std::string> names);

/// `name` folded to lower case without diacritics, every character that is no letter, mark or number
/// replaced by "-". Letters of any script stay.
std::string folded(std::string_view name);

/// `text` without Unicode white space and line ends at both ends.
std::string_view trimmed(std::string_view text);

/// `text` with every control character replaced by U+FFFD, so that it stays on one line and in one field.
std::string singleLine(std::string_view text);

/// For example "15 novembre 2026 alle ore 09:30", in the local time zone.
std::string longDate(std::chrono::system_clock::time_point time);

/// How long ago something was, for example "ora", "2 ore fa", "ieri", "3 settimane fa". A time to come counts
/// as now.
std::string relativeDate(std::chrono::seconds ago);

/// "Zero KB", "512 byte", "12 KB", "1,2 MB", "3,45 GB": decimal units.
std::string byteCount(std::int64_t bytes);

} // namespace selvane::text
