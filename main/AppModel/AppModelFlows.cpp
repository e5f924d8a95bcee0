// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT
//
// The slow actions: launching, with any quitting that it needs.

#include "AppModel/AppModel.h"

#include <algorithm>
#include <utility>

#include "AppModel/Background.h"
#include "desktop/AgentProcess.h"

namespace selvane {

/// What a launch has to do, worked out on the main thread.
struct AppModel::LaunchPlan {
    Profile profile;
    bool restores = false;                          ///< the accounts' folders must be put back first
    std::optional<ClaudeApp::Instance> alreadyOpen; ///< already runs this very profile
    std::vector<ClaudeApp::Instance> toClose;
};

struct AppModel::LaunchResult {
    bool hasQuit = true;
    Failure failure;
    QString news; ///< about items that no longer follow their source
};

bool AppModel::restoresFirst() const {
    try {
        return m_store.needsDesktopRestore();
    } catch (const std::exception&) { // the launch itself will say why
        return false;
    }
}

namespace {

QString interrupted(int sessions) {
    return sessions == 0   ? QString()
           : sessions == 1 ? AppModel::tr("1 sessione attiva verrà interrotta")
                           : AppModel::tr("%1 sessioni attive verranno interrotte").arg(sessions);
}

} // namespace

AppModel::CloseQuestion AppModel::closeQuestion(const Profile& target) const {
    const QString name = QString::fromStdString(target.meta.name);
    if (restoresFirst())
        return {.message = tr("Per passare alle istanze separate Claude va chiuso una volta e riaperto con "
                              "«%1». Le sessioni in corso verranno interrotte.")
                               .arg(name),
                .warning = {},
                .open = {}};
    const Profile* open = nullptr; // null if it isn't known
    std::optional<int> sessions;
    try {
        if (const auto copy = m_store.instance(target)) {
            const auto runs = [&](const Profile& each) { return m_store.runs(*copy, each); };
            const auto found = std::ranges::find_if(m_profiles, runs);
            open = found == m_profiles.end() ? nullptr : &*found;
            sessions = agentSessions(ProcInfo::all(), copy->pid());
        }
    } catch (const std::exception&) { // its record has become invalid meanwhile
    }
    CloseQuestion question;
    const QString other =
        open == nullptr ? tr("Un altro profilo") : "«" + QString::fromStdString(open->meta.name) + "»";
    question.message =
        tr("%1 usa lo stesso account Claude ed è aperto: per avviare «%2» va chiuso.").arg(other, name);
    if (!sessions)
        question.message += " " + tr("Le sessioni in corso verranno interrotte.");
    question.warning = interrupted(sessions.value_or(0));
    question.open = open == nullptr ? QString() : QString::fromStdString(open->id);
    return question;
}

AppModel::LaunchPlan AppModel::planFor(const Profile& profile) const {
    LaunchPlan plan{
        .profile = profile, .restores = m_store.needsDesktopRestore(), .alreadyOpen = {}, .toClose = {}};
    if (plan.restores) {
        plan.toClose = m_store.claudeInstances();
        return plan;
    }
    if (auto open = m_store.instance(profile)) {
        if (m_store.runs(*open, profile))
            plan.alreadyOpen = std::move(open);
        else
            plan.toClose.push_back(std::move(*open));
    }
    return plan;
}

void AppModel::startLaunch(const QString& id, LaunchStep step) {
    const Profile* wanted = profile(id);
    if (wanted == nullptr || m_launching == id || !isFree())
        return;
    try {
        LaunchPlan plan = planFor(*wanted);
        if (plan.alreadyOpen) {
            if (m_claude.activate(*plan.alreadyOpen))
                endIfWanted();
            else
                setNotice(tr("«%1» è già aperto: la sua finestra è tra quelle di Claude")
                              .arg(QString::fromStdString(wanted->meta.name)));
        } else if (step == LaunchStep::asked && offersSignIns(*wanted)) {
            setText(m_signInOffer, id, &AppModel::signInOfferChanged);
        } else if (!plan.toClose.empty() && step == LaunchStep::asked) {
            m_closeQuestion = closeQuestion(*wanted);
            setText(m_pendingLaunch, id, &AppModel::pendingLaunchChanged);
        } else {
            runLaunch(std::move(plan), step);
        }
    } catch (const std::exception& error) {
        report(error);
    }
}

/// Closes what must be closed, then launches. The work runs on another thread, on copies, and returns its
/// result to this one.
void AppModel::runLaunch(LaunchPlan plan, LaunchStep step) {
    const QString launching =
        tr("Avvio di Claude con «%1»…").arg(QString::fromStdString(plan.profile.meta.name));
    m_workProgress.clear();
    setText(m_busyMessage, plan.toClose.empty() ? launching : tr("Chiusura di Claude…"),
            &AppModel::busyMessageChanged);
    m_launching = QString::fromStdString(plan.profile.id);
    const auto work = [this, plan, step, launching, start = m_desktop.startVariables()]() -> LaunchResult {
        LaunchResult result;
        result.failure = failureOf([&] {
            if (!plan.toClose.empty())
                result.hasQuit = quitAll(plan, step == LaunchStep::forced);
            if (!result.hasQuit)
                return;
            QMetaObject::invokeMethod(
                this,
                [this, launching] {
                    // The work may have ended before this arrives; then we are no longer busy.
                    if (!m_busyMessage.isEmpty())
                        setText(m_busyMessage, launching, &AppModel::busyMessageChanged);
                },
                Qt::QueuedConnection);
            m_claude.launch(plan.profile, m_store, start);
            result.news = m_toldChanges.news(m_store, plan.profile);
        });
        return result;
    };
    m_work = runInBackground(this, work, [this, profile = plan.profile](const LaunchResult& result) {
        finishLaunch(profile, result);
    });
}

/// Runs on the other thread. Returns whether all copies are really gone, main processes and helpers. If
/// another Selvane has opened the next copy meanwhile, the launch will report that.
bool AppModel::quitAll(const LaunchPlan& plan, bool force) const {
    const auto haveGone = [&] {
        if (plan.restores)
            return m_claude.allProcesses(m_store.dataFolders()).empty();
        return std::ranges::all_of(plan.toClose,
                                   [&](const auto& copy) { return m_store.hasLeft(copy, plan.profile); });
    };
    return m_claude.quit(plan.toClose, force ? ClaudeApp::QuitKind::forced : ClaudeApp::QuitKind::polite,
                         ClaudeApp::kQuitTimeout, haveGone);
}

void AppModel::finishLaunch(const Profile& profile, const LaunchResult& result) {
    m_launching.clear();
    setText(m_busyMessage, {}, &AppModel::busyMessageChanged);
    if (!result.hasQuit) {
        setText(m_offerForceQuit, QString::fromStdString(profile.id), &AppModel::offerForceQuitChanged);
    } else if (result.failure) {
        setText(m_errorMessage, *result.failure, &AppModel::errorMessageChanged);
    } else {
        reload();
        if (!result.news.isEmpty())
            setNotice(result.news);
        endIfWanted();
    }
}

/// With the save dialog open, a backup is still wanted; and what was refused meanwhile must be read.
void AppModel::endIfWanted() {
    if (closeAfterLaunch() && m_archiveQuestions == 0 && m_errorMessage.isEmpty())
        m_desktop.endApplication();
}

void AppModel::confirmLaunch() {
    const QString id = std::exchange(m_pendingLaunch, {});
    emit pendingLaunchChanged();
    startLaunch(id, LaunchStep::confirmed);
}

void AppModel::cancelLaunch() {
    setText(m_pendingLaunch, {}, &AppModel::pendingLaunchChanged);
}

void AppModel::forceLaunch() {
    const QString id = std::exchange(m_offerForceQuit, {});
    emit offerForceQuitChanged();
    startLaunch(id, LaunchStep::forced);
}

void AppModel::cancelForceQuit() {
    setText(m_offerForceQuit, {}, &AppModel::offerForceQuitChanged);
}

} // namespace selvane
