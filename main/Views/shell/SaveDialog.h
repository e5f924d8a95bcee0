// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>
#include <QUrl>
#include <QWindow>

#include <memory>

namespace selvane {

/// The system's own dialog for saving a zip archive.
class SaveDialog : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Shows the dialog for `parent`, which may be null. Emits exactly one of the signals, always later. A
    /// new call closes the dialog that is still open, whose question then gets no answer.
    virtual void ask(QWindow* parent, const QString& title, const QString& folder, const QString& name) = 0;

signals:
    void chosen(const QUrl& file);
    void cancelled();
    void unavailable(); ///< this desktop has no such dialog
};

std::unique_ptr<SaveDialog> makeSaveDialog();

} // namespace selvane
