"""A later version comes by the desktop's package service: found, refused, installed and running.

Somebody else writes HOME/may-update, once the user may install, after HOME/wants-to-update."""
import os
import pathlib
import subprocess
import time
import unittest

import gi

gi.require_version("Gdk", "3.0")
from gi.repository import Gdk

from desktop import until, visible_window
from journey import Journey

HOME = pathlib.Path(os.environ["HOME"])
PICTURES = pathlib.Path(os.environ["PICTURES"])


def installed():
    return subprocess.run(["dpkg-query", "-W", "-f", "${Version}", "tarnloft"],
                          capture_output=True, text=True, check=True).stdout


def picture(name):
    root = Gdk.get_default_root_window()
    size = root.get_width(), root.get_height()
    Gdk.pixbuf_get_from_window(root, 0, 0, *size).savev(f"{PICTURES}/{name}.png", "png", [], [])


def slowly(condition, what, patience=150):
    """The program looks a minute behind its start, and the service takes its time."""
    deadline = time.monotonic() + patience
    while not condition():
        if time.monotonic() > deadline:
            picture("failed")
            raise AssertionError(f"waited {patience} s for {what}")
        time.sleep(0.2)


def running():
    """The processes of the program by their files."""
    found = {}
    for each in pathlib.Path("/proc").iterdir():
        try:
            path = os.readlink(each / "exe")
        except OSError:
            continue
        if path.startswith("/usr/bin/tarnloft"):
            found[int(each.name)] = path
    return found


class Update(Journey):
    def test_a_later_version_arrives(self):
        before = installed()
        self.home.add_samples()
        settings = self.home.folder / "config/tarnloft.ini"
        settings.parent.mkdir()
        settings.write_text("[General]\nupdates.download=true\n")
        tarn = self.start()
        slowly(lambda: tarn.all("push button", "Install"), "the offer")
        picture("offered")
        self.assertIn("Drags land softer.", tarn.tree.outline)

        tarn.find("push button", "Install").act()
        until(lambda: visible_window(tarn.pid, "Settings"), "the settings")
        slowly(lambda: "couldn't be installed" in tarn.tree.outline, "the refusal")
        picture("refused")
        self.assertEqual(installed(), before)

        (HOME / "wants-to-update").touch()
        until((HOME / "may-update").exists, "the right to update")
        tarn.find("push button", "Install").act()
        slowly(lambda: tarn.all("push button", "Relaunch"), "the new version")
        picture("installed")
        self.assertEqual(installed(), before + "+next")
        self.assertEqual(running()[tarn.pid], "/usr/bin/tarnloft (deleted)")

        tarn.all("push button", "Relaunch")[0].act()
        # The same process.
        until(lambda: running().get(tarn.pid) == "/usr/bin/tarnloft", "the new start")
        tarn.find("heading", "Juniper & Salt")
        picture("relaunched")


if __name__ == "__main__":
    unittest.main()
