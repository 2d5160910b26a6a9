#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""compare.py BUILD PROGRAM WORK [GROUP]...: compares the program with its peers and prints each budget.

BUILD holds the benchmark programs, PROGRAM is the program folder, WORK a folder for inputs and home folders. The groups
are those of GROUPS below; by default all are measured. The exit status is 1 if a budget is not met. It needs a display.
"""

import json
import os
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path
from statistics import median

import makehtml
import vsftpd

MB = 1_000_000


class Programs:
    """The programs to compare, each with a home folder in which it has run once before, so that no first start is measured."""

    def __init__(self, build, folder, work):
        self.picture_tool = build / "picture"
        self.home = work / "home"
        self.templates = work / "homes"
        # What an earlier build of the program kept there isn't valid for this one, and a start would make it again.
        shutil.rmtree(self.templates, ignore_errors=True)
        self.commands = {
            "zephira": [folder / "zephira"],
            "bare": [build / "bare"],
            "bare web": [build / "bareweb"],
            "SciTE": ["scite"],
            "Bluefish": ["bluefish"],
        }

    def prepare(self, name):
        """Runs the program once, so that it creates its settings."""
        shutil.rmtree(self.home, ignore_errors=True)
        self.home.mkdir(parents=True)
        if name == "zephira":
            settings = self.home / ".config/Zephira/Zephira.ini"
            settings.parent.mkdir(parents=True)
            settings.write_text("[zephira]\nOptions\\Show%20Tips%20at%20Startup=0\n")
        self.run(name, None, "--close")
        shutil.rmtree(self.templates / name, ignore_errors=True)
        shutil.copytree(self.home, self.templates / name, symlinks=True)

    def measure(self, name, file, *options):
        """The figures of one run with a fresh copy of the home folder."""
        if not (self.templates / name).is_dir():
            self.prepare(name)
        shutil.rmtree(self.home, ignore_errors=True)
        shutil.copytree(self.templates / name, self.home, symlinks=True)
        return self.run(name, file, *options)

    def run(self, name, file, *options):
        home = self.home
        (home / "run").mkdir(mode=0o700, exist_ok=True)
        environment = dict(os.environ, HOME=home, XDG_CONFIG_HOME=home / ".config", XDG_DATA_HOME=home / ".local/share",
                           XDG_CACHE_HOME=home / ".cache", XDG_RUNTIME_DIR=home / "run", LC_ALL="C.UTF-8")
        argument = [file] if file else ["/nodialog"] if name == "zephira" else []
        done = subprocess.run([self.picture_tool, *options, *self.commands[name], *argument], env=environment, cwd=home,
                              stdout=subprocess.PIPE, check=True)
        return json.loads(done.stdout)

    def interleaved(self, names, rounds, file=None, options=None):
        """The medians of each program's figures; the programs take turns, so that the machine's load affects all alike."""
        runs = {name: [] for name in names}
        for _ in range(rounds):
            for name in names:
                runs[name].append(self.measure(name, file, *(options or {}).get(name, ())))
        return {name: {key: median(run[key] for run in all_runs) for key in all_runs[0]} for name, all_runs in runs.items()}


class Report:
    """Prints each budget as soon as it is measured, and remembers whether all were met."""

    def __init__(self):
        self.all_met = True

    def row(self, what, ours, theirs, limit, peer, unit="ms", at_least=False):
        ratio = ours / theirs
        met = ratio >= limit if at_least else ratio <= limit
        self.all_met &= met
        sign = "≥" if at_least else "≤"
        print(f"{'met' if met else 'NOT MET':8} {what:38} {ratio:7.2f} × {peer:22} budget {sign} {limit:<5g} "
              f"({ours:.5g} {unit} to {theirs:.5g} {unit})", flush=True)

    def aim(self, what, ours, theirs, limit, peer):
        print(f"{'':8} {what:38} {ours / theirs:7.2f} × {peer:22} aim    ≤ {limit:g}", flush=True)


def start(programs, report, _inputs, _build, _work):
    """A start without a file."""
    got = programs.interleaved(["zephira", "Bluefish", "bare"], 21)
    ours, bluefish, bare = (got[name] for name in ("zephira", "Bluefish", "bare"))
    report.row("empty start, picture", ours["picture"], bluefish["picture"], 0.22, "Bluefish")
    report.row("empty start, picture", ours["picture"], bare["picture"], 1.35, "bare")
    report.row("empty start, memory", ours["pss_kb"], bluefish["pss_kb"], 1.0, "Bluefish", "kB")
    report.row("empty start, memory", ours["pss_kb"], bare["pss_kb"], 1.45, "bare", "kB")


def opening(programs, report, inputs, _build, _work):
    """Opening a page of 1, 10 and 50 MB."""
    for size, rounds, memory in ((1, 7, None), (10, 5, 1.3), (50, 5, 1.1)):
        got = programs.interleaved(["zephira", "SciTE", "bare"], rounds, inputs(size))
        ours, scite, bare = (got[name] for name in ("zephira", "SciTE", "bare"))
        report.row(f"open {size} MB, picture", ours["picture"], scite["picture"], 1.0, "SciTE")
        (report.row if size == 1 else report.aim)(f"open {size} MB, picture", ours["picture"], bare["picture"], 1.3, "bare")
        if memory:
            report.row(f"memory with {size} MB", ours["pss_kb"], scite["pss_kb"], memory, "SciTE", "kB")
            report.aim(f"memory with {size} MB", ours["pss_kb"], bare["pss_kb"], 1.1, "bare")


def typing(programs, report, inputs, _build, _work):
    """Keys at the start and at the end of 10 MB, and the jump to the end."""
    names = ["zephira", "SciTE"]
    got = programs.interleaved(names, 5, inputs(10), dict.fromkeys(names, ("--keys", "200", "--end")))
    ours, scite = got["zephira"], got["SciTE"]
    for where, limit in (("start", 1.0), ("end", 1.0)):
        key = f"key_{where}_us"
        report.row(f"a key at the {where} of 10 MB, processor", ours[key], scite[key], limit, "SciTE", "µs")
    report.row("a key at the end of 10 MB, processor", ours["key_end_us"], ours["key_start_us"], 1.3, "one at the start", "µs")
    report.row("jump to the end of 10 MB", ours["jump"], scite["jump"], 0.1, "SciTE")


def long_line(programs, report, _inputs, build, work):
    """A key in a page of 1 MB that is one line, and the ways through one of 10 MB, each until painted."""
    pages = {}
    for megabytes in (1, 10):
        pages[megabytes] = work / f"line{megabytes}.html"
        pages[megabytes].write_bytes(makehtml.line(megabytes * MB))
    names = ["zephira", "SciTE"]
    got = programs.interleaved(names, 5, pages[1], dict.fromkeys(names, ("--keys", "50")))
    report.row("a key in a line of 1 MB, processor", got["zephira"]["key_start_us"], got["SciTE"]["key_start_us"], 1.0,
               "SciTE", "µs")
    times = in_process(build, "longline_bench", str(pages[10]))
    for step in ("open", "scroll", "end"):
        report.row(f"{step}, 10 MB in one line, painted", times[step] / 1e6, 500, 1.0, "0.5 s")
    report.aim("a key in a line of 10 MB, painted", times["key"] / 1e6, 500, 1.0, "0.5 s")


def preview(programs, report, _inputs, _build, work):
    """The first preview of a small page, from the key press, compared with a program that consists of a web view."""
    page = work / "small.html"
    page.write_bytes(makehtml.page(4000))
    got = programs.interleaved(["zephira", "bare web"], 9, page, {"zephira": ("--preview",)})
    ours, bare = got["zephira"]["preview"], got["bare web"]["picture"]
    report.row("first preview of a small page", ours, bare, 1.15, "bare web")
    report.aim("first preview of a small page", ours, bare, 0.60, "bare web")


def live(_programs, report, _inputs, build, _work):
    """The live page: from a change in the middle of 50 kB to its picture."""
    times = in_process(build, "live_bench")
    report.row("live update of 50 kB", times["update"] / 1e6, 60, 1.0, "60 ms")


def designer(_programs, report, inputs, build, _work):
    """The visual designer: from a key press to the state that the toolbar shows; entering and leaving it with 1 MB."""
    times = in_process(build, "designer_bench", str(inputs(1)))
    report.row("a key in the designer, status shown", times["key"] / 1e6, 16, 1.0, "16 ms")
    report.row("enter the designer with 1 MB", times["enter"] / 1e6, 2000, 1.0, "2 s")
    report.row("leave the designer with one edit in 1 MB", times["leave"] / 1e6, 500, 1.0, "0.5 s")
    report.aim("a key in the designer with 1 MB", times["key in the page"] / 1e6, 16, 1.0, "16 ms")
    report.aim("all of 1 MB selected, status shown", times["select all"] / 1e6, 500, 1.0, "0.5 s")


def in_process(build, name, *arguments):
    """The median wall-clock times, in nanoseconds, of a benchmark program's cases by name."""
    done = subprocess.run(
        [build / name, "--benchmark_format=json", "--benchmark_repetitions=7", "--benchmark_enable_random_interleaving=true",
         "--benchmark_report_aggregates_only=true", *arguments],
        stdout=subprocess.PIPE, check=True)
    unit = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}
    return {case["run_name"].split("/iterations:")[0]: case["real_time"] * unit[case["time_unit"]]
            for case in json.loads(done.stdout)["benchmarks"] if case["aggregate_name"] == "median"}


def colouring(_programs, report, _inputs, build, _work):
    """Colouring a whole page of 10 MB."""
    times = in_process(build, "syntax_bench")
    ours, theirs = (10 * MB / times[name] * 1e3 for name in ("zephiraEngine", "scintillaLexer"))
    report.row("colouring throughput", ours, theirs, 1.0, "Scintilla's HTML lexer", "MB/s", at_least=True)


def functions(_programs, report, inputs, build, _work):
    """Every text function: the growth of its time when its input grows tenfold."""
    times = in_process(build, "text_bench", str(inputs(1)), str(inputs(10)))
    for name in sorted({case.rsplit("/", 1)[0] for case in times}):
        report.row(name, times[f"{name}/large"] / 1e6, times[f"{name}/small"] / 1e6, 12, "a tenth of the input")


def tidy(option, page):
    """The wall-clock time of one run of the tidy command in milliseconds."""
    begin = time.monotonic()
    done = subprocess.run(["tidy", option, page], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False)
    if done.returncode not in (0, 1, 2):  # 1 and 2 mean that the page has faults, as most pages do.
        sys.exit(f"tidy ended with {done.returncode}")
    return (time.monotonic() - begin) * 1e3


def parse_probe(build, name, page):
    """The wall-clock time of a whole run of parseprobe over the page, in milliseconds."""
    with open(page, "rb") as text:
        begin = time.monotonic()
        subprocess.run([build.parent / "tests/probes/parseprobe", name], stdin=text, stdout=subprocess.DEVNULL, check=True)
        return (time.monotonic() - begin) * 1e3


def tidy_probe(build, module, page):
    """The wall-clock time of a whole run of tidyprobe, which cleans the page with the validator's module, in milliseconds."""
    with open(page, "rb") as text:
        begin = time.monotonic()
        subprocess.run([build.parent / "tests/probes/tidyprobe", module], stdin=text, stdout=subprocess.DEVNULL, check=True)
        return (time.monotonic() - begin) * 1e3


def tools(_programs, report, inputs, build, work):
    """Outline, formatter and validator with 10 MB, compared with the time that the tidy command takes for such a page."""
    # Hierarchical is measured with tables alone, because on other pages its indentation only ever grows.
    tables = work / "tables10.html"
    tables.write_bytes(makehtml.page(10 * MB, (makehtml.table,), (1,)))
    for name, option, page, limit in (
        ("outline", "-e", inputs(10), 0.05),
        ("simple", "-i", inputs(10), 0.1),
        ("hierarchical", "-i", tables, 0.1),
    ):
        ours = median(parse_probe(build, name, page) for _ in range(5))
        report.row(f"{name} of 10 MB, whole run", ours, median(tidy(option, page) for _ in range(3)), limit, f"tidy {option}")
    module = build.parent / "src/app/zephiratidy.so"
    cleaned = median(tidy_probe(build, module, inputs(10)) for _ in range(5))
    report.row("clean-up of 10 MB, whole run", cleaned, median(tidy("-q", inputs(10)) for _ in range(5)), 1.5, "tidy")
    compact = in_process(build, "text_bench", "--benchmark_filter=^Compact/", str(inputs(1)), str(inputs(10)))
    report.row("Compact of 10 MB", compact["Compact/large"] / 1e6, median(tidy("-i", inputs(10)) for _ in range(3)), 0.5, "tidy -i")


def spelling(_programs, report, inputs, build, _work):
    """The spelling check of 1 MB up to its first question, compared with the hunspell command over such a page."""
    page = inputs(1)
    times = in_process(build, "spell_bench", str(page), str(build.parent / "src/tools/spelling/names.dic"))
    theirs = median(checked_by_hunspell(page) for _ in range(5))
    report.row("spelling of 1 MB, first question", times["first question"] / 1e6, theirs, 0.1, "hunspell -H -l")
    report.row("dictionary loaded", times["load"] / 1e6, 150, 1.0, "0.15 s")


def checked_by_hunspell(page):
    """The wall-clock time of one run of the hunspell command in milliseconds."""
    begin = time.monotonic()
    environment = dict(os.environ, LC_ALL="C.UTF-8")
    subprocess.run(["hunspell", "-d", "en_US", "-H", "-l", page], stdout=subprocess.DEVNULL, env=environment, check=True)
    return (time.monotonic() - begin) * 1e3


def compacting(_programs, report, inputs, build, _work):
    """Compact of 10 MB in the code view, which makes it a single line, and its undo and redo, each until painted."""
    times = in_process(build, "compact_bench", str(inputs(10)))
    for step in ("Compact", "undo", "redo"):
        report.row(f"{step} of 10 MB in one line, painted", times[step] / 1e6, 1500, 1.0, "1.5 s")


def saving(_programs, report, inputs, build, work):
    """Saving 10 MB through the program's own file store, and cp with fsync, in turns on the same disk."""
    times = in_process(build, "save_bench", str(inputs(10)), str(work))
    report.row("save 10 MB, atomically", times["save"] / 1e6, times["copy"] / 1e6, 1.2, "cp + fsync")


def project_search(_programs, report, _inputs, build, work):
    """Searches through 10,000 files of 10 kB, and through 1 GB in 1,000 files, compared with grep; all in the cache."""
    for count, size, what in ((10_000, 10_000, "10,000 files"), (1_000, MB, "1 GB")):
        folder = work / "project"
        page = makehtml.page(size)
        for number in range(count):
            file = folder / str(number // 100) / f"{number}.html"
            file.parent.mkdir(parents=True, exist_ok=True)
            # Every hundredth page holds what is searched for.
            file.write_bytes(page[:-20] + (b" data-sought=\"Here\"\n" if number % 100 == 0 else page[-20:]))
        out = work / "found"
        for name, pattern, ours, theirs in (("plain", "data-sought", ["case"], "-F"), ("any case", "DATA-sought", [], "-F -i"),
                                            ("expression", "data-s[a-z]+=", ["case", "expression"], "-E")):
            # Into a file: grep stops at the first match when nobody reads its output.
            grep = ["sh", "-c", f"LC_ALL=C.UTF-8 grep -rn {theirs} '{pattern}' '{folder}' > '{out}'"]
            figures = in_turns(["sh", "-c", f"'{build}/search_bench' '{folder}' '{pattern}' {' '.join(ours)} > '{out}'"], grep, 7)
            report.row(f"search in {what}, {name}", figures[0][0], figures[1][0], 1.5, "grep -r")
        shutil.rmtree(folder)


def local_folder(_programs, report, _inputs, build, work):
    """A folder of 10,000 entries in the file manager: what showing takes beyond the listing itself."""
    shown_beyond_listing(report, build, "folder_bench", work / "folder", ("files", "folders"))


def ftp_folder(_programs, report, _inputs, build, work):
    """The same in the FTP window, on both of its sides."""
    shown_beyond_listing(report, build, "ftpwindow_bench", work / "folder", ("server files", "server folders", "local files"))


def shown_beyond_listing(report, build, name, folder, kinds):
    """The time for showing 10,000 entries minus that for listing them, compared with half a second."""
    times = in_process(build, name, str(folder), "10000")
    for kind in kinds:
        beyond = (times[f"show {kind}"] - times[f"list {kind}"]) / 1e6
        report.row(f"a folder of 10,000 {kind}, shown", beyond, 500, 1.0, "half a second")


def run_once(command):
    """The wall-clock time of one run in milliseconds, and its peak memory in kB."""
    begin = time.monotonic()
    process = subprocess.Popen([str(part) for part in command])
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode != 0:
        sys.exit(f"{command[0]} ended with {process.returncode}")
    return (time.monotonic() - begin) * 1e3, usage.ru_maxrss


def in_turns(ours, theirs, rounds, before=lambda: None):
    """The medians of time and memory of two commands, which take turns; `before` is called before each run."""
    runs = ([], [])
    for _ in range(rounds):
        for figures, command in zip(runs, (ours, theirs)):
            before()
            figures.append(run_once(command))
    return [[median(column) for column in zip(*figures)] for figures in runs]


def window_run(build, server, remote, target):
    """The time that the download of a whole folder takes in the FTP window, in milliseconds."""
    command = [build / "ftprun_bench", server.host, server.port, server.path(remote), target]
    done = subprocess.run([str(part) for part in command], check=True, capture_output=True, text=True)
    return float(done.stdout)


def ftp(_programs, report, _inputs, build, work):
    """Files from and to a server: one of 1 GiB compared with curl, and 2,000 of 4 KiB compared with lftp."""
    size = 1 << 30
    with vsftpd.Vsftpd(work) as server:
        own = build / "ftp_bench"
        at = (server.host, server.port)
        server.add("large", size)
        ours, theirs = in_turns([own, "down", *at, server.path("large")],
                                ["curl", "-s", "-o", "/dev/null", server.url("large")], 5)
        report.row("1 GiB from a server", size / ours[0] / 1e3, size / theirs[0] / 1e3, 0.95, "curl", "MB/s", at_least=True)

        folder = work / "moved"
        shutil.rmtree(folder, ignore_errors=True)
        folder.mkdir()
        _, large = run_once([own, "get", *at, server.path("."), "large", folder])
        report.row("memory of a download of 1 GiB", large, size / 1024, 1.3, "the file", "kB")

        # Compared with curl writing a file, because the window has to write one, too.
        server.add("alone/large", size)
        local = folder / "large"
        window, theirs = [], []
        for _ in range(5):
            local.unlink(missing_ok=True)
            window.append(window_run(build, server, "alone", folder))
            local.unlink()
            theirs.append(run_once(["curl", "-s", "-o", local, server.url("alone/large")])[0])
        report.row("1 GiB from a server, in the window", size / median(window) / 1e3, size / median(theirs) / 1e3, 0.95,
                   "curl -o", "MB/s", at_least=True)

        up = [own, "up", *at, folder, local.name, server.path("up")]
        (server.files / "up").mkdir()
        server.give_to_server(server.files / "up")
        stored = server.files / "up" / local.name
        ours, theirs = in_turns(up, ["curl", "-s", "-T", local, server.url(f"up/{local.name}")], 5,
                                lambda: stored.unlink(missing_ok=True))
        report.row("1 GiB to a server", size / ours[0] / 1e3, size / theirs[0] / 1e3, 0.95, "curl", "MB/s", at_least=True)
        local.write_bytes(b"small")
        stored.unlink()
        _, small = run_once(up)
        report.row("memory of an upload of 1 GiB", ours[1], small, 1.1, "one of 5 bytes", "kB")
        shutil.rmtree(folder)

        for number in range(2000):
            server.add(f"many/{number}.htm", 4096)
        # In memory, because creating 2,000 files on a disk takes longer than transferring them.
        memory = Path("/dev/shm")
        target = Path(tempfile.mkdtemp(prefix="zephira-", dir=memory if memory.is_dir() else work))

        def empty_target():
            shutil.rmtree(target)
            target.mkdir()

        mirror = f"open ftp://{server.host}:{server.port}; mirror {server.path('many')} {target}; exit"
        ours, theirs = in_turns([own, "mirror", *at, server.path("many"), target], ["lftp", "-c", mirror], 7, empty_target)
        report.row("2,000 files of 4 KiB", ours[0], theirs[0], 0.6, "lftp mirror")
        report.aim("2,000 files of 4 KiB", ours[0], theirs[0], 0.45, "lftp mirror")
        window = []
        for _ in range(7):
            empty_target()
            window.append(window_run(build, server, "many", target))
        report.row("2,000 files of 4 KiB, in the window", median(window), theirs[0], 0.6, "lftp mirror")
        shutil.rmtree(target)


GROUPS = {"start": start, "open": opening, "type": typing, "longline": long_line, "preview": preview, "designer": designer, "live": live, "colour": colouring, "functions": functions, "tools": tools, "compact": compacting,
          "spell": spelling, "save": saving, "search": project_search, "folder": local_folder, "ftpfolder": ftp_folder, "ftp": ftp}


def main(build, folder, work, *groups):
    build, folder, work = Path(build), Path(folder), Path(work)
    unknown = [group for group in groups if group not in GROUPS]
    if unknown:
        sys.exit(f"unknown group {unknown[0]}; there are {', '.join(GROUPS)}")

    def inputs(megabytes):
        file = work / f"page{megabytes}.html"
        if not file.exists() or file.stat().st_size != megabytes * MB:
            file.write_bytes(makehtml.page(megabytes * MB))
        return file

    report = Report()
    for group in groups or GROUPS:
        GROUPS[group](Programs(build, folder, work), report, inputs, build, work)
    return 0 if report.all_met else 1


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
