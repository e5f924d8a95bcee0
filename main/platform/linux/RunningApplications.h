// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <vector>

#include "platform/process/ProcInfo.h"
#include "platform/process/Workspace.h"

namespace selvane {

/// The main processes of an application among `processes`, in the same order. `folder` is the application's
/// own folder, empty if unknown.
std::vector<RunningApplication> mainProcesses(const std::vector<ProcInfo>& processes,
                                              const ApplicationIdentity& identity,
                                              const std::filesystem::path& folder);

} // namespace selvane
