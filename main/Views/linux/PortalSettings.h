// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusVariant>
#include <QObject>

#include "Views/shell/SystemAppearance.h"

namespace selvane {

/// The desktop's settings, as its portal provides them.
class PortalSettings : public QObject {
    Q_OBJECT

public:
    /// Asks for them without waiting for the answer.
    explicit PortalSettings(SystemAppearance& appearance);

private slots:
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    SystemAppearance& m_appearance;
};

} // namespace selvane
