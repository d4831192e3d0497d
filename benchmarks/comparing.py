# SPDX-License-Identifier: GPL-2.0-or-later
"""What the comparisons tell about the machine and the programs, without the folders of this machine."""

import os
import pathlib
import platform
import re
import shlex
import subprocess
import sys

CHUNK = 1 << 20


def first_line_of(*command):
    answer = subprocess.run(command, capture_output=True, text=True)
    return (answer.stdout or answer.stderr).strip().partition("\n")[0]


def found_in(path, pattern, otherwise="unknown"):
    try:
        found = re.search(pattern, pathlib.Path(path).read_text(), re.MULTILINE)
    except OSError:
        return otherwise
    return found.group(1).strip() if found else otherwise


def machine_lines():
    memory = os.sysconf("SC_PAGE_SIZE") * os.sysconf("SC_PHYS_PAGES") / 2**30
    processor = found_in("/proc/cpuinfo", r"^model name\s*:(.*)")
    system = found_in("/etc/os-release", r'^PRETTY_NAME="?([^"\n]*)')
    # A kernel's version, without what its builder added.
    kernel = re.match(r"[0-9.]*", platform.release()).group()
    return [f"- Processor: {processor}, {os.cpu_count()} cores", f"- Memory: {memory:.0f} GiB",
            f"- System: {system}, Linux {kernel}"]


def shown_command(script):
    """The command line without the folders of this machine."""
    names = [pathlib.Path(part).name if "/" in part else part for part in sys.argv[1:]]
    return shlex.join([f"benchmarks/{script}", *names])


def read_through(path):
    """Reads a file from front to back, so that all of it is in the page cache."""
    with open(path, "rb", buffering=0) as file:
        while file.read(CHUNK):
            pass


def lines_in(path):
    with open(path, "rb", buffering=0) as file:
        return sum(piece.count(b"\n") for piece in iter(lambda: file.read(CHUNK), b""))


class Measurement:
    """One timed run; `processor` is the time of all processors in the program and, for it, in the system."""

    def __init__(self, seconds, processor, peak_bytes, count):
        self.seconds = seconds
        self.processor = processor
        self.peak_bytes = peak_bytes
        self.count = count


def ended_well(process, status, good=(0,)):
    """Ends the comparison unless the process, which has ended with `status`, has done what it was asked for."""
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode not in good:
        sys.exit(f"this failed with status {process.returncode}: {shlex.join(process.args)}")


def write_settings(config, data):
    """Settings below `config` by which the program's data is in the folder `data`, wherever the program is."""
    settings = config / "quorvin" / "settings.ini"
    settings.parent.mkdir(parents=True)
    settings.write_text(f"[Ketta%20Quorvin/Settings]\nLocalFolder={data}/\n")


def end_of_block(file, at):
    """Where the first block of entries from `at` on ends, or the file does."""
    mark = b"\r\n\r\nVolume:"
    file.seek(at)
    text = b""
    while mark not in text:
        more = file.read(CHUNK)
        if not more:
            return at + len(text)
        text += more
    return at + text.index(mark) + 2


def split_listing(listing, folder, parts):
    """Writes a listing as `parts` listings of about equal size into `folder`, cut between blocks of entries, and
    returns their paths. Each block names its volume and its folder, so all entries stay what they are."""
    paths = []
    size = listing.stat().st_size
    with open(listing, "rb") as file:
        start = 0
        for number in range(1, parts + 1):
            end = size if number == parts else end_of_block(file, max(start, size * number // parts))
            path = folder / f"part{number:04}.txt"
            file.seek(start)
            path.write_bytes(file.read(end - start))
            paths.append(path)
            start = end
    return paths
