// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/conversations/ConversationSearch.h"

#include <unordered_set>

#include "platform/text/Text.h"
#include "platform/text/TextFinder.h"

namespace selvane {

ConversationSearch::ConversationSearch(std::shared_ptr<const ConversationList> list)
    : m_list(std::move(list)) {
    std::vector<std::string> names;
    for (const Profile& profile : m_list->profiles)
        names.push_back(text::searchable(profile.meta.name));
    m_ends.reserve(m_list->conversations.size());
    // No word contains a line break, so none is found across two fields or conversations.
    for (const Conversation& conversation : m_list->conversations) {
        m_text += text::searchable(conversation.title);
        m_text += '\n';
        m_text += text::searchable(conversation.cwd);
        for (const ConversationPlace& place : conversation.places) {
            m_text += '\n';
            m_text += names[place.profile];
        }
        m_text += '\n';
        m_ends.push_back(static_cast<std::uint32_t>(m_text.size()));
    }
}

bool ConversationSearch::wants(const ConversationFilter& filter, const Conversation& conversation) const {
    const bool isApp = conversation.origin == ConversationOrigin::app;
    if (!(isApp ? filter.app : filter.terminal))
        return false;
    if (filter.since && conversation.lastActivity.value_or(0) < *filter.since)
        return false;
    if (!filter.folder.empty() && conversation.cwd != filter.folder)
        return false;
    return filter.profiles.empty() ||
           std::any_of(conversation.places.begin(), conversation.places.end(),
                       [&](const auto& place) { return filter.profiles.contains(place.profile); });
}

std::vector<std::uint32_t> ConversationSearch::matches(const ConversationFilter& filter) const {
    std::vector<std::uint32_t> found;
    for (std::uint32_t row = 0; row < m_ends.size(); ++row) {
        if (wants(filter, m_list->conversations[row]))
            found.push_back(row);
    }
    for (const std::string& word : text::searchableWords(filter.text)) {
        const text::TextFinder finder(word, text::TextFinder::Kind::exact);
        std::size_t next = 0; // where the word stands at or after the row that is looked at
        std::erase_if(found, [&](std::uint32_t row) {
            const std::size_t begin = row == 0 ? 0 : m_ends[row - 1];
            if (next < begin || (next == 0 && begin == 0))
                next = finder.find(m_text, begin);
            return next >= m_ends[row];
        });
    }
    return found;
}

std::vector<std::string> ConversationSearch::folders() const {
    std::vector<std::string> folders;
    std::unordered_set<std::string_view> known;
    for (const Conversation& conversation : m_list->conversations) {
        if (!conversation.cwd.empty() && known.insert(conversation.cwd).second)
            folders.push_back(conversation.cwd);
    }
    return folders;
}

} // namespace selvane
