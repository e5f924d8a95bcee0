// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <optional>

#include "platform/process/Workspace.h"

namespace selvane {

/// The first of the identity's desktop entries whose program exists, otherwise its executable on PATH.
std::optional<Application> findApplication(const ApplicationIdentity& identity,
                                           const Environment& environment);

/// Whether `folder` is one that all kinds of programs share, such as `/usr/bin`.
bool isProgramsFolder(const std::filesystem::path& folder);

} // namespace selvane
