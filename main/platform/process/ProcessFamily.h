// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <unordered_map>
#include <vector>

#include "platform/process/ProcInfo.h"

namespace selvane {

/// The family tree of a list of processes, which must outlive it. Processes come and go while such a list is
/// read, so a reused pid can close a circle; no search runs for ever, even then.
class ProcessFamily {
public:
    explicit ProcessFamily(const std::vector<ProcInfo>& processes);

    const ProcInfo* find(std::int32_t pid) const; ///< null if it isn't in the list
    /// All descendants of a process, the nearest first.
    std::vector<const ProcInfo*> descendants(std::int32_t pid) const;

    /// The nearest ancestor that passes `test`, at most `generations` up; null if there is none.
    template <typename Test>
    const ProcInfo* ancestor(const ProcInfo& process, Test test, std::size_t generations) const {
        const ProcInfo* current = find(process.ppid);
        for (std::size_t i = 0; current != nullptr && current->pid != process.pid && i < generations; ++i) {
            if (test(*current))
                return current;
            current = find(current->ppid);
        }
        return nullptr;
    }
    template <typename Test>
    const ProcInfo* ancestor(const ProcInfo& process, Test test) const {
        return ancestor(process, test, m_byPid.size());
    }

private:
    std::unordered_map<std::int32_t, const ProcInfo*> m_byPid;
    std::unordered_multimap<std::int32_t, const ProcInfo*> m_children; ///< by their parent's pid
};

} // namespace selvane
