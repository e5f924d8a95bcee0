// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/ProfileStore.h"

#include "model/LauncherError.h"
#include "platform/files/FileBatch.h"
#include "platform/text/Text.h"
#include "store/ItemListing.h"
#include "store/OwnFolder.h"

namespace selvane {

namespace fs = std::filesystem;

ItemListing::ItemListing(Component component, const fs::path& path) : folder(OpenFolder::ifPresent(path)) {
    if (folder)
        entries = folder->entries();
    std::erase_if(entries, [component](const FolderEntry& entry) {
        return entry.name.starts_with('.') ||
               (component == Component::rules && entry.name == ProfileStore::kProfileNoteName);
    });
}

std::vector<ComponentItem> ProfileStore::items(Component component, const Profile& profile) const {
    const fs::path folder = profile.url(component);
    std::optional<ItemListing> listing;
    try {
        listing.emplace(component, folder);
    } catch (const fs::filesystem_error&) { // shown as empty
        return {};
    }
    std::vector<std::string_view> names;
    for (const FolderEntry& entry : listing->entries)
        names.push_back(entry.name);

    std::vector<ComponentItem> result;
    result.reserve(names.size());
    for (const std::size_t position : text::sortedOrder(names)) {
        const auto& [name, isLink] = listing->entries[position];
        ComponentItem item{name, folder / name, std::nullopt, false};
        try {
            if (isLink)
                item.linkTarget = listing->folder->linkTarget(name);
            item.isBroken = item.isLinked() && !listing->folder->isPresent(name);
        } catch (const fs::filesystem_error&) { // where the link leads can't be seen
            item.isBroken = true;
        }
        result.push_back(std::move(item));
    }
    return result;
}

bool ProfileStore::isLinked(const ComponentItem& item, const Profile& to, Component component) const {
    return item.linkTarget && item.linkTarget->starts_with(to.url(component).string() + "/");
}

/// A folder that is itself a link belongs to another profile, and so would any change in it.
void ProfileStore::requireOwnFolder(Component component, const Profile& profile) const {
    if (m_files.linkTarget(profile.url(component)))
        throw LauncherError("La cartella \"" + std::string(rawValue(component)) + "\" di " +
                            profile.meta.name +
                            " è un collegamento: gli elementi si cambiano nella cartella a cui porta");
}

/// The path for a new item, in its folder, which is created if missing. Throws if the name is taken.
fs::path ProfileStore::freePlace(const std::string& name, const Profile& in, Component component) {
    const fs::path folder = in.url(component);
    requireOwnFolder(component, in);
    createOwnFolder(in, folder);
    fs::path place = folder / name;
    if (m_files.exists(place))
        throw LauncherError("\"" + text::singleLine(name) + "\" esiste già in " + in.meta.name);
    return place;
}

void ProfileStore::addItem(const ComponentItem& item, const Profile& to, Component component, bool link) {
    const FolderLock lock = locked(to);
    if (link) {
        m_files.createLink(item.url, freePlace(item.name, to, component));
        m_files.waitForNames(to.url(component));
    } else {
        FileBatch batch(to.configDir, m_progress);
        addCopy(item.url, to, component, batch);
        batch.finish();
    }
    updateExcludes(current(to));
}

void ProfileStore::addCopy(const fs::path& item, const Profile& to, Component component, FileBatch& batch) {
    const fs::path place = freePlace(item.filename().string(), to, component);
    batch.copy(m_files.linkTarget(item) ? m_files.resolved(item) : item, place);
}

std::vector<std::string> ProfileStore::uncopiedItems(const Profile& profile) const {
    std::vector<std::string> lines;
    const auto source = profile.meta.source ? this->profile(*profile.meta.source) : std::nullopt;
    for (const Component component : kComponents) {
        if (!source || !isCollection(component) || profile.mode(component) != ShareMode::separate)
            continue;
        const std::set<std::string> excluded = profile.excluded(component);
        std::set<std::string> own;
        for (const ComponentItem& item : items(component, profile))
            own.insert(item.name);
        for (const ComponentItem& item : items(component, *source)) {
            if (item.isBroken && !excluded.contains(item.name) && !own.contains(item.name))
                lines.push_back(std::string(title(component)) + ": " + item.name);
        }
    }
    return lines;
}

} // namespace selvane
