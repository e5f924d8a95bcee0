// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>
#include <QUrl>
#include <QVariantMap>
#include <QWindow>

namespace selvane {

/// The desktop's own dialog for a new zip archive, asked for through its portal.
class PortalSaveDialog : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Shows it before `parent`, which may be null. Ends with exactly one of the signals, always later; being
    /// asked again forgets the first question.
    void ask(const QWindow* parent, const QString& title, const QString& folder, const QString& name);

signals:
    void chosen(const QUrl& file);
    void cancelled();
    void unavailable(); ///< this desktop has none

private slots:
    void respond(uint response, const QVariantMap& results);

private:
    void forget();

    QString m_request; ///< path of the open question; empty for none
    int m_count = 0;
};

} // namespace selvane
