// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "AppModel.h"

#include <QDate>
#include <QtConcurrent>

#include <algorithm>
#include <utility>

#include "model/LauncherError.h"
#include "platform/ErrorText.h"
#include "platform/Text.h"

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

QString quotedForShell(const std::string& text) {
    QString result;
    for (const QChar c : QString::fromStdString(text)) {
        if (QStringLiteral("\"$\\`").contains(c))
            result += '\\';
        result += c;
    }
    return '"' + result + '"';
}

} // namespace

/// What a launch has to do, found out on the main thread.
struct AppModel::LaunchPlan {
    Profile profile;
    bool restores = false;                          ///< the accounts' folders must be put in place first
    std::optional<ClaudeApp::Instance> alreadyOpen; ///< runs this very profile
    std::vector<ClaudeApp::Instance> toClose;
};

struct AppModel::LaunchResult {
    bool hasQuit = true;
    Failure failure;
};

AppModel::AppModel(ProfileStore& store, const ClaudeApp& claude, DesktopBridge& desktop,
                   Preferences& preferences, QObject* parent)
    : QObject(parent), m_store(store), m_claude(claude), m_desktop(desktop), m_preferences(preferences) {
    reload();
    const QString last = m_preferences.lastSelection();
    m_selection = profile(last) == nullptr ? QString::fromUtf8(Profile::kDefaultId) : last;
    connect(&m_desktop, &DesktopBridge::claudeCopiesChanged, this, &AppModel::refreshRunning);
}

AppModel::~AppModel() {
    // What runs on the other thread uses the store, which may go with us.
    m_work.waitForFinished();
}

const Profile* AppModel::profile(const QString& id) const {
    const std::string wanted = id.toStdString();
    for (const Profile& candidate : m_profiles) {
        if (candidate.id == wanted)
            return &candidate;
    }
    return nullptr;
}

void AppModel::setText(QString& member, const QString& value, void (AppModel::*changed)()) {
    if (member == value)
        return;
    member = value;
    emit(this->*changed)();
}

void AppModel::report(const std::exception& error) {
    setText(m_errorMessage, QString::fromStdString(describe(error)), &AppModel::errorMessageChanged);
}

void AppModel::setNotice(const QString& text) {
    setText(m_notice, text, &AppModel::noticeChanged);
    emit noticeShown();
}

void AppModel::clearNotice() {
    setText(m_notice, {}, &AppModel::noticeChanged);
}
void AppModel::clearError() {
    setText(m_errorMessage, {}, &AppModel::errorMessageChanged);
}

void AppModel::setCloseAfterLaunch(bool value) {
    if (closeAfterLaunch() == value)
        return;
    m_preferences.setCloseAfterLaunch(value);
    emit closeAfterLaunchChanged();
}

void AppModel::reload() {
    m_profiles = m_store.loadAll();
    ++m_revision;
    refreshRunning();
    emit reloaded();
    if (!m_selection.isEmpty() && profile(m_selection) == nullptr) {
        m_selection = QString::fromUtf8(Profile::kDefaultId);
        emit selectionChanged();
    }
}

void AppModel::refreshRunning() {
    auto ids = m_store.runningProfileIDs();
    if (ids == m_running)
        return;
    m_running = std::move(ids);
    emit runningChanged();
}

void AppModel::select(const QString& id) {
    if (!id.isEmpty())
        m_preferences.setLastSelection(id);
    setText(m_selection, id, &AppModel::selectionChanged);
}

void AppModel::perform(const std::function<void()>& action) {
    try {
        action();
    } catch (const std::exception& error) {
        report(error);
    }
    reload();
}

QString AppModel::closeMessage(const Profile& target) const {
    const QString name = QString::fromStdString(target.meta.name);
    if (m_store.needsDesktopRestore())
        return tr("Per passare alle istanze separate Claude va chiuso una volta e riaperto con «%1». Le "
                  "sessioni "
                  "in corso verranno interrotte.")
            .arg(name);
    QString other = tr("Un altro profilo");
    if (const auto open = m_store.instance(target)) {
        const auto runsIt = [&](const Profile& candidate) { return m_store.runs(*open, candidate); };
        const auto found = std::find_if(m_profiles.begin(), m_profiles.end(), runsIt);
        if (found != m_profiles.end())
            other = "«" + QString::fromStdString(found->meta.name) + "»";
    }
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

/// Closes what must be closed, then launches. The work runs on another thread, on values of its own; what it
/// found comes back to this one.
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
                    // The work can have ended before this arrives; then nothing is busy any more.
                    if (!m_busyMessage.isEmpty())
                        setText(m_busyMessage, launching, &AppModel::busyMessageChanged);
                },
                Qt::QueuedConnection);
            m_claude.launch(plan.profile, m_store);
        });
        return result;
    };
    QFuture<LaunchResult> running = QtConcurrent::run(work);
    m_work = QFuture<void>(running);
    running.then(
        this, [this, profile = plan.profile](const LaunchResult& result) { finishLaunch(profile, result); });
}

/// On the working thread. Whether all copies have really gone: main processes and helpers.
bool AppModel::quitAll(const LaunchPlan& plan, bool force) const {
    const auto haveGone = [&] {
        return plan.restores
                   ? m_claude.allProcesses({m_store.liveDesktopDir(), m_store.desktopStore()}).empty()
                   : !m_store.desktopDataInUse(m_store.desktopDataDir(plan.profile));
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

void AppModel::importSessions(const std::vector<CodeSession>& sessions, const Profile& source,
                              const Profile& target) {
    perform([&] {
        const ImportCount count = m_store.importSessions(sessions, source, target);
        if (count.pending < 1)
            setNotice(tr("%1 sessioni copiate").arg(count.copied));
        else
            setNotice(tr("%1 copiate, %2 aggiunte al prossimo avvio di «%3»")
                          .arg(count.copied)
                          .arg(count.pending)
                          .arg(QString::fromStdString(target.meta.name)));
    });
}

void AppModel::create(const ProfileRequest& request) {
    try {
        const Profile made = m_store.create(request.profile);
        if (request.copySessions && request.profile.from) {
            const Profile& source = *request.profile.from;
            const ImportCount count = m_store.importSessions(m_store.codeSessions(source), source, made);
            setNotice(count.pending < 1
                          ? tr("%1 sessioni copiate").arg(count.copied)
                          : tr("%1 sessioni verranno aggiunte dopo il primo login").arg(count.pending));
        }
        reload();
        select(QString::fromStdString(made.id));
    } catch (const std::exception& error) {
        report(error);
        reload();
    }
}

void AppModel::setAccount(const QString& account, const QString& id) {
    const Profile* current = profile(id);
    if (current == nullptr)
        return;
    perform([&] {
        Profile changed = *current;
        changed.meta.account = account.isEmpty() ? std::nullopt : std::optional(account.toStdString());
        m_store.saveMeta(changed);
    });
}

void AppModel::sync(const QString& id) {
    const Profile* current = profile(id);
    if (current == nullptr)
        return;
    perform([&] {
        const SyncReport report = m_store.sync(*current);
        setNotice(report.isEmpty() ? tr("Già sincronizzato")
                                   : tr("Aggiunti %1, rimossi %2 collegamenti")
                                         .arg(report.added.size())
                                         .arg(report.removed.size()));
    });
}

void AppModel::copyTerminalCommand(const QString& id) {
    perform([&] {
        const std::filesystem::path helper = m_store.installTerminalHelper();
        m_desktop.copyToClipboard(quotedForShell(helper.string()) + ' ' + id);
        setNotice(tr("Comando copiato negli appunti"));
    });
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
    QFuture<Outcome> running = QtConcurrent::run(work);
    m_work = QFuture<void>(running);
    running.then(this, [this](const Outcome& outcome) {
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

void AppModel::revealProfile(const QString& id) {
    if (const Profile* shown = profile(id))
        reveal(shown->configDir);
}

void AppModel::reveal(const std::filesystem::path& item) {
    m_desktop.reveal(item);
}

void AppModel::open(const std::filesystem::path& file) {
    const FileManager files;
    if (files.existsFollowingLinks(file)) {
        m_desktop.open(file);
        return;
    }
    perform([&] {
        files.write(file, "");
        m_desktop.open(file);
    });
}

} // namespace selvane
