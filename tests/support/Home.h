// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/process/Clock.h"
#include "platform/process/Workspace.h"
#include "store/ProfileStore.h"
#include "support/TemporaryFolder.h"

namespace selvane::test {

/// The entries below a folder: the text of a file, "-> target" for a link, "/" for a folder.
using Tree = std::map<std::string, std::string>;

constexpr std::filesystem::perms kOwnerOnly =
    std::filesystem::perms::owner_read | std::filesystem::perms::owner_write;

void makePrivate(const std::filesystem::path& folder); ///< private to its owner; created if missing
void writeFile(const std::filesystem::path& file, const std::string& content); ///< creates its folders too
void writeTree(const std::filesystem::path& folder, const Tree& tree);         ///< adds to what is there
std::string readFile(const std::filesystem::path& file);                       ///< "" if missing
Tree treeOf(const std::filesystem::path& folder);                              ///< empty if missing

/// A desktop that runs only what a test puts there, and records what it is asked to do.
struct FakeWorkspace final : Workspace {
    std::optional<Application> installed = Application{"/opt/claude/claude-desktop", {}, {}, {}, {}};
    std::vector<RunningApplication> apps;
    bool refusesToOpen = false;
    std::function<void()> whenOpening = [] {};
    int terminationsIgnored = 0; ///< how many polite requests do nothing
    std::function<void()> whenEnded = [] {};

    std::vector<OpenConfiguration> openings;
    std::vector<std::int32_t> terminated;
    std::vector<std::int32_t> forced;
    std::vector<std::int32_t> activated;
    bool canActivate = true;

    std::optional<Application> application() override { return installed; }
    std::vector<RunningApplication> running(const std::vector<ProcInfo>&) override { return apps; }
    OpenedApplication open(const Application&, const OpenConfiguration& configuration) override;
    void terminate(const RunningApplication& app) override;
    void forceTerminate(const RunningApplication& app) override;
    bool isTerminated(const RunningApplication& app) override;
    bool activate(const RunningApplication& app) override {
        activated.push_back(app.pid);
        return canActivate;
    }
};

/// Time that passes only by sleeping, and then `speed` times as fast.
struct FakeClock final : Clock {
    /// For what looks at the processes of the machine, which takes long, whenever it wakes.
    static constexpr int kFast = 20;

    explicit FakeClock(int times = 1) : speed(times) {}

    const int speed;
    std::chrono::steady_clock::time_point time;

    std::chrono::steady_clock::time_point now() override { return time; }
    void sleep(std::chrono::milliseconds duration) override;
};

/// A request for a profile that takes from `from` in the default modes.
NewProfile request(const std::string& name, const std::optional<Profile>& from = {},
                   const std::optional<std::string>& account = {});

/// A home folder with a store, and an empty Trash. In test mode unless told otherwise.
struct Home {
    enum class Processes { ignored, seen };
    explicit Home(Processes processes = Processes::ignored, const std::string& name = "home");

    TemporaryFolder folder;
    std::filesystem::path path;
    FakeWorkspace workspace;
    FakeClock clock;
    ClaudeApp claude;
    ProfileStore store;

    std::filesystem::path operator/(const std::filesystem::path& below) const { return path / below; }
    Profile builtIn() const { return *store.profile(Profile::kDefaultId); }
    /// Creates a profile that takes everything from the built-in one.
    Profile make(const std::string& name, const std::map<Component, ShareMode>& modes = {});
};

/// The message of the error that an operation throws; "" if it doesn't.
std::string messageOf(const std::function<void()>& operation);

/// What has been moved to the Trash since the last call, or since the newest home was created.
Tree takeTrash();

} // namespace selvane::test
