# SPDX-FileCopyrightText: 2026 The Selvane developers
# SPDX-License-Identifier: MIT
"""The operations to try: a command line each, and how the home is prepared for it."""

import dataclasses
import typing

from home import COLLECTIONS, DATA, NORMAL, PROFILES

COPY = PROFILES + "copia/"
WORK = PROFILES + "lavoro/"


def _nothing(_home):
    pass


@dataclasses.dataclass(frozen=True)
class Operation:
    name: str
    command: typing.Sequence[str]
    prepare: typing.Callable = _nothing
    then: typing.Sequence = ()       # more commands that complete an interrupted run, after the same one
    loose: str = "$^"                # what may stay as it was although the rest has succeeded
    creates: str = ""                # the profile that is created; another run creates another one
    leaves_nothing: bool = False     # if it fails, everything is as before
    moves: bool = False              # moves whole folders, perhaps through another place
    edits: typing.Sequence[str] = () # the user's files whose bytes it changes without keeping the old ones
    archive: bool = False            # zip is made to fail as well
    gap: str = "$^"                  # what is missing for a moment; never the user's only copy
    resumes: str = "$^"              # what a failed run leaves so that the next one completes it
    undoes: typing.Sequence[str] = () # what the command does first; only the calls with which it undoes that are tried
    setting: str = ""                # a fault, in strace's form, that every run meets: a more limited file system


def _creations():
    shared = [f"{part}=shared" for part in (*COLLECTIONS, "CLAUDE.md")]
    separate = [f"{part}=separate" for part in (*COLLECTIONS, "CLAUDE.md")]
    nothing = [f"{part}=none" for part in (*COLLECTIONS, "CLAUDE.md", "settings", "plugins", "mcp")]
    kinds = {"shared": shared, "separate": separate, "extend": ["CLAUDE.md=extend"], "none": nothing}
    for kind, modes in kinds.items():
        words = ["selvane", "create", "Nuovo", "--from", "default"]
        words += [word for mode in modes for word in ("--mode", mode)]
        yield Operation(f"create-{kind}", words, creates="nuovo", leaves_nothing=True)
        # Seeding the account comes after the profile is complete, and leaves out what can't be copied.
        yield Operation(f"create-{kind}-account", [*words, "--account", "default"], creates="nuovo",
                        loose=DATA + "nuovo/")
    yield Operation("create-empty", ["selvane", "create", "Nuovo"], creates="nuovo", leaves_nothing=True)


def _change_source(home):
    """Something new, something renamed and something gone, for profiles that share."""
    for part in COLLECTIONS:
        home.put(f".claude/{part}/nuovo è «bello».md", "Nuovo.\n")
    home.move(".claude/agents/collaudo.md", ".claude/agents/prove.md")
    home.remove(".claude/skills/traduzione")
    home.link(".claude/commands/interrotto.md", "@/dotfiles/interrotto.md")
    home.put(WORK + "rules/selvane-profile.md", "An older note.\n")


def _share_everything(home):
    for part in COLLECTIONS:
        home.set_mode("nulla", part, "shared")
    home.remove(PROFILES + "nulla/skills", PROFILES + "nulla/rules")


def _syncs():
    yield Operation("sync", ["selvane", "sync", "lavoro"], _change_source)
    yield Operation("sync-first", ["selvane", "sync", "nulla"], _share_everything)


def _collection_modes():
    profiles = {"shared": "lavoro", "separate": "copia", "none": "nulla"}
    for before, profile in profiles.items():
        for after in profiles:
            if before != after:
                # The mode is recorded first; the next sync or launch adds the missing links.
                then = [("selvane", "sync", profile)] if after == "shared" else []
                yield Operation(f"set-mode-skills-{before}-{after}",
                                ["selvane", "set-mode", profile, f"skills={after}"], then=then)


def _rules_modes():
    def prepare(mode):
        def change(home):
            if mode != "extend":
                home.run("selvane", "set-mode", "lavoro", f"CLAUDE.md={mode}")
            if mode == "none":
                home.put(WORK + "CLAUDE.md", "Messo qui a mano.\n", 0o600)
        return change
    for before in ("shared", "separate", "extend", "none"):
        for after in ("shared", "separate", "extend", "none"):
            if before != after:
                yield Operation(f"set-mode-CLAUDE.md-{before}-{after}",
                                ["selvane", "set-mode", "lavoro", f"CLAUDE.md={after}"], prepare(before))


def _import_modes():
    def prepare(home):
        for part in ("settings", "plugins", "mcp"):
            home.set_mode("copia", part, "none")

    def add_servers(home):
        prepare(home)
        home.edit(COPY + ".claude.json", lambda state: state.update(mcpServers={"altro": {"command": "x"}}))

    def without_servers(home):
        prepare(home)
        home.edit(COPY + ".claude.json", lambda state: state.pop("mcpServers"))
    for part in ("settings", "plugins", "mcp"):
        words = ["selvane", "set-mode", "copia", part]
        yield Operation(f"set-mode-{part}-none", [*words[:3], f"{part}=none"])
        yield Operation(f"set-mode-{part}-separate", [*words[:3], f"{part}=separate"],
                        add_servers if part == "mcp" else prepare)
    yield Operation("set-mode-mcp-merged", ["selvane", "set-mode", "copia", "mcp=separate"], without_servers,
                    edits=[COPY + ".claude.json"])


def _sessions():
    def existing(home):
        home.run("selvane", "import-sessions", "default", "lavoro")
        home.remove(WORK + "projects/-progetti-negozio/cli-1")

    def queued(home):
        home.run("selvane", "import-sessions", "default", "vuoto")
    words = ["selvane", "import-sessions", "default"]
    yield Operation("import-sessions", [*words, "lavoro"])
    yield Operation("import-sessions-existing", [*words, "lavoro"], existing)
    yield Operation("import-sessions-one", [*words, "lavoro", "local_sessione-1"])
    yield Operation("import-sessions-queued", [*words, "vuoto"])
    yield Operation("import-sessions-queued-again", [*words, "vuoto"], queued)
    yield Operation("import-sessions-transcripts", [*words, "ospite"])
    yield Operation("import-sessions-from-account", ["selvane", "import-sessions", "lavoro", "copia"],
                    lambda home: home.put(WORK + "projects/p/cli-11.jsonl", "riga\n"))


def _continuations():
    def begun_in_terminal(home):
        home.put(".claude/projects/-progetti-negozio/solo.jsonl", "riga\n")
        home.put(".claude/projects/-progetti-negozio/solo/note.txt", "accanto\n")

    def shorter_there(home):
        begun_in_terminal(home)
        home.run("operation", "continue", "solo", "lavoro")
        home.put(".claude/projects/-progetti-negozio/solo.jsonl", "riga\naltra riga\n")
    words = ["operation", "continue"]
    yield Operation("continue-app", [*words, "cli-1", "lavoro"])
    yield Operation("continue-terminal", [*words, "solo", "lavoro"], begun_in_terminal)
    yield Operation("continue-further", [*words, "solo", "lavoro"], shorter_there)


def _launches():
    # Recording the launch is optional, and so is removing the emptied queue.
    loose = rf"{PROFILES}(\.active|default\.json|[^/]*/\.launcher\.json|[^/]*/\.pending-sessions)$"
    yield Operation("launch-with-queue", ["selvane", "launch", "lavoro"], _change_source, loose=loose)
    yield Operation("launch-first", ["selvane", "launch", "vuoto"], loose=loose)
    yield Operation("launch-built-in", ["selvane", "launch", "default"], loose=loose)


def _helpers():
    script = PROFILES + "bin/claude-profile"
    yield Operation("install-helper", ["selvane", "install-helper"])
    yield Operation("install-helper-again", ["selvane", "install-helper"],
                    lambda home: home.put(script, "#!/bin/sh\n# older\n", 0o700))


def _restorations():
    words = ["selvane", "restore-desktop"]
    account = DATA + "lavoro"

    def swapped(home):
        """As an earlier way of keeping accounts left them: with Lavoro's data in the normal folder."""
        home.move(NORMAL, DATA + "default")
        home.move(account, NORMAL)
        home.put(DATA + ".live", "lavoro")

    def swapped_away(home):
        """The same, with the normal folder put away too."""
        swapped(home)
        home.move(NORMAL, account)

    def swapped_alone(home):
        swapped(home)
        home.move(DATA + "default", "altrove")

    def parked(home):
        home.move(NORMAL, DATA + "default")

    yield Operation("restore-desktop-clean", words, lambda home: home.move(DATA, "altrove"))
    yield Operation("restore-desktop-parked", words, parked, moves=True)
    yield Operation("restore-desktop-swapped", words, swapped, moves=True)
    yield Operation("restore-desktop-swapped-away", words, swapped_away, moves=True)
    yield Operation("restore-desktop-swapped-alone", words, swapped_alone, moves=True)
    yield Operation("restore-desktop-across", words, swapped, moves=True,
                    setting="renameat2:error=EXDEV:when=1")


def _backups():
    def earlier(home):
        home.put("copie/a.zip", "an earlier archive", 0o600)
        home.put("copie/a.zip.partial", "left by an interrupted run", 0o600)
    for name, options in {"": [], "-principal": ["--solo-principale"], "-profiles": ["--solo-profili"]}.items():
        yield Operation(f"backup{name}", ["selvane", "backup", "@/a.zip", *options], archive=name == "",
                        leaves_nothing=True)
    yield Operation("backup-replacing", ["selvane", "backup", "@/copie/a.zip"], earlier)


def _restores():
    def older(home):
        """An archive, and what has changed since."""
        home.run("selvane", "backup", "@/a.zip")
        home.put(".claude/skills/revisione/SKILL.md", "Cambiata dopo.\n")
        home.put(".claude.json", '{"dopo": true}\n', 0o600)
        home.put(WORK + "dopo.txt", "Dopo.\n")
        home.remove(COPY + "CLAUDE.md")
    # What is replaced stands beside what replaces it until the Trash has it.
    yield Operation("restore-archive", ["operation", "restore", "@/a.zip"], older, moves=True,
                    resumes=PROFILES + r"\.selvane-restore\.json$")


def _single_operations():
    def exclude(home):
        home.edit(WORK + ".launcher.json", lambda record: record["excluded"].update(skills=["revisione"]))
        home.remove(WORK + "skills/revisione")

    def data_in_normal_folder(home):
        home.move(NORMAL, DATA + "default")
        home.move(DATA + "lavoro", NORMAL)
        home.put(DATA + ".live", "lavoro")
    own = ["operation", "make-own", "lavoro"]
    yield Operation("make-own-file", [*own, "rules", "sicurezza.md"])
    yield Operation("make-own-folder", [*own, "skills", "revisione"])
    # Where names can't be exchanged, the link is gone for a moment or, if killed there, until the next sync.
    folder = [*own, "skills", "revisione"]
    yield Operation("make-own-in-steps", folder, setting="renameat2:error=EINVAL",
                    gap=WORK + "skills/revisione$", then=[("selvane", "sync", "lavoro"), folder])
    yield Operation("make-own-linked", [*own, "skills", "traduzione"])
    # A link that was removed but not yet excluded comes back with the next sync and can be removed again.
    link = ["operation", "remove", "lavoro", "skills", "revisione"]
    yield Operation("remove-link", link, then=[("selvane", "sync", "lavoro"), link])
    yield Operation("remove-own", ["operation", "remove", "lavoro", "skills", "solo qui"])
    # Items imported before a failure stay excluded until they are removed: they are there all the same.
    yield Operation("import-items-links", ["operation", "import-items", "default", "lavoro", "skills", "link"],
                    exclude, loose=WORK + r"\.launcher\.json$")
    yield Operation("import-items-copies",
                    ["operation", "import-items", "default", "nulla", "skills", "copy"])
    yield Operation("delete", ["operation", "delete", "lavoro"])
    yield Operation("delete-live", ["operation", "delete", "lavoro"], data_in_normal_folder, moves=True,
                    then=[("selvane", "restore-desktop")])
    yield Operation("delete-without-data", ["operation", "delete", "copia"])


def _drift():
    """Items whose links have become the profile's own, and isolation, which edits the settings."""
    def changed(home):
        for item in ("rules/sicurezza.md", "skills/revisione"):
            home.run("operation", "make-own", "lavoro", *item.split("/"))
        home.put(WORK + "rules/sicurezza.md", "Diventata propria.\n", 0o640)
        home.put(WORK + "skills/revisione/lista.md", "Diventata propria anche questa.\n")

    def include(home, name):
        (home / ".claude/CLAUDE.md").write_text(f"Regole di tutti.\n@rules/squadra/{name}\n")

    def partly_shared(home):
        """Of the instructions, CLAUDE.md and some rules are taken, others and a whole folder aren't."""
        for name in ("squadra/uno.md", "squadra/due.md", "sottovoce/tre.md"):
            home.put(f".claude/rules/{name}", f"La regola {name}.\n")
        include(home, "uno.md")
        home.run("selvane", "sync", "lavoro")
        for name in ("sicurezza.md", "squadra", "sottovoce"):
            home.run("operation", "remove", "lavoro", "rules", name)

    def isolated(home):
        partly_shared(home)
        home.run("operation", "isolate", "lavoro", "yes")
        include(home, "due.md")
    sync = [("selvane", "sync", "lavoro")]
    for kind, item in {"file": ["rules", "sicurezza.md"], "folder": ["skills", "revisione"]}.items():
        yield Operation(f"relink-{kind}", ["operation", "relink", "lavoro", *item], changed, then=sync)
        yield Operation(f"bring-{kind}", ["operation", "bring", "lavoro", *item], changed, then=sync)
    yield Operation("bring-in-steps", ["operation", "bring", "lavoro", "rules", "sicurezza.md"], changed, then=sync,
                    setting="renameat2:error=EINVAL", gap=WORK + "rules/sicurezza.md$")
    settings = {"edits": [WORK + "settings.json"]}
    yield Operation("isolate", ["operation", "isolate", "lavoro", "yes"], partly_shared, **settings)
    yield Operation("isolate-off", ["operation", "isolate", "lavoro", "no"], isolated, **settings)
    yield Operation("sync-isolated", ["selvane", "sync", "lavoro"], isolated, **settings)
    yield Operation("create-isolated", ["selvane", "create", "Nuovo", "--from", "default", "--isolated", "yes",
                                        "--mode", "rules=none"], partly_shared, creates="nuovo", leaves_nothing=True)


def _taken_back():
    """Each does something and then takes it back."""
    def changed(home):
        next(operation for operation in _drift() if operation.name == "relink-file").prepare(home)

    def without_plugins(home):
        home.set_mode("copia", "plugins", "none")

    def without_leftovers(home):
        # It would come back with the profile, as if it were new.
        home.remove(WORK + ".pending-sessions/.selvane-0123456789abcdef")
    prepares = {"relink": changed, "bring": changed, "delete": without_leftovers}
    tried = {
        "delete": ["delete", "lavoro"],
        "remove-link": ["remove", "lavoro", "skills", "revisione"],
        "remove-own": ["remove", "lavoro", "skills", "solo qui"],
        "skills-separate": ["set-mode", "lavoro", "skills", "separate"],
        "skills-none": ["set-mode", "lavoro", "skills", "none"],
        "skills-shared": ["set-mode", "nulla", "skills", "shared"],
        "CLAUDE.md": ["set-mode", "lavoro", "CLAUDE.md", "separate"],
        "plugins": ["set-mode", "copia", "plugins", "separate"],
        "relink-file": ["relink", "lavoro", "rules", "sicurezza.md"],
        "relink-folder": ["relink", "lavoro", "skills", "revisione"],
        "bring-file": ["bring", "lavoro", "rules", "sicurezza.md"],
        "bring-folder": ["bring", "lavoro", "skills", "revisione"],
    }
    for name, words in tried.items():
        prepare = without_plugins if name == "plugins" else prepares.get(words[0], _nothing)
        # Where names can't be exchanged, what was made instead has no name for a moment.
        for setting, gap in (("", "$^"), ("renameat2:error=EINVAL", WORK + "|.claude/|" + COPY + "plugins")):
            yield Operation(f"take-back-{name}" + ("-in-steps" if setting else ""), ["operation", "take-back", *words],
                            prepare, undoes=["operation", *words], setting=setting, gap=gap)


OPERATIONS = [*_creations(), *_syncs(), *_collection_modes(), *_rules_modes(), *_import_modes(), *_sessions(),
              *_continuations(), *_launches(), *_helpers(), *_restorations(), *_backups(), *_restores(),
              *_single_operations(), *_drift(), *_taken_back()]
# The same on file systems that can neither exchange names nor rename without replacing.
_IN_STEPS = ("create-separate", "set-mode-CLAUDE.md-extend-separate", "set-mode-mcp-merged", "import-sessions",
             "launch-with-queue", "restore-desktop-swapped", "backup-replacing", "restore-archive",
             "import-items-copies", "delete")
OPERATIONS += [dataclasses.replace(operation, name=f"{operation.name}-in-steps", setting="renameat2:error=EINVAL")
               for operation in OPERATIONS if operation.name in _IN_STEPS]
