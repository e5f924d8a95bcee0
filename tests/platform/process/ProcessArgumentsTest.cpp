// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>

#include "platform/process/ProcessArguments.h"

namespace selvane {
namespace {

using namespace std::string_literals;

std::string area(std::int32_t count, const std::string& pieces) {
    std::string bytes(sizeof count, '\0');
    std::memcpy(bytes.data(), &count, sizeof count);
    return bytes + pieces;
}

TEST(ProcessArguments, read_WholeArea_GivesArgumentsAndEnvironment) {
    const std::string folder = "--user-data-dir=/Users/anna/Dati di Claude";
    const std::string pieces = "/Applications/Claude.app/Contents/MacOS/Claude\0\0\0\0\0\0"s + // padded
                               "Claude\0"s + folder + "\0"s +
                               "HOME=/Users/anna\0CLAUDE_CONFIG_DIR=/a=b\0VUOTA=\0senza\0HOME=/dopo\0\0\0"s;
    const ProcessArguments expected{{"Claude", folder},
                                    {{"HOME", "/dopo"}, {"CLAUDE_CONFIG_DIR", "/a=b"}, {"VUOTA", ""}}};
    EXPECT_EQ(processArguments(area(2, pieces)), expected);
}

TEST(ProcessArguments, read_OddAreas_GiveWhatIsThere) {
    const struct {
        std::string area;
        ProcessArguments expected;
        const char* why;
    } cases[] = {
        {"", {}, "nothing"},
        {area(3, ""), {}, "four bytes"},
        {area(3, "\0"s), {}, "padding alone"},
        {area(3, "/bin/a"s), {}, "no end of the path"},
        {area(5, "/bin/a\0a\0-x"s), {{"a", "-x"}, {}}, "fewer arguments than said, the last one cut off"},
        {area(2, "/bin/a\0a\0\0A=1\0B=2\0"s), {{"a", "A=1"}, {{"B", "2"}}}, "an empty argument"},
        {area(0, "/bin/a\0A=1\0"s), {{}, {{"A", "1"}}}, "no arguments"},
        {area(-1, "/bin/a\0A=1\0"s), {{}, {{"A", "1"}}}, "less than none"},
        {area(1, "/bin/a\0è\xff\xc3\0=x\0"s),
         {{"è\uFFFD\uFFFD"}, {{"", "x"}}},
         "no UTF-8, and a variable without a name"},
    };
    for (const auto& [bytes, expected, why] : cases)
        EXPECT_EQ(processArguments(bytes), expected) << why;
}

} // namespace
} // namespace selvane
