// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "AppModel/EntryKeeper.h"

#include "AppModel/AppModelFixture.h"

namespace selvane::test {
namespace {

class EntryKeeperTest : public AppModelTest {
protected:
    EntryKeeper& keeper() { return *model().entries(); }
    /// Waits until exactly these profiles have an entry.
    void waitForIds(const QStringList& ids) {
        handleUntil([&] { return keeper().ids() == ids; });
        ASSERT_EQ(keeper().ids(), ids);
    }
    std::string entry() const { return readFile(home / ".local/share/applications/selvane-lavoro.desktop"); }
};

TEST_F(EntryKeeperTest, addAndRemove_AreToldAndSeen) {
    home.make("Lavoro");
    keeper().start();
    keeper().add("lavoro");
    waitUntilIdle();
    EXPECT_EQ(model().notice(), "«Lavoro» è fra le applicazioni");
    waitForIds({"lavoro"});
    keeper().remove("lavoro");
    EXPECT_EQ(model().notice(), "«Lavoro» non è più fra le applicazioni");
    EXPECT_EQ(entry(), "");
    waitForIds({});

    writeFile(home / ".local/share/applications/selvane-lavoro.desktop", "[Desktop Entry]\n");
    keeper().add("lavoro");
    waitUntilIdle();
    EXPECT_TRUE(model().errorMessage().startsWith("C'è già un file di un altro programma"));
    EXPECT_EQ(keeper().ids(), QStringList());
}

TEST_F(EntryKeeperTest, reload_CorrectsEntries_AndGivesThemBack) {
    const Profile lavoro = home.make("Lavoro");
    home.claude.entries().add(lavoro, bridge.program(),
                              [this](const ProfileLook& look) { return bridge.drawIcon(look); });
    home.store.changeMeta(lavoro, [](ProfileMeta& meta) {
        meta.name = "Clienti";
        meta.look.symbol = "flame";
    });
    keeper().start(); // what changed while no window was open
    waitForIds({"lavoro"});
    EXPECT_NE(entry().find("Name=Claude — Clienti\n"), std::string::npos);
    EXPECT_EQ(bridge.drawings, 2);

    const auto remove = [&] {
        fs::rename(lavoro.configDir, home / "cestino");
        writeFile(home.store.root() / ".active", "default");
        model().reload();
        waitForIds({});
        EXPECT_EQ(entry(), "");
    };
    remove();
    fs::rename(home / "cestino", lavoro.configDir);
    model().reload();
    model().reload();
    waitForIds({"lavoro"});
    EXPECT_NE(entry().find("Name=Claude — Clienti\n"), std::string::npos);

    remove();
    fs::rename(home / "cestino", lavoro.configDir);
    home.make("Altro"); // to see when it has been looked at
    home.claude.entries().add(*home.store.profile("altro"), bridge.program(),
                              [](auto&) { return std::vector<IconImage>(); });
    home.store.changeMeta(lavoro, [](ProfileMeta& meta) { meta.created += std::chrono::hours(1); });
    model().reload();
    waitForIds({"altro"});
    EXPECT_EQ(entry(), "") << "another profile by that name";
}

} // namespace
} // namespace selvane::test
