// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>

#include "platform/process/Process.h"

namespace selvane {

/// Whether Selvane receives the links with which the browser ends a sign-in (see `SignInLink`). If so, there
/// is a hidden desktop entry of the user's own, which is the default for them. Linux only. Without Selvane
/// the entry counts as missing, so that the links go to Claude Desktop again.
class SignInHandler {
public:
    explicit SignInHandler(const Environment& environment);

    /// Whether the entry is there and the default. Never fails.
    bool isOn() const;
    /// Writes the entry, which starts `program` (an absolute path) with the link as its argument, remembers
    /// in it who had the links before, and makes it the default. Doing so again only names another program.
    /// Throws if the program isn't there, or if something can't be written; then the links go where they
    /// went.
    void turnOn(const std::filesystem::path& program) const;
    /// Gives the links back to who had them, and removes the entry. If somebody else has them by now, only
    /// removes the entry.
    void turnOff() const;

private:
    std::string former() const;

    std::filesystem::path m_entry;
};

} // namespace selvane
