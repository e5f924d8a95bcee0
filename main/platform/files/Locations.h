// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "platform/process/Process.h"

namespace selvane {

/// The folder in which the desktop application `name` keeps its data when it is started without saying
/// otherwise. `isInstalled` is only asked where the answer matters.
std::filesystem::path applicationDataFolder(const Environment& environment, const std::string& name,
                                            const std::function<bool()>& isInstalled);

/// What a reader of a backup's readme must also know on this platform; empty where there is nothing.
std::string backupRestoreAdvice();

} // namespace selvane
