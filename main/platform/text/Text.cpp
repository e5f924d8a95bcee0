// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/text/Text.h"

#include <algorithm>
#include <array>
#include <numeric>

#include "platform/services/Received.h"
#include "platform/services/Services.h"

namespace selvane::text {

namespace {

using namespace std::string_view_literals;

/// Unicode white space, including line ends, in UTF-8.
constexpr std::array kWhiteSpace{
    "\t"sv,           "\n"sv,           "\v"sv,
    "\f"sv,           "\r"sv,           " "sv,
    "\xC2\x85"sv,     "\xC2\xA0"sv,     "\xE1\x9A\x80"sv,
    "\xE2\x80\x80"sv, "\xE2\x80\x81"sv, "\xE2\x80\x82"sv,
    "\xE2\x80\x83"sv, "\xE2\x80\x84"sv, "\xE2\x80\x85"sv,
    "\xE2\x80\x86"sv, "\xE2\x80\x87"sv, "\xE2\x80\x88"sv,
    "\xE2\x80\x89"sv, "\xE2\x80\x8A"sv, "\xE2\x80\xA8"sv,
    "\xE2\x80\xA9"sv, "\xE2\x80\xAF"sv, "\xE2\x81\x9F"sv,
    "\xE3\x80\x80"sv,
};

constexpr std::string_view kReplacementCharacter = "\xEF\xBF\xBD";

std::uint8_t byteAt(std::string_view bytes, std::size_t index) {
    return index < bytes.size() ? static_cast<std::uint8_t>(bytes[index]) : std::uint8_t{0};
}

/// Length of the control character or line separator at the start of `bytes`; 0 if there is none.
std::size_t controlLength(std::string_view bytes) {
    const std::uint8_t first = byteAt(bytes, 0);
    const std::uint8_t second = byteAt(bytes, 1);
    if (first < 0x20 || first == 0x7F)
        return 1;
    if (first == 0xC2 && second >= 0x80 && second < 0xA0)
        return 2;
    return bytes.starts_with("\xE2\x80\xA8"sv) || bytes.starts_with("\xE2\x80\xA9"sv) ? 3 : 0;
}

struct Unit {
    std::string_view name;
    std::int64_t step; ///< bytes per unit of the last decimal shown
    int decimals;
};

constexpr std::array<Unit, 6> kUnits{{
    {"KB", 1'000, 0},
    {"MB", 100'000, 1},
    {"GB", 10'000'000, 2},
    {"TB", 10'000'000'000, 2},
    {"PB", 10'000'000'000'000, 2},
    {"EB", 10'000'000'000'000'000, 2},
}};

std::string decimal(std::int64_t value, int decimals) {
    std::string digits = std::to_string(value);
    if (decimals == 0)
        return digits;
    digits.insert(digits.size() - static_cast<std::size_t>(decimals), 1, ',');
    digits.erase(digits.find_last_not_of('0') + 1);
    if (digits.back() == ',')
        digits.pop_back();
    return digits;
}

} // namespace

std::vector<std::size_t> sortedOrder(const std::vector<std::string_view>& names) {
    std::vector<std::size_t> order(names.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    if (names.size() < 2) // don't load the services when there is nothing to sort
        return order;
    std::vector<std::string> keys(names.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
        Received<std::string> key;
        services().sortKey(names[i].data(), names[i].size(), appendBytes, &key);
        keys[i] = key.take();
    }
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t left, std::size_t right) { return keys[left] < keys[right]; });
    return order;
}

std::vector<std::string> sorted(std::vector<std::string> names) {
    std::vector<std::string> result;
    result.reserve(names.size());
    for (const std::size_t position : sortedOrder({names.begin(), names.end()}))
        result.push_back(std::move(names[position]));
    return result;
}

std::string folded(std::string_view name) {
    Received<std::string> result;
    services().fold(name.data(), name.size(), appendBytes, &result);
    return result.take();
}

std::string searchable(std::string_view text) {
    const auto isAscii = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
    if (std::all_of(text.begin(), text.end(), isAscii)) { // nearly always, and many times faster
        std::string result(text);
        for (char& c : result)
            c = c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
        return result;
    }
    Received<std::string> result;
    services().searchable(text.data(), text.size(), appendBytes, &result);
    return result.take();
}

std::vector<std::string> searchableWords(std::string_view text) {
    const std::string all = searchable(text);
    std::vector<std::string> words;
    std::string_view rest = trimmed(all);
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find_first_of(" \t\n"), rest.size());
        words.emplace_back(rest.substr(0, end));
        rest = trimmed(rest.substr(end));
    }
    return words;
}

std::string_view trimmed(std::string_view text) {
    const auto trimOnce = [&] {
        for (const std::string_view space : kWhiteSpace) {
            if (text.starts_with(space)) {
                text.remove_prefix(space.size());
                return true;
            }
            if (text.ends_with(space)) {
                text.remove_suffix(space.size());
                return true;
            }
        }
        return false;
    };
    while (trimOnce()) {
    }
    return text;
}

std::string singleLine(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        std::size_t plain = 0;
        while (plain < text.size() && controlLength(text.substr(plain)) == 0)
            ++plain;
        result += text.substr(0, plain);
        text.remove_prefix(plain);
        if (!text.empty()) {
            result += kReplacementCharacter;
            text.remove_prefix(controlLength(text));
        }
    }
    return result;
}

std::string quotedForShell(std::string_view text) {
    std::string result = "\"";
    for (const char c : text) {
        if ("\"$\\`"sv.find(c) != std::string_view::npos)
            result += '\\';
        result += c;
    }
    return result + '"';
}

std::string quotedForTerminal(std::string_view text) {
    constexpr std::string_view kPlain = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789/._-";
    if (!text.empty() && text.find_first_not_of(kPlain) == text.npos)
        return std::string(text);
    std::string result = "'";
    for (const char c : text)
        result += c == '\'' ? "'\\''" : std::string(1, c);
    return result + "'";
}

std::string longDate(std::chrono::system_clock::time_point time) {
    const auto seconds = std::chrono::floor<std::chrono::seconds>(time.time_since_epoch()).count();
    Received<std::string> result;
    services().longDate(seconds, appendBytes, &result);
    return result.take();
}

std::string relativeDate(std::chrono::seconds ago) {
    Received<std::string> result;
    services().relativeDate(ago.count(), appendBytes, &result);
    return result.take();
}

std::string byteCount(std::int64_t bytes) {
    if (bytes <= 0)
        return "Zero KB";
    if (bytes < 1000)
        return std::to_string(bytes) + " byte";
    for (const Unit& unit : kUnits) {
        const std::int64_t steps = bytes / unit.step + (bytes % unit.step >= unit.step / 2 ? 1 : 0);
        const std::int64_t stepsInNext = unit.decimals == 0 ? 1'000 : unit.decimals == 1 ? 10'000 : 100'000;
        if (steps < stepsInNext)
            return decimal(steps, unit.decimals) + ' ' + std::string(unit.name);
    }
    return {}; // not reached: the largest possible number of bytes is 9,22 EB
}

} // namespace selvane::text
