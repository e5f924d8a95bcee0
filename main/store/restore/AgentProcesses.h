// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <set>
#include <string>

namespace selvane {

/// The configuration folders, normalized, with which Claude Code runs in terminals. One that names none, or
/// doesn't let itself be asked, counts as run with `standard`.
std::set<std::string> agentConfigurations(const std::filesystem::path& standard);

} // namespace selvane
