// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/sheets/BackupForm.h"

namespace selvane {

void BackupForm::setApp(AppModel* app) {
    if (m_app == app)
        return;
    if (m_app != nullptr)
        m_app->disconnect(this);
    m_app = app;
    if (m_app != nullptr)
        connect(m_app, &AppModel::claudeCopiesChanged, this, &BackupForm::claudeRunsChanged);
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
