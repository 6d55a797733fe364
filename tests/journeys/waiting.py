"""Waiting for what other programs do."""
import time

from gi.repository import GLib

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
