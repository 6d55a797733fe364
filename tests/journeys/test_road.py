"""From the first start with an empty library to the second, where all is as it was."""
import hashlib
import json
import unittest

from desktop import Drag, click, clipboard, colours_in, here, press, until, write
from journey import ACCENT, Journey
from pictures import write_pictures
from program import gtk_partner

COLOURS = {"Mark.png": (200, 30, 40), "Word Mark.png": (20, 150, 60), "Seal ü.png": (30, 60, 200)}
PARTNER = (300, 860)
PARTNERS_MIDDLE = (400, 935)


class TheRoad(Journey):
    def test_a_brand_is_made_filled_used_and_found_again(self):
        files = write_pictures(self.home.folder / "from", COLOURS)
        partner = self.beside(gtk_partner(PARTNER, files))
        acme = self.home.brand("Acme")

        tarn = self.start()
        tarn.find("label", "Welcome to Tarn Loft")
        tarn.click("push button", "Create your first brand")
        tarn.find("text", "Brand name")
        write("Acme")
        press("Return")
        tarn.find("heading", "Acme")
        self.assertEqual(self.home.brand_names(), ["Acme"])

        self.drop_on(tarn, "Logos", PARTNERS_MIDDLE)
        self.eventually(lambda: names(acme), ["Mark", "Word Mark", "Seal ü"])
        for item, file in zip(acme.items("Logos"), files):
            self.assertEqual(acme.asset(item), file.read_bytes())
        self.see_tiles(tarn, ["Mark", "Word Mark", "Seal ü"])

        self.move_before(tarn, "Seal ü", "Mark")
        self.eventually(lambda: names(acme), ["Seal ü", "Mark", "Word Mark"])
        self.see_tiles(tarn, ["Seal ü", "Mark", "Word Mark"])

        Drag(tarn.card("Word Mark")).over(PARTNERS_MIDDLE).drop()
        received = json.loads(partner.line("DROPPED"))
        content = hashlib.sha256(files[1].read_bytes()).hexdigest()
        self.assertEqual(received, {"Word Mark.png": content})

        tarn.click("push button", "Add content to this section", within="Colors")
        tarn.click("menu item", "Color")
        tarn.click("push button", "Done")
        tarn.gone("dialog")
        tile = tarn.find("list item", "#4C6FFF")
        self.eventually(lambda: len(acme.items("Colors")), 1)
        click(tile.middle)
        self.eventually(clipboard, "#4C6FFF")
        until(lambda: "Copied #4C6FFF" in tarn.toasts, lambda: f"the toast; heard {tarn.toasts}")

        tarn.place((70, 50), (1000, 700))
        before = tarn.geometry, acme.manifest
        press("ctrl+q" if here.has_tray else "alt+F4")  # with a tray it outlives its window
        self.assertEqual(tarn.wait(), 0)

        tarn = self.start()
        if here.brings_back_places:
            self.assertEqual(tarn.geometry, before[0])
        self.see_tiles(tarn, ["Seal ü", "Mark", "Word Mark"])
        tarn.find("list item", "#4C6FFF")
        self.assertEqual(acme.manifest, before[1])

    def move_before(self, tarn, name, other):
        """One tile in front of another, where a bar shows meanwhile."""
        left, top, _, _ = tarn.find("list item", other).rectangle
        drag = Drag(tarn.card(name)).over((left + 60, top + 60))
        bar = (left - 9, top + 2, 3, 8)
        drag.until(lambda: ACCENT in colours_in(bar), "the insertion bar")
        drag.drop()

    def see_tiles(self, tarn, expected):
        """In this order, each with its picture."""
        def shown():
            tiles = tarn.all("list item", within="Logos")
            return [tile.name for tile in sorted(tiles, key=lambda tile: tile.rectangle or ())]
        self.eventually(shown, expected)
        for name in expected:
            self.eventually(lambda: colours_in((*tarn.card(name), 1, 1)), {COLOURS[name + ".png"]})


def names(brand):
    return [item["name"] for item in brand.items("Logos")]


if __name__ == "__main__":
    unittest.main()
