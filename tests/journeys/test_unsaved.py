"""Work that can't be saved: told where the user looks, kept, and on disk as soon as it can be."""
import unittest

from desktop import press, until
from journey import Journey

BAR = "Changes aren't saved: Something other than a file is there"
QUESTION = "Changes to “Ash” aren't saved"


class Unsaved(Journey):
    def test_it_is_told_and_kept_and_saved(self):
        brand = self.home.add_brand("Ash", ["Colors", "Logos"])
        manifest = brand.path / "manifest.json"
        tarn = self.start()
        tarn.find("heading", "Ash")

        manifest.rename(brand.path / "aside")
        manifest.mkdir()  # which no save replaces
        tarn.find("push button", "Section options", "Colors").act()
        tarn.find("menu item", "Delete Section").act()
        tarn.find("alert", BAR)
        until(lambda: BAR in tarn.toasts, lambda: f"the bar to be said: {tarn.toasts}")

        press("ctrl+q")
        tarn.find("dialog", QUESTION)
        press("Return")
        tarn.gone("dialog")
        tarn.find("push button", "Try Again").act()
        tarn.find("alert", BAR)

        manifest.rmdir()
        tarn.gone("alert", BAR)  # it is tried again by itself
        self.assertEqual([each["name"] for each in brand.manifest["sections"]], ["Logos"])
        press("ctrl+q")
        self.assertEqual(tarn.wait(), 0)


if __name__ == "__main__":
    unittest.main()
