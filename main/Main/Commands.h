// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Main/CLI.h"

/// The commands, by subject.
namespace selvane::CLI {

// ProfileCommands.cpp
void list(const Call& call);
void create(const Call& call);
void path(const Call& call);
void sync(const Call& call);
void items(const Call& call);
void setMode(const Call& call);
void installHelper(const Call& call);

// SessionCommands.cpp
void sessions(const Call& call);
void importSessions(const Call& call);

// DesktopCommands.cpp
void launch(const Call& call);
void desktopStatus(const Call& call);
void restoreDesktop(const Call& call);
void processes(const Call& call);

// BackupCommand.cpp
void backup(const Call& call);

// ArtworkCommands.cpp
void renderIcon(const Call& call);
void renderDMGBackground(const Call& call);

} // namespace selvane::CLI
