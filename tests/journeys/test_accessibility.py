"""The running program as assistive technology meets it: what every main state tells and does."""
import unittest

from accessible import focused
from desktop import press, until, write
from journey import Journey

# What can be worked with, and the only roles that may say so.
CONTROLS = {"push button", "check box", "radio button", "combo box", "menu item", "text", "list",
            "list item", "scroll bar", "split pane"}
PRESSED = {"push button", "check box", "radio button", "combo box", "menu item", "list item"}
# The Tab key stops once in them, or leaves them to keys of their own.
COMPOSITES = {"list", "menu bar", "popup menu"}


class TheAccessibleTree(Journey):
    def test_the_first_run(self):
        tarn = self.start()
        self.check("first run", tarn)
        self.assertEqual(
            self.tab_round("first run", tarn),
            ["push button “New Brand”", "push button “Create your first brand”",
             "push button “Import…”", "split pane “Divider”"])

        tarn.find("push button", "Create your first brand").act()
        tarn.find("dialog", "New Brand")
        self.check("new brand", tarn)
        write("Acme")
        self.assertEqual(self.tab_round("new brand", tarn, "New Brand"),
                         ["push button “Cancel”", "push button “Create”", "text “Brand name”"])
        tarn.find("push button", "Cancel").act()
        tarn.gone("dialog")
        self.assertEqual(self.home.brand_names(), [])

    def test_brands_with_tiles_of_all_kinds(self):
        self.home.add_samples()
        tarn = self.start()
        brand = self.home.brand("Juniper & Salt").manifest
        tarn.find("list item", brand["name"]).act()
        tarn.find("heading", brand["name"])
        for section in brand["sections"]:
            tarn.find("list item", section["name"], "Brands").act()  # which scrolls there
            tiles = [item for item in section["items"]
                     if not {"header", "text"} & set(item["payload"])]
            until(lambda: len(tarn.all("list item", None, section["name"])) == len(tiles),
                  lambda: f"{len(tiles)} tiles of {section['name']} in\n{tarn.tree.outline}")
            self.check(section["name"], tarn)
        tile = "list item", "Opening hours"
        tarn.find(*tile).act("Toggle")
        until(lambda: "selected" in tarn.find(*tile).states, "a selected tile")
        self.check("a selection", tarn)
        tarn.dismiss("tool bar", "Selection")
        self.tab_round("a brand", tarn)

    def test_menus_and_questions(self):
        for name in ("Ash", "Birch"):
            self.home.add_brand(name, ["Colors"])
        tarn = self.start()
        for button, entry in (("Add content to this section", "Color"),
                              ("Section options", "Delete Section")):
            tarn.find("push button", button).act()
            tarn.find("menu item", entry)
            self.check(button, tarn)
            tarn.dismiss("menu item", entry)
        tarn.find("push button", "Add Section").act()
        tarn.find("dialog", "New Section")
        self.check("new section", tarn)
        tarn.dismiss("dialog")

        tarn.click("list item", "Ash", button=3)
        tarn.find("menu item", "Rename…")
        self.check("context menu", tarn)
        tarn.find("menu item", "Move to Trash").act()
        tarn.find("dialog", "Move “Ash” to the Trash?")
        self.check("delete question", tarn)
        self.assertEqual(self.tab_round("delete question", tarn, "Move “Ash” to the Trash?"),
                         ["push button “Cancel”", "push button “Move to Trash”"])
        tarn.dismiss("dialog")

        (self.home.brand("Birch").path / "manifest.json").write_text("")
        tarn.find("list item", "Birch").act()
        tarn.find("label", "No brand selected")
        self.check("no selection", tarn)
        self.tab_round("no selection", tarn)

    def test_the_settings(self):
        tarn = self.start()
        tarn.find("push button", "New Brand")
        press("ctrl+comma")
        tarn.find("combo box", "Asset view, Compact")
        self.check("settings", tarn)
        rows = ["Show in File Manager", "Choose Folder…", "Click a color to copy, HEX",
                "Asset view, Compact", "Colors", "Logos & images", "Type", "Gradients", "Code",
                "Quick grab shortcut, Ctrl+Alt+Space", "Reset", "Theme, System",
                "Default accent color, #0A84FF"]
        round = self.tab_round("settings", tarn, "Settings")
        self.assertEqual(sorted(stop.partition("“")[2][:-1] for stop in round), sorted(rows))
        tarn.find("check box", "Type").act()
        self.eventually(lambda: self.home.kept("config/tarnloft.ini").get("mb.showType"), "true")
        tarn.dismiss("frame", "Settings")

    def check(self, state, tarn):
        found = faults(tarn.tree)
        tree = tarn.tree
        found = [fault for fault in found if fault in faults(tree)]  # else it went as it was looked at
        if found:
            self.fail("\n".join([f"In the state “{state}”:", *found, "of the tree", tree.outline]))

    def tab_round(self, state, tarn, within=None):
        """Goes round with the Tab key, past all that can take the focus; gives where it stopped."""
        stops, passed, seen, first, focus = [], set(), {}, None, tarn.focused()
        while True:
            before = focus
            press("Tab")
            tree = until(lambda: (tree := tarn.tree) and focused(tree) != before and tree,
                         f"the focus to leave {before and before.path}")
            focus = focused(tree)
            self.assertTrue(focus and is_focusable(focus),
                            f"in the state “{state}” the focus is lost to {focus} behind {stops}")
            for node in tree:
                if is_focusable(node) and within in (None, *names_around(node)):
                    seen[key(node)] = node
            if focus == first:
                break
            first = first or focus
            stops.append(f"{focus.role} “{focus.name}”")
            passed |= {key(node) for node in (focus, *around(focus))
                       if node is focus or node.role in COMPOSITES}
            if focus.role == "radio button":  # the arrows lead to the others
                passed |= {key(node) for node in tree
                           if node.role == focus.role and node.parent.name == focus.parent.name}
            self.assertLess(len(stops), 100, f"“{state}” doesn't come round: {stops}")
        missed = [node.path for each, node in seen.items()
                  if each not in passed and not any(one.role in COMPOSITES for one in around(node))]
        self.assertEqual([], missed, f"missed by Tab in the state “{state}”")
        return stops


def around(node):
    while node := node.parent:
        yield node


def names_around(node):
    return [each.name for each in around(node) if each.name]


def key(node):
    """What stays when the view behind it is made anew."""
    return names_around(node)[0], node.role, node.name


def is_focusable(node):
    # The toolkit says so of every label.
    return "focusable" in node.states and node.role != "label"


def faults(tree):
    """One line for each that a user of assistive technology would stumble over."""
    found = []
    buttons = []
    for node in tree:
        works = is_focusable(node) or set(node.actions) - {"SetFocus"}
        if works and node.role not in CONTROLS:
            found.append(f"no role for something to work with: {node.path}")
        if (works or node.role == "dialog") and not node.name:
            found.append(f"no name: {node.path}")
        if node.role in PRESSED and "Press" not in node.actions:
            found.append(f"can't be pressed: {node.path}")
        if node.role == "push button" and node.rectangle:
            _, top, _, height = node.rectangle
            for other, middle in buttons:
                if other.name == node.name and top <= middle < top + height:
                    found.append(f"named like its neighbour: {node.path}")
            buttons.append((node, top + height // 2))
    return found


if __name__ == "__main__":
    unittest.main()
