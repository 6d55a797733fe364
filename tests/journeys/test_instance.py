"""One running program, and its end."""
import os
import shutil
import subprocess
import unittest

import bus
from desktop import click, press, until, visible_window
from journey import Journey
from program import Process, Program, gtk_partner
from x11 import xdotool


class OneInstance(Journey):
    def test_a_second_start_shows_the_first_ones_window(self):
        tarn = self.start()
        for hide in ("minimised", "behind another"):
            with self.subTest(hide):
                if hide == "minimised":
                    xdotool("windowminimize", "--sync", tarn.window)
                else:
                    self.beside(gtk_partner((300, 300)))
                    click((400, 375))
                    until(lambda: not tarn.is_active, "the other window in front")
                second = self.beside(Program(self.home))
                self.assertEqual(second.wait(), 0)
                until(lambda: tarn.is_active, "the first start's window in front")
                self.assertFalse(tarn.has_ended())

    def test_an_archive_is_opened_in_the_first_one(self):
        self.home.add_brand("Acme", ["Colors"])
        self.home.add_brand("Fox & Co", [])
        elsewhere = self.home.folder / "a folder, with “words”"
        elsewhere.mkdir()
        archive = elsewhere / "Nörd.tarnloft.zip"
        packed = self.home.library / "Nörd.tarnloft"
        (self.home.library / "Acme.tarnloft").rename(packed)
        subprocess.run(["bsdtar", "--format=zip", "-cf", archive, "-C", packed.parent, packed.name],
                       check=True)
        shutil.rmtree(packed)
        tarn = self.start()
        tarn.find("heading", "Fox & Co")
        for ask in (lambda: self.assertEqual(self.second(elsewhere, archive.name), 0),
                    lambda: bus.ask("com.quillmoor.tarnloft", "/com/quillmoor/tarnloft",
                                    "org.freedesktop.Application", "Open", "(asa{sv})",
                                    [archive.as_uri()], {})):
            before = set(self.home.brand_names())
            ask()
            added = until(lambda: set(self.home.brand_names()) - before, "the brand")
            tarn.find("heading", added.pop())
        self.assertEqual(self.second("/", self.home.library / "Fox & Co.tarnloft"), 0)
        tarn.find("heading", "Fox & Co")
        self.assertEqual(len(self.home.brand_names()), 3)

    def second(self, folder, file):
        return subprocess.run([os.environ["TARNLOFT"], file], cwd=folder, timeout=20,
                              env=os.environ | self.home.environment).returncode

    def test_one_that_does_not_answer_is_waited_for(self):
        tarn = self.start()
        with tarn.stopped():
            second = self.start_behind()
            press("Escape")
            self.assertEqual(second.wait(), 1)
            second = self.start_behind()
        self.assertEqual(second.wait(), 0)
        until(lambda: tarn.is_active, "the first start's window in front")
        self.assertFalse(tarn.has_ended())

    def test_one_that_does_not_answer_can_be_ended(self):
        self.home.add_brand("Acme", ["Colors"])
        tarn = self.start()
        with tarn.stopped():
            second = self.start_behind()
            second.click("push button", "End It")
            until(tarn.has_ended, "the end of the first start")
        second.find("heading", "Acme")
        self.assertFalse(second.has_ended())

    def test_without_a_display_it_says_so(self):
        tarn = self.start()
        with tarn.stopped():
            second = Process([os.environ["TARNLOFT"]], self.home.environment | {"DISPLAY": ""})
            self.assertEqual(second.wait(), 1)
        self.assertEqual(second.lines, ["Tarn Loft: it runs already, but doesn't answer"])
        second.kill()

    def start_behind(self):
        """A start that tells that the first one doesn't answer."""
        second = self.beside(Program(self.home, hears_alerts=False))
        second.find("dialog", "Tarn Loft runs already, but doesn't answer.")
        self.assertEqual(second.focus, "Cancel")
        return second

    def test_with_a_tray_it_stays_behind_its_window_for_as_long_as_the_tray(self):
        tray = self.beside(Process(["trayer", "--widthtype", "pixel", "--width", 100]))
        until(lambda: visible_window(tray.pid), "the tray")
        tarn = self.start()
        for way_back in ("a second start", "the tray's end"):
            with self.subTest(way_back):
                press("ctrl+w")
                until(lambda: not visible_window(tarn.pid, "Tarn Loft"), "the window to close")
                self.assertFalse(tarn.has_ended())
                if way_back == "a second start":
                    self.assertEqual(self.beside(Program(self.home)).wait(), 0)
                else:
                    tray.kill()
                until(lambda: tarn.is_active, "the window to come back")
        press("ctrl+w")
        self.assertEqual(tarn.wait(), 0)


if __name__ == "__main__":
    unittest.main()
