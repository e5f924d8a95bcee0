// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/manage/ProfileSearch.h"

#include <gtest/gtest.h>

namespace selvane {
namespace {

Profile profile(const char* id, const char* name, const char* summary = "") {
    Profile made{id, {}, id};
    made.meta.name = name;
    made.meta.summary = summary;
    return made;
}

std::string idsFound(const char* text) {
    const std::vector<Profile> profiles = {
        profile("default", "Principale", "La configurazione standard"),
        profile("aurora", "Cliente Aurora", "Account del cliente, solo le sue skill"),
        profile("libri", "Perché no", "Sito e negozio, clienti e fatture"),
        profile("cliente-2", "Borea"),
        profile("fine", "La \uFB01ne", "こんにちは世界"),
    };
    std::string ids;
    for (const ListedProfile& row : foundProfiles(profiles, QString::fromUtf8(text)))
        ids += row.profile.id + " ";
    return ids;
}

TEST(ProfileSearch, Words_AreFoundWhereTheyBegin_InNamesFirst) {
    const std::pair<const char*, const char*> expected[] = {
        {"", "default aurora libri cliente-2 fine "},
        {"cli", "aurora libri cliente-2 "}, // name, description, id
        {"CLI  aur", "aurora "},
        {"cliente sol", "aurora "},
        {"perche", "libri "},
        {"PERCHÉ", "libri "},
        {"fin", "fine "},
        {"2", "cliente-2 "},
        {"ipale", "default "}, // nothing begins with it
        {"世界", "fine "},
        {"cliz", ""},
        {"cli cliz", ""},
    };
    for (const auto& [text, ids] : expected)
        EXPECT_EQ(idsFound(text), ids) << text;
}

TEST(ProfileSearch, WhatIsFound_IsCountedInTheTextsOwnLetters) {
    const auto ranges = [](const char* name, const char* summary, const char* text) {
        const auto found = foundProfiles({profile("x", name, summary)}, QString::fromUtf8(text));
        return found.empty() ? QList<int>{-1} : found[0].inName + QList<int>{-1} + found[0].inSummary;
    };
    EXPECT_EQ(ranges("Cliente Aurora", "", "au cli"), (QList<int>{8, 2, 0, 3, -1}));
    EXPECT_EQ(ranges("La \uFB01ne", "", "fin"), (QList<int>{3, 2, -1})) << "a ligature";
    EXPECT_EQ(ranges("e\u0301te\u0301", "", "ete"), (QList<int>{0, 5, -1})) << "accents of their own";
    EXPECT_EQ(ranges("𝐁ello", "", "be"), (QList<int>{0, 3, -1}));
    EXPECT_EQ(ranges("Nome", "il Sito, però", "pero"), (QList<int>{-1, 9, 4}));
}

} // namespace
} // namespace selvane
