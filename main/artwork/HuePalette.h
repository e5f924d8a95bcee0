// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QObject>
#include <QQmlEngine>
#include <QString>
#include <QStringList>

#include <optional>

#include "model/ProfileLook.h"

namespace selvane {

/// The colours in which a leaf with a profile's symbol is drawn. Lit, its symbol has `Brand::bg`.
struct LeafColors {
    QColor leaf;
    QColor symbol;
    QColor litLeaf;
};

/// The hues that profiles can have, used by the drawing in C++ and, only through Theme.qml, by the windows.
class HuePalette : public QObject {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QStringList names READ names CONSTANT) ///< in the order in which they are offered

public:
    using QObject::QObject;

    static LeafColors colors(std::optional<Hue> hue); ///< those without a hue if there is none

    static QStringList names();
    // By name; the colours without a hue for any other name.
    Q_INVOKABLE bool has(const QString& name) const;
    Q_INVOKABLE QColor leaf(const QString& name, bool isLit) const;
    Q_INVOKABLE QColor symbol(const QString& name, bool isLit) const;
};

} // namespace selvane
