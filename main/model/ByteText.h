// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace selvane {

/// Length of the well-formed UTF-8 sequence at the start of `bytes`; 0 if there is none.
std::size_t sequenceLength(std::string_view bytes);
bool isUtf8(std::string_view bytes);
/// `bytes` with U+FFFD for each byte that isn't part of well-formed UTF-8.
std::string repaired(std::string_view bytes);

/// JSON text is UTF-8, but file names are bytes. These two convert any bytes to UTF-8 and back without loss.
/// Valid UTF-8 stays as it is; each byte that isn't part of it becomes a character in the private range
/// U+EF80 to U+EFFF, and so does each byte of a character already in that range.
std::string textFromBytes(std::string_view bytes);
std::string bytesFromText(std::string_view text);

} // namespace selvane
