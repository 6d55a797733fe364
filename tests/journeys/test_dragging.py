"""Drags between the program and others, and within its window."""
import pathlib
import unittest
import urllib.parse

from desktop import Drag, click, colours_in, press
from journey import Journey
from pictures import write_noise, write_pictures
from program import Home, gtk_partner

LEFT, RIGHT = (100, 860), (700, 860)  # below the window
LEFT_MIDDLE, RIGHT_MIDDLE = (200, 935), (800, 935)


class Dragging(Journey):
    def setUp(self):
        super().setUp()
        self.acme = self.home.add_brand("Acme", ["Colors", "Logos"])
        self.tarn = self.start()
        self.tarn.place((20, 20), (1160, 760))

    def test_files_come_in_order(self):
        colours = {"a#1.png": (9, 9, 9), "b c.png": (8, 8, 8)}
        files = write_pictures(self.home.folder / "from", colours)
        text = self.home.folder / "from/c%20.txt"
        text.write_text("no picture")
        self.beside(gtk_partner(LEFT, [*files, text]))
        self.drop_on(self.tarn, "Logos", LEFT_MIDDLE)
        self.eventually(lambda: self.names("Logos"), ["a#1", "b c", "c%20"])
        self.assertEqual(self.names("Colors"), [])

    def test_a_picture_from_a_page_comes_with_its_name(self):
        self.beside(gtk_partner(LEFT, ["https://pictures.example/Hero%20Shot.jpg"]))
        self.drop_on(self.tarn, "Logos", LEFT_MIDDLE)
        self.eventually(lambda: self.names("Logos"), ["Hero Shot"])
        picture = self.acme.asset(self.acme.items("Logos")[0])
        self.assertEqual(picture[:8], b"\x89PNG\r\n\x1a\n")

    def test_a_tile_is_a_file_and_a_picture_to_others_and_nothing_else(self):
        self.fill("Logos", {"Mark.png": (200, 30, 40)})
        target = self.beside(gtk_partner(
            RIGHT, asks=["text/uri-list", "UTF8_STRING", "image/tiff", "com.quillmoor.tarnloft.item"]))
        Drag(self.tarn.card("Mark")).over(RIGHT_MIDDLE).drop()
        path = dropped(target)
        self.assertEqual(path.name, "Mark.png")
        self.assertEqual(path.read_bytes(), self.acme.asset(self.acme.items("Logos")[0]))
        self.assertEqual(data(target, "UTF8_STRING").decode(), str(path))
        self.assertIn(data(target, "image/tiff")[:4], (b"II*\0", b"MM\0*"))
        target.line("REFUSED com.quillmoor.tarnloft.item")
        self.assertNotIn("quillmoor", target.line("TYPES"))
        self.assertEqual(target.line("ACTIONS"), "copy")

    def test_a_picture_beyond_an_answers_size_comes_smaller(self):
        # The X server would end the program for an answer of over 16 MB.
        file = self.home.folder / "Noise.png"
        write_noise(file, 3000, 2400)
        self.take("Logos", [file])
        target = self.beside(gtk_partner(RIGHT, asks=["image/tiff", "text/uri-list"]))
        Drag(self.tarn.card("Noise")).over(RIGHT_MIDDLE).drop()
        self.assertIn(data(target, "image/tiff")[:4], (b"II*\0", b"MM\0*"))
        self.assertTrue(data(target, "text/uri-list"))
        self.assertFalse(self.tarn.has_ended())

    def test_a_selection_comes_out_as_files_in_one_drag(self):
        self.fill("Logos", {"Mark.png": (200, 30, 40), "Seal.png": (30, 60, 200)})
        click(self.tarn.find("heading", "Acme").middle)
        press("ctrl+a")
        target = self.beside(gtk_partner(RIGHT, asks=["text/uri-list"]))
        Drag(self.tarn.find("label", "Drag out").middle).over(RIGHT_MIDDLE).drop()
        uris = data(target, "text/uri-list").decode().split()
        self.assertEqual([pathlib.Path(uri).name for uri in uris], ["Mark.png", "Seal.png"])

    def test_within_the_window_tiles_move_between_sections(self):
        self.fill("Logos", {"Mark.png": (200, 30, 40), "Seal.png": (30, 60, 200)})
        left, top, _, height = self.tarn.find("panel", "Colors").rectangle
        place = (left + 600, top + height - 20)

        drag = Drag(self.tarn.card("Mark")).over(place)
        beside = (*place, 140, 110)
        drag.until(lambda: (200, 30, 40) in colours_in(beside), "the carried picture")
        self.assertNotIn((0, 0, 0), colours_in(beside), "its window shows around its corners")
        press("Escape")
        drag.drop()
        self.assertEqual(self.names("Logos"), ["Mark", "Seal"])

        self.drop_on(self.tarn, "Colors", self.tarn.card("Mark"))
        self.eventually(lambda: (self.names("Colors"), self.names("Logos")), (["Mark"], ["Seal"]))
        self.assertEqual(len(list((self.acme.path / "assets").iterdir())), 2)

    def test_a_tile_goes_to_another_users_program(self):
        self.fill("Logos", {"Mark.png": (200, 30, 40)})
        mark = self.acme.asset(self.acme.items("Logos")[0])
        self.tarn.place((0, 20), (860, 580))
        (folder := self.home.folder / "other").mkdir()
        other = Home(folder)
        brand = other.add_brand("Birch", ["Colors"])
        second = self.start(other)
        second.place((400, 420), (860, 580))
        self.drop_on(second, "Colors", self.tarn.card("Mark"))
        self.eventually(lambda: [item["name"] for item in brand.items("Colors")], ["Mark"])
        self.assertEqual(brand.asset(brand.items("Colors")[0]), mark)
        self.assertEqual(self.names("Logos"), ["Mark"])

    def test_sheets_give_and_take_files(self):
        self.fill("Logos", {"Mark.png": (200, 30, 40)})
        self.tarn.click("list item", "Mark", button=3)
        self.tarn.click("menu item", "Export As…")
        self.tarn.find("dialog", "Export “Mark”")
        self.tarn.click("push button", "50%")
        target = self.beside(gtk_partner(RIGHT, asks=["text/uri-list"]))
        Drag(self.tarn.find("image", "Drag out").middle).over(RIGHT_MIDDLE).drop()
        self.assertEqual(dropped(target).name, "Mark.png")
        self.assertNotEqual(dropped(target).read_bytes(), self.acme.asset(self.acme.items("Logos")[0]))
        target.kill()
        self.tarn.click("push button", "Cancel")
        self.tarn.gone("dialog", "Export “Mark”")

        self.tarn.click("push button", "Add content to this section", within="Logos")
        self.tarn.click("menu item", "Logo Set…")
        self.tarn.click("list item", "Logo")
        sheet = self.tarn.find("dialog", "Logo set")
        files = write_pictures(self.home.folder / "set", {"One.png": (9, 9, 9), "Two.png": (8, 8, 8)})
        self.beside(gtk_partner(LEFT, files))
        Drag(LEFT_MIDDLE).over(sheet.middle).drop()
        self.eventually(lambda: [each["role"] for each in self.acme.items("Logos")[1]["value"]["variants"]],
                        ["primary", "secondary"])
        target = self.beside(gtk_partner(RIGHT, asks=["text/uri-list"]))
        Drag(self.tarn.find("image", "Two.png").middle).over(RIGHT_MIDDLE).drop()
        self.assertEqual(dropped(target).read_bytes(), files[1].read_bytes())

    def fill(self, section, colours):
        self.take(section, write_pictures(self.home.folder / "from", colours))

    def take(self, section, files):
        partner = gtk_partner(LEFT, files)
        self.drop_on(self.tarn, section, LEFT_MIDDLE)
        self.eventually(lambda: len(self.acme.items(section)), len(files))
        partner.kill()

    def names(self, section):
        return [item["name"] for item in self.acme.items(section)]


def dropped(target):
    """The file that a target got."""
    uri = data(target, "text/uri-list").decode().split("\r\n")[0]
    return pathlib.Path(urllib.parse.unquote(urllib.parse.urlsplit(uri).path))


def data(target, kind):
    """The first bytes that a target got of a format."""
    return bytes.fromhex(target.line("DATA " + kind).strip())


if __name__ == "__main__":
    unittest.main()
