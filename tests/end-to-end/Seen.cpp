// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "end-to-end/Seen.h"

#include <stdexcept>
#include <string_view>
#include <utility>

namespace selvane::test {
namespace {

template <typename T>
using Owned = std::unique_ptr<T, decltype(&g_object_unref)>;

std::string taken(gchar* text) {
    const std::string result = text == nullptr ? "" : text;
    g_free(text);
    return result;
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

void collect(const Seen& seen, std::vector<Seen>& into) {
    into.push_back(seen);
    for (const Seen& child : seen.children())
        collect(child, into);
}

} // namespace

std::string described(AtspiRole role, const std::string& name) {
    return taken(atspi_role_get_name(role)) + " \"" + name + "\"";
}

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

} // namespace selvane::test
