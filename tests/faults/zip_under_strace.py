# SPDX-FileCopyrightText: 2026 The Selvane developers
# SPDX-License-Identifier: MIT
"""Runs the zip that Selvane starts under a strace of its own. As the system's zip is started by its full path, another
program is mounted over it: in a mount namespace of its own, as root."""

import contextlib
import os
import shutil
import subprocess

ZIP = "/usr/bin/zip"
# What Selvane starts it for, the second time to add the readme.
STEPS = ("writing", "adding")

_SUBSTITUTE = """#!/bin/sh
case " $* " in *" -g "*) step=adding ;; *) step=writing ;; esac
beside=${HOME%/*}
[ -f "$beside/zip.$step" ] || exec "REAL" "$@"
exec strace -y -s 1000 -o "$beside/zip.log" $(cat "$beside/zip.$step") "REAL" "$@"
"""


def install(folder):
    """Mounts the substitute over zip."""
    real, substitute = f"{folder}/zip", f"{folder}/zip-under-strace"
    shutil.copy(ZIP, real)
    with open(substitute, "w", encoding="ascii") as file:
        file.write(_SUBSTITUTE.replace("REAL", real))
    os.chmod(substitute, 0o755)
    subprocess.run(["mount", "--bind", substitute, ZIP], check=True)


@contextlib.contextmanager
def options(home, step, words):
    """While it lasts, zip runs under strace with these options for that step. Gives the path of the log."""
    file, log = home.path.parent / f"zip.{step}", home.path.parent / "zip.log"
    file.write_text(" ".join(words), encoding="ascii")
    log.write_text("", encoding="ascii")
    try:
        yield log
    finally:
        file.unlink()
