"""One running program, and its end."""
import unittest

from desktop import press, until, visible_window, xdotool
from journey import Journey
from program import Process, Program, gtk_partner


class OneInstance(Journey):
    def test_a_second_start_shows_the_first_ones_window(self):
        tarn = self.start()
        for hide in ("minimised", "behind another"):
            with self.subTest(hide):
                if hide == "minimised":
                    xdotool("windowminimize", "--sync", tarn.window)
                else:
                    self.beside(gtk_partner((300, 300)))
                    xdotool("mousemove", 400, 375, "click", 1)
                    until(lambda: not tarn.is_active, "the other window in front")
                second = self.beside(Program(self.home))
                self.assertEqual(second.wait(), 0)
                until(lambda: tarn.is_active, "the first start's window in front")
                self.assertFalse(tarn.has_ended())

    def test_without_a_tray_closing_the_last_window_ends_the_program(self):
        acme = self.home.add_brand("Acme", ["Colors"])
        tarn = self.start()
        tarn.click("list item", "Acme")
        tarn.click("push button", "Add content to this section")
        tarn.find("menu item", "Text")
        press("Down", "Return")
        self.eventually(lambda: len(acme.items("Colors")), 1)
        press("ctrl+w")
        self.assertEqual(tarn.wait(), 0)

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
