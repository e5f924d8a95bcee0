// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/services/Services.h"

/// The functions behind the table.
namespace selvane::module {

void sortKey(const char* name, std::size_t size, ByteSink sink, void* context) noexcept;
void fold(const char* name, std::size_t size, ByteSink sink, void* context) noexcept;
void searchable(const char* text, std::size_t size, ByteSink sink, void* context) noexcept;
void longDate(std::int64_t time, ByteSink sink, void* context) noexcept;
void relativeDate(std::int64_t secondsAgo, ByteSink sink, void* context) noexcept;

void* newSessionReader() noexcept;
void deleteSessionReader(void* reader) noexcept;
bool readSession(void* reader, const char* file, const SessionRecordSink& sink) noexcept;

void* newTranscriptReader() noexcept;
void deleteTranscriptReader(void* reader) noexcept;
bool readTranscriptLine(void* reader, const char* line, std::size_t size,
                        const TranscriptSink& sink) noexcept;
bool isStrictJson(const char* bytes, std::size_t size) noexcept;

} // namespace selvane::module
