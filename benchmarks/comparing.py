"""What the comparisons tell about the machine and the programs, without the folders of this machine."""

import os
import pathlib
import platform
import re
import shlex
import subprocess
import sys


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
