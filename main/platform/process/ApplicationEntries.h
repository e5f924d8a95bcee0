// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/process/Process.h"

namespace selvane {

/// The size of a picture: `points` wide and high, with `scale` pixels per point.
struct IconSize {
    int points = 0;
    int scale = 1;

    bool operator==(const IconSize&) const = default;
};

/// One picture of an icon.
struct IconImage {
    IconSize size;
    std::string png; ///< has `kIconMark` in it

    bool operator==(const IconImage&) const = default;
};

/// The text chunk by which a picture of Selvane's is known among those of other programs.
inline constexpr std::string_view kIconMark{"tEXtSoftware\0Selvane", 20};

/// What Selvane has noted in an entry of its own.
struct EntryNote {
    std::filesystem::path owner;   ///< what the entry was made for
    std::string look;              ///< tells one icon from another
    std::filesystem::path program; ///< what it starts

    bool operator==(const EntryNote&) const = default;
};

/// An entry among the applications that the user's desktop offers.
struct ApplicationEntry {
    std::string id; ///< letters, digits, "-" and "_"
    std::string name;
    std::string comment;                ///< may be empty
    std::vector<std::string> arguments; ///< for `note.program`
    Environment environment;            ///< added to that of the desktop
    EntryNote note;
};

/// Selvane's entries among the user's own applications: desktop entries with icons for the hicolor theme on
/// Linux, bundles on macOS. Files of other programs are never replaced or removed, whatever they are called.
class ApplicationEntries {
public:
    explicit ApplicationEntries(const Environment& environment);

    /// The pictures that an icon has on this system.
    static std::vector<IconSize> iconSizes();

    /// The arguments by which the windows of a program are known to belong to the entry, where the program
    /// heeds them: Chromium and what is made of it do so or ignore them. Empty where there is no such thing.
    static std::vector<std::string> windowArguments(const std::string& id);

    /// The ids of those that are there. Never fails.
    std::vector<std::string> ids() const;
    /// Nothing if there is no such entry of Selvane's. Never fails.
    std::optional<EntryNote> note(const std::string& id) const;
    /// Whether the entry is there and says exactly this. Never fails.
    bool says(const ApplicationEntry& entry) const;
    /// Makes the entry, or replaces Selvane's own; it is on the disk then. The icon stays as it is if `icon`
    /// is empty. Throws `LauncherError` if a file of another program is in the way, or if a text can't be in
    /// an entry.
    void write(const ApplicationEntry& entry, const std::vector<IconImage>& icon) const;
    /// Does nothing if there is no such entry of Selvane's. The icon goes first, so that what an interrupted
    /// run leaves is still an entry.
    void remove(const std::string& id) const;

private:
    std::filesystem::path m_applications;
    std::filesystem::path m_icons; ///< unused where the icon is part of the entry
};

} // namespace selvane
