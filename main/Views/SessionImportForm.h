// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QQmlEngine>

#include <vector>

#include "AppModel.h"
#include "Views/ChoiceListModel.h"

namespace selvane {

/// The state of the sheet that takes sessions of the Code tab along from another profile.
class SessionImportForm : public QObject {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(selvane::AppModel* app MEMBER m_app NOTIFY inputChanged REQUIRED)
    Q_PROPERTY(QString target MEMBER m_target NOTIFY inputChanged REQUIRED)
    /// Id of the profile to take from; at first the first of the others.
    Q_PROPERTY(QString source READ source WRITE setSource NOTIFY sourceChanged)
    Q_PROPERTY(selvane::ChoiceListModel* sessions READ sessions CONSTANT)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY isLoadingChanged)

public:
    using QObject::QObject;

    QString source() const { return m_source; }
    void setSource(const QString& id);
    ChoiceListModel* sessions() { return &m_choices; }
    bool isLoading() const { return m_isLoading; }

    /// To be called when the inputs are set.
    Q_INVOKABLE void begin();
    /// Does nothing while no session is chosen.
    Q_INVOKABLE void submit();

signals:
    void inputChanged();
    void sourceChanged();
    void isLoadingChanged();

private:
    void show(std::vector<CodeSession> sessions);
    void setLoading(bool isLoading);

    AppModel* m_app = nullptr;
    QString m_target;
    QString m_source;
    bool m_isLoading = false;
    std::vector<CodeSession> m_sessions;
    ChoiceListModel m_choices;
    int m_request = 0; ///< an answer to an earlier one is dropped
};

} // namespace selvane
