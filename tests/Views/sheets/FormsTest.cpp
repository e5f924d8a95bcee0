// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "AppModel/AppModelFixture.h"
#include "Views/sheets/BackupForm.h"
#include "Views/sheets/ImportForm.h"
#include "Views/sheets/NewProfileForm.h"
#include "Views/sheets/SessionImportForm.h"

namespace selvane::test {
namespace {

class FormsTest : public AppModelTest {
protected:
    template <typename Form>
    void prepare(Form& form, const QVariantMap& inputs = {}) {
        form.setProperty("app", QVariant::fromValue(&model()));
        for (auto input = inputs.begin(); input != inputs.end(); ++input)
            form.setProperty(input.key().toUtf8(), input.value());
    }
    std::vector<std::string> titles(const ChoiceListModel& list) const {
        std::vector<std::string> result;
        for (int row = 0; row < list.rowCount(); ++row)
            result.push_back(list.data(list.index(row), ChoiceListModel::TitleRole).toString().toStdString());
        return result;
    }
    void writeSession(const std::string& id, const std::string& title, const std::string& cwd) {
        writeFile(home / (".config/Claude/claude-code-sessions/a/b/local_" + id + ".json"),
                  R"({"sessionId": ")" + id + R"(", "title": ")" + title + R"(", "cwd": ")" + cwd + "\"}");
    }
};

TEST_F(FormsTest, newProfile_SetAll_TakesTheNearestModeWhereNeeded) {
    NewProfileForm form;
    prepare(form);
    EXPECT_EQ(form.rowCount(), 0) << "nothing to take without a source";
    form.setSource("default");
    const auto modes = [&] {
        std::string result;
        for (int row = 0; row < form.rowCount(); ++row) {
            const auto labels = form.data(form.index(row), NewProfileForm::ModeLabelsRole).toStringList();
            const int chosen = form.data(form.index(row), NewProfileForm::ModeIndexRole).toInt();
            result += labels.at(chosen)[0].toLatin1(); // all initials differ
        }
        return result;
    };
    EXPECT_EQ(modes(), "UUUUUESSS");
    std::string told; // which rows the views hear of
    QObject::connect(&form, &NewProfileForm::dataChanged,
                     [&](const QModelIndex& from, const QModelIndex& to) {
                         told += std::to_string(from.row()) + '-' + std::to_string(to.row()) + ' ';
                     });
    form.separateAll();
    EXPECT_EQ(modes(), "SSSSSSSSS");
    form.setMode(6, 2); // settings have two modes
    form.setMode(0, 2);
    EXPECT_EQ(modes(), "VSSSSSSSS");
    EXPECT_EQ(told, "0-8 0-0 ");
    form.shareAll();
    EXPECT_EQ(modes(), "UUUUUUSSS");

    writeFile(home / ".claude/rules/uno.md", "1");
    writeFile(home.make("Lavoro", {{Component::rules, ShareMode::none}}).configDir / "rules/uno.md", "2");
    model().reload();
    form.setSource("");
    form.setSource("default");
    form.setMode(0, 2);
    const auto rules = [&] { // their number and how many of them are chosen
        const auto* items = form.data(form.index(4), NewProfileForm::ItemsRole).value<ChoiceListModel*>();
        return std::pair(items->total(), items->chosenCount());
    };
    EXPECT_EQ(rules(), std::pair(1, 1));
    form.data(form.index(4), NewProfileForm::ItemsRole).value<ChoiceListModel*>()->toggle(0);
    form.setSource("lavoro");
    EXPECT_EQ(modes(), "VUUUUUSSS") << "what was chosen stays chosen";
    EXPECT_EQ(rules(), std::pair(1, 0));
}

TEST_F(FormsTest, newProfile_IsIsolatedWhereThatMattersUntilChosen) {
    writeTree(home / ".claude/rules", {{"a.md", ""}, {"b.md", ""}});
    NewProfileForm form;
    prepare(form, {{"name", "Nuovo"}});
    const auto becomes = [&](bool isolated) {
        return handleUntil([&] { return form.isIsolated() == isolated; });
    };
    EXPECT_TRUE(becomes(true)) << "it starts empty";
    form.setSource("default");
    EXPECT_TRUE(becomes(false)) << "it takes everything";
    auto* rules = form.data(form.index(4), NewProfileForm::ItemsRole).value<ChoiceListModel*>();
    rules->toggle(0);
    EXPECT_TRUE(becomes(true));
    form.create();
    waitUntilIdle();
    EXPECT_TRUE(home.store.profile("nuovo")->meta.isolated);
    form.setIsolated(false);
    rules->toggle(1);
    EXPECT_FALSE(form.isIsolated()) << "as chosen";
    form.create();
    waitUntilIdle();
    EXPECT_FALSE(home.store.profile("nuovo-2")->meta.isolated);
}

TEST_F(FormsTest, newProfile_Create_MakesWhatWasChosen) {
    const std::string notUtf8 = "due\xE9.md";
    for (const std::string& name : {std::string("uno.md"), notUtf8, std::string("tre.md")})
        writeFile(home / ".claude/skills" / name, "x");
    NewProfileForm form;
    prepare(form, {{"name", "   "}, {"source", "default"}});
    EXPECT_FALSE(form.canCreate());
    form.create();
    waitUntilIdle();
    EXPECT_EQ(model().profiles().size(), 1U);

    form.setProperty("name", " Lavoro ");
    EXPECT_TRUE(form.canCreate());
    auto* items = form.data(form.index(0), NewProfileForm::ItemsRole).value<ChoiceListModel*>();
    ASSERT_NE(items, nullptr);
    EXPECT_EQ(items->chosenCount(), 3);
    items->chooseNone();
    items->toggle(0);
    form.create();
    waitUntilIdle();
    const Profile made = *home.store.profile("lavoro");
    EXPECT_EQ(made.meta.account, "default");
    EXPECT_EQ(made.meta.look.symbol, "briefcase");
    EXPECT_EQ(made.excluded(Component::skills), (std::set<std::string>{"tre.md", "uno.md"}));
    EXPECT_TRUE(fs::is_symlink(made.configDir / "skills" / notUtf8));
    EXPECT_EQ(model().selection(), "lavoro");

    form.setSource("");
    form.setProperty("name", "Vuoto");
    form.create();
    waitUntilIdle();
    EXPECT_FALSE(home.store.profile("vuoto")->meta.source || home.store.profile("vuoto")->meta.account);

    writeSession("1", "Sito", "/srv");
    prepare(form, {{"name", "Gemello"}, {"source", "default"}, {"copiesSessions", true}});
    form.create();
    waitUntilIdle();
    EXPECT_EQ(model().notice(), "") << "the same account has its sessions already";
}

TEST_F(FormsTest, import_OffersWhatIsMissingByName) {
    writeTree(home.path, {{".claude/rules/uno.md", "1"}, {".claude/rules/due.md", "2"}});
    const Profile target = home.make("Lavoro", {{Component::rules, ShareMode::none}});
    writeFile(target.configDir / "rules/uno.md", "own");
    ImportForm form;
    prepare(form, {{"target", "lavoro"}, {"component", "rules"}});
    form.componentComplete();
    EXPECT_EQ(form.source(), "default");
    EXPECT_EQ(form.heading(), "Regole (rules/) non ancora presenti in «Lavoro»");
    EXPECT_EQ(titles(*form.items()), std::vector<std::string>{"due.md"});
    const qint64 revision = model().revision();
    form.submit();
    waitUntilIdle();
    EXPECT_EQ(model().revision(), revision) << "nothing chosen, nothing done";
    form.items()->toggle(0);
    form.setProperty("links", false);
    form.submit();
    waitUntilIdle();
    EXPECT_EQ(readFile(target.configDir / "rules/due.md"), "2");
    EXPECT_FALSE(fs::is_symlink(target.configDir / "rules/due.md"));
    form.setSource("default");
    EXPECT_EQ(form.items()->total(), 0);
}

TEST_F(FormsTest, sessionImport_SearchNarrowsWhatIsChosen) {
    writeSession("1", "Modulo d'ordine", "/home/a/negozio");
    writeSession("2", "Sito", "/home/a/Negozio");
    writeSession("3", "Note", "/home/a/note");
    home.make("Lavoro");
    SessionImportForm form;
    prepare(form, {{"target", "lavoro"}});
    form.componentComplete();
    EXPECT_TRUE(form.isLoading());
    const auto waitUntilRead = [&] { handleUntil([&] { return !form.isLoading(); }); };
    waitUntilRead();
    ChoiceListModel& sessions = *form.sessions();
    const Mirror seenForm(form);
    const Mirror seen(sessions);
    EXPECT_EQ(sessions.total(), 3);
    sessions.setSearch("negozio");
    EXPECT_EQ(sessions.rowCount(), 2);
    sessions.chooseAll();
    EXPECT_EQ(sessions.chosenCount(), 2);
    sessions.toggle(1);
    sessions.setSearch("");
    EXPECT_EQ(sessions.chosenCount(), 1) << "what was chosen stays chosen when the search ends";
    form.submit();
    waitUntilIdle();
    EXPECT_EQ(model().notice(), "0 copiate, 1 aggiunta al prossimo avvio di «Lavoro»");

    home.store.create(request("Ospite", {}, "default"));
    model().reload();
    sessions.setSearch("note");
    form.setSource("ospite");
    EXPECT_TRUE(form.isLoading());
    EXPECT_EQ(sessions.total(), 0) << "those of the other profile can't be chosen meanwhile";
    EXPECT_EQ(sessions.chosenCount(), 0);
    seen.expectUpToDate();
    seenForm.expectUpToDate();
    waitUntilRead();
    EXPECT_EQ(sessions.total(), 3);
    EXPECT_EQ(titles(sessions), std::vector<std::string>{"Note"}) << "the search still holds";
    form.setSource("nessuno");
    EXPECT_FALSE(form.isLoading());
    EXPECT_EQ(sessions.total(), 0);
    seen.expectUpToDate();
    seenForm.expectUpToDate();
}

TEST_F(FormsTest, backup_SavesWhatIsSwitchedOn) {
    writeFile(home / ".claude/CLAUDE.md", "x");
    bridge.archive = home / "b.zip";
    BackupForm form;
    prepare(form, {{"savesPrincipal", false}, {"savesProfiles", false}});
    EXPECT_FALSE(form.canSave());
    form.submit();
    waitUntilIdle();
    EXPECT_EQ(bridge.proposedName, "") << "nobody is asked for a place";
    form.setProperty("savesProfiles", true);
    form.submit();
    waitUntilIdle();
    EXPECT_TRUE(fs::exists(home / "b.zip")) << model().errorMessage().toStdString();
    const std::string bytes = readFile(home / "b.zip");
    EXPECT_EQ(bytes.find("CLAUDE.md"), bytes.npos);
}

} // namespace
} // namespace selvane::test
