// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <vector>

#include "platform/process/ProcInfo.h"
#include "platform/process/Workspace.h"

namespace selvane {

/// The main processes of an application among `processes`, in their order. `folder` is the application's
/// own one, empty when it is not known.
std::vector<RunningApplication> mainProcesses(const std::vector<ProcInfo>& processes,
                                              const ApplicationIdentity& identity,
                                              const std::filesystem::path& folder);

} // namespace selvane
