// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace selvane {

/// The arguments and environment with which a process was started.
struct ProcessArguments {
    std::vector<std::string> args;
    std::map<std::string, std::string> env;

    bool operator==(const ProcessArguments&) const = default;
};

/// Reads the area in which some kernels describe how a process was started: the number of arguments as a
/// native 32-bit integer, then the path of the executable, the arguments and the environment, each ended by
/// one or more NULs. Without a path there are no arguments and no environment.
///
/// Empty arguments look like padding: they are left out, and as many of the first variables are then taken
/// for arguments. Bytes that aren't UTF-8 become U+FFFD. A variable without "=" is left out; if a name occurs
/// twice, the later one counts.
ProcessArguments processArguments(std::string_view area);

} // namespace selvane
