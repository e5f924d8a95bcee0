// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "AppModel/AppModel.h"

#include <QPointer>

#include <chrono>
#include <utility>

#include "AppModel/Wording.h"
#include "platform/text/Text.h"

namespace selvane {
namespace {

QString changedLinks(qsizetype added, qsizetype removed) {
    const QString both = added > 0 && removed > 0
                             ? counted(added, AppModel::tr("Aggiunto 1, "), AppModel::tr("Aggiunti %1, "))
                             : QString();
    if (removed > 0)
        return both.isEmpty() ? counted(removed, AppModel::tr("Rimosso 1 collegamento"),
                                        AppModel::tr("Rimossi %1 collegamenti"))
                              : both + counted(removed, AppModel::tr("rimosso 1 collegamento"),
                                               AppModel::tr("rimossi %1 collegamenti"));
    return added == 0 ? AppModel::tr("Già sincronizzato")
                      : counted(added, AppModel::tr("Aggiunto 1 collegamento"),
                                AppModel::tr("Aggiunti %1 collegamenti"));
}

/// Writing waits for the disk, which would be felt by somebody who moves through the list.
constexpr std::chrono::seconds kSelectionSaving(1);

} // namespace

AppModel::AppModel(ProfileStore& store, const ClaudeApp& claude, DesktopBridge& desktop,
                   Preferences& preferences, QObject* parent)
    : QObject(parent), m_store(store), m_claude(claude), m_desktop(desktop), m_preferences(preferences),
      m_entries(*this, claude.entries(), desktop) {
    m_selectionSaving.setSingleShot(true);
    m_selectionSaving.setInterval(kSelectionSaving);
    connect(&m_selectionSaving, &QTimer::timeout, this, &AppModel::saveSelection);
    reload();
    const QString last = m_preferences.lastSelection();
    m_selection = profile(last) == nullptr ? QString::fromUtf8(Profile::kDefaultId) : last;
    connect(&m_desktop, &DesktopBridge::claudeCopiesChanged, this, &AppModel::refreshRunning);
    connect(&m_desktop, &DesktopBridge::claudeCopiesChanged, this, &AppModel::claudeCopiesChanged);
}

AppModel::~AppModel() {
    if (m_selectionSaving.isActive())
        saveSelection();
    // Work on the other thread uses the store, which may be destroyed right after this.
    m_work.waitForFinished();
}

QString AppModel::nameOf(const QString& id) const {
    const Profile* const found = profile(id);
    return found == nullptr ? QString() : QString::fromStdString(found->meta.name);
}

LookValue AppModel::lookOf(const QString& id) const {
    const Profile* const found = profile(id);
    return found == nullptr ? LookValue() : LookValue(found->meta.look);
}

const Profile* AppModel::profile(const QString& id) const {
    const std::string wanted = id.toStdString();
    for (const Profile& candidate : m_profiles) {
        if (candidate.id == wanted)
            return &candidate;
    }
    return nullptr;
}

QString AppModel::builtInName() const {
    const Profile* builtIn = profile(QString::fromUtf8(Profile::kDefaultId));
    return builtIn == nullptr ? QString() : QString::fromStdString(builtIn->meta.name);
}

QString AppModel::firstOther(const QString& id) const {
    for (const Profile& candidate : m_profiles) {
        if (QString other = QString::fromStdString(candidate.id); other != id)
            return other;
    }
    return {};
}

void AppModel::setText(QString& member, const QString& value, void (AppModel::*changed)()) {
    if (member == value)
        return;
    member = value;
    emit(this->*changed)();
}

void AppModel::setError(const QString& text) {
    setText(m_errorMessage, text, &AppModel::errorMessageChanged);
}

void AppModel::report(const std::exception& error) {
    setError(explained(error));
}

void AppModel::setNotice(const QString& text) {
    tell(text, {});
}

void AppModel::tell(const QString& text, Offer offer) {
    const bool couldTakeBack = canTakeBack();
    m_offer = std::move(offer);
    if (m_notice == text && canTakeBack() != couldTakeBack)
        emit noticeChanged();
    setText(m_notice, text, &AppModel::noticeChanged);
    emit noticeShown();
}

void AppModel::clearNotice() {
    m_offer = {};
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

void AppModel::setRecentFirst(bool value) {
    if (recentFirst() == value)
        return;
    m_preferences.setRecentFirst(value);
    emit recentFirstChanged();
}

void AppModel::reload() {
    m_profiles = m_store.loadAll();
    auto damaged = m_store.damagedProfiles();
    if (damaged != m_damaged) {
        m_damaged = std::move(damaged);
        emit damagedChanged();
    }
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
    if (id == m_selection)
        return;
    setText(m_selection, id, &AppModel::selectionChanged);
    if (id.isEmpty())
        return;
    m_unsavedSelection = id;
    m_selectionSaving.start();
}

void AppModel::saveSelection() {
    m_selectionSaving.stop();
    m_preferences.setLastSelection(m_unsavedSelection);
}

void AppModel::perform(const std::function<void()>& action) {
    try {
        action();
    } catch (const std::exception& error) {
        report(error);
    }
    reload();
}

void AppModel::setAccount(const QString& account, const QString& id) {
    const Profile* current = profile(id);
    if (current == nullptr)
        return;
    performSoon(tr("Cambio di account…"), [account = account.toStdString(), profile = *current](auto& store) {
        store.changeMeta(profile, [&](ProfileMeta& meta) {
            meta.account = account.empty() ? std::nullopt : std::optional(account);
        });
        return QString();
    });
}

void AppModel::sync(const QString& id) {
    const Profile* current = profile(id);
    if (current == nullptr)
        return;
    performSoon(tr("Sincronizzazione…"), [profile = *current, &told = m_toldChanges](ProfileStore& store) {
        const SyncReport report = store.sync(profile);
        const QString links = changedLinks(static_cast<qsizetype>(report.added.size()),
                                           static_cast<qsizetype>(report.removed.size()));
        const QString news = told.news(store, profile);
        return news.isEmpty() ? links : links + " · " + news;
    });
}

void AppModel::copyCommand(const std::function<std::string(const std::filesystem::path& helper)>& make) {
    perform([&] {
        const QString command = QString::fromStdString(make(m_store.installTerminalHelper()));
        setNotice(m_desktop.copyToClipboard(command)
                      ? tr("Comando copiato negli appunti")
                      : tr("Comando copiato: incollalo prima di chiudere Selvane"));
    });
}

void AppModel::copyTerminalCommand(const QString& id) {
    copyCommand(
        [&](const auto& helper) { return text::quotedForShell(helper.string()) + ' ' + id.toStdString(); });
}

void AppModel::revealProfile(const QString& id) {
    if (const Profile* shown = profile(id))
        reveal(shown->configDir);
}

QStringList AppModel::damaged() const {
    QStringList names;
    for (const DamagedProfile& profile : m_damaged)
        names.append(QString::fromStdString(text::singleLine(profile.id)));
    return names;
}

void AppModel::revealDamaged(int index) {
    reveal(m_damaged.at(static_cast<std::size_t>(index)).configDir);
}

void AppModel::repairDamaged(int index) {
    const std::string id = m_damaged.at(static_cast<std::size_t>(index)).id;
    performSoon(tr("Riparazione…"), [id](ProfileStore& store) {
        store.repair(id);
        return tr("«%1» è di nuovo fra i profili").arg(QString::fromStdString(text::singleLine(id)));
    });
}

/// For the desktop to call when no program shows or opens this item.
std::function<void()> AppModel::sayUnreached(const QString& problem, const std::filesystem::path& item) {
    const QString place = QString::fromStdString(text::singleLine(item.string()));
    return [model = QPointer(this), sentence = problem.arg(place)] {
        if (model)
            model->setText(model->m_errorMessage, sentence, &AppModel::errorMessageChanged);
    };
}

void AppModel::reveal(const std::filesystem::path& item) {
    m_desktop.reveal(item,
                     sayUnreached(tr("Nessun programma può mostrare la cartella. Si trova qui: %1"), item));
}

bool AppModel::compare(const std::filesystem::path& first, const std::filesystem::path& second) {
    bool isShown = true; // after a failure, which is reported, too
    perform([&] { isShown = m_desktop.compare(first, second); });
    return isShown;
}

void AppModel::open(const std::filesystem::path& file) {
    const auto unreached = sayUnreached(tr("Nessun programma può aprire il file. Si trova qui: %1"), file);
    perform([&] {
        const FileManager files;
        if (!files.isPresent(file)) {
            files.createFolders(file.parent_path(), Privacy::ownerOnly);
            files.write(file, file.extension() == ".json" ? "{}\n" : "");
        }
        m_desktop.open(file, unreached);
    });
}

} // namespace selvane
