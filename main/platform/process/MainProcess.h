// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

#include "platform/process/ProcInfo.h"

namespace selvane {

/// Whether a process can be the main process of an Electron or Chromium application. Helpers can't
/// (renderers, crash handlers, processes that run as plain Node), nor can the shell of a wrapper script.
bool canBeMainProcess(const ProcInfo& process);

/// Whether an executable is a shell or another program that runs scripts.
bool isInterpreter(std::string_view executable);

} // namespace selvane
