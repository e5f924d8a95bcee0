// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/ProfileStore.h"

#include <algorithm>

#include "model/LauncherError.h"

namespace selvane {

void ProfileStore::deleteProfile(const Profile& profile) {
    if (profile.isDefault())
        throw LauncherError("Il profilo principale non può essere eliminato");
    const FolderLock lock = locked(profile);
    std::vector<Profile> others = {loadDefault()};
    for (const std::string& id : m_files.entries(root())) {
        if (root() / id == profile.configDir)
            continue;
        if (auto other = validProfile(id))
            others.push_back(std::move(*other));
    }
    const auto anyOther = [&](auto&& depends) { return std::any_of(others.begin(), others.end(), depends); };

    if (anyOther([&](const Profile& other) { return other.meta.source == profile.id; }))
        throw LauncherError("Altri profili ereditano da \"" + profile.meta.name +
                            "\": rendili prima separati o eliminali");
    if (anyOther([&](const Profile& other) { return other.meta.account == profile.id; }))
        throw LauncherError("Altri profili usano l'account di \"" + profile.meta.name + "\": cambiali prima");

    if (m_reversal != nullptr)
        m_reversal->isDeletion = true;
    // Its account may still be in the normal folder; first give that back to the built-in profile.
    if (desktopLiveOwner() == profile.id)
        restoreDesktopData();
    const std::filesystem::path data = desktopFolder(profile.id);
    if (m_files.exists(data)) {
        if (desktopDataInUse(data))
            throw LauncherError("L'account di \"" + profile.meta.name +
                                "\" è aperto in Claude: chiudilo prima");
        m_files.moveToTrash(data);
    }
    m_files.moveToTrash(profile.configDir);
}

} // namespace selvane
