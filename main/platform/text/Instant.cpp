// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/text/Instant.h"

#include <charconv>
#include <chrono>

namespace selvane::text {
namespace {

/// The number that the text begins with, which has exactly so many digits; removes them and `after`.
std::optional<int> takeNumber(std::string_view& text, std::size_t digits, std::string_view after) {
    int number = 0;
    const char* const end = text.data() + std::min(digits, text.size());
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (text.size() < digits || error != std::errc() || stop != end || number < 0)
        return std::nullopt;
    text.remove_prefix(digits);
    if (!text.starts_with(after))
        return std::nullopt;
    text.remove_prefix(after.size());
    return number;
}

/// The fraction of a second that the text begins with, which it removes.
double takeFraction(std::string_view& text) {
    if (!text.starts_with('.'))
        return 0;
    double value = 0;
    double unit = 0.1;
    text.remove_prefix(1);
    for (; !text.empty() && text.front() >= '0' && text.front() <= '9'; unit /= 10, text.remove_prefix(1))
        value += (text.front() - '0') * unit;
    return value;
}

} // namespace

std::optional<double> instant(std::string_view text) {
    using namespace std::chrono;
    const auto years = takeNumber(text, 4, "-");
    const auto months = years ? takeNumber(text, 2, "-") : std::nullopt;
    const auto days = months ? takeNumber(text, 2, "T") : std::nullopt;
    const auto hour = days ? takeNumber(text, 2, ":") : std::nullopt;
    const auto minute = hour ? takeNumber(text, 2, ":") : std::nullopt;
    const auto second = minute ? takeNumber(text, 2, "") : std::nullopt;
    if (!second || *hour > 23 || *minute > 59 || *second > 60)
        return std::nullopt;
    const double fraction = takeFraction(text);
    const year_month_day date(year(*years), month(static_cast<unsigned>(*months)),
                              day(static_cast<unsigned>(*days)));
    if (!date.ok() || (text != "Z" && text != "+00:00"))
        return std::nullopt;
    const sys_seconds time = sys_days(date) + hours(*hour) + minutes(*minute) + seconds(*second);
    return static_cast<double>(time.time_since_epoch().count()) + fraction;
}

} // namespace selvane::text
