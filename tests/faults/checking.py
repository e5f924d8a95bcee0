# SPDX-FileCopyrightText: 2026 The Selvane developers
# SPDX-License-Identifier: MIT
"""Lists what is in a home, and finds what is wrong with it after a fault."""

import dataclasses
import hashlib
import os
import re
import stat
import zipfile

from home import LONG_AGO, OWN_FILES, PROFILES, SECRET
from tracing import KILL

TRASH = ".local/share/Trash"
# Of Selvane, and of zip, which leaves them beside an archive.
_TEMPORARY = re.compile(r"(^|/)(\.selvane-[^/]*|selvane-backup-[^/]*|zi\w{6}|[^/]*\.partial)(/|$)")
_REMOVES = re.compile(r"unlink|rmdir|stat|getdents|openat?\(.*O_DIRECTORY|close")
_README = "LEGGIMI-backup.txt"
_SKIPPED = re.compile(r"^  (?:~/)?(.*)$", re.M)
_TIME = re.compile(rb"\d{4}-\d\d-\d\dT\d\d:\d\d:\d\dZ")


@dataclasses.dataclass(frozen=True)
class Entry:
    kind: int
    mode: int
    content: str            # a digest of the bytes, or a link's text
    kept: tuple = ()        # the old time and the attributes that a copy keeps
    secret: bool = False
    # Of an archive: the path, checksum and mode of each but the readme, and the paths that this names as missing.
    parts: tuple = dataclasses.field(default=(), compare=False, repr=False)
    skipped: tuple = dataclasses.field(default=(), compare=False, repr=False)


def _path_of(part):
    return os.fsdecode(part.filename.encode("utf-8" if part.flag_bits & 0x800 else "cp437")).rstrip("/")


def _parts_and_skipped(path):
    try:
        with zipfile.ZipFile(path) as archive:
            parts = {_path_of(part): (part.CRC, part.external_attr >> 16) for part in archive.infolist()}
            readme = archive.read(_README).decode() if parts.pop(_README, None) else ""
    except zipfile.BadZipFile:
        return (), ()
    return tuple(sorted(parts.items())), tuple(_SKIPPED.findall(readme.partition("Non è stato possibile salvare")[2]))


def _attributes(path):
    try:
        return tuple((name, os.getxattr(path, name)) for name in os.listxattr(path) if name.startswith("user."))
    except OSError:
        return ()


def _entry(path, rename):
    status = os.lstat(path)
    mode = stat.S_IMODE(status.st_mode)
    kind = stat.S_IFMT(status.st_mode)
    old = status.st_mtime if status.st_mtime <= LONG_AGO and kind != stat.S_IFDIR else None
    if os.path.basename(path) in OWN_FILES:
        old = None
    if kind == stat.S_IFLNK:
        return Entry(kind, 0, rename(os.fsencode(os.readlink(path))).decode(errors="replace"))
    if kind != stat.S_IFREG:
        return Entry(kind, mode, "", (old,))
    with open(path, "rb") as file:
        bytes_ = file.read()
    parts, skipped = _parts_and_skipped(path) if path.endswith(".zip") else ((), ())
    content = "an archive"
    if not parts:
        content = rename(bytes_)
        if os.path.basename(path) in OWN_FILES:
            content = _TIME.sub(b"TIME", content)
        content = hashlib.sha1(content).hexdigest()
    secret = SECRET in bytes_ or path.endswith((".zip", ".partial")) and bytes_.startswith(b"PK")
    return Entry(kind, mode, content, (old, _attributes(path)), secret, parts, skipped)


def scan(home, renamed=("", "")):
    """Every path below the home. A profile with the first of the two ids is shown as if it had the second."""
    before, after = renamed

    def rename(bytes_):
        return bytes_.replace(before.encode(), after.encode()) if before != after else bytes_
    hidden = re.compile(rf"{PROFILES}(\.desktop-data/)?{after}(/|$)" if before != after else "$^")
    found = {}
    for folder, folders, files in os.walk(home.path):
        for name in folders + files:
            path = f"{folder}/{name}"
            inside = path[len(str(home.path)) + 1:]
            if not hidden.match(inside):
                found[rename(inside.encode()).decode()] = _entry(path, rename)
    return found


def is_temporary(path):
    return _TEMPORARY.search(path) is not None


def _visible(paths):
    return {path: entry for path, entry in paths.items()
            if not path.startswith(TRASH) and not is_temporary(path) and path not in (".local", ".local/share")}


def _contents(paths):
    return {entry.content for path, entry in paths.items()
            if entry.kind == stat.S_IFREG and not is_temporary(path)}


class Expectation:
    """What a home was like before an operation, and what it must be like after it."""

    def __init__(self, before, after):
        self.before, self.after = before, after
        self.old, self.new = _visible(before), _visible(after)
        # The operation itself may replace the bytes of Selvane's own files and of a record that it edits.
        self.contents = _contents(before) & _contents(after)

    def replaced(self):
        """The user's files whose bytes the operation itself removes for good."""
        gone = _contents(self.before) - _contents(self.after)
        return sorted(path for path, entry in self.before.items()
                      if entry.content in gone and not is_temporary(path)
                      and os.path.basename(path) not in OWN_FILES)

    def lost(self, now):
        """The user's files whose bytes are lost."""
        missing = self.contents - _contents(now)
        return [f"lost: {path}" for path, entry in self.before.items() if entry.content in missing]

    def opened(self, now):
        return [f"more open than before ({entry.mode:o}): {path}" for path, entry in now.items()
                if entry.secret and entry.kind == stat.S_IFREG and entry.mode & 0o077]

    def _is_in_trash(self, path, now):
        content = self.old[path].content
        return any(entry.content == content for name, entry in now.items() if name.startswith(TRASH))

    def between(self, now, moves, gap):
        """Every path must be as before or as after, or free if what was there is in the Trash or the operation can't
        avoid a `gap` for a moment.

        If the operation `moves` whole folders, everything must be as before or as after, wherever it is."""
        found = _visible(now)
        if moves:
            known = {*self.old.values(), *self.new.values()}
            return [f"never so before or after: {path} ({entry})" for path, entry in found.items()
                    if entry not in known]
        problems = []
        for path in {*self.old, *self.new, *found}:
            known = [self.old.get(path), self.new.get(path)]
            entry = found.get(path)
            if entry in known or entry is None and path in self.old and (
                    self._is_in_trash(path, now) or re.match(gap, path)):
                continue
            same = [other for other in known if entry and other and
                    dataclasses.replace(other, mode=entry.mode) == entry]
            if not any(entry.mode & ~other.mode == 0 for other in same):
                problems.append(f"neither as before nor as after: {path} ({entry})")
        return problems

    def unlike(self, now, wanted, loose="$^"):
        """What is not as it should be, except loose paths."""
        found, wanted = _visible(now), _visible(wanted)
        return [f"not as it should be: {path} ({found.get(path)})" for path in {*wanted, *found}
                if found.get(path) != wanted.get(path) and not re.match(loose, path)]

    def unsaved(self, now, may_name=True):
        """What an archive lacks, or has otherwise than it should have, unless it may name that and does."""
        return [f"missing in {path}: {part}" for path, wanted in self.new.items() if path in now and now[path].parts
                for part in dict(set(wanted.parts) - set(now[path].parts))
                if not may_name or part not in now[path].skipped]

    def leftovers(self, now, hits=(), resumes="$^"):
        """Temporaries left behind, except one whose own removal failed, or a look at it, as removing takes."""
        return [f"left behind: {path}" for path in now
                if is_temporary(path) and path not in self.before and not path.startswith(TRASH) and
                not re.match(resumes, path) and
                not any(_REMOVES.search(hit) and _TEMPORARY.search(path).group(2) in hit for hit in hits)]


def problems_after(operation, expectation, run, point, now):
    """What is wrong after a run with a fault."""
    problems = expectation.lost(now) + expectation.opened(now)
    problems += expectation.between(now, operation.moves, operation.gap) + expectation.unsaved(now)
    if point.error == KILL and not point.zip:
        return problems
    problems += expectation.leftovers(now, run.hits, operation.resumes if run.status else "$^")
    if run.status == 0:
        return problems + expectation.unlike(now, expectation.after, operation.loose)
    if run.status != 1 or not re.fullmatch(r"Errore: [^\n]+\n", run.err):
        problems.append(f"ended with status {run.status} and said: {run.err!r}")
    if operation.leaves_nothing:
        problems += expectation.unlike(now, expectation.before)
    return problems
