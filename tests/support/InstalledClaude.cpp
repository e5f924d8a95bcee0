// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "support/InstalledClaude.h"

#include <chrono>
#include <gtest/gtest.h>
#include <signal.h>
#include <stdexcept>
#include <thread>

#include "platform/process/ProcInfo.h"
#include "support/Home.h"

namespace selvane::test {

namespace fs = std::filesystem;

void waitUntil(const std::function<bool()>& holds, const std::string& what) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(40);
    while (!holds()) {
        if (std::chrono::steady_clock::now() > deadline)
            throw std::runtime_error("took too long: " + what);
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
}

InstalledClaude::InstalledClaude() {
    writeFile(home / ".claude/settings.json", "{}");
    installAs("claude-desktop");
    writeEntry(program.string() + " --password-store=basic %U");
}

InstalledClaude::~InstalledClaude() {
    while (!pids().empty()) {
        for (const std::int32_t pid : pids())
            kill(pid, SIGKILL);
    }
}

void InstalledClaude::installAs(const std::string& name) {
    program = home / "app/claude" / name;
    fs::create_directories(program.parent_path());
    fs::copy_file(SELVANE_STAND_IN, program);
    fs::remove(program.parent_path() / "chrome_crashpad_handler");
    fs::create_hard_link(program, program.parent_path() / "chrome_crashpad_handler");
}

void InstalledClaude::writeEntry(const std::string& command) const {
    writeFile(home / ".local/share/applications/com.anthropic.Claude.desktop",
              "[Desktop Entry]\nType=Application\nName=Claude\nExec=" + command + "\n");
}

std::vector<std::int32_t> InstalledClaude::pids() const {
    std::vector<std::int32_t> result;
    for (const ProcInfo& process : ProcInfo::all()) {
        if (process.path.starts_with(home.path().string() + "/"))
            result.push_back(process.pid);
    }
    return result;
}

Json InstalledClaude::opened(const fs::path& data, const Json& previous) const {
    Json report;
    waitUntil(
        [&] {
            const std::string text = readFile(data / "stand-in.json");
            report = text.empty() ? Json() : json::parse(text, data);
            return isOpen(report) && (previous.is_null() || report["pid"] != previous["pid"]);
        },
        "Claude Desktop in " + data.string());
    return report;
}

Json InstalledClaude::launch(const std::string& id, const fs::path& data) const {
    EXPECT_EQ(home.run({"launch", id}), Outcome{}) << id;
    return opened(data);
}

bool InstalledClaude::isOpen(const Json& report) {
    return !report.is_null() && ProcInfo::read(report["pid"]);
}

void InstalledClaude::quit(const Json& report) {
    kill(report["pid"], SIGTERM);
    waitUntil([&] { return !isOpen(report); });
}

} // namespace selvane::test
