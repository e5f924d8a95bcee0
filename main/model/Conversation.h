// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "model/Profile.h"

namespace selvane {

/// Where a conversation was begun: in the Code tab of Claude Desktop, or in a terminal.
enum class ConversationOrigin { app, terminal };

/// A conversation as one profile has it.
struct ConversationPlace {
    std::size_t profile = 0; ///< position in `ConversationList::profiles`
    std::string record;      ///< path of its record in the account's Code tab; empty if there is none
    /// Paths of its transcripts, that of the agent's latest session first. Empty if they are missing.
    std::vector<std::string> transcripts;
    std::int64_t size = 0;              ///< bytes of the transcripts
    std::optional<double> lastActivity; ///< here; seconds since 1970
    bool isArchived = false;
    /// Whether the record is in an organisation folder of the account other than the one used last.
    bool isInOtherOrganisation = false;

    bool operator==(const ConversationPlace&) const = default;
};

/// A conversation, wherever it lies.
struct Conversation {
    std::string recordID; ///< of the Code tab's session; empty for a terminal's conversation
    /// The agent's sessions that it consists of, those in which its transcripts are named; the latest first.
    std::vector<std::string> cliSessionIDs;
    /// As given, else the user's first words on one line; "Senza titolo" if there are none.
    std::string title;
    bool hasGivenTitle = false;
    std::string cwd;                    ///< working folder; empty if unknown
    std::optional<double> lastActivity; ///< seconds since 1970
    ConversationOrigin origin = ConversationOrigin::terminal;
    /// Never empty. The one with the latest activity first, those without a transcript last.
    std::vector<ConversationPlace> places;

    std::int64_t size() const { return places.front().size; } ///< bytes; 0 if the transcripts are missing
    bool hasTranscript() const { return !places.front().transcripts.empty(); }
    bool isArchived() const {
        return std::any_of(places.begin(), places.end(), [](const auto& place) { return place.isArchived; });
    }

    bool operator==(const Conversation&) const = default;
};

/// All conversations of all profiles, the latest activity first.
struct ConversationList {
    std::vector<Profile> profiles; ///< as `ProfileStore::loadAll` lists them
    std::vector<Conversation> conversations;
};

} // namespace selvane
