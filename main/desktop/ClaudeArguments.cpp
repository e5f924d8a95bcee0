// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "desktop/ClaudeArguments.h"

#include <algorithm>

#include "platform/files/NormalizedPath.h"
#include "platform/process/MainProcess.h"

namespace selvane {
namespace {

/// Separate arguments begin with the program's path. In joined ones, everything after the first is empty.
bool areJoined(const std::vector<std::string>& arguments) {
    return !arguments.empty() && arguments.front().find(" --") != std::string::npos &&
           std::all_of(arguments.begin() + 1, arguments.end(),
                       [](const std::string& argument) { return argument.empty(); });
}

/// The script that an interpreter runs; empty if the process isn't one.
std::string_view scriptOf(const ProcInfo& process) {
    if (!isInterpreter(process.path) || process.args.empty())
        return {};
    const auto script = std::find_if(process.args.begin() + 1, process.args.end(),
                                     [](const std::string& argument) { return !argument.starts_with('-'); });
    return script == process.args.end() ? std::string_view() : *script;
}

} // namespace

std::optional<std::string> dataDirArgument(const ProcInfo& process, const DataFolders& folders) {
    if (areJoined(process.args)) {
        const std::string_view text = process.args.front();
        const std::size_t found = text.find(" " + std::string(kDataDirSwitch));
        if (found == std::string_view::npos)
            return std::nullopt;
        return folders.named(text.substr(found + 1 + kDataDirSwitch.size()));
    }
    for (const std::string& argument : process.args) {
        if (argument.starts_with(kDataDirSwitch) && argument.size() > kDataDirSwitch.size())
            return normalizedPath(argument.substr(kDataDirSwitch.size()));
    }
    return std::nullopt;
}

bool namesDataFolder(const ProcInfo& process, const std::string& folder, const DataFolders& folders) {
    if (areJoined(process.args)) {
        const std::string_view text = process.args.front();
        for (std::size_t at = text.find('='); at != std::string_view::npos; at = text.find('=', at + 1)) {
            if (folders.named(text.substr(at + 1)) == folder)
                return true;
        }
    }
    const std::string value = "=" + folder;
    const bool isOption = std::ranges::any_of(process.args, [&](const std::string& argument) {
        return argument.ends_with(value) || argument.find(value + "/") != std::string::npos;
    });
    return isOption || scriptOf(process).starts_with(folder + "/");
}

} // namespace selvane
