// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/manage/ProfileDetailModel.h"

#include <QTimer>

#include "AppModel/AppModelFixture.h"
#include "Views/manage/ProfileListModel.h"

namespace selvane::test {
namespace {

using Kind = ItemListModel::Kind;

class ProfileDetailModelTest : public AppModelTest {
protected:
    /// Selects a profile and waits until everything about it has been read.
    void show(const char* id) {
        model().reload();
        model().select(id);
        detail.setApp(&model());
        waitUntilRead();
    }
    void waitUntilRead() {
        handleUntil([this] { return !detail.isReading(); });
        QCoreApplication::processEvents();
        ASSERT_FALSE(detail.isReading());
    }
    ComponentModel& shown(Component wanted) const {
        return *detail.components().at(static_cast<int>(wanted));
    }
    std::map<std::string, Kind> kinds(Component component) const {
        std::map<std::string, Kind> result;
        const ItemListModel& items = *shown(component).items();
        for (int row = 0; row < items.count(); ++row)
            result[items.data(items.index(row), ItemListModel::NameRole).toString().toStdString()] =
                items.data(items.index(row), ItemListModel::KindRole).value<Kind>();
        return result;
    }
    int rowOf(Component component, const std::string& name) const {
        int row = 0;
        while (shown(component).items()->item(row)->name != name)
            ++row;
        return row;
    }

    ProfileDetailModel detail;
};

TEST_F(ProfileDetailModelTest, count_SaysHowManyAreLinked) {
    writeTree(home.path, {{".claude/skills/a/SKILL.md", ""},
                          {".claude/skills/b/SKILL.md", ""},
                          {".claude/rules/uno.md", ""},
                          {".claude/skills/.hidden", ""}});
    const Profile work = home.make("Lavoro");
    writeFile(work.configDir / "skills/own/SKILL.md", "");
    show("default");
    EXPECT_EQ(shown(Component::skills).count(), "2 elementi");
    EXPECT_EQ(shown(Component::rules).count(), "1 elemento");
    EXPECT_EQ(shown(Component::agents).count(), "Nessun elemento");
    EXPECT_FALSE(shown(Component::skills).hasModes());
    show("lavoro");
    EXPECT_EQ(shown(Component::skills).count(), "3 elementi · 2 unificati, 1 proprio");
    EXPECT_EQ(shown(Component::rules).count(), "1 elemento · 1 unificato, 0 propri");
    EXPECT_TRUE(shown(Component::skills).hasModes());
}

TEST_F(ProfileDetailModelTest, filterPrompt_HasTheRightArticle) {
    const auto prompt = [](Component component, std::size_t count) {
        ComponentModel model(component, nullptr);
        ComponentModel::Content content;
        content.items.resize(count);
        model.setContent(content);
        return model.filterPrompt();
    };
    EXPECT_EQ(prompt(Component::skills, 38), "Filtra le 38 skill");
    EXPECT_EQ(prompt(Component::rules, 80), "Filtra le 80 regole");
    EXPECT_EQ(prompt(Component::agents, 14), "Filtra i 14 agenti");
    EXPECT_EQ(prompt(Component::commands, 80), "Filtra gli 80 comandi");
    EXPECT_EQ(prompt(Component::commands, 110), "Filtra i 110 comandi");
    EXPECT_EQ(prompt(Component::outputStyles, 11'000), "Filtra gli 11.000 stili");
}

TEST_F(ProfileDetailModelTest, items_TellWhereTheyComeFromAndCanBeRemoved) {
    writeTree(home.path, {{".claude/agents/merged.md", ""}, {"elsewhere.md", "x"}});
    const Profile work = home.make("Lavoro");
    writeTree(work.configDir / "agents", {{"linked.md", "-> " + (home / "elsewhere.md").string()},
                                          {"broken.md", "-> /nowhere"},
                                          {"own.md", "mine"}});
    show("lavoro");
    EXPECT_EQ(kinds(Component::agents), (std::map<std::string, Kind>{{"merged.md", Kind::Merged},
                                                                     {"linked.md", Kind::Linked},
                                                                     {"broken.md", Kind::Broken},
                                                                     {"own.md", Kind::Own}}));
    for (const char* name : {"broken.md", "merged.md", "own.md"}) {
        shown(Component::agents).remove(rowOf(Component::agents, name));
        waitUntilRead();
    }
    shown(Component::agents).makeOwn(rowOf(Component::agents, "linked.md"));
    waitUntilIdle();
    waitUntilRead();
    EXPECT_EQ(model().errorMessage(), "");
    EXPECT_EQ(treeOf(work.configDir / "agents"), (Tree{{"linked.md", "x"}}));
    EXPECT_EQ(kinds(Component::agents), (std::map<std::string, Kind>{{"linked.md", Kind::Own}}));
    EXPECT_TRUE(fs::exists(home / ".claude/agents/merged.md"));
}

TEST_F(ProfileDetailModelTest, files_AreDescribedAsTheyAre) {
    const auto descriptions = [&] {
        QStringList all;
        for (const ComponentModel* file : detail.components().sliced(5))
            all += file->description() + '|' + file->openLabel();
        return all;
    };
    show("default");
    shown(Component::claudeMd).reveal();
    EXPECT_EQ(bridge.revealed.back(), home / ".claude") << "the folder while there is no file";
    EXPECT_EQ(descriptions(),
              (QStringList{"Nessun CLAUDE.md|Crea", "Nessuna impostazione personalizzata|Crea",
                           "Nessun plugin|", "Nessun server MCP configurato|"}));
    writeTree(home.path, {{".claude/CLAUDE.md", "x"},
                          {".claude/settings.json", "{}"},
                          {".claude/plugins/installed_plugins.json", "{}"},
                          {".claude.json", R"({"mcpServers": {"a": {}, "b": {}}})"}});
    model().reload();
    waitUntilRead();
    EXPECT_EQ(descriptions(), (QStringList{"File CLAUDE.md del profilo|Apri",
                                           "settings.json del profilo (permessi, hook, plugin attivi)|Apri",
                                           "Plugin e marketplace installati|", "2 server MCP|Apri"}));

    shown(Component::claudeMd).reveal();
    shown(Component::settings).open();
    EXPECT_EQ(bridge.revealed.back(), home / ".claude/CLAUDE.md");
    EXPECT_EQ(bridge.opened.back(), home / ".claude/settings.json");

    const Profile work = home.make("Lavoro", {{Component::claudeMd, ShareMode::shared}});
    show("lavoro");
    const QString source = QString::fromStdString((home / ".claude/CLAUDE.md").string());
    EXPECT_EQ(shown(Component::claudeMd).description(), "Collegato a " + source);
    EXPECT_EQ(shown(Component::claudeMd).linkTarget(), source);
    fs::remove(home / ".claude/CLAUDE.md");
    model().reload();
    waitUntilRead();
    EXPECT_EQ(shown(Component::claudeMd).openLabel(), "") << "a new file would take the link's place";
}

TEST_F(ProfileDetailModelTest, accountChoices_AreTheProfilesWithAnAccount) {
    home.store.create(request("Bea", home.builtIn()));
    home.store.create(request("Alfa", home.builtIn(), "default"));
    show("default");
    EXPECT_EQ(detail.account(), "Cartella dati normale di Claude Desktop");
    int opened = 0;
    QObject::connect(&detail, &ProfileDetailModel::accountChanged, [&] { ++opened; });
    QObject::connect(&detail, &ProfileDetailModel::runningChanged, [&] { ++opened; });
    emit model().runningChanged();
    EXPECT_EQ(opened, 2) << "it tells when it is open, and when its account is";
    EXPECT_EQ(detail.accountChoices(), QStringList());
    show("alfa");
    EXPECT_EQ(detail.account(), "Usa l'account di «Principale»");
    EXPECT_EQ(detail.accountChoices(), (QStringList{"Proprio", "Principale", "Bea"}));
    EXPECT_EQ(detail.accountIndex(), 1);
    detail.setAccount(2);
    EXPECT_EQ(detail.account(), "Usa l'account di «Bea»");
    EXPECT_EQ(detail.accountIndex(), 2);
    detail.setAccount(9);
    detail.setAccount(-1);
    EXPECT_EQ(detail.accountIndex(), 2);
    detail.setAccount(0);
    EXPECT_EQ(detail.account(), "Account proprio — login al primo avvio");
    fs::create_directories(home.store.desktopDataDir(*home.store.profile("alfa")));
    model().reload();
    EXPECT_EQ(detail.account(), "Cartella dati propria nel launcher");
    EXPECT_EQ(detail.sessions(), "Nessuna sessione");
    int told = 0;
    QObject::connect(&detail, &ProfileDetailModel::sessionsChanged, [&] { ++told; });
    writeFile(home.store.desktopDataDir(*home.store.profile("alfa")) /
                  "claude-code-sessions/a/b/local_1.json",
              R"({"sessionId": "1"})");
    writeFile(home.store.profile("alfa")->configDir / ".pending-sessions/local_2.json", "{}");
    model().reload();
    waitUntilRead();
    EXPECT_TRUE(detail.sessions().startsWith("1 ")) << detail.sessions().toStdString();
    EXPECT_TRUE(detail.pendingSessions().startsWith("1 in attesa")) << detail.pendingSessions().toStdString();
    EXPECT_EQ(told, 2) << "when the profiles are read and when they are counted";
}

TEST_F(ProfileDetailModelTest, deletion_IsRefusedWithAReason) {
    home.store.create(request("Bea", home.builtIn()));
    home.store.create(request("Alfa", *home.store.profile("bea")));
    home.store.create(request("Zeta", {}, "alfa"));
    show("default");
    EXPECT_EQ(detail.deletionRefusal(), "Il profilo principale non si elimina");
    model().select("bea");
    EXPECT_EQ(detail.deletionRefusal(), "Non si elimina: altri profili ereditano da questo");
    model().select("alfa");
    EXPECT_EQ(detail.deletionRefusal(), "Non si elimina: altri profili usano il suo account");
    model().select("zeta");
    EXPECT_EQ(detail.deletionRefusal(), "");
    for (const char* id : {"zeta", "alfa", "bea"}) {
        detail.remove(id);
        waitUntilIdle();
    }
    EXPECT_EQ(model().errorMessage(), "") << "what isn't refused succeeds";
    EXPECT_EQ(model().profiles().size(), 1U);
}

TEST_F(ProfileDetailModelTest, selection_ChangedMeanwhile_DropsWhatIsReadOfTheOther) {
    for (int i = 0; i < 100; ++i)
        writeFile(home / (".claude/skills/s" + std::to_string(i) + "/SKILL.md"), "");
    home.store.create(request("Vuoto"));
    show("vuoto");
    model().select("default");
    EXPECT_EQ(shown(Component::skills).count(), "") << "nothing is said before it is read";
    model().select("vuoto");
    waitUntilRead();
    EXPECT_EQ(shown(Component::skills).count(), "Nessun elemento");
    EXPECT_EQ(shown(Component::skills).items()->count(), 0);
    model().select("");
    waitUntilRead();
    EXPECT_EQ(detail.profileId(), "");
    EXPECT_EQ(shown(Component::skills).count(), "");
}

TEST_F(ProfileDetailModelTest, answers_ConcernTheProfileThatWasAskedAbout) {
    writeTree(home.path, {{".claude/settings.json", R"({"model": "opus"})"},
                          {".claude/plugins/installed_plugins.json", "{}"},
                          {".claude.json", R"({"mcpServers": {"a": {}}})"}});
    const std::map<Component, ShareMode> nothing = {{Component::settings, ShareMode::none},
                                                    {Component::plugins, ShareMode::none},
                                                    {Component::mcp, ShareMode::none}};
    const Profile work = home.make("Lavoro", nothing);
    const Profile other = home.make("Altro", nothing);
    show("altro");
    const auto there = [&](const Profile& profile) {
        const bool hasServers =
            readFile(profile.configDir / ".claude.json").find("mcpServers") != std::string::npos;
        return std::string(fs::exists(profile.configDir / "settings.json") ? "settings " : "") +
               (fs::exists(profile.configDir / "plugins/installed_plugins.json") ? "plugins " : "") +
               (hasServers ? "mcp " : "");
    };
    shown(Component::settings).reimport("lavoro");
    waitUntilIdle();
    EXPECT_EQ(model().notice(), "Impostazioni e hook: reimportati");
    EXPECT_EQ(there(work), "settings ");
    shown(Component::plugins).reimport("lavoro");
    waitUntilIdle();
    EXPECT_EQ(there(work), "settings plugins ");
    shown(Component::mcp).reimport("lavoro");
    waitUntilIdle();
    EXPECT_EQ(there(work), "settings plugins mcp ");
    EXPECT_EQ(there(other), "");
    detail.remove("lavoro");
    waitUntilIdle();
    EXPECT_FALSE(fs::exists(work.configDir));
    EXPECT_TRUE(fs::exists(other.configDir));
    EXPECT_EQ(detail.profileId(), "altro");

    detail.remove("default");
    waitUntilIdle();
    EXPECT_NE(model().errorMessage(), "");
    EXPECT_TRUE(fs::exists(home / ".claude"));
    shown(Component::settings).reimport("default");
    waitUntilIdle();
    EXPECT_NE(model().errorMessage(), "") << "it has no source";
}

TEST_F(ProfileDetailModelTest, whatANoticeTells_CanBeTakenBackUntilTheNext) {
    writeTree(home / ".claude", {{"rules/r.md", "r"}, {"agents/a.md", "a"}, {"settings.json", "{}"}});
    const fs::path folder = home.make("Lavoro").configDir;
    fs::remove(folder / "agents/a.md");
    writeTree(folder, {{"rules/sola.md", "sola"}, {"agents/a.md", "a mia"}});
    const auto rule = [&](const char* name) { return rowOf(Component::rules, name); };
    struct Case {
        std::function<void()> act;
        const char *told, *takenBack;
    };
    const std::vector<Case> cases = {
        {[&] { shown(Component::rules).remove(rule("sola.md")); }, "«sola.md» spostato nel Cestino",
         "«sola.md» rimesso al suo posto"},
        {[&] { shown(Component::rules).remove(rule("r.md")); }, "«r.md» tolto",
         "«r.md» rimesso al suo posto"},
        {[&] { shown(Component::rules).setMode(1); }, "Regole (rules/): Separato",
         "Regole (rules/): di nuovo Unificato"},
        {[&] { shown(Component::agents).relink(0); }, "Ripreso da «Principale»", "«a.md» rimesso com'era"},
        {[&] { shown(Component::agents).relinkAll("lavoro"); }, "Ripresi da «Principale»",
         "Agenti: rimessi com'erano"},
        {[&] { shown(Component::agents).bring(0); }, "Portato in «Principale»", "«a.md» rimesso com'era"},
        {[&] { shown(Component::settings).reimport("lavoro"); }, "Impostazioni e hook: reimportati",
         "Impostazioni e hook: rimessi com'erano"},
        {[&] { detail.remove("lavoro"); }, "Profilo «Lavoro» spostato nel Cestino",
         "Profilo «Lavoro» rimesso al suo posto"},
    };
    const Tree before = treeOf(home / ".claude-profiles");
    for (const Case& tried : cases) {
        show("lavoro");
        tried.act();
        waitUntilIdle();
        EXPECT_EQ(model().notice(), tried.told);
        EXPECT_TRUE(model().canTakeBack());
        model().takeBack();
        waitUntilIdle();
        EXPECT_EQ(model().notice(), tried.takenBack) << model().errorMessage().toStdString();
        EXPECT_FALSE(model().canTakeBack());
        EXPECT_EQ(model().selection(), "lavoro");
        EXPECT_EQ(treeOf(home / ".claude-profiles"), before);
    }
    for (const auto& end : {std::function([&] { model().clearNotice(); }),
                            std::function([&] { model().setNotice(model().notice()); })}) {
        show("lavoro");
        shown(Component::rules).remove(rule("sola.md"));
        writeFile(folder / "rules/sola.md", "sola"); // for the next time
        EXPECT_TRUE(model().canTakeBack());
        expectUpToDate();
        end();
        EXPECT_FALSE(model().canTakeBack());
    }
}

TEST_F(ProfileDetailModelTest, names_AreTrimmedAndNeverEmpty) {
    home.make("Lavoro");
    show("lavoro");
    detail.setName("  Studio ");
    detail.setSummary(" Uno\n");
    detail.setName(" \t");
    EXPECT_EQ(detail.name(), "Studio");
    EXPECT_EQ(home.store.profile("lavoro")->meta.name, "Studio");
    EXPECT_EQ(home.store.profile("lavoro")->meta.summary, "Uno");
    const qint64 revision = model().revision();
    detail.setLook(detail.look());
    EXPECT_EQ(model().revision(), revision) << "nothing to save";
}

TEST_F(ProfileDetailModelTest, sessions_AreCountedInWords) {
    const Profile work = home.make("Lavoro");
    const auto add = [&](const std::string& id) {
        writeFile(home.store.desktopDataDir(work) / ("claude-code-sessions/a/b/local_" + id + ".json"),
                  R"({"sessionId": ")" + id + "\"}");
        writeFile(work.configDir / ".pending-sessions" / ("local_" + id + ".json"), "{}");
    };
    add("1");
    show("lavoro");
    EXPECT_EQ(detail.sessions(), "1 sessione nell'account");
    EXPECT_EQ(detail.pendingSessions(), "1 in attesa: verrà aggiunta al prossimo avvio");
    const Mirror seen(detail);
    add("2");
    model().reload();
    waitUntilRead();
    EXPECT_EQ(detail.sessions(), "2 sessioni nell'account");
    EXPECT_EQ(detail.pendingSessions(), "2 in attesa: verranno aggiunte al prossimo avvio");
    seen.expectUpToDate();
}

TEST_F(ProfileDetailModelTest, profileList_KeepsItsRowsWhileTheProfilesStay) {
    Profile work = home.make("Lavoro");
    ProfileListModel list;
    list.setApp(&model());
    int resets = 0;
    QObject::connect(&list, &QAbstractItemModel::modelReset, [&] { ++resets; });
    const auto role = [&](ProfileListModel::Role wanted) {
        return list.data(list.index(list.indexOf("lavoro")), wanted).toString();
    };
    EXPECT_EQ(role(ProfileListModel::SubtitleRole), "Mai avviato");
    home.store.markLaunched(work);
    model().reload();
    EXPECT_TRUE(role(ProfileListModel::SubtitleRole).startsWith("Avviato "));
    EXPECT_EQ(role(ProfileListModel::WasLaunchedRole), "true");
    EXPECT_EQ(role(ProfileListModel::SourceNameRole), "Principale");
    const QPersistentModelIndex row = list.index(list.indexOf("lavoro"));
    EXPECT_EQ(resets, 0);
    const auto* minute = list.findChild<QTimer*>();
    ASSERT_TRUE(minute != nullptr && minute->isActive());
    QList<int> told;
    QObject::connect(&list, &QAbstractItemModel::dataChanged,
                     [&](const auto&, const auto&, const QList<int>& roles) { told += roles; });
    QTimerEvent passed(minute->timerId());
    QCoreApplication::sendEvent(const_cast<QTimer*>(minute), &passed);
    EXPECT_TRUE(told.contains(ProfileListModel::SubtitleRole)) << "the texts age";
    home.make("Altro");
    home.store.changeMeta(work, [](ProfileMeta& meta) {
        meta.name = "A";
        *meta.lastLaunched -= std::chrono::days(8);
    });
    model().reload();
    EXPECT_EQ(row.row(), 1) << "before «Altro»";
    EXPECT_EQ(role(ProfileListModel::SubtitleRole), "Avviato la settimana scorsa");
    EXPECT_EQ(list.idNear(-1), "default");
    EXPECT_EQ(list.idNear(99), "altro");
    fs::remove_all(work.configDir);
    model().reload();
    EXPECT_FALSE(row.isValid());
    EXPECT_EQ(list.count(), 2);
    EXPECT_EQ(resets, 0);
}

} // namespace
} // namespace selvane::test
