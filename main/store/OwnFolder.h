// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>

#include "model/Profile.h"

namespace selvane {

/// Throws `LauncherError` if `folder`, or a folder between it and `top`, is a link: whatever is written there
/// would end up outside `top`.
void requireNoLink(const std::filesystem::path& top, const std::filesystem::path& folder);
/// The same. Then creates what is missing of `folder`, but never `top`.
void createOwnFolder(const std::filesystem::path& top, const std::filesystem::path& folder);
/// The same below a profile's folder. That is created too if it is the built-in profile's; any other has been
/// deleted.
void createOwnFolder(const Profile& profile, const std::filesystem::path& folder);

} // namespace selvane
