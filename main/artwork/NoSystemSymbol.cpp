// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "artwork/SystemSymbol.h"

namespace selvane {

/// This system has no symbols of its own: the icons of the table stand for all.
QImage systemSymbol(const QString& /*name*/, IconWeight /*weight*/, int /*pixels*/) {
    return {};
}

} // namespace selvane
