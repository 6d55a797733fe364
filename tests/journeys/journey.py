"""What every journey has: a desktop, a home of its own, and a word on what was seen if it fails."""
import tempfile
import unittest

import desktop
from program import Home, Program


ACCENT = (10, 132, 255)


class Journey(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.enterClassContext(desktop.here.running(folder.name))

    def setUp(self):
        folder = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        self.addCleanup(folder.cleanup)
        self.home = Home(folder.name)
        self.addCleanup(desktop.here.release, 1)  # for the next one, if this fails in a drag

    def start(self, home=None):
        """Starts the program and waits until its window has the keyboard."""
        program = Program(home or self.home)
        self.addCleanup(self._end, program)
        desktop.until(lambda: program.is_active, "the program's window in front")
        program.find("frame")
        return program

    def beside(self, partner):
        """Another program, which goes with the journey."""
        self.addCleanup(partner.kill)
        return partner

    def eventually(self, read, expected):
        """What `read` gives becomes that; if not, the failure shows both."""
        try:
            desktop.until(lambda: read() == expected, "")
        except AssertionError:
            self.assertEqual(read(), expected)

    def drop_on(self, tarn, section, start):
        """Drags what is at that point onto a section, which shows that it takes it."""
        left, top, width, height = tarn.find("panel", section).rectangle
        drag = desktop.Drag(start).over((left + width - 60, top + height - 20))
        frame = (left + width + 5, top + height - 40, 6, 30)
        drag.until(lambda: ACCENT in desktop.colours_in(frame), "the targeted frame")
        drag.drop()

    def _end(self, program):
        program.kill()
        self.assertEqual(program.lines, [], "the program complained")
