// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/manage/ProfileListModel.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "AppModel/Following.h"
#include "AppModel/LookValue.h"
#include "AppModel/RowUpdate.h"
#include "platform/text/Text.h"

namespace selvane {
namespace {

QString lastLaunch(const Profile& profile) {
    if (!profile.meta.lastLaunched)
        return ProfileListModel::tr("Mai avviato");
    return QString::fromStdString(text::relativeDate(currentTimestamp() - *profile.meta.lastLaunched));
}

/// With the article that Italian wants before "settimana scorsa" and the like.
QString subtitle(const Profile& profile) {
    const QString last = lastLaunch(profile);
    if (!profile.meta.lastLaunched)
        return last;
    const std::pair<QString, QString> articles[] = {{"settimana ", "la "}, {"mese ", "il "}, {"anno ", "l'"}};
    for (const auto& [start, article] : articles) {
        if (last.startsWith(start))
            return ProfileListModel::tr("Avviato %1").arg(article + last);
    }
    return ProfileListModel::tr("Avviato %1").arg(last);
}

QString sourceName(const Profile& profile, const AppModel& app) {
    if (!profile.meta.source)
        return {};
    const QString id = QString::fromStdString(*profile.meta.source);
    const Profile* source = app.profile(id);
    return source == nullptr ? id : QString::fromStdString(source->meta.name);
}

} // namespace

ProfileListModel::ProfileListModel(QObject* parent) : QAbstractListModel(parent) {
    m_minute.setInterval(std::chrono::minutes(1));
    connect(&m_minute, &QTimer::timeout, this, [this] { changed({LastLaunchRole, SubtitleRole}); });
    m_minute.start();
}

void ProfileListModel::setApp(AppModel* app) {
    const auto connectTo = [this](AppModel& followed) {
        connect(&followed, &AppModel::reloaded, this, &ProfileListModel::refresh);
        connect(&followed, &AppModel::runningChanged, this, [this] { changed({IsRunningRole}); });
    };
    if (!follow(app, m_app, this, connectTo))
        return;
    refresh();
    emit appChanged();
}

void ProfileListModel::update() {
    std::vector<Profile> profiles = m_app == nullptr ? std::vector<Profile>{} : m_app->profiles();
    if (m_recentFirst)
        std::ranges::stable_sort(
            profiles, [](const auto& a, const auto& b) { return a > b; },
            [](const Profile& profile) { return profile.meta.lastLaunched; });
    m_activeID = m_app == nullptr ? std::nullopt : m_app->activeID();
    RowUpdate::apply(*this, m_rows, foundProfiles(profiles, m_search),
                     [](const ListedProfile& row) -> const std::string& { return row.profile.id; });
    changed({});
}

void ProfileListModel::refresh() {
    update();
    emit countChanged();
}

void ProfileListModel::setSearch(const QString& text) {
    if (m_search == text)
        return;
    m_search = text;
    update();
    emit searchChanged(); // first: by the count, views look for the row that they now choose
    emit countChanged();
}

void ProfileListModel::setRecentFirst(bool recentFirst) {
    if (m_recentFirst == recentFirst)
        return;
    m_recentFirst = recentFirst;
    refresh();
    emit recentFirstChanged();
}

int ProfileListModel::total() const {
    return m_app == nullptr ? 0 : static_cast<int>(m_app->profiles().size());
}

QString ProfileListModel::countText() const {
    return tr("%1 di %2 profili").arg(count()).arg(total());
}

void ProfileListModel::changed(const QList<int>& roles) {
    if (!m_rows.empty())
        emit dataChanged(index(0), index(count() - 1), roles);
}

int ProfileListModel::indexOf(const QString& profileId) const {
    const std::string wanted = profileId.toStdString();
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        if (m_rows[i].profile.id == wanted)
            return static_cast<int>(i);
    }
    return -1;
}

QString ProfileListModel::idNear(int row) const {
    if (m_rows.empty())
        return {};
    const int nearest = std::clamp(row, 0, count() - 1);
    return QString::fromStdString(m_rows[static_cast<std::size_t>(nearest)].profile.id);
}

int ProfileListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant ProfileListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const ListedProfile& row = m_rows.at(static_cast<std::size_t>(index.row()));
    const Profile& profile = row.profile;
    switch (role) {
    case IdRole:
        return QString::fromStdString(profile.id);
    case NameRole:
        return QString::fromStdString(profile.meta.name);
    case SummaryRole:
        return QString::fromStdString(profile.meta.summary);
    case LookRole:
        return lookVariant(profile.meta.look);
    case IsRunningRole:
        return m_app->running().contains(profile.id);
    case IsActiveRole:
        return m_activeID == profile.id;
    case HasOwnAccountRole:
        return !profile.isDefault() && !profile.meta.account;
    case HasSourceRole:
        return profile.meta.source.has_value();
    case SourceNameRole:
        return sourceName(profile, *m_app);
    case WasLaunchedRole:
        return profile.meta.lastLaunched.has_value();
    case LastLaunchRole:
        return lastLaunch(profile);
    case SubtitleRole:
        return subtitle(profile);
    case FoundInNameRole:
        return QVariant::fromValue(row.inName);
    case FoundInSummaryRole:
        return QVariant::fromValue(row.inSummary);
    default:
        return {};
    }
}

QHash<int, QByteArray> ProfileListModel::roleNames() const {
    return {{IdRole, "profileId"},
            {NameRole, "name"},
            {SummaryRole, "summary"},
            {LookRole, "look"},
            {IsRunningRole, "isRunning"},
            {IsActiveRole, "isActive"},
            {HasOwnAccountRole, "hasOwnAccount"},
            {HasSourceRole, "hasSource"},
            {SourceNameRole, "sourceName"},
            {WasLaunchedRole, "wasLaunched"},
            {LastLaunchRole, "lastLaunch"},
            {SubtitleRole, "subtitle"},
            {FoundInNameRole, "foundInName"},
            {FoundInSummaryRole, "foundInSummary"}};
}

} // namespace selvane
