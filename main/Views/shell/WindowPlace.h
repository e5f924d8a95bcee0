// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QRect>
#include <QVariantMap>
#include <QWindow>

#include <vector>

namespace selvane {

/// The largest content that a window can have on a screen with this available area, beside its frame.
QSize roomIn(const QSize& available);

/// What a window needs to be where it was: its width and height, no larger than the screen that it was on,
/// and, if enough of it to take hold of would be on a screen, its position. Empty for an empty place.
/// `screens` are the available areas, the main one first.
QVariantMap placeAgain(const QRect& place, const std::vector<QRect>& screens);

/// Where a window is now, to be remembered; empty while it fills the screen or is minimised.
QRect placeOf(const QWindow& window);

} // namespace selvane
