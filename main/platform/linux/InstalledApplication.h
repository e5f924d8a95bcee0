// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <optional>

#include "platform/process/Workspace.h"

namespace selvane {

/// The first of the identity's desktop entries whose program is there, else its executable on PATH.
std::optional<Application> findApplication(const ApplicationIdentity& identity,
                                           const Environment& environment);

/// Whether `folder` is one where programs of all kinds lie side by side, such as `/usr/bin`.
bool isProgramsFolder(const std::filesystem::path& folder);

} // namespace selvane
