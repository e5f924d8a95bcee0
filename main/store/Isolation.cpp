// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "model/LauncherError.h"
#include "platform/text/Text.h"
#include "store/InstructionExcludes.h"
#include "store/JsonUpdate.h"
#include "store/OwnFolder.h"
#include "store/ProfileStore.h"

/// Claude Code reads the built-in profile's instructions as those of a project when it works below the home
/// folder, whatever its configuration folder is. An isolated profile's settings keep them out.
namespace selvane {

namespace fs = std::filesystem;

InstructionExcludes ProfileStore::excludes(const Profile& profile) const {
    Instructions taken(home());
    taken.addFile(profile.url(Component::claudeMd));
    taken.addRules(profile.url(Component::rules));
    return InstructionExcludes::of(defaultDir(), taken);
}

bool ProfileStore::isolationMatters(const NewProfile& request) const {
    const auto modeOf = [&](Component component) {
        const auto chosen = request.modes.find(component);
        return chosen == request.modes.end() ? defaultMode(component) : chosen->second;
    };
    Instructions taken(home());
    try {
        if (request.from && (modeOf(Component::claudeMd) == ShareMode::shared ||
                             modeOf(Component::claudeMd) == ShareMode::extend))
            taken.addFile(request.from->url(Component::claudeMd));
        const auto selected = request.selection.find(Component::rules);
        if (request.from && modeOf(Component::rules) == ShareMode::shared) {
            for (const ComponentItem& item : items(Component::rules, *request.from)) {
                if (selected == request.selection.end() || selected->second.contains(item.name))
                    taken.addLinkTo(item.url);
            }
        }
        return InstructionExcludes::of(defaultDir(), taken).matchesAny;
    } catch (const fs::filesystem_error&) { // creating it will say why
        return true;
    }
}

Profile ProfileStore::setIsolated(bool isolated, const Profile& profile) {
    if (profile.isDefault())
        throw LauncherError("Il profilo principale non può essere isolato");
    const FolderLock lock = locked(profile);
    const Profile before = current(profile);
    Profile changed = before;
    changed.meta.isolated = isolated;
    if (isolated) // if that fails, nothing has changed yet
        static_cast<void>(excludes(changed));
    // As long as there may be entries, the record says that it is isolated: if this is interrupted, the next
    // `sync` brings both in line.
    if (!isolated)
        removeExcludes(changed.url(Component::settings));
    saveMeta(changed);
    try {
        updateExcludes(changed);
    } catch (...) {
        saveMeta(before);
        throw;
    }
    writeProfileNote(changed);
    return changed;
}

/// Brings the settings of an isolated profile up to date; doesn't touch any other profile's.
void ProfileStore::updateExcludes(const Profile& profile) {
    if (!profile.meta.isolated || profile.isDefault())
        return;
    const fs::path file = profile.url(Component::settings);
    const std::vector<std::string> entries = excludes(profile).entries;
    updateJson(file, [&](const JsonState& state) {
        auto changed = withInstructionExcludes(state.object, entries, defaultDir());
        if (changed && m_files.linkTarget(file))
            throw LauncherError(text::singleLine(file.string()) +
                                " è un collegamento: il profilo è isolato solo con impostazioni sue");
        return changed;
    });
}

/// Removes Selvane's entries from a profile's settings, unless these are a link: then they aren't the
/// profile's.
void ProfileStore::removeExcludes(const fs::path& file) {
    if (m_files.linkTarget(file))
        return;
    updateJson(file, [&](const JsonState& state) {
        return withInstructionExcludes(state.object, {}, defaultDir());
    });
}

/// Gives a copy of another profile's settings, which nobody else knows yet, the entries of the profile that
/// it is for: none unless that is isolated. Its instructions must be there already.
void ProfileStore::exchangeExcludes(const fs::path& copy, const Profile& to, const FileManager& files) {
    try {
        const Json settings = json::parse(files.read(copy), copy);
        const auto entries = to.meta.isolated ? excludes(to).entries : std::vector<std::string>();
        if (const auto changed = withInstructionExcludes(settings, entries, defaultDir()))
            files.write(copy, json::serialized(*changed));
    } catch (const JsonError&) { // no JSON; it stays as it is
    }
}

} // namespace selvane
