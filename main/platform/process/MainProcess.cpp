// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/process/MainProcess.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace selvane {
namespace {

constexpr std::array<std::string_view, 2> kHelperExecutables = {"chrome_crashpad_handler", "chrome-sandbox"};
/// Prefixes: a version may follow, as in "python3.11".
constexpr std::array<std::string_view, 8> kInterpreters = {"bash", "busybox", "dash", "node",
                                                           "perl", "python",  "sh",   "zsh"};

bool isHelperExecutable(std::string_view name) {
    return std::find(kHelperExecutables.begin(), kHelperExecutables.end(), name) != kHelperExecutables.end();
}

/// A process that has rewritten its title has all its arguments in the first one, joined by spaces.
bool hasTypeArgument(const ProcInfo& process) {
    const auto isType = [](const std::string& argument) { return argument.starts_with("--type="); };
    return std::any_of(process.args.begin(), process.args.end(), isType) ||
           (!process.args.empty() && process.args.front().find(" --type=") != std::string::npos);
}

std::string_view nameOf(std::string_view executable) {
    return executable.substr(executable.rfind('/') + 1);
}

} // namespace

bool isInterpreter(std::string_view executable) {
    const std::string_view name = nameOf(executable);
    return std::any_of(kInterpreters.begin(), kInterpreters.end(), [&](std::string_view interpreter) {
        return name.starts_with(interpreter) &&
               name.find_first_not_of("0123456789.", interpreter.size()) == std::string_view::npos;
    });
}

bool canBeMainProcess(const ProcInfo& process) {
    const std::string_view name = nameOf(process.path);
    return !isHelperExecutable(name) && !isInterpreter(name) && !hasTypeArgument(process) &&
           !process.env.contains("ELECTRON_RUN_AS_NODE");
}

} // namespace selvane
