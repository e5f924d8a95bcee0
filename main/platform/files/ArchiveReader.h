// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/files/Descriptor.h"
#include "platform/services/Archives.h"

namespace selvane {

/// One entry of an archive. Its name comes from whoever made the archive: it can be absolute, lead out with
/// "..", or occur twice.
struct ArchiveEntry {
    std::string name; ///< bytes as stored, but without the slash at the end of a folder's
    ArchivedEntry::Kind kind = ArchivedEntry::Kind::other;
    std::uint64_t size = 0;    ///< bytes, unpacked; of a link's text
    std::string target = {};   ///< a link's text
    std::uint32_t mode = 0;    ///< permission, set-id and sticky bits
    std::int64_t modified = 0; ///< seconds since 1970

    bool operator==(const ArchiveEntry&) const = default;
};

/// Reads a zip archive from its first entry to its last. It changes nothing and unpacks nothing.
///
/// An archive that can't be read to its end, or whose content doesn't match its checksums or sizes,
/// throws `LauncherError`; a file that can't be opened, `std::filesystem::filesystem_error`.
class ArchiveReader {
public:
    explicit ArchiveReader(const std::filesystem::path& archive);
    ~ArchiveReader();
    ArchiveReader(const ArchiveReader&) = delete;
    ArchiveReader& operator=(const ArchiveReader&) = delete;

    /// The next entry; nothing after the last.
    std::optional<ArchiveEntry> next();
    /// Passes the content of the current entry to `use`, piece by piece. Only after the last piece is it
    /// known to match its checksum and size.
    void read(const std::function<void(std::string_view bytes)>& use);

private:
    [[noreturn]] void fail() const;

    const std::filesystem::path m_path;
    const files::Descriptor m_file;
    void* m_state;
};

} // namespace selvane
