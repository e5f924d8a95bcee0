# SPDX-FileCopyrightText: 2026 The Selvane developers
# SPDX-License-Identifier: MIT
"""Disks in files that can be copied whole in one moment, as they are when the power goes."""

import dataclasses
import fcntl
import os
import pathlib
import subprocess

FICLONE = 0x40049409
MEBIBYTE = 1 << 20


@dataclasses.dataclass(frozen=True)
class Kind:
    name: str
    make: tuple      # the command that makes the file system
    options: str     # for mounting; metadata is written after a second, so that little waiting shows a lot
    size: int        # in bytes


KINDS = [
    Kind("ext4", ("mkfs.ext4", "-q", "-F", "-E", "lazy_itable_init=0,lazy_journal_init=0"), "commit=1",
         64 * MEBIBYTE),
    Kind("ext4-writeback", ("mkfs.ext4", "-q", "-F", "-E", "lazy_itable_init=0,lazy_journal_init=0"),
         "commit=1,data=writeback", 64 * MEBIBYTE),
    Kind("xfs", ("mkfs.xfs", "-q", "-f"), "nouuid", 320 * MEBIBYTE),
    Kind("btrfs", ("mkfs.btrfs", "-q", "-f"), "commit=1", 256 * MEBIBYTE),
]


def run(*words):
    done = subprocess.run([str(word) for word in words], capture_output=True, text=True, check=False)
    if done.returncode != 0:
        raise RuntimeError(f"{words} fails: {done.stderr.strip()}")
    return done.stdout


class Shelf:
    """A folder whose files can be copied in one moment: a file system that shares blocks, itself in memory."""

    def __init__(self, folder, name):
        self.folder = pathlib.Path(folder) / f"shelf-{name}"
        image = pathlib.Path(folder) / f"shelf-{name}.img"
        with open(image, "wb") as file:
            file.truncate(16 * 1024 * MEBIBYTE)
        run("mkfs.xfs", "-q", "-m", "reflink=1", image)
        self.folder.mkdir()
        run("mount", "-o", "loop", image, self.folder)

    def copy(self, origin, target):
        with open(self.folder / origin, "rb") as source, open(self.folder / target, "wb") as copy:
            fcntl.ioctl(copy.fileno(), FICLONE, source.fileno())

    def changed(self, name):
        return os.stat(self.folder / name).st_mtime_ns

    def remove(self, name):
        (self.folder / name).unlink()


class Disk:
    """A disk of two file systems of a kind, in the file `disk` on a shelf: one is mounted at `place`, the other,
    while it is wanted, somewhere below."""

    FILE = "disk"

    def __init__(self, kind, shelf, place):
        self.kind, self.shelf, self.place = kind, shelf, pathlib.Path(place)
        self.place.mkdir()
        self.second = None
        for number in (0, 1):
            part = shelf.folder / "part"
            with open(part, "wb") as file:
                file.truncate(kind.size)
            run(*kind.make, part)
            run("dd", f"if={part}", f"of={shelf.folder / self.FILE}", "bs=1M", f"seek={number * self._mebibytes()}",
                "conv=notrunc,sparse", "status=none")
            part.unlink()
        os.truncate(shelf.folder / self.FILE, 2 * kind.size)

    def _mebibytes(self):
        return self.kind.size // MEBIBYTE

    def _mount(self, number, place):
        options = f"loop,offset={number * self.kind.size},sizelimit={self.kind.size},{self.kind.options}"
        run("mount", "-t", self.kind.name.split("-")[0], "-o", options, self.shelf.folder / self.FILE, place)

    def mount(self):
        if self.kind.name == "btrfs":
            subprocess.run(["btrfs", "device", "scan", "--forget"], check=False, capture_output=True)
        self._mount(0, self.place)
        if self.second:
            self._mount(1, self.second)

    def mount_second(self, place):
        """Mounts the second file system too, at a folder whose content it takes over."""
        place = pathlib.Path(place)
        aside = place.with_name("aside")
        place.rename(aside)
        place.mkdir()
        self._mount(1, place)
        run("cp", "-a", f"{aside}/.", place)
        run("rm", "-r", aside)
        self.second = place

    def unmount(self):
        if self.second:
            run("umount", self.second)
        run("umount", self.place)

    def keep(self, name):
        """Copies the disk as it is at this moment, mounted or not."""
        self.shelf.copy(self.FILE, name)

    def restore(self, name):
        """Makes the disk, which must not be mounted, what it was at an earlier moment."""
        self.shelf.copy(name, self.FILE)
