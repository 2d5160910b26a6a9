# SPDX-License-Identifier: GPL-3.0-or-later
"""Shared by the checks of the sources: the list of files, and the compiler options of each. To be imported."""
import json
import os
import re
import shlex
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent


def sources(*folders, suffixes=(".h", ".cpp")):
    """All C++ files below the folders, sorted by name. The folders are relative to the root."""
    return sorted(path for folder in folders for path in (ROOT / folder).rglob("*") if path.suffix in suffixes)


class CompileFlags:
    """The options with which a build tree compiles its files, without the precompiled header and the output file."""

    def __init__(self, tree):
        entries = json.loads((Path(tree) / "compile_commands.json").read_text())
        self._of_file, self._of_folder = {}, {}
        for entry in entries:
            file = Path(entry["file"])
            if "autogen" in entry["file"]:
                continue
            words = self._without_output(shlex.split(entry["command"]), entry["file"])
            self._of_file[file] = words
            # The command line with the most options stands for its folder: its include paths cover those of the others.
            self._of_folder[file.parent] = max(words, self._of_folder.get(file.parent, []), key=len)

    def of_all(self, *folders):
        """The include paths and definitions of all files below the folders together."""
        words = {}
        for file, own in self._of_file.items():
            if any(ROOT / folder in file.parents for folder in folders):
                pairs = zip(own, own[1:] + [""])
                for word, following in pairs:
                    if word == "-isystem":
                        words[(word, following)] = None
                    elif re.match(r"-[DIWfs]", word):
                        words[(word,)] = None
        return [word for group in words for word in group]

    def of(self, file):
        """The options of a source; for a header those of a source in the same folder or in the nearest folder above."""
        if file in self._of_file:
            return self._of_file[file]
        folder = next((each for each in file.parents if each in self._of_folder), None)
        return self._of_folder.get(folder)

    @staticmethod
    def _without_output(words, file):
        kept, skip = [], 1  # The name of the compiler.
        if os.path.basename(words[0]) in ("ccache", "ccache-launcher"):
            skip = 2
        words = words[skip:]
        index = 0
        while index < len(words):
            word = words[index]
            if word in ("-o", "-include", "-Xclang"):
                index += 2
                continue
            if word not in ("-c", file, "-Winvalid-pch"):
                kept.append(word)
            index += 1
        return kept


def own_header(name):
    """The path of a header of ours by its name as included, "core/a.h" with the quotes; None for any other name."""
    paths = (ROOT / folder / name[1:-1] for folder in ("src", "tests", "."))
    return next((path for path in paths if path.is_file()), None) if name.startswith('"') else None


def included(file, seen=None):
    """What the file includes, directly or through our own headers, with its brackets or quotes: <QString>, "core/a.h"."""
    seen = set() if seen is None else seen
    for name in re.findall(r'^#\s*include\s+(<[^>]+>|"[^"]+")', file.read_text(), re.MULTILINE):
        if name in seen:
            continue
        seen.add(name)
        ours = own_header(name)
        if ours:
            included(ours, seen)
    return seen
