// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/ProfileStore.h"

#include <algorithm>
#include <unordered_set>

#include "model/LauncherError.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

std::string reportLine(Component component, const std::string& item) {
    return std::string(title(component)) + ": " + item;
}

std::unordered_set<std::string> namesOf(const std::vector<ComponentItem>& items) {
    std::unordered_set<std::string> names;
    for (const ComponentItem& item : items)
        names.insert(item.name);
    return names;
}

void record(ShareMode mode, Component component, Profile& profile) {
    profile.meta.modes[std::string(rawValue(component))] = mode;
}

} // namespace

SyncReport ProfileStore::sync(const Profile& profile) {
    writeProfileNote(profile);
    SyncReport report;
    const auto source = sourceOf(profile);
    if (!source)
        return report;
    for (const Component component : kComponents) {
        if (!isCollection(component) || profile.mode(component) != ShareMode::shared)
            continue;
        const std::vector<ComponentItem> own = items(component, profile);
        for (const ComponentItem& item : own) {
            if (item.isBroken && isLinked(item, *source, component) && m_files.removeLink(item.url))
                report.removed.push_back(reportLine(component, item.name));
        }
        // Names just removed count as present: none is dropped and made again in one run.
        const auto present = namesOf(own);
        const auto excluded = profile.excluded(component);
        for (const std::string& name : itemNames(component, *source)) {
            const std::filesystem::path origin = source->url(component) / name;
            // One that leads nowhere itself would be dropped again by the next run.
            if (present.contains(name) || excluded.contains(name) || !m_files.existsFollowingLinks(origin))
                continue;
            m_files.createLink(origin, freePlace(name, profile, component));
            report.added.push_back(reportLine(component, name));
        }
    }
    return report;
}

Profile ProfileStore::setMode(ShareMode mode, Component component, const Profile& profile) {
    const auto source = sourceOf(profile);
    if (!source)
        throw LauncherError("Questo profilo non ha una sorgente da cui ereditare");
    if (!allows(component, mode))
        throw LauncherError("Modalità non valida: " + std::string(rawValue(component)) + "=" +
                            std::string(rawValue(mode)));
    Profile changed = profile;
    if (changed.mode(component) == mode)
        return changed;
    if (isCollection(component)) {
        setCollectionMode(mode, component, changed, *source);
        return changed;
    }
    if (component == Component::claudeMd)
        changeClaudeMd(mode, changed, *source);
    else if (mode == ShareMode::separate)
        apply(component, mode, changed, *source);
    record(mode, component, changed);
    saveMeta(changed);
    return changed;
}

void ProfileStore::setCollectionMode(ShareMode mode, Component component, Profile& profile,
                                     const Profile& source) {
    if (mode == ShareMode::shared) {
        record(mode, component, profile);
        saveMeta(profile);
        sync(profile);
        return;
    }
    for (const ComponentItem& item : items(component, profile)) {
        if (!isLinked(item, source, component))
            continue;
        if (mode == ShareMode::none)
            m_files.removeLink(item.url);
        else if (!item.isBroken) // a link that leads nowhere has nothing to copy, and may lead there again
            makeOwn(item, profile);
    }
    if (mode == ShareMode::separate && profile.mode(component) == ShareMode::none)
        copyMissing(component, profile, source);
    record(mode, component, profile);
    saveMeta(profile);
}

void ProfileStore::makeOwn(const ComponentItem& item, const Profile&) {
    if (!m_files.linkTarget(item.url))
        return;
    const fs::path origin = m_files.resolved(item.url);
    m_files.replaceLink(item.url, [&](const fs::path& temporary) { m_files.copy(origin, temporary); });
}

void ProfileStore::copyMissing(Component component, const Profile& to, const Profile& from) {
    const auto present = namesOf(items(component, to));
    const auto excluded = to.excluded(component);
    for (const ComponentItem& item : items(component, from)) {
        if (!present.contains(item.name) && !excluded.contains(item.name) && !item.isBroken)
            addItem(item, to, component, false);
    }
}

Profile ProfileStore::remove(const ComponentItem& item, const Profile& from, Component component) {
    requireOwnFolder(component, from);
    Profile changed = from;
    // Looked at again: since it was listed, another program may have put a file in the place of the link.
    if (!m_files.removeLink(item.url)) {
        m_files.moveToTrash(item.url);
        return changed;
    }
    const auto source = sourceOf(from);
    if (source && isLinked(item, *source, component)) {
        auto& excluded = changed.meta.excluded[std::string(rawValue(component))];
        if (std::find(excluded.begin(), excluded.end(), item.name) == excluded.end())
            excluded.push_back(item.name);
        std::sort(excluded.begin(), excluded.end());
        saveMeta(changed);
    }
    return changed;
}

Profile ProfileStore::importItems(const std::set<std::string>& names, const Profile& source,
                                  const Profile& into, Component component, bool link) {
    std::set<std::string> imported;
    for (const ComponentItem& item : items(component, source)) {
        if (!names.contains(item.name))
            continue;
        addItem(item, into, component, link);
        imported.insert(item.name);
    }
    Profile changed = into;
    const auto excluded = changed.meta.excluded.find(std::string(rawValue(component)));
    if (excluded != changed.meta.excluded.end())
        std::erase_if(excluded->second, [&](const std::string& name) { return imported.contains(name); });
    saveMeta(changed);
    return changed;
}

} // namespace selvane
