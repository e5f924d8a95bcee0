// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFont>
#include <QObject>
#include <QQmlEngine>

namespace selvane {

/// A text style: the font and the height of a line, in logical pixels.
class TextStyle : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("They are those of TypeStyles.")

    Q_PROPERTY(QFont font READ font NOTIFY changed FINAL)
    Q_PROPERTY(qreal lineHeight READ lineHeight NOTIFY changed FINAL)

public:
    /// `font` has a size in pixels, and absolute letter spacing if any.
    TextStyle(const QFont& font, qreal line, QObject* parent);

    /// Makes everything larger by this factor than it was made with. Sizes and heights are whole pixels.
    void setScale(qreal scale);
    const QFont& font() const { return m_font; }
    qreal lineHeight() const { return m_lineHeight; }

signals:
    void changed();

private:
    QFont m_made;
    qreal m_line;
    QFont m_font = m_made;
    qreal m_lineHeight = m_line;
};

} // namespace selvane
