// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/Services.h"

/// The functions behind the table of the services module. None lets an exception out.
namespace selvane::module {

void sortKey(const char* name, std::size_t size, ByteSink sink, void* context);
void fold(const char* name, std::size_t size, ByteSink sink, void* context);
void longDate(std::int64_t time, ByteSink sink, void* context);
void relativeDate(std::int64_t secondsAgo, ByteSink sink, void* context);

int trash(const char* path, ByteSink message, void* context);
bool desktopEntry(const char* id, void (*found)(void* context, const DesktopEntryView& entry), void* context);
bool raiseWindow(std::int32_t pid);

void* newSessionReader();
void deleteSessionReader(void* reader);
bool readSession(void* reader, const char* file, const SessionRecordSink& sink);

} // namespace selvane::module
