// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <optional>
#include <vector>

#include "platform/process/Process.h"

namespace selvane {

/// Selvane's own folder for data that is valid only until the next boot or logout. It belongs to the user,
/// and nobody else can enter it. Creates it if missing; nothing if there is no safe place.
std::optional<std::filesystem::path> runtimeFolder(const Environment& environment);
/// All such folders that exist: a program started in another way may have chosen another one.
std::vector<std::filesystem::path> runtimeFolders(const Environment& environment);

/// The candidate places for such a folder, in order of preference. Their parent folders may not exist.
std::vector<std::filesystem::path> runtimeFolderPlaces(const Environment& environment);
/// The first of `places` that is, or can be created as, a folder for the user alone.
std::optional<std::filesystem::path> privateFolder(const std::vector<std::filesystem::path>& places);

} // namespace selvane
