// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string_view>

namespace selvane::json {

/// Length in bytes of the JSON number at the start of `text`; 0 if there is none.
inline std::size_t numberLength(std::string_view text) {
    std::size_t end = 0;
    const auto is = [&](std::string_view characters) {
        return end < text.size() && characters.find(text[end]) != std::string_view::npos;
    };
    const auto skipDigits = [&] {
        const std::size_t start = end;
        while (is("0123456789"))
            ++end;
        return end > start;
    };
    if (is("-"))
        ++end;
    if (is("0"))
        ++end;
    else if (!skipDigits())
        return 0;
    // A point or exponent without digits isn't part of the number; the parser will reject it.
    std::size_t length = end;
    if (is(".") && (++end, skipDigits()))
        length = end;
    end = length;
    if (is("eE")) {
        ++end;
        if (is("+-"))
            ++end;
        if (skipDigits())
            length = end;
    }
    return length;
}

/// Whether a number is an integer, other than "-0", with so few digits that it must fit in 64 bits.
inline bool isPlainInteger(std::string_view number) {
    constexpr std::size_t kAlwaysFits = 18;
    return number.size() <= kAlwaysFits && number != "-0" &&
           number.find_first_of(".eE") == std::string_view::npos;
}

/// Calls `visit(position, number)` for each number in a JSON text, in order, skipping strings. In text that
/// isn't JSON, it visits whatever looks like a number.
template <typename Visitor>
void forEachNumber(std::string_view text, Visitor visit) {
    bool inText = false;
    for (std::size_t i = 0; i < text.size();) {
        const char character = text[i];
        if (inText) {
            inText = character != '"';
            i += character == '\\' ? 2 : 1;
        } else if (character == '-' || (character >= '0' && character <= '9')) {
            const std::size_t length = numberLength(text.substr(i));
            if (length > 0)
                visit(i, text.substr(i, length));
            i += length > 0 ? length : 1;
        } else {
            inText = character == '"';
            ++i;
        }
    }
}

} // namespace selvane::json
