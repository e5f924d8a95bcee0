// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/FileManager.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <map>
#include <sys/inotify.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/xattr.h>
#include <unistd.h>

#include "platform/files/FolderLock.h"
#include "platform/text/ErrorText.h"
#include "support/Files.h"
#include "support/WaitWatch.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;
using namespace test;

void setTime(const fs::path& path, time_t seconds, long nanoseconds) {
    const std::array<timespec, 2> times = {timespec{seconds, 0}, timespec{seconds, nanoseconds}};
    EXPECT_EQ(::utimensat(AT_FDCWD, path.c_str(), times.data(), AT_SYMLINK_NOFOLLOW), 0);
}

void makeSocket(const fs::path& path) {
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    path.native().copy(address.sun_path, sizeof address.sun_path - 1);
    const int number = ::socket(AF_UNIX, SOCK_STREAM, 0);
    EXPECT_EQ(::bind(number, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    ::close(number);
}

/// Kind, mode, time and content of a path and everything below it.
std::map<std::string, std::string> picture(const fs::path& top) {
    std::map<std::string, std::string> result;
    const auto add = [&](const fs::path& path) {
        const struct stat status = statusOf(path);
        std::string text = std::to_string(status.st_mode) + " " + std::to_string(status.st_mtim.tv_sec) +
                           "." + std::to_string(status.st_mtim.tv_nsec) + " ";
        text += kFiles.linkTarget(path).value_or(fs::path()).native();
        result[path.lexically_relative(top)] = text + kFiles.readIfPossible(path).value_or("");
    };
    add(top);
    for (const auto& entry : fs::recursive_directory_iterator(top))
        add(entry);
    return result;
}

/// A folder with everything that a folder can contain.
void makeTree(const fs::path& top) {
    kFiles.createFolder(top);
    makeFile(top / "script", "#!/bin/sh\n", 0750);
    makeFile(top / "secret", std::string(300'000, 's'), 0400);
    makeFile(top / "caff\xE8", "name that is no UTF-8", 0644);
    makeFile(top / std::string(250, 'n'), "", 0604);
    kFiles.createLink("nowhere/at all", top / "dangling");
    setTime(top / "dangling", 1'000'000'000, 5);
    EXPECT_EQ(::mkfifo((top / "fifo").c_str(), 0620), 0);
    makeSocket(top / "socket");
    kFiles.createFolders(top / "closed/inner");
    makeFile(top / "closed/inner/file", "x", 0600);
    setTime(top / "closed/inner/file", 1'200'000'000, 123'456'789);
    kFiles.setMode(top / "closed/inner", 0500);
    kFiles.setMode(top / "closed", 0555);
    setTime(top / "closed", 1'100'000'000, 0);
    setTime(top, 1'300'000'000, 1);
}

TEST(FileManager, CopyKeepsKindsModesTimesAndContent) {
    const TemporaryFolder folder;
    makeTree(folder / "tree");
    EXPECT_TRUE(holdsUnprivileged(folder, [&] {
        const auto before = picture(folder / "tree");
        kFiles.copy(folder / "tree", folder / "copy/");
        return before.size() == 11 && picture(folder / "copy") == before;
    }));
    EXPECT_EQ(kFiles.entries(folder.path()).size(), 2U) << "a temporary is left";
}

/// An access list in the kernel's form: for the owner, another user and, as the mask, all but the owner.
struct AccessList {
    AccessList(std::uint16_t owner, std::uint16_t others)
        : entries{{{1, owner, ~0U}, {2, others, 1337}, {4, 0, ~0U}, {16, others, ~0U}, {32, 0, ~0U}}} {}

    struct Entry {
        std::uint16_t tag;
        std::uint16_t permissions;
        std::uint32_t id;
    };
    std::uint32_t version = 2;
    std::array<Entry, 5> entries;
};

TEST(FileManager, CopyKeepsAttributesAndAccessLists) {
    const TemporaryFolder folder;
    makeFile(folder / "file", "x", 0640);
    const std::string name = folder / "file";
    if (::setxattr(name.c_str(), "user.colour", "green", 5, 0) != 0)
        GTEST_SKIP() << "this file system keeps no attributes";
    const AccessList list(6, 4);
    const bool hasList = ::setxattr(name.c_str(), "system.posix_acl_access", &list, sizeof list, 0) == 0;
    kFiles.copy(folder / "file", folder / "copy");
    kFiles.write(folder / "file", "replaced");
    for (const char* file : {"file", "copy"}) {
        std::array<char, 64> value = {};
        const std::string path = folder / file;
        EXPECT_EQ(::getxattr(path.c_str(), "user.colour", value.data(), value.size()), 5);
        EXPECT_EQ(::getxattr(path.c_str(), "system.posix_acl_access", value.data(), value.size()),
                  hasList ? static_cast<ssize_t>(sizeof list) : -1);
        EXPECT_EQ(modeOf(path), 0640U);
    }
}

TEST(FileManager, CopyGivesNobodyElseAccessThroughTheFolder) {
    const TemporaryFolder folder;
    makeFile(folder / "file", "x", 0640);
    kFiles.createFolder(folder / "shared");
    const AccessList list(7, 7);
    const std::string shared = folder / "shared";
    if (::setxattr(shared.c_str(), "system.posix_acl_default", &list, sizeof list, 0) != 0)
        GTEST_SKIP() << "this file system keeps no access lists";
    kFiles.copy(folder / "file", folder / "shared/copy");
    EXPECT_EQ(::getxattr((shared + "/copy").c_str(), "system.posix_acl_access", nullptr, 0), -1);
    EXPECT_EQ(modeOf(folder / "shared/copy"), 0640U);
}

TEST(FileManager, CopyTakesHolesAndFilesOfUnknownSize) {
    const TemporaryFolder folder;
    makeFile(folder / "image", "start", 0600);
    fs::resize_file(folder / "image", 5'000'000);
    kFiles.copy(folder / "image", folder / "copy");
    EXPECT_EQ(fs::file_size(folder / "copy"), 5'000'000U);
    EXPECT_LT(statusOf(folder / "copy").st_blocks, 1000);
    EXPECT_EQ(kFiles.read(folder / "copy"), kFiles.read(folder / "image"));
    kFiles.copy("/proc/version", folder / "version");
    EXPECT_EQ(kFiles.read(folder / "version"), kFiles.read("/proc/version"));
    EXPECT_FALSE(kFiles.read(folder / "version").empty());
}

TEST(FileManager, CopyingDoesNotCountAsReading) {
    constexpr time_t kOld = 1'000'000'000;
    const TemporaryFolder folder;
    for (const char* name : {"file", "read"}) {
        makeFile(folder / name, "x", 0644);
        setTime(folder / name, kOld, 0);
    }
    kFiles.copy(folder / "file", folder / "copy");
    EXPECT_EQ(statusOf(folder / "file").st_atim.tv_sec, kOld);
    EXPECT_EQ(kFiles.read(folder / "read"), "x");
    const bool isCounted = statusOf(folder / "read").st_atim.tv_sec != kOld;
    EXPECT_TRUE(holdsUnprivileged(folder, [&] { // the system may refuse this for somebody else's file
        kFiles.copy("/etc/passwd", folder / "foreign");
        return kFiles.read(folder / "foreign") == kFiles.read("/etc/passwd");
    }));
    if (!isCounted)
        GTEST_SKIP() << "nothing counts on this file system";
}

TEST(FileManager, CopyForTheOwnerOnlyNarrowsTheMode) {
    const TemporaryFolder folder;
    makeFile(folder / "file", "x", 0754);
    kFiles.copy(folder / "file", folder / "private", Privacy::ownerOnly);
    EXPECT_EQ(modeOf(folder / "private"), 0700U);
}

TEST(FileManager, CopyOfAForeignFileDoesNotRunAsItsOwner) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root can give a file away";
    const TemporaryFolder folder;
    makeFile(folder / "own", "x", 06755);
    makeFile(folder / "foreign", "x", 0);
    EXPECT_EQ(::chown((folder / "foreign").c_str(), 65534, 65534), 0);
    kFiles.setMode(folder / "foreign", 06755);
    kFiles.copy(folder / "foreign", folder / "copy of foreign");
    kFiles.copy(folder / "own", folder / "copy of own");
    EXPECT_EQ(modeOf(folder / "copy of foreign"), 0755U);
    EXPECT_EQ(modeOf(folder / "copy of own"), 06755U);
}

TEST(FileManager, CopyAndMoveRefuseWithoutATrace) {
    const TemporaryFolder folder;
    kFiles.createFolders(folder / "tree/inner");
    kFiles.createLink("nowhere", folder / "taken");
    kFiles.createLink("tree", folder / "way in");
    const auto before = picture(folder.path());
    EXPECT_EQ(failure([&] { kFiles.copy(folder / "tree", folder / "taken"); }), EEXIST);
    EXPECT_EQ(failure([&] { kFiles.move(folder / "tree", folder / "taken"); }), EEXIST);
    EXPECT_EQ(failure([&] { kFiles.copy(folder / "missing", folder / "new"); }), ENOENT);
    EXPECT_EQ(failure([&] { kFiles.move(folder / "missing", folder / "new"); }), ENOENT);
    for (const char* inside : {"tree/new", "tree/inner/new", "way in/inner/new"}) {
        EXPECT_EQ(failure([&] { kFiles.copy(folder / "tree", folder / inside); }), EINVAL) << inside;
        EXPECT_EQ(failure([&] { kFiles.move(folder / "tree", folder / inside); }), EINVAL) << inside;
    }
    EXPECT_EQ(picture(folder.path()), before);
}

TEST(FileManager, CopyThatFailsInsideNamesTheCulpritAndLeavesNothing) {
    const TemporaryFolder folder;
    kFiles.createFolders(folder / "tree/a/b");
    makeFile(folder / "tree/a/b/unreadable", "x", 0000);
    kFiles.createFolder(folder / "target");
    EXPECT_TRUE(holdsUnprivileged(folder, [&] {
        try {
            kFiles.copy(folder / "tree", folder / "target/copy");
        } catch (const fs::filesystem_error& error) {
            return error.path1() == folder / "tree/a/b/unreadable" &&
                   describe(error) == error.path1().string() + ": permesso negato" &&
                   kFiles.entries(folder / "target").empty();
        }
        return false;
    }));
}

/// Deeper than the limits on open files and path length; there is a file in the last folder.
constexpr int kDepth = 100;
constexpr const char* kLevel = "a folder whose name makes paths longer than one may be";

void makeDeepTree(const fs::path& top) {
    kFiles.createFolder(top);
    int folder = ::open(top.c_str(), O_RDONLY);
    for (int i = 0; i < kDepth; ++i) {
        EXPECT_EQ(::mkdirat(folder, kLevel, 0755), 0);
        const int next = ::openat(folder, kLevel, O_RDONLY);
        ::close(folder);
        folder = next;
    }
    ::close(::openat(folder, "file", O_WRONLY | O_CREAT, 0644));
    ::close(folder);
}

bool isDeepTree(const fs::path& top) {
    int folder = ::open(top.c_str(), O_RDONLY);
    for (int i = 0; i < kDepth; ++i) {
        const int next = ::openat(folder, kLevel, O_RDONLY);
        ::close(folder);
        folder = next;
    }
    const bool result = ::faccessat(folder, "file", F_OK, 0) == 0;
    ::close(folder);
    return result;
}

TEST(FileManager, CopiesAndRemovesAnyDepthWithFewOpenFiles) {
    const TemporaryFolder folder;
    makeDeepTree(folder / "deep");
    rlimit before = {};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &before), 0);
    const rlimit few = {48, before.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &few), 0);
    EXPECT_NO_THROW(kFiles.copy(folder / "deep", folder / "copy"));
    EXPECT_TRUE(isDeepTree(folder / "copy"));
    EXPECT_NO_THROW(kFiles.removeTree(folder / "deep"));
    EXPECT_NO_THROW(kFiles.removeTree(folder / "copy"));
    ::setrlimit(RLIMIT_NOFILE, &before);
    EXPECT_EQ(kFiles.entries(folder.path()), Names());
}

TEST(FileManager, RemoveTreeOpensFoldersButFollowsNoLink) {
    const TemporaryFolder folder;
    makeTree(folder / "tree");
    makeFile(folder / "own", "x", 0600);
    kFiles.createFolder(folder / "other");
    kFiles.createLink(folder / "other", folder / "tree/link");
    makeFile(folder / "other/kept", "x", 0600);
    kFiles.createFolders(folder / "tree/dark/inner");
    kFiles.setMode(folder / "tree/dark", 0000);
    EXPECT_TRUE(holdsUnprivileged(folder, [&] {
        for (const char* name : {"tree", "own", "missing", "own/missing"})
            kFiles.removeTree(folder / name);
        return true;
    }));
    EXPECT_EQ(kFiles.entries(folder.path()), Names{"other"});
    EXPECT_EQ(kFiles.entries(folder / "other"), Names{"kept"});
}

TEST(FileManager, ReadsRegularFilesOnly) {
    const TemporaryFolder folder;
    makeFile(folder / "file", std::string(4096, 'x'), 0600);
    kFiles.createLink("file", folder / "link");
    ASSERT_EQ(::mkfifo((folder / "fifo").c_str(), 0600), 0);
    EXPECT_EQ(kFiles.read(folder / "link"), std::string(4096, 'x'));
    EXPECT_EQ(failure([&] { kFiles.read(folder / "fifo"); }), EINVAL);
    EXPECT_EQ(failure([&] { kFiles.read(folder.path()); }), EISDIR);
    EXPECT_EQ(kFiles.readIfPossible(folder / "missing"), std::nullopt);
    EXPECT_EQ(kFiles.readIfPresent(folder / "file/missing"), std::nullopt);
    EXPECT_EQ(failure([&] { kFiles.readIfPresent(folder / "fifo"); }), EINVAL);
    EXPECT_EQ(kFiles.read(folder / "file", 4096).size(), 4096U);
    EXPECT_EQ(failure([&] { kFiles.read(folder / "file", 4095); }), EOVERFLOW);
    EXPECT_EQ(failure([&] { kFiles.read("/proc/self/maps", 20); }), EOVERFLOW) << "of unknown size";
    makeFile(folder / "large", "", 0600);
    fs::resize_file(folder / "large", FileManager::kLongestText + 1);
    EXPECT_EQ(failure([&] { kFiles.read(folder / "large"); }), EOVERFLOW);
    EXPECT_EQ(kFiles.entriesIfReadable(folder / "fifo"), Names());
}

/// Records which names in some folders were taken and given up, in order.
class NameWatch {
public:
    explicit NameWatch(const std::vector<fs::path>& folders) {
        for (const fs::path& folder : folders)
            EXPECT_GE(::inotify_add_watch(m_events, folder.c_str(), IN_MOVE), 0);
    }
    ~NameWatch() { ::close(m_events); }
    NameWatch(const NameWatch&) = delete;
    NameWatch& operator=(const NameWatch&) = delete;

    /// Without the names of temporaries: "+name" if taken, "-name" if given up.
    Names changes() const {
        alignas(inotify_event) std::array<char, 8192> bytes = {};
        const ssize_t size = ::read(m_events, bytes.data(), bytes.size());
        Names result;
        for (ssize_t at = 0; at < size;) {
            const auto* event = reinterpret_cast<const inotify_event*>(bytes.data() + at);
            const std::string name = event->name;
            if (!name.starts_with(FileManager::kTemporaryPrefix))
                result.push_back(((event->mask & IN_MOVED_TO) != 0 ? "+" : "-") + name);
            at += static_cast<ssize_t>(sizeof *event + event->len);
        }
        return result;
    }

private:
    int m_events = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
};

TEST(FileManager, MovesAcrossFileSystems) {
    const TemporaryFolder folder;
    const auto device = statusOf(folder.path()).st_dev;
    const std::vector<fs::path> places = {"/dev/shm", "/tmp", "/var/tmp"};
    const auto other = std::find_if(places.begin(), places.end(), [&](const fs::path& place) {
        return fs::exists(place) && statusOf(place).st_dev != device;
    });
    if (other == places.end())
        GTEST_SKIP() << "there is one file system only";
    const fs::path elsewhere = *other / folder.path().filename();
    kFiles.createFolder(elsewhere);
    const fs::path origin = elsewhere / "origin";
    makeTree(origin);
    const auto before = picture(origin);
    const NameWatch watch({elsewhere, folder.path()});
    std::vector<bool> bothWhileWaiting;
    {
        const WaitWatch waiting(WaitWatch::For::disk, [&](const fs::path& file) {
            bothWhileWaiting.push_back(kFiles.exists(origin) && file != elsewhere);
        });
        kFiles.move(origin, folder / "moved");
    }
    EXPECT_GE(bothWhileWaiting.size(), 3U);
    EXPECT_EQ(std::count(bothWhileWaiting.begin(), bothWhileWaiting.end(), false), 1)
        << "the original goes when the copy and its name are on the disk";
    EXPECT_EQ(watch.changes(), (Names{"+moved", "-origin"})) << "the tree had neither name in between";
    EXPECT_EQ(picture(folder / "moved"), before);
    EXPECT_EQ(kFiles.entries(elsewhere), Names{});
    EXPECT_EQ(kFiles.entries(folder.path()), Names{"moved"});

    makeFile(origin, "can't go", 0644);
    {
        const FailingClose failing(FileManager::kTemporaryPrefix.data(), EDQUOT);
        EXPECT_EQ(failure([&] { kFiles.move(origin, folder / "copied"); }), EDQUOT);
        EXPECT_EQ(kFiles.read(origin), "can't go");
    }
    kFiles.setMode(elsewhere, 0555);
    EXPECT_TRUE(holdsUnprivileged(folder, [&] {
        return failure([&] { kFiles.move(origin, folder / "copied"); }) == EACCES &&
               kFiles.read(origin) == "can't go";
    }));
    EXPECT_EQ(kFiles.entries(folder.path()), Names{"moved"}) << "the copy is taken back";
    kFiles.removeTree(elsewhere);
}

} // namespace
} // namespace selvane
