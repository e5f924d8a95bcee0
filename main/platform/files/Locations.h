// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "platform/process/Process.h"

namespace selvane {

/// The folder in which the desktop application `name` keeps its data unless told otherwise. `isInstalled` is
/// called only if the answer matters.
std::filesystem::path applicationDataFolder(const Environment& environment, const std::string& name,
                                            const std::function<bool()>& isInstalled);

/// Where programs put what they add for this user alone, such as entries of the desktop's menu and icons.
std::filesystem::path userDataFolder(const Environment& environment);

/// Whether command-line programs keep their logins in the system's keychain; elsewhere they keep them in
/// files of the home folder.
bool keepsLoginsWithTheSystem();

} // namespace selvane
