// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/ProfileStore.h"

#include "platform/json/Json.h"
#include "store/ServerImport.h"
#include "store/SettingsPaths.h"

namespace selvane {

namespace fs = std::filesystem;

/// Changes the paths in a settings file from the source's folder to the profile's.
void ProfileStore::rewritePaths(const fs::path& file, const Profile& from, const Profile& to) {
    const auto before = m_files.readIfPossible(file);
    if (!before)
        return;
    const std::string after = withRewrittenPaths(*before, from, to);
    if (after != *before)
        m_files.write(file, after);
}

void ProfileStore::reimport(Component component, const Profile& to, const Profile& from) {
    switch (kind(component)) {
    case ComponentKind::collection:
    case ComponentKind::memory:
        return; // not imported but kept in step
    case ComponentKind::file:
        return importFile(component, to, from);
    case ComponentKind::folder:
        return importFolder(component, to, from);
    case ComponentKind::servers:
        return importMCP(to, from);
    }
}

void ProfileStore::importSettings(const Profile& to, const Profile& from) {
    importFile(Component::settings, to, from);
}

void ProfileStore::importPlugins(const Profile& to, const Profile& from) {
    importFolder(Component::plugins, to, from);
}

void ProfileStore::importFile(Component component, const Profile& to, const Profile& from) {
    const fs::path origin = from.url(component);
    if (!m_files.isPresent(origin))
        return;
    m_files.replaceTrashing(to.url(component), [&](const fs::path& temporary) {
        m_files.copy(m_files.resolved(origin), temporary, Privacy::ownerOnly);
        rewritePaths(temporary, from, to);
    });
}

void ProfileStore::importFolder(Component component, const Profile& to, const Profile& from) {
    const fs::path origin = from.url(component);
    if (!m_files.isPresent(origin))
        return;
    m_files.replaceTrashing(to.url(component), [&](const fs::path& temporary) {
        m_files.copy(m_files.resolved(origin), temporary);
        for (const std::string& name : m_files.entries(temporary)) {
            // A link leads to a file that isn't the profile's.
            if (name.ends_with(".json") && m_files.isRegularFile(temporary / name))
                rewritePaths(temporary / name, from, to);
        }
    });
}

void ProfileStore::importMCP(const Profile& to, const Profile& from) {
    const fs::path origin = globalJSON(from);
    if (!m_files.isPresent(origin))
        return;
    const Json source = json::parse(m_files.read(origin), origin);
    const fs::path file = globalJSON(to);
    std::optional<Json> target;
    if (m_files.exists(file)) {
        target = json::parse(m_files.read(file), file);
        if (!target->is_object())
            throw JsonError(file.string() + ": non è un oggetto JSON");
    }
    const ServerImport imported = importedServers(source, target);
    if (imported.state == target.value_or(Json::object()))
        return;
    const auto writeTo = [&](const fs::path& path) {
        m_files.write(path, json::serialized(imported.state), Privacy::ownerOnly);
    };
    if (imported.losesServers)
        m_files.replaceTrashing(file, writeTo);
    else
        writeTo(file);
}

} // namespace selvane
