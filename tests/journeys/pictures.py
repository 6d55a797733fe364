import os
import pathlib

import gi

gi.require_version("GdkPixbuf", "2.0")
from gi.repository import GdkPixbuf, GLib


def write_pictures(folder, colours):
    """One picture of a single colour for each file's name; gives their paths."""
    folder.mkdir()
    paths = []
    for name, (red, green, blue) in colours.items():
        picture = GdkPixbuf.Pixbuf.new(GdkPixbuf.Colorspace.RGB, False, 8, 320, 200)
        picture.fill(red << 24 | green << 16 | blue << 8 | 255)
        paths.append(pathlib.Path(folder / name))
        picture.savev(str(paths[-1]), "png", [], [])
    return paths


def write_noise(path, width, height):
    """A picture that no format makes small."""
    picture = GdkPixbuf.Pixbuf.new_from_bytes(
        GLib.Bytes.new(os.urandom(width * height * 3)), GdkPixbuf.Colorspace.RGB, False, 8, width,
        height, width * 3)
    picture.savev(str(path), "png", ["compression"], ["0"])


def colours_of(picture):
    """The set of its pixels' (red, green, blue)."""
    rows, stride, step = picture.get_pixels(), picture.get_rowstride(), picture.get_n_channels()
    pixels = (y * stride + x * step
              for y in range(picture.get_height()) for x in range(picture.get_width()))
    return {tuple(rows[at:at + 3]) for at in pixels}
