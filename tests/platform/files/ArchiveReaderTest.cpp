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
using Entries = std::vector<std::tuple<std::string, Kind, std::uint64_t, std::string>>;

/// Everything in an archive, with the content of its files.
std::pair<Entries, std::string> contentOf(const fs::path& archive) {
    ArchiveReader reader(archive);
    Entries entries;
    std::string content;
    while (const auto entry = reader.next()) {
        entries.emplace_back(entry->name, entry->kind, entry->size, entry->target);
        EXPECT_EQ(entry->mode, entry->kind == Kind::link ? 0777U : entry->kind == Kind::file ? 0640U : 0755U);
        EXPECT_NEAR(static_cast<double>(entry->modified), static_cast<double>(std::time(nullptr)), 60);
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
    makeFile(m_folder / "a/\xff e\xcc\x80\n/file", text, 0640);
    kFiles.createLink("../target", m_folder / "a/\xc3\xa8");
    zipped();
    auto [entries, content] = contentOf(m_archive);
    std::ranges::sort(entries);
    EXPECT_EQ(entries, (Entries{{"a", Kind::folder, 0, ""},
                                {"a/\xc3\xa8", Kind::link, 9, "../target"},
                                {"a/\xff e\xcc\x80\n", Kind::folder, 0, ""},
                                {"a/\xff e\xcc\x80\n/file", Kind::file, text.size(), ""}}));
    EXPECT_EQ(content, text);
    EXPECT_EQ(failure([&] { ArchiveReader(m_folder / "assente"); }), ENOENT);
}

TEST_F(ArchiveReaderTest, ADamagedArchiveIsAnError) {
    kFiles.createFolders(m_folder / "a");
    makeFile(m_folder / "a/file", "stored as it is", 0640);
    const std::string whole = zipped();
    for (std::size_t size = 0; size < whole.size(); ++size) {
        kFiles.write(m_archive, whole.substr(0, size));
        EXPECT_THROW(contentOf(m_archive), LauncherError) << "cut off after " << size;
    }
    std::string damaged = whole;
    ++damaged[whole.find("it is")];
    kFiles.write(m_archive, damaged);
    EXPECT_THROW(contentOf(m_archive), LauncherError);

    // A file of 15 bytes that takes none, says the entry as well as the directory.
    std::string emptied = whole;
    emptied[whole.rfind("PK\3\4") + 18] = 0;
    emptied[whole.rfind("PK\1\2") + 20] = 0;
    ASSERT_NE(emptied, whole);
    kFiles.write(m_archive, emptied);
    EXPECT_THROW(contentOf(m_archive), LauncherError);
}

} // namespace
} // namespace selvane
