// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "end-to-end/Seen.h"

#include <algorithm>
#include <functional>
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

constexpr const char* kAccessible = "org.a11y.atspi.Accessible";

/// Sends a question and doesn't wait for the answer; null if that isn't possible.
DBusPendingCall* sent(const AtspiObject& object, const char* interface, const char* method,
                      const char* property) {
    const std::unique_ptr<DBusMessage, decltype(&dbus_message_unref)> question(
        dbus_message_new_method_call(object.app->bus_name, object.path, interface, method),
        &dbus_message_unref);
    if (property != nullptr)
        dbus_message_append_args(question.get(), DBUS_TYPE_STRING, &kAccessible, DBUS_TYPE_STRING, &property,
                                 DBUS_TYPE_INVALID);
    DBusPendingCall* pending = nullptr;
    dbus_connection_send_with_reply(object.app->bus, question.get(), &pending, DBUS_TIMEOUT_USE_DEFAULT);
    return pending;
}

/// The elements of an answer, or of an array or structure in it.
class Elements {
public:
    explicit Elements(DBusMessage* message) {
        if (message != nullptr && dbus_message_get_type(message) == DBUS_MESSAGE_TYPE_METHOD_RETURN)
            m_isThere = dbus_message_iter_init(message, &m_iterator) != FALSE;
    }
    Elements inner() {
        Elements result(nullptr);
        if (m_isThere)
            dbus_message_iter_recurse(&m_iterator, &result.m_iterator);
        result.m_isThere =
            m_isThere && dbus_message_iter_get_arg_type(&result.m_iterator) != DBUS_TYPE_INVALID;
        return result;
    }
    bool isThere() const { return m_isThere; }
    /// The present one, if there is one; goes on to the next.
    template <typename Value>
    Value take() {
        Value value{};
        if (m_isThere)
            dbus_message_iter_get_basic(&m_iterator, &value);
        next();
        return value;
    }
    void next() { m_isThere = m_isThere && dbus_message_iter_next(&m_iterator) != FALSE; }

private:
    DBusMessageIter m_iterator{};
    bool m_isThere = false;
};

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

bool Seen::is(AtspiStateType state) const {
    return m_states ? ((*m_states >> state) & 1) != 0 : withStates({*this}).front().is(state);
}

bool Seen::isGone() const {
    return withStates({*this}).front().m_states == 0; // anything there has some
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

std::vector<Seen::Message> Seen::answers(const std::vector<Seen>& some, const char* interface,
                                         const char* method, const char* property) {
    std::vector<DBusPendingCall*> questions;
    for (const Seen& each : some)
        questions.push_back(sent(each.m_object->parent, interface, method, property));
    std::vector<Message> answers;
    for (DBusPendingCall* const question : questions) {
        answers.emplace_back(nullptr, &dbus_message_unref);
        if (question == nullptr)
            continue;
        dbus_pending_call_block(question);
        answers.back().reset(dbus_pending_call_steal_reply(question));
        dbus_pending_call_unref(question);
    }
    return answers;
}

std::vector<Seen> Seen::childrenIn(const Message& answer) const {
    std::vector<Seen> children;
    for (Elements list = Elements(answer.get()).inner(); list.isThere(); list.next()) {
        Elements reference = list.inner();
        reference.next(); // the application, which is the same
        auto* const child = static_cast<AtspiAccessible*>(g_object_new(ATSPI_TYPE_ACCESSIBLE, nullptr));
        child->parent.app = static_cast<AtspiApplication*>(g_object_ref(m_object->parent.app));
        child->parent.path = g_strdup(reference.take<const char*>());
        children.emplace_back(child);
    }
    return children;
}

std::vector<Seen> Seen::gathered(bool onlyShown) const {
    const auto counts = [&](const Seen& seen) { return !onlyShown || seen.is(ATSPI_STATE_SHOWING); };
    std::vector<Seen> found = {*this}; // level by level
    std::vector<std::vector<std::size_t>> below(1);
    for (std::size_t at = 0; at < found.size();) {
        std::vector<Seen> level(found.begin() + static_cast<std::ptrdiff_t>(at), found.end());
        if (onlyShown)
            level = withStates(std::move(level));
        std::ranges::copy(level, found.begin() + static_cast<std::ptrdiff_t>(at));
        std::erase_if(level, std::not_fn(counts));
        const std::vector<Message> replies = answers(level, kAccessible, "GetChildren");
        auto reply = replies.begin();
        for (const std::size_t end = found.size(); at < end; ++at) {
            if (!counts(found[at]))
                continue;
            for (const Seen& child : found[at].childrenIn(*reply++)) {
                below[at].push_back(found.size());
                found.push_back(child);
                below.emplace_back();
            }
        }
    }
    std::vector<Seen> result;
    const std::function<void(std::size_t)> add = [&](std::size_t index) {
        if (!counts(found[index]))
            return;
        result.push_back(found[index]);
        std::ranges::for_each(below[index], add);
    };
    add(0);
    return result;
}

std::vector<Seen> Seen::withDescendants() const {
    return gathered(false);
}

std::vector<Seen> Seen::shown() const {
    return gathered(true);
}

std::vector<AtspiRole> Seen::rolesOf(const std::vector<Seen>& some) {
    std::vector<AtspiRole> roles;
    for (const Message& answer : answers(some, kAccessible, "GetRole"))
        roles.push_back(static_cast<AtspiRole>(Elements(answer.get()).take<dbus_uint32_t>()));
    return roles;
}

std::vector<std::string> Seen::namesOf(const std::vector<Seen>& some) {
    std::vector<std::string> names;
    for (const Message& answer : answers(some, DBUS_INTERFACE_PROPERTIES, "Get", "Name")) {
        const auto* const name = Elements(answer.get()).inner().take<const char*>();
        names.emplace_back(name == nullptr ? "" : name);
    }
    return names;
}

std::vector<Seen> Seen::withStates(std::vector<Seen> some) {
    auto each = some.begin();
    for (const Message& answer : answers(some, kAccessible, "GetState")) {
        Elements words = Elements(answer.get()).inner();
        const auto low = words.take<dbus_uint32_t>();
        (each++)->m_states = static_cast<gint64>(words.take<dbus_uint32_t>()) << 32 | low;
    }
    return some;
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
