// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QQmlEngine>
#include <QQmlParserStatus>
#include <QQuickItem>
#include <QString>

namespace selvane {

/// Tells screen readers that the button in which it is declared shows and hides something, and which of the
/// two it has done last. QML's own attached properties can't say that. The button is a `Pressable` whose
/// descendants aren't accessible.
class Expandable : public QObject, public QQmlParserStatus {
    Q_OBJECT
    QML_ELEMENT
    Q_INTERFACES(QQmlParserStatus)

    Q_PROPERTY(bool isExpanded READ isExpanded WRITE setExpanded NOTIFY isExpandedChanged REQUIRED FINAL)
    Q_PROPERTY(QString description MEMBER m_description NOTIFY descriptionChanged FINAL)

public:
    explicit Expandable(QObject* parent = nullptr);

    bool isExpanded() const { return m_isExpanded; }
    void setExpanded(bool isExpanded);
    QString description() const { return m_description; }
    QQuickItem* button() const { return qobject_cast<QQuickItem*>(parent()); }

    void classBegin() override {}
    void componentComplete() override;

signals:
    void isExpandedChanged();
    void descriptionChanged();

private:
    bool m_isExpanded = false;
    QString m_description;
};

} // namespace selvane
