// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "desktop/DataFolders.h"
#include "platform/process/ProcInfo.h"

namespace selvane {

/// The variable with the configuration folder that Claude Code uses.
inline constexpr std::string_view kConfigDirVariable = "CLAUDE_CONFIG_DIR";

constexpr std::string_view kDataDirSwitch = "--user-data-dir=";

/// The data folder that a Claude Desktop process names in its arguments, normalized. Nothing if it names none
/// or has no arguments. Many of these processes join their arguments into one text; only a known folder can
/// be recognised there, so any other gives nothing.
std::optional<std::string> dataDirArgument(const ProcInfo& process, const DataFolders& folders);

/// Whether a process was started for a data folder (normalized): an option has the folder, or something in
/// it, as its value, or it is an interpreter that runs a script from there. In joined arguments, a space may
/// follow the folder. A program that merely works on a file there, such as `tail`, doesn't count.
bool namesDataFolder(const ProcInfo& process, const std::string& folder, const DataFolders& folders);

} // namespace selvane
