// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "desktop/SignInHandler.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "platform/process/SchemeHandler.h"
#include "support/Home.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

// GIO knows only this process's own home, which the tests have to themselves.
TEST(SignInHandler, turnOnAndOff_GivesTheLinksBack) {
    const fs::path home = std::getenv("HOME");
    const fs::path applications = home / ".local/share/applications";
    const SignInHandler handler({{"HOME", home.string()}});
    const fs::path program = home / "con \"virgolette\" $e `altro` \\/selvane";
    test::writeFile(program, "#!/bin/sh\n");
    fs::permissions(program, fs::perms::owner_all);
    for (const char* name : {"claude", "altro"})
        test::writeFile(applications / (std::string(name) + ".desktop"),
                        "[Desktop Entry]\nType=Application\nName=x\nExec=true %u\n"
                        "MimeType=x-scheme-handler/claude;\n");
    EXPECT_THROW(handler.turnOn(home / "assente"), std::exception);
    EXPECT_FALSE(fs::exists(applications / "org.selvane.Selvane.sign-in.desktop"))
        << "nothing without that click";
    setSchemeHandler("claude", "claude.desktop");
    ASSERT_EQ(schemeHandler("claude"), "claude.desktop");

    handler.turnOn(program);
    EXPECT_TRUE(handler.isOn());
    handler.turnOn(program); // which isn't its own predecessor
    EXPECT_EQ(schemeHandler("claude"), "org.selvane.Selvane.sign-in.desktop");
    handler.turnOff();
    EXPECT_FALSE(handler.isOn());
    EXPECT_EQ(schemeHandler("claude"), "claude.desktop");

    handler.turnOn(program);
    setSchemeHandler("claude", "altro.desktop");
    EXPECT_FALSE(handler.isOn());
    handler.turnOff();
    EXPECT_EQ(schemeHandler("claude"), "altro.desktop") << "somebody else's by now";
    handler.turnOn(program);
    fs::remove(program);
    setSchemeHandler("test", "altro.desktop"); // GIO looks again
    EXPECT_NE(schemeHandler("claude"), "org.selvane.Selvane.sign-in.desktop") << "without Selvane";
    handler.turnOff();
    EXPECT_FALSE(fs::exists(applications / "org.selvane.Selvane.sign-in.desktop"));
    resetSchemeHandler("claude");
}

} // namespace
} // namespace selvane
