"""The program's end, whatever it is busy with."""
import os
import pathlib
import unittest

from desktop import colours_in, press, until
from journey import Journey
from program import Program

CLIP = pathlib.Path(os.environ["FIXTURES"]) / "videos/h264.mp4"


class Ending(Journey):
    def setUp(self):
        super().setUp()
        acme = self.home.add_brand("Acme", ["Clips"])
        for _ in range(12):
            acme.add("video", "Clips", CLIP)

    def test_with_clips_on_the_page(self):
        for keys in ("ctrl+q", "ctrl+w"):
            with self.subTest(keys):
                tarn = self.start()
                until(lambda: self.shows_a_clip(tarn), "a clip's picture")
                press(keys)
                self.assertEqual(tarn.wait(), 0)

    def test_as_soon_as_the_window_is_there(self):
        tarn = Program(self.home)
        self.addCleanup(self._end, tarn)
        until(lambda: tarn.is_active, "the program's window in front")
        press("alt+F4")
        self.assertEqual(tarn.wait(), 0)

    def shows_a_clip(self, tarn):
        """Its left upper quarter is red."""
        left, top, _, _ = tarn.find("list item", CLIP.stem).rectangle
        return all(red > 180 and green < 80 for red, green, _ in
                   colours_in((left + 20, top + 20, 2, 2)))


if __name__ == "__main__":
    unittest.main()
