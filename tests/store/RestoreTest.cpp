// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/files/FileCopy.h"
#include "platform/files/Progress.h"
#include "store/BackupReadme.h"
#include "store/restore/ArchiveListing.h"
#include "store/restore/Restore.h"
#include "store/restore/RestoreJournal.h"
#include "support/Home.h"
#include "support/RunningProcess.h"
#include "support/Zip.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;
using namespace test;
using Kind = RestorePart::Kind;
using Texts = std::vector<std::string>;

std::string replacedAll(std::string text, const std::string& from, const std::string& to) {
    for (std::size_t at = text.find(from); at != text.npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}

/// The paths of one home as those of another.
Tree moved(const Tree& tree, const fs::path& from, const fs::path& to) {
    Tree result;
    for (const auto& [path, content] : tree)
        result[path] = replacedAll(content, from.string(), to.string());
    return result;
}

Texts titles(const std::vector<RestorePart>& parts) {
    Texts lines;
    for (const RestorePart& part : parts)
        lines.push_back(std::to_string(static_cast<int>(part.kind)) + " " + part.id + " " + part.name +
                        (part.replaces ? " !" : ""));
    return lines;
}

TEST(Restore, anotherHomesArchive_WorksHere) {
    Home anna(Home::Processes::ignored, "anna");
    writeTree(
        anna.path,
        {{".claude/skills/uno/SKILL.md", "uno"},
         {".claude/CLAUDE.md", "@" + (anna / "note.md").string() + "\nVedi " + anna.path.string() + "/x\n"},
         {".claude/settings.json",
          R"({"a": ")" + anna.path.string() + R"(/.claude/x", "b": "/mnt)" + anna.path.string() + R"(/y"})"},
         {".claude/dotfiles", "-> " + (anna / "dotfiles").string()},
         {".claude/etc", "-> /etc"},
         {".claude/su", "-> x/../../../../.."},
         {".claude.json", R"({"projects": {")" + anna.path.string() + R"(/lavori": {}}})"},
         {".config/Claude/claude-code-sessions/a/b/local_1.json",
          R"({"sessionId": "s1", "cwd": ")" + anna.path.string() + R"(/lavori"})"},
         {".claude-profiles/appunti.txt", "no profile"}});
    Profile lavoro = anna.make("Lavoro", {{Component::settings, ShareMode::separate}});
    anna.store.installTerminalHelper();
    writeTree(anna.store.desktopDataDir(lavoro), {{"Cookies", "login"}});
    fs::permissions(anna / ".claude/skills/uno/SKILL.md", fs::perms(04750));
    lavoro = anna.store.changeMeta(lavoro, [](ProfileMeta& meta) { meta.account = "lavoro"; });
    const fs::path archive = anna.store.backup(BackupScope::all(), anna / "b.zip").archive;

    Home bruno(Home::Processes::ignored, "bruno");
    writeTree(bruno.path,
              {{".claude/vecchio", "old"}, {".claude/skills/uno/SKILL.md", "uno"}, {".claude.json", "{}"}});
    const CheckedArchive checked = checkArchive(bruno.store, archive);
    EXPECT_EQ(titles(checked.parts),
              (Texts{"0 default Principale !", "1 lavoro Lavoro", "2 default Principale", "2 lavoro Lavoro",
                     "3 claude-profile claude-profile"}));
    EXPECT_EQ(checked.formerHome, anna.path);
    EXPECT_EQ(checked.parts[0].files, 7);
    const auto& foreign = checked.foreignLinks;
    ASSERT_EQ(foreign.size(), 3U);
    EXPECT_EQ(foreign[0], (ForeignLink{".claude/dotfiles", anna / "dotfiles", false}));
    EXPECT_EQ(foreign[1], (ForeignLink{".claude/etc", "/etc", true}));
    EXPECT_EQ(foreign[2].isLeftOut, true);
    EXPECT_EQ(checked.others, Texts{".claude-profiles/appunti.txt"});

    const Tree before = treeOf(bruno.path);
    const RestoreReport trial = tryRestore(bruno.store, checked, checked.parts);
    EXPECT_EQ(treeOf(bruno.path), before);
    EXPECT_EQ(trial.parts[0].counts, (RestoreCounts{.added = 3, .changed = 1, .same = 1, .gone = 1}));

    takeTrash();
    const RestoreReport report = restore(bruno.store, checked, checked.parts);
    EXPECT_EQ(report.rewritten, trial.rewritten);
    EXPECT_EQ(takeTrash(), (Tree{{".claude.precedente", "/"},
                                 {".claude.precedente/vecchio", "old"},
                                 {".claude.precedente/skills", "/"},
                                 {".claude.precedente/skills/uno", "/"},
                                 {".claude.precedente/skills/uno/SKILL.md", "uno"},
                                 {".claude.json.precedente", "{}"}}));
    Tree expected = moved(treeOf(anna.path), anna.path, bruno.path);
    for (const char* path : {"b.zip", ".claude/etc", ".claude/su", ".claude-profiles/appunti.txt"})
        expected.erase(path);
    expected[".claude/CLAUDE.md"] =
        "@" + (bruno / "note.md").string() + "\nVedi " + anna.path.string() + "/x\n";
    expected[".claude/settings.json"] =
        R"({"a": ")" + bruno.path.string() + R"(/.claude/x", "b": "/mnt)" + anna.path.string() + R"(/y"})";
    expected[".claude-profiles/lavoro/settings.json"] =
        replacedAll(expected[".claude/settings.json"], "/.claude/", "/.claude-profiles/lavoro/");
    Tree found = treeOf(bruno.path);
    // Notes that every launch writes anew.
    for (Tree* tree : {&expected, &found})
        std::erase_if(*tree, [](const auto& entry) { return entry.first.ends_with("selvane-profile.md"); });
    EXPECT_EQ(found, expected);
    EXPECT_EQ(fs::status(bruno / ".claude/skills/uno/SKILL.md").permissions(), fs::perms(0750));
    EXPECT_EQ(bruno.store.profile("lavoro")->meta, lavoro.meta);
    EXPECT_FALSE(interruptedRestore(bruno.store));
    EXPECT_EQ(tryRestore(bruno.store, checked, {checked.parts[1]}).parts[0].counts.changed, 0);
}

std::string repeated(const std::string& text, int times) {
    std::string result;
    for (int i = 0; i < times; ++i)
        result += text;
    return result;
}

TEST(Restore, hostileArchives_AreRefusedBeforeAnythingIsWritten) {
    Home home;
    writeTree(home.path, {{".claude/a", "mine"}, {"b", "mine"}});
    const std::string readme = backupReadme({".claude"}, {});
    const fs::path file = home.folder / "hostile.zip";
    const Tree before = treeOf(home.path);
    const auto refusal = [&](std::vector<ZipEntry> entries, bool hasReadme = true) {
        if (hasReadme)
            entries.push_back({std::string(kReadmeName), readme});
        writeFile(file, zipOf(entries));
        std::string message = messageOf([&] { checkArchive(home.store, file); });
        EXPECT_EQ(treeOf(home.path), before);
        return message.substr(0, message.find(" «"));
    };
    const std::string unsafe = "L'archivio non è sicuro e non verrà aperto:";
    for (const char* name : {"../b", ".claude/../../b", "/b", ".claude//b", ".claude/./b", ".claude/.."})
        EXPECT_EQ(refusal({{name, "evil"}}), unsafe) << name;
    EXPECT_EQ(refusal({{".claude/b", "1"}, {".claude/b", "2"}}), unsafe);
    EXPECT_EQ(refusal({{".claude/l", "../..", 0120777}, {".claude/l/b", "evil"}}), unsafe);
    EXPECT_EQ(refusal({{".claude/b/c", "evil"}, {".claude/b", "file"}}), unsafe);
    for (const std::uint32_t kind : {0020644U, 0060644U, 0140644U}) // devices, socket
        EXPECT_EQ(refusal({{".claude/b", "", kind}}), unsafe) << kind;
    ZipEntry bomb{".claude/b", std::string(1000, ' ')};
    bomb.declared = 2'000'000;
    EXPECT_EQ(refusal({bomb}).substr(0, unsafe.size()), unsafe);
    bomb.declared = 3000;
    EXPECT_NE(refusal({bomb}), "") << "less than it says";
    std::vector<ZipEntry> folders;
    for (int i = 0; i < 50; ++i)
        folders.push_back({".claude/" + std::to_string(i) + repeated("/a", 1900), ""});
    EXPECT_EQ(refusal(folders).substr(0, unsafe.size()), unsafe) << "too many folders";
    EXPECT_EQ(refusal({{".claude/" + repeated("a/", 2500) + "b", ""}}), unsafe);
    const std::string damaged = "L'archivio è danneggiato o incompleto: " + file.string();
    for (const std::uint32_t mode : {0100644U, 0120777U})
        EXPECT_EQ(refusal({{".claude/b", "secret", mode, std::nullopt, 1}}), damaged) << "encrypted";
    const std::string whole =
        zipOf({{".claude/b", "ok"}, {std::string(kReadmeName), readme}, {".claude/c", "ok"}});
    for (std::size_t size = 0; size < whole.size(); size += 7) {
        writeFile(file, whole.substr(0, size));
        EXPECT_NE(messageOf([&] { checkArchive(home.store, file); }), "") << "cut off after " << size;
    }
    EXPECT_TRUE(refusal({{".claude/b", "ok"}}, false).starts_with("Non è un archivio di Selvane"));
    EXPECT_EQ(refusal({{".claude/b", "ok"}, {".bashrc", "evil"}}), "Non è un archivio di Selvane");

    writeFile(file, zipOf({{".claude/b", "s", 0106777},
                           {".claude/f", "", 0010644},
                           {".claude/c", "../b", 0120777},
                           {".claude/\xE9", "not UTF-8"},
                           {".claude/x/CLAUDE.md", repeated("/.claude", 20000)},
                           {".claude/x/settings.json", "\"/" + repeated("a", 5000) + "/.claude/b\""},
                           {std::string(kReadmeName), readme}}));
    const CheckedArchive checked = checkArchive(home.store, file);
    EXPECT_LT(checked.formerHome.native().size(), 513U) << "and that was found out fast";
    const std::string bytes = readFile(file);
    writeFile(file, replacedAll(bytes, ".claude/b", ".claude/z"));
    const std::string changed = "L'archivio è cambiato nel frattempo: " + file.string();
    EXPECT_EQ(messageOf([&] { tryRestore(home.store, checked, checked.parts); }), changed);
    EXPECT_EQ(messageOf([&] { restore(home.store, checked, checked.parts); }), changed);
    EXPECT_EQ(treeOf(home.path), before);
    writeFile(file, bytes);
    restore(home.store, checkArchive(home.store, file), checked.parts);
    struct stat status = {};
    EXPECT_EQ(::lstat((home / ".claude/b").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07022, 0U) << "no set-id bits, and the creation mask counts";
    ASSERT_TRUE(fs::is_regular_file(home / ".claude/f")) << "libarchive takes a FIFO for a file";
    fs::remove_all(home / ".claude/x");
    EXPECT_EQ(treeOf(home / ".claude"),
              (Tree{{"b", "s"}, {"c", "-> ../b"}, {"f", ""}, {"\xE9", "not UTF-8"}}));
}

TEST(Restore, whatIsNoPart_IsNeverReplaced) {
    Home home;
    const std::string record = R"({"name": "Uno\u0007\nDue"})";
    const fs::path file = home.folder / "odd.zip";
    writeFile(file, zipOf({{".claude-profiles/uno/.launcher.json", record},
                           {".claude-profiles/bin/.launcher.json", record},
                           {".claude-profiles/default/.launcher.json", record},
                           {std::string(kReadmeName), backupReadme({".claude-profiles"}, {})}}));
    const CheckedArchive odd = checkArchive(home.store, file);
    EXPECT_EQ(titles(odd.parts), Texts{"1 uno Uno\uFFFD\uFFFDDue"});
    EXPECT_EQ(odd.others.size(), 2U);

    // The profiles lie in what is to be replaced.
    ProfileStore nested({{"HOME", home.path},
                         {"CLAUDE_LAUNCHER_ROOT", home / ".claude/profili"},
                         {"CLAUDE_LAUNCHER_DESKTOP_DIR", home / ".config/Claude"}},
                        home.claude);
    writeTree(home.path, {{".claude/a", "mine"}, {".claude/profili/uno/.launcher.json", record}});
    const CheckedArchive archive =
        checkArchive(nested, home.store.backup(BackupScope::principal(), home.folder / "b.zip").archive);
    const Tree before = treeOf(home.path);
    EXPECT_EQ(messageOf([&] { restore(nested, archive, archive.parts); }),
              "Non si può ripristinare " + (home / ".claude").string() + ": contiene " +
                  (home / ".claude/profili").string());
    EXPECT_EQ(treeOf(home.path), before);
}

/// A home with an older state of itself in an archive.
struct RestoreHere : testing::Test {
    explicit RestoreHere(Home::Processes processes = Home::Processes::ignored) : home(processes) {
        writeTree(home.path, {{".claude/a", "old"}, {".claude.json", R"({"a": "old"})"}});
        const Profile lavoro = home.make("Lavoro");
        writeFile(lavoro.configDir / "a", "old");
        writeFile(home.store.desktopDataDir(lavoro) / "Cookies", "old");
        archived = treeOf(home.path);
        checked =
            checkArchive(home.store, home.store.backup(BackupScope::all(), home.folder / "b.zip").archive);
        writeTree(home.path, {{".claude/a", "new"},
                              {".claude.json", R"({"a": "new"})"},
                              {".claude-profiles/lavoro/a", "new"}});
        takeTrash();
        now = treeOf(home.path);
    }

    Home home;
    CheckedArchive checked;
    Tree archived;
    Tree now;
};

TEST_F(RestoreHere, aFailure_LeavesEverythingAsItWas) {
    Progress cancelled;
    cancelled.cancel();
    EXPECT_NE(messageOf([&] {
                  ProfileStore stopped(home.store, cancelled);
                  restore(stopped, checked, checked.parts);
              }),
              "");
    EXPECT_EQ(treeOf(home.path), now);
    writeFile(fs::path(std::getenv("HOME")) / ".local/share/Trash", "no folder");
    EXPECT_NE(messageOf([&] { restore(home.store, checked, {checked.parts[0]}); }), "")
        << "nothing takes the old ones";
    fs::remove(fs::path(std::getenv("HOME")) / ".local/share/Trash");
    EXPECT_EQ(treeOf(home.path), now);
    EXPECT_FALSE(interruptedRestore(home.store));
    restore(home.store, checked, checked.parts);
    EXPECT_EQ(treeOf(home.path), archived);
}

TEST_F(RestoreHere, anInterruptedOne_IsCompletedPartByPart) {
    const auto temporary = [&](const fs::path& target, const std::string& name) {
        const fs::path place = target.parent_path() / (".selvane-" + name);
        writeFile(place / "a", "restored");
        return TreeSwap::prepared(target, place);
    };
    RestoreJournal journal{"/b.zip", false, {}};
    journal.parts = {{"uno", {temporary(home / ".claude", "1"), temporary(home / ".claude.json", "2")}},
                     {"due", {temporary(home / ".claude-profiles/lavoro", "3")}},
                     {"tre", {temporary(home / ".claude-profiles/nuovo", "4")}}};
    journal.write(home.store.root());
    writeFile(home / ".claude-profiles/.selvane-restore-trial/0/a", "left by a trial");
    EXPECT_EQ(interruptedRestore(home.store)->untouched, (Texts{"uno", "due", "tre"}));
    completeRestore(home.store);
    EXPECT_EQ(treeOf(home.path), now) << "nothing was swapped yet, so nothing is";

    writeFile(home.store.root() / "passi/a", "new");
    journal.parts.push_back({"quattro", {temporary(home.store.root() / "passi", "5")}});
    for (RestoreJournal::Part& part : journal.parts) {
        for (TreeSwap& swap : part.swaps)
            swap = temporary(swap.target, swap.temporary.filename().string().substr(9));
    }
    journal.isComplete = true;
    journal.write(home.store.root());
    fs::rename(home / ".selvane-1", home / ".claude.precedente");
    ASSERT_EQ(files::exchangeNames(home / ".claude.precedente", home / ".claude"), 0);
    fs::rename(home / ".claude-profiles/.selvane-3", home / ".claude-profiles/lavoro.precedente");
    fs::rename(home / ".claude-profiles/.selvane-4", home / ".claude-profiles/nuovo");
    fs::rename(home / ".claude-profiles/passi", home / ".claude-profiles/passi.precedente");
    const auto state = interruptedRestore(home.store);
    EXPECT_EQ(state->begun, Texts{"uno"});
    EXPECT_EQ(state->untouched, (Texts{"due", "quattro"}));
    EXPECT_EQ(state->restored, Texts{"tre"});
    completeRestore(home.store);
    EXPECT_EQ(readFile(home / ".claude/a") + readFile(home / ".claude.json/a"), "restoredrestored");
    EXPECT_EQ(readFile(home / ".claude-profiles/lavoro/a"), "new");
    EXPECT_EQ(readFile(home / ".claude-profiles/passi/a"), "new");
    EXPECT_EQ(takeTrash(), (Tree{{".claude.precedente", "/"},
                                 {".claude.precedente/a", "new"},
                                 {".claude.json.precedente", R"({"a": "new"})"}}));
    for (const auto& [path, content] : treeOf(home.path))
        EXPECT_EQ(path.find(".selvane-"), path.npos) << path;
}

struct RestoreWhileOpen : RestoreHere {
    RestoreWhileOpen() : RestoreHere(Home::Processes::seen) {}
};

TEST_F(RestoreWhileOpen, whatClaudeUses_IsRefused) {
    const auto part = [&](Kind kind, const std::string& id) {
        return *std::ranges::find_if(checked.parts,
                                     [&](const auto& each) { return each.kind == kind && each.id == id; });
    };
    const auto refusal = [&](const RestorePart& each) {
        return messageOf([&] { restore(home.store, checked, {each}); });
    };
    const fs::path lavoro = home / ".claude-profiles/lavoro";
    {
        const fs::path data = home / ".claude-profiles/.desktop-data/lavoro";
        const RunningProcess copy({"--user-data-dir=" + data.string()}, {});
        const RunningProcess agent({}, {{"CLAUDE_CONFIG_DIR", lavoro}}, "/opt/claude");
        EXPECT_EQ(refusal(part(Kind::account, "lavoro")),
                  "Chiudi Claude prima del ripristino: sta usando Account di «Lavoro»");
        EXPECT_EQ(refusal(part(Kind::profile, "lavoro")),
                  "Chiudi Claude prima del ripristino: sta usando Profilo «Lavoro»");
        EXPECT_EQ(treeOf(home.path), now);
        EXPECT_EQ(refusal(part(Kind::principal, "default")), "");
    }
    const RunningProcess agent({}, {{"HOME", home.path}}, "claude");
    EXPECT_NE(refusal(part(Kind::principal, "default")), "");
    RestorePart record = part(Kind::principal, "default");
    record.trees = {{".claude-profiles/default.json", home / ".claude-profiles/default.json"}};
    EXPECT_TRUE(partsInUse(home.store, {record}).empty()) << "Claude doesn't know it";
    EXPECT_EQ(refusal(part(Kind::profile, "lavoro")), "");
    EXPECT_EQ(treeOf(home.path), archived);
}

} // namespace
} // namespace selvane
