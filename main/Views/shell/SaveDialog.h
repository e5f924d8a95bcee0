// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>
#include <QUrl>
#include <QWindow>

#include <memory>

namespace selvane {

/// The system's own dialog for a new zip archive.
class SaveDialog : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Shows it before `parent`, which may be null. Ends with exactly one of the signals, always later; being
    /// asked again forgets the first question.
    virtual void ask(const QWindow* parent, const QString& title, const QString& folder,
                     const QString& name) = 0;

signals:
    void chosen(const QUrl& file);
    void cancelled();
    void unavailable(); ///< this desktop has none
};

std::unique_ptr<SaveDialog> makeSaveDialog();

} // namespace selvane
