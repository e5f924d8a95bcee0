# SPDX-FileCopyrightText: 2026 The Selvane developers
# SPDX-License-Identifier: MIT
"""Cuts the power at moments during and after operations. See script/power-cut."""

import argparse
import dataclasses
import multiprocessing
import os
import pathlib
import stat
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "faults"))

# pylint: disable=wrong-import-position
import checking
import disks
import faults
import home as homes
import tracing
from operations import OPERATIONS

# Each of these calls is followed by a pause, so that there is a moment after each.
CALLS = "fsync,fdatasync,syncfs,rename,renameat,renameat2,unlink,unlinkat,symlinkat,mkdirat,mkdir,fchmod"
PAUSE = 8000  # microseconds
# The file systems write by themselves what changed a second ago: names first, content much later.
LATER = 1.4
QUICK = {"create-separate-account", "set-mode-CLAUDE.md-shared-separate", "set-mode-mcp-merged", "import-sessions",
         "restore-desktop-mounts", "set-mode-skills-shared-separate"}
# Of what is taken back, those that make nothing instead: there is only the state before and the Trash.
TAKEN_BACK = ("take-back-delete", "take-back-remove-own")
# What makes links, which the next sync makes again: nothing waits for them or for the folders that they are in.
MAKE_LINKS = ("sync", "launch", "set-mode-skills-none-shared")


def chosen_operations():
    swapped = next(operation for operation in OPERATIONS if operation.name == "restore-desktop-swapped")
    # The normal folder and the accounts' folders lie on two file systems.
    mounts = dataclasses.replace(swapped, name="restore-desktop-mounts")
    return [operation for operation in [*OPERATIONS, mounts] if not operation.setting
            and (not operation.undoes or operation.name in TAKEN_BACK)]


def _files(paths):
    return {path: entry for path, entry in paths.items() if entry.kind == stat.S_IFREG}


@dataclasses.dataclass
class Cut:
    name: str
    ended: bool  # the command had ended


class Machine:
    """A home on a disk, and what is done to it."""

    def __init__(self, kind, options):
        self.options = options
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix=f"{kind.name}-", dir=options.folder))
        self.shelf = disks.Shelf(self.folder, kind.name)
        self.disk = disks.Disk(kind, self.shelf, self.folder / "disk")
        self.home = homes.Home(self.folder / "disk/home", options.build)
        self.disk.mount()
        homes.fill(self.home)
        self.disk.unmount()
        self.disk.keep("base")

    def prepare(self, operation):
        """Returns what to expect. The disk is then kept as "before"."""
        self.disk.second = None
        self.disk.restore("base")
        self.disk.mount()
        operation.prepare(self.home)
        if operation.name.endswith("-mounts"):
            self.disk.mount_second(self.home / ".config")
        homes.make_old(self.home)
        before = checking.scan(self.home)
        self.disk.unmount()
        self.disk.keep("before")
        self.disk.mount()
        self.home.run(*operation.command)
        after = checking.scan(self.home)
        self.disk.unmount()
        return checking.Expectation(before, after)

    def run_with_cuts(self, operation):
        """Runs the command and keeps the disk at many moments. Returns the command's status and the cuts."""
        self.disk.restore("before")
        self.disk.mount()
        cuts, last = [], None

        def cut(ended):
            nonlocal last
            changed = self.shelf.changed(self.disk.FILE)
            if changed == last and not ended:
                time.sleep(0.001)
                return
            last = changed
            cuts.append(Cut(f"cut-{len(cuts)}", ended))
            self.disk.keep(cuts[-1].name)
        command = ["strace", "-f", "-qq", "-o", "/dev/null", "--seccomp-bpf", f"--trace={CALLS}",
                   f"--inject={CALLS}:delay_exit={PAUSE}", *self.home.command(operation.command)]
        with subprocess.Popen(command, env=self.home.environment, cwd="/", stdin=subprocess.DEVNULL,
                              stdout=subprocess.DEVNULL, stderr=subprocess.PIPE) as process:
            while process.poll() is None:
                cut(False)
            error = process.stderr.read().decode()
        cut(True)
        time.sleep(LATER)
        cut(True)
        self.disk.unmount()
        if process.returncode != 0:
            raise RuntimeError(f"{operation.name} fails: {error}")
        return cuts

    def choose(self, cuts):
        """Evenly spread ones of those during the command, and all after it."""
        during = [cut for cut in cuts if not cut.ended]
        step = max(len(during) / self.options.moments, 1)
        chosen = [during[int(number * step)] for number in range(int(len(during) / step))]
        chosen += [cut for cut in cuts if cut.ended]
        for cut in cuts:
            if cut not in chosen:
                self.shelf.remove(cut.name)
        return chosen

    def problems(self, operation, expectation, cut):
        self.disk.restore(cut.name)
        self.shelf.remove(cut.name)
        self.disk.mount()
        try:
            now = checking.scan(self.home)
            seen = now
            made = homes.PROFILES + operation.creates
            if operation.creates and f"{made}/.launcher.json" not in now:
                # Without its record it is no profile, and nobody reads it.
                seen = {path: entry for path, entry in now.items() if not f"{path}/".startswith(f"{made}/")}
            problems = expectation.lost(now) + expectation.opened(now)
            problems += expectation.between(seen, operation.moves, operation.gap)
            if cut.ended:
                chosen = _files if operation.name.startswith(MAKE_LINKS) else dict
                problems += expectation.unlike(chosen(now), chosen(expectation.after), operation.loose)
            return problems + faults.again(operation, self.home.command(operation.command), expectation, self.home,
                                           now)
        finally:
            self.disk.unmount()

    def try_operation(self, operation):
        expectation = self.prepare(operation)
        cuts = self.choose(self.run_with_cuts(operation))
        failures = []
        for cut in cuts:
            problems = self.problems(operation, expectation, cut)
            if problems:
                failures.append((f"{cut.name}, {'after' if cut.ended else 'during'} the command", problems))
        return len(cuts), failures


def try_disk(work):
    """All operations on one kind of disk. Returns the number of cuts and of those that failed."""
    kind, options = work
    tracing.adopt_orphans()
    machine = Machine(kind, options)
    tried = failed = 0
    for operation in chosen_operations():
        wanted = options.only or (options.quick and QUICK)
        if wanted and operation.name not in wanted:
            continue
        started = time.monotonic()
        cuts, failures = machine.try_operation(operation)
        seconds = time.monotonic() - started
        lines = [f"{kind.name:15} {operation.name:36} {cuts:>6} {len(failures):>6}  {seconds:.1f} s"]
        for name, problems in failures:
            lines += [f"FAILED {kind.name} {operation.name}: {name}", *(f"    {line}" for line in problems[:8])]
        print("\n".join(lines), flush=True)
        tried, failed = tried + cuts, failed + len(failures)
    return tried, failed


def arguments():
    parser = argparse.ArgumentParser()
    parser.add_argument("--build", required=True)
    parser.add_argument("--quick", action="store_true")
    parser.add_argument("--only", action="append")
    parser.add_argument("--disk", choices=[kind.name for kind in disks.KINDS])
    parser.add_argument("--moments", type=int, help="at most so many during each command")
    options = parser.parse_args()
    options.moments = options.moments or (2 if options.quick else 6)
    return options


def main():
    options = arguments()
    kinds = [kind for kind in disks.KINDS if options.disk in (None, kind.name)]
    with tempfile.TemporaryDirectory(prefix="selvane-power-cut-", dir="/dev/shm", ignore_cleanup_errors=True) as folder:
        # Unmounted with it, so that removing the folder can't reach into a disk.
        disks.run("mount", "-t", "tmpfs", "-o", "size=6g,mode=700", "none", folder)
        options.folder = folder
        print(f"{'disk':15} {'operation':36} {'cuts':>6} {'failed':>6}", flush=True)
        try:
            with multiprocessing.Pool(os.cpu_count()) as pool:
                results = list(pool.imap(try_disk, [(kind, options) for kind in kinds]))
        finally:
            subprocess.run(["umount", "--recursive", "--lazy", folder], check=False)
    tried, failed = (sum(numbers) for numbers in zip(*results))
    print(f"{tried} cuts, {failed} failed")
    sys.exit(0 if tried > 0 and failed == 0 else 1)


if __name__ == "__main__":
    main()
