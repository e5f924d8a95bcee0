// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QString>

#include "Views/controls/PaintedShape.h"

namespace selvane {

/// An icon in one colour, given as the system symbol that a profile, component or control names, or by its
/// own name if there is no such symbol. The system draws the symbols that it has; otherwise an unknown symbol
/// shows a person.
class PathIcon : public selvane::PaintedShape {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QString symbol MEMBER m_symbol NOTIFY shapeChanged)
    Q_PROPERTY(QString name MEMBER m_name NOTIFY shapeChanged) ///< takes precedence over the symbol
    Q_PROPERTY(Weight weight MEMBER m_weight NOTIFY shapeChanged)
    Q_PROPERTY(qreal size MEMBER m_size NOTIFY shapeChanged)

public:
    /// Automatic: the larger the icon, the lighter.
    enum Weight { Automatic, Light, Regular, Bold, Fill };
    Q_ENUM(Weight)

    explicit PathIcon(QQuickItem* parent = nullptr);

signals:
    void shapeChanged();

protected:
    void paint(QPainter& painter) const override;

private:
    void readSystemSymbol();
    void paintSystemSymbol(QPainter& painter) const;

    QString m_symbol;
    QString m_name;
    Weight m_weight = Automatic;
    qreal m_size = 0;
    QImage m_systemSymbol; ///< null if the table's icon is used
};

} // namespace selvane
