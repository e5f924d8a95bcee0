// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <charconv>
#include <cstddef>
#include <string_view>

#ifndef __cpp_lib_to_chars
#include <cerrno>
#include <clocale>
#include <cstdlib>
#include <string>
#include <xlocale.h>
#endif

namespace selvane {

/// A number with digits, a point and an exponent, as in JSON.
struct Decimal {
    double value = 0;
    std::size_t length = 0; ///< of its text; 0 if there is no number
    bool fits = false;      ///< false if it is too large or too small for a double
};

/// The number at the start of `text`, read the same way in any locale.
inline Decimal readDecimal(std::string_view text) {
    Decimal result;
#ifdef __cpp_lib_to_chars
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), result.value);
    result.length = static_cast<std::size_t>(end - text.data());
    result.fits = error == std::errc();
#else
    // Not every C++ library has from_chars for doubles. C's function also accepts other kinds of numbers.
    static const locale_t plain = ::newlocale(LC_ALL_MASK, "C", nullptr);
    if (text.empty() || text.front() == '+')
        return result;
    const std::string number(text.substr(0, text.find_first_not_of("0123456789+-.eE")));
    char* end = nullptr;
    errno = 0;
    result.value = ::strtod_l(number.c_str(), &end, plain);
    result.length = static_cast<std::size_t>(end - number.c_str());
    result.fits = result.length > 0 && errno != ERANGE;
#endif
    return result;
}

} // namespace selvane
