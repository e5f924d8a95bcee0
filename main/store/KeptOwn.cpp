// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/KeptOwn.h"

#include <algorithm>
#include <vector>

namespace selvane {

bool isKeptOwn(const ProfileMeta& meta, Component component, const std::string& name) {
    const auto kept = meta.keptOwn.find(std::string(rawValue(component)));
    return kept != meta.keptOwn.end() &&
           std::find(kept->second.begin(), kept->second.end(), name) != kept->second.end();
}

void keep(ProfileMeta& meta, Component component, const std::string& name) {
    if (isKeptOwn(meta, component, name))
        return;
    std::vector<std::string>& kept = meta.keptOwn[std::string(rawValue(component))];
    kept.insert(std::upper_bound(kept.begin(), kept.end(), name), name);
}

void forgetKept(ProfileMeta& meta, Component component, const std::string& name) {
    const auto kept = meta.keptOwn.find(std::string(rawValue(component)));
    if (kept == meta.keptOwn.end())
        return;
    std::erase(kept->second, name);
    if (kept->second.empty())
        meta.keptOwn.erase(kept);
}

} // namespace selvane
