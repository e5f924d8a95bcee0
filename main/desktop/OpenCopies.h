// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "desktop/DataFolderLock.h"
#include "desktop/DataFolders.h"
#include "desktop/LaunchNotes.h"
#include "platform/process/ProcInfo.h"
#include "platform/process/ProcessFamily.h"
#include "platform/process/Workspace.h"

namespace selvane {

/// One running copy of Claude Desktop: its main process, with the account and the configuration it uses.
struct OpenCopy {
    RunningApplication app;
    std::string dataDir;               ///< normalized; empty when it can't be told
    std::optional<std::string> config; ///< its CLAUDE_CONFIG_DIR, normalized; nothing when it has none
    bool isConfigKnown = true;         ///< whether `config` can be told

    std::int32_t pid() const { return app.pid; }
    const std::optional<std::string>& configDir() const { return config; }
    bool operator==(const OpenCopy&) const = default;
};

/// All that tells which copies run and with what. No kind of it is always there, and each can be wrong:
/// main processes rewrite their arguments and wipe their environment, locks and notes outlive their process.
struct CopyEvidence {
    const std::vector<ProcInfo>& processes;
    std::vector<RunningApplication> recognised; ///< main processes, told by their executable or their start
    std::vector<LaunchNote> notes;
    std::vector<DataFolderLock> locks;
    std::string host; ///< this machine's name, as in the locks
    const DataFolders& folders;
    /// The files that a process has open. Costly, and asked only when the other evidence isn't enough.
    std::function<std::vector<std::string>(std::int32_t pid)> openFiles;
};

/// The copies that run, in the order of the processes.
///
/// A data folder is told by the note of the launch, by the lock in it, and by the arguments; when these
/// disagree or say nothing, by the files that are open; failing that the lock counts first, then the note,
/// then the arguments. A copy has the normal folder without further proof only when its arguments can be read
/// and name no other, nothing says that its home is another one, and its open files can't be seen. A
/// configuration is told by the environment of the main process or its crash handler, then by the note, then
/// by the other processes below it, then by a crash handler that seems to be its own.
std::vector<OpenCopy> openCopies(const CopyEvidence& evidence);

/// Whether the lock or the open files show that a process uses a data folder.
bool usesDataFolder(const CopyEvidence& evidence, std::int32_t pid, const std::string& folder);

/// Whether a process belongs to what was opened: it runs in the session made for it, or, where none is made,
/// it is the very process.
bool belongsTo(const OpenedApplication& opened, const ProcInfo& process, const ProcessFamily& family);

} // namespace selvane
