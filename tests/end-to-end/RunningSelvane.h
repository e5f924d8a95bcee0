// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <atspi/atspi.h>

#include <csignal>
#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "end-to-end/Program.h"

namespace selvane::test {

/// An object in a window as a screen reader sees it. Once gone, it has no name, states or children.
class Seen {
public:
    explicit Seen(AtspiAccessible* owned) : m_object(owned, &g_object_unref) {}

    AtspiRole role() const;
    std::string name() const;
    std::string description() const;
    std::string text() const; ///< the contents of a field
    bool is(AtspiStateType state) const;
    Seen withStates() const; ///< the same with its present states, which cost nothing to ask for from then on
    guint processId() const;
    bool isSameAs(const Seen& other) const;
    bool canBePressed() const;
    void press() const; ///< as assistive technology does
    std::vector<Seen> children() const;
    std::vector<Seen> withDescendants() const;

    friend std::ostream& operator<<(std::ostream& out, const Seen& seen);

private:
    gint64 states() const;

    std::shared_ptr<AtspiAccessible> m_object;
    std::optional<gint64> m_states;
};

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
