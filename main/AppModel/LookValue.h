// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QString>
#include <QVariant>

#include <utility>

#include "AppModel/QtText.h"
#include "model/ProfileLook.h"

namespace selvane {

/// A profile's look in QML. What has none has no symbol.
class LookValue {
    Q_GADGET
    QML_VALUE_TYPE(profileLook)

    Q_PROPERTY(QString symbol READ symbol)
    Q_PROPERTY(QString color READ color) ///< name of a hue; see `HuePalette`

public:
    LookValue() : m_look{.symbol = {}, .color = {}} {}
    // NOLINTNEXTLINE(google-explicit-constructor): only another form of the same
    LookValue(ProfileLook look) : m_look(std::move(look)) {}

    const ProfileLook& look() const { return m_look; }
    QString symbol() const { return qtText(m_look.symbol); }
    QString color() const { return qtText(m_look.color); }

    Q_INVOKABLE selvane::LookValue withSymbol(const QString& symbol) const {
        return ProfileLook{symbol.toStdString(), m_look.color};
    }
    Q_INVOKABLE selvane::LookValue withColor(const QString& color) const {
        return ProfileLook{m_look.symbol, color.toStdString()};
    }

    bool operator==(const LookValue&) const = default;

private:
    ProfileLook m_look;
};

inline QVariant lookVariant(const ProfileLook& look) {
    return QVariant::fromValue(LookValue(look));
}

} // namespace selvane
