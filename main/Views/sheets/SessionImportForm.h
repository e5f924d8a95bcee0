// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFutureWatcher>
#include <QObject>
#include <QQmlEngine>
#include <QQmlParserStatus>
#include <QThreadPool>

#include <vector>

#include "AppModel/AppModel.h"
#include "Views/sheets/ChoiceListModel.h"
#include "store/conversations/SessionStates.h"

namespace selvane {

/// The state of the sheet that imports sessions of the Code tab from another profile. It follows what other
/// programs change; ticks stay with their sessions.
class SessionImportForm : public QObject, public QQmlParserStatus {
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_ELEMENT

    Q_PROPERTY(selvane::AppModel* app MEMBER m_app NOTIFY inputChanged REQUIRED)
    Q_PROPERTY(QString target MEMBER m_target NOTIFY inputChanged REQUIRED)
    /// Id of the profile to take from; initially the first other profile.
    Q_PROPERTY(QString source READ source WRITE setSource NOTIFY sourceChanged)
    /// Each with its working folder, with "~" for the home folder, its last activity and its size. Those that
    /// the target has already are marked.
    Q_PROPERTY(selvane::ChoiceListModel* sessions READ sessions CONSTANT)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY isLoadingChanged)

public:
    explicit SessionImportForm(QObject* parent = nullptr);

    QString source() const { return m_source; }
    void setSource(const QString& id);
    ChoiceListModel* sessions() { return &m_choices; }
    bool isLoading() const { return m_isLoading; }

    void classBegin() override {}
    void componentComplete() override;

    /// Does nothing if no session is chosen. `succeeded` follows once all is there.
    Q_INVOKABLE void submit();

signals:
    void succeeded(); ///< the submitted work is done
    void inputChanged();
    void sourceChanged();
    void isLoadingChanged();

private:
    struct Listed {
        std::vector<CodeSession> sessions;
        std::vector<SessionState> states; ///< of each
    };

    void follow();
    void list();
    QString folderOf(const CodeSession& session) const;
    void show(Listed listed);
    void setLoading(bool isLoading);

    AppModel* m_app = nullptr;
    QString m_target;
    QString m_source;
    bool m_isLoading = false;
    std::vector<CodeSession> m_sessions;
    ChoiceListModel m_choices;
    QFutureWatcher<Listed> m_reading; ///< only the newest
    QThreadPool m_readers;            ///< its destructor waits for them, as they use the application's store
};

} // namespace selvane
