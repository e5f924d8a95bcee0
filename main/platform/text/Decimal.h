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

/// A number written with digits, a point and an exponent, as in JSON.
struct Decimal {
    double value = 0;
    std::size_t length = 0; ///< of its text; 0 when there is none
    bool fits = false;      ///< false for one that is too large or too small for a double
};

/// The number at the start of `text`, read the same under any locale.
inline Decimal readDecimal(std::string_view text) {
    Decimal result;
#ifdef __cpp_lib_to_chars
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), result.value);
    result.length = static_cast<std::size_t>(end - text.data());
    result.fits = error == std::errc();
#else
    // Not every C++ library has the above; C's function takes more than numbers of this kind.
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
