// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/Locations.h"

namespace selvane {

std::filesystem::path applicationDataFolder(const Environment& environment, const std::string& name,
                                            const std::function<bool()>& isInstalled) {
    const std::filesystem::path home = homeFolder(environment);
    const auto configured = environment.find("XDG_CONFIG_HOME");
    // The XDG rules say to ignore a relative path.
    const bool usable = configured != environment.end() && configured->second.starts_with('/');
    const auto folder = (usable ? std::filesystem::path(configured->second) : home / ".config") / name;
    std::error_code ignored;
    if (std::filesystem::exists(folder, ignored) || isInstalled())
        return folder;
    return home / "Library/Application Support" / name;
}

bool keepsLoginsWithTheSystem() {
    return false;
}

} // namespace selvane
