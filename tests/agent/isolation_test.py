# SPDX-FileCopyrightText: 2026 The Selvane developers
# SPDX-License-Identifier: MIT
"""What an isolated profile keeps out when the agent works below the home folder."""

import json
import pathlib

from trial import Trial

PROJECT = {"MARK-project", "MARK-project-rule"}
MAIN = {"MARK-main", "MARK-a", "MARK-b", "MARK-hidden", "MARK-sub"}
ALONE = ("--mode", "CLAUDE.md=none", "--mode", "rules=none")


class IsolationTest(Trial):
    def make(self, name, *modes, isolated="yes"):
        self.selvane("create", name, "--from", "default", *modes, "--isolated", isolated)
        if not (self.profile(name) / "CLAUDE.md").exists():
            self.put(self.profile(name) / "CLAUDE.md", "MARK-own\n")
        self.put(self.profile(name) / "rules/mia.md", "MARK-own-rule\n")

    def test_only_an_isolated_profile_is_alone_below_the_home_folder(self):
        work = self.put_instructions()
        own = {"MARK-own", "MARK-own-rule"} | PROJECT
        self.make("aperto", *ALONE, isolated="no")
        self.assertEqual(self.ask("aperto", cwd=work).marks, own | MAIN, "what isolation is for")
        self.make("cliente", *ALONE)
        answer = self.ask("cliente", cwd=work)
        self.assertEqual(answer.marks, own)
        self.assertIn("This profile is isolated", answer.text)
        self.put(self.claude / "rules/dopo/e.md", "MARK-later")
        self.put(self.claude / "rules/f.md", "MARK-later")
        self.assertEqual(self.ask("cliente", cwd=work).marks, own)
        self.selvane("set-mode", "cliente", "CLAUDE.md=extend")
        self.assertEqual(self.ask("cliente", cwd=work).marks, own | {"MARK-main"})

    def test_what_the_profile_shares_is_there(self):
        work = self.put_instructions()
        self.make("esteso")
        # Links are made for items; a hidden file is none.
        self.assertEqual(self.ask("esteso", cwd=work).marks, {"MARK-own-rule"} | PROJECT | (MAIN - {"MARK-hidden"}))
        self.make("unito", "--mode", "CLAUDE.md=shared", "--mode", "rules=none")
        self.assertEqual(self.ask("unito", cwd=work).marks, {"MARK-main", "MARK-own-rule"} | PROJECT)
        (self.profile("unito") / "rules/b.md").symlink_to(self.claude / "rules/b.md")
        self.selvane("sync", "unito")
        self.assertEqual(self.ask("unito", cwd=work).marks, {"MARK-main", "MARK-b", "MARK-own-rule"} | PROJECT)

    def move_behind_a_link(self, path, folder=None):
        target = (folder or self.base) / f"behind-{path.name}"
        path.rename(target)
        path.symlink_to(target)

    def test_links_in_every_place_keep_nothing_from_working(self):
        for place in (".claude", ".claude/CLAUDE.md", ".claude/rules", ".claude/rules/a.md", ".claude/rules/sub", "."):
            with self.subTest(place=place):
                self.home = self.base / place.replace("/", "-") / "home"
                work = self.put_instructions()
                self.move_behind_a_link(self.home if place == "." else self.home / place)
                self.make("cliente", *ALONE)
                self.make("uno", "--mode", "CLAUDE.md=extend", "--mode", "rules=none")
                (self.profile("uno") / "rules/b.md").symlink_to(self.claude / "rules/b.md")
                self.selvane("sync", "uno")
                for folder in {work, work.resolve()}:
                    self.assertEqual(self.ask("cliente", cwd=folder).marks, {"MARK-own", "MARK-own-rule"} | PROJECT)
                    self.assertEqual(self.ask("uno", cwd=folder).marks,
                                     {"MARK-main", "MARK-b", "MARK-own-rule"} | PROJECT)

    def test_names_with_special_characters_are_kept_out_too(self):
        for linked in (False, True):
            with self.subTest(linked=linked):
                self.home = self.base / str(linked) / "a(b)[c]{d,e}!*?\\s" / "home"
                work = self.put_instructions()
                if linked:
                    self.move_behind_a_link(self.home, self.home.parent)
                self.keep_out_special_names(work)

    def keep_out_special_names(self, work):
        for number, name in enumerate(("x[1].md", "x{a,b}.md", "x*.md", "!n.md", "@(z).md", "b\\s.md", "q?.md",
                                       "due parole.md", "+(k)|y.md", "perché.md", "(r)/v.md", "t\\u/w.md")):
            self.put(self.claude / "rules" / name, f"MARK-{number}\n")
        self.make("cliente", *ALONE)
        self.assertEqual(self.ask("cliente", cwd=work).marks, {"MARK-own", "MARK-own-rule"} | PROJECT)
        self.make("uno", *ALONE)
        (self.profile("uno") / "rules/b.md").symlink_to(self.claude / "rules/b.md")
        self.selvane("sync", "uno")
        self.assertEqual(self.ask("uno", cwd=work).marks, {"MARK-own", "MARK-own-rule", "MARK-b"} | PROJECT)
        self.assertIn(f"{self.claude}/rules/x*.md",
                      json.loads((self.profile("uno") / "settings.json").read_text())["claudeMdExcludes"])
