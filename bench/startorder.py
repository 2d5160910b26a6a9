#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""startorder.py PROGRAM LIST: writes into LIST the functions of PROGRAM that run in a start without a file.

PROGRAM is the program's executable in its program folder, with its symbols. The linker puts the functions of the list side
by side. It is made again now and then, when much has changed; a name that is gone does no harm. It needs a display and
valgrind.
"""

import os
import subprocess
import sys
import tempfile
from collections import defaultdict
from pathlib import Path

# Long enough for everything that is made behind the first picture, in seconds.
PATIENCE = 40


def profile(program, folder):
    """The text of a profile of a start in an empty home folder."""
    profile_file = folder / "profile"
    home = folder / "home"
    (home / "run").mkdir(parents=True, mode=0o700)
    environment = dict(os.environ, HOME=home, XDG_CONFIG_HOME=home / ".config", XDG_DATA_HOME=home / ".local/share",
                       XDG_CACHE_HOME=home / ".cache", XDG_RUNTIME_DIR=home / "run", LC_ALL="C.UTF-8")
    command = ["timeout", "--signal=TERM", str(PATIENCE), "valgrind", "--tool=callgrind", "--demangle=no", "--compress-strings=no",
               f"--callgrind-out-file={profile_file}", program, "/nodialog"]
    subprocess.run(command, env=environment, cwd=home, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False)
    return profile_file.read_text()


def executed(text):
    """The names of all functions in a profile, those of libraries included."""
    # A function that calls itself has a number behind its name.
    return {line[3:].split("'")[0] for line in text.splitlines() if line.startswith("fn=")}


def with_other_names(names, program):
    """Those of the names that the program has, and what the same functions are called besides: a section is named after
    one of these."""
    names_at = defaultdict(set)
    for line in subprocess.run(["nm", program], stdout=subprocess.PIPE, text=True, check=True).stdout.splitlines():
        address, kind, name = (line.split(maxsplit=2) + [""])[:3]
        if kind in ("t", "T", "W"):
            names_at[address].add(name)
    return set().union(*(group for group in names_at.values() if group & names))


def main(program, target):
    with tempfile.TemporaryDirectory() as folder:
        names = executed(profile(program, Path(folder)))
    mangled = sorted(name for name in with_other_names(names, program) if name.startswith("_Z"))
    target.write_text("".join(f"{name}\n" for name in mangled))


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    main(Path(sys.argv[1]).resolve(), Path(sys.argv[2]))
