// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/Locations.h"

namespace selvane {
namespace {

/// A folder that a variable names; the XDG rules say to ignore a relative path.
std::filesystem::path configured(const Environment& environment, const std::string& variable,
                                 const std::filesystem::path& otherwise) {
    const auto entry = environment.find(variable);
    const bool isUsable = entry != environment.end() && entry->second.starts_with('/');
    return isUsable ? std::filesystem::path(entry->second) : otherwise;
}

} // namespace

std::filesystem::path applicationDataFolder(const Environment& environment, const std::string& name,
                                            const std::function<bool()>& isInstalled) {
    const std::filesystem::path home = homeFolder(environment);
    const auto folder = configured(environment, "XDG_CONFIG_HOME", home / ".config") / name;
    std::error_code ignored;
    if (std::filesystem::exists(folder, ignored) || isInstalled())
        return folder;
    return home / "Library/Application Support" / name;
}

std::filesystem::path userDataFolder(const Environment& environment) {
    return configured(environment, "XDG_DATA_HOME", homeFolder(environment) / ".local/share");
}

bool keepsLoginsWithTheSystem() {
    return false;
}

} // namespace selvane
