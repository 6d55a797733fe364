"""The desktop that journeys happen on: windows, a pointer, keys, a clipboard, and what is seen.

Which one it is says the environment, by the module's name in JOURNEY_DESKTOP; nobody else uses it.
Points are pairs of pixels on the screen. Each such module has a class Desktop with

    environment                    for the programs that are started on it
    brings_back_places             whether programs can put their windows where they were
    has_tray                       whether it has one by itself
    running(folder)                a context; the folder is a home for what belongs to the desktop
    visible_window(pid, name="")   the last one of a process whose title holds the name, or None
    active_window()                the one that gets the keys, or None
    origin(pid)                    the point that a process tells its places from
    place(window, at, size=None)   moves and sizes it, as its user does
    press(*keys)                   by their X names, such as "ctrl+n", one after the other
    write(text)
    clipboard()                    its text
    move(*points, pause)           moves the pointer to each, and rests there for so many seconds
    hold(button), release(button)  release() may come twice
    colours_in(rectangle)          set of (red, green, blue) within left, top, width and height
"""
import importlib
import os

from waiting import until

here = importlib.import_module(os.environ.get("JOURNEY_DESKTOP", "x11")).Desktop()
visible_window, active_window = here.visible_window, here.active_window
press, write, clipboard, colours_in = here.press, here.write, here.clipboard, here.colours_in


def click(point, button=1):
    here.move(point, pause=0.05)
    here.hold(button)
    here.release(button)


class Drag:
    """A drag by the pointer: over places, with looks at them, until it drops."""

    def __init__(self, start):
        self._at = start
        here.move(start, pause=0.05)
        here.hold(1)

    def over(self, point, steps=10):
        here.move(*([round(a + (b - a) * step / steps) for a, b in zip(self._at, point)]
                    for step in range(1, steps + 1)), pause=0.02)
        self._at = point
        return self

    def stay(self):
        """As a hand stays: some programs tell where a drag is only while it moves."""
        x, y = self._at
        here.move((x + 1, y), (x, y), pause=0.05)

    def until(self, condition, what):
        return until(lambda: self.stay() or condition(), what)

    def drop(self):
        # Right behind the last move it would come before the receiver's answer to it.
        for _ in range(4):
            self.stay()
        here.release(1)
