// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QString>

namespace selvane {

/// What somebody types to find something in a list that has the focus, without a field.
class SearchText : public QObject {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QString text READ text NOTIFY textChanged)
    /// Whether digits are text even while nothing is typed.
    Q_PROPERTY(bool beginsWithDigits MEMBER m_beginsWithDigits NOTIFY beginsWithDigitsChanged)

public:
    using QObject::QObject;

    static constexpr int kLongest = 80; ///< letters; what is typed beyond is ignored

    QString text() const { return m_text; }

    /// Letters are added, Backspace removes the last one, Escape all of them. Returns whether the key was
    /// meant for the text.
    Q_INVOKABLE bool take(int key, int modifiers, const QString& typed);
    Q_INVOKABLE void clear() { setText({}); }

signals:
    void textChanged();
    void beginsWithDigitsChanged();

private:
    void setText(const QString& text);

    QString m_text;
    bool m_beginsWithDigits = false;
};

} // namespace selvane
