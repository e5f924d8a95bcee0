// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/services/Services.h"

/// The system libraries that would make every start slower (ICU, simdjson, and of the desktop GIO and XCB)
/// are linked to a module of their own, `libselvane-services.so`, which is loaded when one of them is first
/// needed. It hands out two tables: `Services`, and this one.
namespace selvane {

/// Where a desktop entry points. `arguments` are the words of its command line, field codes dropped, each
/// ended by a NUL; the first one is the program.
struct DesktopEntryView {
    const char* file;
    const char* arguments;
    std::size_t argumentsSize;
    const char* workingFolder; ///< null when it names none
};

using EntryReceiver = void (*)(void* context, const DesktopEntryView& entry) noexcept;

struct DesktopServices {
    /// 0, or an errno value (EIO for what has none), and the system's own message goes to `message`.
    int (*trash)(const char* path, ByteSink message, void* context) noexcept;
    /// Whether a desktop entry of that id (without ".desktop") is installed; hands it to `found` if so.
    bool (*desktopEntry)(const char* id, EntryReceiver found, void* context) noexcept;
    /// Raises a window of that process on an X11 display; false when there is none.
    bool (*raiseWindow)(std::int32_t pid) noexcept;
};

/// As `services()`.
const DesktopServices& desktopServices();

} // namespace selvane
