// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QStringList>

#include "AppModel/AppModel.h"

namespace selvane {

/// The profiles that a drop-down offers, by name. It follows the application's changes.
class ProfileChoices : public QObject {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(selvane::AppModel* app READ app WRITE setApp NOTIFY changed REQUIRED)
    Q_PROPERTY(QString except MEMBER m_except NOTIFY changed) ///< id of a profile that isn't offered
    /// Text of a first choice that is no profile; empty if there is no such choice.
    Q_PROPERTY(QString noneLabel MEMBER m_noneLabel NOTIFY changed)
    Q_PROPERTY(QString current MEMBER m_current NOTIFY changed) ///< id; empty for none

    Q_PROPERTY(QList<QString> labels READ labels NOTIFY changed)
    Q_PROPERTY(int currentIndex READ currentIndex NOTIFY changed) ///< -1 if it isn't offered

public:
    using QObject::QObject;

    AppModel* app() const { return m_app; }
    void setApp(AppModel* app);
    QStringList labels() const;
    int currentIndex() const;
    Q_INVOKABLE QString idAt(int index) const; ///< empty for no profile

signals:
    void changed();

private:
    struct Choice {
        QString id;
        QString label;
    };

    std::vector<Choice> choices() const;

    AppModel* m_app = nullptr;
    QString m_except;
    QString m_noneLabel;
    QString m_current;
};

} // namespace selvane
