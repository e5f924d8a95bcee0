// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/services/Services.h"

/// System libraries that would slow down every start (ICU, simdjson and, for the desktop, GIO and XCB) are
/// linked to a separate module, `libselvane-services.so`, loaded when one is first needed. It provides two
/// tables: `Services` and this one.
namespace selvane {

/// A desktop entry. `arguments` are the words of its command line without field codes, each ended by a NUL;
/// the first is the program.
struct DesktopEntryView {
    const char* file;
    const char* arguments;
    std::size_t argumentsSize;
    const char* workingFolder; ///< null if it names none
};

using EntryReceiver = void (*)(void* context, const DesktopEntryView& entry) noexcept;

struct DesktopServices {
    /// 0, or an errno value (EIO for what has none), and the system's own message goes to `message`.
    int (*trash)(const char* path, ByteSink message, void* context) noexcept;
    /// Whether a desktop entry with this id (without ".desktop") is installed. If so, passes it to `found`.
    bool (*desktopEntry)(const char* id, EntryReceiver found, void* context) noexcept;
    /// The functions of `platform/process/SchemeHandler.h`. Setting returns false if it fails, and the
    /// system's own message goes to `message`.
    void (*schemeHandler)(const char* scheme, ByteSink id, void* context) noexcept;
    bool (*setSchemeHandler)(const char* scheme, const char* entry, ByteSink message, void* context) noexcept;
    void (*resetSchemeHandler)(const char* scheme) noexcept;
    /// Raises a window of this process on an X11 display; false if there is none.
    bool (*raiseWindow)(std::int32_t pid) noexcept;
    /// Whether something keeps what was copied on an X11 display when its owner ends.
    bool (*hasClipboardManager)() noexcept;
};

/// Like `services()`.
const DesktopServices& desktopServices();

} // namespace selvane
