// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>
#include <QUrl>
#include <QWindow>

#include <memory>

namespace selvane {

/// The system's own dialog for saving a zip archive, or for choosing one that is there.
class SaveDialog : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Shows the dialog to save for `parent`, which may be null. Emits exactly one of the signals, always
    /// later. A new call closes the dialog that is still open, whose question then gets no answer.
    virtual void ask(QWindow* parent, const QString& title, const QString& folder, const QString& name) = 0;
    /// The same with the dialog to choose an archive.
    virtual void askForExisting(QWindow* parent, const QString& title, const QString& folder) = 0;

signals:
    void chosen(const QUrl& file);
    void cancelled();
    void unavailable(); ///< this desktop has no such dialog
};

std::unique_ptr<SaveDialog> makeSaveDialog();

} // namespace selvane
