// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/shell/SystemAppearance.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace selvane {
namespace {

constexpr double kBaseDpi = 96;
constexpr double kLargestScale = 2;

} // namespace

SystemAppearance::SystemAppearance(QObject* parent) : QObject(parent) {
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        connect(screen, &QScreen::logicalDotsPerInchChanged, this, &SystemAppearance::changed);
}

double SystemAppearance::textScale() const {
    const QScreen* screen = QGuiApplication::primaryScreen();
    const double screenScale = screen == nullptr ? 1 : screen->logicalDotsPerInch() / kBaseDpi;
    return std::clamp(screenScale * m_textFactor, 1.0, kLargestScale);
}

void SystemAppearance::setTextFactor(double factor) {
    m_textFactor = factor;
    emit changed();
}

void SystemAppearance::setReducedMotion(bool reduced) {
    m_reducedMotion = reduced;
    emit changed();
}

void SystemAppearance::read() {
    m_settings = followDesktop(*this);
}

} // namespace selvane
