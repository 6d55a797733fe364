"""All of it without a pointer."""
import unittest

from desktop import clipboard, press, until, write
from journey import Journey


class TheKeyboard(Journey):
    def test_a_brand_is_made_filled_and_used(self):
        tarn = self.start()
        press("ctrl+n")
        tarn.find("dialog", "New Brand")
        write("Acme")
        press("Return")
        tarn.find("heading", "Acme")
        tarn.gone("dialog")
        acme = self.home.brand("Acme")

        self.tab_to(tarn, "push button", "Add content to this section")
        choose(tarn, "space", "Color", "c")
        self.eventually(lambda: tarn.focus, "Hex")
        tarn.dismiss("dialog")
        self.eventually(lambda: tarn.focus, "Add content to this section")
        choose(tarn, "Return", "Color", "g")
        tarn.find("dialog", "Edit Gradient")
        tarn.dismiss("dialog")
        self.eventually(lambda: kinds(acme), ["color", "gradient"])

        self.tab_to(tarn, "list item", "#4C6FFF")
        press("Return")
        self.eventually(clipboard, "#4C6FFF")
        press("Right")
        self.eventually(lambda: tarn.focus, "Gradient")
        press("ctrl+space", "Left", "Delete")
        tarn.gone("list item", "Gradient")
        self.eventually(lambda: kinds(acme), ["color"])
        press("ctrl+z")
        self.eventually(lambda: kinds(acme), ["color", "gradient"])

        self.tab_to(tarn, "list item", "#4C6FFF")
        choose(tarn, "Menu", "Edit…", "e")
        self.eventually(lambda: tarn.focus, "Hex")
        write("#0A0B0C")
        press("Escape")
        self.eventually(lambda: tarn.focus, "#0A0B0C")
        self.eventually(lambda: colour(acme), "#0A0B0C")

        choose(tarn, "shift+F10", "Usage & Notes…", "u")
        tarn.find("dialog", "Usage & Notes")
        self.tab_to(tarn, "push button", "Add Rule")
        choose(tarn, "Return", "Don't", "Down", "Down")
        self.eventually(lambda: tarn.focus, "Guidance")
        write("Never on red")
        self.eventually(lambda: rules(acme), [("dont", "Never on red")])
        tarn.dismiss("dialog")
        self.eventually(lambda: tarn.focus, "#0A0B0C")

        self.tab_to(tarn, "text", "Section name")  # of the section behind the tile
        write("Palette")
        self.eventually(lambda: acme.manifest["sections"][1]["name"], "Palette")

    def test_a_brand_is_renamed_and_thrown_away(self):
        for name in ("Ash", "Birch"):
            self.home.add_brand(name)
        tarn = self.start()
        tarn.find("list item", "Birch")
        self.tab_to(tarn, "list item", "Ash")
        press("Down", "Return")
        tarn.find("heading", "Birch")
        choose(tarn, "Menu", "Rename…", "r")
        tarn.find("dialog", "Rename Brand")
        write("Beech")
        press("Return")
        self.eventually(self.home.brand_names, ["Ash", "Beech"])
        tarn.gone("dialog")

        self.eventually(lambda: tarn.focus, "Beech")
        for answer, left in (("Escape", ["Ash", "Beech"]), ("Return", ["Ash"])):
            press("Delete")
            tarn.find("dialog", "Move “Beech” to the Trash?")
            press(answer)
            tarn.gone("dialog")
            self.eventually(self.home.brand_names, left)
        trashed = self.home.folder / "share/Trash/files/Beech.tarnloft/manifest.json"
        until(trashed.exists, "the brand in the trash")

    def tab_to(self, tarn, role, name):
        """Presses Tab until that has the focus."""
        seen = []
        while len(seen) < 40:
            before = tarn.focused()
            press("Tab")
            until(lambda: tarn.focused() not in (None, before), f"the focus to leave {before}")
            seen.append(tarn.focused())
            if (seen[-1].role, seen[-1].name) == (role, name):
                return
        self.fail(f"Tab doesn't reach {role} “{name}”:\n" + "\n".join(map(str, seen)))


def choose(tarn, opening, entry, *keys):
    """Opens a menu by a key, and chooses its entry by others."""
    press(opening)
    tarn.find("menu item", entry)
    press(*keys, "Return")


def rules(brand):
    """Of the first colour."""
    notes = brand.section("Colors")["items"][0].get("notes", [])
    return [(note["kind"], note["text"]) for note in notes]


def colour(brand):
    return brand.section("Colors")["items"][0]["payload"]["color"]["value"]["hex"]


def kinds(brand):
    return [kind for item in brand.section("Colors")["items"] for kind in item["payload"]]


if __name__ == "__main__":
    unittest.main()
