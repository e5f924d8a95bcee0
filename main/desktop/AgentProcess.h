// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "platform/process/ProcInfo.h"

namespace selvane {

/// Whether a process is Claude Code: as a program of its own, or as a script that Node runs under that name.
bool isAgent(const ProcInfo& process);

/// How many sessions of Claude Code run below the process `pid`. What one of them has started itself belongs
/// to it. Nothing if `pid` isn't among the processes.
std::optional<int> agentSessions(const std::vector<ProcInfo>& processes, std::int32_t pid);

} // namespace selvane
