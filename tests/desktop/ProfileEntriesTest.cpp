// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "desktop/ProfileEntries.h"

#include <gtest/gtest.h>

#include "model/LauncherError.h"
#include "platform/process/Process.h"
#include "support/Home.h"
#include "support/InstalledClaude.h"

namespace selvane::test {
namespace {

namespace fs = std::filesystem;

class ProfileEntriesTest : public testing::Test {
protected:
    ProfileEntriesTest() { installProgram(program); }

    /// Writes down how it was started, one argument a line.
    void installProgram(const fs::path& file) const {
        writeFile(file, "#!/bin/sh\n{ printf '%s\\n' \"$0\" \"$@\"; printenv CLAUDE_LAUNCHER_ROOT; } >'" +
                            started.string() + "~'\nmv '" + started.string() + "~' '" + started.string() +
                            "'\n");
        fs::permissions(file, fs::perms::owner_all);
    }
    ProfileEntries::Draw draw() {
        return [this](const ProfileLook& look) {
            ++drawings;
            const std::string png = look.symbol + std::string(kIconMark);
            return std::vector<IconImage>{{{16, 1}, "small " + png}, {{48, 2}, "large " + png}};
        };
    }
    void refresh(const fs::path& by) {
        gone = entries.refresh(home.store.loadAll(), home.store.root(), by, draw());
    }
    void refresh() { refresh(program); }
    std::string entry(const std::string& id) const {
        return readFile(applications / ("selvane-" + id + ".desktop"));
    }
    /// What the desktop's own tools say of an entry, and how they start it.
    int validated(const fs::path& file) const {
        return process::run("/usr/bin/desktop-file-validate", {file.string()}, environment, home.path);
    }
    std::string startedBy(const fs::path& file) const {
        fs::remove(started);
        EXPECT_EQ(process::run("/usr/bin/gio", {"launch", file.string()}, environment, home.path), 0);
        waitUntil([this] { return fs::exists(started); }, "a start by " + file.string());
        return readFile(started);
    }

    Home home;
    const ProfileEntries entries{{{"HOME", home.path.string()}}};
    const fs::path program = home / "bin/selvane";
    const fs::path started = home / "started";
    const fs::path data = home / ".local/share";
    const fs::path applications = data / "applications";
    const Environment environment = {{"HOME", home.path.string()}, {"PATH", "/usr/bin:/bin"}};
    int drawings = 0;
    std::vector<fs::path> gone;
};

TEST_F(ProfileEntriesTest, add_HostileNames_StartJustThatProfile) {
    const fs::path hostile = home / "con \"virgolette\" $(e) `altro` 100%u \\n; è/selvane";
    installProgram(hostile);
    for (const std::string id : {"lavoro", "a b", "%u%%", "x;y", "$HOME", "`id`", "\"", "\\s\\\\n", "è",
                                 "a_b", "--windows", "a.png"}) {
        Profile profile = home.builtIn();
        profile.id = id;
        profile.configDir = home.store.root() / id;
        profile.meta.name = " %f;\\n\n\"" + id + "\"\t\xFF[Desktop Entry]\nExec=rm";
        profile.meta.summary = "\\s" + id;
        entries.add(profile, hostile, draw());
        EXPECT_TRUE(entries.isThere(profile)) << id;
        const fs::path file = applications / (ProfileEntries::entryId(id) + ".desktop");
        EXPECT_EQ(validated(file), 0) << readFile(file);
        EXPECT_EQ(startedBy(file), hostile.string() + "\nlaunch\n" + id + "\n--windows\n") << readFile(file);
    }
    const Environment elsewhere = {{"HOME", home.path.string()}, {"CLAUDE_LAUNCHER_ROOT", "/a %u/\\$b"}};
    const ProfileEntries ofAnotherRoot(elsewhere);
    EXPECT_THROW(ofAnotherRoot.add(Profile{"lavoro", {}, "/a %u/\\$b/lavoro"}, program, draw()),
                 LauncherError);
    ofAnotherRoot.add(Profile{"altro", {}, "/a %u/\\$b/altro"}, program, draw());
    EXPECT_EQ(startedBy(applications / "selvane-altro.desktop"),
              program.string() + "\nlaunch\naltro\n--windows\n/a %u/\\$b\n");
    EXPECT_EQ(validated(applications / "selvane-altro.desktop"), 0);

    for (const std::string id : {"a\nb", "\xFF", "\x1B"}) {
        const Profile profile{id, {}, home.store.root() / id};
        EXPECT_THROW(entries.add(profile, program, draw()), LauncherError);
        EXPECT_FALSE(fs::exists(applications / (ProfileEntries::entryId(id) + ".desktop")));
    }
}

TEST_F(ProfileEntriesTest, refresh_CorrectsWhatHasChanged_AndRemovesWhatIsGone) {
    Profile lavoro = home.make("Lavoro");
    const Profile studio = home.make("Studio");
    const Profile rotto = home.make("Rotto");
    for (const Profile& profile : {home.builtIn(), lavoro, studio, rotto})
        entries.add(profile, program, draw());
    const Tree complete = treeOf(data);
    EXPECT_EQ(complete.size(), 4U * 3 + 7) << "an entry and two pictures each, and folders";
    refresh();
    EXPECT_EQ(drawings, 4);
    EXPECT_EQ(treeOf(data), complete);

    home.store.changeMeta(lavoro, [](ProfileMeta& meta) { meta.name = "Clienti"; });
    refresh();
    EXPECT_EQ(drawings, 4) << "it looks as before";
    EXPECT_NE(entry("lavoro").find("Name=Claude — Clienti\n"), std::string::npos) << entry("lavoro");
    home.store.changeMeta(lavoro, [](ProfileMeta& meta) { meta.look = {"flame", "Lago"}; });
    refresh();
    EXPECT_EQ(drawings, 5);
    EXPECT_TRUE(readFile(data / "icons/hicolor/48x48@2/apps/selvane-lavoro.png").starts_with("large flame"));
    fs::remove(program);
    installProgram(home / "altro/selvane");
    refresh(home / "altro/selvane");
    EXPECT_TRUE(
        startedBy(applications / "selvane-lavoro.desktop").starts_with((home / "altro/selvane\n").string()));

    // Only a profile that is certainly gone loses its entry.
    writeFile(rotto.configDir / ".launcher.json", "{");
    fs::rename(home.store.root(), home / "smontata");
    fs::create_directory(home.store.root());
    refresh();
    EXPECT_EQ(gone, std::vector<fs::path>());
    fs::remove(home.store.root());
    fs::rename(home / "smontata", home.store.root());
    fs::remove_all(studio.configDir);
    refresh();
    EXPECT_EQ(gone, std::vector{studio.configDir});
    EXPECT_NE(entry("rotto"), "");
    EXPECT_NE(entry("default"), "");
    for (const auto& [name, text] : treeOf(data))
        EXPECT_EQ(name.find("studio"), std::string::npos) << name;
    entries.remove(rotto);
    EXPECT_EQ(entry("rotto"), "");
}

TEST_F(ProfileEntriesTest, add_WhereOthersHaveFiles_LeavesThem) {
    const Profile lavoro = home.make("Lavoro");
    const Tree foreign = {{"applications/selvane-lavoro.desktop", "[Desktop Entry]\nName=x\n"},
                          {"icons/hicolor/48x48@2/apps/selvane-lavoro.png", "PNG"}};
    for (const auto& [name, text] : foreign) {
        writeTree(data, {{name, text}});
        const std::string message = messageOf([&] { entries.add(lavoro, program, draw()); });
        EXPECT_TRUE(message.ends_with((data / name).string())) << message;
        entries.remove(lavoro);
        refresh();
        EXPECT_FALSE(entries.isThere(lavoro));
        EXPECT_EQ(readFile(data / name), text);
        fs::remove(data / name);
    }
    entries.add(lavoro, program, draw());
    writeFile(data / "icons/hicolor/48x48@2/apps/selvane-lavoro.png", "PNG");
    writeFile(data / "icons/hicolor/32x32/apps/selvane-lavoro.png", "PNG");
    entries.remove(lavoro);
    EXPECT_EQ(treeOf(data / "icons/hicolor/16x16"), (Tree{{"apps", "/"}}));
    EXPECT_EQ(readFile(data / "icons/hicolor/48x48@2/apps/selvane-lavoro.png"), "PNG");
    EXPECT_EQ(readFile(data / "icons/hicolor/32x32/apps/selvane-lavoro.png"), "PNG");
}

TEST_F(ProfileEntriesTest, launch_WithAnEntry_GivesItsWindowsAClassOfTheirOwn) {
    const Profile lavoro = home.make("Lavoro");
    const std::string folder = "--user-data-dir=" + home.store.desktopDataDir(lavoro).string();
    const auto launched = [&] {
        home.claude.launch(lavoro, home.store);
        return home.workspace.openings.back().arguments;
    };
    EXPECT_EQ(launched(), std::vector{folder});
    entries.add(lavoro, program, draw());
    EXPECT_EQ(launched(), (std::vector<std::string>{"--class=selvane-lavoro", folder}));
    EXPECT_NE(entry("lavoro").find("\nStartupWMClass=selvane-lavoro\n"), std::string::npos);
}

} // namespace
} // namespace selvane::test
