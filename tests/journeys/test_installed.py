"""The program where an installation has put it: its window on the desktop, its helpers, its start by the bus."""
import configparser
import os
import pathlib
import signal
import subprocess
import unittest

from gi.repository import Gio, GLib

import bus
from desktop import until, visible_window
from journey import Journey

PROGRAM = pathlib.Path(os.environ["TARNLOFT"])
PREFIX = PROGRAM.parent.parent
NAME = "com.quillmoor.tarnloft"


def executable(pid):
    try:
        return pathlib.Path(os.readlink(f"/proc/{pid}/exe"))
    except OSError:
        return None


def children(pid):
    listed = subprocess.run(["ps", "-o", "pid=", "--ppid", str(pid)], capture_output=True, text=True)
    return [executable(child) for child in listed.stdout.split()]


def start_by_bus(action):
    Gio.bus_get_sync(Gio.BusType.SESSION).call_sync(
        NAME, "/com/quillmoor/tarnloft", "org.freedesktop.Application", "ActivateAction",
        GLib.Variant("(sava{sv})", (action, [], {})), None, Gio.DBusCallFlags.NONE, 20000)


class Installed(Journey):
    def test_the_taskbar_knows_its_window(self):
        tarn = self.start()
        told = subprocess.run(["xprop", "-id", tarn.window, "WM_CLASS", "_NET_WM_ICON"],
                              capture_output=True, text=True, check=True).stdout
        entry = configparser.RawConfigParser()
        entry.read(PREFIX / f"share/applications/{NAME}.desktop")
        self.assertIn(f'"{entry["Desktop Entry"]["StartupWMClass"]}"', told)
        for size in (16, 48, 128):
            self.assertIn(f"Icon ({size} x {size})", told)

    def test_vector_files_are_drawn_by_its_own_helper(self):
        self.home.add_samples()
        tarn = self.start()
        tarn.click("list item", "Juniper & Salt")
        helpers = until(lambda: [path for path in children(tarn.pid)
                                 if path and path.name == "tarnloft-decoder"], "a decoder")
        self.assertTrue(helpers[0].is_relative_to(PREFIX))

    def test_actions_start_it_by_the_bus_and_reach_it_by_a_second_start(self):
        bus.ask("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                "UpdateActivationEnvironment", "(a{ss})",
                self.home.environment | {"QT_QUICK_BACKEND": "software"} |
                {name: os.environ[name] for name in ("DISPLAY", "XAUTHORITY")})
        start_by_bus("preferences")
        pid = bus.ask("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                      "GetConnectionUnixProcessID", "(s)", NAME)
        self.addCleanup(os.kill, pid, signal.SIGKILL)
        self.assertEqual(executable(pid), PROGRAM)
        until(lambda: visible_window(pid, "Settings"), "the settings")
        self.assertIsNone(visible_window(pid, "^Tarn Loft$"))
        subprocess.run([PROGRAM, "--new-brand"], check=True, timeout=20,
                       env=os.environ | self.home.environment)
        until(lambda: visible_window(pid, "^Tarn Loft$"), "the main window")


if __name__ == "__main__":
    unittest.main()
