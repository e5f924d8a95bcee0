// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/ProfileStore.h"

#include "model/ByteText.h"
#include "platform/json/Json.h"
#include "store/InstructionExcludes.h"
#include "store/JsonUpdate.h"
#include "store/ServerImport.h"
#include "store/SettingsPaths.h"

namespace selvane {

namespace fs = std::filesystem;

/// Changes the paths in a settings file from the source's folder to the profile's.
void ProfileStore::rewritePaths(const fs::path& file, const Profile& from, const Profile& to,
                                const FileManager& files) {
    const std::string before = files.read(file);
    if (!isUtf8(before)) // no JSON; it stays as it is
        return;
    const std::string after = withRewrittenPaths(before, from, to);
    if (after != before)
        files.write(file, after);
}

void ProfileStore::reimport(Component component, const Profile& to, const Profile& from) {
    const FolderLock lock = locked(to);
    announce(from.url(component));
    importWhole(component, to, from, m_files);
    updateExcludes(current(to));
}

void ProfileStore::importWhole(Component component, const Profile& to, const Profile& from,
                               const FileManager& files) {
    switch (kind(component)) {
    case ComponentKind::collection:
    case ComponentKind::memory:
        return; // not imported but kept in step
    case ComponentKind::file:
        return importFile(component, to, from, files);
    case ComponentKind::folder:
        return importFolder(component, to, from, files);
    case ComponentKind::servers:
        return importServers(to, from, files);
    }
}

void ProfileStore::importFile(Component component, const Profile& to, const Profile& from,
                              const FileManager& files) {
    const fs::path origin = from.url(component);
    if (!files.isPresent(origin))
        return;
    files.replaceTrashing(to.url(component), [&](const fs::path& temporary) {
        files.copy(files.resolved(origin), temporary, Privacy::ownerOnly);
        rewritePaths(temporary, from, to, files);
        if (component == Component::settings && (from.meta.isolated || to.meta.isolated))
            exchangeExcludes(temporary, to, files);
    });
}

void ProfileStore::importFolder(Component component, const Profile& to, const Profile& from,
                                const FileManager& files) {
    const fs::path origin = from.url(component);
    if (!files.isPresent(origin))
        return;
    files.replaceTrashing(to.url(component), [&](const fs::path& temporary) {
        files.copy(files.resolved(origin), temporary);
        for (const std::string& name : files.entries(temporary)) {
            // A link leads to a file that isn't the profile's.
            if (name.ends_with(".json") && files.isRegularFile(temporary / name))
                rewritePaths(temporary / name, from, to, files);
        }
    });
}

/// Claude Code keeps rewriting the target, so it is never away, not even for a moment: what is replaced there
/// goes to the Trash as a copy.
void ProfileStore::importServers(const Profile& to, const Profile& from, const FileManager& files) {
    const fs::path origin = globalJSON(from);
    if (!files.isPresent(origin))
        return;
    const Json source = json::parse(files.read(origin), origin);
    const fs::path file = globalJSON(to);
    std::optional<Json> trashed;
    std::optional<Reversal::Servers> made;
    std::optional<TrashedItem> copy;
    updateJson(file, [&](const JsonState& target) -> std::optional<Json> {
        ServerImport imported =
            importedServers(source, target.text ? std::optional(target.object) : std::nullopt);
        if (imported.state == target.object)
            return std::nullopt;
        const Json* servers = json::find(target.object, kServersKey);
        if (imported.losesServers && trashed != *servers) {
            copy = trashCopy(file, *target.text);
            trashed = *servers;
        }
        if (m_reversal != nullptr) {
            made = {.file = file, .created = {}, .before = {}, .after = {}, .copy = copy};
            if (const Json* after = json::find(imported.state, kServersKey))
                made->after = *after;
            if (servers != nullptr)
                made->before = *servers;
            if (!target.text)
                made->created = json::serialized(imported.state);
        }
        return std::move(imported.state);
    });
    if (m_reversal != nullptr)
        m_reversal->servers = std::move(made);
}

std::optional<TrashedItem> ProfileStore::trashCopy(const fs::path& file, const std::string& text) {
    const fs::path copy = file.string() + ".precedente";
    if (m_files.exists(copy))
        m_files.discard(copy);
    m_files.write(copy, text, Privacy::ownerOnly);
    try {
        return m_files.discard(copy);
    } catch (const std::exception&) {
        m_files.removeFile(copy);
        throw;
    }
}

} // namespace selvane
