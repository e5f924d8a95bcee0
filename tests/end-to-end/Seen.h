// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <atspi/atspi.h>

#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace selvane::test {

/// How messages call an object.
std::string described(AtspiRole role, const std::string& name);

/// An object in a window as a screen reader sees it. Once gone, it has no name, states or children.
class Seen {
public:
    explicit Seen(AtspiAccessible* owned) : m_object(owned, &g_object_unref) {}

    AtspiRole role() const;
    std::string name() const;
    std::string description() const;
    std::string text() const; ///< the contents of a field
    bool is(AtspiStateType state) const;
    bool isGone() const; ///< by now
    guint processId() const;
    bool isSameAs(const Seen& other) const;
    bool canBePressed() const;
    void press() const; ///< as assistive technology does
    std::vector<Seen> children() const;
    /// Itself first, each before what it contains. As for the following, all are asked at once, because a
    /// question takes mostly waiting.
    std::vector<Seen> withDescendants() const;
    /// The same without what isn't shown, with their states at this moment, which cost nothing to ask for.
    std::vector<Seen> shown() const;
    static std::vector<AtspiRole> rolesOf(const std::vector<Seen>& some);
    static std::vector<std::string> namesOf(const std::vector<Seen>& some);

    friend std::ostream& operator<<(std::ostream& out, const Seen& seen);

private:
    using Message = std::unique_ptr<DBusMessage, decltype(&dbus_message_unref)>;

    /// Each object's answer to the same question; an error or null if the object is gone.
    static std::vector<Message> answers(const std::vector<Seen>& some, const char* interface,
                                        const char* method, const char* property = nullptr);
    std::vector<Seen> childrenIn(const Message& answer) const;
    std::vector<Seen> gathered(bool onlyShown) const;
    static std::vector<Seen> withStates(std::vector<Seen> some);

    std::shared_ptr<AtspiAccessible> m_object;
    std::optional<gint64> m_states;
};

} // namespace selvane::test
