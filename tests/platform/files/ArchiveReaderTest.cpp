// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/ArchiveReader.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "model/LauncherError.h"
#include "platform/process/Process.h"
#include "support/Files.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;
using namespace test;
using Kind = ArchivedEntry::Kind;
using Entries = std::vector<ArchiveEntry>;

/// Everything in an archive, with the content of its files.
std::pair<Entries, std::string> contentOf(const fs::path& archive) {
    ArchiveReader reader(archive);
    Entries entries;
    std::string content;
    while (const auto entry = reader.next()) {
        entries.push_back(*entry);
        reader.read([&](std::string_view bytes) { content += bytes; });
    }
    return {entries, content};
}

class ArchiveReaderTest : public testing::Test {
protected:
    /// Has zip make an archive of the folder "a".
    std::string zipped() const {
        EXPECT_EQ(process::run("/usr/bin/zip", {"-r", "-y", "-q", m_archive, "a"}, currentEnvironment(),
                               m_folder.path()),
                  0);
        return kFiles.read(m_archive);
    }

    const TemporaryFolder m_folder;
    const fs::path m_archive = m_folder / "a.zip";
};

TEST_F(ArchiveReaderTest, EachKindAndNameIsReadAsItWasStored) {
    const std::string text = std::string(100'000, 'x') + "end";
    kFiles.createFolders(m_folder / "a/\xff e\xcc\x80\n");
    kFiles.write(m_folder / "a/\xff e\xcc\x80\n/file", text);
    kFiles.createLink("../target", m_folder / "a/\xc3\xa8");
    zipped();
    auto [entries, content] = contentOf(m_archive);
    std::ranges::sort(entries, {}, &ArchiveEntry::name);
    EXPECT_EQ(entries, (Entries{{"a", Kind::folder, 0},
                                {"a/\xc3\xa8", Kind::link, 9},
                                {"a/\xff e\xcc\x80\n", Kind::folder, 0},
                                {"a/\xff e\xcc\x80\n/file", Kind::file, text.size()}}));
    EXPECT_EQ(content, text);
    EXPECT_EQ(failure([&] { ArchiveReader(m_folder / "assente"); }), ENOENT);
}

TEST_F(ArchiveReaderTest, ADamagedArchiveIsAnError) {
    kFiles.createFolders(m_folder / "a");
    kFiles.write(m_folder / "a/file", "stored as it is");
    const std::string whole = zipped();
    for (std::size_t size = 0; size < whole.size(); ++size) {
        kFiles.write(m_archive, whole.substr(0, size));
        EXPECT_THROW(contentOf(m_archive), LauncherError) << "cut off after " << size;
    }
    std::string damaged = whole;
    ++damaged[whole.find("it is")];
    kFiles.write(m_archive, damaged);
    EXPECT_THROW(contentOf(m_archive), LauncherError);
}

} // namespace
} // namespace selvane
