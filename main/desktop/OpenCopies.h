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

/// One running copy of Claude Desktop: its main process, account and configuration.
struct OpenCopy {
    RunningApplication app;
    std::string dataDir;               ///< normalized; empty if unknown
    std::optional<std::string> config; ///< its CLAUDE_CONFIG_DIR, normalized; nothing if unset
    bool isConfigKnown = true;         ///< whether `config` is known

    std::int32_t pid() const { return app.pid; }
    const std::optional<std::string>& configDir() const { return config; }
    bool operator==(const OpenCopy&) const = default;
};

/// All the evidence of which copies are running and what they use. Any of it can be missing or wrong: main
/// processes rewrite their arguments and wipe their environment, and locks and notes outlive their process.
struct CopyEvidence {
    const std::vector<ProcInfo>& processes;
    std::vector<RunningApplication> recognised; ///< main processes known by executable or by how they started
    std::vector<LaunchNote> notes;
    std::vector<DataFolderLock> locks;
    std::string host; ///< this machine's name, as written in the locks
    const DataFolders& folders;
    /// The files that a process has open. Slow, so asked only when the other evidence isn't enough.
    std::function<std::vector<std::string>(std::int32_t pid, FileUse use)> openFiles;
};

/// The running copies, in the order of the processes.
///
/// The data folder comes from the launch note, the lock and the arguments. If they disagree or say nothing,
/// files open for writing decide; failing that the lock wins, then the note, then the arguments. A copy gets
/// its normal folder without further evidence only if its arguments can be read and name no other folder, no
/// other copy holds the lock there, and, where that is the user's own normal folder, its open files can't be
/// seen. The configuration comes from the environment of the main process or its crash handler, then from the
/// note, then from descendants, then from a crash handler that is probably its own.
std::vector<OpenCopy> openCopies(const CopyEvidence& evidence);

/// Whether the lock or files open for writing prove that a process uses a data folder.
bool usesDataFolder(const CopyEvidence& evidence, std::int32_t pid, const std::string& folder);

/// Whether a process belongs to the application we opened: it runs in the session created for it or, on
/// systems without one, it is that very process.
bool belongsTo(const OpenedApplication& opened, const ProcInfo& process, const ProcessFamily& family);

} // namespace selvane
