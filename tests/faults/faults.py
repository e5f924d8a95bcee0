# SPDX-FileCopyrightText: 2026 The Selvane developers
# SPDX-License-Identifier: MIT
"""Makes every system call with which Selvane changes or reads files fail, one at a time, or the disk be full. See
script/faults."""

import argparse
import dataclasses
import multiprocessing
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time

import checking
import home as homes
import tracing
import zip_under_strace
from operations import OPERATIONS


GOLDEN_RATIO = 0.618
ATTEMPTS = 5
PAGE = os.sysconf("SC_PAGE_SIZE")
AMPLE = 1 << 16  # pages


class Place:
    """Where one process tries operations: a home at a fixed path, which its links contain, and copies of it."""

    def __init__(self, folder, build, on_own_disk):
        self.folder = pathlib.Path(folder)
        self.home = homes.Home(self.folder / "home", build)
        self.home.path.mkdir()
        if on_own_disk:
            subprocess.run(["mount", "-t", "tmpfs", "-o", f"size={PAGE * AMPLE},mode=755", "selvane-faults",
                            self.home.path], check=True)
        homes.fill(self.home)
        self.keep("base")

    def keep(self, name):
        subprocess.run(["rm", "-rf", self.folder / name], check=True)
        subprocess.run(["cp", "-a", self.home.path, self.folder / name], check=True)

    def restore(self, name):
        subprocess.run(["find", self.home.path, "-mindepth", "1", "-delete"], check=True)
        subprocess.run(["cp", "-a", f"{self.folder / name}/.", self.home.path], check=True)

    def leave_pages(self, count):
        """Makes the home's own file system full once so many pages have been written. All of them: AMPLE."""
        if count != AMPLE:
            room = os.statvfs(self.home.path)
            count += (room.f_blocks - room.f_bfree) * room.f_frsize // PAGE
        subprocess.run(["mount", "-o", f"remount,size={PAGE * count}", self.home.path], check=True)


@dataclasses.dataclass
class Result:
    operation: str
    calls: int
    tried: int
    failures: list  # (name of the point, the call, problems)


def again(operation, command, expectation, home, now):
    """Runs the same command without a fault. Returns what is wrong with the result."""
    if operation.undoes: # only the process that has done it knows how
        return []
    run = tracing.run(command, home)
    if run.status != 0:
        return [f"a second run fails: {run.err!r}"]
    for words in operation.then:
        tracing.run(home.command(words), home)
    made = run.out.strip()
    renamed = (made, operation.creates) if operation.creates else ("", "")
    then = checking.scan(home, renamed)
    problems = expectation.lost(then) + expectation.opened(then)
    return problems + ["after a second run " + problem for problem in
                       expectation.unlike(then, expectation.after, operation.loose) +
                       expectation.unsaved(then, may_name=False) +
                       [path for path in expectation.leftovers(then) if "/.selvane-batch-" in path]]


def shown_leftovers(home, expectation, now):
    """Whether a new temporary is shown as an item of a profile."""
    if not any(checking.is_temporary(path) for path in now.keys() - expectation.before.keys()):
        return []
    listed = tracing.run(home.command(["selvane", "list"]), home)
    profiles = [line.split("\t")[0] for line in listed.out.splitlines()]
    shown = [tracing.run(home.command(["selvane", "items", profile]), home).out for profile in profiles]
    return ["a temporary is shown as an item"] if ".selvane-" in "".join([listed.out, *shown]) else []


def run_to(operation, place, point):
    """Runs an operation so that the point's call fails. Returns the run, None if it never came to that call, and the
    point with the number that the call had."""
    home = place.home
    command = home.command(operation.command)
    for _ in range(ATTEMPTS):
        place.restore("before")
        run = tracing.run_with_fault(command, home, operation.setting, point)
        if run.reached(point, home):
            return run, point
        place.restore("before")
        point = tracing.found_again(point, command, home, operation.setting) or point
    return None, point


def try_point(operation, place, expectation, point):
    home = place.home
    command = home.command(operation.command)
    try:
        run, point = run_to(operation, place, point)
        if run is None:
            return None if point.reads else ["the call was not reached"]
        now = checking.scan(home)
        problems = checking.problems_after(operation, expectation, run, point, now)
        problems += shown_leftovers(home, expectation, now)
        return problems + again(operation, command, expectation, home, now)
    except (subprocess.TimeoutExpired, TimeoutError) as error:
        return [f"doesn't end: {error}"]


def run_on_full_disk(operation, place, expectation, pages):
    """Runs an operation for which so many pages are left. Returns whether it noticed that, and what is wrong."""
    home = place.home
    command = home.command(operation.command)
    place.restore("before")
    place.leave_pages(pages)
    try:
        run = tracing.run(command, home)
    except (subprocess.TimeoutExpired, TimeoutError) as error:
        return True, [f"doesn't end: {error}"]
    finally:
        place.leave_pages(AMPLE)
    now = checking.scan(home)
    problems = checking.problems_after(operation, expectation, run, tracing.Point("full", pages, "ENOSPC"), now)
    problems += shown_leftovers(home, expectation, now)
    return run.status != 0, problems + again(operation, command, expectation, home, now)


def try_full_disk(operation, place, expectation, options):
    """Leaves a page more each time, later an eighth more, until the operation succeeds twice in a row."""
    wanted = int(options.only.split(":")[2]) if options.only else None
    failures, tried, pages, successes = [], 0, wanted or 0, 0
    while successes < 2:
        has_failed, problems = run_on_full_disk(operation, place, expectation, pages)
        tried += 1
        successes = 0 if has_failed else successes + 1
        if problems:
            failures.append((f"{operation.name}:full:{pages}:ENOSPC", f"with {pages} pages left", problems))
        if wanted is not None:
            break
        pages += max(1, pages // (2 if options.quick else 8))
    return tried, failures


def run_without_fault(operation, place):
    """Prepares the home and saves a copy. Returns what to expect, and the calls that can fail."""
    home = place.home
    place.restore("base")
    operation.prepare(home)
    homes.make_old(home)
    place.keep("before")
    if operation.undoes:
        home.run(*operation.undoes)
    before = checking.scan(home)
    place.restore("before")
    command = home.command(operation.command)
    calls = tracing.calls(command, home, operation.setting)
    if operation.undoes:
        done = next(at for at, point in enumerate(calls) if "/.take-back" in point.line)
        calls = calls[done + 1:]
    expectation = checking.Expectation(before, checking.scan(home))
    for step in zip_under_strace.STEPS if operation.archive and _worker["options"].zip else ():
        place.restore("before")
        calls += tracing.calls_of_zip(command, home, step)
    return expectation, calls


def try_operation(number):
    operation, options = OPERATIONS[number], _worker["options"]
    if "place" not in _worker:
        _worker["place"] = Place(tempfile.mkdtemp(prefix="p", dir=_worker["folder"]), options.build,
                                 options.full)
    place = _worker["place"]
    expectation, calls = run_without_fault(operation, place)
    if options.full:
        tried, failures = try_full_disk(operation, place, expectation, options)
        return Result(operation.name, len(calls), tried, failures)
    points = [fault for call in calls for fault in tracing.faults(call)]
    if options.only:
        points = [point for point in points if f"{operation.name}:{point}" == options.only]
    points = [point for point in points if options.calls in ("all", "reads" if point.reads else "changes")]
    if options.part:
        part, parts = options.part
        points = points[(number + part) % parts::parts]
    if options.quick:
        # Another part of each operation: early ones, late ones, all kinds of faults.
        points = [kind[int(number * GOLDEN_RATIO % 1 * len(kind))]
                  for kind in ([point for point in points if not point.reads],
                               [point for point in points if point.reads]) if kind]
    failures = []
    tried = 0
    for point in points:
        problems = try_point(operation, place, expectation, point)
        tried += problems is not None
        if problems:
            failures.append((f"{operation.name}:{point}", point.line, problems))
    replaced = [] if operation.undoes else expectation.replaced() # that was Selvane's own
    if replaced != list(operation.edits):
        failures.append((operation.name, "without any fault", [f"replaces {path}" for path in replaced]))
    return Result(operation.name, len(calls), tried, failures)


_worker = {}  # the options of this process, and the place it works in


def start_worker(options, folder):
    tracing.adopt_orphans()
    _worker.update(options=options, folder=folder)


def row(*cells):
    print("{:34} {:>6} {:>6} {:>6}".format(*cells), flush=True)


def report(results):
    """Prints the results as they come. Returns whether there are any and none failed."""
    started = time.monotonic()
    row("operation", "calls", "tried", "failed")
    calls = tried = failed = 0
    for result in results:
        row(result.operation, result.calls, result.tried, len(result.failures))
        for name, call, problems in result.failures:
            print(f"FAILED {name}\n    {call}", *problems[:8], sep="\n    ")
        calls, tried, failed = calls + result.calls, tried + result.tried, failed + len(result.failures)
    row(f"in all, in {time.monotonic() - started:.0f} s", calls, tried, failed)
    return tried > 0 and failed == 0


def arguments():
    parser = argparse.ArgumentParser()
    parser.add_argument("--build", required=True)
    parser.add_argument("--quick", action="store_true")
    parser.add_argument("--full", action="store_true")
    parser.add_argument("--apart", action="store_true", help="in a mount namespace of its own, as root")
    parser.add_argument("--calls", choices=("all", "changes", "reads"), default="all")
    parser.add_argument("--part", type=lambda text: tuple(map(int, text.split("/"))), metavar="K/N")
    parser.add_argument("--only", metavar="OPERATION[:CALL:N:ERROR]")
    parser.add_argument("--in", dest="folder", default="/dev/shm" if os.access("/dev/shm", os.W_OK) else None)
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    options = parser.parse_args()
    options.zip = options.apart and not options.full
    return options


def main():
    options = arguments()
    wanted = (options.only or "").split(":")[0]
    numbers = [number for number, operation in enumerate(OPERATIONS) if wanted in ("", operation.name)
               and not (options.full and (operation.setting or operation.undoes))]
    if options.only == wanted:
        options.only = None
    folder = tempfile.mkdtemp(prefix="selvane-faults-", dir=options.folder)
    try:
        if options.zip:
            zip_under_strace.install(folder)
        elif not options.full:
            print("faults: SKIPPED: the calls of zip, which need root", file=sys.stderr)
        with multiprocessing.Pool(options.jobs, start_worker, (options, folder)) as pool:
            succeeded = report(pool.imap(try_operation, numbers))
    finally:
        if options.full:
            subprocess.run(["umount", "--lazy", *pathlib.Path(folder).glob("*/home")], check=False)
        shutil.rmtree(folder, ignore_errors=True)
    sys.exit(0 if succeeded else 1)


if __name__ == "__main__":
    main()
