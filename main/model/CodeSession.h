// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <vector>

namespace selvane {

/// One session in the Code tab of Claude Desktop.
struct CodeSession {
    std::string id;
    std::string title;
    std::string cwd;                        ///< working folder; empty if unknown
    std::optional<double> lastActivity;     ///< seconds since 1970
    std::vector<std::string> cliSessionIDs; ///< the Claude Code sessions that hold its transcripts
    std::string file;                       ///< the path of its record; a plain string, as there can be many

    bool operator==(const CodeSession&) const = default;
};

/// What an import does with transcripts of the target's.
enum class Existing {
    kept,
    /// The source's takes the place of one that it has only gone on from: of a shorter one, not newer, with
    /// which it begins. What was there goes to the Trash. Any other stays.
    continued,
};

/// What an import did.
struct ImportCount {
    int copied = 0;
    int pending = 0; ///< queued until the target's next launch

    bool operator==(const ImportCount&) const = default;
};

} // namespace selvane
