"""An X server, which is that of the environment, and a window manager."""
import contextlib
import os
import subprocess

import gi

gi.require_version("Gdk", "3.0")
from gi.repository import Gdk

from pictures import colours_of
from waiting import PATIENCE, until


def xdotool(*words):
    """Gives what it says; fails with the reason."""
    return subprocess.run(["xdotool", *map(str, words)], check=True, timeout=PATIENCE,
                          capture_output=True, text=True).stdout


def _told(*words):
    return subprocess.run(["xdotool", *words], capture_output=True, text=True).stdout.split()


class Desktop:
    environment = {"QT_QPA_PLATFORM": "xcb", "GDK_BACKEND": "x11"}
    brings_back_places = True
    has_tray = False

    @contextlib.contextmanager
    def running(self, folder):
        environment = os.environ | {"HOME": folder, "XDG_CONFIG_HOME": folder}
        with subprocess.Popen(["openbox", "--sm-disable"], env=environment,
                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL) as manager:
            try:
                until(lambda: subprocess.run(["xdotool", "get_num_desktops"],
                                             capture_output=True).returncode == 0,
                      "the window manager")
                yield
            finally:
                manager.terminate()

    def visible_window(self, pid, name=""):
        found = _told("search", "--onlyvisible", "--all", "--pid", str(pid), "--name", name)
        return found[-1] if found else None

    def active_window(self):
        found = _told("getactivewindow")
        return found[-1] if found else None

    def origin(self, pid):
        return 0, 0

    def place(self, window, at, size=None):
        if size:
            xdotool("windowsize", "--sync", window, *size)
        xdotool("windowmove", "--sync", window, *at)

    def press(self, *keys):
        xdotool("key", "--delay", 20, *keys)

    def write(self, text):
        xdotool("type", "--delay", 20, text)

    def clipboard(self):
        read = subprocess.run(["xclip", "-selection", "clipboard", "-o"], capture_output=True)
        return read.stdout.decode()

    def move(self, *points, pause):
        xdotool(*(word for point in points for word in ("mousemove", *point, "sleep", pause)))

    def hold(self, button):
        xdotool("mousedown", button, "sleep", 0.05)

    def release(self, button):
        xdotool("mouseup", button)

    def colours_in(self, rectangle):
        return colours_of(
            Gdk.pixbuf_get_from_window(Gdk.get_default_root_window(), *rectangle))
