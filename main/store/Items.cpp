// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/ProfileStore.h"

#include "model/LauncherError.h"
#include "platform/Text.h"

namespace selvane {

namespace fs = std::filesystem;

std::vector<std::string> ProfileStore::itemNames(Component component, const Profile& profile) const {
    std::vector<std::string> names = m_files.entriesIfReadable(profile.url(component));
    std::erase_if(names, [component](const std::string& name) {
        return name.starts_with('.') || (component == Component::rules && name == kProfileNoteName);
    });
    std::vector<std::string> sorted;
    sorted.reserve(names.size());
    for (const std::size_t position : text::sortedOrder({names.begin(), names.end()}))
        sorted.push_back(std::move(names[position]));
    return sorted;
}

std::vector<ComponentItem> ProfileStore::items(Component component, const Profile& profile) const {
    const fs::path folder = profile.url(component);
    std::vector<ComponentItem> result;
    for (std::string& name : itemNames(component, profile)) {
        ComponentItem item{std::move(name), {}, std::nullopt, false};
        item.url = folder / item.name;
        if (const auto target = m_files.linkTarget(item.url)) {
            item.linkTarget = target->string();
            item.isBroken = !m_files.existsFollowingLinks(item.url);
        }
        result.push_back(std::move(item));
    }
    return result;
}

bool ProfileStore::isLinked(const ComponentItem& item, const Profile& to, Component component) const {
    return item.linkTarget && item.linkTarget->starts_with(to.url(component).string() + "/");
}

/// A folder linked as a whole is another profile's: what is done in it would be done there.
void ProfileStore::requireOwnFolder(Component component, const Profile& profile) const {
    if (m_files.linkTarget(profile.url(component)))
        throw LauncherError("La cartella \"" + std::string(rawValue(component)) + "\" di " +
                            profile.meta.name +
                            " è un collegamento: gli elementi si cambiano nella cartella a cui porta");
}

/// Where a new item of that name belongs, its folder made; throws when something is there already.
fs::path ProfileStore::freePlace(const std::string& name, const Profile& in, Component component) {
    const fs::path folder = in.url(component);
    requireOwnFolder(component, in);
    m_files.createFolders(folder);
    fs::path place = folder / name;
    if (m_files.exists(place))
        throw LauncherError("\"" + text::singleLine(name) + "\" esiste già in " + in.meta.name);
    return place;
}

void ProfileStore::addItem(const ComponentItem& item, const Profile& to, Component component, bool link) {
    const fs::path place = freePlace(item.name, to, component);
    if (link)
        m_files.createLink(item.url, place);
    else
        m_files.copy(m_files.resolved(item.url), place);
}

} // namespace selvane
