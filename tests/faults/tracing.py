# SPDX-FileCopyrightText: 2026 The Selvane developers
# SPDX-License-Identifier: MIT
"""Runs a command under strace: to find the system calls that change or read files, and to make one of them fail."""

import ctypes
import dataclasses
import os
import re
import subprocess
import time

import zip_under_strace

KILL = "KILL"
TIME_LIMIT = 30  # seconds; nothing takes a tenth of that
PR_SET_CHILD_SUBREAPER = 36

# How each call that changes files is made to fail. EINVAL, EXDEV and EOPNOTSUPP stand for more limited file systems.
_MAKING = ("ENOSPC", "EACCES", "EIO")
_REMOVING = ("EACCES", "EIO")
_CHANGING = ("EPERM", "EIO")
ERRORS = {
    "open": _MAKING, "openat": _MAKING, "creat": _MAKING,
    "write": ("ENOSPC", "EIO", "EDQUOT"), "pwrite64": ("ENOSPC", "EIO"), "writev": ("ENOSPC", "EIO"),
    "copy_file_range": ("ENOSPC", "EIO", "EDQUOT", "EOPNOTSUPP"), "sendfile": ("ENOSPC", "EIO"),
    "ioctl": ("ENOSPC", "EIO", "EOPNOTSUPP"),
    "ftruncate": ("ENOSPC", "EIO"), "fallocate": ("ENOSPC", "EIO"),
    "fsync": ("ENOSPC", "EIO"), "fdatasync": ("ENOSPC", "EIO"), "syncfs": ("ENOSPC", "EIO"),
    "rename": _MAKING, "renameat": _MAKING, "renameat2": (*_MAKING, "EINVAL", "EXDEV"),
    "link": _MAKING, "linkat": _MAKING, "symlink": _MAKING, "symlinkat": _MAKING,
    "mkdir": _MAKING, "mkdirat": _MAKING, "mknod": _MAKING, "mknodat": _MAKING,
    "unlink": _REMOVING, "unlinkat": _REMOVING, "rmdir": _REMOVING,
    "chmod": _CHANGING, "fchmod": _CHANGING, "fchmodat": _CHANGING,
    "utimensat": _CHANGING,
    "fsetxattr": ("ENOSPC", "EIO"), "fremovexattr": _CHANGING,
}
# How each call that changes nothing is made to fail: a broken disk, a missing permission, a network mount that is
# gone, too many open files, a quota that is only noticed when a file is closed.
_LOOKING = ("EIO", "EACCES", "ESTALE")
READ_ERRORS = {
    "open": (*_LOOKING, "EMFILE"), "openat": (*_LOOKING, "EMFILE"),
    "stat": _LOOKING, "lstat": _LOOKING, "newfstatat": _LOOKING, "statx": _LOOKING, "fstat": ("EIO", "ESTALE"),
    "access": _LOOKING, "faccessat": _LOOKING, "faccessat2": _LOOKING,
    "readlink": _LOOKING, "readlinkat": _LOOKING,
    "getdents64": ("EIO", "ESTALE"), "read": ("EIO", "ESTALE"), "pread64": ("EIO", "ESTALE"),
    "close": ("EIO", "EDQUOT"), "flock": ("EIO", "ENOLCK"),
}
# Processes and threads that can't be started, wherever that happens.
_STARTING = {name: ("EAGAIN",) for name in ("clone", "clone3", "fork", "vfork")}
READ_ERRORS |= _STARTING
_OPENING = ("open", "openat", "creat")
_BY_DESCRIPTOR = ("write", "pwrite64", "writev", "read", "pread64", "getdents64", "fstat", "close", "flock", "syncfs",
                  "fsync")
_CALL = re.compile(r"(\w+)\((.*)")


@dataclasses.dataclass(frozen=True)
class Point:
    """A process's `number`th call with this name, and how it fails."""
    call: str
    number: int
    error: str
    zip: str = ""         # a step of zip's that makes the call; otherwise Selvane itself does
    reads: bool = False   # changes nothing itself
    line: str = ""        # what strace wrote about it
    place: int = 0        # its place among the points with this name and kind

    def __str__(self):
        program = f"zip-{self.zip}." if self.zip else ""
        return f"{program}{self.call}:{self.number}:{self.error}"


@dataclasses.dataclass
class Run:
    status: int
    out: str
    err: str
    hits: list  # the lines about the calls that a fault was injected into

    def reached(self, point, home):
        return any(point.call in _STARTING or str(home.path) in hit for hit in self.hits)


def _is_in(home, call, arguments):
    return home in (arguments.split(",")[0] if call in _BY_DESCRIPTOR else arguments)


def _opens_for_writing(arguments):
    return any(flag in arguments for flag in ("O_CREAT", "O_WRONLY", "O_RDWR", "O_TRUNC"))


def is_change(call, arguments, home):
    """Whether a call, as strace writes it, changes something in the home."""
    if call not in ERRORS or not _is_in(home, call, arguments):
        return False
    if call in _OPENING:
        return _opens_for_writing(arguments)
    return call != "ioctl" or "FICLONE" in arguments


def is_read(call, arguments, home):
    """Whether a call looks at something in the home, or starts something, without changing anything."""
    return call in _STARTING or (call in READ_ERRORS and _is_in(home, call, arguments) and
            not (call in _OPENING and _opens_for_writing(arguments)))


def adopt_orphans():
    """Makes processes that a killed command leaves running children of this one, which can wait for them."""
    ctypes.CDLL(None).prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0)


def _wait_for_orphans():
    until = time.monotonic() + TIME_LIMIT
    while time.monotonic() < until:
        try:
            if os.waitpid(-1, os.WNOHANG)[0] == 0:
                time.sleep(0.002)
        except ChildProcessError:
            return
    raise TimeoutError("something that was started doesn't end")


def run(command, home, options=(), limit=TIME_LIMIT):
    """Runs a command line and waits for everything it starts. With options, runs it under strace."""
    log = home.path.parent / "strace.log"
    log.unlink(missing_ok=True)
    strace = ["strace", "-y", "-s", "1000", "-o", log, *options] if options else []
    done = subprocess.run([*strace, *command], env=home.environment, cwd="/", capture_output=True,
                          stdin=subprocess.DEVNULL, timeout=limit, check=False)
    _wait_for_orphans()
    lines = log.read_text(errors="replace").splitlines() if options else []
    return Run(done.returncode, done.stdout.decode(), done.stderr.decode(), lines)


def _placed(points):
    """The points, each with its place among those of its name and kind."""
    seen = {}
    for point in points:
        kind = point.call, point.reads
        yield dataclasses.replace(point, place=seen.get(kind, 0))
        seen[kind] = seen.get(kind, 0) + 1


def found_again(point, command, home, setting):
    """The same call in another run, in which it may have another number: a program that looks at the processes
    makes more calls when there are more of them. None if that run doesn't make the call."""
    points = calls_of_zip(command, home, point.zip) if point.zip else calls(command, home, setting)
    for other in points:
        if (other.call, other.reads, other.place) == (point.call, point.reads, point.place):
            return dataclasses.replace(point, number=other.number, line=other.line)
    return None


def _injections(*faults):
    return [f"--inject={fault}" for fault in faults if fault]


_TRACED = "--trace=" + ",".join("?" + name for name in {**ERRORS, **READ_ERRORS})


def _points(lines, home, setting="", step=""):
    """The changing and reading calls in a log."""
    counts, points = {}, []
    for line in lines:
        match = _CALL.match(line)
        if not match:
            continue
        call, arguments = match.groups()
        number = counts[call] = counts.get(call, 0) + 1
        if setting.startswith(call + ":"):
            continue
        reads = is_read(call, arguments, str(home.path))
        if reads or is_change(call, arguments, str(home.path)):
            points.append(Point(call, number, "", step, reads, line))
    return list(_placed(points))


def _run_well(command, home, options=()):
    done = run(command, home, options, 10 * TIME_LIMIT)
    if done.status != 0:
        raise RuntimeError(f"{command} ends with {done.status} without any fault: {done.err}")
    return done


def calls(command, home, setting):
    """The changing and reading calls of Selvane itself, in one run."""
    return _points(_run_well(command, home, [_TRACED, *_injections(setting)]).hits, home, setting)


def calls_of_zip(command, home, step):
    """The changing and reading calls of zip, in one run."""
    with zip_under_strace.options(home, step, [_TRACED]) as log:
        _run_well(command, home)
        return _points(log.read_text(errors="replace").splitlines(), home, step=step)


def faults(point):
    if point.reads:
        return [dataclasses.replace(point, error=error) for error in READ_ERRORS[point.call]]
    return [dataclasses.replace(point, error=error) for error in (*ERRORS[point.call], KILL)]


def run_with_fault(command, home, setting, point):
    kind = "signal=SIGKILL" if point.error == KILL else f"error={point.error}"
    # Only traced calls can be made to fail.
    traced = ",".join({point.call, setting.split(":")[0] or point.call})
    options = [f"--trace={traced}", *_injections(setting, f"{point.call}:{kind}:when={point.number}")]
    if point.zip:
        with zip_under_strace.options(home, point.zip, options) as log:
            done = run(command, home)
            done.hits = log.read_text(errors="replace").splitlines()
    else:
        done = run(command, home, options)
    if point.error == KILL:
        # The last call before each process was killed.
        ends = [at for at, line in enumerate(done.hits) if "killed by SIGKILL" in line]
        done.hits = [done.hits[at - 1] for at in ends]
    else:
        done.hits = [line for line in done.hits if "(INJECTED)" in line and point.call + "(" in line]
    return done
