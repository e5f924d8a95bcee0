// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace selvane {

/// Length of the well-formed UTF-8 sequence at the start of `bytes`; 0 when there is none.
std::size_t sequenceLength(std::string_view bytes);
bool isUtf8(std::string_view bytes);
/// `bytes` with U+FFFD for each that is no part of well-formed UTF-8.
std::string repaired(std::string_view bytes);

/// JSON texts are UTF-8, names of files are bytes. These two turn any bytes into UTF-8 and back without loss:
/// valid UTF-8 stays as it is, a byte that isn't part of it becomes a character of the private range U+EF80
/// to U+EFFF (and so do the bytes of a character that already lies there).
std::string textFromBytes(std::string_view bytes);
std::string bytesFromText(std::string_view text);

} // namespace selvane
