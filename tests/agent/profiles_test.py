# SPDX-FileCopyrightText: 2026 The Selvane developers
# SPDX-License-Identifier: MIT
"""What reaches the agent of a profile's parts."""

import json
import subprocess
import threading

from trial import AGENT, Trial

ITEM = "---\nname: {0}\ndescription: MARK-{0}\n---\nMARK-{0}-text\n"
SESSIONS = ".config/Claude/claude-code-sessions/conto/ente"


class ProfilesTest(Trial):
    def put_everything(self):
        self.put(self.claude / "CLAUDE.md", "MARK-main\n")
        self.put(self.claude / "rules/breve.md", "MARK-rule\n")
        self.put(self.claude / "skills/potare/SKILL.md", ITEM.format("potare"))
        self.put(self.claude / "agents/revisore.md", ITEM.format("revisore"))
        self.put(self.claude / "commands/saluta.md", ITEM.format("saluta"))
        self.put(self.claude / "output-styles/laconico.md", ITEM.format("laconico"))
        self.put(self.claude / "settings.json", json.dumps({"outputStyle": "laconico"}))
        self.put(self.home / ".claude.json", json.dumps({"mcpServers": {"orologio": {"command": "false"}}}))
        shop = self.base / "bottega"
        plugin = {"name": "attrezzi", "version": "1.0.0", "description": "x"}
        self.put(shop / ".claude-plugin/marketplace.json", json.dumps(
            {"name": "bottega", "owner": {"name": "x"}, "plugins": [{**plugin, "source": "./attrezzi"}]}))
        self.put(shop / "attrezzi/.claude-plugin/plugin.json", json.dumps(plugin))
        self.put(shop / "attrezzi/skills/martello/SKILL.md", ITEM.format("martello"))
        self.run_program([AGENT, "plugin", "marketplace", "add", str(shop)])
        self.run_program([AGENT, "plugin", "install", "attrezzi@bottega"])

    def test_with_every_default_everything_reaches_the_agent(self):
        self.put_everything()
        self.selvane("create", "Lavoro", "--from", "default")
        # The copy of the plugin is the profile's: the source's isn't needed.
        (self.claude / "plugins").rename(self.base / "away")
        answer = self.ask("lavoro")
        self.assertLessEqual({"potare", "attrezzi:martello"}, set(answer.loaded["skills"]))
        self.assertIn("saluta", answer.loaded["slash_commands"])
        self.assertIn("revisore", answer.loaded["agents"])
        self.assertEqual([server["name"] for server in answer.loaded["mcp_servers"]], ["orologio"])
        self.assertEqual(answer.loaded["output_style"], "laconico")
        self.assertEqual([plugin["name"] for plugin in answer.loaded["plugins"] if "bottega" in json.dumps(plugin)],
                         ["attrezzi"])
        self.assertLessEqual({"MARK-main", "MARK-rule", "MARK-laconico-text"}, answer.marks)
        self.assertIn('This session runs in the Selvane profile \\"Lavoro\\"', answer.text)

    def test_each_mode_and_its_changes_are_what_the_agent_sees(self):
        self.put_everything()
        self.selvane("create", "Lavoro", "--from", "default", "--mode", "skills=separate", "--mode", "agents=none",
                     "--mode", "CLAUDE.md=none", "--mode", "rules=none", "--mode", "settings=none", "--mode",
                     "plugins=none", "--mode", "mcp=none", "--mode", "commands=none")
        self.put(self.claude / "skills/potare/SKILL.md", ITEM.format("potare").replace("MARK", "MARK-new"))
        answer = self.ask("lavoro")
        self.assertIn("MARK-potare", answer.marks)
        self.assertNotIn("MARK-new-potare", answer.marks)
        self.assertFalse({"MARK-main", "MARK-rule", "MARK-laconico-text"} & answer.marks)
        self.assertNotIn("revisore", answer.loaded["agents"])
        self.assertNotIn("saluta", answer.loaded["slash_commands"])
        self.assertEqual((answer.loaded["mcp_servers"], answer.loaded["output_style"]), ([], "default"))

        for mode, seen in (("extend", True), ("shared", True), ("separate", True), ("extend", True), ("none", False)):
            self.selvane("set-mode", "lavoro", f"CLAUDE.md={mode}")
            self.assertEqual("MARK-main" in self.ask("lavoro").marks, seen, mode)
        self.selvane("set-mode", "lavoro", "commands=shared")
        (self.claude / "commands/saluta.md").rename(self.claude / "commands/congeda.md")
        self.assertEqual(self.selvane("sync", "lavoro"), "+ Comandi: congeda.md\n- Comandi: saluta.md\n")
        commands = self.ask("lavoro").loaded["slash_commands"]
        self.assertTrue("congeda" in commands and "saluta" not in commands, commands)

    def test_the_terminal_helper_starts_the_agent_with_a_profile_or_without(self):
        self.put(self.claude / "CLAUDE.md", "MARK-main\n")
        self.selvane("create", "Lavoro")
        self.put(self.profile("lavoro") / "CLAUDE.md", "MARK-own\n")
        self.put(self.base / "bin/claude", "")
        (self.base / "bin/claude").unlink()
        (self.base / "bin/claude").symlink_to(AGENT)
        helper = self.selvane("install-helper").strip()
        self.assertEqual(self.ask(command=[helper, "lavoro"]).marks, {"MARK-own"})
        self.assertEqual(self.ask("lavoro", command=[helper, "default"]).marks, {"MARK-main"})

    def test_an_imported_conversation_continues_in_the_other_profile(self):
        self.selvane("create", "Lavoro", "--account", "default")
        work = self.base / "lavori in corso"
        work.mkdir()
        session = self.ask(prompt="MARK-first", cwd=work).loaded["session_id"]
        self.put(self.home / SESSIONS / "local_1.json", json.dumps(
            {"sessionId": "local_1", "cliSessionId": session, "title": "t", "cwd": str(work), "lastActivityAt": 1}))
        self.selvane("import-sessions", "default", "lavoro")
        answer = self.ask("lavoro", prompt="MARK-second", cwd=work, options=["--resume", session])
        self.assertLessEqual({"MARK-first", "MARK-second"}, answer.marks)
        self.assertIn('"pong"', answer.text)

    def test_a_terminals_conversation_continues_in_the_other_profile(self):
        self.selvane("create", "Lavoro")
        work = self.home / "più lavori, «in corso»"
        work.mkdir()
        first = self.ask(prompt="MARK-first", cwd=work).loaded["session_id"]
        other = self.ask(prompt="MARK-other", cwd=work).loaded["session_id"]
        self.selvane("import-sessions", "default", "lavoro", first)
        answer = self.ask("lavoro", prompt="MARK-second", cwd=work, options=["--resume", first])
        self.assertLessEqual({"MARK-first", "MARK-second"}, answer.marks)
        self.assertNotIn("MARK-other", answer.marks)
        # Back again, longer than the one that is there; the agent goes on where the other profile stopped.
        self.selvane("import-sessions", "lavoro", "default", first)
        self.assertLessEqual({"MARK-first", "MARK-second", "MARK-third"},
                             self.ask(prompt="MARK-third", cwd=work, options=["--resume", first]).marks)
        # One that is older than the target's changes nothing there.
        self.selvane("import-sessions", "lavoro", "default", first)
        self.assertIn("MARK-third", self.ask(cwd=work, options=["--resume", first]).marks)
        self.operation("continue", other, "lavoro")
        self.assertIn("MARK-other", self.ask("lavoro", cwd=work, options=["--resume", other]).marks)

    def test_a_home_restored_elsewhere_works(self):
        self.put_everything()
        self.selvane("create", "Lavoro", "--from", "default", "--mode", "skills=separate")
        self.selvane("create", "Cliente", "--from", "default", "--mode", "CLAUDE.md=none", "--mode", "rules=none",
                     "--isolated", "yes")
        work = self.base / "lavori"
        work.mkdir()
        talk = self.ask("lavoro", prompt="MARK-before", cwd=work).loaded["session_id"]
        archive = str(self.base / "copia.zip")
        self.selvane("backup", archive)
        self.home.rename(self.base / "former")
        self.home = self.base / "altri" / "home"
        self.home.mkdir(parents=True)
        self.operation("restore", archive)

        answer = self.ask("lavoro", prompt="MARK-after", cwd=work, options=["--resume", talk])
        self.assertLessEqual({"MARK-before", "MARK-after", "MARK-main", "MARK-rule", "MARK-potare",
                              "MARK-laconico-text"}, answer.marks)
        self.assertLessEqual({"potare", "attrezzi:martello"}, set(answer.loaded["skills"]))
        self.assertIn("revisore", answer.loaded["agents"])
        self.assertEqual([server["name"] for server in answer.loaded["mcp_servers"]], ["orologio"])
        below = self.home / "progetti"
        below.mkdir()
        alone = self.ask("cliente", cwd=below).marks
        self.assertFalse({"MARK-main", "MARK-rule"} & alone, alone)
        # Nothing of the restored home leads to the former one, and the links are the profile's own again.
        self.assertEqual(self.selvane("sync", "lavoro"), "")
        for file in self.home.rglob("*"):
            if file.is_symlink():
                self.assertNotIn(f"{self.base}/home", str(file.readlink()), file)

    def edit(self, file):
        """Lets the agent read and change a file; returns the answer of its tool."""
        def use(tool, **more):
            return self.ask("lavoro", prompt=f"use-tool {tool} {json.dumps({'file_path': str(file), **more})}",
                            options=["--dangerously-skip-permissions", "--continue"], IS_SANDBOX="1")
        self.ask("lavoro")
        use("Read")
        return use("Edit", old_string="-text", new_string="-changed").tool_results[-1]

    def test_the_agents_editing_reaches_a_shared_item_in_its_source_only(self):
        source = self.claude / "agents/revisore.md"
        self.put(source, ITEM.format("revisore"))
        self.selvane("create", "Lavoro", "--from", "default")
        item = self.profile("lavoro") / "agents/revisore.md"
        # Earlier versions replaced the link by a file, which Selvane takes for the profile's own.
        self.assertIn("it is a symbolic link", self.edit(item))
        self.assertTrue(item.is_symlink())
        self.assertIn("MARK-revisore-text", source.read_text())
        self.edit(source)
        self.assertIn("MARK-revisore-changed", item.read_text())
        self.assertEqual(self.selvane("items", "lavoro"), f"agents\trevisore.md\tlink -> {source}\n")

    def test_both_write_the_same_files_and_neither_loses_the_others(self):
        self.put_everything()
        self.selvane("create", "Cliente", "--from", "default", "--isolated", "yes")
        cliente = self.profile("cliente")
        environment = self.environment(CLAUDE_CONFIG_DIR=str(cliente))
        failures = []

        def use_agent():
            for word in ("disable", "enable") * 3:
                done = subprocess.run([AGENT, "plugin", word, "attrezzi@bottega"], env=environment, cwd=self.base,
                                      stdin=subprocess.DEVNULL, capture_output=True, text=True)
                if done.returncode != 0:
                    failures.append(done.stderr + done.stdout)

        agent = threading.Thread(target=use_agent)
        agent.start()
        rounds = 0
        while agent.is_alive():
            for words in (("CLAUDE.md=none",), ("CLAUDE.md=extend",), ("mcp=none",), ("mcp=separate",)):
                self.selvane("set-mode", "cliente", *words)
            json.loads((cliente / "settings.json").read_text())
            json.loads((cliente / ".claude.json").read_text())
            rounds += 1
        agent.join()
        self.assertEqual(failures, [])
        self.assertGreater(rounds, 2)
        self.selvane("set-mode", "cliente", "CLAUDE.md=none")
        self.selvane("sync", "cliente")
        settings = json.loads((cliente / "settings.json").read_text())
        self.assertEqual(settings["enabledPlugins"], {"attrezzi@bottega": True})
        self.assertEqual(settings["outputStyle"], "laconico")
        self.assertEqual(settings["claudeMdExcludes"], [f"{self.claude}/CLAUDE.md"])
        state = json.loads((cliente / ".claude.json").read_text())
        self.assertEqual(list(state["mcpServers"]), ["orologio"])
        self.assertGreater(len(state), 2, "the agent's own keys")
