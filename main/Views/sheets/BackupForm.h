// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QQmlEngine>

#include "AppModel/AppModel.h"

namespace selvane {

/// The state of the sheet that chooses what to back up.
class BackupForm : public QObject {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(selvane::AppModel* app READ app WRITE setApp NOTIFY appChanged REQUIRED)
    Q_PROPERTY(bool savesPrincipal MEMBER m_savesPrincipal NOTIFY scopeChanged)
    Q_PROPERTY(bool savesProfiles MEMBER m_savesProfiles NOTIFY scopeChanged)
    /// Whether anything is chosen and Claude Desktop has none of it open.
    Q_PROPERTY(bool canSave READ canSave NOTIFY canSaveChanged)
    Q_PROPERTY(bool claudeRuns READ claudeRuns NOTIFY claudeRunsChanged)

public:
    explicit BackupForm(QObject* parent = nullptr);

    AppModel* app() const { return m_app; }
    void setApp(AppModel* app);
    bool canSave() const { return (m_savesPrincipal || m_savesProfiles) && !isOpen(); }
    bool claudeRuns() const;
    /// Does nothing unless it can save.
    Q_INVOKABLE void submit();

signals:
    void appChanged();
    void scopeChanged();
    void claudeRunsChanged();
    void canSaveChanged();

private:
    bool isOpen() const;

    AppModel* m_app = nullptr;
    bool m_savesPrincipal = true;
    bool m_savesProfiles = true;
};

} // namespace selvane
