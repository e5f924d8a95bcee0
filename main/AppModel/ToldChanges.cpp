// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "AppModel/ToldChanges.h"

#include <QCoreApplication>

#include <algorithm>

#include "AppModel/QtText.h"
#include "AppModel/Wording.h"

namespace selvane {

QString ToldChanges::news(const ProfileStore& store, const Profile& profile) {
    std::set<std::pair<Component, std::string>> changed;
    for (const ChangedItem& item : store.changedItems(profile))
        changed.emplace(item.component, item.name);
    const auto source = profile.meta.source ? store.profile(*profile.meta.source) : std::nullopt;
    const std::scoped_lock lock(m_mutex);
    // What follows the source again may change again.
    const auto told = std::exchange(m_told[profile.id], changed);
    const auto isNew = [&](const auto& item) { return !told.contains(item); };
    const auto count = std::ranges::count_if(changed, isNew);
    if (count == 0 || !source)
        return {};
    const auto words = [](const char* text) {
        return QCoreApplication::translate("selvane::ToldChanges", text);
    };
    return count == 1 ? words("1 elemento modificato qui non segue più «%1»").arg(qtText(source->meta.name))
                      : words("%1 elementi modificati qui non seguono più «%2»")
                            .arg(QString::number(count), qtText(source->meta.name));
}

} // namespace selvane
