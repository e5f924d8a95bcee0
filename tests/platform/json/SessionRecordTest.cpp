// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/json/SessionRecord.h"

#include <fstream>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "support/TemporaryFolder.h"

namespace selvane {
namespace {

class SessionRecordTest : public testing::Test {
protected:
    std::optional<SessionRecord> read(std::string_view content) {
        const std::string file = m_folder / "local_1.json";
        std::ofstream(file, std::ios::binary) << content;
        return m_reader.read(file);
    }

    const test::TemporaryFolder m_folder;
    SessionRecordReader m_reader;
};

TEST_F(SessionRecordTest, readsAllFields) {
    const auto record = read(R"({"other": {"title": "no"}, "sessionId": "local_1", "title": "Però \"sì\"",
        "cwd": "/home/a", "lastActivityAt": 1794731400000, "isArchived": true,
        "cliSessionId": "c1", "priorCliSessionIds": ["c2", "c3"]})");
    ASSERT_TRUE(record);
    EXPECT_EQ(record->sessionId, "local_1");
    EXPECT_EQ(record->title, "Però \"sì\"");
    EXPECT_EQ(record->cwd, "/home/a");
    EXPECT_EQ(record->lastActivityAt, 1794731400000.0);
    EXPECT_TRUE(record->isArchived);
    EXPECT_EQ(record->cliSessionId, "c1");
    EXPECT_EQ(record->priorCliSessionIds, (std::vector<std::string>{"c2", "c3"}));
}

TEST_F(SessionRecordTest, fieldsOfAnotherTypeCountAsMissing) {
    const auto record = read(R"({"sessionId": "", "title": 1, "cwd": null, "lastActivityAt": "7",
        "isArchived": 1, "cliSessionId": ["c1"], "priorCliSessionIds": ["c2", 3]})");
    ASSERT_TRUE(record);
    EXPECT_FALSE(record->title || record->cwd || record->lastActivityAt || record->cliSessionId);
    EXPECT_FALSE(record->isArchived);
    EXPECT_TRUE(record->priorCliSessionIds.empty());
}

TEST_F(SessionRecordTest, theLastOfRepeatedKeysCounts) {
    const auto record =
        read(R"({"sessionId": 1, "title": "a", "isArchived": true, "priorCliSessionIds": ["x"],
        "sessionId": "s", "title": false, "isArchived": false, "priorCliSessionIds": ["y"]})");
    ASSERT_TRUE(record);
    EXPECT_FALSE(record->title);
    EXPECT_FALSE(record->isArchived);
    EXPECT_EQ(record->priorCliSessionIds, std::vector<std::string>{"y"});
    EXPECT_FALSE(read(R"({"sessionId": "s", "sessionId": null})"));
}

TEST_F(SessionRecordTest, numbersBeyondTheMachineDropNoRecord) {
    const auto record = read("\xEF\xBB\xBF"
                             R"({"a": [12345678901234567890123, 1e400, -1E+999], "cwd": "/1e400",
        "sessionId": "s", "lastActivityAt": 123456789012345678901234567890})");
    ASSERT_TRUE(record);
    EXPECT_EQ(record->cwd, "/1e400");
    ASSERT_TRUE(record->lastActivityAt);
    EXPECT_DOUBLE_EQ(*record->lastActivityAt, 123456789012345678901234567890.0);
    const auto infinite = read(R"({"sessionId": "s", "lastActivityAt": 1e400})");
    ASSERT_TRUE(infinite);
    EXPECT_FALSE(infinite->lastActivityAt);
}

TEST_F(SessionRecordTest, titleCutInsideAnEmojiDropsNoRecord) {
    const auto record = read(R"({"sessionId": "s", "title": "a\ud83d", "n": 12345678901234567890123})");
    ASSERT_TRUE(record);
    EXPECT_EQ(record->title, "a\uFFFD");
}

TEST_F(SessionRecordTest, refusesWhatIsNoRecord) {
    const std::string deep =
        R"({"sessionId": "s", "a": )" + std::string(5000, '[') + std::string(5000, ']') + '}';
    for (const std::string& content :
         {std::string(), std::string("[]"), std::string("{}"), deep, std::string(R"({"sessionId": "s"} x)"),
          std::string(R"({"sessionId": 01})"), std::string("{\"sessionId\": \"\xFF\"}")})
        EXPECT_FALSE(read(content)) << content.substr(0, 40);
    EXPECT_TRUE(read(R"({"sessionId": "s"})")); // none of them harms the reader itself
}

TEST_F(SessionRecordTest, readsRegularFilesOnly) {
    const std::filesystem::path fifo = m_folder / "local_fifo.json";
    ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
    EXPECT_FALSE(m_reader.read(fifo));
    EXPECT_FALSE(m_reader.read(m_folder.path()));
    EXPECT_FALSE(m_reader.read(m_folder / "missing.json"));
    const std::filesystem::path huge = m_folder / "local_huge.json";
    std::ofstream(huge) << R"({"sessionId": "s"})";
    std::filesystem::resize_file(huge, 300'000'000);
    EXPECT_FALSE(m_reader.read(huge));
}

} // namespace
} // namespace selvane
