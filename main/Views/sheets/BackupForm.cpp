// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/sheets/BackupForm.h"

#include <algorithm>

#include "AppModel/Following.h"
#include "platform/files/NormalizedPath.h"

namespace selvane {

BackupForm::BackupForm(QObject* parent) : QObject(parent) {
    connect(this, &BackupForm::scopeChanged, this, &BackupForm::canSaveChanged);
    connect(this, &BackupForm::claudeRunsChanged, this, &BackupForm::canSaveChanged);
}

/// Whether a copy of Claude Desktop uses an account that would be saved.
bool BackupForm::isOpen() const {
    if (m_app == nullptr)
        return false;
    const ProfileStore& store = m_app->store();
    const std::string principal = normalizedPath(store.liveDesktopDir());
    const std::string profiles = normalizedPath(store.desktopStore()) + '/';
    return std::ranges::any_of(store.claudeInstances(), [&](const ClaudeApp::Instance& copy) {
        return (m_savesPrincipal && copy.dataDir == principal) ||
               (m_savesProfiles && copy.dataDir.starts_with(profiles));
    });
}

void BackupForm::setApp(AppModel* app) {
    const auto connectTo = [this](AppModel& followed) {
        connect(&followed, &AppModel::claudeCopiesChanged, this, &BackupForm::claudeRunsChanged);
    };
    if (!follow(app, m_app, this, connectTo))
        return;
    emit appChanged();
    emit claudeRunsChanged();
}

bool BackupForm::claudeRuns() const {
    return m_app != nullptr && !m_app->store().claudeInstances().empty();
}

void BackupForm::submit() {
    if (!canSave())
        return;
    m_app->exportBackup(m_savesPrincipal && m_savesProfiles ? BackupScope::all()
                        : m_savesPrincipal                  ? BackupScope::principal()
                                                            : BackupScope::profiles());
}

} // namespace selvane
