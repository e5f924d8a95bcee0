// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "model/Conversation.h"

namespace selvane {

/// Which conversations of a list are wanted. Without more, all of them.
struct ConversationFilter {
    /// Words of which each is to be in the title, the folder or the name of a profile; case and accents don't
    /// count.
    std::string text = {};
    std::set<std::size_t> profiles = {};        ///< positions in the list; any profile if empty
    std::string folder = {};                    ///< the working folder; any if empty
    bool app = true;                            ///< those of the Code tab
    bool terminal = true;                       ///< those of terminals
    std::optional<double> since = std::nullopt; ///< the earliest last activity, in seconds since 1970
};

/// Finds conversations of a list while somebody types: tens of thousands in a few milliseconds.
///
/// It never changes, so it may be used on any thread.
class ConversationSearch {
public:
    /// Prepares the texts of the list, which takes longer than a search.
    explicit ConversationSearch(std::shared_ptr<const ConversationList> list);

    const ConversationList& list() const { return *m_list; }
    /// The positions in the list of those that `filter` wants, in ascending order: the latest activity first.
    std::vector<std::uint32_t> matches(const ConversationFilter& filter) const;
    /// The working folders of the conversations, those with the latest activity first.
    std::vector<std::string> folders() const;

private:
    bool wants(const ConversationFilter& filter, const Conversation& conversation) const;

    std::shared_ptr<const ConversationList> m_list;
    std::string m_text;                ///< the searchable texts of all, one after the other
    std::vector<std::uint32_t> m_ends; ///< where the text of each ends
};

} // namespace selvane
