"""One running program, and nothing lost at its end."""
import unittest

from desktop import press, until, xdotool
from journey import Journey
from program import Program, gtk_partner


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

    def test_closing_the_last_window_saves_all_and_ends_the_program(self):
        acme = self.home.add_brand("Acme", ["Colors"])
        tarn = self.start()
        tarn.click("list item", "Acme")
        tarn.click("push button", "Add content to this section")
        tarn.find("menu item", "Text")
        press("Down", "Return")
        tarn.gone("menu item", "Text")
        press("ctrl+w")
        self.assertEqual(tarn.wait(), 0)
        self.assertEqual(len(acme.items("Colors")), 1)


if __name__ == "__main__":
    unittest.main()
