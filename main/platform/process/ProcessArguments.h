// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace selvane {

/// What a process was started with.
struct ProcessArguments {
    std::vector<std::string> args;
    std::map<std::string, std::string> env;

    bool operator==(const ProcessArguments&) const = default;
};

/// Reads the area in which some kernels hand over how a process was started: the number of arguments as a
/// native 32-bit integer, then, each ended by one or more NULs, the path of the executable, the arguments,
/// and the environment. Without a path in it there are neither arguments nor an environment.
///
/// Empty arguments can't be told from padding: they are left out, and then as many of the first variables are
/// taken for arguments. Bytes that are no UTF-8 are replaced by U+FFFD. A variable without "=" is left out;
/// of two with the same name the later one counts.
ProcessArguments processArguments(std::string_view area);

} // namespace selvane
