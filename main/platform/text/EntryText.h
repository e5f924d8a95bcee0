// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

/// Texts in a desktop entry, a file that puts a program among the applications of a Linux desktop.
namespace selvane::text {

/// Whether a text can be in an entry as it is: it is UTF-8 without control characters.
bool fitsEntry(std::string_view text);

/// A text that fits, as the value of a key.
std::string entryValue(std::string_view text);
/// The text of such a value.
std::string fromEntryValue(std::string_view value);

/// A word of an entry's command line, such as "Exec" has: one argument, whatever characters it has.
std::string entryWord(std::string_view word);

/// The value of a key, as it stands in the entry; empty if the entry has no such line.
std::string_view entryKey(std::string_view entry, std::string_view key);

} // namespace selvane::text
