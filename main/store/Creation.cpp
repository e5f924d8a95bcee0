// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/ProfileStore.h"

#include <algorithm>

#include "model/ByteText.h"
#include "model/LauncherError.h"
#include "platform/files/FileCopier.h"
#include "platform/files/Progress.h"
#include "platform/text/Text.h"
#include "store/ItemListing.h"
#include "store/OwnFolder.h"
#include "store/ProfileRecord.h"
#include "store/Slug.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kUnfinishedName = ".selvane-unfinished";

std::string checkedName(const std::string& name) {
    const std::string trimmed(text::trimmed(name));
    if (trimmed.empty())
        throw LauncherError("Il nome del profilo è obbligatorio");
    if (!isUtf8(trimmed))
        throw LauncherError("Il nome del profilo non è testo UTF-8 valido");
    // A line break would end up in the note that Claude Code reads as a rule.
    if (text::singleLine(trimmed) != trimmed)
        throw LauncherError("Il nome del profilo non può contenere caratteri di controllo");
    return trimmed;
}

} // namespace

/// The first free id. One whose profile was never completed is free again.
std::string ProfileStore::freeSlug(const std::string& name) {
    const std::string base = slug(name);
    std::string candidate = base;
    for (int number = 2; m_files.exists(root() / candidate) && !removeUnfinished(candidate); ++number)
        candidate = base + "-" + std::to_string(number);
    return candidate;
}

/// Removes what an interrupted `create` has left of a profile; false if the folder is anything else, or if
/// another Selvane is creating it now.
bool ProfileStore::removeUnfinished(const std::string& id) {
    const fs::path folder = root() / id;
    if (!m_files.isFolder(folder))
        return false;
    const auto lock = FolderLock::ifFree(folder);
    if (!lock || m_files.exists(folder / kMetaFileName))
        return false;
    std::error_code error;
    if (!m_files.isRegularFile(folder / kUnfinishedName)) // or interrupted before that was there
        return fs::remove(folder, error);
    removeNewFolder(folder);
    return true;
}

/// Hides the folder before it removes anything: if that is interrupted, the rest occupies no id.
void ProfileStore::removeNewFolder(const fs::path& folder) {
    const fs::path aside = root() / (std::string(FileManager::kTemporaryPrefix) + "new-profile");
    std::error_code error;
    m_files.removeTree(aside);
    fs::rename(folder, aside, error);
    m_files.removeTree(error ? folder : aside);
}

/// Creates the profile's folder under the first free id and locks it, even if another Selvane is creating one
/// too. A file in it says that it is unfinished; in the end, that becomes the profile's record.
std::pair<Profile, FolderLock> ProfileStore::createFolder(const NewProfile& request,
                                                          const std::string& name) {
    Profile profile;
    profile.meta.name = name;
    profile.meta.summary = request.summary;
    profile.meta.look = request.look;
    if (request.from)
        profile.meta.source = request.from->id;
    profile.meta.account = request.account;
    profile.meta.isolated = request.isolated;

    m_files.createFolders(root(), Privacy::ownerOnly);
    const FolderLock others(root(), m_progress);
    profile.id = freeSlug(name);
    profile.configDir = root() / profile.id;
    m_files.createFolder(profile.configDir);
    try {
        FolderLock lock(profile.configDir, m_progress);
        m_files.write(profile.configDir / kUnfinishedName, "");
        return {std::move(profile), std::move(lock)};
    } catch (...) {
        try {
            removeNewFolder(profile.configDir);
        } catch (const fs::filesystem_error&) { // report the first error
        }
        throw;
    }
}

/// The profile appears with its record, complete.
void ProfileStore::completeFolder(const Profile& profile) {
    const fs::path unfinished = profile.configDir / kUnfinishedName;
    m_files.write(unfinished, encoded(profile.meta));
    m_files.move(unfinished, profile.configDir / kMetaFileName);
}

Profile ProfileStore::create(const NewProfile& request) {
    const std::string name = checkedName(request.name);
    if (request.account && !Profile::isPossibleId(*request.account))
        throw LauncherError("Account non valido: " + text::singleLine(*request.account));
    auto [profile, lock] = createFolder(request, name);
    try {
        files::DiskSync written;
        fill(profile, request, FileManager(written, m_progress));
        writeProfileNote(profile);
        updateExcludes(profile);
        // The record comes last: without it, the folder is no profile.
        written.waitFor(profile.configDir);
        if (m_progress != nullptr && m_progress->isCancelled())
            throw fs::filesystem_error("create", profile.configDir,
                                       std::make_error_code(std::errc::operation_canceled));
        completeFolder(profile);
        m_files.waitForNames(root());
    } catch (...) {
        try {
            removeNewFolder(profile.configDir);
        } catch (const fs::filesystem_error&) { // report the first error
        }
        throw;
    }
    if (request.account) {
        if (const auto account = this->profile(*request.account))
            seedDesktopData(profile, *account);
    }
    return profile;
}

void ProfileStore::fill(Profile& profile, const NewProfile& request, const FileManager& files) {
    for (const Component component : kComponents) {
        const std::string key(rawValue(component));
        const auto chosen = request.modes.find(component);
        ShareMode mode = ShareMode::none;
        if (request.from)
            mode = chosen == request.modes.end() ? defaultMode(component) : chosen->second;
        profile.meta.modes[key] = mode;

        const auto selected = request.selection.find(component);
        if (isCollection(component) && selected != request.selection.end() && request.from) {
            auto& excluded = profile.meta.excluded[key];
            for (const FolderEntry& item : ItemListing(component, request.from->url(component)).entries) {
                if (!selected->second.contains(item.name))
                    excluded.push_back(item.name);
            }
            std::sort(excluded.begin(), excluded.end());
        }

        if (request.from && mode == ShareMode::separate)
            announceCopies(component, profile, *request.from);
    }
    for (const Component component : kComponents) {
        const ShareMode mode = profile.mode(component);
        if (request.from && mode != ShareMode::none)
            apply(component, mode, profile, *request.from, files);
        else if (isCollection(component))
            createOwnFolder(profile, profile.url(component));
    }
}

/// What a new profile takes separately.
void ProfileStore::announceCopies(Component component, const Profile& to, const Profile& from) const {
    const fs::path origin = from.url(component);
    if (!isCollection(component))
        return announce(origin);
    const std::set<std::string> excluded = to.excluded(component);
    for (const FolderEntry& entry : ItemListing(component, origin).entries) {
        if (!excluded.contains(entry.name))
            announce(origin / entry.name);
    }
}

void ProfileStore::apply(Component component, ShareMode mode, const Profile& to, const Profile& from,
                         const FileManager& files) {
    switch (kind(component)) {
    case ComponentKind::collection:
        return fillCollection(component, mode, to, from, files);
    case ComponentKind::memory:
        return applyClaudeMd(mode, to, from, files);
    case ComponentKind::file:
    case ComponentKind::folder:
    case ComponentKind::servers:
        return importWhole(component, to, from, files);
    }
}

/// Builds a new profile's folder under one temporary name, so its items need none of their own.
void ProfileStore::fillCollection(Component component, ShareMode mode, const Profile& to, const Profile& from,
                                  const FileManager& files) {
    const fs::path origin = from.url(component);
    const ItemListing offered(component, origin);
    const std::set<std::string> excluded = to.excluded(component);
    files.replaceTrashing(to.url(component), [&](const fs::path& temporary) {
        files.createFolders(temporary);
        const OpenFolder folder(temporary);
        FileCopier copies(files);
        for (const FolderEntry& entry : offered.entries) {
            const fs::path item = origin / entry.name;
            if (excluded.contains(entry.name))
                continue;
            if (mode == ShareMode::shared)
                folder.createLink(item.string(), entry.name);
            else if (entry.isLink && !offered.folder->isPresent(entry.name))
                continue;          // a dangling link has nothing to copy: see `uncopiedItems`
            else if (entry.isLink) // it may lead to a folder that contains the profile
                files.copy(files.resolved(item), temporary / entry.name);
            else
                copies.copy(item, temporary / entry.name, to.url(component) / entry.name);
        }
        copies.finish();
    });
}

} // namespace selvane
