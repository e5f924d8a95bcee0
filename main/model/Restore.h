// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "model/ProfileLook.h"

namespace selvane {

/// What can be restored from an archive by itself. It is replaced whole or not at all.
struct RestorePart {
    enum class Kind {
        principal,      ///< the built-in profile's configuration
        profile,        ///< any other profile
        account,        ///< an account's Claude Desktop data
        terminalHelper, ///< claude-profile, which is made anew
    };
    /// A file or folder of the archive and where it goes.
    struct Tree {
        std::string archived; ///< its name in the archive
        std::filesystem::path target;

        bool operator==(const Tree&) const = default;
    };

    Kind kind = Kind::principal;
    std::string id;   ///< of the profile, or of the account's owner; "default" for the built-in profile's
    std::string name; ///< of that profile, as the archive has it, else its id; on one line
    ProfileLook look;
    std::vector<Tree> trees;
    std::int64_t files = 0;    ///< files and links
    std::int64_t bytes = 0;    ///< contents, unpacked
    std::int64_t modified = 0; ///< when the latest of them was changed; seconds since 1970
    bool replaces = false;     ///< something is there now, which will go to the Trash

    bool operator==(const RestorePart&) const = default;
    /// Whether it is no more than the built-in profile's name and look, which lie with the other profiles.
    bool isRecordOnly() const {
        return kind == Kind::principal && trees.size() == 1 &&
               trees.front().target.filename() == "default.json";
    }
    bool isSameAs(const RestorePart& other) const { return kind == other.kind && id == other.id; }
};

/// A link in an archive that leads out of the folders that Selvane looks after.
struct ForeignLink {
    std::string path; ///< its name in the archive
    std::string target;
    bool isLeftOut = false; ///< it leads out of the home folder too, and isn't restored

    bool operator==(const ForeignLink&) const = default;
};

/// An archive of which every byte has been checked.
struct CheckedArchive {
    std::filesystem::path file;
    std::string state;                ///< of the file when it was checked: one that changes isn't restored
    std::int64_t size = 0;            ///< bytes, of the archive
    std::int64_t created = 0;         ///< seconds since 1970
    std::int64_t files = 0;           ///< files, folders and links that were read
    std::filesystem::path formerHome; ///< where it was made, if that is known and isn't the present home
    std::vector<std::string> paths;   ///< what its readme lists
    std::vector<RestorePart> parts;   ///< by kind; accounts in the order of their profiles
    std::vector<ForeignLink> foreignLinks;
    std::vector<std::string> others; ///< what the archive has beside the parts; it isn't restored
};

/// How what a part holds differs from what is there.
struct RestoreCounts {
    std::int64_t added = 0;   ///< files and links that aren't there now
    std::int64_t changed = 0; ///< those that are, but differ
    std::int64_t same = 0;
    std::int64_t gone = 0; ///< those that only are there now

    bool operator==(const RestoreCounts&) const = default;
};

/// What a restore did, or would do.
struct RestoreReport {
    struct Line {
        RestorePart part;
        RestoreCounts counts;
    };

    std::vector<Line> parts;
    std::vector<std::string>
        rewritten; ///< the files in which paths of the former home were changed, as in the archive
};

/// How far a restore had come that was killed.
struct InterruptedRestore {
    std::filesystem::path archive;
    std::vector<std::string> restored; ///< the parts that are as in the archive, by kind and name
    std::vector<std::string>
        begun; ///< those of which only some files or folders are: `completeRestore` does the rest
    std::vector<std::string> untouched; ///< those that are as they were
};

} // namespace selvane
