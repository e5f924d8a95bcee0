// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

// The C++ library of macOS can't read floating-point numbers this way.

#include <charconv>
#include <string_view>

double number(std::string_view text) {
    double value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}
