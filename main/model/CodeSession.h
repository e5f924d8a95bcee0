// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <vector>

namespace selvane {

/// One session of Claude Desktop's Code tab.
struct CodeSession {
    std::string id;
    std::string title;
    std::string cwd;                        ///< working folder; empty when unknown
    std::optional<double> lastActivity;     ///< seconds since 1970
    std::vector<std::string> cliSessionIDs; ///< the Claude Code sessions whose transcripts belong to it
    std::string file;                       ///< the path of its record: one text, for there can be many

    bool operator==(const CodeSession&) const = default;
};

/// What an import did.
struct ImportCount {
    int copied = 0;
    int pending = 0; ///< queued for the target's next launch

    bool operator==(const ImportCount&) const = default;
};

} // namespace selvane
