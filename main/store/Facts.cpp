// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/Facts.h"

#include "platform/files/DiskUsage.h"
#include "platform/files/FileManager.h"
#include "platform/json/Json.h"
#include "store/ProfileStore.h"

namespace selvane {

namespace fs = std::filesystem;

std::optional<std::string> agentAddress(const ProfileStore& store, const Profile& profile) {
    const fs::path file = store.globalJSON(profile);
    try {
        const auto text = FileManager().readIfPossible(file);
        const Json state = text ? json::parse(*text, file) : Json();
        const Json* account = json::find(state, "oauthAccount");
        const Json* address = account != nullptr ? json::find(*account, "emailAddress") : nullptr;
        if (address != nullptr && address->is_string() && !address->get_ref<const std::string&>().empty())
            return address->get<std::string>();
    } catch (const JsonError&) { // Claude Code couldn't read it either
    }
    return std::nullopt;
}

bool hasDesktopLogin(const ProfileStore& store, const Profile& profile) {
    try {
        return !store.sessionFolders(store.desktopDataDir(profile), Unreadable::leftOut).empty();
    } catch (const std::exception&) { // the account isn't valid, or it can't be told where its data is
        return false;
    }
}

ProfileSize sizeOnDisk(const ProfileStore& store, const Profile& profile) {
    std::vector<fs::path> configuration = {profile.configDir};
    if (profile.globalState)
        configuration.push_back(*profile.globalState);
    ProfileSize size;
    size.configuration = diskUsage(configuration, store.progress());
    size.account = diskUsage({store.desktopDataDir(profile)}, store.progress());
    return size;
}

} // namespace selvane
