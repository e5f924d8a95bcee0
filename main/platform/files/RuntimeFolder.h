// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <optional>
#include <vector>

#include "platform/process/Process.h"

namespace selvane {

/// Selvane's own folder for what is only true until the system restarts or the user logs out. It belongs to
/// the user, and nobody else can enter it. Made when it is missing; nothing where there is no safe place.
std::optional<std::filesystem::path> runtimeFolder(const Environment& environment);
/// All such folders that there are: a program that was started in another way may have chosen another one.
std::vector<std::filesystem::path> runtimeFolders(const Environment& environment);

/// Where such a folder may lie, the preferred place first. The folders around them exist or don't.
std::vector<std::filesystem::path> runtimeFolderPlaces(const Environment& environment);
/// The first of `places` that is or becomes a folder of the user's alone.
std::optional<std::filesystem::path> privateFolder(const std::vector<std::filesystem::path>& places);

} // namespace selvane
