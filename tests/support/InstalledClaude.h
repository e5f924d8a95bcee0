// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "platform/json/Json.h"
#include "support/Command.h"

namespace selvane::test {

/// Waits until the condition holds. After 40 s, throws and names what it was waiting for.
void waitUntil(const std::function<bool()>& holds, const std::string& what = "what should happen");

/// A home with the stand-in installed as Claude Desktop. All its processes end with this object.
class InstalledClaude {
public:
    InstalledClaude();
    InstalledClaude(const InstalledClaude&) = delete;
    InstalledClaude& operator=(const InstalledClaude&) = delete;
    ~InstalledClaude();

    void installAs(const std::string& name);
    void writeEntry(const std::string& command) const;

    /// The pids of all processes that run from inside this home.
    std::vector<std::int32_t> pids() const;
    /// Waits for the copy that uses this data folder and isn't `previous`. Returns how it was started.
    Json opened(const std::filesystem::path& data, const Json& previous = {}) const;
    /// Launches a profile by its command. Returns how Claude Desktop was started in that data folder.
    Json launch(const std::string& id, const std::filesystem::path& data) const;
    static bool isOpen(const Json& report);
    static void quit(const Json& report);

    std::filesystem::path profile(const std::string& id) const { return home / ".claude-profiles" / id; }

    CommandHome home;
    std::filesystem::path program;
    const std::filesystem::path normalData = home / ".config/Claude";
    const std::filesystem::path lavoroData = home / ".claude-profiles/.desktop-data/lavoro";
};

} // namespace selvane::test
