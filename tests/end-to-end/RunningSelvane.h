// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <csignal>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "end-to-end/Program.h"
#include "end-to-end/Seen.h"

namespace selvane::test {

/// Selvane's windows, from start to end.
class RunningSelvane {
public:
    /// Waits until the picker has the keyboard. Output goes to files in `folder`.
    RunningSelvane(const Environment& environment, const std::filesystem::path& folder,
                   std::vector<std::string> arguments = {});
    RunningSelvane(const RunningSelvane&) = delete;
    RunningSelvane& operator=(const RunningSelvane&) = delete;
    ~RunningSelvane();

    /// Everything that the window with the keyboard shows, itself first, with its states at this moment.
    /// Nothing while there is none.
    std::vector<Seen> everything() const;
    /// Waits until an object with this role and name is shown.
    Seen find(AtspiRole role, const std::string& name) const;
    /// Waits until none is shown any more.
    void waitUntilGone(AtspiRole role, const std::string& name) const;
    /// Waits until the window with this title has the keyboard.
    void waitForWindow(const std::string& title) const;
    /// Waits until the keyboard focus is on an object with this name and screen readers have been told.
    Seen waitForFocus(const std::string& name) const;
    /// The same for any object other than this one.
    Seen waitForFocusAfter(const Seen& previous) const;
    /// The object that has the keyboard focus now.
    Seen focused() const;

    /// Waits until the program ends.
    int status() { return m_program.waitForEnd(); }
    void crash() { kill(m_program.pid(), SIGKILL); }

private:
    static void hear(AtspiEvent* event, void* self);
    std::optional<Seen> toldFocus() const;
    Seen waitForFocus(const std::function<bool(const Seen&)>& isWanted, const std::string& what) const;
    std::optional<Seen> application() const;
    std::optional<Seen> activeWindow() const;
    static std::optional<Seen> shown(const Seen& window, AtspiRole role, const std::string& name);
    std::string tree() const;
    void waitFor(const std::function<bool()>& holds, const std::string& what) const;

    mutable Program m_program;
    AtspiEventListener* m_listener;
    std::optional<Seen> m_focused; ///< the last focus that screen readers were told of
};

} // namespace selvane::test
