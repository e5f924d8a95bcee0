// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "model/CodeSession.h"

namespace selvane {

/// What becomes of one file of a conversation that is taken along.
struct TranscriptCopy {
    enum class Kind {
        added,     ///< nothing is there yet
        continued, ///< takes the place of a shorter one with which it begins
        present,   ///< the same is there
        kept,      ///< what is there stays
    };

    std::filesystem::path from;
    std::filesystem::path to;
    std::int64_t size = 0; ///< bytes
    Kind kind = Kind::added;
};

/// What copying an agent's session from one project folder to another does with its transcript and the files
/// of its companion folder. One of these that the target has already is looked into only if existing ones can
/// be continued. Throws if something there can't be looked at.
std::vector<TranscriptCopy> transcriptCopies(const std::string& cliSessionID,
                                             const std::filesystem::path& from,
                                             const std::filesystem::path& to, Existing existing);

} // namespace selvane
