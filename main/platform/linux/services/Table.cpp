// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/linux/services/Functions.h"

extern "C" __attribute__((visibility("default"))) const selvane::Services* selvane_services() {
    static constexpr selvane::Services kTable{
        .sortKey = selvane::module::sortKey,
        .fold = selvane::module::fold,
        .longDate = selvane::module::longDate,
        .relativeDate = selvane::module::relativeDate,
        .trash = selvane::module::trash,
        .desktopEntry = selvane::module::desktopEntry,
        .raiseWindow = selvane::module::raiseWindow,
        .newSessionReader = selvane::module::newSessionReader,
        .deleteSessionReader = selvane::module::deleteSessionReader,
        .readSession = selvane::module::readSession,
    };
    return &kTable;
}
