// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "model/ByteText.h"

#include <cstdint>

namespace selvane {
namespace {

constexpr std::uint32_t kPrivateBase = 0xEF00; // the byte is added: 0x80 to 0xFF
constexpr std::uint32_t kPrivateFirst = kPrivateBase + 0x80;
constexpr std::uint32_t kPrivateLast = kPrivateBase + 0xFF;

struct Character {
    std::uint32_t codePoint = 0;
    std::size_t size = 0; ///< 0 for a byte that begins no valid sequence
};

std::uint8_t byteAt(std::string_view text, std::size_t at) {
    return static_cast<std::uint8_t>(text[at]);
}

Character characterAt(std::string_view text, std::size_t at) {
    const std::uint8_t lead = byteAt(text, at);
    if (lead < 0x80)
        return {lead, 1};
    const std::size_t size = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || at + size > text.size())
        return {};
    std::uint32_t codePoint = lead & (0xFFU >> (size + 1));
    for (std::size_t i = 1; i < size; ++i) {
        const std::uint8_t next = byteAt(text, at + i);
        if ((next & 0xC0) != 0x80)
            return {};
        codePoint = codePoint << 6 | (next & 0x3FU);
    }
    const bool overlong = (size == 3 && codePoint < 0x800) || (size == 4 && codePoint < 0x10000);
    const bool surrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
    return overlong || surrogate || codePoint > 0x10FFFF ? Character{} : Character{codePoint, size};
}

bool isPrivate(std::uint32_t codePoint) {
    return codePoint >= kPrivateFirst && codePoint <= kPrivateLast;
}

void appendPrivate(std::string& text, std::uint8_t byte) {
    const std::uint32_t codePoint = kPrivateBase + byte;
    text += static_cast<char>(0xE0 | codePoint >> 12);
    text += static_cast<char>(0x80 | (codePoint >> 6 & 0x3F));
    text += static_cast<char>(0x80 | (codePoint & 0x3F));
}

} // namespace

std::string textFromBytes(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (std::size_t at = 0; at < bytes.size();) {
        const Character character = characterAt(bytes, at);
        if (character.size > 0 && !isPrivate(character.codePoint)) {
            text += bytes.substr(at, character.size);
            at += character.size;
        } else {
            appendPrivate(text, byteAt(bytes, at));
            ++at;
        }
    }
    return text;
}

std::string bytesFromText(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const Character character = characterAt(text, at);
        const std::size_t size = character.size > 0 ? character.size : 1;
        if (isPrivate(character.codePoint))
            bytes += static_cast<char>(character.codePoint - kPrivateBase);
        else
            bytes += text.substr(at, size);
        at += size;
    }
    return bytes;
}

} // namespace selvane
