// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/process/ProcessFamily.h"

#include <set>

namespace selvane {

ProcessFamily::ProcessFamily(const std::vector<ProcInfo>& processes) {
    m_byPid.reserve(processes.size());
    m_children.reserve(processes.size());
    for (const ProcInfo& process : processes) {
        m_byPid.emplace(process.pid, &process);
        m_children.emplace(process.ppid, &process);
    }
}

const ProcInfo* ProcessFamily::find(std::int32_t pid) const {
    const auto found = m_byPid.find(pid);
    return found == m_byPid.end() ? nullptr : found->second;
}

std::vector<const ProcInfo*> ProcessFamily::descendants(std::int32_t pid) const {
    std::vector<const ProcInfo*> result;
    std::set<std::int32_t> seen = {pid};
    const auto addChildren = [&](std::int32_t parent) {
        const auto [begin, end] = m_children.equal_range(parent);
        for (auto child = begin; child != end; ++child) {
            if (seen.insert(child->second->pid).second)
                result.push_back(child->second);
        }
    };
    addChildren(pid);
    for (std::size_t i = 0; i < result.size(); ++i)
        addChildren(result[i]->pid);
    return result;
}

} // namespace selvane
