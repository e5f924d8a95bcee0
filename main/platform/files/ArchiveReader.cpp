// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/ArchiveReader.h"

#include <new>

#include "model/LauncherError.h"
#include "platform/services/Received.h"
#include "platform/text/Text.h"

namespace selvane {
namespace {

using ReceivedEntry = Received<ArchiveEntry>;

void takeEntry(void* context, const ArchivedEntry& archived) noexcept {
    ReceivedEntry::add(context, [&](ArchiveEntry& entry) {
        entry = {.name = archived.name,
                 .kind = archived.kind,
                 .size = archived.size,
                 .target = archived.target == nullptr ? "" : archived.target,
                 .mode = archived.mode,
                 .modified = archived.modified};
        if (entry.name.ends_with('/'))
            entry.name.pop_back();
    });
}

using User = std::function<void(std::string_view)>;
using ReceivedBytes = Received<const User*>;

void passOn(void* context, const char* bytes, std::size_t count) noexcept {
    ReceivedBytes::add(context, [&](const User* use) { (*use)({bytes, count}); });
}

} // namespace

ArchiveReader::ArchiveReader(const std::filesystem::path& archive)
    : m_path(archive), m_file(::open(archive.c_str(), O_RDONLY | O_CLOEXEC)), m_state(nullptr) {
    if (!m_file)
        files::fail("read", archive, errno);
    m_state = archives().newReader(m_file.get());
    if (m_state == nullptr)
        throw std::bad_alloc();
}

ArchiveReader::~ArchiveReader() {
    archives().deleteReader(m_state);
}

void ArchiveReader::fail() const {
    throw LauncherError("L'archivio è danneggiato o incompleto: " + text::singleLine(m_path.string()));
}

std::optional<ArchiveEntry> ArchiveReader::next() {
    ReceivedEntry entry;
    const Archives::Step step = archives().next(m_state, takeEntry, &entry);
    ArchiveEntry received = entry.take();
    if (step == Archives::Step::failure)
        fail();
    return step == Archives::Step::entry ? std::optional(std::move(received)) : std::nullopt;
}

void ArchiveReader::read(const User& use) {
    ReceivedBytes bytes(&use);
    const bool isWhole = archives().read(m_state, passOn, &bytes);
    bytes.take();
    if (!isWhole)
        fail();
}

} // namespace selvane
