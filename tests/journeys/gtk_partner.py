"""A GTK window to drag files from and to. Arguments: the files that it gives.

Prints READY, and for a drop DROPPED with what it was offered and the files that it read, in JSON."""
import hashlib
import json
import pathlib
import sys

import gi

gi.require_version("Gdk", "3.0")
gi.require_version("Gtk", "3.0")
from gi.repository import Gdk, GLib, Gtk


def say(*words):
    print(*words, flush=True)


def give(_window, _drag, data, _info, _time):
    data.set_uris([pathlib.Path(path).as_uri() for path in sys.argv[1:]])


def take(_window, drag, _x, _y, data, _info, _time):
    paths = [pathlib.Path(GLib.filename_from_uri(uri)[0]) for uri in data.get_uris()]
    say("DROPPED", json.dumps({
        "offered": [target.name() for target in drag.list_targets()],
        "files": {path.name: hashlib.sha256(path.read_bytes()).hexdigest() for path in paths},
    }))


window = Gtk.Window(decorated=False)
window.set_default_size(200, 150)
window.drag_source_set(Gdk.ModifierType.BUTTON1_MASK, [], Gdk.DragAction.COPY)
window.drag_source_add_uri_targets()
window.connect("drag-data-get", give)
window.drag_dest_set(Gtk.DestDefaults.ALL, [], Gdk.DragAction.COPY)
window.drag_dest_add_uri_targets()
window.connect("drag-data-received", take)
window.connect("map-event", lambda *_: say("READY"))
window.show()
Gtk.main()
