// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/controls/MatchLines.h"

#include <QPainter>
#include <QTextLayout>

#include <algorithm>

namespace selvane {

void MatchLines::paint(QPainter& painter) const {
    QString text = m_text;
    text.replace(u'\n', QChar::LineSeparator);
    QTextLayout layout(text, m_font);
    QTextOption option;
    option.setWrapMode(m_wraps ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    qreal top = 0;
    for (QTextLine line = layout.createLine(); line.isValid() && top < height(); line = layout.createLine()) {
        line.setLineWidth(width());
        const int lineEnd = line.textStart() + line.textLength();
        for (qsizetype i = 0; i + 1 < m_ranges.size(); i += 2) {
            const int start = std::max(m_ranges[i], line.textStart());
            const int end = std::min(m_ranges[i] + m_ranges[i + 1], lineEnd);
            if (start >= end)
                continue;
            const qreal left = line.cursorToX(start);
            const qreal right = std::min(line.cursorToX(end), width());
            painter.fillRect(QRectF(left, top + m_lineHeight - 1.5 * m_thickness, right - left, m_thickness),
                             m_color);
        }
        top += m_lineHeight;
    }
    layout.endLayout();
}

} // namespace selvane
