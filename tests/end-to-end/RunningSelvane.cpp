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

template <typename T>
using Owned = std::unique_ptr<T, decltype(&g_object_unref)>;

std::string taken(gchar* text) {
    const std::string result = text == nullptr ? "" : text;
    g_free(text);
    return result;
}

std::string described(AtspiRole role, const std::string& name) {
    return taken(atspi_role_get_name(role)) + " \"" + name + "\"";
}

/// Which of an object's actions presses it; -1 if none does.
int pressAction(AtspiAction* actions) {
    const int count = actions == nullptr ? 0 : atspi_action_get_n_actions(actions, nullptr);
    for (int i = 0; i < count; ++i) {
        if (taken(atspi_action_get_action_name(actions, i, nullptr)) == "Press")
            return i;
    }
    return -1;
}

/// The first of an object and its descendants that fits. Looking at all of them costs hundreds of messages.
std::optional<Seen> firstOf(const Seen& seen, const std::function<bool(const Seen&)>& fits) {
    if (fits(seen))
        return seen;
    for (const Seen& child : seen.children()) {
        if (const auto found = firstOf(child, fits))
            return found;
    }
    return std::nullopt;
}

void collect(const Seen& seen, std::vector<Seen>& into) {
    into.push_back(seen);
    for (const Seen& child : seen.children())
        collect(child, into);
}

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

guint Seen::processId() const {
    return atspi_accessible_get_process_id(m_object.get(), nullptr);
}

AtspiRole Seen::role() const {
    return atspi_accessible_get_role(m_object.get(), nullptr);
}

std::string Seen::name() const {
    return taken(atspi_accessible_get_name(m_object.get(), nullptr));
}

std::string Seen::description() const {
    return taken(atspi_accessible_get_description(m_object.get(), nullptr));
}

std::string Seen::text() const {
    const Owned<AtspiText> text(atspi_accessible_get_text_iface(m_object.get()), &g_object_unref);
    return text ? taken(atspi_text_get_text(text.get(), 0, -1, nullptr)) : "";
}

bool Seen::isSameAs(const Seen& other) const {
    return std::string_view(m_object->parent.path) == other.m_object->parent.path;
}

gint64 Seen::states() const {
    const Owned<AtspiStateSet> states(atspi_accessible_get_state_set(m_object.get()), &g_object_unref);
    if (!states)
        return 0;
    // With its object at hand the set asks again at each look at it, and before every other question.
    states->accessible = nullptr;
    return states->states;
}

bool Seen::is(AtspiStateType state) const {
    return (((m_states ? *m_states : states()) >> state) & 1) != 0;
}

Seen Seen::withStates() const {
    Seen result = *this;
    result.m_states = states();
    return result;
}

bool Seen::canBePressed() const {
    const Owned<AtspiAction> actions(atspi_accessible_get_action_iface(m_object.get()), &g_object_unref);
    return pressAction(actions.get()) >= 0;
}

void Seen::press() const {
    const Owned<AtspiAction> actions(atspi_accessible_get_action_iface(m_object.get()), &g_object_unref);
    const int action = pressAction(actions.get());
    if (action < 0)
        throw std::runtime_error("can't be pressed: " + name());
    atspi_action_do_action(actions.get(), action, nullptr);
}

std::vector<Seen> Seen::children() const {
    std::vector<Seen> result;
    const int count = atspi_accessible_get_child_count(m_object.get(), nullptr);
    for (int i = 0; i < count; ++i) {
        if (AtspiAccessible* const child = atspi_accessible_get_child_at_index(m_object.get(), i, nullptr))
            result.emplace_back(child);
    }
    return result;
}

std::vector<Seen> Seen::withDescendants() const {
    std::vector<Seen> result;
    collect(*this, result);
    return result;
}

std::ostream& operator<<(std::ostream& out, const Seen& seen) {
    out << described(seen.role(), seen.name());
    if (const std::string description = seen.description(); !description.empty())
        out << " (" << description << ")";
    const std::pair<AtspiStateType, const char*> states[] = {
        {ATSPI_STATE_ACTIVE, "active"},   {ATSPI_STATE_SHOWING, "showing"},
        {ATSPI_STATE_ENABLED, "enabled"}, {ATSPI_STATE_FOCUSABLE, "focusable"},
        {ATSPI_STATE_FOCUSED, "focused"}, {ATSPI_STATE_CHECKED, "checked"}};
    for (const auto& [state, name] : states) {
        if (seen.is(state))
            out << ' ' << name;
    }
    return out << (seen.canBePressed() ? " pressable" : "");
}

RunningSelvane::RunningSelvane(const Environment& environment, const std::filesystem::path& folder,
                               std::vector<std::string> arguments)
    : m_program(commandLine(std::move(arguments)), environment, folder),
      m_listener(atspi_event_listener_new(&hear, this, nullptr)) {
    atspi_event_listener_register(m_listener, kFocusEvent, nullptr);
    // Shortcuts and messages come after the first frame; the layer of messages can be seen.
    const auto look = [&] {
        const auto window = activeWindow();
        return window && firstOf(*window, [](const Seen& seen) { return seen.role() == ATSPI_ROLE_ALERT; });
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
    std::vector<Seen> result;
    for (const Seen& each : window ? window->withDescendants() : std::vector<Seen>{}) {
        if (Seen seen = each.withStates(); seen.is(ATSPI_STATE_SHOWING))
            result.push_back(std::move(seen));
    }
    return result;
}

std::optional<Seen> RunningSelvane::shown(const Seen& window, AtspiRole role, const std::string& name) {
    return firstOf(window, [&](const Seen& seen) {
        return seen.role() == role && seen.name() == name && seen.is(ATSPI_STATE_SHOWING);
    });
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
