// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/shell/Updates.h"

#include <utility>

namespace selvane {

Updates::Updates(std::unique_ptr<Updater> updater, QObject* parent)
    : QObject(parent), m_updater(std::move(updater)) {
    if (m_updater)
        connect(m_updater.get(), &Updater::canCheckChanged, this, &Updates::canCheckChanged);
}

QString Updates::version() {
    return QStringLiteral(SELVANE_VERSION);
}

void Updates::setInstallsAutomatically(bool value) {
    if (!m_updater || m_updater->installsAutomatically() == value)
        return;
    m_updater->setInstallsAutomatically(value);
    emit installsAutomaticallyChanged();
}

void Updates::checkNow() {
    if (canCheck())
        m_updater->check();
}

} // namespace selvane
