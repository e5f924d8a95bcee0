// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/manage/ProfileFacts.h"

#include <QDateTime>
#include <QLocale>

#include <utility>

#include "AppModel/Following.h"
#include "AppModel/QtText.h"
#include "AppModel/Wording.h"
#include "platform/files/Progress.h"
#include "platform/text/Text.h"
#include "store/Facts.h"

namespace selvane {

ProfileFacts::~ProfileFacts() {
    if (m_counting)
        m_counting->cancel();
}

void ProfileFacts::setApp(AppModel* app) {
    const auto connectTo = [this](AppModel& followed) {
        connect(&followed, &AppModel::reloaded, this, &ProfileFacts::update);
        connect(&followed, &AppModel::selectionChanged, this, &ProfileFacts::update);
    };
    if (!follow(app, m_app, this, connectTo))
        return;
    m_sizes.clear();
    update();
    emit appChanged();
}

void ProfileFacts::update() {
    const Profile* selected = m_app == nullptr ? nullptr : m_app->selected();
    m_profile = selected == nullptr ? std::nullopt : std::optional(*selected);
    if (m_profile) {
        readSignIns();
        countSize();
    }
    emit factsChanged();
}

void ProfileFacts::readSignIns() {
    const auto read = [&store = m_app->store(), profile = *m_profile, all = m_app->profiles()] {
        SignIns result{profile.id, agentAddress(store, profile), hasDesktopLogin(store, profile), {}};
        for (const Profile& other : all) {
            if (result.address && other.id != profile.id && agentAddress(store, other) == result.address)
                result.others.push_back(other.meta.name);
        }
        return result;
    };
    m_signInReading.begin(read, [this](SignIns result) {
        m_signIns = std::move(result);
        emit factsChanged();
    });
}

/// The count that is still wanted goes on over reloads; any other ends.
void ProfileFacts::countSize() {
    const std::string& id = m_profile->id;
    if (m_sizes.contains(id) || (m_counting && m_countedProfile == id))
        return;
    if (m_counting)
        m_counting->cancel();
    m_counting = std::make_shared<Progress>();
    m_countedProfile = id;
    const auto count = [&all = m_app->store(), profile = *m_profile, progress = m_counting]() -> Size {
        try {
            const ProfileStore store(all, *progress);
            return {profile.id, sizeOnDisk(store, profile)};
        } catch (const std::exception&) { // cancelled, or the account isn't valid
            return {profile.id, std::nullopt};
        }
    };
    m_sizeReading.begin(count, [this](const Size& size) { takeSize(size); });
}

void ProfileFacts::takeSize(const Size& size) {
    m_counting.reset();
    if (size.bytes)
        m_sizes[size.profile] = *size.bytes;
    emit factsChanged();
}

QString ProfileFacts::signIn() const {
    if (!knowsSignIns())
        return {};
    if (!m_signIns.address)
        return m_signIns.hasDesktop ? tr("Accesso: app") : tr("Accesso: non ancora");
    const QString address = qtText(text::singleLine(*m_signIns.address));
    return m_signIns.hasDesktop ? tr("Accesso: %1 · terminale e app").arg(address)
                                : tr("Accesso: %1 · terminale").arg(address);
}

QString ProfileFacts::sameAddress() const {
    if (!knowsSignIns() || m_signIns.others.empty())
        return {};
    const auto others = static_cast<qsizetype>(m_signIns.others.size());
    return counted(others, tr("Stesso indirizzo di «%1»").arg(qtText(m_signIns.others.front())),
                   tr("Stesso indirizzo di altri %1 profili"));
}

QString ProfileFacts::size() const {
    const auto known = m_profile ? m_sizes.find(m_profile->id) : m_sizes.end();
    if (known == m_sizes.end())
        return {};
    const auto words = [](std::uintmax_t bytes) {
        return qtText(text::byteCount(static_cast<std::int64_t>(bytes)));
    };
    const auto& [configuration, account] = known->second;
    return m_profile->accountOwner() == m_profile->id
               ? tr("%1 sul disco").arg(words(configuration + account))
               : tr("%1 sul disco, più %2 dell'account").arg(words(configuration), words(account));
}

QString ProfileFacts::created() const {
    if (!m_profile || m_profile->isDefault())
        return {};
    const QDateTime time = QDateTime::fromSecsSinceEpoch(m_profile->meta.created.time_since_epoch().count());
    return tr("Creato il %1")
        .arg(QLocale(QLocale::Italian).toString(time.date(), QStringLiteral("d MMMM yyyy")));
}

} // namespace selvane
