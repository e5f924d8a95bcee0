// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/services/Services.h"

#include "platform/services/ArchiveFunctions.h"
#include "platform/services/Table.h"

namespace selvane {

/// There is no module: the libraries are in the bundle, and the core is linked to them.
const Services& services() {
    return module::kTable;
}

const Archives& archives() {
    return module::kArchives;
}

} // namespace selvane
