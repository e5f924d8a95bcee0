// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include "platform/files/Progress.h"
#include "support/Home.h"
#include "support/InstalledClaude.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;
using namespace test;

/// What an operation announced, once that is counted.
Progress::Amount expected(const Progress& progress) {
    std::optional<Progress::Amount> result;
    waitUntil([&] { return (result = progress.expected()).has_value(); });
    return *result;
}

TEST(StoreProgress, WhatIsAnnouncedIsWhatIsCopied) {
    Home home;
    writeTree(home / ".claude", {{"skills/uno/SKILL.md", std::string(50'000, 'x')},
                                 {"skills/due/SKILL.md", "due"},
                                 {"skills/due/vedi", "-> ../uno"},
                                 {"agents/a.md", "agente"},
                                 {"plugins/p/plugin.bin", std::string(7'000, 'x')},
                                 {"projects/-srv/s1.jsonl", std::string(9'000, 'x')}});
    const Profile shared = home.make("Unito");
    using Operation = std::function<void(ProfileStore&)>;
    const std::vector<std::pair<std::string, Operation>> operations = {
        {"create",
         [&](ProfileStore& store) {
             NewProfile wanted = request("Diviso", home.builtIn());
             for (const Component component : {Component::skills, Component::agents})
                 wanted.modes[component] = ShareMode::separate;
             wanted.selection[Component::skills] = {"due"};
             store.create(wanted);
         }},
        {"setMode",
         [&](ProfileStore& store) { store.setMode(ShareMode::separate, Component::skills, shared); }},
        {"importItems",
         [&](ProfileStore& store) {
             const Profile none = home.make("Vuoto", {{Component::skills, ShareMode::none}});
             store.importItems({"due"}, home.builtIn(), none, Component::skills, false);
         }},
        {"reimport",
         [&](ProfileStore& store) { store.reimport(Component::plugins, shared, home.builtIn()); }},
        {"backup", [&](ProfileStore& store) { store.backup(BackupScope::principal(), home / "b.zip"); }},
    };
    for (const auto& [name, operation] : operations) {
        SCOPED_TRACE(name);
        Progress progress;
        ProfileStore store(home.store, progress);
        operation(store);
        const Progress::Amount all = expected(progress);
        EXPECT_EQ(progress.entries(), all.entries);
        EXPECT_EQ(progress.bytes(), all.bytes);
        EXPECT_GT(all.bytes, 0);
    }
}

TEST(StoreProgress, ACancelledBackupLeavesWhatWasThere) {
    Home home;
    writeFile(home / ".claude/grande", std::string(1 << 20, 'x'));
    writeFile(home / "archivi/b.zip", "vecchio");
    Progress progress;
    progress.cancel();
    ProfileStore store(home.store, progress);
    try {
        store.backup(BackupScope::principal(), home / "archivi/b.zip");
        ADD_FAILURE() << "not cancelled";
    } catch (const fs::filesystem_error& error) {
        EXPECT_EQ(error.code(), std::errc::operation_canceled);
    }
    EXPECT_EQ(treeOf(home / "archivi"), (Tree{{"b.zip", "vecchio"}}));
}

} // namespace
} // namespace selvane
