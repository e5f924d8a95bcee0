// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>
#include <sstream>

#include "platform/process/ProcInfo.h"
#include "support/Home.h"
#include "support/InstalledClaude.h"

namespace selvane::test {
namespace {

namespace fs = std::filesystem;

class CommandLaunch : public testing::Test, protected InstalledClaude {
protected:
    /// The lines of a command's output about this home: others may have Claude Desktop open too.
    std::string lines(const std::string& command, const std::string& beginning = "") const {
        std::istringstream output(home.output({command}));
        std::string result;
        for (std::string line; std::getline(output, line);) {
            if (line.starts_with(beginning) && line.find(home.path()) != std::string::npos)
                result += line + "\n";
        }
        return result;
    }
    std::vector<fs::path> notes() const {
        std::vector<fs::path> notes;
        for (const auto& entry : fs::directory_iterator(home.environment.at("XDG_RUNTIME_DIR") + "/selvane"))
            notes.push_back(entry.path());
        return notes;
    }
    std::string openLine(const Json& report, const fs::path& data, const std::string& config) const {
        return "aperto pid=" + report["pid"].dump() + "\tdati=" + data.string() + "\tconfig=" + config + "\n";
    }
};

TEST_F(CommandLaunch, EachProfileGetsItsFoldersAndNothingOfOurs) {
    home.environment["CLAUDE_CONFIG_DIR"] = "/altrove";
    home.environment["CLAUDE_LAUNCHER_DEFAULT_JSON"] = (home / "stato.json").string();
    home.environment["XDG_CURRENT_DESKTOP"] = "GNOME";
    home.output({"create", "Lavoro", "--from", "default"});
    writeFile(home / ".claude/skills/nuova", "");
    for (const std::string id : {"default", "lavoro"}) {
        const fs::path data = id == "default" ? normalData : lavoroData;
        const Json report = launch(id, data);
        Json arguments = {"--password-store=basic"};
        if (id == "lavoro")
            arguments.push_back("--user-data-dir=" + data.string());
        EXPECT_EQ(report["arguments"], arguments);
        EXPECT_EQ(report["claudeConfigDir"], id == "default" ? Json() : Json(profile(id).string()));
        EXPECT_EQ(report["launcherVariables"], Json::array());
        EXPECT_EQ(report["environment"]["XDG_CURRENT_DESKTOP"], "GNOME");
        EXPECT_EQ(report["streamsAreNull"], true);
        EXPECT_EQ(report["isSessionLeader"], true);
        EXPECT_EQ(readFile(home / ".claude-profiles/.active"), id);
    }
    EXPECT_TRUE(fs::is_symlink(profile("lavoro") / "skills/nuova"));
}

TEST_F(CommandLaunch, FromAMenu_TheWindowsAskAndTell) {
    home.output({"create", "Ospite", "--account", "default"});
    EXPECT_EQ(home.run({"launch", "default", "--windows"}), Outcome{});
    const Json builtIn = opened(normalData);
    EXPECT_EQ(home.run({"launch", "default", "--windows"}), Outcome{});
    EXPECT_EQ(*home.told, std::vector<std::string>());
    EXPECT_EQ(home.run({"launch", "ospite", "--windows"}), Outcome{});
    EXPECT_TRUE(isOpen(builtIn)) << "nobody has agreed to close it";
    quit(builtIn);
    EXPECT_EQ(home.run({"launch", "assente", "--windows"}), failure("Profilo sconosciuto: assente"));
    fs::remove(program);
    EXPECT_EQ(home.run({"launch", "ospite", "--windows"}),
              failure("Claude.app non trovata. Installala in /Applications."));
    EXPECT_EQ(*home.told, (std::vector<std::string>{"launch ospite", "error Profilo sconosciuto: assente",
                                                    "launch ospite"}));
    home.environment["DISPLAY"] = ":9999";
    EXPECT_EQ(home.execute({"launch", "assente", "--windows"}).status, 1);
}

TEST_F(CommandLaunch, AnOpenAccountIsActivatedTakenOverAndGuarded) {
    home.output({"create", "Lavoro"});
    home.output({"create", "Ospite", "--account", "default"});
    const Json builtIn = launch("default", normalData);
    const auto before = pids();
    EXPECT_EQ(home.run({"launch", "default"}), Outcome{});
    EXPECT_EQ(pids(), before);

    quit(launch("lavoro", lavoroData));
    const Json lavoro = launch("lavoro", lavoroData);
    const Json guest = launch("ospite", normalData);
    EXPECT_NE(guest["pid"], builtIn["pid"]);
    EXPECT_FALSE(isOpen(builtIn));
    EXPECT_EQ(guest["claudeConfigDir"], profile("ospite").string());
    const std::string lavoroLine = openLine(lavoro, lavoroData, profile("lavoro"));
    const std::string guestLine = openLine(guest, normalData, profile("ospite"));
    const std::string open = lines("desktop-status", "aperto");
    EXPECT_TRUE(open == lavoroLine + guestLine || open == guestLine + lavoroLine) << open;
    EXPECT_TRUE(home.output({"desktop-status"}).starts_with("cartella normale: default\n"));
    EXPECT_EQ(lines("desktop-status", "ospite"),
              "ospite\taccount=default\tdati=" + normalData.string() + "\n");

    std::string expected;
    for (const std::int32_t pid : pids())
        expected += std::to_string(pid) + "\t" + ProcInfo::read(pid)->path + "\n";
    EXPECT_EQ(lines("processes"), expected);

    const Outcome refused = failure("Per un backup affidabile Claude va chiuso: chiudilo e riprova.");
    for (const std::string scope : {"--solo-principale", "--solo-profili"})
        EXPECT_EQ(home.run({"backup", home / "b.zip", scope}), refused);
    quit(guest);
    EXPECT_EQ(home.run({"backup", home / "b.zip"}), refused);
    EXPECT_FALSE(fs::exists(home / "b.zip"));
    waitUntil([&] { return home.run({"backup", home / "b.zip", "--solo-principale"}).status == 0; });
    quit(lavoro);
    waitUntil([&] { return pids().empty(); });
}

TEST_F(CommandLaunch, WrappersInASharedFolderAreSeenThrough) {
    home.output({"create", "Ospite", "--account", "default"});
    const struct {
        std::string executable;
        std::string start;
        bool hasEntry;
    } cases[] = {{"claude-desktop", "", false}, {"electron", "exec ", true}};
    for (const auto& [executable, start, hasEntry] : cases) {
        SCOPED_TRACE(executable);
        fs::remove_all(home / "app");
        fs::remove_all(home / ".local/share/applications");
        installAs(executable);
        writeFile(home / "bin/claude-desktop",
                  "#!/bin/sh\n" + start + program.string() + " --proprio \"$@\"\n");
        fs::permissions(home / "bin/claude-desktop", fs::perms(0755));
        if (hasEntry)
            writeEntry("claude-desktop %U");
        const Json builtIn = launch("default", normalData);
        EXPECT_EQ(builtIn["arguments"], Json::array({"--proprio"}));
        EXPECT_EQ(lines("desktop-status", "aperto"), openLine(builtIn, normalData, "~/.claude"));
        const Json guest = launch("ospite", normalData);
        EXPECT_EQ(lines("desktop-status", "aperto"), openLine(guest, normalData, profile("ospite")));
        quit(guest);
        waitUntil([&] { return pids().empty(); });
    }
}

TEST_F(CommandLaunch, ACopyIsRecognisedHoweverItShowsItself) {
    home.output({"create", "Lavoro"});
    home.clock = std::make_shared<FakeClock>(FakeClock::kFast); // the last one never shows its folder
    for (const std::string options : {"", "--stand-in-keep-title", "--stand-in-no-lock",
                                      "--stand-in-no-files", "--stand-in-no-lock --stand-in-no-files"}) {
        SCOPED_TRACE(options);
        home.environment["STAND_IN_OPTIONS"] = options;
        const Json lavoro = launch("lavoro", lavoroData);
        EXPECT_EQ(lines("desktop-status", "aperto"), openLine(lavoro, lavoroData, profile("lavoro")));
        const auto before = pids();
        EXPECT_EQ(home.run({"launch", "lavoro"}), Outcome{});
        EXPECT_EQ(pids(), before);
        EXPECT_EQ(notes().size(), 1U);
        quit(lavoro);
        waitUntil([&] { return pids().empty(); });
        EXPECT_EQ(lines("desktop-status", "aperto"), "");
        EXPECT_EQ(notes().size(), 0U);
        fs::remove(lavoroData / "SingletonLock");
    }
}

TEST_F(CommandLaunch, ACopyThatUsesSomethingElseIsAnError) {
    home.output({"create", "Lavoro"});
    home.output({"create", "Ospite", "--account", "default"});
    const fs::path wrapper = home / "bin/claude-desktop";
    const std::string place = "»: controlla come viene avviato (" + wrapper.string() + ")";
    writeEntry("claude-desktop %U");
    const struct {
        std::string id;
        std::string start; ///< options of the program
        std::string message;
    } cases[] = {{"lavoro", " --altro", "Claude si è aperto, ma non con l'account di «Lavoro"},
                 {"ospite", " --altro --stand-in-keep-title",
                  "Claude si è aperto, ma non con la configurazione di «Ospite"}};
    for (const auto& [id, start, message] : cases) {
        writeFile(wrapper,
                  "#!/bin/sh\nunset CLAUDE_CONFIG_DIR\nexec '" + program.string() + "'" + start + "\n");
        fs::permissions(wrapper, fs::perms(0755));
        EXPECT_EQ(home.run({"launch", id}), failure(message + place));
        EXPECT_FALSE(fs::exists(home / ".claude-profiles/.active"));
        const Json opened = this->opened(normalData);
        EXPECT_EQ(lines("desktop-status", "aperto").find(profile(id)), std::string::npos);
        quit(opened);
        waitUntil([&] { return pids().empty(); });
    }
}

TEST_F(CommandLaunch, ACopyThatStaysOpenIsLeftAlone) {
    home.output({"create", "Ospite", "--account", "default"});
    home.environment["STAND_IN_OPTIONS"] = "--stand-in-refuse-quit";
    const Json builtIn = launch("default", normalData);
    const auto before = pids();
    home.clock = std::make_shared<FakeClock>();
    EXPECT_EQ(home.run({"launch", "ospite"}), failure("Claude non si è chiuso"));
    EXPECT_EQ(pids(), before);
    EXPECT_EQ(readFile(home / ".claude-profiles/.active"), "default");
}

TEST_F(CommandLaunch, AProgramThatCannotStartIsNamed) {
    writeFile(program, "non è un programma");
    EXPECT_EQ(home.run({"launch", "default"}), failure(program.string() + ": non è un programma eseguibile"));
    EXPECT_FALSE(fs::exists(home / ".claude-profiles/.active"));
}

TEST_F(CommandLaunch, WithoutTheProgramAnOpenCopyStaysOpen) {
    home.output({"create", "Ospite", "--account", "default"});
    launch("default", normalData);
    const auto before = pids();
    fs::remove(program);
    EXPECT_EQ(home.run({"launch", "ospite"}),
              failure("Claude.app non trovata. Installala in /Applications."));
    EXPECT_EQ(pids(), before);
}

} // namespace
} // namespace selvane::test
