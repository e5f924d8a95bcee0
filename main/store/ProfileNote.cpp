// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/ProfileStore.h"

#include "platform/text/Text.h"
#include "store/OwnFolder.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

std::string shortened(const fs::path& path, const fs::path& home) {
    const std::string prefix = home.string() + "/";
    const std::string text = path.string();
    return text.starts_with(prefix) ? "~/" + text.substr(prefix.size()) : text;
}

std::string quotedName(const Profile& profile) {
    std::string quoted = "\"";
    quoted += text::singleLine(profile.meta.name);
    quoted += '"';
    return quoted;
}

std::string sharedComponents(const Profile& profile) {
    std::string list;
    for (const Component component : kComponents) {
        if (!isCollection(component) || profile.mode(component) != ShareMode::shared)
            continue;
        list += list.empty() ? "`" : ", `";
        list += rawValue(component);
        list += "/`";
    }
    return list;
}

std::string sharedItemsLine(const std::string& components, const Profile& source) {
    const std::string name = quotedName(source);
    return "- Items in " + components + " that are symlinks into `" + source.configDir.string() +
           "` are shared with the profile " + name +
           ": editing them changes that profile too. New items created here stay in this profile only. To "
           "share "
           "a new item with every profile linked to " +
           name + ", it must be installed in " + name + "; Selvane links it here at the next launch.\n";
}

} // namespace

std::string ProfileStore::profileNote(const Profile& profile) const {
    const std::string name = quotedName(profile);
    const std::string dir = shortened(profile.configDir, home());
    std::string note =
        "<!-- Written by Selvane for Claude on every launch: changes to this file are overwritten. -->\n";
    note += "# Selvane profile " + name + "\n";
    note += "This session runs in the Selvane profile " + name +
            ". Its user configuration directory (CLAUDE_CONFIG_DIR) is `" + dir + "` (" +
            profile.configDir.string() + "), not `~/.claude`.\n";
    note += "- Install user-level skills, agents, commands, output styles and rules in `" + dir +
            "/skills`, `" + dir + "/agents`, `" + dir + "/commands`, `" + dir + "/output-styles` and `" +
            dir +
            "/rules`. Plugins and marketplaces installed with `claude plugin …` from this session also go to "
            "this profile, so look for them under `" +
            dir + "/plugins` and `" + dir + "/settings.json`.\n";
    note +=
        "- `~/.claude` is the Main profile. Don't write there (it's outside this session's configuration) "
        "unless the user explicitly asks to change the Main profile; in that case suggest running the "
        "command from a terminal outside Claude.\n";
    if (profile.meta.isolated)
        note += "- This profile is isolated: `claudeMdExcludes` in `" + dir +
                "/settings.json` keeps out the CLAUDE.md and the rules of `~/.claude` that it doesn't take. "
                "Leave "
                "these entries there.\n";
    const std::string components = sharedComponents(profile);
    const auto source = sourceOf(profile);
    if (source && !components.empty())
        note += sharedItemsLine(components, *source);
    return note;
}

void ProfileStore::writeProfileNote(const Profile& profile) {
    if (profile.isDefault())
        return;
    const fs::path folder = profile.url(Component::rules);
    if (m_files.linkTarget(folder))
        return; // a folder that is itself a link belongs to another profile
    createOwnFolder(profile, folder);
    const fs::path file = folder / kProfileNoteName;
    const std::string text = profileNote(profile);
    // A link here would lead to the source's note. Writing replaces the link and leaves that note alone.
    if (m_files.linkTarget(file) || m_files.readIfPossible(file) != text)
        m_files.write(file, text);
}

} // namespace selvane
