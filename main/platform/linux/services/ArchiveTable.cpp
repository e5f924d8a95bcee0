// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/services/ArchiveFunctions.h"

extern "C" __attribute__((visibility("default"))) const selvane::Archives* selvane_archives() {
    return &selvane::module::kArchives;
}
