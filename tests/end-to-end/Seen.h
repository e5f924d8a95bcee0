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

} // namespace selvane::test
