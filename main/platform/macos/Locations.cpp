// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/Locations.h"

namespace selvane {

/// There is only one folder, whether or not the application is installed.
std::filesystem::path applicationDataFolder(const Environment& environment, const std::string& name,
                                            const std::function<bool()>& /*isInstalled*/) {
    return homeFolder(environment) / "Library/Application Support" / name;
}

std::filesystem::path userDataFolder(const Environment& environment) {
    return homeFolder(environment) / "Library/Application Support";
}

bool keepsLoginsWithTheSystem() {
    return true;
}

} // namespace selvane
