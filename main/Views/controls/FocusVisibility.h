// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QQmlEngine>

namespace selvane {

/// Whether the focus is to be marked: after a key was pressed, until the mouse is.
class FocusVisibility : public QObject {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(bool isVisible MEMBER m_isVisible NOTIFY isVisibleChanged FINAL)

public:
    explicit FocusVisibility(QObject* parent = nullptr);

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void isVisibleChanged();

private:
    void setVisible(bool isVisible);

    bool m_isVisible = false;
};

} // namespace selvane
