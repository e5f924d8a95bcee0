// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace selvane {

/// A link with which the browser ends a sign-in to Claude Desktop. It holds a secret: it is only ever passed
/// on, as it is, and never written to a file or into a message.
class SignInLink {
public:
    /// Nothing unless `text` is a link of the scheme `claude` in printable ASCII, of at most 16 KiB.
    static std::optional<SignInLink> from(std::string_view text);

    const std::string& secretText() const { return m_text; } ///< the whole link
    /// What may be shown: scheme and host, such as "claude://login".
    std::string shown() const;

private:
    explicit SignInLink(std::string_view text) : m_text(text) {}

    std::string m_text;
};

} // namespace selvane
