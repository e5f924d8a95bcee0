// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <exception>
#include <string>
#include <utility>

namespace selvane {

/// Collects what callbacks deliver while another module calls them. No exception may cross its border, so one
/// that a callback throws waits here until the call has returned.
template <typename Value>
class Received {
public:
    Received() = default;
    explicit Received(Value value) : m_value(std::move(value)) {}

    /// For the callbacks: runs `act(value)` on the `Received` that `context` points to; nothing after a
    /// failure.
    template <typename Act>
    static void add(void* context, Act act) noexcept {
        Received& self = *static_cast<Received*>(context);
        if (self.m_failure)
            return;
        try {
            act(self.m_value);
        } catch (...) {
            self.m_failure = std::current_exception();
        }
    }

    /// After the call: what was collected. Throws what a callback threw.
    Value take() {
        if (m_failure)
            std::rethrow_exception(m_failure);
        return std::move(m_value);
    }

private:
    Value m_value{};
    std::exception_ptr m_failure;
};

/// A `ByteSink` whose context is a `Received<std::string>`.
inline void appendBytes(void* context, const char* bytes, std::size_t count) noexcept {
    Received<std::string>::add(context, [&](std::string& text) { text.append(bytes, count); });
}

} // namespace selvane
