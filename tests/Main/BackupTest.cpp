// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <gtest/gtest.h>
#include <thread>

#include "platform/process/ProcInfo.h"
#include "support/Command.h"
#include "support/Home.h"

namespace selvane::test {
namespace {

namespace fs = std::filesystem;

TEST(CommandBackup, HoldsWhatItsScopeSaysAndReplacesTheEarlierOne) {
    CommandHome home;
    home.environment["CLAUDE_LAUNCHER_DESKTOP_DIR"] = (home / "dati [1]").string();
    home.environment["ZIPOPT"] = "-0 -x *"; // zip's own options
    writeFile(home / ".claude/Cache/tenuto", "");
    for (const std::string file : {"config.json", "vm_bundles/a", "claude-code/a", "claude-code-vm/a",
                                   "Crashpad/a", "Code Cache/a/b", "x/CacheStorage/a"}) {
        writeFile(home / "dati [1]" / file, "");
        writeFile(home / ".claude-profiles/.desktop-data/lavoro" / file, "");
    }
    const fs::path archive = home / "è \"tutto\".zip";
    const auto names = [&](const fs::path& zip) {
        return home.shell("/usr/bin/unzip -Z1 '" + zip.string() + "' | LC_ALL=C /usr/bin/sort").out;
    };
    const std::string line = home.output({"backup", archive, "--solo-profili", "--solo-principale"});
    EXPECT_TRUE(line.starts_with(archive.string() + "\t") && line.ends_with(" KB\n")) << line;
    EXPECT_EQ(fs::status(archive).permissions(), fs::perms(0600));
    writeFile(archive.string() + ".partial", "resto");
    home.output({"backup", archive, "--solo-profili"});
    EXPECT_FALSE(fs::exists(archive.string() + ".partial"));
    const std::string data = ".claude-profiles/.desktop-data/";
    EXPECT_EQ(names(archive), ".claude-profiles/\n" + data + "\n" + data + "lavoro/\n" + data +
                                  "lavoro/config.json\n" + data + "lavoro/x/\nLEGGIMI-backup.txt\n");
    EXPECT_EQ(names(home / ".local/share/Trash/files" / archive.filename()),
              ".claude/\n.claude/Cache/\n.claude/Cache/tenuto\nLEGGIMI-backup.txt\ndati [1]/\n"
              "dati [1]/config.json\ndati [1]/x/\n");
}

TEST(CommandBackup, AConfigurationFolderThatIsALinkIsSavedWhole) {
    const CommandHome home;
    writeFile(home / "dotfiles/claude/CLAUDE.md", "Regole.");
    fs::create_directory_symlink("dotfiles/claude", home / ".claude");
    EXPECT_TRUE(home.output({"backup", home / "b.zip", "--solo-principale"}).ends_with(" byte\n"));
    EXPECT_EQ(home.shell("/usr/bin/unzip -p \"$HOME/b.zip\" .claude/CLAUDE.md"), (Outcome{0, "Regole.", ""}));
}

TEST(CommandBackup, AFailureLeavesTheEarlierArchive) {
    CommandHome home;
    writeFile(home / ".claude/settings.json", "{}");
    writeFile(home / "b.zip", "precedente");
    writeFile(home / "c.zip", "precedente");
    writeFile(home / "b.zip.partial/pieno", "");
    home.output({"list"});
    const auto before = treeOf(home.path());
    const std::string notThere = ": il file o la cartella non esiste";
    EXPECT_EQ(home.run({"backup", home / "b.zip"}),
              failure((home / "b.zip.partial").string() + ": è una cartella"));
    EXPECT_EQ(home.run({"backup", home / "assente/b.zip"}), failure((home / "assente").string() + notThere));
    EXPECT_EQ(home.run({"backup", home / ".claude"}),
              failure((home / ".claude").string() + " è una cartella: indica il file dell'archivio"));
    EXPECT_EQ(home.run({"backup", ""}),
              failure("Uso: backup <archivio.zip> [--solo-principale | --solo-profili]"));
    home.environment["TMPDIR"] = "/assente";
    EXPECT_TRUE(home.run({"backup", home / "c.zip"}).err.starts_with("Errore: /assente/selvane-backup-"));
    EXPECT_EQ(treeOf(home.path()), before);
}

TEST(CommandBackup, AKilledOneLeavesNoArchiveAndNothingRunning) {
    const CommandHome home;
    const fs::path out = home / "out";
    fs::create_directories(out);
    writeFile(home / ".claude/grande", "");
    fs::resize_file(home / ".claude/grande", 4'000'000'000); // a hole, which takes zip long to read
    const Outcome killed = home.shell(R"("$selvane" backup "$HOME/out/b.zip" &
        until set -- "$HOME"/out/*; [ -e "$1" ]; do :; done
        kill -9 $!; wait $!)");
    EXPECT_EQ(killed.status, 137);
    EXPECT_FALSE(fs::exists(out / "b.zip"));
    const auto isRunning = [&] {
        const auto all = ProcInfo::all();
        return std::any_of(all.begin(), all.end(), [&](const ProcInfo& process) {
            return std::find(process.args.begin(), process.args.end(), out / "b.zip.partial") !=
                   process.args.end();
        });
    };
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (isRunning() && std::chrono::steady_clock::now() < deadline)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    EXPECT_FALSE(isRunning());

    fs::resize_file(home / ".claude/grande", 1);
    home.output({"backup", out / "b.zip"});
    EXPECT_EQ(std::distance(fs::directory_iterator(out), {}), 1);
}

} // namespace
} // namespace selvane::test
