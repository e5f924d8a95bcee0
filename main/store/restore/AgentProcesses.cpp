// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/restore/AgentProcesses.h"

#include <array>

#include "desktop/AgentProcess.h"
#include "platform/files/NormalizedPath.h"
#include "platform/process/ProcInfo.h"

namespace selvane {
namespace {

constexpr std::array<std::string_view, 2> kVariables = {"CLAUDE_CONFIG_DIR", "HOME"};

} // namespace

std::set<std::string> agentConfigurations(const std::filesystem::path& standard) {
    std::set<std::string> folders;
    for (const ProcInfo& process : ProcInfo::all(kVariables)) {
        if (!isAgent(process))
            continue;
        const auto folder = [&](std::string_view variable) {
            const auto value = process.env.find(std::string(variable));
            const bool isKnown = value != process.env.end() && value->second.starts_with('/');
            return isKnown ? std::filesystem::path(value->second) : std::filesystem::path();
        };
        const std::filesystem::path named = folder(kVariables[0]);
        const std::filesystem::path home = folder(kVariables[1]);
        folders.insert(normalizedPath(!named.empty() ? named : home.empty() ? standard : home / ".claude"));
    }
    return folders;
}

} // namespace selvane
