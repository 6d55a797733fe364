"""The desktop that journeys happen on: an X server, a window manager, a pointer, keys, a clipboard.

The X server and the session bus are those of the environment, which nobody else uses."""
import os
import subprocess
import time

import gi

gi.require_version("Gdk", "3.0")
from gi.repository import Gdk, GLib

PATIENCE = 20  # seconds; a busy machine is no failure


def until(condition, what):
    """Asks again and again; gives the first answer that is true, or fails telling what for."""
    deadline = time.monotonic() + PATIENCE
    while not (answer := condition()):
        if time.monotonic() > deadline:
            raise AssertionError(f"waited {PATIENCE} s for {what() if callable(what) else what}")
        hear()
        time.sleep(0.02)
    return answer


def hear():
    """Delivers what other programs have told meanwhile."""
    while GLib.MainContext.default().iteration(False):
        pass


def xdotool(*words):
    """Gives what it says; fails with the reason."""
    return subprocess.run(["xdotool", *map(str, words)], check=True, timeout=PATIENCE,
                          capture_output=True, text=True).stdout


class WindowManager:
    def __init__(self, home):
        environment = os.environ | {"HOME": home, "XDG_CONFIG_HOME": home}
        self._process = subprocess.Popen(["openbox", "--sm-disable"], env=environment,
                                         stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        until(lambda: subprocess.run(["xdotool", "get_num_desktops"],
                                     capture_output=True).returncode == 0, "the window manager")

    def end(self):
        self._process.terminate()
        self._process.wait()


# --- Windows, by their numbers on the X server


def _told(*words):
    return subprocess.run(["xdotool", *words], capture_output=True, text=True).stdout.split()


def visible_window(pid, name=""):
    """The last one of a process whose title holds the name; none if there is none."""
    found = _told("search", "--onlyvisible", "--all", "--pid", str(pid), "--name", name)
    return found[-1] if found else None


def active_window():
    """The one that gets the keys."""
    found = _told("getactivewindow")
    return found[-1] if found else None


# --- Keys and clipboard


def press(*keys):
    """Keys by their X names, such as "ctrl+n", one after the other."""
    xdotool("key", "--delay", 20, *keys)


def write(text):
    xdotool("type", "--delay", 20, text)


def clipboard():
    read = subprocess.run(["xclip", "-selection", "clipboard", "-o"], capture_output=True)
    return read.stdout.decode()


# --- Pointer. Points are pairs of pixels on the screen.


def click(point, button=1):
    xdotool("mousemove", *point, "sleep", 0.05, "click", button)


class Drag:
    """A drag by the pointer: over places, with looks at them, until it drops."""

    def __init__(self, start):
        self._at = start
        xdotool("mousemove", *start, "sleep", 0.05, "mousedown", 1, "sleep", 0.05)

    def over(self, point, steps=10):
        words = []
        for step in range(1, steps + 1):
            at = [round(a + (b - a) * step / steps) for a, b in zip(self._at, point)]
            words += ["mousemove", *at, "sleep", 0.02]
        xdotool(*words)
        self._at = point
        return self

    def stay(self):
        """As a hand stays: some programs tell where a drag is only while it moves."""
        x, y = self._at
        xdotool("mousemove", x + 1, y, "sleep", 0.05, "mousemove", x, y, "sleep", 0.05)

    def until(self, condition, what):
        return until(lambda: self.stay() or condition(), what)

    def drop(self):
        # Right behind the last move it would come before the receiver's answer to it.
        for _ in range(4):
            self.stay()
        xdotool("mouseup", 1)


# --- Screen


def colours_in(rectangle):
    """The set of colours within left, top, width and height, each as red, green and blue."""
    picture = Gdk.pixbuf_get_from_window(Gdk.get_default_root_window(), *rectangle)
    rows, stride = picture.get_pixels(), picture.get_rowstride()
    step = picture.get_n_channels()
    return {tuple(rows[y * stride + x * step:][:3])
            for y in range(rectangle[3]) for x in range(rectangle[2])}
