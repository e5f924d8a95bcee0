// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/ProfileStore.h"

#include "platform/json/Json.h"
#include "store/ServerImport.h"
#include "store/SettingsPaths.h"

namespace selvane {

namespace fs = std::filesystem;

/// Changes the paths in a settings file from the source's folder to the profile's.
void ProfileStore::rewritePaths(const fs::path& file, const Profile& from, const Profile& to,
                                const FileManager& files) {
    const auto before = files.readIfPossible(file);
    if (!before)
        return;
    const std::string after = withRewrittenPaths(*before, from, to);
    if (after != *before)
        files.write(file, after);
}

void ProfileStore::reimport(Component component, const Profile& to, const Profile& from) {
    announce(from.url(component));
    importWhole(component, to, from, m_files);
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

void ProfileStore::importSettings(const Profile& to, const Profile& from) {
    importFile(Component::settings, to, from, m_files);
}

void ProfileStore::importPlugins(const Profile& to, const Profile& from) {
    importFolder(Component::plugins, to, from, m_files);
}

void ProfileStore::importMCP(const Profile& to, const Profile& from) {
    importServers(to, from, m_files);
}

void ProfileStore::importFile(Component component, const Profile& to, const Profile& from,
                              const FileManager& files) {
    const fs::path origin = from.url(component);
    if (!files.isPresent(origin))
        return;
    files.replaceTrashing(to.url(component), [&](const fs::path& temporary) {
        files.copy(files.resolved(origin), temporary, Privacy::ownerOnly);
        rewritePaths(temporary, from, to, files);
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

void ProfileStore::importServers(const Profile& to, const Profile& from, const FileManager& files) {
    const fs::path origin = globalJSON(from);
    if (!files.isPresent(origin))
        return;
    const Json source = json::parse(files.read(origin), origin);
    const fs::path file = globalJSON(to);
    std::optional<Json> target;
    if (files.exists(file)) {
        target = json::parse(files.read(file), file);
        if (!target->is_object())
            throw JsonError(file.string() + ": non è un oggetto JSON");
    }
    const ServerImport imported = importedServers(source, target);
    if (imported.state == target.value_or(Json::object()))
        return;
    const auto writeTo = [&](const fs::path& path) {
        files.write(path, json::serialized(imported.state), Privacy::ownerOnly);
    };
    if (imported.losesServers)
        files.replaceTrashing(file, writeTo);
    else
        writeTo(file);
}

} // namespace selvane
