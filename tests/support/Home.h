// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/Clock.h"
#include "platform/Workspace.h"
#include "store/ProfileStore.h"
#include "support/TemporaryFolder.h"

namespace selvane::test {

void writeFile(const std::filesystem::path& file, const std::string& content); ///< makes its folders too
std::string readFile(const std::filesystem::path& file);                      ///< "" when it isn't there
/// Every entry below a folder with what it is: "text" of a file, "-> target" of a link, "/" of a folder.
std::map<std::string, std::string> treeOf(const std::filesystem::path& folder);

/// A desktop that runs nothing but what a test says, and records what it is asked to do.
struct FakeWorkspace final : Workspace {
    std::optional<Application> installed = Application{.executable = "/opt/claude/claude-desktop"};
    std::vector<RunningApplication> apps;
    int terminationsIgnored = 0; ///< polite requests that do nothing

    struct Opening {
        std::vector<std::string> arguments;
        Environment environment;
    };
    std::vector<Opening> openings;
    std::vector<std::int32_t> terminated;
    std::vector<std::int32_t> forced;
    std::vector<std::int32_t> activated;

    std::optional<Application> application() override { return installed; }
    std::vector<RunningApplication> running() override { return apps; }
    void open(const Application&, const OpenConfiguration& configuration) override;
    void terminate(const RunningApplication& app) override;
    void forceTerminate(const RunningApplication& app) override;
    bool isTerminated(const RunningApplication& app) override;
    void activate(const RunningApplication& app) override { activated.push_back(app.pid); }
};

/// Time that passes only by sleeping.
struct FakeClock final : Clock {
    std::chrono::steady_clock::time_point time;
    int sleeps = 0;

    std::chrono::steady_clock::time_point now() override { return time; }
    void sleep(std::chrono::milliseconds duration) override;
};

/// A home folder of its own with a store on it. In test mode unless told otherwise.
struct Home {
    enum class Processes { ignored, seen };
    explicit Home(Processes processes = Processes::ignored);

    TemporaryFolder folder;
    FakeWorkspace workspace;
    FakeClock clock;
    ClaudeApp claude{workspace, clock};
    ProfileStore store;

    std::filesystem::path operator/(const std::filesystem::path& path) const { return folder / path; }
    Profile builtIn() const { return *store.profile(Profile::kDefaultId); }
    /// A new profile that takes everything from the built-in one.
    Profile make(const std::string& name, const std::map<Component, ShareMode>& modes = {});
};

/// The texts of everything of that name in the Trash.
std::vector<std::string> trashed(const std::string& name);

} // namespace selvane::test
