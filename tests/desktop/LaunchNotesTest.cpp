// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "desktop/LaunchNotes.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/files/RuntimeFolder.h"
#include "support/Home.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;
using namespace test;

TEST(LaunchNotes, OfThisBootAlone_AreKept) {
    const TemporaryFolder folder;
    makePrivate(folder / "run");
    const LaunchNotes notes({{"XDG_RUNTIME_DIR", (folder / "run").string()}});
    const LaunchNote own{{{12, 34567890123}, 12}, "lavoro", "/dati/\xff \"x\"", "/profili/lavoro"};
    const LaunchNote builtIn{{{13, 5}, 0}, "default", "/dati", std::nullopt};
    notes.add(own);
    notes.add(builtIn);
    const fs::path place = folder / "run/selvane";
    writeFile(place / "launch-14.json", "{");
    writeFile(place / "launch-15.json", R"({"boot": 1})");
    std::string earlier = readFile(place / "launch-12.json");
    const std::size_t boot = earlier.find("boot\": \"") + 8;
    earlier.replace(boot, 4, "zzzz");
    writeFile(place / "launch-16.json", earlier);

    std::vector<LaunchNote> all = notes.all();
    ASSERT_EQ(all.size(), 2U);
    if (all[0] != own)
        std::swap(all[0], all[1]);
    EXPECT_EQ(all, (std::vector{own, builtIn}));
    EXPECT_FALSE(fs::exists(place / "launch-16.json"));
    EXPECT_EQ(fs::status(place).permissions(), fs::perms::owner_all);
    EXPECT_EQ(fs::status(place / "launch-12.json").permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
    notes.remove(own);
    notes.remove(own);
    EXPECT_EQ(notes.all(), std::vector{builtIn});
}

TEST(RuntimeFolder, PlacesOfOthers_AreLeftAlone) {
    const TemporaryFolder folder;
    const fs::path session = folder / "run", own = session / "selvane", second = folder / "second";
    const Environment environment = {{"XDG_RUNTIME_DIR", session.string()}};
    fs::permissions(folder.path(), fs::perms::owner_all);
    makePrivate(session);
    EXPECT_EQ(std::ranges::count(runtimeFolders(environment), own), 0);
    EXPECT_EQ(runtimeFolder(environment), own);
    EXPECT_EQ(std::ranges::count(runtimeFolders(environment), own), 1);
    fs::permissions(own, fs::perms(0750));
    EXPECT_EQ(privateFolder({own, second}), second) << "others can look into it";
    fs::remove(own);
    fs::create_directory_symlink(second, own);
    EXPECT_EQ(privateFolder({own}), std::nullopt) << "a link";
    fs::remove(own);
    fs::permissions(session, fs::perms(0777));
    EXPECT_EQ(privateFolder({own, folder / "missing/selvane"}), std::nullopt) << "others can replace it";
    EXPECT_FALSE(fs::exists(own));
    fs::permissions(session, fs::perms(01777));
    EXPECT_EQ(privateFolder({own}), own) << "others can't";
}

} // namespace
} // namespace selvane
