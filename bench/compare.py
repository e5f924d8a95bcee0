# SPDX-FileCopyrightText: 2026 The Selvane developers
# SPDX-License-Identifier: MIT
"""What script/bench runs: compare.py BINARIES WORK-FOLDER [--rounds N] [--no-growth] [--write FILE]
[--fresh COMMAND] [LINE...]; COMMAND makes WORK-FOLDER/fresh an empty file system."""

import argparse
import contextlib
import gc
import itertools
import os
import re
import shlex
import shutil
import statistics
import subprocess
import sys
import time
from dataclasses import dataclass, field
from typing import Callable

import homes

FACTORS = [1, 4, 16]
GROWTH_ROUNDS = {1: 5, 4: 4, 16: 3}
GROWTH_LIMIT = 1.2
MEMORY_LIMIT_MB = 64
HANDWRITTEN = "<!-- What follows is written by hand; script/bench keeps it. -->"


@dataclass
class Work:
    """One program to time. `reset` restores the files before each run."""
    argv: list
    reset: Callable = None
    check: Callable = None  # after the first run: raises if the work wasn't done


@dataclass
class Line:
    key: str
    work: str
    compared: str
    target: float
    ours: Callable  # (home) -> Work
    other: Callable
    rounds: int = 7
    grows: bool = True
    other_grows: bool = False  # measure its growth too, to tell Selvane's from the file system's
    memory_matters: bool = False
    other_is_part: bool = False  # Selvane runs it as well, so its memory counts too


@dataclass
class Group:
    """Lines that work on the same files."""
    fill: Callable  # (home, size)
    size: int
    unit: str
    lines: list
    growth_fill: Callable = None  # for growth; none without it
    growth_unit: str = ""  # if it is a different one
    around: Callable = field(default=lambda size: contextlib.nullcontext())
    removes: bool = False  # many files, each time


class Failure(Exception):
    pass


class Runner:
    def __init__(self, work_folder):
        self.aside = work_folder
        self.asides = itertools.count()
        self.errors = f"{work_folder}/errors"
        self.report = f"{work_folder}/memory"
        self.environment = {"PATH": "/usr/bin:/bin", "LC_ALL": "C.UTF-8"}

    def put_aside(self, *paths):
        """Moves files away without removing them: file systems are slow to reuse space that was just freed, and
        that would be measured too. Also waits for pending writes, which would slow the next run down."""
        for path in paths:
            if os.path.lexists(path):
                os.rename(path, f"{self.aside}/a{next(self.asides)}")
        os.sync()

    def enter(self, home):
        self.aside = os.path.dirname(home)
        self.environment["HOME"] = home
        self.environment["XDG_RUNTIME_DIR"] = home
        os.chdir(home)

    def run(self, argv):
        """Seconds from start to end. Avoids `subprocess`, which takes longer than the short commands."""
        actions = [
            (os.POSIX_SPAWN_OPEN, 0, "/dev/null", os.O_RDONLY, 0),
            (os.POSIX_SPAWN_OPEN, 1, "/dev/null", os.O_WRONLY, 0),
            (os.POSIX_SPAWN_OPEN, 2, self.errors, os.O_WRONLY | os.O_CREAT | os.O_TRUNC, 0o600),
        ]
        start = time.perf_counter()
        child = os.posix_spawn(argv[0], argv, self.environment, file_actions=actions)
        _, status = os.waitpid(child, 0)
        seconds = time.perf_counter() - start
        if status != 0:
            with open(self.errors, encoding="utf-8", errors="replace") as errors:
                raise Failure(f"{' '.join(argv)[:200]}: status {status}\n{errors.read()[:2000]}")
        return seconds

    def timed(self, work):
        if work.reset:
            work.reset()
        return self.run(work.argv)

    def peak_memory(self, work):
        """Megabytes, for the process or one that it started and waited for."""
        if work.reset:
            work.reset()
        self.run(["/usr/bin/time", "-f", "%M", "-o", self.report, *work.argv])
        with open(self.report, encoding="ascii") as report:
            return int(report.read()) / 1024

    def output(self, argv):
        return subprocess.run(argv, env=self.environment, check=True, capture_output=True).stdout


class Programs:
    """The command lines and their preparations."""

    def __init__(self, binaries, runner):
        self.binaries = binaries
        self.selvane = f"{binaries}/selvane"
        self.runner = runner

    def command(self, *arguments, **options):
        return lambda home: Work([self.selvane, *arguments], **options)

    def shell(self, script, **options):
        return Work(["/bin/sh", "-c", script], **options)

    def empty(self, home):
        return Work([f"{self.binaries}/empty"])

    def cat(self, folder, name):
        def make(home):
            names = self.runner.output(["find", folder, "-name", name])
            return Work(["/bin/cat", *names.decode().split()])
        return make

    # sync

    def unlinked(self, home):
        folders = [f"{home}/.claude-profiles/copia/{collection}" for collection in homes.COLLECTIONS]
        self.runner.put_aside(*folders)
        for folder in folders:
            os.mkdir(folder)

    def first_sync(self, home):
        def check():
            done = sum(len(os.listdir(f"{home}/.claude-profiles/copia/{name}")) for name in homes.COLLECTIONS)
            there = sum(len(os.listdir(f"{home}/.claude/{name}")) for name in homes.COLLECTIONS)
            require(done == there + 1, f"sync made {done} entries of {there}")  # and the profile's note
        return Work([self.selvane, "sync", "copia"], reset=lambda: self.unlinked(home), check=check)

    def find_and_link(self, home):
        script = "; ".join(f'find "$HOME/.claude/{name}" -mindepth 1 -maxdepth 1 -print0 | '
                           f'xargs -0 ln -s -t .claude-profiles/copia/{name}' for name in homes.COLLECTIONS)
        return self.shell(script, reset=lambda: self.unlinked(home))

    def idle_sync(self, home):
        self.runner.timed(self.first_sync(home))
        return Work([self.selvane, "sync", "copia"])

    def stow(self, home):
        target = f"{home}/stowed"
        for collection in homes.COLLECTIONS:
            os.makedirs(f"{target}/{collection}")
        self.runner.run(["/usr/bin/stow", "-d", home, "-t", target, "-S", ".claude"])
        return Work(["/usr/bin/stow", "-d", home, "-t", target, "-R", ".claude"])

    # create

    def create(self, home):
        modes = [part for name in [*homes.COLLECTIONS, "CLAUDE.md", "settings", "plugins", "mcp"]
                 for part in ("--mode", f"{name}=separate")]
        copy = f"{home}/.claude-profiles/copia"

        def check():
            require(count_files(f"{home}/.claude") <= count_files(copy), "create copied too little")
        return Work([self.selvane, "create", "Copia", "--from", "default", *modes],
                    reset=lambda: self.runner.put_aside(copy), check=check)

    def copy_files(self, home):
        copy = f"{home}/copied"
        return self.shell("cp -a .claude copied && sync -f copied", reset=lambda: self.runner.put_aside(copy))

    # set-mode

    def linked_again(self, home):
        skills = f"{home}/.claude-profiles/copia/skills"
        self.runner.put_aside(skills, f"{home}/copied")
        os.mkdir(skills)
        for name in os.listdir(f"{home}/.claude/skills"):
            os.symlink(f"{home}/.claude/skills/{name}", f"{skills}/{name}")
        homes.set_mode(home, "copia", "skills", "shared")
        os.sync()

    def separate(self, home):
        skills = f"{home}/.claude-profiles/copia/skills"

        def check():
            files = sum(entry.is_file(follow_symlinks=False) for entry in os.scandir(skills))
            require(files == count_files(f"{home}/.claude/skills"), "set-mode left links")
        return Work([self.selvane, "set-mode", "copia", "skills=separate"], reset=lambda: self.linked_again(home),
                    check=check)

    def copy_through_links(self, home):
        return self.shell("cp -aL .claude-profiles/copia/skills copied && sync -f copied",
                          reset=lambda: self.linked_again(home))

    # sessions

    def jq(self, home):
        names = self.runner.output(["find", ".config/Claude", "-name", "local_*.json"]).decode().split()
        fields = "[.sessionId, .title, .cwd, .lastActivityAt, .isArchived, .cliSessionId, .priorCliSessionIds]"
        return Work(["/usr/bin/jq", "-c", fields, *names])

    def import_sessions(self, home):
        data = f"{home}/.claude-profiles/.desktop-data/altro/claude-code-sessions/account/organizzazione"
        projects = f"{home}/.claude-profiles/altro/projects"

        def reset():
            self.runner.put_aside(projects, data)
            os.mkdir(data)

        def check():
            there = count_files(f"{home}/.claude/projects")
            require(count_files(data) == there and count_files(projects) == there, "import took too little")
        return Work([self.selvane, "import-sessions", "default", "altro"], reset=reset, check=check)

    def copy_sessions(self, home):
        copy = f"{home}/copied"
        script = ("mkdir copied && cp -a .config/Claude/claude-code-sessions .claude/projects copied && "
                  "sync -f copied")
        return self.shell(script, reset=lambda: self.runner.put_aside(copy))

    # conversations

    def conversations(self, home):
        return Work([f"{self.binaries}/bench-conversations", "list"])

    def cat_conversations(self, home):
        return self.shell("find .claude .claude-profiles -name '*.json*' -print0 | xargs -0 cat")

    def text_search(self, home):
        return Work([f"{self.binaries}/bench-conversations", "search", homes.UNSAID])

    def grep(self, home):
        # It says with its status that nothing was found.
        return self.shell(f"! grep -rF {homes.UNSAID} .claude/projects .claude-profiles/*/projects")

    # processes

    @contextlib.contextmanager
    def sleepers(self, count):
        program = subprocess.Popen([f"{self.binaries}/sleepers", str(count)], stdin=subprocess.PIPE,
                                   stdout=subprocess.PIPE, start_new_session=True, cwd="/")
        with program:
            try:
                require(program.stdout.readline() == b"ready\n", f"{count} processes could not be started")
                yield
            finally:
                program.stdin.close()

    def processes_of_system(self, home):
        return Work(["/bin/ps", "axeww"])

    # backup

    def backup(self, home):
        archive = f"{home}/backup.zip"
        # Don't use the Trash: it isn't part of the comparison.
        return Work([self.selvane, "backup", archive], reset=lambda: self.runner.put_aside(archive))

    def zip_and_test(self, home):
        archive = f"{home}/zipped.zip"
        patterns = ["vm_bundles/*", "claude-code/*", "claude-code-vm/*", "Crashpad/*", "*Cache/*", "*CacheStorage/*"]
        zipping = shlex.join(["/usr/bin/zip", "-r", "-y", "-q", archive, ".claude", ".claude.json", ".config/Claude",
                              ".claude-profiles", "-x", *[f".config/Claude/{pattern}" for pattern in patterns]])
        return self.shell(f"{zipping} && exec /usr/bin/unzip -tq {shlex.quote(archive)}",
                          reset=lambda: self.runner.put_aside(archive))


def require(holds, message):
    if not holds:
        raise Failure(message)


def count_files(folder):
    return sum(len(files) for _, _, files in os.walk(folder))


def groups(programs):
    command = programs.command
    return [
        Group(lambda home, size: homes.bare(home), 1, "", [
            Line("start", "start: `path default`", "an empty C++ program that includes `<filesystem>`", 2.0,
                 command("path", "default"), programs.empty, rounds=301),
        ]),
        Group(homes.profiles, 1000, "profiles", [
            Line("list", "`list`", "`cat` of the profiles' records", 2.0,
                 command("list"), programs.cat(".claude-profiles", ".launcher.json"), rounds=31),
        ], growth_fill=homes.profiles),
        Group(homes.items, 20_000, "items", [
            Line("first-sync", "first `sync`", "`find … -print0 \\| xargs -0 ln -s -t`, five folders", 1.0,
                 programs.first_sync, programs.find_and_link, other_grows=True),
            Line("idle-sync", "`sync` with nothing to do", "`stow -R` of the same tree", 0.1,
                 programs.idle_sync, programs.stow, rounds=5),
        ], growth_fill=homes.items),
        Group(lambda home, size: homes.files(home, size, size * 53_687), 20_000, "files of 54 KB", [
            Line("create", "`create`, all `separate`", "`cp -a`, then `sync -f`", 0.65, programs.create,
                 programs.copy_files, rounds=5, memory_matters=True, other_grows=True),
        ], growth_fill=lambda home, size: homes.files(home, size, size * 1000), growth_unit="files of 1 KB"),
        Group(lambda home, size: homes.linked_files(home, size, size * 53_687), 20_000, "files of 54 KB, linked", [
            Line("separate", "`set-mode skills=separate`", "`cp -aL`, then `sync -f`", 0.65, programs.separate,
                 programs.copy_through_links, rounds=5, grows=False),
        ], removes=True),
        Group(lambda home, size: homes.sessions(home, size, 60_000, 1000), 5000, "records of 60 KB", [
            Line("sessions", "`sessions`", "`cat` of the records", 1.5,
                 command("sessions", "default"), programs.cat(".config/Claude", "local_*.json"), rounds=15,
                 memory_matters=True),
            Line("sessions-jq", "`sessions`", "`jq` reading the same fields", 1 / 12,
                 command("sessions", "default"), programs.jq, rounds=3, grows=False),
        ], growth_fill=lambda home, size: homes.sessions(home, size, 6000, 1000), growth_unit="records of 6 KB"),
        Group(lambda home, size: homes.sessions(home, size, 60_000, 160_000), 2000, "sessions with transcripts", [
            Line("import", "`import-sessions`", "`cp -a` of records and transcripts, then `sync -f`", 0.8,
                 programs.import_sessions, programs.copy_sessions, other_grows=True),
        ], growth_fill=lambda home, size: homes.sessions(home, size, 6000, 16_000),
           growth_unit="sessions of 6 KB, transcripts of 16 KB"),
        Group(homes.conversations, 20_000, "conversations, transcripts of 54 KB", [
            Line("conversations", "the list of conversations", "`cat` of the records and transcripts", 1.0,
                 programs.conversations, programs.cat_conversations, rounds=9, other_grows=True),
            Line("text-search", "a search in 1 GB of transcripts", "`grep -rF`", 1.0, programs.text_search,
                 programs.grep, rounds=9, other_grows=True),
        ], growth_fill=lambda home, size: homes.conversations(home, size, 4000),
           growth_unit="conversations, transcripts of 4 KB"),
        Group(lambda home, size: homes.bare(home), 1500, "processes", [
            Line("processes", "`processes`", "`ps axeww`", 0.7, command("processes"), programs.processes_of_system,
                 rounds=21),
            Line("desktop-status", "`desktop-status`", "`ps axeww`", 0.7, command("desktop-status"),
                 programs.processes_of_system, rounds=21),
        ], growth_fill=lambda home, size: homes.bare(home), around=programs.sleepers),
        Group(lambda home, size: homes.files(home, size, size * 268_435), 4000, "files of 268 KB", [
            Line("backup", "`backup`, read back", "the bare `zip` call, then `unzip -tq`", 1.0, programs.backup,
                 programs.zip_and_test, rounds=9, memory_matters=True, other_is_part=True, other_grows=True),
        ], growth_fill=lambda home, size: homes.files(home, size, size * 16_000), growth_unit="files of 16 KB"),
    ]


class Bench:
    def __init__(self, options):
        self.options = options
        self.runner = Runner(options.folder)
        self.groups = groups(Programs(options.binaries, self.runner))
        self.folders = []
        self.results, self.growth, self.memory = [], [], []

    def run(self):
        for group in self.groups:
            group.lines = [line for line in group.lines if not self.options.line or line.key in self.options.line]
            group.size = max(round(group.size * self.options.scale), 1)
        self.groups = [group for group in self.groups if group.lines]
        for group in self.groups:
            folder = self.new_disk() if group.removes else self.new_folder()
            with self.home(group, group.fill, group.size, folder) as home:
                for line in group.lines:
                    self.compare(group, line, home)
        if self.options.fresh:  # what is removed slows the disk down, but not a new file system
            for folder in self.folders:
                shutil.rmtree(folder)
        for group in self.groups:
            if self.options.growth and group.growth_fill:
                self.grow(group)

    def new_folder(self):
        self.folders.append(f"{self.options.folder}/h{len(self.folders)}")
        os.mkdir(self.folders[-1])
        return self.folders[-1]

    def new_disk(self):
        """A new file system, if there are any. It lies in a file, which takes processor time as well, from programs
        that use all processors most of all."""
        if not self.options.fresh:
            return self.new_folder()
        subprocess.run(shlex.split(self.options.fresh), check=True)
        return f"{self.options.folder}/fresh"

    @contextlib.contextmanager
    def home(self, group, fill, size, folder):
        home = f"{folder}/home"
        os.mkdir(home)
        fill(home, size)
        os.sync()
        self.runner.enter(home)
        with group.around(size):
            yield home
        os.chdir("/")

    def compare(self, group, line, home):
        works = [line.ours(home), line.other(home)]
        for work in works:  # warms up the cache
            self.runner.timed(work)
            if work.check:
                work.check()
        times = ([], [])
        for number in range(self.options.rounds or line.rounds):
            for side in (0, 1) if number % 2 == 0 else (1, 0):
                times[side].append(self.runner.timed(works[side]))
        ratios = sorted(ours / other for ours, other in zip(*times))
        result = Result(group, line, *map(statistics.median, times), ratios)
        self.results.append(result)
        print(result.text(), flush=True)

    def grow(self, group):
        lines = [line for line in group.lines if line.grows]
        before = len(self.memory)
        costs = {line.key: ([], []) for line in lines}
        for factor in FACTORS:
            size = group.size * factor
            with self.home(group, group.growth_fill, size, self.new_disk()) as home:
                for line in lines:
                    work = line.ours(home)
                    peak = self.runner.peak_memory(work)
                    works = [work, line.other(home)] if line.other_grows else [work]
                    rounds = [[self.runner.timed(each) for each in works] for _ in range(GROWTH_ROUNDS[factor])]
                    for side, times in enumerate(zip(*rounds)):
                        # Take the least: anything else that goes on only adds to it, above all writing the
                        # remains of earlier rounds to the disk.
                        costs[line.key][side].append(min(times) / size)
                    if factor == FACTORS[-1]:
                        self.memory.append((f"{line.work}, {size:,} {group.growth_unit or group.unit}", peak,
                                            line.memory_matters))
                        if line.other_is_part:
                            alone = self.runner.peak_memory(line.other(home))
                            self.memory.append((f"the same by {line.compared}", alone, False))
        for line in lines:
            growth = Growth(group, line, *costs[line.key])
            self.growth.append(growth)
            print(growth.text(), flush=True)
        for work, peak, _ in self.memory[before:]:
            print(f"peak memory of {work}: {peak:.1f} MB", flush=True)


@dataclass
class Result:
    group: Group
    line: Line
    ours: float
    other: float
    ratios: list

    def ratio(self):
        return statistics.median(self.ratios)

    def spread(self):
        if len(self.ratios) < 2:
            return self.ratios[0], self.ratios[0]
        low, _, high = statistics.quantiles(self.ratios, n=4, method="inclusive")
        return low, high

    def size(self):
        return f"{self.group.size:,} {self.group.unit}" if self.group.unit else ""

    def text(self):
        low, high = self.spread()
        return (f"{self.line.key:15} {milliseconds(self.ours):>10} {milliseconds(self.other):>10}   "
                f"ratio {self.ratio():.3f} ({low:.3f} to {high:.3f}), target {self.line.target:.3f}"
                f"{'' if self.ratio() <= self.line.target else '  MISSED'}")

    def row(self):
        low, high = self.spread()
        met = "" if self.ratio() <= self.line.target else ", missed"
        return (f"| {self.line.work} | {self.size()} | {self.line.compared} | {milliseconds(self.ours)} | "
                f"{milliseconds(self.other)} | {self.ratio():.3f} ({low:.3f}–{high:.3f}) | "
                f"≤ {self.line.target:.3g}{met} |")


@dataclass
class Growth:
    group: Group
    line: Line
    costs: list
    others: list

    def ratio(self):
        return self.costs[-1] / self.costs[0]

    def ratio_of_other(self):
        return f"{self.others[-1] / self.others[0]:.2f}" if self.others else ""

    def text(self):
        costs = " ".join(microseconds(cost) for cost in self.costs)
        return (f"{self.line.key:15} growth from {self.group.size:,}: {costs}, ratio {self.ratio():.2f}"
                f"{'' if self.ratio() <= GROWTH_LIMIT else '  MISSED'}"
                f"{', the other ' + self.ratio_of_other() if self.others else ''}")

    def row(self):
        cells = " | ".join(microseconds(cost) for cost in self.costs)
        met = "" if self.ratio() <= GROWTH_LIMIT else ", missed"
        unit = self.group.growth_unit or self.group.unit
        return (f"| {self.line.work} | {self.group.size:,} {unit} | {cells} | {self.ratio():.2f}{met} | "
                f"{self.ratio_of_other()} |")


def milliseconds(seconds):
    return f"{seconds * 1000:,.{2 if seconds < 0.1 else 0}f} ms"


def microseconds(seconds):
    return f"{seconds * 1e6:,.1f} µs"


def machine(folder):
    with open("/proc/meminfo", encoding="ascii") as meminfo:
        memory = int(re.search(r"MemTotal:\s+(\d+)", meminfo.read()).group(1)) / 1024 / 1024
    kernel = ".".join(os.uname().release.split(".")[:2])
    system = subprocess.run(["stat", "-f", "-c", "%T", folder], check=True, capture_output=True, text=True).stdout
    return f"{os.cpu_count()} cores, {memory:.0f} GB of memory, Linux {kernel}, {system.strip()}"


def document(bench, machine_kind, handwritten):
    lines = [
        "# Speed, side by side", "",
        "Written by `script/bench`, which generates the files, runs every comparison in one go (the two programs in",
        "turns, with a warm cache) and takes medians. The ratio is the median of the rounds' ratios, with its",
        f"quartiles. Release build; {machine_kind}. No time here is a target: only the ratios are.", "",
        "| work | size | compared with | Selvane | the other | Selvane / other | target |",
        "|---|---|---|---|---|---|---|", *[result.row() for result in bench.results], "",
        "## Growth", "",
        "The least cost per unit at 1, 4 and 16 times a size; at 16 times it is to be at most "
        f"{GROWTH_LIMIT} times the first.",
        "The files are smaller than in the first table where 16 times as many would be too much to write. The last",
        "column is the growth of the program that the work is compared with, where the file system sets the pace of",
        "both.", "",
        "| work | 1× | cost at 1× | at 4× | at 16× | 16× / 1× | the other's |", "|---|---|---|---|---|---|---|",
        *[growth.row() for growth in bench.growth], "",
        "## Peak memory", "",
        f"Of the largest process at 16×, those that it starts included. `sessions`, `create` and `backup` are to stay "
        f"below {MEMORY_LIMIT_MB} MB.", "",
        "| work | peak |", "|---|---|",
        *[f"| {work} | {peak:.0f} MB{', missed' if limited and peak >= MEMORY_LIMIT_MB else ''} |"
          for work, peak, limited in bench.memory], "",
    ]
    return "\n".join(lines) + "\n" + HANDWRITTEN + handwritten


def main():
    parser = argparse.ArgumentParser(prog="script/bench")
    parser.add_argument("binaries")
    parser.add_argument("folder")
    parser.add_argument("--rounds", type=int)
    parser.add_argument("--scale", type=float, default=1.0)
    parser.add_argument("--no-growth", dest="growth", action="store_false")
    parser.add_argument("--write")
    parser.add_argument("--fresh")
    parser.add_argument("line", nargs="*")
    options = parser.parse_intermixed_args()
    bench = Bench(options)
    known = {line.key for group in bench.groups for line in group.lines}
    if unknown := set(options.line) - known:
        parser.error(f"no line is called {', '.join(sorted(unknown))}; there are {', '.join(sorted(known))}")
    gc.disable()
    machine_kind = machine(options.folder)
    try:
        bench.run()
    except Failure as failure:
        sys.exit(f"bench: {failure}")
    if options.write:
        with contextlib.suppress(FileNotFoundError), open(options.write, encoding="utf-8") as before:
            handwritten = before.read().partition(HANDWRITTEN)[2]
        with open(options.write, "w", encoding="utf-8") as after:
            after.write(document(bench, machine_kind, handwritten))


if __name__ == "__main__":
    main()
