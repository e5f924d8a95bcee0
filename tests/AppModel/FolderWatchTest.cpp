// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "AppModel/FolderWatch.h"

#include <chrono>
#include <utility>

#include "AppModel/AppModelFixture.h"

namespace selvane::test {
namespace {

using namespace std::chrono_literals;

class FolderWatchTest : public AppModelTest {
protected:
    /// Lets what is still to come of earlier changes arrive.
    void settle() {
        qint64 before = -1;
        while (std::exchange(before, model().revision()) != model().revision())
            handleUntil([] { return false; }, QDeadlineTimer(60ms));
    }
};

TEST_F(FolderWatchTest, changesFromOutside_ReloadWhatIsShown) {
    home.store.create(request("Vuoto"));
    const Profile work = home.make("Lavoro");
    const fs::path records = home.store.desktopDataDir(work) / "claude-code-sessions/a/b";
    fs::create_directories(records);
    fs::create_directories(work.configDir / ".pending-sessions");
    model().select("lavoro");
    FolderWatch watch(model(), {.delay = 5ms, .apart = 10ms});
    watch.start();
    const std::pair<const char*, std::function<void()>> changes[] = {
        {"a new profile", [&] { home.store.create(request("Nuovo")); }},
        {"a record replaced",
         [&] { home.store.changeMeta(work, [](ProfileMeta& meta) { meta.summary = "altro"; }); }},
        {"another record edited in place",
         [&] { writeFile(home.store.root() / "vuoto/.launcher.json", R"({"name": "Edito"})"); }},
        {"a launch", [&] { writeFile(home.store.root() / ".active", "lavoro"); }},
        {"an item", [&] { writeFile(work.configDir / "skills/uno.md", ""); }},
        {"a folder replaced",
         [&] {
             fs::rename(work.configDir / "skills", work.configDir / "old");
             fs::create_directory(work.configDir / "skills");
         }},
        {"an item in the new folder", [&] { writeFile(work.configDir / "skills/due.md", ""); }},
        {"an item of the source", [&] { writeFile(home / ".claude/skills/tre.md", ""); }},
        {"a session", [&] { writeFile(records / "local_1.json", "{}"); }},
        {"a waiting session", [&] { writeFile(work.configDir / ".pending-sessions/x.json", "{}"); }},
        {"a deletion", [&] { fs::remove_all(home.store.root() / "nuovo"); }},
    };
    for (const auto& [what, change] : changes) {
        settle();
        const qint64 before = model().revision();
        change();
        EXPECT_TRUE(handleUntil([&] { return model().revision() > before; })) << what;
    }
    EXPECT_EQ(model().profile("nuovo"), nullptr);
    EXPECT_EQ(model().profile("vuoto")->meta.name, "Edito");
}

TEST_F(FolderWatchTest, manyChanges_ReloadSeldom_AndNotDuringAnAction) {
    const Profile work = home.make("Lavoro");
    writeFile(home / ".claude/CLAUDE.md", "x");
    FolderWatch watch(model(), {.delay = 5ms, .apart = 100ms});
    watch.start();
    const qint64 before = model().revision();
    int files = 0;
    handleUntil(
        [&] {
            writeFile(work.configDir / ("f" + std::to_string(++files)), "");
            return false;
        },
        QDeadlineTimer(250ms));
    settle();
    EXPECT_GT(files, 20);
    EXPECT_GT(model().revision(), before);
    EXPECT_LE(model().revision(), before + 4);

    bridge.archive = home / "b.zip";
    model().exportBackup(BackupScope::all());
    writeFile(home.store.root() / "altro/.launcher.json", R"({"name": "Altro"})");
    handleUntil([&] {
        const bool isIdle = model().busyMessage().isEmpty();
        EXPECT_TRUE(isIdle || model().profile("altro") == nullptr);
        return isIdle;
    });
    EXPECT_TRUE(handleUntil([&] { return model().profile("altro") != nullptr; }));
}

} // namespace
} // namespace selvane::test
