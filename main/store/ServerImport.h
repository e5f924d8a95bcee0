// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string_view>

#include "platform/json/Json.h"

namespace selvane {

/// The key of Claude Code's global state that holds its MCP servers.
constexpr std::string_view kServersKey = "mcpServers";

/// Claude Code's global state after MCP servers were imported.
struct ServerImport {
    Json state;
    bool losesServers = false; ///< the target had servers that were removed or changed
};

/// Replaces the servers of `target` with those of `source`; every other key of `target` stays. Without a
/// target, creates a new state. `target` must be an object.
ServerImport importedServers(const Json& source, const std::optional<Json>& target);

} // namespace selvane
