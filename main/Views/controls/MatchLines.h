// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFont>
#include <QList>
#include <QString>

#include "Views/controls/PaintedShape.h"

namespace selvane {

/// Lines under the letters of a text that were found, over the item that shows this text with the same font
/// and width.
class MatchLines : public selvane::PaintedShape {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QString text MEMBER m_text NOTIFY changed)
    Q_PROPERTY(QFont font MEMBER m_font NOTIFY changed)
    Q_PROPERTY(QList<int> ranges MEMBER m_ranges NOTIFY changed) ///< start and length of each
    Q_PROPERTY(qreal lineHeight MEMBER m_lineHeight NOTIFY changed)
    Q_PROPERTY(qreal thickness MEMBER m_thickness NOTIFY changed)
    Q_PROPERTY(bool wraps MEMBER m_wraps NOTIFY changed)

public:
    using PaintedShape::PaintedShape;

protected:
    void paint(QPainter& painter) const override;

private:
    QString m_text;
    QFont m_font;
    QList<int> m_ranges;
    qreal m_lineHeight = 0;
    qreal m_thickness = 0;
    bool m_wraps = false;
};

} // namespace selvane
