// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/ProfileListModel.h"

#include "platform/Text.h"

namespace selvane {
namespace {

QString lastLaunch(const Profile& profile) {
    if (!profile.meta.lastLaunched)
        return ProfileListModel::tr("Mai avviato");
    return QString::fromStdString(text::relativeDate(currentTimestamp() - *profile.meta.lastLaunched));
}

} // namespace

void ProfileListModel::setApp(AppModel* app) {
    if (m_app == app)
        return;
    if (m_app != nullptr)
        m_app->disconnect(this);
    m_app = app;
    if (m_app != nullptr) {
        connect(m_app, &AppModel::reloaded, this, &ProfileListModel::beginAgain);
        connect(m_app, &AppModel::runningChanged, this, &ProfileListModel::runningChanged);
    }
    beginAgain();
    emit appChanged();
}

void ProfileListModel::beginAgain() {
    beginResetModel();
    m_profiles = m_app == nullptr ? std::vector<Profile>{} : m_app->profiles();
    m_activeID = m_app == nullptr ? std::nullopt : m_app->activeID();
    endResetModel();
    emit countChanged();
}

void ProfileListModel::runningChanged() {
    if (!m_profiles.empty())
        emit dataChanged(index(0), index(count() - 1), {IsRunningRole});
}

int ProfileListModel::indexOf(const QString& profileId) const {
    const std::string wanted = profileId.toStdString();
    for (std::size_t i = 0; i < m_profiles.size(); ++i) {
        if (m_profiles[i].id == wanted)
            return static_cast<int>(i);
    }
    return -1;
}

int ProfileListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_profiles.size());
}

QVariant ProfileListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Profile& profile = m_profiles.at(static_cast<std::size_t>(index.row()));
    switch (role) {
    case IdRole:
        return QString::fromStdString(profile.id);
    case NameRole:
        return QString::fromStdString(profile.meta.name);
    case SummaryRole:
        return QString::fromStdString(profile.meta.summary);
    case SymbolRole:
        return QString::fromStdString(profile.meta.symbol);
    case IsRunningRole:
        return m_app->running().contains(profile.id);
    case IsActiveRole:
        return m_activeID == profile.id;
    case HasOwnAccountRole:
        return !profile.isDefault() && !profile.meta.account;
    case HasSourceRole:
        return profile.meta.source.has_value();
    case LastLaunchRole:
        return lastLaunch(profile);
    default:
        return {};
    }
}

QHash<int, QByteArray> ProfileListModel::roleNames() const {
    return {{IdRole, "profileId"},
            {NameRole, "name"},
            {SummaryRole, "summary"},
            {SymbolRole, "symbol"},
            {IsRunningRole, "isRunning"},
            {IsActiveRole, "isActive"},
            {HasOwnAccountRole, "hasOwnAccount"},
            {HasSourceRole, "hasSource"},
            {LastLaunchRole, "lastLaunch"}};
}

} // namespace selvane
