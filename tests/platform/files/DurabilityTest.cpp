// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <numeric>
#include <set>
#include <sys/resource.h>

#include "platform/files/FileBatch.h"
#include "platform/files/Progress.h"
#include "support/Files.h"
#include "support/WaitWatch.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;
using namespace test;

/// The names in a folder that are no temporaries, with the content of files.
std::string shown(const fs::path& folder) {
    std::set<std::string> entries;
    for (const std::string& name : kFiles.entries(folder)) {
        if (!name.starts_with(FileManager::kTemporaryPrefix))
            entries.insert(" " + name + "=" + kFiles.readIfPossible(folder / name).value_or(""));
    }
    return std::accumulate(entries.begin(), entries.end(), std::string());
}

/// While it lives, no file gets larger than so many bytes.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) : m_signal(std::signal(SIGXFSZ, SIG_IGN)) {
        EXPECT_EQ(::getrlimit(RLIMIT_FSIZE, &m_before), 0);
        const rlimit small = {bytes, m_before.rlim_max};
        EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    }
    ~FileSizeLimit() {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_signal);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    void (*m_signal)(int);
    rlimit m_before = {};
};

/// What is waited for during `operation`, and what `folder` shows meanwhile.
template <typename Operation>
Names waits(const fs::path& folder, Operation operation) {
    Names result;
    const WaitWatch watch(WaitWatch::For::disk, [&](const fs::path& file) {
        const bool isFolder = kFiles.isFolder(file);
        const std::string what = isFolder ? (file == folder ? "names" : "a folder") : kFiles.read(file);
        result.push_back(what + ":" + shown(folder));
    });
    operation();
    return result;
}

TEST(Durability, ContentIsOnTheDiskBeforeItsNameAndTheNameBeforeTheEnd) {
    const TemporaryFolder folder;
    const fs::path& top = folder.path();
    EXPECT_EQ(waits(top, [&] { kFiles.write(top / "a", "1"); }), (Names{"1:", "names: a=1"}));
    EXPECT_EQ(waits(top, [&] { kFiles.write(top / "a", "2"); }), (Names{"2: a=1", "names: a=2"}));
    EXPECT_EQ(waits(top, [&] { kFiles.copy(top / "a", top / "b"); }), (Names{"2: a=2", "names: a=2 b=2"}));
    EXPECT_EQ(waits(top, [&] { kFiles.move(top / "b", top / "c"); }), Names{"names: a=2 c=2"});
    kFiles.removeFile(top / "c");
    kFiles.createLink(top / "a", top / "l");
    const auto copyOf = [&](const char* name) {
        return [&, name](const fs::path& temporary) { kFiles.copy(top / name, temporary); };
    };
    EXPECT_EQ(waits(top, [&] { kFiles.replaceLink(top / "l", copyOf("a")); }),
              (Names{"2: a=2 l=2", "names: a=2 l=2", "names: a=2 l=2"}))
        << "the copy has its temporary name before the link is replaced";
    EXPECT_FALSE(kFiles.linkTarget(top / "l"));
}

TEST(Durability, ManyFilesNeedOneWait) {
    const TemporaryFolder folder;
    const fs::path& top = folder.path();
    kFiles.createFolder(top / "from");
    kFiles.createFolder(top / "to");
    for (int i = 0; i < 300; ++i) {
        kFiles.createLink(top / "from/item", top / "to" / std::to_string(i));
        kFiles.createFolder(top / "from" / std::to_string(i));
        kFiles.write(top / "from" / std::to_string(i) / "f", std::to_string(i));
    }
    FileBatch batch(top);
    const Names waited = waits(top / "to", [&] {
        for (int i = 0; i < 300; ++i)
            batch.copyOverLink(top / "from" / std::to_string(i), top / "to" / std::to_string(i));
        batch.write(
            top / "to/own", [] { return "own"; }, Privacy::ownerOnly);
        batch.finish();
    });
    EXPECT_EQ(waited.size(), 2U) << "the file system, then the folder";
    EXPECT_EQ(waited.front().find("own"), std::string::npos);
    for (int i = 0; i < 300; ++i)
        EXPECT_EQ(kFiles.read(top / "to" / std::to_string(i) / "f"), std::to_string(i));
    EXPECT_EQ(modeOf(top / "to/own"), 0600U);
    EXPECT_EQ(kFiles.entries(top / "to").size(), 301U) << "no temporary is left";
}

TEST(Durability, ABatchThatFailsLeavesWhatWasThere) {
    const TemporaryFolder folder;
    const fs::path& top = folder.path();
    makeFile(top / "from", "new", 0644);
    kFiles.createLink("nowhere", top / "link");
    FileBatch batch(top);
    batch.copy(top / "from", top / "first");
    batch.copyOverLink(top / "from", top / "link");
    kFiles.removeFile(top / "link");
    makeFile(top / "link", "the user's", 0644); // as an editor does
    EXPECT_EQ(failure([&] { batch.finish(); }), EEXIST);
    EXPECT_EQ(kFiles.read(top / "link"), "the user's");
    EXPECT_EQ(kFiles.read(top / "first"), "new") << "what has its name keeps it";

    makeFile(top / "large", std::string(5000, 'x'), 0644);
    FileBatch torn(top);
    torn.copy(top / "from", top / "second");
    {
        const FileSizeLimit limit(1000);
        EXPECT_EQ(failure([&] { torn.copy(top / "large", top / "torn"); }), EFBIG);
        EXPECT_EQ(failure([&] { torn.finish(); }), EFBIG);
    }
    EXPECT_FALSE(kFiles.exists(top / "torn")) << "only a part of it was copied";
    EXPECT_EQ(kFiles.read(top / "second"), "new");
}

TEST(Durability, ManyRoundsKeepWhatCameBeforeAFailure) {
    const TemporaryFolder folder;
    const fs::path& top = folder.path();
    kFiles.createFolder(top / ".selvane-batch-0123456789abcdef");
    makeFile(top / ".selvane-batch-0123456789abcdef/1", "left by a killed run", 0600);
    constexpr int kFails = 2500;
    {
        FileBatch batch(top);
        EXPECT_FALSE(kFiles.exists(top / ".selvane-batch-0123456789abcdef"));
        const auto made = [](int number) {
            if (number == kFails || number == kFails + 1)
                throw std::filesystem::filesystem_error("read", {},
                                                        std::error_code(number, std::generic_category()));
            return std::to_string(number);
        };
        for (int i = 0; i < 3000; ++i)
            batch.write(
                top / std::to_string(i), [=] { return made(i); }, Privacy::inherited);
        EXPECT_EQ(failure([&] { batch.finish(); }), kFails) << "the first, whichever thread met it";
    }
    EXPECT_EQ(kFiles.entries(top).size(), static_cast<std::size_t>(kFails)) << "and no temporary";
    for (int i = 0; i < kFails; ++i)
        EXPECT_EQ(kFiles.read(top / std::to_string(i)), std::to_string(i));
}

TEST(Durability, NamesFromBeforeAFailureAreWaitedFor) {
    const TemporaryFolder folder;
    const fs::path& top = folder.path();
    kFiles.createFolder(top / "to");
    makeFile(top / "from", "new", 0644);
    makeFile(top / "large", std::string(5000, 'x'), 0644);
    FileBatch batch(top);
    for (int i = 0; !kFiles.exists(top / "to/0") && i < 100 * 1024; ++i)
        batch.copy(top / "from", top / "to" / std::to_string(i));
    ASSERT_TRUE(kFiles.exists(top / "to/0")) << "the first have their names while others are copied";
    const FileSizeLimit limit(1000);
    const Names waited = waits(top / "to", [&] {
        EXPECT_EQ(failure([&] {
                      batch.copy(top / "large", top / "to/large");
                      batch.finish();
                  }),
                  EFBIG);
    });
    ASSERT_FALSE(waited.empty());
    EXPECT_TRUE(waited.back().ends_with(shown(top / "to"))) << "no name is given after the last wait";
}

TEST(Durability, RoundsClearUpBehindThemselves) {
    const TemporaryFolder folder;
    const fs::path& top = folder.path();
    constexpr int kItems = 8 * 1024;
    kFiles.createFolder(top / "to");
    makeFile(top / "from", "new", 0644);
    for (int i = 0; i < kItems; ++i)
        kFiles.createLink(top / "from", top / "to" / std::to_string(i));
    FileBatch batch(top);
    std::size_t left = 0;
    const WaitWatch watch(WaitWatch::For::disk,
                          [&](const fs::path&) { left = kFiles.entries(top).size() - 2; });
    for (int i = 0; i < kItems; ++i)
        batch.copyOverLink(top / "from", top / "to" / std::to_string(i));
    batch.finish();
    EXPECT_LT(left, 8U) << "of the first rounds, no folder is left when the last names are waited for";
    EXPECT_EQ(kFiles.entries(top).size(), 2U) << "and in the end, none";
    for (int i = 0; i < kItems; ++i)
        ASSERT_FALSE(kFiles.linkTarget(top / "to" / std::to_string(i))) << i;
}

/// A folder of 20 folders with 20 files each.
void makeManyFiles(const fs::path& top) {
    kFiles.createFolder(top);
    for (int i = 0; i < 20; ++i) {
        const fs::path folder = top / std::to_string(i);
        kFiles.createFolder(folder);
        for (int j = 0; j < 20; ++j)
            makeFile(folder / (std::to_string(i) + "-" + std::to_string(j)), std::string(1000, 'x'), 0640);
        const timespec times[] = {{1, 0}, {1, 0}};
        EXPECT_EQ(::utimensat(AT_FDCWD, folder.c_str(), times, 0), 0);
        kFiles.setMode(folder, 0550);
    }
}

TEST(Copying, ManyFilesAtATimeKeepModesAndTimesWithFewOpenFiles) {
    const TemporaryFolder folder;
    makeManyFiles(folder / "many");
    rlimit before = {};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &before), 0);
    const rlimit few = {128, before.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &few), 0);
    Progress progress;
    const FileManager files(&progress);
    EXPECT_NO_THROW(files.copy(folder / "many", folder / "copy"));
    ::setrlimit(RLIMIT_NOFILE, &before);
    for (int i = 0; i < 20; ++i) {
        const fs::path copy = folder / "copy" / std::to_string(i);
        EXPECT_EQ(modeOf(copy), 0550U);
        EXPECT_EQ(statusOf(copy).st_mtim.tv_sec, 1);
        EXPECT_EQ(kFiles.entries(copy).size(), 20U);
        EXPECT_EQ(kFiles.read(copy / (std::to_string(i) + "-19")), std::string(1000, 'x'));
    }
    EXPECT_EQ(progress.entries(), 421);
    EXPECT_EQ(progress.bytes(), 400'000);

    progress.cancel();
    EXPECT_EQ(failure([&] { files.copy(folder / "many", folder / "cancelled"); }), ECANCELED);
    EXPECT_EQ(kFiles.entries(folder.path()).size(), 2U) << "nothing is left of it";
}

TEST(Copying, AnErrorThatOnlyClosingReportsCounts) {
    const TemporaryFolder folder;
    makeManyFiles(folder / "many");
    makeFile(folder / "file", "old", 0644);
    for (const char* const name : {"0-0", "9-9"}) { // threads copy at least one of them
        const FailingClose failing(name, EDQUOT);
        EXPECT_EQ(failure([&] { kFiles.copy(folder / "many", folder / "copy"); }), EDQUOT) << name;
    }
    const FailingClose failing(FileManager::kTemporaryPrefix.data(), EDQUOT);
    EXPECT_EQ(failure([&] { kFiles.write(folder / "file", "new"); }), EDQUOT);
    EXPECT_EQ(shown(folder.path()), " file=old many=");
}

} // namespace
} // namespace selvane
