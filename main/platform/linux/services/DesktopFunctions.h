// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/DesktopServices.h"

/// The functions behind the desktop's table. None lets an exception out.
namespace selvane::module {

int trash(const char* path, ByteSink message, void* context);
bool desktopEntry(const char* id, void (*found)(void* context, const DesktopEntryView& entry), void* context);
bool raiseWindow(std::int32_t pid);

} // namespace selvane::module
