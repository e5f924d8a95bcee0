// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/ProfileRecord.h"

#include <gtest/gtest.h>

namespace selvane {
namespace {

constexpr Timestamp kMorning =
    std::chrono::sys_days(std::chrono::year(2025) / 3 / 1) + std::chrono::hours(9) + std::chrono::minutes(30);

TEST(ProfileMeta, decode_NameAlone_TakesTheDefaults) {
    const Timestamp before = currentTimestamp();
    const auto meta =
        decodedProfileMeta(R"({"name": "Lavoro", "summary": null, "symbol": null, "source": null,
        "modes": null, "excluded": null, "account": null, "created": null, "lastLaunched": null, "x": [1]})");
    ASSERT_TRUE(meta);
    EXPECT_TRUE(meta->created >= before && meta->created <= currentTimestamp());
    ProfileMeta expected;
    expected.name = "Lavoro";
    expected.created = meta->created;
    EXPECT_EQ(*meta, expected);
}

TEST(ProfileMeta, decode_InvalidRecord_GivesNothing) {
    for (const char* text : {"", "[]", R"({})", R"({"name": null})", R"({"name": 1})", R"({"name": "a"} x)"})
        EXPECT_FALSE(decodedProfileMeta(text)) << text;
    for (const std::string entry :
         {R"("summary": 1)", R"("symbol": [])", R"("color": 1)", R"("source": false)", R"("account": {})",
          R"("modes": [])", R"("modes": {"skills": "linked"})", R"("modes": {"skills": null})",
          R"("excluded": {"skills": "a"})", R"("excluded": {"skills": [1]})", R"("created": 1740821400)",
          R"("lastLaunched": "ieri")", R"("isolated": "true")", R"("keptOwn": ["a"])"})
        EXPECT_FALSE(decodedProfileMeta(R"({"name": "a", )" + entry + "}")) << entry;
}

TEST(ProfileMeta, decode_Color_IsAHueOrKeptAndDrawnAsNone) {
    const auto meta = [](const std::string& color) {
        return *decodedProfileMeta(R"({"name": "a", "color": )" + color + "}");
    };
    EXPECT_EQ(meta(R"("Genziana")").look.hue(), Hue::gentian);
    EXPECT_EQ(meta("null").look.hue(), std::nullopt);
    const ProfileMeta later = meta(R"("Zafferano")");
    EXPECT_EQ(later.look.hue(), std::nullopt);
    EXPECT_NE(encoded(later).find(R"("color": "Zafferano")"), std::string::npos);
    EXPECT_EQ(decodedProfileMeta(encoded(later)), later);
}

TEST(ProfileMeta, decode_Dates_AreISO8601WithWholeSeconds) {
    const auto date = [](const std::string& text) -> std::optional<Timestamp> {
        const auto meta = decodedProfileMeta(R"({"name": "a", "created": ")" + text + "\"}");
        return meta ? std::optional(meta->created) : std::nullopt;
    };
    for (const char* text :
         {"2025-03-01T09:30:00Z", "2025-03-01T11:30:00+02:00", "2025-02-28T21:00:00-12:30"})
        EXPECT_EQ(date(text), kMorning) << text;
    for (const char* text :
         {"", "2025-03-01", "2025-03-01T09:30:00", "2025-02-29T09:30:00Z", "2025-03-01T24:30:00Z",
          "2025-3-1T09:30:00Z", "2025-03-01T09:30:00.5Z", "2025-03-01T09:30:00+99:99"})
        EXPECT_FALSE(date(text)) << text;
}

TEST(ProfileMeta, encode_Record_HasSortedKeysAndNoNulls) {
    ProfileMeta meta;
    meta.name = "Caffè \"nero\"";
    meta.modes = {{"skills", ShareMode::shared}, {"CLAUDE.md", ShareMode::extend}};
    meta.excluded = {{"agents", {}}};
    meta.created = kMorning;
    EXPECT_EQ(encoded(meta), R"({
  "created": "2025-03-01T09:30:00Z",
  "excluded": {
    "agents": []
  },
  "modes": {
    "CLAUDE.md": "extend",
    "skills": "shared"
  },
  "name": "Caffè \"nero\"",
  "summary": "",
  "symbol": "person.crop.circle"
}
)");
    meta.source = "default";
    meta.account = "caff\xE8";
    meta.lastLaunched = kMorning;
    meta.isolated = true;
    meta.keptOwn = {{"skills", {"a\xFF"}}};
    meta.excluded["rules"] = {"non\xFFutf8\xEE\xBE\x80"};
    EXPECT_EQ(decodedProfileMeta(encoded(meta)), meta) << "names are bytes";
}

} // namespace
} // namespace selvane
