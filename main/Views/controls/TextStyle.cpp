// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/controls/TextStyle.h"

namespace selvane {

TextStyle::TextStyle(const QFont& font, qreal line, QObject* parent)
    : QObject(parent), m_made(font), m_line(line) {}

void TextStyle::setScale(qreal scale) {
    m_font.setPixelSize(qRound(m_made.pixelSize() * scale));
    if (m_made.letterSpacing() != 0)
        m_font.setLetterSpacing(QFont::AbsoluteSpacing, m_made.letterSpacing() * scale);
    m_lineHeight = qRound(m_line * scale);
    emit changed();
}

} // namespace selvane
