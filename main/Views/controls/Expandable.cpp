// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/controls/Expandable.h"

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QAccessibleObject>
#include <QQuickWindow>

namespace selvane {
namespace {

/// What screen readers are told of the button around an `Expandable`.
class ExpandableButton : public QAccessibleObject, public QAccessibleActionInterface {
public:
    explicit ExpandableButton(const Expandable& expandable)
        : QAccessibleObject(expandable.button()), m_expandable(expandable) {}

    QWindow* window() const override { return item().window(); }
    QRect rect() const override {
        const QPointF corner = item().mapToGlobal(QPointF());
        return QRectF(corner, item().size()).toRect();
    }
    QAccessibleInterface* parent() const override {
        for (QQuickItem* above = item().parentItem(); above != nullptr; above = above->parentItem()) {
            if (QAccessibleInterface* found = QAccessible::queryAccessibleInterface(above))
                return found;
        }
        return QAccessible::queryAccessibleInterface(item().window());
    }
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::Button; }
    QString text(QAccessible::Text what) const override {
        if (what == QAccessible::Name)
            return item().property("label").toString();
        return what == QAccessible::Description ? m_expandable.description() : QString();
    }
    QAccessible::State state() const override {
        const QQuickWindow* shown = item().window();
        const bool isVisible = item().isVisible() && shown != nullptr && shown->isVisible();
        QAccessible::State result;
        result.disabled = !item().isEnabled();
        result.focusable = item().activeFocusOnTab() && item().isEnabled();
        result.focused = item().hasActiveFocus();
        result.invisible = !isVisible;
        result.offscreen = isVisible && !shown->geometry().intersects(rect());
        result.expandable = true;
        result.expanded = m_expandable.isExpanded();
        result.collapsed = !m_expandable.isExpanded();
        return result;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    void doAction(const QString& name) override {
        if (!item().isEnabled())
            return;
        if (name == pressAction())
            QMetaObject::invokeMethod(&item(), "clicked");
        else if (name == setFocusAction())
            item().forceActiveFocus();
    }
    QStringList keyBindingsForAction(const QString& /*name*/) const override { return {}; }

private:
    QQuickItem& item() const { return *m_expandable.button(); }

    const Expandable& m_expandable;
};

/// Asked by Qt before it makes an interface of its own.
QAccessibleInterface* interfaceFor(const QString& className, QObject* object) {
    if (className != QLatin1String("QQuickItem"))
        return nullptr;
    const auto* expandable = object->findChild<Expandable*>(QString(), Qt::FindDirectChildrenOnly);
    return expandable == nullptr ? nullptr : new ExpandableButton(*expandable);
}

} // namespace

Expandable::Expandable(QObject* parent) : QObject(parent) {
    [[maybe_unused]] static const bool isInstalled = [] {
        QAccessible::installFactory(&interfaceFor);
        return true;
    }();
}

/// Qt may have made an interface for the button before this was inside.
void Expandable::componentComplete() {
    if (button() == nullptr || !QAccessible::isActive())
        return;
    if (QAccessibleInterface* early = QAccessible::queryAccessibleInterface(button()))
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(early));
}

void Expandable::setExpanded(bool isExpanded) {
    if (isExpanded == m_isExpanded)
        return;
    m_isExpanded = isExpanded;
    emit isExpandedChanged();
    if (button() == nullptr || !QAccessible::isActive())
        return;
    QAccessible::State changed;
    changed.expanded = true;
    changed.collapsed = true;
    QAccessibleStateChangeEvent event(button(), changed);
    QAccessible::updateAccessibility(&event);
}

} // namespace selvane
