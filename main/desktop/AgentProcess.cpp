// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "desktop/AgentProcess.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "platform/process/ProcessFamily.h"

namespace selvane {
namespace {

bool isNamedClaude(std::string_view path) {
    return path.substr(path.rfind('/') + 1) == "claude";
}

} // namespace

bool isAgent(const ProcInfo& process) {
    if (isNamedClaude(process.path) || (!process.args.empty() && isNamedClaude(process.args[0])))
        return true;
    return process.args.size() > 1 &&
           (isNamedClaude(process.args[1]) ||
            process.args[1].find("/@anthropic-ai/claude-code/") != std::string::npos);
}

std::optional<int> agentSessions(const std::vector<ProcInfo>& processes, std::int32_t pid) {
    const ProcessFamily family(processes);
    if (family.find(pid) == nullptr)
        return std::nullopt;
    std::vector<const ProcInfo*> agents = family.descendants(pid);
    std::erase_if(agents, [](const ProcInfo* process) { return !isAgent(*process); });
    const auto belongsToAnother = [&](const ProcInfo* agent) {
        const auto isOther = [&](const ProcInfo& process) {
            return std::ranges::find(agents, &process) != agents.end();
        };
        return family.ancestor(*agent, isOther) != nullptr;
    };
    return static_cast<int>(agents.size() -
                            static_cast<std::size_t>(std::ranges::count_if(agents, belongsToAnother)));
}

} // namespace selvane
