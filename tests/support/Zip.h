// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace selvane::test {

/// An entry of an archive that no zip program would make.
struct ZipEntry {
    std::string name;
    std::string content;
    std::uint32_t mode = 0100644;                         ///< as in `st_mode`
    std::optional<std::uint32_t> declared = std::nullopt; ///< the size that it claims to have unpacked
    std::uint32_t flags = 0; ///< 1 if it is encrypted, 0x800 if its name is UTF-8
};

inline std::uint32_t checksum(std::string_view bytes) {
    std::uint32_t sum = ~0U;
    for (const char c : bytes) {
        sum ^= static_cast<std::uint8_t>(c);
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum >> 1) ^ ((sum & 1) != 0 ? 0xEDB88320U : 0U);
    }
    return ~sum;
}

/// Little-endian, each number in so many bytes.
inline std::string numbers(const std::vector<std::pair<std::uint32_t, int>>& fields) {
    std::string bytes;
    for (const auto& [number, size] : fields) {
        for (int i = 0; i < size; ++i)
            bytes += static_cast<char>((number >> (8 * i)) & 0xFF);
    }
    return bytes;
}

/// A zip archive with these entries as they are.
inline std::string zipOf(const std::vector<ZipEntry>& entries) {
    const auto size = [](const std::string& bytes) { return static_cast<std::uint32_t>(bytes.size()); };
    std::string archive;
    std::string directory;
    for (const ZipEntry& entry : entries) {
        const std::string common = numbers({{entry.flags, 2}, {0, 2}, {0, 2}, {0x5A21, 2}}) +
                                   numbers({{checksum(entry.content), 4},
                                            {size(entry.content), 4},
                                            {entry.declared.value_or(size(entry.content)), 4},
                                            {size(entry.name), 2},
                                            {0, 2}});
        directory += "PK\1\2" + numbers({{0x0314, 2}, {20, 2}}) + common +
                     numbers({{0, 2}, {0, 2}, {0, 2}, {entry.mode << 16, 4}, {size(archive), 4}}) +
                     entry.name;
        archive += "PK\3\4" + numbers({{20, 2}}) + common + entry.name + entry.content;
    }
    const auto count = static_cast<std::uint32_t>(entries.size());
    return archive + directory + "PK\5\6" +
           numbers(
               {{0, 2}, {0, 2}, {count, 2}, {count, 2}, {size(directory), 4}, {size(archive), 4}, {0, 2}});
}

} // namespace selvane::test
