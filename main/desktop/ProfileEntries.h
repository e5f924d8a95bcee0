// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "model/Profile.h"
#include "platform/process/ApplicationEntries.h"

namespace selvane {

/// After this option, "launch" shows what it has to ask or to tell in the windows.
inline constexpr std::string_view kWindowsOption = "--windows";

/// The profiles that have an entry of their own among the applications of the user's desktop, which starts
/// Claude Desktop with that profile. An entry belongs to the profile in one folder; for a profile of the same
/// id in another root it doesn't exist.
class ProfileEntries {
public:
    /// Draws the icon for a profile in every size of `ApplicationEntries::iconSizes`.
    using Draw = std::function<std::vector<IconImage>(const ProfileLook& look)>;

    /// Entries get what `environment` says of where Selvane's files are.
    explicit ProfileEntries(const Environment& environment);

    /// The id of a profile's entry.
    static std::string entryId(std::string_view profileId);

    bool isThere(const Profile& profile) const; ///< never fails
    /// What Claude Desktop gets so that its windows are known by the profile's entry; empty without one.
    std::vector<std::string> windowArguments(const Profile& profile) const;
    /// Makes the profile's entry, or makes it anew. `program` is Selvane's own, an absolute path. Throws if
    /// something of another program has its name, or if its id or a path can't be in an entry.
    void add(const Profile& profile, const std::filesystem::path& program, const Draw& draw) const;
    void remove(const Profile& profile) const; ///< does nothing if it has none
    /// Corrects entries whose profile has changed, or that start a program that is gone, and removes those
    /// whose profile was in `root` and is certainly no longer there. Draws only what looks different. Never
    /// fails: what can't be corrected now stays as it is. Returns the folders of the profiles that were gone.
    std::vector<std::filesystem::path> refresh(const std::vector<Profile>& profiles,
                                               const std::filesystem::path& root,
                                               const std::filesystem::path& program, const Draw& draw) const;

private:
    ApplicationEntry entryFor(const Profile& profile, const std::filesystem::path& program) const;
    void correct(const Profile& profile, const EntryNote& note, const std::filesystem::path& program,
                 const Draw& draw) const;

    const ApplicationEntries m_entries;
    Environment m_variables; ///< by which Selvane finds its files
};

} // namespace selvane
