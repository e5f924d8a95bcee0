// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "end-to-end/RunningSelvane.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>

#include "support/InstalledClaude.h"

namespace selvane::test {
namespace {

constexpr const char* kFocusEvent = "object:state-changed:focused";

void print(const Seen& seen, int depth, std::ostream& out) {
    out << std::string(static_cast<std::size_t>(2 * depth), ' ') << seen << '\n';
    for (const Seen& child : seen.children())
        print(child, depth + 1, out);
}

std::vector<std::string> commandLine(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), SELVANE_EXECUTABLE);
    return arguments;
}

} // namespace

RunningSelvane::RunningSelvane(const Environment& environment, const std::filesystem::path& folder,
                               std::vector<std::string> arguments)
    : m_program(commandLine(std::move(arguments)), environment, folder),
      m_listener(atspi_event_listener_new(&hear, this, nullptr)) {
    atspi_event_listener_register(m_listener, kFocusEvent, nullptr);
    // Shortcuts and messages come after the first frame; the layer of messages can be seen.
    const auto look = [&] {
        const auto window = activeWindow();
        return window && std::ranges::count(Seen::rolesOf(window->withDescendants()), ATSPI_ROLE_ALERT) > 0;
    };
    waitFor(look, "the picker");
}

RunningSelvane::~RunningSelvane() {
    atspi_event_listener_deregister(m_listener, kFocusEvent, nullptr);
    g_object_unref(m_listener);
}

std::optional<Seen> RunningSelvane::application() const {
    const Seen desktop(atspi_get_desktop(0));
    for (const Seen& each : desktop.children()) {
        if (each.processId() == static_cast<guint>(m_program.pid()))
            return each;
    }
    return std::nullopt;
}

std::optional<Seen> RunningSelvane::activeWindow() const {
    const auto all = application();
    for (const Seen& window : all ? all->children() : std::vector<Seen>{}) {
        if (window.is(ATSPI_STATE_ACTIVE))
            return window;
    }
    return std::nullopt;
}

std::vector<Seen> RunningSelvane::everything() const {
    const auto window = activeWindow();
    return window ? window->shown() : std::vector<Seen>{};
}

std::optional<Seen> RunningSelvane::shown(const Seen& window, AtspiRole role, const std::string& name) {
    const std::vector<Seen> all = window.shown();
    const std::vector<AtspiRole> roles = Seen::rolesOf(all);
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (roles[i] == role && all[i].name() == name)
            return all[i];
    }
    return std::nullopt;
}

Seen RunningSelvane::find(AtspiRole role, const std::string& name) const {
    std::optional<Seen> found;
    const auto look = [&] {
        const auto window = activeWindow();
        found = window ? shown(*window, role, name) : std::nullopt;
        return found.has_value();
    };
    waitFor(look, described(role, name));
    return *found;
}

void RunningSelvane::waitUntilGone(AtspiRole role, const std::string& name) const {
    const auto look = [&] {
        if (const auto status = m_program.status())
            return *status == 0;
        const auto window = activeWindow();
        return window && !shown(*window, role, name);
    };
    waitUntil(look, "the end of " + described(role, name));
}

void RunningSelvane::waitForWindow(const std::string& title) const {
    const auto look = [&] {
        const auto window = activeWindow();
        return window && window->name() == title;
    };
    waitFor(look, "the window " + title);
}

void RunningSelvane::hear(AtspiEvent* event, void* self) {
    if (event->detail1 == 1)
        static_cast<RunningSelvane*>(self)->m_focused = Seen(ATSPI_ACCESSIBLE(g_object_ref(event->source)));
    g_boxed_free(ATSPI_TYPE_EVENT, event);
}

std::optional<Seen> RunningSelvane::toldFocus() const {
    while (g_main_context_iteration(nullptr, FALSE) != FALSE) {
    }
    if (m_focused)
        return m_focused;
    // Nobody was told what had the keyboard from the start.
    for (const Seen& seen : everything()) {
        if (seen.is(ATSPI_STATE_FOCUSED) && seen.is(ATSPI_STATE_FOCUSABLE))
            return seen;
    }
    return std::nullopt;
}

Seen RunningSelvane::waitForFocus(const std::function<bool(const Seen&)>& isWanted,
                                  const std::string& what) const {
    std::optional<Seen> found;
    const auto look = [&] {
        found = toldFocus();
        return found && isWanted(*found) && found->is(ATSPI_STATE_FOCUSED);
    };
    waitFor(look, "the keyboard " + what);
    return *found;
}

Seen RunningSelvane::waitForFocus(const std::string& name) const {
    return waitForFocus([&](const Seen& seen) { return seen.name() == name; }, "at \"" + name + "\"");
}

Seen RunningSelvane::waitForFocusAfter(const Seen& previous) const {
    return waitForFocus([&](const Seen& seen) { return !seen.isSameAs(previous); }, "elsewhere");
}

Seen RunningSelvane::focused() const {
    return waitForFocus([](const Seen&) { return true; }, "anywhere");
}

void RunningSelvane::waitFor(const std::function<bool()>& holds, const std::string& what) const {
    try {
        waitUntil(
            [&] {
                if (const auto status = m_program.status())
                    throw std::runtime_error("Selvane ended with status " + std::to_string(*status) + ": " +
                                             m_program.errors());
                return holds();
            },
            what);
    } catch (const std::exception& error) {
        throw std::runtime_error(error.what() + ("\n" + tree()));
    }
}

std::string RunningSelvane::tree() const {
    std::ostringstream out;
    if (const auto all = application())
        print(*all, 0, out);
    return out.str();
}

} // namespace selvane::test
