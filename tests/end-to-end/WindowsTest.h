// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <gtest/gtest.h>

#include "end-to-end/Desktop.h"
#include "end-to-end/RunningSelvane.h"
#include "support/Home.h"
#include "support/InstalledClaude.h"

namespace selvane::test {

/// A home with the stand-in for Claude Desktop, on a desktop of its own.
class Windows : public testing::Test, protected InstalledClaude {
protected:
    Windows() {
        home.environment.merge(desktop().environment());
        writeFile(home / ".config/selvane/preferenze.conf", "[General]\nsignInsOffered=true\n");
    }
    /// Errors in the views are only printed, and would otherwise go unnoticed. Qt says one thing of its own,
    /// now and then: it stops the clock of its animations a moment after the last one, when that may already
    /// stand still.
    void TearDown() override {
        std::string errors = readFile(home / "selvane.err");
        const std::string clock = "QUnifiedTimer::stopAnimationDriver: driver is not running\n";
        if (const auto at = errors.find(clock); at != std::string::npos)
            errors.erase(at, clock.size());
        EXPECT_EQ(errors, "");
    }

    /// Starts the windows; they stay until the end of the test or until they close.
    RunningSelvane start(std::vector<std::string> arguments = {}) const {
        return {home.environment, home.path(), std::move(arguments)};
    }
    static void press(const std::vector<xcb_keysym_t>& keys) { desktop().press(keys); }
    static void type(const std::string& text) { desktop().type(text); }
    static void focus(const std::string& title) { desktop().focus(title); }
    /// Each object that Tab stops at, from the one with the focus until that has it again.
    static std::vector<Seen> tabAround(
        const RunningSelvane& selvane, const std::function<void(const Seen&)>& atStop = [](const Seen&) {}) {
        std::vector<Seen> stops = {selvane.focused()};
        do {
            press({XK_Tab});
            stops.push_back(selvane.waitForFocusAfter(stops.back()));
            atStop(stops.back());
        } while (stops.size() < kMostStops && !stops.back().isSameAs(stops.front()));
        stops.pop_back();
        return stops;
    }
    /// Presses Tab, at most once around, until an object with this name has the focus.
    static Seen tabTo(const RunningSelvane& selvane, const std::string& name) {
        Seen stop = selvane.focused();
        for (std::size_t i = 0; i < kMostStops && stop.name() != name; ++i) {
            press({XK_Tab});
            stop = selvane.waitForFocusAfter(stop);
        }
        EXPECT_EQ(stop.name(), name);
        return stop;
    }

private:
    static constexpr std::size_t kMostStops = 100;

    /// A process can connect to the accessibility bus only once.
    static Desktop& desktop() {
        static Desktop instance;
        return instance;
    }
};

/// The management window, with a profile that inherits everything from the built-in one.
class Manage : public Windows {
protected:
    Manage() {
        writeFile(home / ".claude/skills/pdf/SKILL.md", "testo");
        home.output({"create", "Lavoro", "--from", "default"});
    }
    static void selectLavoro(const RunningSelvane& selvane) {
        press({XK_Control_L, ','});
        selvane.waitForWindow("Impostazioni");
        press({XK_Down});
        selvane.waitForFocus("Lavoro");
    }
};

} // namespace selvane::test
