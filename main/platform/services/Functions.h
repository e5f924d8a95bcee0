// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/services/Services.h"

/// The functions behind the table. None lets an exception out.
namespace selvane::module {

void sortKey(const char* name, std::size_t size, ByteSink sink, void* context);
void fold(const char* name, std::size_t size, ByteSink sink, void* context);
void longDate(std::int64_t time, ByteSink sink, void* context);
void relativeDate(std::int64_t secondsAgo, ByteSink sink, void* context);

void* newSessionReader();
void deleteSessionReader(void* reader);
bool readSession(void* reader, const char* file, const SessionRecordSink& sink);
bool isStrictJson(const char* bytes, std::size_t size);

} // namespace selvane::module
