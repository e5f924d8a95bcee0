// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

/// Runs one of the operations that no command reaches, and ends as a command does:
///   single-operation make-own PROFILE COMPONENT ITEM
///   single-operation remove PROFILE COMPONENT ITEM
///   single-operation import-items FROM INTO COMPONENT link|copy   everything that INTO lacks
///   single-operation relink PROFILE COMPONENT ITEM
///   single-operation bring PROFILE COMPONENT ITEM
///   single-operation isolate PROFILE yes|no
///   single-operation delete PROFILE
///   single-operation restore ARCHIVE                              everything in it
///   single-operation continue ID INTO                             the conversation with this session of the
///   agent
///   single-operation set-mode PROFILE COMPONENT MODE
///   single-operation take-back OPERATION …                        does it, then takes it back
/// An item or profile that is already gone counts as done, as in the windows, which no longer show it.

#include <algorithm>
#include <iostream>
#include <malloc.h>
#include <string>
#include <vector>

#include "model/LauncherError.h"
#include "platform/files/FileManager.h"
#include "platform/process/Clock.h"
#include "platform/process/Process.h"
#include "platform/process/Workspace.h"
#include "platform/text/ErrorText.h"
#include "store/ProfileStore.h"
#include "store/conversations/Conversations.h"
#include "store/restore/Restore.h"

namespace {

using namespace selvane;
using Words = std::vector<std::string>;

std::optional<ComponentItem> itemNamed(const std::string& name, Component in, const Profile& profile,
                                       const ProfileStore& store) {
    for (ComponentItem& item : store.items(in, profile)) {
        if (item.name == name)
            return std::move(item);
    }
    // A listing for display is empty if the folder can't be read.
    if (store.exists(profile.url(in) / name))
        throw LauncherError(name + " isn't listed");
    return std::nullopt;
}

void importMissing(const Words& words, ProfileStore& store) {
    const Profile from = store.profile(words.at(1)).value();
    const Profile into = store.profile(words.at(2)).value();
    const Component part = component(words.at(3)).value();
    std::set<std::string> names;
    const FileManager files;
    for (const std::string& name : files.entries(from.url(part))) {
        if (!name.starts_with('.') && files.isPresent(from.url(part) / name) &&
            !files.exists(into.url(part) / name))
            names.insert(name);
    }
    store.importItems(names, from, into, part, words.at(4) == "link");
}

void follow(const std::string& operation, Component part, const std::string& name, const Profile& profile,
            ProfileStore& store) {
    const FileManager files;
    const Profile source = store.profile(*profile.meta.source).value();
    const ChangedItem item = {part, name, profile.url(part) / name, source.url(part) / name};
    const auto changed = store.changedItems(part, profile, Unreadable::fails);
    const bool isListed = std::find(changed.begin(), changed.end(), item) != changed.end();
    if (operation == "relink" && isListed)
        store.relink(item, profile);
    // When a run was interrupted, the source's may already be in the Trash.
    else if (operation == "bring" && (isListed || (files.exists(item.own) && !files.linkTarget(item.own))))
        store.bringToSource(item, profile);
}

void goOn(const std::string& id, const std::string& into, ProfileStore& store) {
    const ConversationList list = conversations(store);
    const auto has = [&](const Conversation& conversation) {
        return std::ranges::count(conversation.cliSessionIDs, id) > 0;
    };
    const auto found = std::ranges::find_if(list.conversations, has);
    if (found == list.conversations.end())
        throw LauncherError(id + " isn't listed");
    store.continueIn(list, *found, store.profile(into).value());
}

void run(const Words& words, ProfileStore& store);

void takeBack(const Words& words, const ProfileStore& store) {
    Reversal reversal;
    ProfileStore noting(store, nullptr, &reversal);
    run(words, noting);
    if (!reversal.isPossible())
        throw LauncherError("it can't be taken back");
    // What is tried are the calls after this one.
    static_cast<void>(store.exists(store.root() / ".take-back"));
    noting.takeBack(reversal);
}

void run(const Words& words, ProfileStore& store) {
    const std::string& operation = words.at(0);
    if (operation == "take-back")
        return takeBack(Words(words.begin() + 1, words.end()), store);
    if (operation == "import-items")
        return importMissing(words, store);
    if (operation == "restore") {
        const CheckedArchive archive = checkArchive(store, words.at(1));
        restore(store, archive, archive.parts);
        return;
    }
    if (operation == "continue")
        return goOn(words.at(1), words.at(2), store);
    const auto profile = store.profile(words.at(1));
    if (operation == "delete") {
        if (profile)
            store.deleteProfile(*profile);
        else if (store.exists(store.root() / words.at(1)))
            throw LauncherError(words.at(1) + " can't be read");
        return;
    }
    if (operation == "isolate") {
        store.setIsolated(words.at(2) == "yes", profile.value());
        return;
    }
    const Component part = component(words.at(2)).value();
    if (operation == "set-mode") {
        store.setMode(shareMode(words.at(3)).value(), part, profile.value());
        return;
    }
    if (operation == "relink" || operation == "bring")
        return follow(operation, part, words.at(3), profile.value(), store);
    const auto item = itemNamed(words.at(3), part, profile.value(), store);
    if (item && operation == "make-own")
        store.makeOwn(*item, *profile);
    else if (item && operation == "remove")
        store.remove(*item, *profile, part);
    else if (item)
        throw LauncherError("unknown operation " + operation);
}

} // namespace

int main(int argc, char** argv) {
    // More arenas for more threads would mean more calls in some runs than in others.
    mallopt(M_ARENA_MAX, 1);
    try {
        const Environment environment = currentEnvironment();
        const auto workspace = makeWorkspace(ClaudeApp::identity(), environment);
        SystemClock clock;
        const ClaudeApp claude(*workspace, clock, environment);
        ProfileStore store(environment, claude);
        run(Words(argv + 1, argv + argc), store);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "Errore: " << describe(error) << '\n';
        return 1;
    }
}
