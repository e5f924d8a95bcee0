// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <initializer_list>
#include <new>
#include <optional>

#include <archive.h>
#include <archive_entry.h>
#include <locale.h>
#include <sys/stat.h>

#include "platform/services/ArchiveFunctions.h"

namespace selvane::module {
namespace {

constexpr std::size_t kBlockSize = std::size_t{256} * 1024;

/// Names that an archive marks as UTF-8 are converted to the locale's encoding. In one with UTF-8 they stay
/// as they are, whatever the user's locale is.
class Utf8Names {
public:
    Utf8Names() : m_before(::uselocale(locale())) {}
    ~Utf8Names() { ::uselocale(m_before); }
    Utf8Names(const Utf8Names&) = delete;
    Utf8Names& operator=(const Utf8Names&) = delete;

private:
    /// Null, which changes nothing, if the system has none.
    static locale_t locale() {
        static const locale_t known = make();
        return known;
    }
    static locale_t make() {
        for (const char* name : {"C.UTF-8", "en_US.UTF-8"}) {
            if (const locale_t made = ::newlocale(LC_CTYPE_MASK, name, nullptr))
                return made;
        }
        return nullptr;
    }

    locale_t m_before;
};

ArchivedEntry::Kind kindOf(archive_entry* entry) {
    switch (archive_entry_filetype(entry)) {
    case AE_IFREG:
        return ArchivedEntry::Kind::file;
    case AE_IFDIR:
        return ArchivedEntry::Kind::folder;
    case AE_IFLNK:
        return ArchivedEntry::Kind::link;
    default:
        return ArchivedEntry::Kind::other;
    }
}

class ZipReader {
public:
    explicit ZipReader(int file) : m_archive(archive_read_new()) {
        if (m_archive == nullptr)
            throw std::bad_alloc();
        // Only with its directory: without that, a cut-off archive would look whole.
        archive_read_support_format_zip_seekable(m_archive);
        m_isOpen = archive_read_open_fd(m_archive, file, kBlockSize) == ARCHIVE_OK;
    }
    ~ZipReader() { archive_read_free(m_archive); }
    ZipReader(const ZipReader&) = delete;
    ZipReader& operator=(const ZipReader&) = delete;

    Archives::Step next(ArchivedEntrySink sink, void* context) {
        archive_entry* entry = nullptr;
        const int result = m_isOpen ? archive_read_next_header(m_archive, &entry) : ARCHIVE_FATAL;
        if (result == ARCHIVE_EOF)
            return Archives::Step::end;
        // A warning is about details, such as a time; without a name, the entry is of no use.
        const char* const name = result >= ARCHIVE_WARN ? archive_entry_pathname(entry) : nullptr;
        if (name == nullptr)
            return Archives::Step::failure;
        // What is encrypted couldn't be read, and a link's text would be taken as it is.
        if (archive_entry_is_encrypted(entry) != 0)
            return Archives::Step::failure;
        const char* const target = archive_entry_symlink(entry);
        const std::uint64_t size = target != nullptr ? __builtin_strlen(target)
                                                     : static_cast<std::uint64_t>(archive_entry_size(entry));
        const ArchivedEntry::Kind kind = kindOf(entry);
        m_fileSize = kind == ArchivedEntry::Kind::file ? std::optional(size) : std::nullopt;
        sink(context, {name, kind, size, target, static_cast<std::uint32_t>(archive_entry_perm(entry)),
                       static_cast<std::int64_t>(archive_entry_mtime(entry))});
        return Archives::Step::entry;
    }

    bool read(ByteSink sink, void* context) {
        const void* bytes = nullptr;
        std::size_t count = 0;
        la_int64_t offset = 0;
        std::uint64_t total = 0;
        while (true) {
            // A wrong checksum is a warning.
            const int result = archive_read_data_block(m_archive, &bytes, &count, &offset);
            // A file that is said to take no bytes in the archive counts as empty, whatever its size is.
            if (result == ARCHIVE_EOF)
                return total == m_fileSize.value_or(total);
            if (result != ARCHIVE_OK)
                return false;
            total += count;
            sink(context, static_cast<const char*>(bytes), count);
        }
    }

private:
    archive* m_archive;
    bool m_isOpen = false;
    std::optional<std::uint64_t> m_fileSize; ///< of the current entry, if it is a file
};

} // namespace

void* newArchiveReader(int file) noexcept {
    try {
        return new ZipReader(file);
    } catch (...) {
        return nullptr;
    }
}

void deleteArchiveReader(void* reader) noexcept {
    delete static_cast<ZipReader*>(reader);
}

Archives::Step nextArchivedEntry(void* reader, ArchivedEntrySink sink, void* context) noexcept {
    const Utf8Names names;
    return static_cast<ZipReader*>(reader)->next(sink, context);
}

bool readArchivedEntry(void* reader, ByteSink sink, void* context) noexcept {
    return static_cast<ZipReader*>(reader)->read(sink, context);
}

} // namespace selvane::module
