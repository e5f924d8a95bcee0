// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/shell/WindowPlace.h"

#include <algorithm>

namespace selvane {
namespace {

constexpr int kFrameHeight = 40; // what most desktops put above a window
constexpr int kLeastGrip = 100;

} // namespace

QSize roomIn(const QSize& available) {
    return {available.width(), available.height() - kFrameHeight};
}

QVariantMap placeAgain(const QRect& place, const std::vector<QRect>& screens) {
    if (place.isEmpty() || screens.empty())
        return {};
    // Its top edge is what one takes hold of.
    const QRect grip(place.left(), place.top() - kFrameHeight, place.width(), kFrameHeight);
    const auto holds = [&](const QRect& screen) {
        const QRect seen = screen.intersected(grip);
        return seen.width() >= std::min(kLeastGrip, place.width()) && seen.height() > 0;
    };
    const auto screen = std::find_if(screens.begin(), screens.end(), holds);
    const QSize room = roomIn((screen == screens.end() ? screens.front() : *screen).size());
    const QSize size = place.size().boundedTo(room);
    QVariantMap properties = {{"width", size.width()}, {"height", size.height()}};
    if (screen != screens.end()) {
        properties["x"] = place.x();
        properties["y"] = place.y();
    }
    return properties;
}

QRect placeOf(const QWindow& window) {
    return window.windowStates() == Qt::WindowNoState || window.windowStates() == Qt::WindowActive
               ? window.geometry()
               : QRect();
}

} // namespace selvane
