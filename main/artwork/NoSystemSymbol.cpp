// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "artwork/SystemSymbol.h"

namespace selvane {

/// This system has no symbols of its own, so the icons in the table are always used.
QImage systemSymbol(const QString& /*name*/, IconWeight /*weight*/, int /*pixels*/) {
    return {};
}

} // namespace selvane
