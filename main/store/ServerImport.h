// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include "platform/json/Json.h"

namespace selvane {

/// What taking over MCP servers makes of Claude Code's global state.
struct ServerImport {
    Json state;
    bool losesServers = false; ///< the target had servers that are gone or changed now
};

/// Puts the servers of `source` in the place of those of `target`; every other key of `target` stays. Without
/// a target a new state is made. `target` must be an object.
ServerImport importedServers(const Json& source, const std::optional<Json>& target);

} // namespace selvane
