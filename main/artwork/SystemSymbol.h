// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QString>

#include "artwork/Icons.h"

namespace selvane {

/// The system's own drawing of a symbol, whose alpha channel is the shape, in the middle of a square of
/// `pixels`. Null when the system has no symbol of that name, or none at all. For the main thread alone.
QImage systemSymbol(const QString& name, IconWeight weight, int pixels);

} // namespace selvane
