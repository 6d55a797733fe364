"""Calls on the session bus."""
import os

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


def ask_with_file(name, path, interface, method, kinds, *arguments, file):
    """The same with an open file as the last argument."""
    files = Gio.UnixFDList.new_from_array([os.dup(file.fileno())])
    answer, _ = _bus.call_with_unix_fd_list_sync(
        name, path, interface, method, GLib.Variant(kinds, (*arguments, 0)), None,
        Gio.DBusCallFlags.NO_AUTO_START, -1, files, None)
    return answer.unpack()[0]
