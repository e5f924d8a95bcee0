// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/shell/Announcer.h"

#include <QAccessible>

namespace selvane {

void Announcer::announce(QQuickItem* about, [[maybe_unused]] const QString& text) {
    if (about == nullptr || text.isEmpty() || !QAccessible::isActive())
        return;
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent event(about, text);
#else
    QAccessibleEvent event(about, QAccessible::Alert);
#endif
    QAccessible::updateAccessibility(&event);
}

} // namespace selvane
