// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "artwork/SvgPath.h"

#include <QtMath>

#include <algorithm>
#include <cctype>
#include <cmath>

#include "platform/text/Decimal.h"

namespace selvane {
namespace {

class Reader {
public:
    explicit Reader(std::string_view data) : m_rest(data) {}

    QPainterPath read() {
        m_path.setFillRule(Qt::WindingFill);
        while (nextCommand() && draw()) {
        }
        return m_path;
    }

private:
    void skipSeparators() {
        const auto isSeparator = [](unsigned char c) { return c == ',' || std::isspace(c) != 0; };
        const auto* const next = std::ranges::find_if_not(m_rest, isSeparator);
        m_rest.remove_prefix(static_cast<std::size_t>(next - m_rest.begin()));
    }

    // A repeated command may be omitted; after a move, that means a line.
    bool nextCommand() {
        skipSeparators();
        if (m_rest.empty())
            return false;
        if (std::isalpha(static_cast<unsigned char>(m_rest.front())) != 0) {
            m_relative = std::islower(static_cast<unsigned char>(m_rest.front())) != 0;
            m_command = static_cast<char>(std::toupper(static_cast<unsigned char>(m_rest.front())));
            m_rest.remove_prefix(1);
        } else if (m_command == 'M') {
            m_command = 'L';
        }
        return true;
    }

    qreal number() {
        skipSeparators();
        const Decimal decimal = readDecimal(m_rest);
        m_isBroken = m_isBroken || !decimal.fits;
        m_rest.remove_prefix(decimal.length);
        return decimal.value;
    }

    // Flags are single digits, often not separated from what follows.
    bool flag() {
        skipSeparators();
        if (m_rest.empty() || (m_rest.front() != '0' && m_rest.front() != '1')) {
            m_isBroken = true;
            return false;
        }
        const bool value = m_rest.front() == '1';
        m_rest.remove_prefix(1);
        return value;
    }

    QPointF point() {
        const qreal x = number();
        const qreal y = number();
        return QPointF(x, y) + (m_relative ? m_at : QPointF());
    }

    bool draw() {
        switch (m_command) {
        case 'M':
            m_at = point();
            m_path.moveTo(m_at);
            break;
        case 'L':
            lineTo(point());
            break;
        case 'H':
            lineTo({number() + (m_relative ? m_at.x() : 0), m_at.y()});
            break;
        case 'V':
            lineTo({m_at.x(), number() + (m_relative ? m_at.y() : 0)});
            break;
        case 'C':
            curveTo(point());
            break;
        case 'S':
            curveTo(m_previous == 'C' || m_previous == 'S' ? 2 * m_at - m_control : m_at);
            break;
        case 'Q': {
            const QPointF control = point();
            m_at = point();
            m_path.quadTo(control, m_at);
            break;
        }
        case 'A':
            arcTo();
            break;
        case 'Z':
            m_path.closeSubpath();
            m_at = m_path.currentPosition();
            break;
        default:
            return false;
        }
        m_previous = m_command;
        return !m_isBroken;
    }

    void lineTo(QPointF to) {
        m_at = to;
        m_path.lineTo(to);
    }

    void curveTo(QPointF first) {
        m_control = point();
        const QPointF to = point();
        m_path.cubicTo(first, m_control, to);
        m_at = to;
    }

    void arcTo() {
        qreal radius = std::abs(number());
        number(); // the second radius
        number(); // the rotation, which makes no difference for a circle
        const bool isLarge = flag();
        const bool isClockwise = flag();
        const QPointF to = point();
        const QPointF half = (to - m_at) / 2;
        const qreal distance = std::hypot(half.x(), half.y());
        if (m_isBroken || distance == 0)
            return;
        radius = std::max(radius, distance);
        const qreal side = std::sqrt(radius * radius - distance * distance) / distance;
        const qreal sign = isLarge == isClockwise ? -1 : 1;
        const QPointF centre = m_at + half + sign * side * QPointF(-half.y(), half.x());
        const auto angle = [&](QPointF p) {
            return qRadiansToDegrees(std::atan2(centre.y() - p.y(), p.x() - centre.x()));
        };
        // Qt measures angles anticlockwise.
        const qreal start = angle(m_at);
        qreal sweep = std::fmod(angle(to) - start + 720, 360);
        if (isClockwise)
            sweep -= 360;
        m_path.arcTo(QRectF(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius), start, sweep);
        m_at = to;
    }

    std::string_view m_rest;
    QPainterPath m_path;
    QPointF m_at;
    QPointF m_control;
    char m_command = 0;
    char m_previous = 0;
    bool m_relative = false;
    bool m_isBroken = false;
};

} // namespace

QPainterPath svgPath(std::string_view data) {
    return Reader(data).read();
}

} // namespace selvane
