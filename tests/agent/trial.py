# SPDX-FileCopyrightText: 2026 The Selvane developers
# SPDX-License-Identifier: MIT
"""A throw-away home in which Selvane makes profiles and the agent, Claude Code, uses them."""

import json
import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest

import messages

SELVANE = os.environ["SELVANE"]
OPERATION = os.environ["OPERATION"]
AGENT = os.environ["AGENT"]
MARK = re.compile(r"MARK-[\w-]+")


class Answer:
    """What the agent loaded, and what it sent."""

    def __init__(self, lines, requests):
        self.loaded = next(line for line in lines if line.get("subtype") == "init")
        self.reply = next(line for line in lines if line.get("type") == "result")
        self.requests = requests

    @property
    def text(self):
        return json.dumps(self.requests, ensure_ascii=False)

    @property
    def tool_results(self):
        return [part["content"] for request in self.requests for message in request["messages"]
                for part in messages.results(message["content"])]

    @property
    def marks(self):
        """The words beginning with "MARK-" in everything that the agent sent."""
        return set(MARK.findall(self.text))


class Trial(unittest.TestCase):
    """Each test has a folder of its own, and the home in it."""

    @classmethod
    def setUpClass(cls):
        cls.server = messages.Server()

    def setUp(self):
        self.base = pathlib.Path(tempfile.mkdtemp(prefix="selvane-agent."))
        self.addCleanup(shutil.rmtree, self.base)
        self.home = self.base / "home"
        self.home.mkdir()

    @property
    def claude(self):
        return self.home / ".claude"

    def profile(self, name):
        return self.home / ".claude-profiles" / name

    def environment(self, **more):
        """Nothing of this machine's own: an invented key, and no address but the server's."""
        return {"HOME": str(self.home), "PATH": f"{self.base}/bin:/usr/bin:/bin", "LANG": "C.UTF-8",
                "TMPDIR": str(self.base), "XDG_RUNTIME_DIR": str(self.base),
                "CLAUDE_LAUNCHER_DESKTOP_DIR": f"{self.home}/.config/Claude",
                "ANTHROPIC_BASE_URL": self.server.url, "ANTHROPIC_API_KEY": "invented",
                "CLAUDE_CODE_DISABLE_NONESSENTIAL_TRAFFIC": "1", "DISABLE_AUTOUPDATER": "1", **more}

    def run_program(self, command, cwd=None, **environment):
        done = subprocess.run(command, env=self.environment(**environment), cwd=cwd or self.base,
                              stdin=subprocess.DEVNULL, capture_output=True, text=True, timeout=120)
        self.assertEqual(done.returncode, 0, f"{command}: {done.stderr}{done.stdout[-2000:]}")
        return done.stdout

    def selvane(self, *words):
        return self.run_program([SELVANE, *words])

    def operation(self, *words):
        """Something that only the windows offer."""
        return self.run_program([OPERATION, *words])

    def ask(self, profile=None, prompt="ping", cwd=None, options=(), command=None, **environment):
        """Lets the agent answer one prompt with a profile, by default outside of the home folder."""
        if profile:
            environment["CLAUDE_CONFIG_DIR"] = str(self.profile(profile))
        before = len(self.server.requests)
        output = self.run_program([*(command or [AGENT]), "-p", prompt, "--output-format", "stream-json", "--verbose",
                                   *options], cwd=cwd, **environment)
        return Answer([json.loads(line) for line in output.splitlines()], self.server.requests[before:])

    def put(self, path, text):
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)

    def put_instructions(self):
        """CLAUDE.md and rules of the built-in profile, and a project below the home folder."""
        self.put(self.claude / "CLAUDE.md", "MARK-main\n")
        self.put(self.claude / "rules/a.md", "MARK-a\n")
        self.put(self.claude / "rules/b.md", "MARK-b\n")
        self.put(self.claude / "rules/.c.md", "MARK-hidden\n")
        self.put(self.claude / "rules/sub/d.md", "MARK-sub\n")
        self.put(self.home / "progetti/x/CLAUDE.md", "MARK-project\n")
        self.put(self.home / "progetti/x/.claude/rules/p.md", "MARK-project-rule\n")
        return self.home / "progetti/x"
