// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/sheets/SessionImportForm.h"

#include <QPointer>
#include <QtConcurrent>

#include "AppModel/QtText.h"
#include "Views/sheets/ConversationTexts.h"
#include "platform/text/Text.h"

namespace selvane {

SessionImportForm::SessionImportForm(QObject* parent) : QObject(parent) {
    connect(&m_reading, &QFutureWatcherBase::finished, this, [this] {
        if (m_reading.isCanceled())
            return;
        setLoading(false);
        show(m_reading.result());
    });
}

/// An account can have thousands of sessions, so they are read on another thread.
void SessionImportForm::componentComplete() {
    connect(m_app, &AppModel::reloaded, this, &SessionImportForm::follow);
    setSource(m_app->firstOther(m_target));
}

void SessionImportForm::setSource(const QString& id) {
    m_source = id;
    emit sourceChanged();
    m_sessions.clear();
    m_choices.setEntries({});
    setLoading(m_app->profile(id) != nullptr);
    list();
}

void SessionImportForm::follow() {
    if (m_app->profile(m_source) == nullptr)
        setSource(m_app->firstOther(m_target));
    else
        list();
}

void SessionImportForm::list() {
    const Profile* source = m_app->profile(m_source);
    m_reading.setFuture({}); // drop the result for another source
    if (source == nullptr)
        return;
    const Profile* target = m_app->profile(m_target);
    const auto read = [&store = m_app->store(), profile = *source,
                       into = target == nullptr ? *source : *target]() -> Listed {
        try {
            std::vector<CodeSession> sessions = store.codeSessions(profile);
            std::vector<SessionState> states = sessionStates(store, sessions, profile, into);
            return {std::move(sessions), std::move(states)};
        } catch (const std::exception&) { // an invalid account has no sessions
            return {};
        }
    };
    m_reading.setFuture(QtConcurrent::run(&m_readers, read));
}

void SessionImportForm::setLoading(bool isLoading) {
    if (m_isLoading == isLoading)
        return;
    m_isLoading = isLoading;
    emit isLoadingChanged();
}

QString SessionImportForm::folderOf(const CodeSession& session) const {
    const std::string home = m_app->store().home().string() + '/';
    return QString::fromStdString(session.cwd.starts_with(home) ? "~/" + session.cwd.substr(home.size())
                                                                : session.cwd);
}

void SessionImportForm::show(Listed listed) {
    m_sessions = std::move(listed.sessions);
    std::vector<ChoiceListModel::Entry> entries;
    for (std::size_t i = 0; i < m_sessions.size(); ++i) {
        const CodeSession& session = m_sessions[i];
        const SessionState& state = listed.states.at(i);
        QStringList facts = {activityText(session.lastActivity),
                             state.size > 0 ? qtText(text::byteCount(state.size)) : QString()};
        facts.removeAll(QString());
        entries.push_back({session.file, QString::fromStdString(session.title), folderOf(session), false,
                           facts.join(QStringLiteral(" · ")), state.isInTarget ? tr("già qui") : QString()});
    }
    m_choices.updateEntries(std::move(entries));
}

void SessionImportForm::submit() {
    const Profile* source = m_app->profile(m_source);
    const Profile* target = m_app->profile(m_target);
    const std::set<std::string> files = m_choices.chosenKeys();
    if (source == nullptr || target == nullptr || files.empty())
        return;
    std::vector<CodeSession> chosen;
    for (const CodeSession& session : m_sessions) {
        if (files.contains(session.file))
            chosen.push_back(session);
    }
    m_app->importSessions(chosen, *source, *target, [form = QPointer(this)] {
        if (form)
            emit form->succeeded();
    });
}

} // namespace selvane
