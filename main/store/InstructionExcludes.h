// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/json/Json.h"
#include "store/Instructions.h"

namespace selvane {

/// Which instructions of the built-in profile Claude Code must not read in an isolated profile, as entries of
/// the setting `claudeMdExcludes`: absolute paths, and patterns for whole folders.
struct InstructionExcludes {
    std::vector<std::string> entries;
    bool matchesAny = false; ///< whether there is anything now that they keep out

    /// Everything in the folder `builtIn` that isn't among `taken`. An entry ending in "/**" stands for a
    /// folder of rules none of which is taken, so it also keeps out what is added there later. Some entries
    /// come twice, also with the links on the way to `builtIn` resolved. Throws if anything can't be looked
    /// at.
    static InstructionExcludes of(const std::filesystem::path& builtIn, const Instructions& taken);
};

/// Whether `of` makes such entries: CLAUDE.md, a rule or a folder of rules, by its path below `builtIn`. Any
/// other entry is the user's. Throws if that can't be determined.
bool isInstructionExclude(std::string_view entry, const std::filesystem::path& builtIn);

/// `settings` with those of its entries that `isInstructionExclude` knows replaced by `entries`. All others
/// stay, and so does the order. Nothing if there is nothing to change. Throws `LauncherError` if `entries`
/// can't be added because the setting isn't a list.
std::optional<Json> withInstructionExcludes(const Json& settings, const std::vector<std::string>& entries,
                                            const std::filesystem::path& builtIn);

} // namespace selvane
