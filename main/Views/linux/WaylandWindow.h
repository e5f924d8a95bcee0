// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QWindow>

#include <memory>

namespace selvane {

/// A name by which another program can open a dialog over a window, for as long as this object lives. Empty
/// on another window system, and where the compositor can't name windows (xdg-foreign).
class ExportedWindow {
public:
    explicit ExportedWindow(QWindow* window);
    ExportedWindow(const ExportedWindow&) = delete;
    ExportedWindow& operator=(const ExportedWindow&) = delete;

    const QString& name() const { return m_name; }

private:
    QString m_name;
    std::shared_ptr<void> m_export; ///< writes to the name; of a type that only the source file knows
};

/// What lets a program that is started now come to the front (xdg-activation); `active` is the window that
/// the user has just used, and may be null. Empty on another window system, and where the compositor gives
/// none.
QString activationToken(QWindow* active);

} // namespace selvane
