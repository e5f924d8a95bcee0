// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/services/Table.h"
#include "platform/linux/services/DesktopFunctions.h"

extern "C" {

__attribute__((visibility("default"))) const selvane::Services* selvane_services() {
    return &selvane::module::kTable;
}

__attribute__((visibility("default"))) const selvane::DesktopServices* selvane_desktop_services() {
    static constexpr selvane::DesktopServices kTable{
        .trash = selvane::module::trash,
        .desktopEntry = selvane::module::desktopEntry,
        .schemeHandler = selvane::module::schemeHandler,
        .setSchemeHandler = selvane::module::setSchemeHandler,
        .resetSchemeHandler = selvane::module::resetSchemeHandler,
        .raiseWindow = selvane::module::raiseWindow,
        .hasClipboardManager = selvane::module::hasClipboardManager,
    };
    return &kTable;
}

} // extern "C"
