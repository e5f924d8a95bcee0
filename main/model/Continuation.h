// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace selvane {

/// A folder of an account in which Claude Desktop keeps the session records of one organisation.
struct OrganisationFolder {
    std::filesystem::path folder;
    std::string id;            ///< of the organisation
    std::string name;          ///< as the profile's own sign-in calls it; empty if unknown
    std::int64_t lastUsed = 0; ///< when a record was last added or removed, in seconds since 1970
    int sessions = 0;          ///< records, archived ones included

    bool operator==(const OrganisationFolder&) const = default;
};

/// What taking a conversation along to a profile does.
struct Continuation {
    enum class Record {
        none,         ///< the conversation has none: it was begun in a terminal
        present,      ///< the target's account has it already
        now,          ///< it is added at once
        atNextLaunch, ///< it is queued: the account is open, or has no folder for it yet
    };

    Record record = Record::none;
    std::int64_t bytes = 0; ///< of the transcripts that are copied, companion folders included
    int copied = 0;         ///< files that are new there
    int replaced = 0;       ///< files of the target's that go to the Trash for what continues them
    int kept =
        0; ///< files of the target's that stay, because they are newer, longer or have gone their own way

    bool operator==(const Continuation&) const = default;
};

} // namespace selvane
