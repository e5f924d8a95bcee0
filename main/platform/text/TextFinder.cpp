// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/text/TextFinder.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace selvane::text {
namespace {

using Bytes [[gnu::vector_size(16)]] = std::uint8_t;

/// How often a byte is met in transcripts, roughly: the letters of Italian and English, JSON's own
/// characters.
int frequency(std::uint8_t byte) {
    constexpr std::string_view kFromMostOften = " eatinosrlcdump\"\\,:.fgvbhq/_0123-{}z456789kyxwj";
    const std::size_t rank = kFromMostOften.find(static_cast<char>(byte));
    return rank == kFromMostOften.npos ? 1 : static_cast<int>(kFromMostOften.size() - rank) + 1;
}

bool isLetter(char c) {
    return c >= 'a' && c <= 'z';
}

/// JSON writes it in another way.
bool isEscaped(char c) {
    return c == '"' || c == '\\' || static_cast<std::uint8_t>(c) < 0x20 || c == 0x7F;
}

bool isAscii(char c) {
    return static_cast<std::uint8_t>(c) < 0x80;
}

Bytes load(const char* bytes) {
    Bytes result;
    std::memcpy(&result, bytes, sizeof result);
    return result;
}

bool isAny(Bytes bytes) {
    std::uint64_t words[2];
    std::memcpy(words, &bytes, sizeof words);
    return ((words[0] | words[1]) & 0x8080808080808080U) != 0;
}

} // namespace

TextFinder::TextFinder(std::string_view needle, Kind kind) : m_kind(kind) {
    m_places.reserve(needle.size());
    for (const char c : needle) {
        Place place{.value = static_cast<std::uint8_t>(c)};
        if (kind == Kind::searchable) {
            place.high = 0x80;
            place.isAnything = isEscaped(c);
            if (isLetter(c))
                place.ignored = 0x20;
            else if (!isAscii(c))
                place.value = 0xFF; // which texts don't have; any other that isn't ASCII is as good
        }
        m_places.push_back(place);
    }
    choosePair();
}

void TextFinder::choosePair() {
    int least = std::numeric_limits<int>::max();
    const auto cost = [this](std::size_t place) { return frequency(m_places[place].value); };
    for (std::size_t place = 0; place < m_places.size(); ++place) {
        if (m_places[place].isAnything)
            continue;
        const bool isPair = place + 1 < m_places.size() && !m_places[place + 1].isAnything;
        const int common = cost(place) * (isPair ? cost(place + 1) : 1000);
        if (common >= least)
            continue;
        least = common;
        m_first = place;
        m_gap = isPair ? 1 : 0;
        m_pair = {m_places[place], m_places[place + m_gap]};
    }
    if (least == std::numeric_limits<int>::max()) // any byte will do
        m_pair.fill({.value = 0xFF, .ignored = 0xFF});
}

/// Whether the rest of the needle stands around the pair, as far as that can be told byte by byte.
bool TextFinder::stands(std::string_view text, std::size_t pair) const {
    const auto isUnsure = [this](char c) { return m_kind == Kind::searchable && (!isAscii(c) || c == '\\'); };
    std::size_t at = pair + m_gap + 1;
    for (std::size_t place = m_first + m_gap + 1; place < m_places.size(); ++place, ++at) {
        if (m_places[place].isAnything || (at < text.size() && isUnsure(text[at])))
            break;
        if (at >= text.size() || !m_places[place].holds(text[at]))
            return false;
    }
    at = pair;
    for (std::size_t place = m_first; place > 0; --place, --at) {
        if (m_places[place - 1].isAnything || (at > 0 && isUnsure(text[at - 1])))
            break;
        if (at == 0 || !m_places[place - 1].holds(text[at - 1]))
            return false;
    }
    return true;
}

std::size_t TextFinder::findOneByOne(std::string_view text, std::size_t from, std::size_t end) const {
    for (std::size_t at = from; at < end; ++at) {
        if (m_pair[0].holds(text[at]) && m_pair[1].holds(text[at + m_gap]) && stands(text, at))
            return at;
    }
    return text.npos;
}

std::size_t TextFinder::find(std::string_view text, std::size_t from) const {
    return m_kind == Kind::exact ? findPair<Kind::exact>(text, from + m_first)
                                 : findPair<Kind::searchable>(text, from);
}

/// Looks for the pair from `at` on, and returns what `find` does. Where bytes of another number may stand for
/// those before the pair, it can be anywhere.
template <TextFinder::Kind kind>
std::size_t TextFinder::findPair(std::string_view text, std::size_t at) const {
    constexpr std::size_t kStep = 4 * sizeof(Bytes);
    const auto filled = [](std::uint8_t byte) { return Bytes{} + byte; };
    const Bytes values[] = {filled(m_pair[0].value), filled(m_pair[1].value)};
    const Bytes ignored[] = {filled(m_pair[0].ignored), filled(m_pair[1].ignored)};
    // The highest bit of each byte tells whether it holds: a comparison sets all of them, and what isn't
    // ASCII has it.
    const auto holds = [&](int which, Bytes bytes) {
        if constexpr (kind == Kind::exact)
            return reinterpret_cast<Bytes>(bytes == values[which]);
        else
            return reinterpret_cast<Bytes>((bytes | ignored[which]) == values[which]) | bytes;
    };
    const auto pairs = [&](const char* bytes) {
        return holds(0, load(bytes)) & holds(1, load(bytes + m_gap));
    };
    const auto found = [this](std::size_t pair) { return kind == Kind::exact ? pair - m_first : pair; };
    for (; at + kStep + m_gap <= text.size(); at += kStep) {
        const char* const bytes = text.data() + at;
        const Bytes parts[] = {pairs(bytes), pairs(bytes + 16), pairs(bytes + 32), pairs(bytes + 48)};
        if (!isAny(parts[0] | parts[1] | parts[2] | parts[3]))
            continue;
        for (std::size_t part = 0; part < 4; ++part) {
            if (!isAny(parts[part]))
                continue;
            const std::size_t begin = at + part * sizeof(Bytes);
            if (const std::size_t pair = findOneByOne(text, begin, begin + sizeof(Bytes)); pair != text.npos)
                return found(pair);
        }
    }
    const std::size_t end = text.size() - std::min(text.size(), m_gap);
    const std::size_t pair = findOneByOne(text, at, end);
    return pair == text.npos ? pair : found(pair);
}

} // namespace selvane::text
