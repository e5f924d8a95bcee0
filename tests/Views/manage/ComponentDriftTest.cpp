// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "AppModel/AppModelFixture.h"
#include "Views/manage/ProfileDetailModel.h"
#include "Views/manage/ProfileFacts.h"

namespace selvane::test {
namespace {

/// A profile whose shared items a program has replaced by its own files.
class ComponentDriftTest : public AppModelTest {
protected:
    void SetUp() override {
        writeTree(home / ".claude", {{"CLAUDE.md", "di tutti\n"},
                                     {"skills/una/SKILL.md", "1\n2\n3\n4\n"},
                                     {"skills/due/SKILL.md", "x\n"},
                                     {"skills/due/altro.bin", std::string("\0a", 2)}});
        home.make("Altro");
        folder = home.make("Lavoro", {{Component::claudeMd, ShareMode::shared}}).configDir;
        for (const char* link : {"CLAUDE.md", "skills/una", "skills/due"})
            fs::remove(folder / link);
        writeTree(folder, {{"CLAUDE.md", "mio\n"},
                           {"skills/una/SKILL.md", "1\nb\nc\n4\n5"},
                           {"skills/due/SKILL.md", "y\n"},
                           {"skills/due/altro.bin", std::string("\0b", 2)}});
        model().reload();
        model().select("lavoro");
        detail.setApp(&model());
        waitUntil([&] { return !detail.isReading(); });
    }
    template <typename Condition>
    void waitUntil(Condition condition) {
        ASSERT_TRUE(handleUntil(condition));
    }
    void waitUntilRead() {
        waitUntilIdle();
        waitUntil([&] { return !detail.isReading(); });
    }
    ComponentModel& shown(Component wanted) const {
        return *detail.components().at(static_cast<int>(wanted));
    }
    std::string differenceOf(ComponentModel& component, const char* item) {
        component.readDifference(item == nullptr ? -1 : component.items()->rowOf(item));
        waitUntil([&] { return component.difference() != "Contenuto diverso"; });
        return component.difference().toStdString();
    }

    ProfileDetailModel detail;
    fs::path folder;
};

TEST_F(ComponentDriftTest, changedItems_AreTold) {
    ComponentModel& skills = shown(Component::skills);
    ComponentModel& memory = shown(Component::claudeMd);
    EXPECT_EQ(skills.changed(), "2 modificate");
    EXPECT_EQ(skills.count(), "2 elementi");
    EXPECT_EQ(skills.items()->data(skills.items()->index(0), ItemListModel::KindRole),
              ItemListModel::Changed);
    EXPECT_EQ(skills.bringConsequence(), "Vale anche per l'altro profilo unificato");
    EXPECT_EQ(skills.relinkConsequence(), "2 elementi modificati qui andranno nel Cestino.");
    EXPECT_EQ(memory.changed(), "modificato qui");
    EXPECT_EQ(memory.bringConsequence(), "La versione di «Principale» va nel Cestino");
    EXPECT_TRUE(memory.description().endsWith(": non segue più «Principale»"));

    EXPECT_EQ(differenceOf(skills, "una"), "3 righe diverse in SKILL.md");
    EXPECT_EQ(differenceOf(skills, "due"), "2 file diversi");
    EXPECT_EQ(skills.differenceLines(), (QStringList{"SKILL.md", "@@ -1 +1 @@", "-x", "+y", "altro.bin",
                                                     "contenuto non testuale diverso"}));
    EXPECT_EQ(differenceOf(memory, nullptr), "1 riga diversa in CLAUDE.md");

    EXPECT_FALSE(memory.compare(-1));
    bridge.hasComparison = true;
    EXPECT_TRUE(skills.compare(0));
    EXPECT_EQ(bridge.compared, (std::vector{home / ".claude/skills/due", folder / "skills/due"}));

    model().sync("lavoro");
    EXPECT_EQ(model().notice(), "Già sincronizzato · 3 elementi modificati qui non seguono più «Principale»");
    model().sync("lavoro");
    EXPECT_EQ(model().notice(), "Già sincronizzato") << "told once";
}

TEST_F(ComponentDriftTest, difference_IsFollowedUntilForgotten) {
    ComponentModel& skills = shown(Component::skills);
    EXPECT_EQ(differenceOf(skills, "una"), "3 righe diverse in SKILL.md");
    const auto become = [&](const std::string& text) {
        writeFile(folder / "skills/una/SKILL.md", text);
        model().reload();
        waitUntilRead();
    };
    become(readFile(home / ".claude/skills/una/SKILL.md"));
    waitUntil([&] { return skills.difference() == "Il contenuto è uguale"; });
    EXPECT_TRUE(skills.differenceLines().empty());
    skills.forgetDifference();
    become("altro");
    EXPECT_EQ(skills.difference(), "Il contenuto è uguale") << "nobody looks any more";
}

TEST_F(ComponentDriftTest, changedItems_GoEachWay) {
    ComponentModel& skills = shown(Component::skills);
    skills.bring(skills.items()->rowOf("una"));
    waitUntilRead();
    EXPECT_EQ(model().notice(), "Portato in «Principale»");
    EXPECT_EQ(readFile(home / ".claude/skills/una/SKILL.md"), "1\nb\nc\n4\n5");
    EXPECT_EQ(skills.changed(), "1 modificata");
    skills.keepOwn(skills.items()->rowOf("due"));
    waitUntilRead();
    EXPECT_EQ(skills.changed(), "");
    EXPECT_EQ(skills.count(), "2 elementi · 1 unificato, 1 proprio");
    EXPECT_EQ(readFile(folder / "skills/due/SKILL.md"), "y\n");

    shown(Component::claudeMd).relink(-1);
    waitUntilRead();
    EXPECT_TRUE(fs::is_symlink(folder / "CLAUDE.md"));
    fs::remove(folder / "skills/una");
    writeFile(folder / "skills/una/SKILL.md", "ancora");
    model().reload();
    waitUntilRead();
    EXPECT_EQ(skills.changed(), "1 modificata");
    model().select("default"); // while the user was asked
    skills.relinkAll("lavoro");
    waitUntilRead();
    EXPECT_TRUE(fs::is_symlink(folder / "skills/una"));
    EXPECT_EQ(model().errorMessage(), "");
}

TEST_F(ComponentDriftTest, facts_SayWhoIsSignedInAndHowMuchItTakes) {
    const auto signIn = [&](const fs::path& state, const std::string& address) {
        writeFile(state, R"({"oauthAccount": {"emailAddress": ")" + address + "\"}}");
    };
    ProfileFacts facts;
    facts.setApp(&model());
    waitUntil([&] { return !facts.signIn().isEmpty() && !facts.size().isEmpty(); });
    EXPECT_EQ(facts.signIn(), "Accesso: non ancora");
    EXPECT_EQ(facts.sameAddress(), "");
    EXPECT_TRUE(facts.size().endsWith("KB sul disco")) << facts.size().toStdString();
    EXPECT_TRUE(facts.created().startsWith("Creato il "));

    signIn(folder / ".claude.json", "anna@esempio.it");
    signIn(home / ".claude-profiles/altro/.claude.json", "anna@esempio.it");
    writeFile(home / ".claude-profiles/.desktop-data/lavoro/claude-code-sessions/conto/org/local_1.json",
              "{}");
    model().reload();
    waitUntil([&] { return !facts.sameAddress().isEmpty(); });
    EXPECT_EQ(facts.signIn(), "Accesso: anna@esempio.it · terminale e app");
    EXPECT_EQ(facts.sameAddress(), "Stesso indirizzo di «Altro»");
    signIn(home / ".claude.json", "anna@esempio.it");
    model().reload();
    waitUntil([&] { return facts.sameAddress() == "Stesso indirizzo di altri 2 profili"; });
    model().select("default");
    waitUntil([&] { return !facts.size().isEmpty(); });
    EXPECT_EQ(facts.signIn(), "Accesso: anna@esempio.it · terminale");
    EXPECT_EQ(facts.created(), "");
}

TEST_F(ComponentDriftTest, setIsolated_ChangesTheProfileAlone) {
    EXPECT_FALSE(detail.isIsolated());
    EXPECT_EQ(detail.builtInName(), "Principale");
    detail.setIsolated(true);
    EXPECT_TRUE(home.store.profile("lavoro")->meta.isolated);
    EXPECT_TRUE(detail.isIsolated());
    writeFile(folder / "settings.json", "[]");
    detail.setIsolated(false);
    EXPECT_NE(model().errorMessage(), "");
    EXPECT_TRUE(detail.isIsolated()) << "as it is on disk";
}

} // namespace
} // namespace selvane::test
