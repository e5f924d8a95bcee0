// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QQmlEngine>
#include <QString>
#include <QTimer>

#include <memory>

#include "platform/files/Progress.h"

namespace selvane {

/// What the windows say about how far the work in progress is. Looks at it several times a second.
class WorkProgress : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")

    /// What is being copied, or that work is being cancelled; empty if there is nothing to say beyond what
    /// the work is called.
    Q_PROPERTY(QString headline READ headline NOTIFY changed)
    /// How much of how much, and how long it will take; empty while unknown.
    Q_PROPERTY(QString detail READ detail NOTIFY changed)
    /// From 0 to 1, and never smaller than before; negative while the whole isn't known.
    Q_PROPERTY(double fraction READ fraction NOTIFY changed)
    Q_PROPERTY(bool canCancel READ canCancel NOTIFY changed)
    Q_PROPERTY(bool isCancelling READ isCancelling NOTIFY changed)

public:
    explicit WorkProgress(QObject* parent = nullptr);

    /// Shows how far new work is, until `end`. After that the last texts stay, so that they can be read while
    /// they fade, until `clear`.
    void begin(std::shared_ptr<Progress> progress);
    void end();
    void clear();

    QString headline() const { return m_headline; }
    QString detail() const { return m_detail; }
    double fraction() const { return m_fraction; }
    bool canCancel() const { return m_progress != nullptr; }
    bool isCancelling() const { return m_progress != nullptr && m_progress->isCancelled(); }

    /// Does nothing without work that can be cancelled.
    Q_INVOKABLE void cancel();

    /// How long what is left takes, if all takes as long as so far: "meno di 5 secondi", "circa 2 minuti".
    static QString timeLeft(double fraction, qint64 elapsedMilliseconds);

signals:
    void changed();

private:
    void look();
    void showTime();

    std::shared_ptr<Progress> m_progress;
    QTimer m_timer;
    QElapsedTimer m_sinceBegin;
    qint64 m_timeShownAt = 0; ///< milliseconds since the beginning
    QString m_timeLeft;
    QString m_headline;
    QString m_detail;
    double m_fraction = -1;
};

} // namespace selvane
