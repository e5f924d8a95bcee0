// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractItemModel>
#include <QElapsedTimer>
#include <QObject>
#include <QQmlEngine>
#include <QStringList>

namespace selvane {

/// Finds entries of a list by the letters that are typed one after the other, whatever their case and
/// accents. After a second without a key the next letter begins a new text. One letter typed again and again
/// goes through all entries that begin with it.
class TypeAhead : public QObject {
    Q_OBJECT
    QML_ELEMENT

public:
    using QObject::QObject;

    /// Begins a new text.
    Q_INVOKABLE void reset() { m_typed.clear(); }
    /// The position of the label that the letter leads to from `current`; -1 for none, and for a key that
    /// types nothing.
    Q_INVOKABLE int find(const QString& letter, int current, const QStringList& labels);
    /// The same for the rows of a model; `role` is the name of the role with the label.
    Q_INVOKABLE int findRow(const QString& letter, int current, QAbstractItemModel* rows,
                            const QString& role);

private:
    int positionOf(int current, const QStringList& labels) const;

    QString m_typed;
    QElapsedTimer m_sinceLast;
};

} // namespace selvane
