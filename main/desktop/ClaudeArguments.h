// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "desktop/DataFolders.h"
#include "platform/process/ProcInfo.h"

namespace selvane {

constexpr std::string_view kDataDirSwitch = "--user-data-dir=";

/// The data folder that a process of Claude Desktop names in its arguments, normalized. Nothing when it names
/// none, or has no arguments. Many of its processes join their arguments to one text: of what stands there
/// only known folders can be told, and for another one the result is empty.
std::optional<std::string> dataDirArgument(const ProcInfo& process, const DataFolders& folders);

/// Whether an argument names a data folder (normalized) or something in it: it contains the folder followed
/// by "/", or ends with "=" followed by the folder, which in joined arguments a blank may follow.
bool namesDataFolder(const ProcInfo& process, const std::string& folder, const DataFolders& folders);

} // namespace selvane
