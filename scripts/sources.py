# SPDX-License-Identifier: GPL-3.0-or-later
"""What the checks of the sources share: the files, and how the compiler is called for each. To be imported."""
import json
import os
import re
import shlex
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent


def sources(*folders, suffixes=(".h", ".cpp")):
    """All C++ files below the folders, which are named from the root, in the order of their names."""
    return sorted(path for folder in folders for path in (ROOT / folder).rglob("*") if path.suffix in suffixes)


class CompileFlags:
    """The words with which a build tree compiles its files, without the precompiled header and the output."""

    def __init__(self, tree):
        entries = json.loads((Path(tree) / "compile_commands.json").read_text())
        self._of_file, self._of_folder = {}, {}
        for entry in entries:
            file = Path(entry["file"])
            if "autogen" in entry["file"]:
                continue
            words = self._without_output(shlex.split(entry["command"]), entry["file"])
            self._of_file[file] = words
            # Of a folder's libraries the one with the most includes knows what the others do.
            self._of_folder[file.parent] = max(words, self._of_folder.get(file.parent, []), key=len)

    def of_all(self):
        """What finds every include and defines every name that some file of src/ is compiled with."""
        words = {}
        for file, own in self._of_file.items():
            if (ROOT / "src") in file.parents:
                pairs = zip(own, own[1:] + [""])
                for word, following in pairs:
                    if word == "-isystem":
                        words[(word, following)] = None
                    elif re.match(r"-[DIWfs]", word):
                        words[(word,)] = None
        return [word for group in words for word in group]

    def of(self, file):
        """For a header those of a source beside it, or of one in a folder above."""
        if file in self._of_file:
            return self._of_file[file]
        folder = next((each for each in file.parents if each in self._of_folder), None)
        return self._of_folder.get(folder)

    @staticmethod
    def _without_output(words, file):
        kept, skip = [], 1  # The compiler's name.
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


def included(file, seen=None):
    """The file's own #include lines and those of our headers that it includes, as they stand: <QString>, "core/a.h"."""
    seen = set() if seen is None else seen
    for name in re.findall(r'^#\s*include\s+(<[^>]+>|"[^"]+")', file.read_text(), re.MULTILINE):
        if name in seen:
            continue
        seen.add(name)
        ours = ROOT / "src" / name[1:-1]
        if name.startswith('"') and ours.exists():
            included(ours, seen)
    return seen
