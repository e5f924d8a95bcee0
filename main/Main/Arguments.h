// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "Main/CLI.h"

namespace selvane::CLI {

/// The profile named by the first argument after the command word. Throws if it is missing or unknown.
Profile profile(const Call& call);
/// Throws "Profilo sconosciuto: " and the id if there is none.
Profile profile(const std::string& id, const ProfileStore& store);

/// Parses "component=mode". Throws "Modalità non valida: " and the text if either part is unknown.
std::pair<Component, ShareMode> assignment(const std::string& text);

/// Throws the command's usage unless there are at least `least` arguments, including the command word.
void requireArguments(const Call& call, std::size_t least);
/// The command word and its syntax.
std::string usage(const Command& command);
[[noreturn]] void throwUsage(std::string_view usage);

/// A text as one field of an output line. Control characters, which could fake fields and lines, become
/// replacement characters.
std::string field(std::string_view text);

} // namespace selvane::CLI
