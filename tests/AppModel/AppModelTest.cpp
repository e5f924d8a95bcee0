// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "AppModel/AppModelFixture.h"

#include <QDate>

#include <atomic>
#include <sys/stat.h>
#include <thread>

#include "AppModel/Wording.h"
#include "model/LauncherError.h"
#include "platform/files/FolderLock.h"
#include "store/restore/RestoreJournal.h"

namespace selvane::test {
namespace {

TEST_F(AppModelTest, start_StoredSelection_CountsOnlyWhileTheProfileIsThere) {
    home.make("Lavoro");
    preferences.setLastSelection("lavoro");
    EXPECT_EQ(model().selection(), "lavoro");
    fs::remove_all(home.store.profile("lavoro")->configDir);
    model().reload();
    EXPECT_EQ(model().selection(), "default");
    model().select("");
    model().reload();
    EXPECT_EQ(model().selection(), "") << "no selection stays none";
    EXPECT_EQ(preferences.lastSelection(), "lavoro") << "and is not remembered";
    preferences.setLastSelection("andato");
    {
        AppModel other(home.store, home.claude, bridge, preferences);
        EXPECT_EQ(other.selection(), "default");
        const QString id = QString::fromStdString(home.make("Studio").id);
        other.reload();
        other.select(id);
        other.select("");
        EXPECT_EQ(preferences.lastSelection(), "andato") << "others may follow at once";
    }
    EXPECT_EQ(preferences.lastSelection(), "studio");
}

TEST_F(AppModelTest, perform_Failure_IsShownAndReloads) {
    const qint64 revision = model().revision();
    model().perform([&] { home.store.deleteProfile(home.builtIn()); });
    EXPECT_EQ(model().errorMessage(), "Il profilo principale non può essere eliminato");
    EXPECT_EQ(model().revision(), revision + 1);
    model().clearError();
    EXPECT_EQ(model().errorMessage(), "");
}

TEST_F(AppModelTest, damagedProfiles_AreShownAndRepaired) {
    const fs::path record = home.store.root() / "rotto\t1/.launcher.json";
    EXPECT_EQ(model().damaged(), QStringList{});
    writeFile(record, "{");
    model().reload();
    EXPECT_EQ(model().damaged(), QStringList{"rotto\uFFFD1"});
    EXPECT_EQ(model().profiles().size(), 1U) << "nothing can be done with it but this";
    model().revealDamaged(0);
    EXPECT_EQ(bridge.revealed, std::vector{record.parent_path()});
    model().repairDamaged(0);
    EXPECT_EQ(model().notice(), "«rotto\uFFFD1» è di nuovo fra i profili");
    EXPECT_EQ(model().damaged(), QStringList{});
    EXPECT_EQ(model().profiles().size(), 2U);
}

TEST_F(AppModelTest, actions_TellWhatTheyDid) {
    writeTree(home.path, {{".claude/skills/uno.md", ""}, {".claude/skills/due.md", ""}});
    const Profile profile = home.make("Lavoro");
    model().sync("lavoro");
    EXPECT_EQ(model().notice(), "Già sincronizzato");
    fs::rename(home / ".claude/skills/uno.md", home / ".claude/skills/tre.md");
    writeFile(home / ".claude/skills/quattro.md", "");
    model().sync("lavoro");
    EXPECT_EQ(model().notice(), "Aggiunti 2, rimosso 1 collegamento");
    fs::remove(home / ".claude/skills/tre.md");
    model().sync("lavoro");
    EXPECT_EQ(model().notice(), "Rimosso 1 collegamento");
    writeFile(home / ".claude/skills/tre.md", "");
    model().sync("lavoro");
    EXPECT_EQ(model().notice(), "Aggiunto 1 collegamento");

    model().copyTerminalCommand("lavoro");
    EXPECT_EQ(bridge.clipboard.toStdString(),
              '"' + (home.store.root() / "bin/claude-profile").string() + "\" lavoro");
    EXPECT_EQ(model().notice(), "Comando copiato negli appunti");
    bridge.keepsClipboard = false;
    model().copyTerminalCommand("lavoro");
    EXPECT_EQ(model().notice(), "Comando copiato: incollalo prima di chiudere Selvane");

    model().setAccount("default", "lavoro");
    EXPECT_EQ(home.store.profile("lavoro")->meta.account, "default");
    model().setAccount("", "lavoro");
    EXPECT_FALSE(home.store.profile("lavoro")->meta.account);

    model().open(profile.configDir / "CLAUDE.local.md");
    EXPECT_TRUE(fs::is_regular_file(profile.configDir / "CLAUDE.local.md"));
    EXPECT_EQ(bridge.opened, std::vector{profile.configDir / "CLAUDE.local.md"});
    fs::create_symlink("/nowhere", profile.configDir / "dead.md");
    model().open(profile.configDir / "dead.md");
    EXPECT_TRUE(fs::is_regular_file(profile.configDir / "dead.md")) << "never opened as it is";
    bridge.opened.pop_back();
    writeFile(profile.configDir / "testo", "");
    model().open(profile.configDir / "testo/file.md");
    EXPECT_TRUE(model().errorMessage().contains("testo")) << model().errorMessage().toStdString();
    EXPECT_EQ(bridge.opened.size(), 1U);
    model().open(profile.configDir / "settings.json");
    EXPECT_EQ(readFile(profile.configDir / "settings.json"), "{}\n");

    bridge.hasPrograms = false;
    model().open(profile.configDir / "settings.json");
    EXPECT_TRUE(model().errorMessage().startsWith("Nessun programma può aprire il file"));
    model().revealProfile("lavoro");
    EXPECT_TRUE(model().errorMessage().startsWith("Nessun programma può mostrare la cartella"));
    EXPECT_TRUE(model().errorMessage().endsWith(QString::fromStdString(profile.configDir.string())));
}

TEST_F(AppModelTest, create_WithSessions_TellsWhatWaitsAndSelects) {
    for (const std::string id : {"1", "2", "3"})
        writeFile(home / (".config/Claude/claude-code-sessions/a/b/local_" + id + ".json"),
                  R"({"sessionId": ")" + id + "\"}");
    model().create({request("Lavoro", home.builtIn()), true});
    waitUntilIdle();
    EXPECT_EQ(model().notice(), "3 sessioni verranno aggiunte dopo il primo login");
    EXPECT_EQ(model().selection(), "lavoro");
    model().create({request("Ospite", home.builtIn(), "default"), true});
    waitUntilIdle();
    EXPECT_EQ(model().notice(), "3 sessioni copiate");
    home.make("Altrove");
    model().create({request("  "), false});
    waitUntilIdle();
    EXPECT_EQ(model().errorMessage(), "Il nome del profilo è obbligatorio");
    EXPECT_NE(model().profile("altrove"), nullptr) << "what is there is shown all the same";
    EXPECT_EQ(model().selection(), "ospite");

    const Profile work = *home.store.profile("lavoro");
    model().importSessions(home.store.codeSessions(home.builtIn()), home.builtIn(), work);
    waitUntilIdle();
    EXPECT_EQ(model().notice(), "0 copiate, 3 aggiunte al prossimo avvio di «Lavoro»");
}

TEST_F(AppModelTest, performSoon_WaitsForALockOnAnotherThread) {
    home.make("Lavoro");
    model().reload();
    std::atomic<bool> isLocked = false;
    std::atomic<bool> hasWaited = false;
    std::thread other([&] {
        const FolderLock lock(home.store.root() / "lavoro");
        isLocked = true;
        while (!hasWaited)
            std::this_thread::yield();
    });
    while (!isLocked)
        std::this_thread::yield();
    model().sync("lavoro");
    EXPECT_EQ(model().busyMessage(), "Sincronizzazione…");
    EXPECT_EQ(model().notice(), "");
    hasWaited = true;
    other.join();
    waitUntilIdle();
    EXPECT_EQ(model().notice(), "Già sincronizzato");
    EXPECT_EQ(model().errorMessage(), "");
}

TEST_F(AppModelTest, performLong_IsOneAtATimeAndCanBeCancelled) {
    const fs::path skills = home / ".claude/skills";
    for (int i = 0; i < 300; ++i)
        writeFile(skills / std::to_string(i) / "SKILL.md", "x");
    NewProfile wanted = request("Lavoro", home.builtIn());
    wanted.modes[Component::skills] = ShareMode::separate;
    bool hasSucceeded = false;
    model().create({wanted}, [&] { hasSucceeded = true; });
    EXPECT_EQ(model().busyMessage(), "Creazione di «Lavoro»…");
    model().create({request("Altro")});
    EXPECT_TRUE(model().errorMessage().startsWith("Selvane sta già lavorando (Creazione di"));
    model().clearError();
    model().work()->cancel();
    EXPECT_EQ(model().work()->headline(), "Annullamento…");
    waitUntilIdle();
    EXPECT_EQ(model().notice(), "Annullato");
    EXPECT_EQ(model().errorMessage(), "");
    EXPECT_FALSE(hasSucceeded);
    EXPECT_EQ(model().profiles().size(), 1U);
    EXPECT_EQ(FileManager().entries(home.store.root()), std::vector<std::string>{}) << "nothing half made";

    model().create({wanted}, [&] { hasSucceeded = true; });
    waitUntilIdle();
    EXPECT_TRUE(hasSucceeded);
    EXPECT_TRUE(fs::is_regular_file(home.store.profile("lavoro")->configDir / "skills/299/SKILL.md"));
}

TEST_F(AppModelTest, work_TellsHowFarItIs) {
    writeTree(home / "alto",
              {{"a", std::string(3'000'000, 'x')}, {"b/c", std::string(1'000'000, 'x')}, {"d", "-> a"}});
    WorkProgress work;
    const auto progress = std::make_shared<Progress>();
    work.begin(progress);
    const auto waitFor = [&](const QString& detail) {
        handleUntil([&] { return work.detail() == detail; });
        EXPECT_EQ(work.detail(), detail);
    };
    progress->advance(1, 1'000'000);
    waitFor("1 file finora · 1 MB");
    EXPECT_LT(work.fraction(), 0) << "the whole isn't known";
    progress->expect(home / "alto");
    progress->expect(home / "assente");
    waitFor("1 MB di 4 MB");
    EXPECT_EQ(work.headline(), "Copia di 5 elementi…");
    EXPECT_EQ(work.fraction(), 0.25);
    progress->expect(home / "alto");
    waitFor("1 MB di 8 MB");
    EXPECT_EQ(work.fraction(), 0.25) << "the bar never moves back";

    work.end();
    work.clear();
    EXPECT_EQ(work.headline() + work.detail(), "");

    const std::vector<std::pair<double, QString>> left = {
        {0.9, "meno di 5 secondi"}, {0.5, "circa 20 secondi"}, {0.26, "circa 57 secondi"},
        {0.25, "circa 1 minuto"},   {0.1, "circa 3 minuti"},   {0.005, "circa 1 ora"}};
    for (const auto& [fraction, words] : left)
        EXPECT_EQ(WorkProgress::timeLeft(fraction, 20'000), words) << fraction;
}

TEST_F(AppModelTest, exportBackup_EachEnd_LeavesNothingBusy) {
    writeFile(home / ".claude/CLAUDE.md", "x");
    model().exportBackup(BackupScope::all());
    EXPECT_EQ(model().busyMessage(), "") << "cancelled";
    EXPECT_EQ(bridge.proposedName, "Backup Claude " + QDate::currentDate().toString(Qt::ISODate) + ".zip");

    bridge.archive = home / "b.zip";
    model().exportBackup(BackupScope::all());
    EXPECT_EQ(model().busyMessage(), "Backup in corso…");
    waitUntilIdle();
    EXPECT_TRUE(model().notice().startsWith("Backup creato (")) << model().errorMessage().toStdString();
    EXPECT_FALSE(model().notice().contains("saltati"));
    EXPECT_EQ(bridge.revealed, std::vector{home / "b.zip"});
    ASSERT_EQ(::mknod((home / ".claude/socket").c_str(), S_IFSOCK | 0600, 0), 0);
    model().exportBackup(BackupScope::all());
    waitUntilIdle();
    EXPECT_TRUE(model().notice().endsWith("alcuni file non leggibili sono stati saltati"));

    bridge.archive = home / ".claude";
    model().exportBackup(BackupScope::all());
    waitUntilIdle();
    EXPECT_TRUE(model().errorMessage().contains("è una cartella"));
    EXPECT_TRUE(
        explained(ZipError("Backup non riuscito (zip: errore 15)", 15)).contains("non si è potuto scrivere"));
    EXPECT_TRUE(
        explained(ZipError("Backup non riuscito (zip: errore 137)", 137)).startsWith("Backup interrotto"));
}

TEST_F(AppModelTest, interruptedRestore_IsCompletedAndTold) {
    model().completeRestoring();
    EXPECT_EQ(model().errorMessage(), "") << "nothing was interrupted";
    writeTree(
        home.path,
        {{".claude/a", "old"}, {".selvane-1/a", "restored"}, {".claude-profiles/.selvane-2/a", "restored"}});
    TreeSwap begun = TreeSwap::prepared(home / ".claude", home / ".selvane-1");
    RestoreJournal{
        home / "b.zip",
        true,
        {{"Configurazione principale", {begun}},
         {"Profilo «Lavoro»",
          {TreeSwap::prepared(home / ".claude-profiles/lavoro", home / ".claude-profiles/.selvane-2")}}}}
        .write(home.store.root());
    fs::rename(home / ".claude", begun.kept);
    fs::rename(home / ".selvane-1", home / ".claude");
    model().completeRestoring();
    waitUntilIdle();
    EXPECT_EQ(model().errorMessage(),
              "Il ripristino da b.zip è stato interrotto. Ripristinati: Configurazione "
              "principale. Rimasti com'erano: Profilo «Lavoro».");
    EXPECT_EQ(readFile(home / ".claude/a"), "restored");
    EXPECT_FALSE(home.store.exists(home / ".claude-profiles/.selvane-2"));
}

} // namespace
} // namespace selvane::test
