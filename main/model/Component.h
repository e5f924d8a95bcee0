// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <optional>
#include <span>
#include <string_view>

#include "model/ShareMode.h"

namespace selvane {

/// One shareable part of a Claude Code configuration folder, in the order used everywhere.
enum class Component { skills, agents, commands, outputStyles, rules, claudeMd, settings, plugins, mcp };

inline constexpr std::array kComponents = {Component::skills,       Component::agents,  Component::commands,
                                           Component::outputStyles, Component::rules,   Component::claudeMd,
                                           Component::settings,     Component::plugins, Component::mcp};

/// What a component is on disk, and with that how it is shared and imported.
enum class ComponentKind {
    collection, ///< a folder whose entries are shared, copied or left out one by one
    memory,     ///< a text that can also be extended
    file,       ///< copied; the paths in it that lead into the source lead into the copy's profile
    folder,     ///< copied whole, the paths in its JSON files as in a file
    servers     ///< one key of the global state file
};

/// The name in the profile's record and on the command line.
std::string_view rawValue(Component component);
/// Nothing unless the text is exactly a raw value.
std::optional<Component> component(std::string_view rawValue);

std::string_view title(Component component);  ///< what the user sees, in Italian
std::string_view symbol(Component component); ///< name of its SF Symbol
/// What the user reads, in Italian, about one that is no collection: that it is there, that it isn't.
std::string_view description(Component component, bool isPresent);
/// Where it lies in the configuration folder. Of the built-in profile the global state file lies elsewhere.
std::string_view location(Component component);
/// What several items of a collection are called, such as "skill" or "agenti".
std::string_view itemsName(Component component);
bool areItemsFeminine(Component component);
ComponentKind kind(Component component);
bool isCollection(Component component);
ShareMode defaultMode(Component component);
/// In the order in which they are offered.
std::span<const ShareMode> allowedModes(Component component);
bool allows(Component component, ShareMode mode);

} // namespace selvane
