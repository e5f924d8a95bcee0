// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/process/ProcInfo.h"

namespace selvane {

/// Whether a process can be the main process of an Electron or Chromium application. Helpers can't
/// (renderers, crash handlers, processes that run as plain Node), nor can the shell of a wrapper script.
bool canBeMainProcess(const ProcInfo& process);

} // namespace selvane
