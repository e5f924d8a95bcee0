// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <gtest/gtest.h>

#include "model/LauncherError.h"
#include "platform/process/ApplicationEntries.h"
#include "support/Home.h"
#include "support/TemporaryFolder.h"

namespace selvane::test {
namespace {

namespace fs = std::filesystem;

class MacEntriesTest : public testing::Test {
protected:
    static ApplicationEntry entryNamed(const std::string& name, const std::string& id = "selvane-lavoro") {
        return {.id = id,
                .name = name,
                .comment = "",
                .arguments = {"launch", "la$v o"},
                .environment = {{"CLAUDE_LAUNCHER_ROOT", "/a \"b\""}},
                .note = {.owner = "/a & <b>/lavoro", .look = "house/1", .program = "/Selvane.app/selvane"}};
    }
    static std::vector<IconImage> icon() {
        std::vector<IconImage> images;
        for (const IconSize& size : ApplicationEntries::iconSizes())
            images.push_back({size, "picture"});
        return images;
    }
    std::vector<std::string> names() const {
        std::vector<std::string> found = FileManager().entriesIfReadable(applications);
        std::ranges::sort(found);
        return found;
    }

    TemporaryFolder home;
    const ApplicationEntries entries{{{"HOME", home.path().string()}}};
    const fs::path applications = home / "Applications";
};

TEST_F(MacEntriesTest, write_ABundle_ThatSaysWhatItIs) {
    const ApplicationEntry entry = entryNamed("Claude — a/b: <c> & d");
    entries.write(entry, icon());
    EXPECT_TRUE(entries.says(entry));
    EXPECT_EQ(entries.note(entry.id), entry.note);
    const fs::path contents = applications / "Claude — a:b- <c> & d.app/Contents";
    EXPECT_EQ(readFile(contents / "MacOS/start"), "#!/bin/sh\nexport CLAUDE_LAUNCHER_ROOT=\"/a \\\"b\\\"\"\n"
                                                  "exec \"/Selvane.app/selvane\" \"launch\" \"la\\$v o\"\n");
    EXPECT_NE(fs::status(contents / "MacOS/start").permissions() & fs::perms::owner_exec, fs::perms::none);
    const std::string picture = readFile(contents / "Resources/Icon.icns");
    EXPECT_TRUE(picture.starts_with(std::string("icns\0\0\0\x9Eicp4\0\0\0\x0Fpicture", 23)));
    EXPECT_EQ(picture.size(), 0x9EU);
}

TEST_F(MacEntriesTest, write_AnotherName_MovesTheBundle_AndOthersStay) {
    entries.write(entryNamed("Uno"), icon());
    const std::string picture = readFile(applications / "Uno.app/Contents/Resources/Icon.icns");
    EXPECT_FALSE(entries.says(entryNamed("Due")));
    entries.write(entryNamed("Due"), {});
    EXPECT_EQ(names(), std::vector<std::string>{"Due.app"});
    EXPECT_EQ(readFile(applications / "Due.app/Contents/Resources/Icon.icns"), picture);

    const ApplicationEntry another = entryNamed("Due", "selvane-altro");
    entries.write(another, icon());
    EXPECT_TRUE(entries.says(another));
    EXPECT_EQ(names(), (std::vector<std::string>{"Due (selvane-altro).app", "Due.app"}));
    writeFile(applications / "Tre.app/Contents/Info.plist", "di altri");
    writeFile(applications / "Tre (selvane-altro).app/x", "");
    EXPECT_THROW(entries.write(entryNamed("Tre", "selvane-altro"), {}), LauncherError);
    entries.remove("selvane-altro");
    entries.remove("selvane-lavoro");
    entries.remove("selvane-assente");
    EXPECT_EQ(names(), (std::vector<std::string>{"Tre (selvane-altro).app", "Tre.app"}));
}

} // namespace
} // namespace selvane::test
