// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <chrono>
#include <optional>
#include <thread>

#include "chromium/Chromium.h"
#include "end-to-end/Program.h"
#include "support/Home.h"

namespace selvane::test {
namespace {

namespace fs = std::filesystem;

class Installed : public Chromium, public testing::WithParamInterface<std::string> {
protected:
    Installed() { install(program(), GetParam() == "WithBlanks" ? Paths::withBlanks : Paths::plain); }

    static std::string program() { return GetParam() == "AsWrapper" ? kWrapper : kExecutable; }

    /// Launches a profile that is open: its window comes to the front, and nothing else happens.
    void expectRaised(const std::string& id, pid_t pid) const {
        ASSERT_TRUE(soon([&] { return activeWindowOwner() != pid; }));
        const auto mainsBefore = mains();
        const auto windowsBefore = windowOwners();
        EXPECT_EQ(home.run({"launch", id}), Outcome{});
        EXPECT_TRUE(soon([&] { return activeWindowOwner() == pid; })) << activeWindowOwner();
        std::this_thread::sleep_for(std::chrono::seconds(1)); // long enough for another window to appear
        EXPECT_EQ(mains(), mainsBefore);
        EXPECT_EQ(windowOwners(), windowsBefore);
    }

    void expectAllProcessesListed() const {
        const auto all = processes();
        const std::string list = "\n" + home.output({"processes"});
        std::string missing;
        std::size_t count = 0;
        for (const ProcInfo& process : all) {
            if (process.path != kExecutable || !ProcInfo::read(process.pid))
                continue;
            const std::string line = std::to_string(process.pid) + "\t" + process.path + "\n";
            missing += list.find("\n" + line) == std::string::npos ? line : "";
            ++count;
        }
        EXPECT_EQ(missing, "");
        EXPECT_GT(count, mains().size()); // helpers too
    }

    std::optional<Program> byHand;
};

TEST_P(Installed, AccountsAreOpenSideBySide) {
    for (const std::string name : {"Lavoro", "Cliente"})
        home.output({"create", name});
    home.output({"create", "Ospite", "--account", "lavoro"});
    const pid_t lavoro = launched("lavoro", "lavoro");
    const pid_t cliente = launched("cliente", "cliente");
    const std::string lavoroCopy = copy(lavoro, data("lavoro"), configuration("lavoro"));
    const std::string clienteCopy = copy(cliente, data("cliente"), configuration("cliente"));
    EXPECT_EQ(openCopies(), std::set({lavoroCopy, clienteCopy}));
    expectAllProcessesListed();

    EXPECT_TRUE(soon([&] { return activeWindowOwner() == cliente; })) << activeWindowOwner();
    expectRaised("lavoro", lavoro);

    const pid_t ospite = launched("ospite", "lavoro", lavoro);
    EXPECT_FALSE(mains().contains(lavoro));
    EXPECT_EQ(openCopies(), std::set({copy(ospite, data("lavoro"), configuration("ospite")), clienteCopy}));
}

TEST_P(Installed, ACopyStartedByHandIsTheBuiltInProfiles) {
    home.output({"create", "Vicino", "--account", "default"});
    const std::string folder = "--user-data-dir='" + data("default").string() + "'";
    byHand.emplace(std::vector<std::string>{"sh", "-c", "exec " + program() + " " + folder + kArguments},
                   home.environment, home.path());
    const pid_t first = opened("default");
    EXPECT_EQ(first, byHand->pid());
    EXPECT_EQ(openCopies(), std::set({copy(first, data("default"), "~/.claude")}));
    ASSERT_TRUE(soon([&] { return activeWindowOwner() == first; }));
    ASSERT_EQ(home.shell("xdotool getactivewindow windowminimize").status, 0);
    expectRaised("default", first);

    const pid_t vicino = launched("vicino", "default", first);
    EXPECT_FALSE(mains().contains(first));
    EXPECT_EQ(openCopies(), std::set({copy(vicino, data("default"), configuration("vicino"))}));
    const pid_t second = launched("default", "default", vicino);
    EXPECT_EQ(openCopies(), std::set({copy(second, data("default"), "~/.claude")}));
}

INSTANTIATE_TEST_SUITE_P(Chromium, Installed, testing::Values("AsExecutable", "AsWrapper", "WithBlanks"),
                         [](const auto& test) { return test.param; });

TEST_F(Chromium, AProgramThatDropsItsArgumentsIsAnError) {
    const fs::path script = home / "bin/claude-desktop";
    writeFile(script, "#!/bin/sh\nexec " + std::string(kExecutable) + kArguments + "\n");
    fs::permissions(script, fs::perms::owner_all);
    install(script);
    home.output({"create", "Lavoro"});
    const Outcome outcome = home.run({"launch", "lavoro"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out, "");
    EXPECT_TRUE(outcome.err.starts_with("Errore: ")) << outcome;
    EXPECT_TRUE(soon([&] { return fs::is_symlink(data("default") / "SingletonLock"); })); // it did start
}

} // namespace
} // namespace selvane::test
