// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/DesktopServices.h"

/// The functions in the desktop's table. None lets an exception out.
namespace selvane::module {

int trash(const char* path, ByteSink message, void* context) noexcept;
bool desktopEntry(const char* id, EntryReceiver found, void* context) noexcept;
void schemeHandler(const char* scheme, ByteSink id, void* context) noexcept;
bool setSchemeHandler(const char* scheme, const char* entry, ByteSink message, void* context) noexcept;
void resetSchemeHandler(const char* scheme) noexcept;
bool raiseWindow(std::int32_t pid) noexcept;
bool hasClipboardManager() noexcept;

} // namespace selvane::module
