// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

namespace selvane::text {

/// Finds one text in many others, at several gigabytes a second: it looks at many bytes at once for the pair
/// of neighbours in it that texts have least often.
class TextFinder {
public:
    enum class Kind {
        exact,
        /// The needle is a `searchable` text, and whatever contains it once it is made searchable is found,
        /// even with JSON's escapes for quotation marks and control characters. Some of what is found may not
        /// contain it.
        searchable,
    };
    TextFinder(std::string_view needle, Kind kind);

    /// The position of a byte inside the first occurrence that doesn't begin before `from`, its first byte if
    /// `exact`; `npos` if there is none.
    std::size_t find(std::string_view text, std::size_t from = 0) const;

private:
    /// The bytes that may stand in one place.
    struct Place {
        std::uint8_t value = 0; ///< once the bits of `ignored` are set
        std::uint8_t ignored = 0;
        std::uint8_t high = 0;   ///< 0x80 if any byte that isn't ASCII may
        bool isAnything = false; ///< nor does it say how many

        bool holds(char c) const {
            const auto byte = static_cast<std::uint8_t>(c);
            return (byte | ignored) == value || (byte & high) != 0;
        }
    };

    void choosePair();
    bool stands(std::string_view text, std::size_t pair) const;
    template <Kind kind>
    std::size_t findPair(std::string_view text, std::size_t at) const;
    std::size_t findOneByOne(std::string_view text, std::size_t from, std::size_t end) const;

    const Kind m_kind;
    std::vector<Place> m_places;
    std::size_t m_first = 0;     ///< the place of the pair's first byte
    std::size_t m_gap = 0;       ///< from there to the second; 0 if there is but one
    std::array<Place, 2> m_pair; ///< both of them
};

} // namespace selvane::text
