// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFutureWatcher>
#include <QList>
#include <QObject>
#include <QQmlEngine>
#include <QQmlListProperty>
#include <QStringList>
#include <QThreadPool>

#include <functional>
#include <optional>
#include <vector>

#include "AppModel/AppModel.h"
#include "AppModel/LookValue.h"
#include "Views/manage/ComponentModel.h"

namespace selvane {

/// What the management window shows of the selected profile, and its commands. Anything that takes looking
/// through folders is read on another thread after each reload and arrives a little later.
class ProfileDetailModel : public QObject {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(selvane::AppModel* app READ app WRITE setApp NOTIFY appChanged REQUIRED)
    /// Id of the profile; empty if none is selected, and then the other properties are empty too.
    Q_PROPERTY(QString profileId READ profileId NOTIFY profileChanged)
    Q_PROPERTY(QString name READ name NOTIFY profileChanged)
    Q_PROPERTY(QString summary READ summary NOTIFY profileChanged)
    Q_PROPERTY(selvane::LookValue look READ look NOTIFY profileChanged)
    Q_PROPERTY(QString folder READ folder NOTIFY profileChanged)
    Q_PROPERTY(bool isBuiltIn READ isBuiltIn NOTIFY profileChanged)
    Q_PROPERTY(bool hasSource READ hasSource NOTIFY profileChanged)
    Q_PROPERTY(QString sourceName READ sourceName NOTIFY profileChanged) ///< its id if it is unknown
    Q_PROPERTY(bool isIsolated READ isIsolated NOTIFY profileChanged)
    Q_PROPERTY(QString builtInName READ builtInName NOTIFY profileChanged) ///< the built-in profile's
    Q_PROPERTY(bool isRunning READ isRunning NOTIFY runningChanged)

    Q_PROPERTY(QString account READ account NOTIFY accountChanged)
    /// "Proprio", then the names of the profiles whose account it can use; empty for the built-in profile.
    Q_PROPERTY(QList<QString> accountChoices READ accountChoices NOTIFY accountChanged)
    Q_PROPERTY(int accountIndex READ accountIndex NOTIFY accountChanged)

    /// Why the profile can't be deleted now; empty if it can.
    Q_PROPERTY(QString deletionRefusal READ deletionRefusal NOTIFY accountChanged)

    Q_PROPERTY(QString sessions READ sessions NOTIFY sessionsChanged) ///< empty until counted
    Q_PROPERTY(
        QString pendingSessions READ pendingSessions NOTIFY sessionsChanged) ///< empty if there are none

    /// The components in their usual order, folders first.
    Q_PROPERTY(QQmlListProperty<selvane::ComponentModel> collections READ collections CONSTANT)
    Q_PROPERTY(QQmlListProperty<selvane::ComponentModel> files READ files CONSTANT)

public:
    explicit ProfileDetailModel(QObject* parent = nullptr);

    AppModel* app() const { return m_app; }
    void setApp(AppModel* app);

    QString profileId() const;
    QString name() const;
    QString summary() const;
    LookValue look() const;
    QString folder() const;
    bool isBuiltIn() const;
    bool hasSource() const;
    QString sourceName() const;
    bool isIsolated() const { return m_profile && m_profile->meta.isolated; }
    QString builtInName() const;
    bool isRunning() const;
    QString account() const;
    QStringList accountChoices() const;
    int accountIndex() const;
    QString deletionRefusal() const;
    QString sessions() const;
    QString pendingSessions() const;
    QQmlListProperty<ComponentModel> collections() { return {this, &m_collections}; }
    QQmlListProperty<ComponentModel> files() { return {this, &m_files}; }
    QList<ComponentModel*> components() const { return m_collections + m_files; }
    /// Whether results from other threads are still to come.
    bool isReading() const { return m_awaited > 0; }

public slots:
    void setName(const QString& name); ///< a blank name changes nothing
    void setSummary(const QString& summary);
    void setLook(const selvane::LookValue& look);
    void setAccount(int index);
    void setIsolated(bool isolated);
    /// Moves a profile to the Trash. `profileId` is the profile that the user was asked about: another one
    /// may have been selected from the picker since.
    void remove(const QString& profileId);

signals:
    void appChanged();
    void profileChanged();
    void runningChanged();
    void accountChanged();
    void sessionsChanged();

private:
    using Contents = std::vector<ComponentModel::Content>;
    struct SessionCounts {
        int present = -1; ///< not counted yet
        int pending = 0;
    };

    void update();
    void readComponents();
    void countSessions();
    void takeContents();
    void takeCounts();
    const Profile* source() const;
    void change(const std::function<void(ProfileMeta&)>& edit);
    std::vector<const Profile*> accountOwners() const;

    AppModel* m_app = nullptr;
    std::optional<Profile> m_profile; ///< a copy: the application's own may be gone before this model is told
    QList<ComponentModel*> m_collections;
    QList<ComponentModel*> m_files;
    SessionCounts m_sessions;
    // Each watches only its newest task; results of earlier ones are dropped.
    QFutureWatcher<Contents> m_contents;
    QFutureWatcher<SessionCounts> m_counts;
    int m_awaited = 0;     ///< how many of the two are still running
    QThreadPool m_readers; ///< its destructor waits for them, as they use the application's store
};

} // namespace selvane
