// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT
//
// The slow actions: launching, with any quitting that it needs, and backing up.

#include "AppModel/AppModel.h"

#include <QDate>
#include <QFutureWatcher>
#include <QtConcurrent>

#include <algorithm>
#include <utility>

#include "platform/text/ErrorText.h"
#include "platform/text/Text.h"

namespace selvane {
namespace {

/// The outcome of work on another thread: nothing, or the sentence that says why it failed.
using Failure = std::optional<QString>;

Failure failureOf(const std::function<void()>& work) {
    try {
        work();
        return std::nullopt;
    } catch (const std::exception& error) {
        return QString::fromStdString(describe(error));
    }
}

/// Runs `work` on another thread and passes its result to `done` on this one, unless `owner` is gone by then.
template <typename Work, typename Done>
QFuture<void> runInBackground(QObject* owner, Work work, Done done) {
    auto future = QtConcurrent::run(std::move(work));
    auto* watcher = new QFutureWatcher<decltype(future.result())>(owner);
    QObject::connect(watcher, &QFutureWatcherBase::finished, owner, [watcher, done = std::move(done)] {
        watcher->deleteLater();
        done(watcher->result());
    });
    watcher->setFuture(future);
    return QFuture<void>(future);
}

} // namespace

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
};

/// The profile with which another profile's account is open; null if unknown.
const Profile* AppModel::openProfile(const Profile& sameAccount) const {
    try {
        const auto copy = m_store.instance(sameAccount);
        for (const Profile& candidate : m_profiles) {
            if (copy && m_store.runs(*copy, candidate))
                return &candidate;
        }
    } catch (const std::exception&) { // its record has become invalid meanwhile
    }
    return nullptr;
}

QString AppModel::closeMessage(const Profile& target) const {
    const QString name = QString::fromStdString(target.meta.name);
    if (m_store.needsDesktopRestore())
        return tr("Per passare alle istanze separate Claude va chiuso una volta e riaperto con «%1». Le "
                  "sessioni in corso verranno interrotte.")
            .arg(name);
    const Profile* open = openProfile(target);
    const QString other =
        open == nullptr ? tr("Un altro profilo") : "«" + QString::fromStdString(open->meta.name) + "»";
    return tr("%1 usa lo stesso account Claude ed è aperto: per avviare «%2» va chiuso. Le sessioni in corso "
              "verranno interrotte.")
        .arg(other, name);
}

QString AppModel::pendingCloseMessage() const {
    const Profile* waiting = profile(m_pendingLaunch);
    return waiting == nullptr ? QString() : closeMessage(*waiting);
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
    if (wanted == nullptr || !m_busyMessage.isEmpty())
        return;
    try {
        LaunchPlan plan = planFor(*wanted);
        if (plan.alreadyOpen) {
            m_claude.activate(*plan.alreadyOpen);
            endIfWanted();
        } else if (!plan.toClose.empty() && step == LaunchStep::asked) {
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
    setText(m_busyMessage, plan.toClose.empty() ? launching : tr("Chiusura di Claude…"),
            &AppModel::busyMessageChanged);
    const auto work = [this, plan, step, launching]() -> LaunchResult {
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
            m_claude.launch(plan.profile, m_store);
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
    setText(m_busyMessage, {}, &AppModel::busyMessageChanged);
    if (!result.hasQuit) {
        setText(m_offerForceQuit, QString::fromStdString(profile.id), &AppModel::offerForceQuitChanged);
    } else if (result.failure) {
        setText(m_errorMessage, *result.failure, &AppModel::errorMessageChanged);
    } else {
        reload();
        endIfWanted();
    }
}

void AppModel::endIfWanted() {
    if (closeAfterLaunch())
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

void AppModel::exportBackup(BackupScope scope) {
    const QString name = tr("Backup Claude %1.zip").arg(QDate::currentDate().toString(Qt::ISODate));
    m_desktop.askForArchive(name, [this, scope](const std::optional<std::filesystem::path>& archive) {
        if (archive)
            runBackup(scope, *archive);
    });
}

void AppModel::runBackup(BackupScope scope, const std::filesystem::path& archive) {
    setText(m_busyMessage, tr("Backup in corso…"), &AppModel::busyMessageChanged);
    struct Outcome {
        BackupResult result;
        Failure failure;
    };
    const auto work = [this, scope, archive] {
        Outcome outcome;
        outcome.failure = failureOf([&] { outcome.result = m_store.backup(scope, archive); });
        return outcome;
    };
    m_work = runInBackground(this, work, [this](const Outcome& outcome) {
        setText(m_busyMessage, {}, &AppModel::busyMessageChanged);
        if (outcome.failure) {
            setText(m_errorMessage, *outcome.failure, &AppModel::errorMessageChanged);
            return;
        }
        const QString size = QString::fromStdString(text::byteCount(outcome.result.size));
        setNotice(outcome.result.skippedFiles
                      ? tr("Backup creato (%1); alcuni file non leggibili sono stati saltati").arg(size)
                      : tr("Backup creato (%1)").arg(size));
        m_desktop.reveal(outcome.result.archive);
    });
}

} // namespace selvane
