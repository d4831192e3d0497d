# SPDX-License-Identifier: GPL-2.0-or-later
"""Whole works: commands that run to their end beside others that do the same, their output going to a file."""

import os
import re
import shlex
import shutil
import statistics
import subprocess
import time

from comparing import Measurement, ended_well, lines_in, read_through


class Work:
    """A whole work: a command whose output goes to a file. `prepare` is called before each run. Where there is a
    `cache`, what a run takes of memory beyond the files that it has mapped from that folder is looked at too."""

    def __init__(self, name, command, environment, prepare=lambda: None, cache=None):
        self.name = name
        self.command = [str(part) for part in command]
        self.environment = environment
        self.prepare = prepare
        self.cache = cache


def start(work, output):
    return subprocess.Popen(work.command, env=work.environment, stdin=subprocess.DEVNULL, stdout=output,
                            stderr=subprocess.DEVNULL)


def run_work(work, listing, output):
    """Runs a work to its end, with the listing in the page cache; its count is that of the lines written."""
    work.prepare()
    read_through(listing)
    with open(output, "wb") as file:
        before = time.perf_counter()
        process = start(work, file)
        _, status, usage = os.wait4(process.pid, 0)
        seconds = time.perf_counter() - before
    ended_well(process, status)
    count = lines_in(output)
    # The next run is to make its pages anew, as this one did.
    output.unlink()
    return Measurement(seconds, usage.ru_utime + usage.ru_stime, usage.ru_maxrss * 1024, count)


def resident_beside(maps, folder):
    """The resident bytes in the text of a process's smaps that belong to no file in `folder`."""
    resident, counts = 0, True
    for line in maps.splitlines():
        if re.match(r"[0-9a-f]+-[0-9a-f]+ ", line):
            counts = str(folder) not in line
        elif counts and line.startswith("Rss:"):
            resident += int(line.split()[1]) * 1024
    return resident


def own_peak(work, output):
    """The most memory of a run, looked at some hundred times a second, without what it has mapped of its cache."""
    work.prepare()
    peak = 0
    with open(output, "wb") as file:
        process = start(work, file)
        while (ended := os.wait4(process.pid, os.WNOHANG))[0] == 0:
            try:
                with open(f"/proc/{process.pid}/smaps") as maps:
                    peak = max(peak, resident_beside(maps.read(), work.cache))
            except ProcessLookupError:
                continue
            time.sleep(0.005)
    ended_well(process, ended[1])
    output.unlink()
    return peak


def measure_works(works, rounds, listing, folder):
    """For the name of each work a list of Measurements, done in turn, and the own peak where there is one."""
    results = {work.name: [] for work in works}
    for number in range(rounds + 1):
        for work in works:
            result = run_work(work, listing, folder / "output")
            # The first round brings programs and what they keep into place.
            if number > 0:
                results[work.name].append(result)
    peaks = {work.name: own_peak(work, folder / "output") for work in works if work.cache}
    return results, peaks


def works_table(title, measured):
    """Ratios are to the first work, in processor time and in time on the wall."""
    def median(runs, what):
        return statistics.median(getattr(run, what) for run in runs)

    results, peaks = measured
    first = next(iter(results.values()))
    lines = [f"| {title} | lines | processor s | ratio | median s | ratio | peak MB | own peak MB |",
             "|---|--:|--:|--:|--:|--:|--:|--:|"]
    for name, runs in results.items():
        processor, seconds = median(runs, "processor"), median(runs, "seconds")
        peak = max(run.peak_bytes for run in runs) / 1e6
        own = f"{peaks[name] / 1e6:.0f}" if name in peaks else ""
        lines.append(f"| {name} | {runs[0].count:,} | {processor:.2f} | "
                     f"{processor / median(first, 'processor'):.2f} | {seconds:.2f} | "
                     f"{seconds / median(first, 'seconds'):.2f} | {peak:.0f} | {own} |")
    return lines


def emptied(folder):
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir()


def reading(path, environment):
    """No search can be quicker than that, as long as it looks at all of the file."""
    return Work("`cat` to nowhere", ["sh", "-c", f"cat {shlex.quote(str(path))} >/dev/null"], environment)


def first_searches(program, listing, folder, environment):
    """The same search without keeping anything, and the first that keeps its segments."""
    cache = folder / "first-cache"
    own = {**environment, "XDG_CACHE_HOME": str(cache)}
    base = [program, "find", "--count", "report", listing]
    return [Work("quorvin-cli `--no-cache`", [*base, "--no-cache"], own, cache=cache),
            Work("quorvin-cli, first search", base, own, lambda: emptied(cache), cache),
            reading(listing, environment)]


def rows_out(program, listing, environment):
    """All rows of a word that nearly every path holds. The segments of quorvin-cli are kept by then."""
    works = [Work("`rg -i -F -n e`", ["rg", "--no-config", "-i", "-F", "-n", "e", listing], environment)]
    for form in ("tsv", "csv", "json"):
        works.append(Work(f"quorvin-cli, {form}", [program, "find", "--format", form, "e", listing], environment,
                          cache=environment["XDG_CACHE_HOME"]))
    return works


def sorted_rows(program, listing, folder, environment):
    """The same rows in the order of their names, beside a program that sorts the rows written before, and one that
    copies them."""
    rows = folder / "rows.tsv"
    with open(rows, "wb") as file:
        subprocess.run([program, "find", "e", listing], env=environment, stdout=file, stderr=subprocess.DEVNULL,
                       check=True)
    order = ["sort", "-s", "-f", "-t", "\t", "-k", "4,4", "-S", "4G", "-T", folder, rows]
    return [Work("`LC_ALL=C sort -s -f -k 4,4`, rows on disk", order, {**environment, "LC_ALL": "C"}),
            Work("quorvin-cli, `--sort name`", [program, "find", "--sort", "name", "e", listing], environment,
                 cache=environment["XDG_CACHE_HOME"]),
            Work("`cat`, rows on disk", ["cat", rows], environment)]
