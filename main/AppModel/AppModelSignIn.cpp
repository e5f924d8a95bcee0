// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT
//
// Sign-ins that end in the browser: which copy of Claude Desktop gets the link.

#include "AppModel/AppModel.h"

#include <utility>

#include "AppModel/Background.h"
#include "AppModel/QtText.h"

namespace selvane {

void AppModel::receiveSignIn(const QByteArray& request) {
    const auto link = SignInLink::from(request.toStdString());
    if (!link)
        return;
    SignInTargets found = m_store.signInTargets();
    if (found.targets.size() == 1 && m_busyMessage.isEmpty()) {
        handOver(*link, found.targets.front());
        return;
    }
    m_signIn = {*link, std::move(found)};
    emit signInChanged();
}

QStringList AppModel::signInNames() const {
    QStringList names;
    for (const SignInTarget& target : m_signIn ? m_signIn->to.targets : std::vector<SignInTarget>())
        names += qtText(target.profile.meta.name);
    return names;
}

QStringList AppModel::signInDetails() const {
    QStringList details;
    for (const SignInTarget& target : m_signIn ? m_signIn->to.targets : std::vector<SignInTarget>()) {
        const QString login = target.isSignedIn ? tr("ha già un accesso") : tr("non ha ancora un accesso");
        details += (target.copy ? tr("Aperto, %1") : tr("Si avvia; %1")).arg(login);
    }
    return details;
}

int AppModel::signInPreset() const {
    return m_signIn ? static_cast<int>(m_signIn->to.preset) : -1;
}

QString AppModel::signInLink() const {
    return m_signIn ? qtText(m_signIn->link.shown()) : QString();
}

void AppModel::answerSignIn(int index) {
    if (!m_signIn || !isFree())
        return;
    const auto [link, to] = *std::exchange(m_signIn, std::nullopt);
    emit signInChanged();
    if (index >= 0 && index < static_cast<int>(to.targets.size()))
        handOver(link, to.targets[static_cast<std::size_t>(index)]);
}

/// On another thread, as launching takes a while.
void AppModel::handOver(const SignInLink& link, const SignInTarget& target) {
    const QString name = qtText(target.profile.meta.name);
    m_workProgress.clear();
    setText(m_busyMessage, tr("Accesso con «%1»…").arg(name), &AppModel::busyMessageChanged);
    const auto work = [this, link, target, start = m_desktop.startVariables()]() -> Failure {
        return failureOf([&] {
            if (target.copy)
                m_claude.passOn(link, *target.copy, m_store.liveDesktopDir());
            else
                m_claude.launch(target.profile, m_store, start, link);
        });
    };
    m_work = runInBackground(this, work, [this, name](const Failure& failure) {
        setText(m_busyMessage, {}, &AppModel::busyMessageChanged);
        if (failure) {
            setText(m_errorMessage, *failure, &AppModel::errorMessageChanged);
            return;
        }
        reload();
        setNotice(tr("Accesso passato a «%1»").arg(name));
        endIfWanted();
    });
}

bool AppModel::receivesSignIns() const {
    if (!m_receivesSignIns) // looked up when a window first shows it
        m_receivesSignIns = m_desktop.receivesSignIns();
    return *m_receivesSignIns;
}

void AppModel::setReceivesSignIns(bool value) {
    perform([&] { m_desktop.setReceivesSignIns(value); });
    m_receivesSignIns = m_desktop.receivesSignIns();
    emit receivesSignInsChanged();
}

/// Whether this is the moment to offer it: once, before a new login is made.
bool AppModel::offersSignIns(const Profile& profile) const {
    return !profile.isDefault() && profile.accountOwner() == profile.id && !profile.meta.lastLaunched &&
           m_desktop.canReceiveSignIns() && !m_preferences.signInsOffered() && !receivesSignIns();
}

void AppModel::answerSignInOffer(bool accepted) {
    const QString id = std::exchange(m_signInOffer, {});
    emit signInOfferChanged();
    m_preferences.setSignInsOffered();
    if (accepted)
        setReceivesSignIns(true);
    if (m_errorMessage.isEmpty())
        startLaunch(id, LaunchStep::asked);
}

} // namespace selvane
