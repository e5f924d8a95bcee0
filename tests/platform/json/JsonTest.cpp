// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/json/Json.h"

#include <array>
#include <ctime>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "platform/json/JsonMembers.h"

namespace selvane {
namespace {

using namespace std::string_literals;

std::string roundTrip(std::string_view text) {
    return json::serialized(json::parse(text, "f.json"));
}

std::string errorOf(std::string_view text) {
    try {
        json::parse(text, "f.json");
    } catch (const JsonError& error) {
        return error.what();
    }
    return "accepted";
}

TEST(JsonTest, roundTripKeepsOrderRepeatedKeysAndNumbers) {
    const std::string text = R"({
  "z": 1.0,
  "a": {
    "1e400": "-0 \"1e5\" \\",
    "numbers": [
      -0,
      0.10,
      1e3,
      1E+400,
      -1e-400,
      12345678901234567890123,
      18446744073709551615,
      -9223372036854775808,
      -9223372036854775809,
      123456789012345678,
      0.1,
      7
    ]
  },
  "empty": {},
  "none": [],
  "a": null,
  "": [
    {
      "è\n\u0001": true
    }
  ]
}
)";
    EXPECT_EQ(roundTrip(text), text);
    EXPECT_EQ(roundTrip("\xEF\xBB\xBF 1.50 "), "1.50\n");
}

TEST(JsonTest, ordinaryNumbersStayNumbers) {
    const Json value = json::parse("[1, -2, 18446744073709551615, 0.5, 1.0]", "f.json");
    EXPECT_EQ(value, Json::array({1, -2, 18446744073709551615U, 0.5, 1.0}));
}

TEST(JsonTest, namesThePlaceOfAnError) {
    const std::vector<std::pair<std::string, std::string>> table{
        {"", "riga 1, colonna 1"},
        {"{\"a\":}", "riga 1, colonna 6"},
        {"{\n \"è\" 1}", "riga 2, colonna 6"},
        {"[01]", "riga 1, colonna 3"},
        {"[1.5.5]", "riga 1, colonna 5"},
        {"[1.5e]", "riga 1, colonna 5"},
        {"[1-2e3]", "riga 1, colonna 4"},
        {"[1,]", "riga 1, colonna 4"},
        {"{} {}", "riga 1, colonna 4"},
        {"[1.0]\n\0x"s, "riga 2, colonna 1"},
        {"[\"\xFF\"]", "riga 1, colonna 3"},
        {"// no\n1", "riga 1, colonna 1"},
        {"\xEF\xBB\xBF\xEF\xBB\xBF{}", "riga 1, colonna 1"},
    };
    for (const auto& [text, place] : table)
        EXPECT_EQ(errorOf(text), "f.json: JSON non valido (" + place + ")") << text;
}

TEST(JsonTest, refusesDeepNestingAtOnce) {
    const auto nested = [](std::size_t depth) { return std::string(depth, '[') + std::string(depth, ']'); };
    EXPECT_EQ(errorOf(nested(512)), "accepted");
    const std::string tooDeep = "f.json: JSON annidato troppo in profondità";
    EXPECT_EQ(errorOf(nested(513)), tooDeep);
    EXPECT_EQ(errorOf(nested(10'000'000)), tooDeep);
}

TEST(JsonTest, largeObjectsTakeLinearTime) {
    const auto timeOf = [](int keys) {
        std::string text = "{\n";
        for (int i = 0; i < keys; ++i)
            text += "  \"" + std::to_string(i) + "\": 1e9,\n";
        text += "  \"last\": 0\n}\n";
        const std::clock_t start = std::clock();
        EXPECT_TRUE(roundTrip(text) == text);
        return std::clock() - start;
    };
    // Forty times as many keys would take 1,600 times as long if each were compared with all others.
    EXPECT_LT(timeOf(80'000), 120 * timeOf(2'000));
}

TEST(JsonTest, halvesOfPairsBecomeReplacementCharacters) {
    EXPECT_EQ(roundTrip(R"(["cut \ud83d", "\uDE00\ud83d\ude00\ud83d\n", "\\ud83d", "\u00e8"])"),
              "[\n  \"cut \uFFFD\",\n  \"\uFFFD\U0001F600\uFFFD\\n\",\n  \"\\\\ud83d\",\n  \"è\"\n]\n");
}

TEST(JsonTest, findsTheLastOfRepeatedKeys) {
    const Json value = json::parse(R"({"a": 1, "b": 2, "a": 3})", "f.json");
    ASSERT_NE(json::find(value, "a"), nullptr);
    EXPECT_EQ(*json::find(value, "a"), 3);
    EXPECT_EQ(json::find(value, "c"), nullptr);
    EXPECT_EQ(json::find(Json::array({"a"}), "a"), nullptr);
}

TEST(JsonTest, changesKeysInTheirPlace) {
    Json value = json::parse(R"({"a": 1, "b": 1.0, "a": 3, "c": []})", "f.json");
    json::set(value, "a", "x");
    json::set(value, "d", nullptr);
    json::set(value, "c", 2);
    EXPECT_EQ(json::serialized(value), "{\n  \"a\": \"x\",\n  \"b\": 1.0,\n  \"c\": 2,\n  \"d\": null\n}\n");

    value = json::parse(R"({"a": 1, "b": 2, "a": 3})", "f.json");
    json::remove(value, "c");
    json::remove(value, "a");
    EXPECT_EQ(json::serialized(value), "{\n  \"b\": 2\n}\n");
}

TEST(JsonTest, leavesOutMembersAsEditingTheValueDoes) {
    const std::array<std::string_view, 2> names = {"a", "b"};
    const std::string deep = "{\"z\": " + std::string(511, '[') + std::string(511, ']') + "}";
    for (const std::string& text : {
             R"({"a": [1, {"b": "]}\""}], "z": {"a": -0.50, "b": []}, "b": 1E400})"s,
             R"( { "z" : [ [ ] , { } , null , "\\" , "\"" ] , "a" : {} , "z" : 1 , "y" : true } )"s,
             R"({"\u0061": 1, "z": "", "aa": {"x": [1, [2, 3], {"y": {}}]}, "a": "last"})"s,
             R"({"a": "only"})"s,
             "{}"s,
             deep,
         }) {
        Json value = json::parse(text, "f");
        for (const std::string_view name : names)
            json::remove(value, name);
        EXPECT_EQ(json::withoutMembers(text, names), json::serialized(value)) << text;
    }
    EXPECT_EQ(json::withoutMembers(R"({"z": ["\/", 1.0]})", names),
              "{\n  \"z\": [\n    \"\\/\",\n    1.0\n  ]\n}\n");
    EXPECT_EQ(json::withoutMembers("[1]", names), std::nullopt);
    EXPECT_EQ(json::withoutMembers("{\"z\": [" + deep + "]}", names), std::nullopt);
}

TEST(JsonTest, refusesToWriteWhatIsNoUtf8) {
    EXPECT_THROW(json::serialized(Json{{"path", "/tmp/\xFF"}}), JsonError);
    EXPECT_THROW(json::serialized(Json{{"\xC3", 1}}), JsonError);
}

} // namespace
} // namespace selvane
