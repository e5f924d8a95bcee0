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

TEST(CommandBackup, TheLastScopeCountsAndTheSizeIsTold) {
    const CommandHome home;
    writeFile(home / ".claude/CLAUDE.md", "Regole.");
    writeFile(home / ".config/Claude/config.json", "{}");
    writeFile(home / ".claude-profiles/.desktop-data/lavoro/config.json", "{}");
    const fs::path archive = home / "è \"tutto\".zip";
    const auto names = [&] {
        return home.shell("/usr/bin/unzip -Z1 \"$HOME\"/*.zip | LC_ALL=C /usr/bin/sort").out;
    };
    const std::string line = home.output({"backup", archive, "--solo-profili", "--solo-principale"});
    EXPECT_TRUE(line.starts_with(archive.string() + "\t") && line.ends_with(" KB\n")) << line;
    EXPECT_EQ(names(), ".claude/\n.claude/CLAUDE.md\n.config/Claude/\n.config/Claude/config.json\n"
                       "LEGGIMI-backup.txt\n");
    home.output({"backup", archive, "--solo-profili"});
    EXPECT_EQ(names().find(".config"), std::string::npos);
    EXPECT_NE(names().find("/lavoro/config.json\n"), std::string::npos);
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
        until set -- "$HOME"/out/.selvane-b.zip/zi*; [ -e "$1" ]; do :; done
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

    const Outcome failed = home.shell(R"("$selvane" backup "$HOME/out/b.zip" &
        until set -- "$HOME"/out/.selvane-b.zip/zi*; [ -e "$1" ]; do :; done
        read zip </proc/$!/task/$!/children; kill -9 $zip; wait $!)");
    EXPECT_EQ(failed, failure("Backup non riuscito (zip: errore 137)"));
    EXPECT_TRUE(fs::is_empty(out)) << "not even the temporary of a killed zip";

    fs::resize_file(home / ".claude/grande", 1);
    home.output({"backup", out / "b.zip"});
    EXPECT_EQ(std::distance(fs::directory_iterator(out), {}), 1);
}

} // namespace
} // namespace selvane::test
