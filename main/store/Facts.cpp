// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/DiskUsage.h"
#include "platform/json/Json.h"
#include "store/ProfileStore.h"

namespace selvane {

namespace fs = std::filesystem;

std::optional<std::string> ProfileStore::agentAddress(const Profile& profile) const {
    const fs::path file = globalJSON(profile);
    try {
        const auto text = m_files.readIfPossible(file);
        const Json state = text ? json::parse(*text, file) : Json();
        const Json* account = json::find(state, "oauthAccount");
        const Json* address = account != nullptr ? json::find(*account, "emailAddress") : nullptr;
        if (address != nullptr && address->is_string() && !address->get_ref<const std::string&>().empty())
            return address->get<std::string>();
    } catch (const JsonError&) { // Claude Code couldn't read it either
    }
    return std::nullopt;
}

bool ProfileStore::hasDesktopLogin(const Profile& profile) const {
    try {
        return !sessionFolders(desktopDataDir(profile), Unreadable::leftOut).empty();
    } catch (const std::exception&) { // the account isn't valid, or it can't be told where its data is
        return false;
    }
}

ProfileSize ProfileStore::sizeOnDisk(const Profile& profile) const {
    std::vector<fs::path> configuration = {profile.configDir};
    if (profile.globalState)
        configuration.push_back(*profile.globalState);
    ProfileSize size;
    size.configuration = diskUsage(configuration, m_progress);
    size.account = diskUsage({desktopDataDir(profile)}, m_progress);
    return size;
}

} // namespace selvane
