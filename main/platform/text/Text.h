// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace selvane::text {

/// Texts and their Italian forms, the same in any system locale. Bytes that aren't UTF-8 are accepted
/// everywhere and sort as replacement characters.

/// The positions of `names` in ascending Italian order, ignoring case; equal names keep their order.
std::vector<std::size_t> sortedOrder(const std::vector<std::string_view>& names);
/// `names` in that order.
std::vector<std::string> sorted(std::vector<std::string> names);

/// `name` folded to lower case without diacritics, with "-" for every character that isn't a letter, mark or
/// number. Letters of any script stay.
std::string folded(std::string_view name);

/// `text` without case and diacritics, for comparing what somebody types with what somebody wrote: "perche"
/// is in what "PERCHÉ" becomes. Everything else stays; what isn't UTF-8 becomes U+FFFD.
std::string searchable(std::string_view text);

/// `text` without Unicode white space at either end, including line ends.
std::string_view trimmed(std::string_view text);

/// The words of `text` between white space, each `searchable`.
std::vector<std::string> searchableWords(std::string_view text);

/// `text` with U+FFFD for every control character, so that it stays on one line and in one field.
std::string singleLine(std::string_view text);

/// `text` between double quotes, so that a shell takes it for one word that means just itself.
std::string quotedForShell(std::string_view text);

/// `text` as one word to type or paste in a terminal, where more characters have a meaning than in a script:
/// plain if all of its characters are, else between single quotes.
std::string quotedForTerminal(std::string_view text);

/// For example "15 novembre 2026 alle ore 09:30", in the local time zone.
std::string longDate(std::chrono::system_clock::time_point time);

/// How long ago something was, such as "ora", "2 ore fa", "ieri", "3 settimane fa". A future time counts as
/// now.
std::string relativeDate(std::chrono::seconds ago);

/// "Zero KB", "512 byte", "12 KB", "1,2 MB", "3,45 GB": decimal units.
std::string byteCount(std::int64_t bytes);

} // namespace selvane::text
