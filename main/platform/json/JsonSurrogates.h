// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace selvane::json {

/// The UTF-16 unit of an escape such as "\ud83d" at the start of `text`, if there is one.
inline std::optional<std::uint16_t> escapedUnit(std::string_view text) {
    constexpr std::size_t kLength = 6;
    if (text.size() < kLength || !text.starts_with("\\u"))
        return std::nullopt;
    std::uint16_t unit = 0;
    const auto result = std::from_chars(text.data() + 2, text.data() + kLength, unit, 16);
    return result.ptr == text.data() + kLength ? std::optional(unit) : std::nullopt;
}

/// When JavaScript writes a string that was cut in the middle of an emoji, it leaves half a UTF-16 pair,
/// which no strict parser accepts. This replaces such escapes in place by that of U+FFFD. Returns whether it
/// found any.
inline bool replaceLoneSurrogates(char* bytes, std::size_t size) {
    const std::string_view text(bytes, size);
    bool found = false;
    for (std::size_t i = text.find('\\'); i != text.npos; i = text.find('\\', i)) {
        const auto unit = escapedUnit(text.substr(i));
        const bool isHigh = unit && *unit >= 0xD800 && *unit <= 0xDBFF;
        const bool isLow = unit && *unit >= 0xDC00 && *unit <= 0xDFFF;
        const auto next = isHigh ? escapedUnit(text.substr(i + 6)) : std::nullopt;
        const bool isPair = next && *next >= 0xDC00 && *next <= 0xDFFF;
        if (isLow || (isHigh && !isPair)) {
            std::string_view("fffd").copy(bytes + i + 2, 4);
            found = true;
        }
        i += isPair ? 12 : unit ? 6 : 2; // the second of two backslashes doesn't begin an escape
    }
    return found;
}

} // namespace selvane::json
