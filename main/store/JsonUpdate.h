// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "platform/json/Json.h"

namespace selvane {

/// What a file of another program holds.
struct JsonState {
    std::optional<std::string> text; ///< nothing if there is no file
    Json object = Json::object();    ///< empty if there is no file
};

/// Changes the JSON object in a file that other programs change too. `change` gets what the file holds and
/// returns the object to replace it by, or nothing to leave it alone. If the file changes meanwhile, it is
/// called again. A new file is for its owner alone.
///
/// A link at `file` is replaced, never followed. Throws if the file can't be read or holds no JSON object, if
/// the link leads nowhere, or if the file keeps changing for ten seconds; then it is as it was.
void updateJson(const std::filesystem::path& file,
                const std::function<std::optional<Json>(const JsonState& state)>& change);

} // namespace selvane
