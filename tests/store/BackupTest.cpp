// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include "store/BackupContents.h"
#include "support/Home.h"
#include "support/RunningProcess.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;
using namespace test;

/// The files and links below a folder. Folders of things left out may remain, empty.
Tree filesOf(const fs::path& folder) {
    Tree tree = treeOf(folder);
    std::erase_if(tree, [](const auto& entry) { return entry.second == "/"; });
    return tree;
}

/// Creates folders in one another, with the file "end" in the last, until the path from `top` is this long.
/// Returns that path, without the file.
std::string makeDeepFolder(const fs::path& top, std::size_t length) {
    const std::string name(200, 'd');
    fs::create_directories(top);
    int folder = open(top.c_str(), O_RDONLY | O_DIRECTORY);
    std::string path;
    while (path.size() < length) {
        mkdirat(folder, name.c_str(), 0700);
        const int below = openat(folder, name.c_str(), O_RDONLY | O_DIRECTORY);
        close(std::exchange(folder, below));
        path += "/" + name;
    }
    close(openat(folder, "end", O_WRONLY | O_CREAT, 0600));
    close(folder);
    return path;
}

Tree unpacked(const fs::path& archive) {
    const TemporaryFolder folder;
    const std::vector<std::string> arguments = {"-q", archive, "-d", folder.path()};
    EXPECT_EQ(process::run("/usr/bin/unzip", arguments, currentEnvironment(), "/"), 0) << archive;
    return filesOf(folder.path());
}

TEST(Backup, backup_All_HoldsEverythingButWhatIsDownloadedAgain) {
    Home home;
    Tree kept = {{".claude/claude-code/kept", "only left out of desktop data"},
                 {".claude.json", "{}"},
                 {".config/Claude/Caches/kept", "x"},
                 {".claude-profiles/lavoro/skills/uno", "-> /home/a/.claude/skills/uno"},
                 {".claude-profiles/.desktop-data/a[1]*/Cookies", "login"},
                 {".claude-profiles/.desktop-data/a1/Cookies", "login"}};
    writeTree(home.path, kept);
    for (const fs::path data :
         {".config/Claude", ".claude-profiles/.desktop-data/a[1]*", ".claude-profiles/.desktop-data/a1"})
        writeTree(home / data, {{"vm_bundles/x/disk", ""},
                                {"claude-code/1/bin", ""},
                                {"claude-code-vm/x", ""},
                                {"Crashpad/x", ""},
                                {"GPUCache/x", ""},
                                {"Partitions/p/Code Cache/js/x", ""},
                                {"Service Worker/CacheStorage/x", ""}});
    writeTree(home.path, {{"b.zip", "old"}, {"b.zip.partial", "left by a killed backup"}});
    const BackupResult result = home.store.backup(BackupScope::all(), home / "x/../b.zip");
    EXPECT_EQ(result, (BackupResult{home / "b.zip", static_cast<std::int64_t>(fs::file_size(home / "b.zip")),
                                    false}));
    EXPECT_EQ(fs::status(result.archive).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_FALSE(home.store.exists(home / "b.zip.partial"));
    EXPECT_EQ(takeTrash(), (Tree{{"b.zip", "old"}}));
    Tree found = unpacked(result.archive);
    const std::string readme = found["LEGGIMI-backup.txt"];
    EXPECT_TRUE(readme.starts_with("Backup di Claude creato da Selvane il ")) << readme;
    EXPECT_NE(readme.find(".\n\nContiene (percorsi relativi alla cartella home):\n  ~/.claude\n  "
                          "~/.claude.json\n  ~/.config/Claude\n  ~/.claude-profiles\n\nNon contiene cache, "),
              readme.npos)
        << readme;
    kept["LEGGIMI-backup.txt"] = readme;
    EXPECT_EQ(found, kept);
}

TEST(Backup, backup_SourcesElsewhere_KeepTheirAbsolutePath) {
    Home home;
    const fs::path away = home.folder / "away";
    writeTree(away, {{"-conf/a", "a"},
                     {"root/.desktop-data/x/Cookies", "b"},
                     {"root/.desktop-data/x/Cache/c", "left out"}});
    writeTree(home / "-dati", {{"@file", "c"}, {"Cache/c", "left out"}});
    fs::create_directory_symlink(away / "-conf", home / "@link");
    const Tree before = treeOf(away);
    for (const char* options : {"ZIP", "ZIPOPT"}) {
        ProfileStore store({{"HOME", home.path},
                            {"CLAUDE_LAUNCHER_ROOT", home / "../away/root"},
                            {"CLAUDE_LAUNCHER_DEFAULT_DIR", home / "@link"},
                            {"CLAUDE_LAUNCHER_DESKTOP_DIR", home / "-dati"},
                            {options, "-m"}},
                           home.claude);
        Tree found = unpacked(store.backup(BackupScope::all(), home / "b.zip").archive);
        EXPECT_NE(found["LEGGIMI-backup.txt"].find("\n  " + (away / "root").string() + "\n"),
                  std::string::npos);
        found.erase("LEGGIMI-backup.txt");
        EXPECT_EQ(found, (Tree{{"@link/a", "a"},
                               {"-dati/@file", "c"},
                               {(away / "root/.desktop-data/x/Cookies").string().substr(1), "b"}}));
        EXPECT_EQ(treeOf(away), before) << "the user's own options for zip don't count";
    }
}

TEST(Backup, backup_UnreadableFile_IsReportedAndLeftOut) {
    Home home;
    writeFile(home / ".claude/a", "a");
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    (home / ".claude/socket").string().copy(address.sun_path, sizeof address.sun_path - 1);
    const int socketFile = socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(bind(socketFile, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    close(socketFile);
    fs::create_directories(home.folder / "archives/new");
    fs::create_directory_symlink(home.folder / "archives/new", home / "link");
    const std::string deep = makeDeepFolder(home / ".claude/\033\xff", 4100);
    const BackupResult result = home.store.backup(BackupScope::principal(), home / "link/../b.zip");
    EXPECT_EQ(result.archive, home.folder / "archives/b.zip") << "where the link leads, and then up";
    EXPECT_TRUE(result.skippedFiles);
    const Tree found = unpacked(result.archive);
    EXPECT_EQ(found.at(".claude/a"), "a");
    const std::string& readme = found.at("LEGGIMI-backup.txt");
    EXPECT_TRUE(readme.ends_with("\n  ~/.claude/\uFFFD\uFFFD" + deep + "/end\n  ~/.claude/socket\n"))
        << readme;
}

TEST(Backup, backup_FoldersBehindLinks_AreSavedLikeTheOthers) {
    Home home;
    writeTree(home.folder / "disk", {{"uno/.launcher.json", "{}"},
                                     {"uno/skills/a", "-> /elsewhere"},
                                     {"conto/Cookies", "login"},
                                     {"conto/Code Cache/x", "left out"},
                                     {"other/x", "no profile"}});
    writeTree(home.path, {{".claude-profiles/uno", "-> " + (home.folder / "disk/uno").string()},
                          {".claude-profiles/due", "-> .desktop-data/due"},
                          {".claude-profiles/tre", "-> ../../disk/other"},
                          {".claude-profiles/.desktop-data/conto", "-> ../../../disk/conto"},
                          {".claude-profiles/.desktop-data/due/.launcher.json", "{}"},
                          {".claude-profiles/.desktop-data/gone", "-> /assente"}});
    const Tree before = treeOf(home.folder.path());
    const BackupResult result = home.store.backup(BackupScope::profiles(), home / "b.zip");
    EXPECT_FALSE(result.skippedFiles);
    Tree found = unpacked(result.archive);
    EXPECT_EQ(found.erase("LEGGIMI-backup.txt"), 1U);
    EXPECT_EQ(found, (Tree{{".claude-profiles/uno/.launcher.json", "{}"},
                           {".claude-profiles/uno/skills/a", "-> /elsewhere"},
                           {".claude-profiles/due", "-> .desktop-data/due"},
                           {".claude-profiles/tre", "-> ../../disk/other"},
                           {".claude-profiles/.desktop-data/conto/Cookies", "login"},
                           {".claude-profiles/.desktop-data/due/.launcher.json", "{}"},
                           {".claude-profiles/.desktop-data/gone", "-> /assente"}}));
    fs::remove(result.archive);
    EXPECT_EQ(treeOf(home.folder.path()), before);
}

TEST(Backup, BackupContents_TellWhatAnArchiveLacks) {
    Home home;
    const auto change = [&](const Tree& tree) { writeTree(home / "a", tree); };
    change({{"same", "x"}, {"torn", "0123456789"}, {"grows", "01"}, {"goes", ""}, {"lost/x", ""}});
    BackupContents contents(zipList({home / "a"}, {}, {}, home.path), home.path);
    change({{"torn", "01234"}, {"grows", "0123"}});
    fs::remove(home / "a/goes");
    fs::rename(home / "a/lost", home / "lost");
    ASSERT_EQ(
        process::run("/usr/bin/zip", {"-r", "-q", home / "a.zip", "a"}, currentEnvironment(), home.path), 0);
    change({{"torn", "0123456789"}, {"grows", "012345"}, {"new", ""}});
    fs::rename(home / "lost", home / "a/lost");
    ArchiveReader archive(home / "a.zip");
    contents.compare(archive);
    EXPECT_EQ(contents.missing(), (std::vector<std::string>{"a/lost", "a/lost/x", "a/torn"}));
    EXPECT_EQ(contents.archived(), 4U);
}

TEST(Backup, backup_NotPossible_LeavesEverythingInPlace) {
    Home home(Home::Processes::seen);
    const auto refusal = [&](const fs::path& target, BackupScope scope = BackupScope::all()) {
        return messageOf([&] { home.store.backup(scope, home / target); });
    };
    EXPECT_EQ(refusal("b.zip", BackupScope::principal()), "Non c'è niente da salvare");
    const fs::path data = home.store.desktopStore() / "lavoro";
    writeTree(home.path, {{".claude.json", "{}"},
                          {"b.zip", "old"},
                          {"c.zip", "old"},
                          {"c.zip.partial", "/"},
                          {"link", "-> ."}});
    fs::create_directories(data);
    const Tree before = treeOf(home.path);
    for (const char* target : {"", "link", ".claude-profiles/", ".claude.json", "c.zip", "assente/b.zip"})
        EXPECT_NE(refusal(target), "") << target;
    writeFile(fs::path(std::getenv("HOME")) / ".local/share/Trash", "no folder");
    EXPECT_NE(refusal("b.zip"), "") << "the earlier archive can't go";
    takeTrash();
    const RunningProcess copy({"--user-data-dir=" + data.string()}, {});
    EXPECT_EQ(refusal("b.zip"), "Per un backup affidabile Claude va chiuso: chiudilo e riprova.");
    EXPECT_EQ(treeOf(home.path), before);
    EXPECT_EQ(refusal("b.zip", BackupScope::principal()), "") << "doesn't hold that account";
}

} // namespace
} // namespace selvane
