# SPDX-License-Identifier: GPL-2.0-or-later
"""The desktop of scripts/screenshots: a screen, a home with a catalogue, and the program in them."""
import os
import re
import shutil
import signal
import subprocess
import sys
import time
from pathlib import Path
from xml.etree import ElementTree

TOP = Path(__file__).resolve().parent.parent
PICTURES = TOP / "docs/screenshots"
MANUAL = TOP / "src/help/pages/images"
TITLE = "Quorvin Utility"
# As they are seen in the windows.
HOME = Path("/tmp/ann")
INSTALLED = Path("/tmp/quorvin")
PATIENCE = 60

DARK = """[General]
ColorScheme=Dark
[Colors:Window]
BackgroundNormal=45,45,48
ForegroundNormal=240,240,240
[Colors:View]
BackgroundNormal=30,30,32
BackgroundAlternate=38,38,41
ForegroundNormal=240,240,240
ForegroundLink=110,180,255
[Colors:Button]
BackgroundNormal=58,58,62
ForegroundNormal=240,240,240
[Colors:Selection]
BackgroundNormal=42,110,180
ForegroundNormal=255,255,255
[Colors:Tooltip]
BackgroundNormal=58,58,62
ForegroundNormal=240,240,240
"""

CONTRAST = """[Colors:Window]
BackgroundNormal=0,0,0
ForegroundNormal=255,255,255
[Colors:View]
BackgroundNormal=0,0,0
BackgroundAlternate=26,26,26
ForegroundNormal=255,255,255
ForegroundLink=255,255,0
[Colors:Button]
BackgroundNormal=0,0,0
ForegroundNormal=255,255,255
[Colors:Selection]
BackgroundNormal=255,255,0
ForegroundNormal=0,0,0
"""
# Desktops of this kind are asked for their colours.
KDE = {"QT_QPA_PLATFORMTHEME": "kde", "XDG_CURRENT_DESKTOP": "KDE", "KDE_SESSION_VERSION": "5"}

# What each look sets for the program, with which arguments it starts, and how much larger everything is.
LOOKS = {
    "light": ({}, [], 1),
    "dark": (KDE, [], 1),
    "contrast": (KDE, [], 1),
    "200": ({"QT_SCALE_FACTOR": "2"}, [], 2),
    "rtl": ({}, ["-reverse"], 1),
    "de": ({"LC_ALL": "de_DE.UTF-8"}, [], 1),
    "ja": ({"LC_ALL": "ja_JP.UTF-8"}, [], 1),
    "steps": ({}, [], 1),
    "manual-de": ({"LC_ALL": "de_DE.UTF-8"}, [], 1),
    "manual-es": ({"LC_ALL": "es_ES.UTF-8"}, [], 1),
    "manual-fr": ({"LC_ALL": "fr_FR.UTF-8"}, [], 1),
}
# How the toolkit's own translations call the button "Yes".
YES = {"de": "&Ja", "es": "&Sí", "fr": "&Oui"}


def translations(language):
    """What the program's texts are in a language, by the English ones; empty where it has no translation."""
    path = TOP / f"translations/{language}.ts"
    if not path.exists():
        return {}
    messages = ElementTree.parse(path).getroot().iter("message")
    return {message.findtext("source"): message.findtext("translation") for message in messages} | {"&Yes": YES[language]}


def until(what, condition):
    """Waits for what `condition` gives, and gives it."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        if found := condition():
            return found
        time.sleep(0.05)
    sys.exit(f"scripts/screenshots: waited in vain for {what}")


class Screen:
    """An X server with a window manager, and somebody who types."""

    def __init__(self, scale):
        ready, told = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(told), "-screen", "0", f"{1280 * scale}x{1024 * scale}x24", "-nolisten", "tcp",
             "-noreset", "-r"], pass_fds=[told], stderr=subprocess.DEVNULL)
        os.close(told)
        with os.fdopen(ready) as answer:
            display = answer.readline().strip()
        self.environment = {key: value for key, value in os.environ.items()
                            if not key.startswith(("QT_", "XDG_", "LC_", "KDE_", "WAYLAND", "DBUS_"))}
        self.environment |= {"DISPLAY": ":" + display, "LANG": "en_US.UTF-8", "QT_QPA_PLATFORM": "xcb", "TZ": "UTC0"}
        self.manager = subprocess.Popen(["openbox", "--sm-disable"], env=self.environment,
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        until("a window manager", lambda: self.tool("get_num_desktops"))

    def end(self):
        for process in (self.manager, self.server):
            process.kill()
            process.wait()

    def run(self, *command):
        done = subprocess.run(command, env=self.environment, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        return done.stdout if done.returncode == 0 else b""

    def tool(self, *arguments):
        return self.run("xdotool", *map(str, arguments)).decode().strip()

    def press(self, *keys):
        self.tool("key", "--delay", "12", *keys)

    def type(self, text):
        self.tool("type", "--delay", "12", text)

    def type_over(self, text):
        self.press("ctrl+a")
        self.type(text)

    def active(self):
        window = self.tool("getactivewindow")
        return (window, self.tool("getwindowname", window)) if window else ("", "")

    def window(self, title, other_than=""):
        """The window that takes the keys, once it has this title."""
        def found():
            window, name = self.active()
            return window if re.fullmatch(title, name) and window != other_than else ""
        return until(f'the window "{title}"', found)

    def place(self, window):
        """Of the window with its frame: x, y, width, height."""
        facts = self.run("xwininfo", "-id", window).decode()
        x, y, width, height = (int(re.search(rf"{fact}: +(-?\d+)", facts)[1])
                               for fact in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))
        extents = self.run("xprop", "-id", window, "_NET_FRAME_EXTENTS").decode()
        left, right, top, bottom = (int(number) for number in re.findall(r"\d+", extents.split("=")[1]))
        return x - left, y - top, width + left + right, height + top + bottom

    def shot(self, place):
        x, y, width, height = place
        return self.run("import", "-window", "root", "-crop", f"{width}x{height}+{x}+{y}", "+repage", "png:-")

    def settled(self, place):
        """The picture once nothing in it changes any more; a cursor that blinks is waited for."""
        before = self.shot(place)
        for _ in range(12):
            time.sleep(0.2)
            now = self.shot(place)
            if now == before:
                break
            before = now
        return before

    def take(self, path, window, colours=64, settle=True):
        place = self.place(window)
        picture = self.settled(place) if settle else self.shot(place)
        subprocess.run(["convert", "png:-", "+dither", "-colors", str(colours), "-strip", "-define",
                        "png:compression-level=9", f"png8:{path}"], input=picture, check=True)
        print(path.relative_to(TOP), flush=True)


def volumes_of_the_sample():
    """The text of each volume's blocks, by the volume's name, in their order."""
    text = (TOP / "samples/sample-catalogue.txt").read_bytes().decode()
    blocks = re.split(r"(?=\r\nVolume:    )", text)
    volumes = {}
    for block in blocks:
        if name := re.match(r"\r\nVolume:    (.*)\r\n", block):
            volumes[name[1]] = volumes.get(name[1], "") + block
    return volumes


def make_files(blocks, folder):
    """The files that the blocks list, empty but as large and as old as they say."""
    place = folder
    for line in blocks.split("\r\n"):
        if line.startswith("Directory: "):
            place = folder.joinpath(*line[11:].strip("\\").split("\\"))
            place.mkdir(parents=True, exist_ok=True)
        elif entry := re.match(r"(.{65}) *([\d,]+) bytes (\S+ \S+)$", line):
            path = place / entry[1].rstrip()
            path.touch()
            os.truncate(path, int(entry[2].replace(",", "")))
            moment = time.mktime(time.strptime(entry[3], "%Y-%m-%d %H:%M:%S"))
            os.utime(path, (moment, moment))


def entry(name, size, date):
    return f"{name:<65.65}{size:>16} bytes {date}\r\n"


def install(program):
    """Where the pictures show it: as a package puts it."""
    (INSTALLED / "bin").mkdir(parents=True)
    shutil.copytree(TOP / "src/help/pages", INSTALLED / "share/quorvin/help")
    return shutil.copy(program, INSTALLED / "bin")


class Home:
    """What the user of the pictures has: files, listings and settings."""

    def __init__(self, program, is_new=False):
        HOME.mkdir()
        self.program = install(program)
        self.data = HOME / ".local/share/quorvin"
        for name in ("Lists", ".config", ".run"):
            (HOME / name).mkdir()
        (HOME / ".run").chmod(0o700)
        self.environment = {
            "HOME": str(HOME), "XDG_CONFIG_HOME": str(HOME / ".config"), "XDG_CACHE_HOME": str(HOME / ".cache"),
            "XDG_DATA_HOME": str(HOME / ".local/share"), "XDG_RUNTIME_DIR": str(HOME / ".run")}
        volumes = volumes_of_the_sample()
        names = list(volumes)
        make_files(volumes["MUSIC_01"], HOME)
        make_files(volumes["PHOTOS_2004"], HOME)
        # These can be looked at.
        for number, name in enumerate(sorted(HOME.glob("Pictures/2003-07*/*.jpg"))):
            moment = name.stat().st_mtime
            subprocess.run(["convert", "-seed", str(number + 1), "-size", "800x600", "plasma:#203a66-#e8a25c",
                            "-blur", "0x6", "-quality", "95", name], check=True)
            os.utime(name, (moment, moment))
        if is_new:
            return
        own = ("MUSIC_01", "PHOTOS_2004")
        self.data.mkdir(parents=True)
        self.write("main.txt", "".join(volumes[name] for name in names if name not in own + (names[-1],)))
        (HOME / "Lists/backup.txt").write_bytes(volumes[names[-1]].encode())
        self.write("Locations.txt", f'"Music","{HOME}/Music/"\r\n"Pictures","{HOME}/Pictures/"\r\n')
        self.write("OfflineLocations.txt", f'"Offline","{HOME}/Lists/backup.txt"\r\n')
        self.set({"LocalFolder": f"{self.data}/", "TextFile": "main.txt", "ArchiveFile": "main.zip",
                  "WebServer": "lists.example", "JoinDate": "2004-01-15 10:20:30", "NickName": "ann"})

    def write(self, name, text):
        (self.data / name).write_bytes(text.encode())

    def set(self, values):
        folder = HOME / ".config/quorvin"
        folder.mkdir(exist_ok=True)
        lines = "".join(f"{key}={value}\n" for key, value in values.items())
        (folder / "settings.ini").write_text(f"[Ketta%20Quorvin/Settings]\n{lines}")

    def remove(self):
        shutil.rmtree(HOME)
        shutil.rmtree(INSTALLED)


class Program:
    """The program with its window, on a screen and in a home of its own."""

    def __init__(self, screen, home, look, width=900, height=520):
        environment, arguments, self.scale = LOOKS[look]
        if colours := {"dark": DARK, "contrast": CONTRAST}.get(look):
            (HOME / ".config/kdeglobals").write_text(colours)
        self.screen = screen
        self.language = language = environment.get("LC_ALL", "en")[:2]
        self.texts = translations(language)
        self.suffix = "" if look in ("light", "steps") else "-" + look
        self.manual = TOP / f"src/help/pages/{language}/images" if look == f"manual-{language}" else None
        self.process = subprocess.Popen([home.program, *arguments], env=screen.environment | home.environment | environment,
                                        cwd=HOME, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.main = screen.window(TITLE)
        screen.tool("windowmove", self.main, 60 * self.scale, 60 * self.scale)
        screen.tool("windowsize", self.main, width * self.scale, height * self.scale)
        time.sleep(0.5)

    def said(self, text):
        """In the language of the look."""
        return self.texts.get(text, text)

    def letter(self, caption):
        return re.search("&(.)", self.said(caption))[1].lower()

    def item(self, menu, item):
        """The keys for an item of the menu bar."""
        return [f"alt+{self.letter(menu)}", self.letter(item)]

    def end(self):
        self.process.send_signal(signal.SIGTERM)
        self.process.wait(PATIENCE)

    def take(self, name, window=None, folder=PICTURES, **how):
        if self.manual:
            if (MANUAL / f"{name}.png").exists():
                self.screen.take(self.manual / f"{name}.png", window or self.main, **how)
            return
        path = folder / f"{name}{self.suffix}.png"
        self.screen.take(path, window or self.main, **how)
        # The manual shows some of them, too.
        if folder == PICTURES and (MANUAL / path.name).exists():
            shutil.copy(path, MANUAL)

    def back(self):
        self.screen.window(TITLE)

    def dialog(self, keys, title):
        self.screen.press(*keys)
        return self.screen.window(title, other_than=self.main)

    def find(self, words, match="50"):
        self.screen.press("ctrl+f")
        self.screen.type_over(words)
        self.screen.press("Tab")
        self.screen.type_over(match)
        self.screen.press("Return")
        time.sleep(0.8)

    def choose_row(self, number):
        """Of the list, from 1."""
        self.screen.press("ctrl+f", "shift+Tab", "Home", *["Down"] * (number - 1))
        time.sleep(0.2)

    def rescan(self):
        self.screen.press(f"alt+{self.letter('&File')}", "Down", "Down", "Return")
