// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QString>

#include "artwork/Icons.h"

namespace selvane {

/// The system's own drawing of a symbol, centred in a square of `pixels`; its alpha channel is the shape.
/// Null if the system has no such symbol, or no symbols at all. Call it only on the main thread.
QImage systemSymbol(const QString& name, IconWeight weight, int pixels);

} // namespace selvane
