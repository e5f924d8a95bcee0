// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace selvane {

/// The bus name of the desktop's portals.
inline QString portalService() {
    return QStringLiteral("org.freedesktop.portal.Desktop");
}

} // namespace selvane
