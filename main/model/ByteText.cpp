// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "model/ByteText.h"

#include <algorithm>
#include <cstdint>

#include "platform/text/Text.h"

namespace selvane {
namespace {

// In UTF-8 every character from U+EF80 to U+EFFF begins with EE BE or EE BF, and none else does. The low bits
// of its second and third byte are those of the byte it stands for, whose highest bit is always set.
constexpr std::string_view kLowerHalf = "\xEE\xBE";
constexpr std::string_view kUpperHalf = "\xEE\xBF";
constexpr unsigned int kThirdBits = 0x3F;

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

std::string textFromBytes(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    while (!bytes.empty()) {
        const std::string_view sequence = bytes.substr(0, text::sequenceLength(bytes));
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
        const std::string_view sequence =
            text.substr(0, std::max<std::size_t>(text::sequenceLength(text), 1));
        if (isPrivate(sequence))
            bytes += byteOf(sequence);
        else
            bytes += sequence;
        text.remove_prefix(sequence.size());
    }
    return bytes;
}

} // namespace selvane
