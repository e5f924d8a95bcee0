// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <cmath>

#include <gtest/gtest.h>

#include "platform/files/Progress.h"
#include "platform/text/TextFinder.h"
#include "store/conversations/ConversationSearch.h"
#include "store/conversations/Conversations.h"
#include "store/conversations/TextSearch.h"
#include "support/Home.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;
using namespace test;
using namespace std::string_literals;
using Texts = std::vector<std::string>;

std::string user(const std::string& words, const std::string& more = "") {
    return R"({"parentUuid":null,"type":"user","message":{"role":"user","content":")" + words +
           R"("},"uuid":"u")" + more + "}\n";
}

std::string agent(const std::string& words) {
    return R"({"type":"assistant","message":{"content":[{"type":"thinking","thinking":"segreto"},)"
           R"({"type":"text","text":")" +
           words + R"("},{"type":"tool_use","input":{"text":"attrezzo"}}]}})" + "\n";
}

std::string at(const std::string& time) {
    return R"(,"cwd":"/lavori/Però","timestamp":"2026-11-)" + time + "\"";
}

/// The built-in profile and "Società", which has an account of its own.
struct Conversations : testing::Test {
    Conversations() : other(home.make("Società")) {}

    void record(const Profile& profile, const std::string& file, const std::string& fields) {
        writeFile(home.store.desktopDataDir(profile) / "claude-code-sessions" / file, "{" + fields + "}");
    }
    void transcript(const Profile& profile, const std::string& id, const std::string& lines) {
        writeFile(profile.configDir / "projects/p" / (id + ".jsonl"), lines);
    }
    std::shared_ptr<const ConversationList> list() {
        return std::make_shared<ConversationList>(conversations(home.store));
    }
    /// Each with its title and what distinguishes it.
    static Texts shown(const ConversationList& list) {
        Texts rows;
        for (const Conversation& row : list.conversations) {
            std::string text = row.title + (row.hasGivenTitle ? " |" : " ~|");
            text += row.origin == ConversationOrigin::app ? " app" : " terminale";
            for (const ConversationPlace& place : row.places)
                text += " " + list.profiles[place.profile].meta.name + ":" + std::to_string(place.size) +
                        (place.isArchived ? "a" : "") + (place.isInOtherOrganisation ? "o" : "");
            rows.push_back(text + " | " + row.cwd + " " +
                           std::to_string(std::llround(row.lastActivity.value_or(0) * 10) % 10000));
        }
        return rows;
    }

    Home home;
    const Profile other;
};

TEST_F(Conversations, AllAreListedOnce_WhereverTheyLie) {
    const Profile builtIn = home.builtIn();
    record(builtIn, "a/old/local_1.json",
           R"("sessionId":"s1","title":"Uno","cwd":"/w","lastActivityAt":1795000000100,"cliSessionId":"c1",)"
           R"("priorCliSessionIds":["c0"],"isArchived":true)");
    record(builtIn, "a/new/local_2.json", R"("sessionId":"s2","lastActivityAt":1795000000900)");
    fs::last_write_time(home.store.desktopDataDir(builtIn) / "claude-code-sessions/a/old",
                        fs::file_time_type::clock::now() - std::chrono::hours(1));
    record(other, "b/c/local_1.json",
           R"("sessionId":"s1","title":"Uno bis","lastActivityAt":1795000000300,"cliSessionId":"c1")");
    transcript(builtIn, "c0", "zero");
    transcript(builtIn, "c1", "one!!");
    transcript(other, "c1", user("io", at("18T12:00:00Z")));
    // A terminal's: what was put in by programs are no words; a line that is damaged, or not finished, is
    // none.
    const std::string begun = user("avvio", R"(,"isMeta":true)") + "{\"type\n\n" +
                              user("<command-name>/init", at("01T00:00:00.5Z")) +
                              user("  Perché\\nfallisce?", R"(,"isSidechain":false)");
    transcript(builtIn, "t1", begun + user("dopo", at("02T00:00:00.7Z")) + R"({"type":"user","timestamp")");
    transcript(other, "t1", begun);
    transcript(other, "t2", agent("solo io"));
    // The middle of a long one isn't read.
    const std::string filling = agent(std::string(90'000, 'x'));
    transcript(builtIn, "t3",
               R"({"type":"summary","summary":"Titolo \"vecchio\""})"
               "\n" +
                   user("parole", at("03T00:00:00Z")) + filling +
                   R"({"type":"custom-title","customTitle":"mezzo"})"
                   "\n" +
                   filling);
    transcript(builtIn, "t4",
               user(R"(di \"summary\")") + filling + filling +
                   R"({"customTitle":"Ultimo","type":"custom-title"})"
                   "\n" +
                   user("fine", at("04T10:00:00.123Z")));
    for (const char* id : {"t2", "t3"}) {
        for (const Profile& profile : {builtIn, other}) {
            const fs::path file = profile.configDir / "projects/p" / (id + ".jsonl"s);
            if (fs::exists(file))
                fs::last_write_time(file, fs::file_time_type::clock::now() -
                                              std::chrono::hours(id == "t2"s ? 900'001 : 900'000));
        }
    }
    const auto size = [&](const std::string& id, const Profile& profile) {
        return std::to_string(fs::file_size(profile.configDir / "projects/p" / (id + ".jsonl")));
    };
    const Texts rows = shown(*list());
    ASSERT_EQ(rows.size(), 6U);
    EXPECT_EQ(rows[0], "Senza titolo ~| app Principale:0 |  9");
    EXPECT_EQ(rows[1], "Uno bis | app Società:" + size("c1", other) + " Principale:9ao |  3");
    EXPECT_EQ(rows[2], "Ultimo | terminale Principale:" + size("t4", builtIn) + " | /lavori/Però 4001");
    EXPECT_EQ(rows[3], "Perché fallisce? ~| terminale Principale:" + size("t1", builtIn) +
                           " Società:" + size("t1", other) + " | /lavori/Però 6007");
    EXPECT_EQ(rows[4].substr(0, 34), "Titolo \"vecchio\" | terminale Princ");
    EXPECT_EQ(rows[5].substr(0, 28), "Senza titolo ~| terminale So");
}

TEST_F(Conversations, AreFoundByTitleFolderAndProfile) {
    transcript(home.builtIn(), "t1", user("ARRIVEDERCI CITTÀ", at("02T00:00:00Z")));
    transcript(other, "t2", user("città nuova", at("03T00:00:00Z")));
    record(other, "b/c/local_1.json", R"("sessionId":"s1","title":"Caffè","lastActivityAt":1,"cwd":"/x")");
    const ConversationSearch search(list());
    const auto found = [&](const ConversationFilter& filter) {
        Texts titles;
        for (const std::uint32_t row : search.matches(filter))
            titles.push_back(search.list().conversations[row].title);
        return titles;
    };
    const Texts all = {"città nuova", "ARRIVEDERCI CITTÀ", "Caffè"};
    EXPECT_EQ(found({.text = " "}), all);
    EXPECT_EQ(found({.text = "citta'"}), Texts());
    EXPECT_EQ(found({.text = "citta"}), (Texts{all[0], all[1]}));
    EXPECT_EQ(found({.text = "SOCIETA  CITT"}), Texts{all[0]});
    EXPECT_EQ(found({.text = "peró principale"}), Texts{all[1]});
    EXPECT_EQ(found({.text = "nuovaper"}), Texts()) << "no word goes from one field into the next";
    EXPECT_EQ(found({.text = "societaarr"}), Texts()) << "nor from one conversation into the next";
    EXPECT_EQ(found({.text = "", .profiles = {1}, .terminal = false}), Texts{all[2]});
    EXPECT_EQ(found({.text = "", .folder = "/lavori/Però", .since = 1793577600}), (Texts{all[0], all[1]}));
    EXPECT_EQ(found({.text = "", .app = false, .since = 1793577601}), Texts{all[0]});
    EXPECT_EQ(search.folders(), (Texts{"/lavori/Però", "/x"}));
}

TEST_F(Conversations, AreFoundByTheirOwnWords) {
    transcript(home.builtIn(), "t1",
               user("niente", at("01T00:00:00Z")) + agent("Un \\\"PERÒ\\\"\\ndetto qui") +
                   user("però ancora"));
    transcript(other, "t1", user("niente", at("01T00:00:00Z")));
    transcript(home.builtIn(), "t2",
               agent(std::string(300'000, 'x')) + user("Strasse e\\u0301 pero\u0300") +
                   "{\"type\":\"user\",\"mess" + std::string(20, 'p'));
    const auto search = list();
    const auto found = [&](const std::string& phrase) {
        Progress progress;
        Texts hits;
        EXPECT_TRUE(searchTexts(*search, {0, 1}, phrase, progress, [&](const TextHit& hit) {
            hits.push_back(search->conversations[hit.conversation].cliSessionIDs[0] + ": " +
                           hit.excerpt.substr(0, hit.begin) + "[" + hit.excerpt.substr(hit.begin, hit.size) +
                           "]");
        }));
        std::ranges::sort(hits);
        return hits;
    };
    EXPECT_EQ(found("\"PERO"), (Texts{"t1: Un [\"PERÒ]"})) << "a byte longer than what was typed";
    EXPECT_EQ(found("pero").size(), 2U);
    EXPECT_EQ(found("DETTO"), (Texts{"t1: Un \"PERÒ\" [detto]"}));
    EXPECT_EQ(found("Niente"), (Texts{"t1: [niente]"})) << "once for both copies";
    EXPECT_EQ(found("Straße É"), (Texts{"t2: [Strasse e\u0301]"}));
    for (const char* phrase : {"segreto", "attrezzo", "assistant", "lavori", "ppp", "", " ", "xy"})
        EXPECT_EQ(found(phrase), Texts()) << phrase;
    Progress stopped;
    stopped.cancel();
    EXPECT_FALSE(searchTexts(*search, {0, 1}, "pero", stopped, [](const TextHit&) { FAIL(); }));
}

TEST(TextFinder, FindsWhatAPlainSearchFinds) {
    std::uint32_t state = 1;
    const auto random = [&](std::size_t size, const char* letters) {
        std::string text;
        while (text.size() < size)
            text += letters[(state = state * 1664525 + 1013904223) >> 30];
        return text;
    };
    for (std::size_t round = 0; round < 3000; ++round) {
        const std::string text = random(round % 300, "aab\"");
        const std::string needle = random(1 + round % 9, "aaab");
        const text::TextFinder exact(needle, text::TextFinder::Kind::exact);
        const text::TextFinder loose(needle, text::TextFinder::Kind::searchable);
        for (std::size_t from = 0; from <= text.size(); from += 1 + round % 70) {
            const std::size_t expected = text.find(needle, from);
            ASSERT_EQ(exact.find(text, from), expected) << text << " " << needle << " " << from;
            const std::size_t begin = loose.find(text, from);
            ASSERT_TRUE(expected == text.npos || begin < expected + needle.size()) << text << " " << needle;
        }
    }
}

} // namespace
} // namespace selvane
