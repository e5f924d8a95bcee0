// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "desktop/ClaudeApp.h"

#include <gtest/gtest.h>

#include "support/Home.h"
#include "support/RunningProcess.h"
#include "support/WaitWatch.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using namespace test;
using enum ClaudeApp::QuitKind;
using Texts = std::vector<std::string>;
using Pids = std::vector<std::int32_t>;

ProcInfo process(std::int32_t pid, std::int32_t ppid, const std::string& path, const Texts& args = {}) {
    ProcInfo result;
    result.pid = pid;
    result.ppid = ppid;
    result.path = path;
    result.args = args;
    return result;
}

Pids pidsOf(const std::vector<ProcInfo>& processes) {
    Pids pids;
    for (const ProcInfo& each : processes)
        pids.push_back(each.pid);
    return pids;
}

TEST(ClaudeApp, processesOf_Rules_TellWhoBelongs) {
    const std::vector<ProcInfo> all = {process(99, 30, "/bin/late"),
                                       process(1, 0, "/sbin/init"),
                                       process(10, 1, "/opt/claude"),
                                       process(30, 10, "/bin/child"),
                                       process(40, 1, "/a/b/bin/tool"),
                                       process(41, 1, "/a/bc/tool"),
                                       process(50, 1, "/bin/x", {"--log=/a/b/log"}),
                                       process(51, 1, "/bin/x", {"y", "--something=/a/b"}),
                                       process(52, 1, "/bin/x", {"/a/bc", "/a/b", "=/a/b ", "=/x/a/b"}),
                                       process(70, 1, "/c", {"/c --type=x --user-data-dir=/a/b --lang=it"}),
                                       process(71, 1, "/c", {"/c --type=x --user-data-dir=/a/b 2 --lang=it"}),
                                       process(80, 1, "/bin/tail", {"tail", "-f", "/a/b/main.log"}),
                                       process(81, 1, "/bin/bash", {"sh", "-e", "/a/b/x.sh", "y"}),
                                       process(82, 1, "/bin/bash", {"sh", "/x.sh", "/a/b/y"}),
                                       process(60, 61, "/bin/loop"),
                                       process(61, 60, "/bin/loop")};
    const DataFolders folders("/normal", "/a", {"b", "b 2"});
    EXPECT_EQ(pidsOf(processesOf("/a/b", {10}, all, folders)), (Pids{99, 10, 30, 40, 50, 51, 70, 81}));
    std::vector<ProcInfo> chain;
    for (std::int32_t generation = 0; generation <= 33; ++generation)
        chain.push_back(process(generation, generation - 1, "/bin/x"));
    EXPECT_EQ(processesOf("/a/b", {0}, chain, folders),
              std::vector<ProcInfo>(chain.begin(), chain.begin() + 32))
        << "31 ancestors";
}

TEST(ClaudeApp, quit_EachOutcome_TakesItsTime) {
    const struct {
        ClaudeApp::QuitKind kind;
        int copies;
        int ignored; ///< polite requests ignored
        bool until;
        bool result;
        std::chrono::milliseconds took;
    } cases[] = {{polite, 0, 0, true, true, 0ms},    {polite, 2, 0, true, true, 0ms},
                 {polite, 2, 1, true, false, 750ms}, {polite, 2, 0, false, false, 750ms},
                 {forced, 2, 9, true, true, 0ms},    {forced, 1, 0, false, false, 3s}};
    for (const auto& [kind, copies, ignored, until, result, took] : cases) {
        Home home;
        home.workspace.terminationsIgnored = ignored;
        std::vector<ClaudeApp::Instance> instances;
        for (std::int32_t pid = 7; pid < 7 + copies; ++pid) {
            home.workspace.apps.push_back({pid, 1});
            instances.push_back({{pid, 1}, "", {}});
        }
        EXPECT_EQ(home.claude.quit(instances, kind, 600ms,
                                   [&, answer = until] {
                                       EXPECT_TRUE(home.workspace.apps.empty())
                                           << "asked only when all have ended";
                                       return answer;
                                   }),
                  result);
        EXPECT_EQ(home.clock.time.time_since_epoch(), took) << copies;
        const auto& asked = kind == polite ? home.workspace.terminated : home.workspace.forced;
        EXPECT_EQ(asked.size(), instances.size());
        EXPECT_EQ(home.workspace.terminated.size() + home.workspace.forced.size(), instances.size());
    }
}

TEST(ClaudeApp, launch_EachKindOfProfile_PassesWhatItNeeds) {
    Home home;
    const Profile own = home.make("Lavoro"), guest = home.store.create(request("Ospite", {}, "default"));
    const fs::path data = home.store.desktopStore() / "lavoro";
    writeTree(home.path, {{".claude/skills/uno", ""},
                          {".claude-profiles/.desktop-data/default/Cookies", "mine"},
                          {".claude-profiles/.desktop-data/.live", "lavoro"},
                          {".config/Claude/claude-code-sessions/a/b", "/"},
                          {".claude-profiles/lavoro/.pending-sessions/local_1.json", "{}"}});
    home.workspace.whenOpening = [&] { // everything is prepared by now
        EXPECT_TRUE(isLocked(home.store.desktopStore())) << "the next launch must find this copy";
        EXPECT_TRUE(fs::is_symlink(own.configDir / "skills/uno"));
        EXPECT_EQ(readFile(data / "claude-code-sessions/a/b/local_1.json"), "{}")
            << "in its account's own folder again";
        EXPECT_EQ(treeOf(home.store.liveDesktopDir()), (Tree{{"Cookies", "mine"}}));
    };
    for (const Profile& profile : {own, guest, home.builtIn()}) {
        home.claude.launch(profile, home.store);
        const OpenConfiguration& opening = home.workspace.openings.back();
        EXPECT_EQ(opening.arguments, profile == own ? Texts{"--user-data-dir=" + data.string()} : Texts{})
            << profile.id;
        EXPECT_EQ(opening.environment, profile.isDefault()
                                           ? Environment{}
                                           : (Environment{{"CLAUDE_CONFIG_DIR", profile.configDir}}))
            << profile.id;
        for (const char* withheld : {"CLAUDE_CONFIG_DIR", "CLAUDE_LAUNCHER_ROOT", "ELECTRON_RUN_AS_NODE"})
            EXPECT_TRUE(opening.withholds(withheld)) << withheld;
        EXPECT_FALSE(opening.withholds("XDG_CURRENT_DESKTOP"));
        EXPECT_EQ(home.store.activeID(), profile.id);
        EXPECT_TRUE(home.store.profile(profile.id)->meta.lastLaunched);
    }
}

TEST(ClaudeApp, SignInLink_OfAnotherKind_IsRefused) {
    for (const std::string text : {"", "claude:", "https://claude.ai/x", "claude", " claude://x",
                                   "claude://x y", "claude://x\n", "claude://\xC3\xA8", "--user-data-dir=/x"})
        EXPECT_FALSE(SignInLink::from(text)) << text;
    EXPECT_FALSE(SignInLink::from("claude:" + std::string(20000, 'x')));
    for (const auto& [text, shown] :
         std::map<std::string, std::string>{{"claude://login/callback?code=s3cret#s3cret", "claude://login"},
                                            {"CLAUDE://s3cret@host?s3cret", "claude://host"},
                                            {"claude:s3cret", "claude:"}}) {
        const auto link = SignInLink::from(text);
        ASSERT_TRUE(link) << text;
        EXPECT_EQ(link->secretText(), text);
        EXPECT_EQ(link->shown(), shown);
    }
}

TEST(ClaudeApp, passOn_ToACopy_StartsItsLikeWithTheLink) {
    Home home(Home::Processes::seen);
    const Profile own = home.make("Lavoro"), other = home.make("Altro");
    const auto link = SignInLink::from("claude://login?code=1");
    EXPECT_EQ(home.store.signInTargets().targets.size(), 3) << "none is open: any account can be launched";
    home.store.markLaunched(other);
    EXPECT_EQ(home.store.signInTargets().targets.at(home.store.signInTargets().preset).profile.id, "altro");
    writeFile(home.store.desktopDataDir(other) / "claude-code-sessions/a/b/local_1.json", "{}");
    home.store.changeMeta(own,
                          [](ProfileMeta& meta) { meta.lastLaunched = Timestamp(std::chrono::seconds(1)); });
    const RunningProcess plain({}, {});
    home.workspace.apps = {plain.app()};
    const SignInTargets one = home.store.signInTargets();
    EXPECT_FALSE(one.mustAsk());
    EXPECT_EQ(one.targets.at(0).profile.id, "default");
    const RunningProcess copy({"--user-data-dir=" + home.store.desktopDataDir(own).string()},
                              {{"CLAUDE_CONFIG_DIR", own.configDir.string()}});
    const RunningProcess signedIn({"--user-data-dir=" + home.store.desktopDataDir(other).string()},
                                  {{"CLAUDE_CONFIG_DIR", other.configDir.string()}});
    home.workspace.apps = {signedIn.app(), plain.app(), copy.app()};
    const SignInTargets three = home.store.signInTargets();
    ASSERT_EQ(three.targets.size(), 3);
    EXPECT_EQ(three.targets.at(three.preset).profile.id, "lavoro") << "not signed in, launched last of those";

    for (const SignInTarget& target : three.targets) {
        home.claude.passOn(*link, *target.copy, home.store.liveDesktopDir());
        const OpenConfiguration& opening = home.workspace.openings.back();
        const std::string data = "--user-data-dir=" + home.store.desktopDataDir(target.profile).string();
        const bool isPlain = target.profile.isDefault();
        EXPECT_EQ(opening.arguments, isPlain ? Texts{link->secretText()} : (Texts{data, link->secretText()}));
        EXPECT_EQ(opening.environment,
                  isPlain ? Environment{} : (Environment{{"CLAUDE_CONFIG_DIR", target.profile.configDir}}));
        EXPECT_TRUE(opening.withholds("CLAUDE_CONFIG_DIR"));
    }
    const std::string unknown = messageOf([&] {
        home.claude.passOn(*link, {plain.app(), "", {}, false}, "/x");
    });
    EXPECT_TRUE(!unknown.empty() && unknown.find("code") == unknown.npos) << "no secret in " << unknown;
    home.workspace.terminate(plain.app());
    EXPECT_NE(messageOf([&] { home.claude.passOn(*link, {plain.app(), "/x", {}, true}, "/x"); }), "");
}

TEST(ClaudeApp, launch_NotPossible_IsNotRecorded) {
    Home home(Home::Processes::seen);
    const Profile profile = home.make("Lavoro");
    writeFile(home / ".claude/skills/uno.md", "");
    home.store.restoreDesktopData(); // creates the store of accounts
    const Tree before = treeOf(home.path);
    const auto refusal = [&] { return messageOf([&] { home.claude.launch(profile, home.store); }); };
    home.workspace.installed.reset();
    EXPECT_EQ(refusal(), "Claude.app non trovata. Installala in /Applications.");
    home.workspace = {};
    {
        std::optional<RunningProcess> copy; // is opened by another launch, which has the lock until then
        const WaitWatch watch(WaitWatch::For::lock, [&](const fs::path& folder) {
            if (folder == home.store.desktopStore())
                copy.emplace(Texts{"--user-data-dir=" + home.store.desktopDataDir(profile).string()},
                             Environment{});
        });
        EXPECT_EQ(refusal(), "L'account di «Lavoro» è già aperto in Claude: chiudilo prima.");
    }
    EXPECT_EQ(treeOf(home.path), before) << "refused before anything is written";
    home.workspace.refusesToOpen = true;
    EXPECT_EQ(refusal(), "refused");
    EXPECT_EQ(fs::status(home.store.desktopDataDir(profile)).permissions(), fs::perms::owner_all);
    EXPECT_FALSE(home.store.activeID() || home.store.profile("lavoro")->meta.lastLaunched);
}

} // namespace
} // namespace selvane
