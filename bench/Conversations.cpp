// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT
//
// conversations list | keystrokes PHRASE | search PHRASE: what the view of the conversations does, for
// script/bench. "keystrokes" types the phrase letter by letter and prints the longest time that a letter
// took; "search" searches the transcripts and prints how many conversations have the phrase, and when the
// first was found.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <numeric>

#include "platform/files/Progress.h"
#include "platform/process/Clock.h"
#include "platform/process/Workspace.h"
#include "store/ProfileStore.h"
#include "store/conversations/ConversationSearch.h"
#include "store/conversations/Conversations.h"
#include "store/conversations/TextSearch.h"

namespace selvane {
namespace {

class Watch {
public:
    double milliseconds() const {
        return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - m_start).count();
    }

private:
    const std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
};

void typeLetters(const ConversationSearch& search, const std::string& phrase) {
    double longest = 0;
    std::size_t found = 0;
    for (std::size_t size = 1; size <= phrase.size(); ++size) {
        const Watch watch;
        found = search.matches({.text = phrase.substr(0, size)}).size();
        longest = std::max(longest, watch.milliseconds());
    }
    std::printf("keystroke %.2f ms, %zu found\n", longest, found);
}

void searchAll(const ConversationList& list, const std::string& phrase) {
    std::vector<std::uint32_t> all(list.conversations.size());
    std::iota(all.begin(), all.end(), 0U);
    Progress progress;
    const Watch watch;
    double first = 0;
    std::size_t found = 0;
    searchTexts(list, all, phrase, progress, [&](const TextHit&) {
        if (++found == 1)
            first = watch.milliseconds();
    });
    std::printf("search %.0f ms, %zu found, the first after %.0f ms, %lld bytes\n", watch.milliseconds(),
                found, first, static_cast<long long>(progress.bytes()));
}

/// Only where the transcripts are, which takes no longer than it takes grep.
ConversationList transcriptsOf(const ProfileStore& store) {
    ConversationList list;
    list.profiles = store.loadAll();
    for (std::size_t profile = 0; profile < list.profiles.size(); ++profile) {
        store.transcripts(list.profiles[profile]).forEach([&](const std::string& id, const auto& folder) {
            ConversationPlace place;
            place.profile = profile;
            place.transcripts = {folder / (id + ".jsonl")};
            list.conversations.emplace_back().places = {place};
        });
    }
    return list;
}

int run(const std::vector<std::string>& arguments) {
    const Environment environment = currentEnvironment();
    const auto workspace = makeWorkspace(ClaudeApp::identity(), environment);
    SystemClock clock;
    const ClaudeApp claude(*workspace, clock, environment);
    const ProfileStore store(environment, claude);
    if (arguments.at(0) == "search") {
        searchAll(transcriptsOf(store), arguments.at(1));
        return 0;
    }
    const Watch watch;
    const auto list = std::make_shared<ConversationList>(conversations(store));
    std::printf("list %.0f ms, %zu conversations in %zu profiles\n", watch.milliseconds(),
                list->conversations.size(), list->profiles.size());
    if (arguments[0] == "keystrokes")
        typeLetters(ConversationSearch(list), arguments.at(1));
    return list->conversations.empty() ? 1 : 0;
}

} // namespace
} // namespace selvane

int main(int count, char** arguments) {
    return selvane::run({arguments + 1, arguments + count});
}
