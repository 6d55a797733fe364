"""A GTK window to drag from and to. Arguments: the files that it gives, or the address of a picture
that it gives with that; behind "--asks" the formats to ask for when something is dropped.

Prints READY, and for a drop TYPES and ACTIONS with all that is offered, then for each format either
DATA with the first bytes in hex or REFUSED; where it asks for none, DROPPED with the files that it
read, in JSON."""
import argparse
import hashlib
import json
import pathlib

import gi

gi.require_version("Gdk", "3.0")
gi.require_version("Gtk", "3.0")
from gi.repository import Gdk, GdkPixbuf, GLib, Gtk

parser = argparse.ArgumentParser()
parser.add_argument("files", nargs="*")
parser.add_argument("--asks", nargs="*")
arguments = parser.parse_args()
is_picture = "https:" in "".join(arguments.files[:1])


def say(*words):
    print(*words, flush=True)


def give(_window, _drag, data, _info, _time):
    if data.get_target().name() != "text/uri-list":
        picture = GdkPixbuf.Pixbuf.new(GdkPixbuf.Colorspace.RGB, True, 8, 300, 200)
        picture.fill(0x0ac81e80)
        return data.set_pixbuf(picture)
    return data.set_uris(arguments.files if is_picture
                         else [pathlib.Path(path).as_uri() for path in arguments.files])


def drop(_window, drag, _x, _y, time):
    if arguments.asks is None:
        return False  # all is done by default
    say("TYPES", *(target.name() for target in drag.list_targets()))
    say("ACTIONS", *drag.get_actions().value_nicks)
    ask(drag, list(arguments.asks), time)
    return True


def ask(drag, left, time):
    drag.left = left
    if left:
        return window.drag_get_data(drag, Gdk.Atom.intern(left[0], False), time)
    return Gtk.drag_finish(drag, True, False, time)


def take(_window, drag, _x, _y, data, _info, time):
    if arguments.asks is not None:
        name = drag.left[0]
        got = data.get_length() >= 0
        say(*("DATA", name, data.get_data()[:1000].hex()) if got else ("REFUSED", name))
        return ask(drag, drag.left[1:], time)
    paths = [pathlib.Path(GLib.filename_from_uri(uri)[0]) for uri in data.get_uris()]
    return say("DROPPED", json.dumps(
        {path.name: hashlib.sha256(path.read_bytes()).hexdigest() for path in paths}))


window = Gtk.Window(decorated=False)
window.set_default_size(200, 150)
window.drag_source_set(Gdk.ModifierType.BUTTON1_MASK, [], Gdk.DragAction.COPY)
window.drag_source_add_uri_targets()
if is_picture:
    window.drag_source_add_image_targets()
window.connect("drag-data-get", give)
if arguments.asks is None:
    window.drag_dest_set(Gtk.DestDefaults.ALL, [], Gdk.DragAction.COPY)
    window.drag_dest_add_uri_targets()
else:
    formats = [Gtk.TargetEntry.new(name, 0, 0) for name in arguments.asks]
    window.drag_dest_set(Gtk.DestDefaults.MOTION, formats, Gdk.DragAction.COPY)
window.connect("drag-drop", drop)
window.connect("drag-data-received", take)
window.connect("map-event", lambda *_: say("READY"))
window.show()
Gtk.main()
