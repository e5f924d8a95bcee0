// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "model/ByteText.h"

#include <algorithm>
#include <cstdint>

namespace selvane {
namespace {

// In UTF-8 the characters U+EF80 to U+EFFF, and no others, begin with EE BE or EE BF. The low bits of the
// second and third bytes are those of the original byte, whose highest bit is always set.
constexpr std::string_view kLowerHalf = "\xEE\xBE";
constexpr std::string_view kUpperHalf = "\xEE\xBF";
constexpr unsigned int kThirdBits = 0x3F;

constexpr std::string_view kReplacementCharacter = "\xEF\xBF\xBD";

std::uint8_t byteAt(std::string_view bytes, std::size_t index) {
    return index < bytes.size() ? static_cast<std::uint8_t>(bytes[index]) : std::uint8_t{0};
}

bool isPrivate(std::string_view sequence) {
    return sequence.starts_with(kLowerHalf) || sequence.starts_with(kUpperHalf);
}

void appendPrivate(std::string& text, char byte) {
    const auto value = static_cast<std::uint8_t>(byte);
    text += value < 0xC0 ? kLowerHalf : kUpperHalf;
    text += static_cast<char>(0x80U | (value & kThirdBits));
}

char byteOf(std::string_view sequence) {
    const unsigned int base = sequence.starts_with(kLowerHalf) ? 0x80U : 0xC0U;
    return static_cast<char>(base | (static_cast<std::uint8_t>(sequence[2]) & kThirdBits));
}

} // namespace

std::size_t sequenceLength(std::string_view bytes) {
    const std::uint8_t first = byteAt(bytes, 0);
    if (first < 0x80)
        return 1;
    if (first < 0xC2 || first > 0xF4)
        return 0;
    const std::size_t length = first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    // The second byte rules out overlong forms, surrogates and anything beyond U+10FFFF.
    const std::uint8_t second = byteAt(bytes, 1);
    const int lowest = first == 0xE0 ? 0xA0 : first == 0xF0 ? 0x90 : 0x80;
    const int highest = first == 0xED ? 0x9F : first == 0xF4 ? 0x8F : 0xBF;
    if (second < lowest || second > highest)
        return 0;
    for (std::size_t i = 2; i < length; ++i) {
        if ((byteAt(bytes, i) & 0xC0) != 0x80)
            return 0;
    }
    return length;
}

bool isUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        const std::size_t length = sequenceLength(bytes);
        if (length == 0)
            return false;
        bytes.remove_prefix(length);
    }
    return true;
}

std::string repaired(std::string_view bytes) {
    std::string result;
    result.reserve(bytes.size());
    while (!bytes.empty()) {
        const std::size_t length = sequenceLength(bytes);
        result += length == 0 ? kReplacementCharacter : bytes.substr(0, length);
        bytes.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return result;
}

std::string textFromBytes(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    while (!bytes.empty()) {
        const std::string_view sequence = bytes.substr(0, sequenceLength(bytes));
        if (sequence.empty() || isPrivate(sequence))
            appendPrivate(text, bytes.front());
        else
            text += sequence;
        bytes.remove_prefix(isPrivate(sequence) ? 1 : std::max<std::size_t>(sequence.size(), 1));
    }
    return text;
}

std::string bytesFromText(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    while (!text.empty()) {
        const std::string_view sequence = text.substr(0, std::max<std::size_t>(sequenceLength(text), 1));
        if (isPrivate(sequence))
            bytes += byteOf(sequence);
        else
            bytes += sequence;
        text.remove_prefix(sequence.size());
    }
    return bytes;
}

} // namespace selvane
