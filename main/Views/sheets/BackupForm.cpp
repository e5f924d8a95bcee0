// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/sheets/BackupForm.h"

#include "AppModel/Following.h"

namespace selvane {

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
