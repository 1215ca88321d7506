# SPDX-License-Identifier: MIT
"""A real screen without a monitor: an X server, a window manager, and keys that reach whatever window has the focus."""
import os
import re
import subprocess
import time

PATIENCE = 20.0  # seconds; a busy machine draws slowly


class Desk:
    """A screen of some size. Programs on it are started with `environment`."""

    def __init__(self, environment, size):
        self.size = size
        reading, writing = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writing), "-screen", "0", f"{size[0]}x{size[1]}x24", "-nolisten", "tcp"],
            pass_fds=[writing], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as number:
            display = number.readline().strip()
        assert display, "the X server does not start"
        self.environment = environment | {"DISPLAY": f":{display}", "QT_QPA_PLATFORM": "xcb"}
        self.manager = subprocess.Popen(["openbox", "--sm-disable"], env=self.environment, stdout=subprocess.DEVNULL,
                                        stderr=subprocess.DEVNULL)
        self.until("the window manager is there", lambda: "window id" in self.run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"))

    def close(self):
        for process in (self.manager, self.server):
            process.terminate()
            process.wait()

    def run(self, *command):
        done = subprocess.run(command, env=self.environment, capture_output=True, text=True)
        return done.stdout

    @staticmethod
    def until(what, holds):
        end = time.monotonic() + PATIENCE
        while not holds():
            assert time.monotonic() < end, f"waited in vain until {what}"
            time.sleep(0.05)

    # -- windows --------------------------------------------------------------------------------------------

    def titles(self):
        """Titles of the windows in sight, by window."""
        found = {}
        for window in self.run("xdotool", "search", "--onlyvisible", "--name", ".").split():
            title = self.run("xdotool", "getwindowname", window).strip()
            kind = self.run("xprop", "-id", window, "WM_CLASS")
            if "rbtally1" in kind and title:
                found[window] = title
        return found

    def active_title(self):
        window = self.run("xdotool", "getactivewindow").strip()
        return self.run("xdotool", "getwindowname", window).strip() if window else ""

    def expect_active(self, title):
        self.until(f"{title} has the focus (it is {self.active_title()!r})", lambda: self.active_title() == title)
        time.sleep(0.2)  # what the focus brings about

    def expect_gone(self, title):
        self.until(f"{title} has gone", lambda: title not in self.titles().values())

    def window(self, title):
        return next(window for window, each in self.titles().items() if each == title)

    def activate(self, title):
        self.run("xdotool", "windowactivate", "--sync", self.window(title))

    def place(self, title):
        """Left, top, right and bottom of a window with its frame."""
        window = self.window(title)
        text = self.run("xwininfo", "-id", window)
        left, top, width, height = (int(re.search(rf"{name}:\s+(-?\d+)", text)[1]) for name in (
            "Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))
        extents = re.search(r"= (\d+), (\d+), (\d+), (\d+)", self.run("xprop", "-id", window, "_NET_FRAME_EXTENTS"))
        west, east, north, south = (int(extents[i]) for i in range(1, 5)) if extents else (0, 0, 0, 0)
        return left - west, top - north, left + width + east, top + height + south

    # -- hands ----------------------------------------------------------------------------------------------

    def press(self, *keys):
        """Keys of the keyboard, to whatever window has the focus."""
        for key in keys:
            self.run("xdotool", "key", key)
            time.sleep(0.15)

    def click(self, x, y):
        self.run("xdotool", "mousemove", str(x), str(y), "click", "1")
        time.sleep(0.2)

    def picture(self, file):
        """For people to look at, where there is a program that takes pictures."""
        subprocess.run(["scrot", "--overwrite", str(file)], env=self.environment, check=False,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
