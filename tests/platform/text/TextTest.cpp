// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/text/Text.h"

#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <limits>
#include <utility>

#include <gtest/gtest.h>

#include "model/ByteText.h"
#include "platform/linux/services/FieldCodes.h"
#include "platform/services/Received.h"
#include "platform/services/Services.h"
#include "platform/text/ErrorText.h"

namespace selvane {
namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;
using Pairs = std::vector<std::pair<std::string, std::string>>;

TEST(TextTest, sortsInItalianOrderWithoutRegardToCase) {
    const std::vector<std::string_view> names{"zebra", "Éva",  "eva 2", "EVA",   "eva", "Ångström",
                                              "abc",   "ABCD", "-x",    "b\xFF", "ABC"};
    std::vector<std::string_view> sorted;
    for (const std::size_t position : text::sortedOrder(names))
        sorted.push_back(names[position]);
    EXPECT_EQ(sorted, (std::vector{"-x"sv, "abc"sv, "ABC"sv, "ABCD"sv, "Ångström"sv, "b\xFF"sv, "EVA"sv,
                                   "eva"sv, "Éva"sv, "eva 2"sv, "zebra"sv}));
}

TEST(TextTest, foldsLettersOfAllScripts) {
    const Pairs table{
        {"Straße Ünïcode", "strasse-unicode"},
        {"İSTANBUL ﬁ", "istanbul-fi"},
        {"Йод Ἀθῆναι", "иод-αθηναι"},
        {"क्षि 가나 日本", "क्षि-가나-日本"}, // vowel signs and composed syllables are part of the word
        {"Nº 4 ½/٣", "nº-4-½-٣"},
        {"a❤️b", "a--b"}, // the variation selector after the heart goes with it
        {"e\xCC\x81x\xFFy", "ex-y"},
    };
    for (const auto& [name, folded] : table)
        EXPECT_EQ(text::folded(name), folded);
}

TEST(TextTest, trimsAllWhiteSpace) {
    EXPECT_EQ(text::trimmed("\xE3\x80\x80\t\r\n a\xC2\xA0z \xE2\x80\xA9\xC2\x85"), "a\xC2\xA0z");
    EXPECT_EQ(text::trimmed(" \xE2\x80\x8B \n"), "\xE2\x80\x8B"); // has no width, but isn't white space
    EXPECT_EQ(text::trimmed(" \v\f\n"), "");
}

TEST(TextTest, tellsUtf8FromOtherBytes) {
    for (const auto valid : {""sv, "a\0b"sv, "é€😀"sv, "\xED\x9F\xBF"sv, "\xF4\x8F\xBF\xBF"sv})
        EXPECT_TRUE(isUtf8(valid)) << valid;
    for (const auto invalid :
         {"\x80"sv, "\xC3"sv, "\xC0\xAF"sv, "\xE0\x9F\xBF"sv, "\xED\xA0\x80"sv, "\xF0\x8F\xBF\xBF"sv,
          "\xF4\x90\x80\x80"sv, "\xE2\x82"sv, "\xF5\x80\x80\x80"sv})
        EXPECT_FALSE(isUtf8(invalid)) << testing::PrintToString(invalid);
}

TEST(TextTest, keepsTextOnOneLine) {
    const Pairs table{
        {"a\tb\nc\x7F", "a\uFFFDb\uFFFDc\uFFFD"},
        {"a\0b"s, "a\uFFFDb"},
        {"\xC2\x85z\xC2\x9B\xC2\xA0", "\uFFFDz\uFFFD\xC2\xA0"},
        {"\xE2\x80\xA8\xE2\x80\xA9\xE2\x80\xAA", "\uFFFD\uFFFD\xE2\x80\xAA"},
        {"\x85\xE2\x80", "\x85\xE2\x80"}, // not UTF-8: unchanged
    };
    for (const auto& [line, expected] : table)
        EXPECT_EQ(text::singleLine(line), expected);
}

TEST(TextTest, writesDatesInItalianAndLocalTime) {
    setenv("TZ", "Europe/Rome", 1);
    tzset();
    const auto date = [](std::int64_t milliseconds) {
        return text::longDate(std::chrono::system_clock::time_point(std::chrono::milliseconds(milliseconds)));
    };
    EXPECT_EQ(date(1794731400000), "15 novembre 2026 alle ore 09:30");
    EXPECT_EQ(date(1783284300999), "5 luglio 2026 alle ore 22:45"); // summer time
    EXPECT_EQ(date(-1), "1 gennaio 1970 alle ore 00:59");
}

TEST(TextTest, writesByteCountsInDecimalUnits) {
    const std::vector<std::pair<std::int64_t, std::string>> table{
        {-5, "Zero KB"},
        {0, "Zero KB"},
        {1, "1 byte"},
        {999, "999 byte"},
        {1000, "1 KB"},
        {12'345, "12 KB"},
        {999'499, "999 KB"},
        {999'999, "1 MB"},
        {1'234'567, "1,2 MB"},
        {999'949'999, "999,9 MB"},
        {999'950'000, "1 GB"},
        {3'450'000'000, "3,45 GB"},
        {3'400'000'000, "3,4 GB"},
        {3'050'000'000'000, "3,05 TB"},
        {std::numeric_limits<std::int64_t>::max(), "9,22 EB"},
    };
    for (const auto& [bytes, expected] : table)
        EXPECT_EQ(text::byteCount(bytes), expected);
}

TEST(FieldCodesTest, areDroppedFromWords) {
    const std::vector<std::pair<std::string_view, std::optional<std::string>>> table{
        {"", ""},          {"%U", std::nullopt}, {"%f%i", std::nullopt}, {"--url=%u", "--url="},
        {"100%%", "100%"}, {"%%f", "%f"},        {"%20%", "%20%"},       {"a%cb", "ab"},
    };
    for (const auto& [word, expected] : table)
        EXPECT_EQ(withoutFieldCodes(word), expected) << word;
}

TEST(TextTest, relativeDatesNameTheLargestUnit) {
    using namespace std::chrono_literals;
    const std::vector<std::pair<std::chrono::seconds, std::string>> table{{-5s, "ora"},
                                                                          {59s, "ora"},
                                                                          {60s, "1 minuto fa"},
                                                                          {3h - 1s, "2 ore fa"},
                                                                          {24h, "ieri"},
                                                                          {48h, "l’altro ieri"},
                                                                          {72h, "3 giorni fa"},
                                                                          {7 * 24h, "settimana scorsa"},
                                                                          {95 * 24h, "3 mesi fa"},
                                                                          {800 * 24h, "2 anni fa"}};
    for (const auto& [ago, expected] : table)
        EXPECT_EQ(text::relativeDate(ago), expected) << ago.count();
}

TEST(Services, ACallbackThatThrows_WaitsUntilTheCallIsBack) {
    const auto refuse = [](void* context, const char*, std::size_t) noexcept {
        Received<std::string>::add(context, [](std::string&) { throw std::runtime_error("full"); });
    };
    Received<std::string> received;
    services().fold("A", 1, refuse, &received);
    services().fold("B", 1, appendBytes, &received); // too late
    EXPECT_THROW(received.take(), std::runtime_error);

    Received<std::string> whole;
    services().fold("A", 1, appendBytes, &whole);
    services().fold("B", 1, appendBytes, &whole);
    EXPECT_EQ(whole.take(), "ab");
}

TEST(ErrorText, NamesPathsAndReasonOnOneLine) {
    const auto text = [](int code, const std::filesystem::path& first, const std::filesystem::path& second) {
        return describe(std::filesystem::filesystem_error("x", first, second,
                                                          std::error_code(code, std::system_category())));
    };
    EXPECT_EQ(text(ENOSPC, "/a\nb", ""), "/a\xEF\xBF\xBD"
                                         "b: spazio sul disco esaurito");
    EXPECT_EQ(text(EXDEV, "/a", "/b"), "/a, /b: si trova su un altro disco");
    EXPECT_EQ(text(EINVAL, "/a", "/a/b"), "/a, /a/b: una cartella non può stare dentro se stessa");
    EXPECT_EQ(text(EMLINK, "/a", ""), "/a: " + std::system_category().message(EMLINK));
    EXPECT_EQ(describe(std::runtime_error("testo")), "testo");
}

} // namespace
} // namespace selvane
