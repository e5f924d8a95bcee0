// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "desktop/ProfileEntries.h"

#include <algorithm>

#include "model/ByteText.h"
#include "model/LauncherError.h"
#include "platform/files/FileManager.h"
#include "platform/text/Text.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

/// To be raised when the icon of a profile is drawn differently.
constexpr std::string_view kDesign = "1";

bool isPlain(char byte) {
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9') ||
           byte == '-';
}

std::string shown(std::string_view text) {
    return text::singleLine(repaired(text));
}

/// Whether a profile's folder has certainly gone. If all of the root looks empty, its disk may be missing.
bool isGone(const fs::path& folder, const fs::path& root) {
    const FileManager files;
    return folder.parent_path() == root && !files.exists(folder) && !files.entries(root).empty();
}

} // namespace

ProfileEntries::ProfileEntries(const Environment& environment) : m_entries(environment) {
    for (const auto& variable : environment) {
        if (variable.first.starts_with("CLAUDE_LAUNCHER_"))
            m_variables.insert(variable);
    }
}

std::string ProfileEntries::entryId(std::string_view profileId) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string id = "selvane-";
    for (const char byte : profileId) {
        const auto value = static_cast<unsigned char>(byte);
        if (isPlain(byte))
            id += byte;
        else
            id += {'_', kDigits[value / kDigits.size()], kDigits[value % kDigits.size()]};
    }
    return id;
}

bool ProfileEntries::isThere(const Profile& profile) const {
    const auto note = m_entries.note(entryId(profile.id));
    return note && note->owner == profile.configDir;
}

std::vector<std::string> ProfileEntries::windowArguments(const Profile& profile) const {
    return isThere(profile) ? ApplicationEntries::windowArguments(entryId(profile.id))
                            : std::vector<std::string>();
}

ApplicationEntry ProfileEntries::entryFor(const Profile& profile, const fs::path& program) const {
    const ProfileMeta& meta = profile.meta;
    return {
        .id = entryId(profile.id),
        .name = "Claude — " + shown(meta.name),
        .comment = shown(meta.summary),
        .arguments = {"launch", profile.id, std::string(kWindowsOption)},
        .environment = m_variables,
        .note = {.owner = profile.configDir,
                 .look = shown(meta.look.symbol) + "/" + shown(meta.look.color) + "/" + std::string(kDesign),
                 .program = program}};
}

void ProfileEntries::add(const Profile& profile, const fs::path& program, const Draw& draw) const {
    const ApplicationEntry entry = entryFor(profile, program);
    if (const auto note = m_entries.note(entry.id); note && note->owner != profile.configDir)
        throw LauncherError("Fra le applicazioni c'è già il profilo di un'altra cartella: " +
                            text::singleLine(note->owner.string()));
    m_entries.write(entry, draw(profile.meta.look));
}

void ProfileEntries::remove(const Profile& profile) const {
    if (isThere(profile))
        m_entries.remove(entryId(profile.id));
}

/// An entry goes on to start the program that it was made with, as long as that is there.
void ProfileEntries::correct(const Profile& profile, const EntryNote& note, const fs::path& program,
                             const Draw& draw) const {
    const ApplicationEntry entry =
        entryFor(profile, FileManager().isPresent(note.program) ? note.program : program);
    if (!m_entries.says(entry))
        m_entries.write(entry,
                        note.look == entry.note.look ? std::vector<IconImage>() : draw(profile.meta.look));
}

std::vector<fs::path> ProfileEntries::refresh(const std::vector<Profile>& profiles, const fs::path& root,
                                              const fs::path& program, const Draw& draw) const {
    std::vector<fs::path> gone;
    for (const std::string& id : m_entries.ids()) {
        const auto note = m_entries.note(id);
        if (!note)
            continue;
        const auto owner = std::ranges::find(profiles, note->owner, &Profile::configDir);
        try {
            if (owner != profiles.end()) {
                correct(*owner, *note, program, draw);
            } else if (isGone(note->owner, root)) {
                m_entries.remove(id);
                gone.push_back(note->owner);
            }
        } catch (const std::exception&) { // it is tried again with every look at the profiles
        }
    }
    return gone;
}

} // namespace selvane
