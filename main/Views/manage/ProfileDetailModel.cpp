// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/manage/ProfileDetailModel.h"

#include <QtConcurrent>

#include <algorithm>

#include "AppModel/Following.h"
#include "AppModel/QtText.h"
#include "AppModel/Wording.h"

namespace selvane {

ProfileDetailModel::ProfileDetailModel(QObject* parent) : QObject(parent) {
    for (const Component component : kComponents)
        (isCollection(component) ? m_collections : m_files).append(new ComponentModel(component, this));
    connect(&m_contents, &QFutureWatcherBase::finished, this, &ProfileDetailModel::takeContents);
    connect(&m_counts, &QFutureWatcherBase::finished, this, &ProfileDetailModel::takeCounts);
}

void ProfileDetailModel::setApp(AppModel* app) {
    const auto connectTo = [this](AppModel& followed) {
        connect(&followed, &AppModel::reloaded, this, &ProfileDetailModel::update);
        connect(&followed, &AppModel::selectionChanged, this, &ProfileDetailModel::update);
        connect(&followed, &AppModel::runningChanged, this, &ProfileDetailModel::runningChanged);
        connect(&followed, &AppModel::runningChanged, this, &ProfileDetailModel::accountChanged);
    };
    if (!follow(app, m_app, this, connectTo))
        return;
    update();
    emit appChanged();
}

void ProfileDetailModel::update() {
    const Profile* selected = m_app == nullptr ? nullptr : m_app->selected();
    const bool isSame = m_profile && selected != nullptr && m_profile->id == selected->id;
    m_profile = selected == nullptr ? std::nullopt : std::optional(*selected);
    if (!isSame)
        m_sessions = {};
    for (ComponentModel* component : components())
        component->setProfile(m_app, selected);
    emit profileChanged();
    emit runningChanged();
    emit accountChanged();
    emit sessionsChanged();
    m_readers.clear();
    m_contents.setFuture({});
    m_counts.setFuture({});
    m_awaited = m_profile ? 2 : 0;
    if (m_profile) {
        readComponents();
        countSessions();
    }
}

void ProfileDetailModel::readComponents() {
    const Profile* from = source();
    const auto read = [&store = m_app->store(), profile = *m_profile,
                       source = from == nullptr ? std::nullopt : std::optional(*from)] {
        Contents contents;
        for (const Component component : kComponents)
            contents.push_back(ComponentModel::read(store, profile, source, component));
        return contents;
    };
    m_contents.setFuture(QtConcurrent::run(&m_readers, read));
}

void ProfileDetailModel::takeContents() {
    if (m_contents.isCanceled())
        return;
    --m_awaited;
    Contents contents = m_contents.future().takeResult();
    auto content = contents.begin();
    for (ComponentModel* component : components())
        component->setContent(std::move(*content++));
}

void ProfileDetailModel::countSessions() {
    const auto count = [&store = m_app->store(), profile = *m_profile]() -> SessionCounts {
        try {
            return {static_cast<int>(store.codeSessions(profile).size()), store.pendingSessionCount(profile)};
        } catch (const std::exception&) { // an invalid account has no sessions
            return {0, 0};
        }
    };
    m_counts.setFuture(QtConcurrent::run(&m_readers, count));
}

void ProfileDetailModel::takeCounts() {
    if (m_counts.isCanceled())
        return;
    --m_awaited;
    m_sessions = m_counts.result();
    emit sessionsChanged();
}

const Profile* ProfileDetailModel::source() const {
    return !m_profile || !m_profile->meta.source ? nullptr : m_app->profile(qtText(*m_profile->meta.source));
}

QString ProfileDetailModel::profileId() const {
    return m_profile ? qtText(m_profile->id) : QString();
}

QString ProfileDetailModel::name() const {
    return !m_profile ? QString() : qtText(m_profile->meta.name);
}

QString ProfileDetailModel::summary() const {
    return !m_profile ? QString() : qtText(m_profile->meta.summary);
}

LookValue ProfileDetailModel::look() const {
    return !m_profile ? LookValue() : LookValue(m_profile->meta.look);
}

QString ProfileDetailModel::folder() const {
    return !m_profile ? QString() : qtText(m_profile->configDir.string());
}

bool ProfileDetailModel::isBuiltIn() const {
    return m_profile && m_profile->isDefault();
}

bool ProfileDetailModel::hasSource() const {
    return m_profile && m_profile->meta.source.has_value();
}

QString ProfileDetailModel::sourceName() const {
    if (const Profile* from = source())
        return qtText(from->meta.name);
    return hasSource() ? qtText(*m_profile->meta.source) : QString();
}

QString ProfileDetailModel::builtInName() const {
    return m_profile ? m_app->builtInName() : QString();
}

bool ProfileDetailModel::isRunning() const {
    return m_profile && m_app->running().contains(m_profile->id);
}

QString ProfileDetailModel::account() const {
    if (!m_profile)
        return {};
    const QString open = isRunning() ? tr(" · aperto in Claude") : QString();
    if (m_profile->isDefault())
        return tr("Cartella dati normale di Claude Desktop") + open;
    if (m_profile->accountOwner() != m_profile->id) {
        const Profile* owner = m_app->profile(qtText(m_profile->accountOwner()));
        return tr("Usa l'account di «%1»")
            .arg(qtText(owner == nullptr ? m_profile->accountOwner() : owner->meta.name));
    }
    bool hasData = true;
    try {
        hasData = m_app->store().hasDesktopData(*m_profile);
    } catch (const std::exception&) { // it may well be there
    }
    return hasData ? tr("Cartella dati propria nel launcher") + open
                   : tr("Account proprio — login al primo avvio");
}

/// The other profiles with an account that this one can use, always including the one in use.
std::vector<const Profile*> ProfileDetailModel::accountOwners() const {
    std::vector<const Profile*> owners;
    if (!m_profile || m_profile->isDefault())
        return owners;
    for (const Profile& candidate : m_app->profiles()) {
        const bool isInUse = m_profile->accountOwner() == candidate.id;
        if (candidate.id != m_profile->id && (isInUse || candidate.accountOwner() == candidate.id))
            owners.push_back(&candidate);
    }
    return owners;
}

QStringList ProfileDetailModel::accountChoices() const {
    if (!m_profile || m_profile->isDefault())
        return {};
    QStringList names = {tr("Proprio")};
    for (const Profile* owner : accountOwners())
        names += qtText(owner->meta.name);
    return names;
}

int ProfileDetailModel::accountIndex() const {
    if (!m_profile || m_profile->accountOwner() == m_profile->id)
        return 0;
    const auto owners = accountOwners();
    for (std::size_t i = 0; i < owners.size(); ++i) {
        if (owners[i]->id == m_profile->accountOwner())
            return static_cast<int>(i) + 1;
    }
    return -1;
}

QString ProfileDetailModel::deletionRefusal() const {
    if (!m_profile)
        return {};
    if (m_profile->isDefault())
        return tr("Il profilo principale non si elimina");
    const auto any = [this](auto&& depends) { return std::ranges::any_of(m_app->profiles(), depends); };
    if (any([this](const Profile& other) { return other.meta.source == m_profile->id; }))
        return tr("Non si elimina: altri profili ereditano da questo");
    if (any([this](const Profile& other) { return other.meta.account == m_profile->id; }))
        return tr("Non si elimina: altri profili usano il suo account");
    return isRunning() && m_profile->accountOwner() == m_profile->id
               ? tr("Aperto in Claude: chiudilo per eliminarlo")
               : QString();
}

QString ProfileDetailModel::sessions() const {
    if (!m_profile || m_sessions.present < 0)
        return {};
    return m_sessions.present == 0
               ? tr("Nessuna sessione")
               : counted(m_sessions.present, tr("1 sessione nell'account"), tr("%1 sessioni nell'account"));
}

QString ProfileDetailModel::pendingSessions() const {
    return m_sessions.pending == 0
               ? QString()
               : counted(m_sessions.pending, tr("1 in attesa: verrà aggiunta al prossimo avvio"),
                         tr("%1 in attesa: verranno aggiunte al prossimo avvio"));
}

void ProfileDetailModel::change(const std::function<void(ProfileMeta&)>& edit) {
    if (!m_profile)
        return;
    Profile changed = *m_profile;
    edit(changed.meta);
    if (changed != *m_profile)
        m_app->performSoon(tr("Salvataggio…"), [profile = *m_profile, edit](ProfileStore& store) {
            store.changeMeta(profile, edit);
            return QString();
        });
}

void ProfileDetailModel::setName(const QString& name) {
    const QString trimmed = name.trimmed();
    if (!trimmed.isEmpty())
        change([name = trimmed.toStdString()](ProfileMeta& meta) { meta.name = name; });
}

void ProfileDetailModel::setSummary(const QString& summary) {
    change([summary = summary.trimmed().toStdString()](ProfileMeta& meta) { meta.summary = summary; });
}

void ProfileDetailModel::setLook(const LookValue& look) {
    change([look = look.look()](ProfileMeta& meta) { meta.look = look; });
}

void ProfileDetailModel::setAccount(int index) {
    const auto owners = accountOwners();
    if (index < 0 || index > static_cast<int>(owners.size()) || index == accountIndex())
        return;
    m_app->setAccount(index == 0 ? QString() : qtText(owners[static_cast<std::size_t>(index) - 1]->id),
                      profileId());
}

void ProfileDetailModel::setIsolated(bool isolated) {
    if (m_profile && isolated != isIsolated())
        m_app->performSoon(tr("Salvataggio…"), [profile = *m_profile, isolated](ProfileStore& store) {
            store.setIsolated(isolated, profile);
            return QString();
        });
}

void ProfileDetailModel::remove(const QString& profileId) {
    const Profile* profile = m_app->profile(profileId);
    if (profile == nullptr)
        return;
    const QString name = qtText(profile->meta.name);
    const QString done = tr("Profilo «%1» spostato nel Cestino").arg(name);
    m_app->performLong(
        tr("Spostamento nel Cestino…"),
        [profile = *profile, done](ProfileStore& store) {
            store.deleteProfile(profile);
            return done;
        },
        [] {}, tr("Profilo «%1» rimesso al suo posto").arg(name));
}

} // namespace selvane
