// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/Locations.h"

namespace selvane {

/// One folder for all, whether or not the application is installed.
std::filesystem::path applicationDataFolder(const Environment& environment, const std::string& name,
                                            const std::function<bool()>& /*isInstalled*/) {
    return homeFolder(environment) / "Library/Application Support" / name;
}

/// The readme's own steps are written for this system.
std::string backupRestoreAdvice() {
    return {};
}

} // namespace selvane
