// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <optional>
#include <span>
#include <string_view>

#include "model/ShareMode.h"

namespace selvane {

/// One shareable part of a Claude Code configuration folder, in the order of every list and every loop.
enum class Component { skills, agents, commands, outputStyles, rules, claudeMd, settings, plugins, mcp };

inline constexpr std::array kComponents = {Component::skills,       Component::agents,  Component::commands,
                                           Component::outputStyles, Component::rules,   Component::claudeMd,
                                           Component::settings,     Component::plugins, Component::mcp};

/// The name inside the configuration folder, which is also that on disk and on the command line.
std::string_view rawValue(Component component);
/// Nothing for anything but an exact raw value.
std::optional<Component> component(std::string_view rawValue);

std::string_view title(Component component);  ///< what the user reads, in Italian
std::string_view symbol(Component component); ///< name of its SF Symbol
/// Whether it is a folder whose entries are shared, copied or left out one by one.
bool isCollection(Component component);
ShareMode defaultMode(Component component);
/// In the order in which a chooser offers them.
std::span<const ShareMode> allowedModes(Component component);
bool allows(Component component, ShareMode mode);

} // namespace selvane
