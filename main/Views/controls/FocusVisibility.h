// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QQmlEngine>

namespace selvane {

/// Whether to mark the focus: from a key press until the next mouse press or touch.
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
