// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/process/Workspace.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <stdlib.h>

#include <algorithm>
#include <chrono>
#include <fstream>
#include <functional>
#include <optional>
#include <thread>

#include "platform/process/ProcInfo.h"
#include "support/TemporaryFolder.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

/// Sets a variable of this process for its own lifetime.
class ScopedVariable {
public:
    ScopedVariable(const char* name, const std::string& value) : m_name(name) {
        if (const char* former = ::getenv(name))
            m_former = former;
        ::setenv(name, value.c_str(), 1);
    }
    ScopedVariable(const ScopedVariable&) = delete;
    ScopedVariable& operator=(const ScopedVariable&) = delete;
    ~ScopedVariable() {
        if (m_former)
            ::setenv(m_name, m_former->c_str(), 1);
        else
            ::unsetenv(m_name);
    }

private:
    const char* m_name;
    std::optional<std::string> m_former;
};

/// Real processes, under a name that no other test uses at the same time.
class RunningApplicationTest : public testing::Test {
protected:
    void SetUp() override {
        m_name = "stand-in-" + m_root.filename().string();
        m_identity = {{"example.selvane." + m_name}, m_name};
        m_environment = {{"HOME", m_root}, {"PATH", (m_root / "bin").string() + ":/usr/bin:/bin"}};
        m_executable = m_root / "app" / m_name;
        fs::create_directories(m_root / "bin");
        install(m_executable);
    }

    void TearDown() override {
        for (const ProcInfo& process : processes())
            workspace()->forceTerminate({process.pid, process.startTime});
        EXPECT_TRUE(eventually([this] { return processes().empty(); }));
    }

    static void install(const fs::path& executable) {
        fs::create_directories(executable.parent_path());
        fs::copy_file(SELVANE_STAND_IN, executable);
    }

    static bool eventually(const std::function<bool()>& claim) {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        while (!claim()) {
            if (std::chrono::steady_clock::now() > end)
                return false;
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        return true;
    }

    std::unique_ptr<Workspace> workspace() const { return makeWorkspace(m_identity, m_environment); }

    std::vector<RunningApplication> runningApplications() const {
        return workspace()->running(ProcInfo::all());
    }

    /// All processes that run from the test's folder, including helpers.
    std::vector<ProcInfo> processes() const {
        std::vector<ProcInfo> processes = ProcInfo::all();
        std::erase_if(processes,
                      [this](const ProcInfo& each) { return !each.path.starts_with(m_root.c_str()); });
        return processes;
    }

    /// Opens a copy with the data folder `data` and returns its report once it and its helpers are running.
    nlohmann::json open(const Application& application, OpenConfiguration configuration = {}) {
        const fs::path data = m_root / "data";
        configuration.arguments.insert(configuration.arguments.begin(), "--user-data-dir=" + data.string());
        workspace()->open(application, configuration);
        const bool isReady = eventually(
            [&] { return fs::exists(data / "stand-in.json") && processes().size() == kProcessCount; });
        if (!isReady)
            throw std::runtime_error("the application didn't start");
        return nlohmann::json::parse(std::ifstream(data / "stand-in.json"));
    }

    static constexpr std::size_t kProcessCount = 5; ///< main, zygote, renderer, utility, Node

    test::TemporaryFolder m_folder;
    const fs::path m_root = m_folder.path();
    std::string m_name;
    fs::path m_executable;
    ApplicationIdentity m_identity;
    Environment m_environment;
};

TEST_F(RunningApplicationTest, OpensFromPathAndQuits) {
    fs::create_symlink(m_executable, m_root / "bin" / m_name);
    m_environment["CLAUDE_LAUNCHER_HOME"] = "/elsewhere";
    m_environment["STAND_IN_OPTIONS"] = "--stand-in-keep-title";
    m_environment["XDG_CURRENT_DESKTOP"] = "Example";
    m_environment["GIO_LAUNCHED_DESKTOP_FILE"] = "/usr/share/applications/terminal.desktop";
    m_environment["GIO_LAUNCHED_DESKTOP_FILE_PID"] = "1";
    std::optional<Application> application = workspace()->application();
    ASSERT_TRUE(application);
    EXPECT_EQ(application->executable, m_root / "bin" / m_name);
    EXPECT_EQ(application->folder, m_root / "app");
    EXPECT_TRUE(application->entry.empty());
    EXPECT_TRUE(runningApplications().empty());

    application->arguments = {"--own"};
    OpenConfiguration configuration;
    configuration.arguments = {"", "\xff bytes", std::string(70000, 'x')};
    configuration.environment = {{"CLAUDE_CONFIG_DIR", "/profiles/uno"}};
    configuration.withholds = [](std::string_view name) { return name.starts_with("CLAUDE_LAUNCHER_"); };
    const nlohmann::json told = open(*application, configuration);
    EXPECT_EQ(told["arguments"][0], "--own");
    EXPECT_EQ(told["claudeConfigDir"], "/profiles/uno");
    EXPECT_EQ(told["environment"]["XDG_CURRENT_DESKTOP"], "Example");
    EXPECT_EQ(told["launcherVariables"], nlohmann::json::array());
    EXPECT_EQ(told["streamsAreNull"], true);
    EXPECT_EQ(told["isSessionLeader"], true);
    EXPECT_EQ(told["workingFolder"], m_root.string());

    const std::vector<RunningApplication> running = runningApplications();
    ASSERT_EQ(running.size(), 1U);
    EXPECT_EQ(told["pid"], running[0].pid);
    const std::optional<ProcInfo> process = ProcInfo::read(running[0].pid);
    ASSERT_TRUE(process);
    EXPECT_EQ(process->path, m_executable);
    EXPECT_EQ(std::vector(process->args.end() - 3, process->args.end()), configuration.arguments);
    EXPECT_FALSE(process->env.contains("GIO_LAUNCHED_DESKTOP_FILE"));
    EXPECT_FALSE(process->env.contains("GIO_LAUNCHED_DESKTOP_FILE_PID"));

    workspace()->terminate(running[0]);
    EXPECT_TRUE(eventually([&] { return workspace()->isTerminated(running[0]); }));
    EXPECT_TRUE(runningApplications().empty());
    EXPECT_TRUE(processes().empty());
}

TEST_F(RunningApplicationTest, EndsOneThatRefusesToQuitOnlyByForce) {
    m_environment["STAND_IN_OPTIONS"] = "--stand-in-refuse-quit";
    open({m_executable, {}, {}, m_root / "app", {}});
    const std::vector<RunningApplication> running = runningApplications();
    ASSERT_EQ(running.size(), 1U);

    const RunningApplication earlier{running[0].pid, running[0].startTime - 1};
    EXPECT_TRUE(workspace()->isTerminated(earlier));
    workspace()->forceTerminate(earlier);
    workspace()->terminate(running[0]);
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    EXPECT_EQ(runningApplications(), running);

    workspace()->forceTerminate(running[0]);
    EXPECT_TRUE(eventually([&] { return workspace()->isTerminated(running[0]); }));
    EXPECT_TRUE(eventually([this] { return processes().empty(); }));
}

TEST_F(RunningApplicationTest, IsRecognisedAfterItsExecutableWasReplaced) {
    fs::create_symlink(m_executable, m_root / "bin" / m_name);
    const nlohmann::json told = open({m_executable, {}, {}, m_root / "app", {}});
    fs::remove(m_executable);
    install(m_executable);
    const std::vector<RunningApplication> running = runningApplications();
    ASSERT_EQ(running.size(), 1U);
    EXPECT_EQ(told["pid"], running[0].pid);
    EXPECT_EQ(ProcInfo::read(running[0].pid)->path, m_executable);
}

TEST_F(RunningApplicationTest, IsFoundByTheFirstEntryWhoseProgramIsThere) {
    const fs::path entries = m_root / "share/applications";
    fs::create_directories(entries);
    std::ofstream(entries / "first.desktop")
        << "[Desktop Entry]\nType=Application\nName=A\nExec=/nowhere/app %U\n";
    std::ofstream(entries / "second.desktop")
        << "[Desktop Entry]\nType=Application\nName=B\nPath=/usr\nExec=" << m_name << " --flag=\"a b\" %U\n";
    fs::create_symlink(m_executable, m_root / "bin" / m_name);
    const ScopedVariable data("XDG_DATA_HOME", m_root / "share");
    const ScopedVariable path("PATH", m_environment["PATH"]);
    m_identity.ids = {"first", "absent", "second"};
    const Application expected{
        m_root / "bin" / m_name, {"--flag=a b"}, entries / "second.desktop", m_root / "app", "/usr"};
    EXPECT_EQ(workspace()->application(), expected);
}

TEST_F(RunningApplicationTest, HasNoOwnFolderAmongOtherPrograms) {
    const fs::path link = m_root / "bin" / m_name;
    std::vector<fs::path> places = {m_root, m_root / ".local/bin", m_root / "games", m_root / "Images"};
    for (const fs::path& place : places) {
        fs::create_directories(place);
        fs::remove(link);
        fs::create_symlink(place / "program", link);
        std::ofstream(place / "program") << (place.filename() == "Images" ? std::string("\x7f"
                                                                                        "ELF\2\1\1\0AI\2",
                                                                                        11)
                                                                          : "#!/bin/sh\n");
        fs::permissions(place / "program", fs::perms::owner_all);
        const auto application = workspace()->application();
        ASSERT_TRUE(application) << place;
        EXPECT_EQ(application->folder, fs::path()) << place;
    }
    fs::permissions(places.back() / "program", fs::perms::owner_read);
    EXPECT_FALSE(workspace()->application());
}

} // namespace
} // namespace selvane
