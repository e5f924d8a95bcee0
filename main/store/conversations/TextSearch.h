// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "model/Conversation.h"

namespace selvane {

class Progress;

/// The first place where a conversation says something.
struct TextHit {
    std::uint32_t conversation = 0; ///< position in the list
    std::string excerpt;            ///< some words around it, on one line
    std::size_t begin = 0;          ///< where in the excerpt it says that
    std::size_t size = 0;           ///< bytes

    bool operator==(const TextHit&) const = default;
};

/// Searches the conversations of `among`, positions in `list`, for `phrase` in what the user and the agent
/// have written, on several threads. Case and accents don't count; white space does. What tools were told or
/// have answered isn't searched, nor are lines of more than 16 MB.
///
/// `found` is called once for each conversation that says it, those in front of `among` roughly first, from
/// any thread but never from two at a time. A blank phrase is found nowhere. Transcripts that can't be read
/// are left out. Counts transcripts and bytes in `progress`. Returns false if that was cancelled, true after
/// the end.
bool searchTexts(const ConversationList& list, const std::vector<std::uint32_t>& among,
                 std::string_view phrase, Progress& progress,
                 const std::function<void(const TextHit&)>& found);

} // namespace selvane
