// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/services/Archives.h"

/// The functions behind the table.
namespace selvane::module {

void* newArchiveReader(int file) noexcept;
void deleteArchiveReader(void* reader) noexcept;
Archives::Step nextArchivedEntry(void* reader, ArchivedEntrySink sink, void* context) noexcept;
bool readArchivedEntry(void* reader, ByteSink sink, void* context) noexcept;

inline constexpr Archives kArchives{
    .newReader = newArchiveReader,
    .deleteReader = deleteArchiveReader,
    .next = nextArchivedEntry,
    .read = readArchivedEntry,
};

} // namespace selvane::module
