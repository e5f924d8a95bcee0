// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace selvane {

/// A word of a desktop entry's command line without its field codes, and with "%%" read as "%". Nothing if
/// the word has only field codes. A "%" before any other character stays, as some entries contain URLs with
/// such escapes.
inline std::optional<std::string> withoutFieldCodes(std::string_view word) {
    constexpr std::string_view kCodes = "fFuUdDnNickvm";
    std::string result;
    for (std::size_t i = 0; i < word.size(); ++i) {
        const char next = i + 1 < word.size() ? word[i + 1] : '\0';
        if (word[i] != '%' || next == '\0') {
            result += word[i];
        } else if (next == '%') {
            result += '%';
            ++i;
        } else if (kCodes.find(next) != std::string_view::npos) {
            ++i;
        } else {
            result += '%';
        }
    }
    if (result.empty() && !word.empty())
        return std::nullopt;
    return result;
}

} // namespace selvane
