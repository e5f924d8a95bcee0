// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QQmlEngine>

#include "AppModel.h"

namespace selvane {

/// The state of the sheet that chooses what to back up.
class BackupForm : public QObject {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(selvane::AppModel* app MEMBER m_app NOTIFY appChanged REQUIRED)
    Q_PROPERTY(bool savesPrincipal MEMBER m_savesPrincipal NOTIFY scopeChanged)
    Q_PROPERTY(bool savesProfiles MEMBER m_savesProfiles NOTIFY scopeChanged)
    Q_PROPERTY(bool canSave READ canSave NOTIFY scopeChanged)

public:
    using QObject::QObject;

    bool canSave() const { return m_savesPrincipal || m_savesProfiles; }
    /// Does nothing while nothing is chosen.
    Q_INVOKABLE void submit() {
        if (!canSave())
            return;
        m_app->exportBackup(m_savesPrincipal && m_savesProfiles ? BackupScope::all()
                            : m_savesPrincipal                  ? BackupScope::principal()
                                                                : BackupScope::profiles());
    }

signals:
    void appChanged();
    void scopeChanged();

private:
    AppModel* m_app = nullptr;
    bool m_savesPrincipal = true;
    bool m_savesProfiles = true;
};

} // namespace selvane
