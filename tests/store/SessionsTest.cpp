// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include "platform/json/Json.h"
#include "store/conversations/Conversations.h"
#include "store/conversations/ResumeCommand.h"
#include "store/conversations/SessionStates.h"
#include "support/Home.h"
#include "support/RunningProcess.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;
using namespace test;
using Texts = std::vector<std::string>;

void setAge(const fs::path& path, std::chrono::hours age) {
    fs::last_write_time(path, fs::file_time_type::clock::now() - age);
}

/// The built-in profile with a few sessions, and "Lavoro" with an account of its own.
struct Sessions : testing::Test {
    explicit Sessions(Home::Processes processes = Home::Processes::ignored) : home(processes) {
        lavoro = home.make("Lavoro");
        writeTree(home.store.liveDesktopDir() / "claude-code-sessions/a/b",
                  {{"local_1.json",
                    R"({"sessionId": "s1", "title": "Uno", "cwd": "/w", "lastActivityAt": 1740821400500,
                                        "cliSessionId": "c1", "priorCliSessionIds": ["c0", "cX"], "big": 12345678901234567890123,
                                        "remoteMcpServersConfig": 1, "enabledMcpTools": {}, "toolSurfaceSnapshot": [],
                                        "promptAppendSnapshot": "", "remoteControlAutoEligible": true,
                                        "steeredByRemoteClient": null, "z": {"enabledMcpTools": 1}})"}});
        writeTree(home / ".claude/projects", {{"p/c1.jsonl", "one"},
                                              {"p/c1/sub/x", "companion"},
                                              {"q/c0.jsonl", "zero"},
                                              {"q/other.jsonl", ""}});
        destination = home.store.desktopDataDir(lavoro) / "claude-code-sessions/x/new";
        sessions = home.store.codeSessions(home.builtIn());
    }

    void makeFolders() {
        for (const char* name : {"old", "new", ".hidden"})
            fs::create_directories(destination.parent_path() / name);
        writeFile(destination.parent_path() / "file", "");
        setAge(destination.parent_path() / "old", std::chrono::hours(2));
        setAge(destination, std::chrono::hours(1));
    }
    ImportCount import() { return home.store.importSessions(sessions, home.builtIn(), lavoro); }
    fs::path queue() const { return lavoro.configDir / ".pending-sessions"; }

    Home home;
    Profile lavoro;
    fs::path destination;
    std::vector<CodeSession> sessions;
};

const std::string kMoved = R"({
  "sessionId": "s1",
  "title": "Uno",
  "cwd": "/w",
  "lastActivityAt": 1740821400500,
  "cliSessionId": "c1",
  "priorCliSessionIds": [
    "c0",
    "cX"
  ],
  "big": 12345678901234567890123,
  "z": {
    "enabledMcpTools": 1
  }
}
)";

TEST_F(Sessions, codeSessions_AllKindsOfRecords_ListsTheNewestFirst) {
    const fs::path top = home.store.liveDesktopDir() / "claude-code-sessions";
    EXPECT_EQ(sessions,
              (std::vector<CodeSession>{
                  {"s1", "Uno", "/w", 1740821400.5, {"c1", "c0", "cX"}, top / "a/b/local_1.json"}}));
    const auto add = [&](const std::string& file, const std::string& record) {
        writeFile(top / file, "{\"sessionId\": " + record + "}");
    };
    add("a/c/local_2.json",
        R"("s2", "title": 7, "lastActivityAt": 1740821400501, "priorCliSessionIds": ["c0", 1])");
    add("z/c/local_3.json", R"("s3", "isArchived": "true", "cliSessionId": 1, "priorCliSessionIds": ["c0"])");
    add("z/c/local_4.json", R"("s4", "isArchived": true)");
    add("z/c/local_5.json", "5");
    add("z/c/local_6.json", "\"s6");
    for (const char* file : {"z/c/remote_8.json", "z/c/local_9.txt", "z/.c/local_10.json",
                             ".z/c/local_11.json", "z/local_12.json"})
        add(file, "\"hidden\"");
    fs::create_symlink("c", top / "z/linked");
    sessions = home.store.codeSessions(home.builtIn());
    Texts found;
    for (const CodeSession& session : sessions)
        found.push_back(session.id + " " + session.title + " " + session.cwd + " " +
                        std::to_string(session.cliSessionIDs.size()));
    EXPECT_EQ(found, (Texts{"s2 Senza titolo  0", "s1 Uno /w 3", "s3 Senza titolo  1"}));
    const TranscriptIndex index = home.store.transcripts(home.builtIn());
    EXPECT_FALSE(index.hasTranscript(sessions[0]));
    EXPECT_TRUE(index.hasTranscript(sessions[1]));
    ASSERT_NE(index.transcriptFolder("c0"), nullptr);
    EXPECT_EQ(*index.transcriptFolder("c0"), home / ".claude/projects/q");
    EXPECT_FALSE(home.store.transcripts(lavoro).hasTranscript(sessions[1]));
    EXPECT_TRUE(home.store.codeSessions(lavoro).empty());
}

TEST_F(Sessions, import_SameAccount_CopiesTheTranscriptsOnly) {
    const Profile ospite = home.store.create(request("Ospite", {}, "default"));
    writeFile(ospite.configDir / "projects/q/c0.jsonl", "own");
    const Tree before = treeOf(home.store.liveDesktopDir());
    EXPECT_EQ(home.store.importSessions(sessions, home.builtIn(), ospite), (ImportCount{1, 0}));
    EXPECT_EQ(treeOf(ospite.configDir / "projects"), (Tree{{"p", "/"},
                                                           {"p/c1.jsonl", "one"},
                                                           {"p/c1", "/"},
                                                           {"p/c1/sub", "/"},
                                                           {"p/c1/sub/x", "companion"},
                                                           {"q", "/"},
                                                           {"q/c0.jsonl", "own"}}));
    EXPECT_EQ(treeOf(home.store.liveDesktopDir()), before);
    EXPECT_FALSE(home.store.exists(ospite.configDir / ".pending-sessions"));
}

TEST_F(Sessions, import_OtherAccount_WritesTheRecordWithoutItsAccount) {
    makeFolders();
    EXPECT_EQ(import(), (ImportCount{1, 0}));
    EXPECT_EQ(
        treeOf(destination.parent_path()),
        (Tree{{"old", "/"}, {"new", "/"}, {".hidden", "/"}, {"file", ""}, {"new/local_1.json", kMoved}}));
    EXPECT_EQ(fs::status(destination / "local_1.json").permissions(), kOwnerOnly);
    EXPECT_EQ(readFile(lavoro.configDir / "projects/p/c1/sub/x"), "companion");

    writeFile(destination / "local_1.json", "used");
    writeFile(lavoro.configDir / "projects/p/c1.jsonl", "continued");
    EXPECT_EQ(import(), (ImportCount{1, 0}));
    EXPECT_EQ(readFile(destination / "local_1.json"), "used");
    EXPECT_EQ(readFile(lavoro.configDir / "projects/p/c1.jsonl"), "continued");

    sessions.push_back(sessions[0]);
    sessions[0].file = home / "local_list.json";
    sessions[1].file = home / "local_bad.json";
    writeTree(home.path, {{"local_list.json", "[ 1.0 ]"}, {"local_bad.json", "{"}});
    EXPECT_THROW(import(), JsonError);
    EXPECT_EQ(readFile(destination / "local_list.json"), "[ 1.0 ]");
}

TEST_F(Sessions, import_NoSessionFolderYet_QueuesUntilThereIsOne) {
    const auto state = [&] { return sessionStates(home.store, sessions, home.builtIn(), lavoro); };
    EXPECT_EQ(state(), (std::vector<SessionState>{{7, false}}));
    EXPECT_EQ(import(), (ImportCount{0, 1}));
    EXPECT_EQ(state(), (std::vector<SessionState>{{7, true}}));
    EXPECT_EQ(import(), (ImportCount{0, 1}));
    EXPECT_EQ(treeOf(queue()), (Tree{{"local_1.json", kMoved}}));
    EXPECT_EQ(fs::status(queue() / "local_1.json").permissions(), kOwnerOnly);
    EXPECT_EQ(home.store.pendingSessionCount(lavoro), 1);
    EXPECT_EQ(home.store.flushPendingSessions(lavoro), 0);
    EXPECT_EQ(home.store.pendingSessionCount(lavoro), 1);

    makeFolders();
    writeFile(queue() / "local_2.json", "queued");
    writeFile(destination / "local_2.json", "there");
    setAge(destination.parent_path() / "old", std::chrono::hours(2));
    EXPECT_EQ(home.store.flushPendingSessions(lavoro), 1);
    EXPECT_EQ(treeOf(destination), (Tree{{"local_1.json", kMoved}, {"local_2.json", "there"}}));
    EXPECT_EQ(fs::status(destination / "local_1.json").permissions(), kOwnerOnly);
    EXPECT_FALSE(home.store.exists(queue()));
    EXPECT_EQ(home.store.flushPendingSessions(lavoro), 0);
}

TEST_F(Sessions, linkedFolders_AreNeitherEmptiedNorWrittenThrough) {
    const fs::path outside = home / "Documenti";
    writeTree(outside, {{"lettera.txt", "cara"}, {"local_9.json", "mine"}, {"org/x", ""}});
    const Tree before = treeOf(outside);
    const std::string refusal = " è un collegamento: Selvane non scrive nella cartella a cui porta";
    const fs::path projects = lavoro.configDir / "projects";
    fs::create_directory_symlink(outside, queue());
    EXPECT_EQ(messageOf([&] { import(); }), queue().string() + refusal);
    makeFolders();
    EXPECT_EQ(home.store.flushPendingSessions(lavoro), 0);
    EXPECT_EQ(home.store.pendingSessionCount(lavoro), 0);
    EXPECT_EQ(fs::read_symlink(queue()), outside);
    for (const fs::path& link : {projects, projects / "p"}) {
        fs::remove_all(projects);
        fs::create_directories(link.parent_path());
        fs::create_directory_symlink(outside, link);
        EXPECT_EQ(messageOf([&] { import(); }), link.string() + refusal);
    }
    fs::remove_all(projects);
    fs::remove(queue());
    fs::remove_all(destination.parent_path());
    fs::create_directory_symlink(outside, destination.parent_path());
    EXPECT_EQ(import(), (ImportCount{0, 1})) << "queued rather than placed behind a link";
    EXPECT_EQ(home.store.flushPendingSessions(lavoro), 0);
    EXPECT_EQ(treeOf(outside), before);
}

struct SessionsOfOpenAccounts : Sessions {
    SessionsOfOpenAccounts() : Sessions(Home::Processes::seen) {}
};

TEST_F(SessionsOfOpenAccounts, import_TargetInUse_QueuesUntilItIsClosed) {
    makeFolders();
    {
        const RunningProcess copy({"--user-data-dir=" + home.store.desktopDataDir(lavoro).string()}, {});
        EXPECT_EQ(import(), (ImportCount{0, 1}));
        EXPECT_EQ(home.store.flushPendingSessions(lavoro), 0);
        EXPECT_TRUE(treeOf(destination).empty());
    }
    EXPECT_EQ(home.store.flushPendingSessions(lavoro), 1);
    EXPECT_EQ(treeOf(destination), (Tree{{"local_1.json", kMoved}}));
}

TEST_F(SessionsOfOpenAccounts, continueIn_GoesWhereThePlanSays) {
    using Record = Continuation::Record;
    makeFolders();
    const fs::path old = destination.parent_path() / "old";
    writeFile(lavoro.configDir / ".claude.json",
              R"({"oauthAccount": {"organizationUuid": "old", "organizationName": "Borea S.r.l."}})");
    writeFile(lavoro.configDir / "projects/q/c0.jsonl", "zero and more");
    const std::vector<OrganisationFolder> folders = home.store.organisationFolders(lavoro);
    ASSERT_EQ(folders.size(), 2U);
    EXPECT_EQ(folders[0].id + folders[1].id + ":" + folders[0].name + folders[1].name, "newold:Borea S.r.l.");
    EXPECT_GT(folders[0].lastUsed, folders[1].lastUsed);
    writeFile(home / ".claude/projects/p/t1.jsonl",
              R"({"cwd": "/it's", "timestamp": "2026-01-01T00:00:00Z"})");
    const fs::path archived = home.store.liveDesktopDir() / "claude-code-sessions/a/b/local_1.json";
    writeFile(archived, R"({"sessionId": "s1", "isArchived": true, "cliSessionId": "c1",
                           "priorCliSessionIds": ["c0"], "enabledMcpTools": 1, "lastActivityAt": 2e12})");
    const ConversationList list = conversations(home.store);
    ASSERT_EQ(list.conversations.size(), 3U);
    const Conversation& app = list.conversations[0];
    const auto plan = [&] { return home.store.planContinuation(list, app, lavoro, old); };
    {
        const RunningProcess copy({"--user-data-dir=" + home.store.desktopDataDir(lavoro).string()}, {});
        EXPECT_EQ(plan(), (Continuation{Record::atNextLaunch, 12, 2, 0, 1}));
        EXPECT_EQ(home.store.continueIn(list, app, lavoro, old), (ImportCount{0, 1}));
    }
    EXPECT_EQ(home.store.pendingSessionCount(lavoro), 1);
    EXPECT_EQ(readFile(lavoro.configDir / "projects/p/c1/sub/x"), "companion");
    EXPECT_EQ(readFile(lavoro.configDir / "projects/q/c0.jsonl"), "zero and more");
    EXPECT_EQ(plan(), (Continuation{Record::now, 0, 0, 0, 1}));
    EXPECT_EQ(home.store.flushPendingSessions(lavoro), 1);
    EXPECT_FALSE(home.store.exists(queue()));
    EXPECT_EQ(treeOf(old).at("local_1.json").find("isArchived"), std::string::npos);
    EXPECT_TRUE(treeOf(destination).empty());
    EXPECT_EQ(plan().record, Record::present);
    EXPECT_NE(messageOf([&] { home.store.continueIn(list, app, lavoro, archived.parent_path()); }), "");

    const Conversation& terminal = list.conversations[2];
    EXPECT_EQ(home.store.planContinuation(list, terminal, lavoro).record, Record::none);
    EXPECT_EQ(home.store.continueIn(list, terminal, lavoro), (ImportCount{1, 0}));
    EXPECT_TRUE(home.store.exists(lavoro.configDir / "projects/p/t1.jsonl"));
    EXPECT_EQ(resumeCommand("/h/bin/claude-profile", terminal, lavoro),
              "cd '/it'\\''s' && /h/bin/claude-profile lavoro --resume t1");
}

} // namespace
} // namespace selvane
