// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "Main/CLI.h"

namespace selvane::CLI {

/// The profile named by the first argument after the command word. Throws without one, or for an unknown id.
Profile profile(const Call& call);
/// Throws "Profilo sconosciuto: " and the id.
Profile profile(const std::string& id, const ProfileStore& store);

/// "component=mode". Throws "Modalità non valida: " and the text when it names no component or no mode.
std::pair<Component, ShareMode> assignment(const std::string& text);

/// Throws the command's usage unless there are at least `least` arguments, the word included.
void requireArguments(const Call& call, std::size_t least);
/// How a command is called.
std::string usage(const Command& command);
[[noreturn]] void throwUsage(std::string_view usage);

/// A text as one field of an output line: control characters, which could forge fields and lines, show as
/// replacement characters.
std::string field(std::string_view text);

} // namespace selvane::CLI
