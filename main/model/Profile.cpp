// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "model/Profile.h"

namespace selvane {

bool Profile::isPossibleId(std::string_view id) {
    return !id.empty() && id.front() != '.' && id.find_first_of(std::string_view("/\0", 2)) == id.npos;
}

std::string Profile::accountOwner() const {
    if (isDefault())
        return id;
    return meta.account.value_or(id);
}

ShareMode Profile::mode(Component component) const {
    const auto entry = meta.modes.find(std::string(rawValue(component)));
    return entry == meta.modes.end() ? ShareMode::none : entry->second;
}

std::set<std::string> Profile::excluded(Component component) const {
    const auto entry = meta.excluded.find(std::string(rawValue(component)));
    if (entry == meta.excluded.end())
        return {};
    return {entry->second.begin(), entry->second.end()};
}

std::filesystem::path Profile::url(Component component) const {
    if (kind(component) == ComponentKind::servers && globalState)
        return *globalState;
    return configDir / location(component);
}

} // namespace selvane
