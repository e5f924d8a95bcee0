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

struct DesktopServices {
    /// 0, or an errno value with the system's message in `message`.
    int (*trash)(const char* path, ByteSink message, void* context);
    /// Whether a desktop entry of that id (without ".desktop") is installed; hands it to `found` if so.
    bool (*desktopEntry)(const char* id, void (*found)(void* context, const DesktopEntryView& entry),
                         void* context);
    /// Raises a window of that process on an X11 display; false when there is none.
    bool (*raiseWindow)(std::int32_t pid);
};

/// As `services()`.
const DesktopServices& desktopServices();

} // namespace selvane
