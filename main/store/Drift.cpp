// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/ProfileStore.h"

#include <algorithm>
#include <unordered_set>

#include "model/LauncherError.h"
#include "platform/files/FolderLock.h"
#include "platform/text/Text.h"
#include "store/ItemListing.h"
#include "store/KeptOwn.h"

/// Items that no longer follow their source, because a program has replaced their links by files.
namespace selvane {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> ownNamesOfSource(const ItemListing& own, const ItemListing& offered) {
    std::unordered_set<std::string_view> there;
    for (const FolderEntry& entry : offered.entries)
        there.insert(entry.name);
    std::vector<std::string> names;
    for (const FolderEntry& entry : own.entries) {
        if (!entry.isLink && there.contains(entry.name))
            names.push_back(entry.name);
    }
    return text::sorted(names);
}

LauncherError notChanged(const ChangedItem& item) {
    return LauncherError("\"" + text::singleLine(item.name) +
                         "\" non risulta più modificato: aggiorna e riprova");
}

} // namespace

std::vector<ChangedItem> ProfileStore::changedItems(Component component, const Profile& profile,
                                                    Unreadable unreadable) const {
    const auto source = sourceOf(profile);
    if (!source || profile.mode(component) != ShareMode::shared)
        return {};
    const fs::path own = profile.url(component);
    const fs::path origin = source->url(component);
    std::vector<ChangedItem> changed;
    try {
        if (kind(component) == ComponentKind::memory) {
            const std::string name = own.filename().string();
            if (m_files.isRegularFile(own) && m_files.isPresent(origin) &&
                !isKeptOwn(profile.meta, component, name))
                changed.push_back({component, name, own, origin});
        } else if (isCollection(component) && !m_files.linkTarget(own)) {
            const std::set<std::string> excluded = profile.excluded(component);
            for (const std::string& name :
                 ownNamesOfSource(ItemListing(component, own), ItemListing(component, origin))) {
                if (!excluded.contains(name) && !isKeptOwn(profile.meta, component, name))
                    changed.push_back({component, name, own / name, origin / name});
            }
        }
    } catch (const fs::filesystem_error&) {
        if (unreadable == Unreadable::fails)
            throw;
        return {};
    }
    return changed;
}

std::vector<ChangedItem> ProfileStore::changedItems(const Profile& profile) const {
    std::vector<ChangedItem> all;
    for (const Component component : kComponents) {
        for (ChangedItem& item : changedItems(component, profile))
            all.push_back(std::move(item));
    }
    return all;
}

/// The source of `item`, once it's certain that the item still is what it was listed as.
Profile ProfileStore::sourceOfChanged(const ChangedItem& item, const Profile& profile) const {
    auto source = sourceOf(profile);
    if (!source || profile.mode(item.component) != ShareMode::shared)
        throw notChanged(item);
    if (isCollection(item.component))
        requireOwnFolder(item.component, profile);
    const bool isThere = m_files.exists(item.own) && !m_files.linkTarget(item.own);
    if (!isThere || item.own != changedPath(item, profile) || item.source != changedPath(item, *source))
        throw notChanged(item);
    return std::move(*source);
}

fs::path ProfileStore::changedPath(const ChangedItem& item, const Profile& in) {
    return isCollection(item.component) ? in.url(item.component) / item.name : in.url(item.component);
}

Profile ProfileStore::relink(const ChangedItem& item, const Profile& profile) {
    const FolderLock lock = locked(profile);
    return relinkEach({item}, current(profile));
}

Profile ProfileStore::relinkAll(Component component, const Profile& profile) {
    const FolderLock lock = locked(profile);
    const Profile now = current(profile);
    return relinkEach(changedItems(component, now, Unreadable::fails), now);
}

Profile ProfileStore::relinkEach(const std::vector<ChangedItem>& items, Profile profile) {
    for (const ChangedItem& item : items) {
        static_cast<void>(sourceOfChanged(item, profile));
        if (!m_files.isPresent(item.source))
            throw notChanged(item);
        forgetKeptIn(profile, item);
        m_files.replaceTrashing(
            item.own, [&](const fs::path& temporary) { m_files.createLink(item.source, temporary); });
    }
    updateExcludes(profile);
    return profile;
}

/// Records that an item is to follow the source again: before it does, because what is left of an interrupted
/// change then counts as changed, so that the change can be made once more.
void ProfileStore::forgetKeptIn(Profile& profile, const ChangedItem& item) {
    const ProfileMeta before = profile.meta;
    forgetKept(profile.meta, item.component, item.name);
    if (profile.meta != before)
        saveMeta(profile);
}

Profile ProfileStore::bringToSource(const ChangedItem& item, const Profile& profile) {
    const auto source = sourceOf(profile);
    if (!source)
        throw notChanged(item);
    // In one order, so that two of them never wait for each other.
    const bool isFirst = profile.configDir < source->configDir;
    const FolderLock first = locked(isFirst ? profile : *source);
    const FolderLock second = locked(isFirst ? *source : profile);
    Profile now = current(profile);
    const Profile target = sourceOfChanged(item, now);
    if (isCollection(item.component))
        requireOwnFolder(item.component, target);
    announce(item.own);
    forgetKeptIn(now, item);
    m_files.replaceTrashing(item.source,
                            [&](const fs::path& temporary) { m_files.copy(item.own, temporary); });
    const bool isSame = m_files.replaceCopy(item.own, item.source, [&](const fs::path& temporary) {
        m_files.createLink(item.source, temporary);
    });
    if (!isSame)
        throw LauncherError("\"" + text::singleLine(item.name) + "\" è cambiato nel frattempo: riprova");
    if (m_reversal != nullptr)
        m_reversal->files.add(item.own, FileChanges::CopyOf{item.source}, files::LinkText{item.source});
    updateExcludes(target);
    updateExcludes(now);
    return now;
}

Profile ProfileStore::keepOwn(const ChangedItem& item, const Profile& profile) {
    return changeMeta(profile, [&](ProfileMeta& meta) { keep(meta, item.component, item.name); });
}

} // namespace selvane
