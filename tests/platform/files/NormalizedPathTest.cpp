// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/NormalizedPath.h"

#include <gtest/gtest.h>

#include <map>

#include "support/Files.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;
using namespace test;

TEST(NormalizedPath, ResolvesNoLinkButOneThatItLeaves) {
    const TemporaryFolder folder;
    kFiles.createFolders(folder / "away/inner");
    kFiles.createLink("away/inner", folder / "link");
    kFiles.createLink("nowhere", folder / "dangling");
    const std::string top = folder.path();
    for (const auto& [path, normalized] :
         std::map<std::string, std::string>{{"/link//./b.zip/", "/link/b.zip"},
                                            {"/link/../b.zip", "/away/b.zip"},
                                            {"/link/../inner/../../link/..", "/away"},
                                            {"/away/inner/../../link", "/link"},
                                            {"/missing/../dangling/../b.zip", "/b.zip"}})
        EXPECT_EQ(normalizedPath(top + path), top + normalized) << path;
    EXPECT_EQ(normalizedPath("//../"), "/");
    EXPECT_EQ(normalizedPath("a"), fs::current_path() / "a");
}

} // namespace
} // namespace selvane
