// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/SessionImportForm.h"

#include <QtConcurrent>

namespace selvane {

void SessionImportForm::begin() {
    for (const Profile& candidate : m_app->profiles()) {
        const QString id = QString::fromStdString(candidate.id);
        if (id != m_target) {
            setSource(id);
            return;
        }
    }
}

/// An account can have thousands of sessions: they are read on another thread.
void SessionImportForm::setSource(const QString& id) {
    m_source = id;
    emit sourceChanged();
    show({});
    const Profile* source = m_app->profile(id);
    if (source == nullptr)
        return;
    setLoading(true);
    const auto read = [&store = m_app->store(), profile = *source]() -> std::vector<CodeSession> {
        try {
            return store.codeSessions(profile);
        } catch (const std::exception&) { // an account that can't be told has no sessions
            return {};
        }
    };
    QtConcurrent::run(read).then(this,
                                 [this, request = ++m_request](const std::vector<CodeSession>& sessions) {
                                     if (request != m_request)
                                         return;
                                     show(sessions);
                                     setLoading(false);
                                 });
}

void SessionImportForm::setLoading(bool isLoading) {
    if (m_isLoading == isLoading)
        return;
    m_isLoading = isLoading;
    emit isLoadingChanged();
}

void SessionImportForm::show(std::vector<CodeSession> sessions) {
    m_sessions = std::move(sessions);
    std::vector<ChoiceListModel::Entry> entries;
    for (const CodeSession& session : m_sessions)
        entries.push_back({session.file.string(), QString::fromStdString(session.title),
                           QString::fromStdString(session.cwd), false});
    m_choices.setEntries(std::move(entries));
}

void SessionImportForm::submit() {
    const Profile* source = m_app->profile(m_source);
    const Profile* target = m_app->profile(m_target);
    const std::set<std::string> files = m_choices.chosenKeys();
    if (source == nullptr || target == nullptr || files.empty())
        return;
    std::vector<CodeSession> chosen;
    for (const CodeSession& session : m_sessions) {
        if (files.contains(session.file.string()))
            chosen.push_back(session);
    }
    // Copies: importing reloads the profiles that these point to.
    m_app->importSessions(chosen, Profile(*source), Profile(*target));
}

} // namespace selvane
