// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/ProfileStore.h"

#include <algorithm>
#include <unordered_set>

#include "model/LauncherError.h"
#include "platform/files/FileBatch.h"
#include "platform/text/Text.h"
#include "store/ItemListing.h"
#include "store/KeptOwn.h"
#include "store/OwnFolder.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

std::string reportLine(Component component, const std::string& item) {
    return std::string(title(component)) + ": " + item;
}

/// Calls `use` with the name and the text of each link in `own` to something below `origin`, the source's
/// folder of the same component.
template <typename Use>
void forEachShared(const ItemListing& own, std::string_view origin, Use use) {
    for (const FolderEntry& entry : own.entries) {
        const auto target = entry.isLink ? own.folder->linkTarget(entry.name) : std::nullopt;
        if (target && target->starts_with(origin))
            use(entry.name, *target);
    }
}

/// The dangling links among those into `origin`, which `offered` lists.
std::vector<std::string> brokenLinks(const ItemListing& own, const ItemListing& offered,
                                     std::string_view origin) {
    std::unordered_set<std::string_view> there; // these exist, so there is no need to look
    for (const FolderEntry& entry : offered.entries) {
        if (!entry.isLink)
            there.insert(entry.name);
    }
    std::vector<std::string> broken;
    forEachShared(own, origin, [&](const std::string& name, std::string_view target) {
        if (!there.contains(target.substr(origin.size())) && !own.folder->isPresent(name))
            broken.push_back(name);
    });
    return broken;
}

/// Whether the source's folder is there with something in it. If its disk isn't mounted, it is missing or
/// empty, and so is everything that links lead to.
bool isReachable(const Profile& source) {
    return !FileManager().entriesIfPresent(source.configDir).empty();
}

std::vector<std::string> missingItems(const ItemListing& own, const ItemListing& offered,
                                      const std::set<std::string>& excluded) {
    std::unordered_set<std::string_view> present;
    for (const FolderEntry& entry : own.entries)
        present.insert(entry.name);
    std::vector<std::string> missing;
    for (const FolderEntry& entry : offered.entries) {
        // A link to a dangling link would be removed again by the next run.
        if (!present.contains(entry.name) && !excluded.contains(entry.name) &&
            (!entry.isLink || offered.folder->isPresent(entry.name)))
            missing.push_back(entry.name);
    }
    return missing;
}

void record(ShareMode mode, Component component, Profile& profile) {
    profile.meta.modes[std::string(rawValue(component))] = mode;
}

} // namespace

SyncReport ProfileStore::sync(const Profile& profile) {
    const FolderLock lock = locked(profile);
    return syncLinks(current(profile));
}

SyncReport ProfileStore::syncLinks(const Profile& profile) {
    writeProfileNote(profile);
    SyncReport report;
    const auto source = sourceOf(profile);
    for (const Component component : kComponents) {
        if (source && isCollection(component) && profile.mode(component) == ShareMode::shared)
            syncCollection(component, profile, *source, report);
    }
    updateExcludes(profile);
    return report;
}

void ProfileStore::syncCollection(Component component, const Profile& profile, const Profile& source,
                                  SyncReport& report, FileChanges* changes) {
    const fs::path folder = profile.url(component);
    if (m_files.linkTarget(folder))
        return; // what is in it isn't the profile's
    const std::string origin = source.url(component).native() + "/";
    const ItemListing offered(component, source.url(component));
    if (!offered.folder && !isReachable(source))
        return; // its items may come back, and with them what the links lead to
    const ItemListing own(component, folder);
    for (const std::string& name : text::sorted(brokenLinks(own, offered, origin))) {
        const auto target = changes == nullptr ? std::nullopt : own.folder->linkTarget(name);
        if (!own.folder->removeLink(name))
            continue;
        report.removed.push_back(reportLine(component, name));
        if (target)
            changes->add(folder / name, files::LinkText{*target}, files::Nothing{});
    }
    // The names just removed still count as present, so no link is removed and made again in one run.
    const std::vector<std::string> missing = missingItems(own, offered, profile.excluded(component));
    if (missing.empty())
        return;
    createOwnFolder(profile, folder);
    const OpenFolder target(folder);
    for (const std::string& name : text::sorted(missing)) {
        target.createLink(origin + name, name);
        report.added.push_back(reportLine(component, name));
        if (changes != nullptr)
            changes->add(folder / name, files::Nothing{}, files::LinkText{origin + name});
    }
}

Profile ProfileStore::setMode(ShareMode mode, Component component, const Profile& profile) {
    const auto source = sourceOf(profile);
    if (!source)
        throw LauncherError("Questo profilo non ha una sorgente da cui ereditare");
    if (!allows(component, mode))
        throw LauncherError("Modalità non valida: " + std::string(rawValue(component)) + "=" +
                            std::string(rawValue(mode)));
    const FolderLock lock = locked(profile);
    Profile changed = current(profile);
    if (changed.mode(component) == mode)
        return changed;
    if (isCollection(component)) {
        setCollectionMode(mode, component, changed, *source);
        updateExcludes(changed);
        return changed;
    }
    if (kind(component) == ComponentKind::memory)
        changeClaudeMd(mode, changed, *source);
    else if (mode == ShareMode::separate)
        apply(component, mode, changed, *source, m_files);
    record(mode, component, changed);
    saveMeta(changed);
    updateExcludes(changed);
    return changed;
}

void ProfileStore::setCollectionMode(ShareMode mode, Component component, Profile& profile,
                                     const Profile& source) {
    requireOwnFolder(component, profile);
    if (mode == ShareMode::shared) {
        // Recorded only once its links are there: if one fails, the same change completes the work later.
        SyncReport report;
        record(mode, component, profile);
        syncCollection(component, profile, source, report, changes());
        saveMeta(profile);
        syncLinks(profile);
        return;
    }
    FileBatch batch(profile.configDir, m_progress, changes());
    const std::string origin = source.url(component).native() + "/";
    const ItemListing own(component, profile.url(component));
    if (mode == ShareMode::separate && m_progress != nullptr)
        forEachShared(own, origin, [&](const std::string&, const std::string& target) { announce(target); });
    forEachShared(own, origin, [&](const std::string& name, const std::string& target) {
        const fs::path link = profile.url(component) / name;
        if (mode == ShareMode::none) {
            if (own.folder->removeLink(name) && m_reversal != nullptr)
                m_reversal->files.add(link, files::LinkText{target}, files::Nothing{});
        } else if (m_files.isRegularFile(target)) { // by far most, and nothing needs to be resolved for them
            batch.copyFileOverLink(target, link);
        } else if (m_files.isPresent(link)) {
            batch.copyOverLink(m_files.resolved(link), link);
        } else if (!isReachable(source)) { // or there is nothing to copy, and it may lead somewhere again
            throw fs::filesystem_error("look up", source.configDir,
                                       std::make_error_code(std::errc::no_such_file_or_directory));
        }
    });
    if (mode == ShareMode::separate && profile.mode(component) == ShareMode::none)
        copyMissing(component, profile, source, batch);
    batch.finish();
    if (mode == ShareMode::none && m_files.isFolder(profile.url(component)))
        m_files.waitForNames(profile.url(component));
    record(mode, component, profile);
    saveMeta(profile);
}

void ProfileStore::makeOwn(const ComponentItem& item, const Profile& profile) {
    const FolderLock lock = locked(profile);
    requireNoLink(profile.configDir, item.url.parent_path());
    if (m_files.linkTarget(item.url)) {
        const fs::path origin = m_files.resolved(item.url);
        announce(origin);
        m_files.replaceLink(item.url, [&](const fs::path& temporary) { m_files.copy(origin, temporary); });
    }
    // Made on purpose, it's no item that a program has changed.
    const Profile before = current(profile);
    Profile changed = before;
    for (const Component component : kComponents) {
        if (changed.url(component) != item.url.parent_path())
            continue;
        for (const ChangedItem& own : changedItems(component, changed, Unreadable::fails)) {
            if (own.name == item.name)
                keep(changed.meta, component, own.name);
        }
    }
    if (changed != before)
        saveMeta(changed);
    updateExcludes(changed);
}

void ProfileStore::copyMissing(Component component, const Profile& to, const Profile& from,
                               FileBatch& batch) {
    const ItemListing own(component, to.url(component));
    const ItemListing offered(component, from.url(component));
    const auto missing = text::sorted(missingItems(own, offered, to.excluded(component)));
    for (const std::string& name : missing)
        announce(from.url(component) / name);
    for (const std::string& name : missing)
        addCopy(from.url(component) / name, to, component, batch);
}

Profile ProfileStore::remove(const ComponentItem& item, const Profile& from, Component component) {
    requireOwnFolder(component, from);
    const FolderLock lock = locked(from);
    Profile changed = current(from);
    // Check again: another program may have replaced the link by a file since it was listed.
    if (!m_files.removeLink(item.url)) {
        forgetKeptIn(changed, {component, item.name, item.url, {}});
        m_files.moveToTrash(item.url);
        updateExcludes(changed);
        return changed;
    }
    m_files.waitForNames(item.url.parent_path());
    const auto source = sourceOf(from);
    if (source && isLinked(item, *source, component)) {
        auto& excluded = changed.meta.excluded[std::string(rawValue(component))];
        if (std::find(excluded.begin(), excluded.end(), item.name) == excluded.end())
            excluded.push_back(item.name);
        std::sort(excluded.begin(), excluded.end());
        saveMeta(changed);
    }
    updateExcludes(changed);
    return changed;
}

Profile ProfileStore::importItems(const std::set<std::string>& names, const Profile& source,
                                  const Profile& into, Component component, bool link) {
    const FolderLock lock = locked(into);
    FileBatch batch(into.configDir, m_progress);
    std::vector<std::string> imported;
    for (const FolderEntry& entry : ItemListing(component, source.url(component)).entries) {
        if (!names.contains(entry.name))
            continue;
        imported.push_back(entry.name);
        if (!link)
            announce(source.url(component) / entry.name);
    }
    for (const std::string& name : text::sorted(imported)) {
        const fs::path item = source.url(component) / name;
        if (link)
            m_files.createLink(item, freePlace(name, into, component));
        else
            addCopy(item, into, component, batch);
    }
    batch.finish();
    if (link && !imported.empty())
        m_files.waitForNames(into.url(component));
    Profile changed = current(into);
    const auto excluded = changed.meta.excluded.find(std::string(rawValue(component)));
    if (excluded != changed.meta.excluded.end())
        std::erase_if(excluded->second, [&](const std::string& name) {
            return std::find(imported.begin(), imported.end(), name) != imported.end();
        });
    saveMeta(changed);
    updateExcludes(changed);
    return changed;
}

} // namespace selvane
