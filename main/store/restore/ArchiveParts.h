// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "model/Restore.h"
#include "store/SettingsPaths.h"
#include "store/restore/ArchiveListing.h"

namespace selvane {

class ProfileStore;

/// Where the things are that a backup saves.
struct SavedPlaces {
    std::filesystem::path home;
    std::filesystem::path configuration; ///< of the built-in profile
    std::filesystem::path globalState;   ///< of the built-in profile
    std::filesystem::path desktopData;   ///< the normal data folder
    std::filesystem::path root;          ///< of the profiles
};

SavedPlaces savedPlaces(const ProfileStore& store);

/// What the archive's readme lists, each as the thing that it is. Empty where the archive has none.
struct ArchivedPlaces {
    std::string configuration;
    std::string globalState;
    std::string desktopData;
    std::string root;
};

/// Recognises what a backup's readme lists by what is there. Throws `LauncherError` if the archive holds
/// anything else beside: then no backup has made it.
ArchivedPlaces archivedPlaces(const ArchiveListing& listing, const std::vector<std::string>& paths);

/// A text file of the archive, or "" if there is none or it is too large.
using ArchivedText = std::function<std::string(const std::string& name)>;

/// The parts of an archive, and what belongs to none in `others`.
std::vector<RestorePart> archivedParts(const ArchiveListing& listing, const ArchivedPlaces& archived,
                                       const SavedPlaces& places, const ArchivedText& text,
                                       std::vector<std::string>& others);

/// How paths of the home where the archive was made turn into those of here, the longest first. `formerHome`
/// may be empty: then only what lay outside it is known.
std::vector<PathMove> pathMoves(const std::vector<std::string>& paths, const ArchivedPlaces& archived,
                                const SavedPlaces& places, const std::filesystem::path& formerHome);

} // namespace selvane
