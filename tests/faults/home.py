# SPDX-FileCopyrightText: 2026 The Selvane developers
# SPDX-License-Identifier: MIT
"""A throw-away home with something of everything that Selvane handles, and the programs run in it."""

import json
import os
import pathlib
import shutil
import subprocess

REPOSITORY = pathlib.Path(__file__).resolve().parents[2]
SECRET = b"t0k3n"  # in files that only their owner may read
LONG_AGO = 1_500_000_000
OWN_FILES = (".launcher.json", "default.json", ".active", ".live", "selvane-profile.md", "LEGGIMI.txt",
             "claude-profile")
COLLECTIONS = ("skills", "agents", "commands", "output-styles", "rules")
PROFILES = ".claude-profiles/"
DATA = PROFILES + ".desktop-data/"
NORMAL = ".config/Claude/"


class Home:
    """A home folder, and Selvane's programs from the folder `build` to run in it."""

    def __init__(self, path, build):
        self.path = pathlib.Path(path)
        self.programs = {"selvane": f"{build}/selvane", "operation": f"{build}/single-operation"}
        share = f"{path}/.local/share"
        # A substitute data folder, so that other copies of Claude Desktop running here don't matter.
        self.environment = {
            "PATH": "/usr/bin:/bin", "LC_ALL": "C.UTF-8", "HOME": str(path), "TMPDIR": f"{path}/tmp", "XDG_RUNTIME_DIR": f"{path}/tmp",
            "XDG_CONFIG_HOME": f"{path}/.config", "XDG_DATA_HOME": share, "XDG_DATA_DIRS": share,
            "XDG_CACHE_HOME": f"{path}/.cache", "CLAUDE_LAUNCHER_DESKTOP_DIR": f"{path}/.config/Claude"}

    def __truediv__(self, below):
        return self.path / below

    def command(self, words):
        """The command line for a program and its arguments, with "@" for the home folder."""
        return [self.programs[words[0]], *(word.replace("@", str(self.path)) for word in words[1:])]

    def run(self, *words):
        done = subprocess.run(self.command(words), env=self.environment, cwd="/", capture_output=True)
        if done.returncode != 0:
            raise RuntimeError(f"{words} fails: {done.stderr.decode()}")

    def put(self, name, text, mode=0o644):
        file = self / name
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(text.replace("@", str(self.path)))
        file.chmod(mode)

    def link(self, name, target):
        (self / name).symlink_to(target.replace("@", str(self.path)))

    def remove(self, *names):
        for name in names:
            path = self / name
            shutil.rmtree(path) if path.is_dir() and not path.is_symlink() else path.unlink()

    def move(self, origin, target):
        (self / origin).rename(self / target)

    def edit(self, name, change):
        """Changes the object in a JSON file."""
        value = json.loads((self / name).read_text())
        change(value)
        (self / name).write_text(json.dumps(value, indent=2))

    def set_mode(self, profile, part, mode):
        """Changes the mode in a profile's record without applying it."""
        def change(record):
            record["modes"][part] = mode
        self.edit(f"{PROFILES}{profile}/.launcher.json", change)


def session(home, name, folder, number):
    """A session record of the Code tab; its conversation has the same number."""
    record = {"sessionId": f"local_{name}", "cliSessionId": f"cli-{number}", "title": name, "cwd": "/",
              "lastActivityAt": 1772000000000 + number, "remoteMcpServersConfig": SECRET.decode()}
    home.put(f"{folder}/local_{name}.json", json.dumps(record), 0o600)


def fill_source(home):
    subprocess.run([REPOSITORY / "script/sample-home", home.path], check=True)
    # A dangling link: as an item it can't be copied; inside one, it is copied as it is.
    home.move(".claude/commands/perduto.md", ".claude/commands/git/perduto.md")
    folder = ".claude/skills/revisione/"
    home.put(folder + "prova.sh", "#!/bin/sh\n", 0o755)
    home.put(folder + "chiave.txt", SECRET.decode(), 0o600)
    home.link(folder + "collegata", "lista.md")
    with open(home / folder / "disco.img", "wb") as image:
        image.seek(262144)
        image.write(b"after the hole")
    os.mkfifo(home / folder / "canale")
    (home / folder / "vuota").mkdir(mode=0o750)
    try:
        os.setxattr(home / folder / "lista.md", "user.origine", b"casa")
    except OSError:
        pass  # not every file system has attributes
    home.put(NORMAL + "extensions-blocklist.json", "{}")
    home.put(NORMAL + "claude-code/1.0/claude", "#!/bin/sh\n", 0o755)
    for record in (home / NORMAL).rglob("local_*.json"):
        record.chmod(0o600)
    home.put(".claude/projects/-progetti-negozio/cli-2.jsonl", SECRET.decode() + "\n", 0o600)


def install_application(home):
    """A Claude Desktop that ends as soon as it is started."""
    program = ".local/lib/claude-desktop/claude-desktop"
    home.put(program, "#!/bin/sh\n", 0o755)
    home.put(".local/share/applications/com.anthropic.Claude.desktop",
             f"[Desktop Entry]\nType=Application\nName=Claude\nExec=\"@/{program}\" %U\n")


def make_profiles(home):
    every = [f"--mode={part}=separate" for part in (*COLLECTIONS, "CLAUDE.md")]
    nothing = [f"--mode={part}=none"
               for part in (*COLLECTIONS, "CLAUDE.md", "settings", "plugins", "mcp")]

    def create(*words):
        home.run("selvane", "create", *(part for word in words for part in word.split("=", 1)))
    create("Lavoro", "--from=default")
    create("Copia", "--from=default", *every)
    create("Nulla", "--from=default", *nothing)
    create("Ospite", "--from=default", "--account=default")
    create("Vuoto")
    home.put(PROFILES + "lavoro/skills/solo qui/SKILL.md", "Una capacità propria.\n")
    home.link(PROFILES + "lavoro/agents/altrove.md", "@/dotfiles/altrove.md")
    home.put(PROFILES + "lavoro/bozze/appunti.txt", "Nessuna parte del profilo.\n")


def make_accounts(home):
    sessions = DATA + "lavoro/claude-code-sessions/conto-l/org"
    session(home, "proprio", sessions, 11)
    (home / DATA).chmod(0o700)
    (home / DATA / "lavoro").chmod(0o700)
    home.put(DATA + "lavoro/Cookies", SECRET.decode(), 0o600)
    queue = PROFILES + "lavoro/.pending-sessions"
    session(home, "in-coda-1", queue, 21)
    session(home, "in-coda-2", queue, 22)
    session(home, "proprio", queue, 11)  # already placed
    home.put(queue + "/.selvane-0123456789abcdef", "left by an interrupted run", 0o600)


def make_unique(home):
    """Makes every copy in a profile differ from its original, so that a lost one can't be mistaken for it."""
    for path in (home / PROFILES).rglob("*"):
        if path.is_symlink() or not path.is_file() or path.name in OWN_FILES or ".selvane-" in path.name:
            continue
        mark = str(path.relative_to(home.path))
        if path.suffix == ".json" and "sessions" not in mark:
            home.edit(mark, lambda value, mark=mark: value.update(posto=mark))
        elif path.suffix != ".json":
            with open(path, "ab") as file:
                file.write(f"\n{mark}\n".encode())


def make_old(home):
    for path in home.path.rglob("*"):
        os.utime(path, (LONG_AGO, LONG_AGO), follow_symlinks=False)


def fill(home):
    home.path.mkdir(parents=True, exist_ok=True)
    fill_source(home)
    (home / "tmp").mkdir()
    install_application(home)
    make_profiles(home)
    make_accounts(home)
    make_unique(home)
    make_old(home)
