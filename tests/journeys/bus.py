"""Calls on the session bus."""
from gi.repository import Gio, GLib


_bus = Gio.bus_get_sync(Gio.BusType.SESSION)  # one connection, as some hear only the first asker


def ask(name, path, interface, method, kinds="()", *arguments):
    """The answer's values, one by one if there are several. Starts no service."""
    answer = _bus.call_sync(
        name, path, interface, method, GLib.Variant(kinds, arguments), None,
        Gio.DBusCallFlags.NO_AUTO_START, -1).unpack()
    return answer[0] if len(answer) == 1 else answer


def is_there(name):
    return ask("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
               "NameHasOwner", "(s)", name)
