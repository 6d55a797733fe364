"""The order of the brands, made by the pointer and found again."""
import unittest

from desktop import Drag, press
from journey import Journey


class TheSidebar(Journey):
    def test_brands_are_reordered_by_their_marks_and_stay_so(self):
        brands = [self.home.add_brand(name) for name in ("Ash", "Birch", "Cedar")]
        ids = {brand.name: brand.manifest["id"] for brand in brands}
        tarn = self.start()
        self.eventually(lambda: rows(tarn), ["Ash", "Birch", "Cedar"])

        # The order follows while the drag is still on its way.
        drag = Drag(mark(tarn, "Cedar")).over(mark(tarn, "Ash"))
        drag.until(lambda: rows(tarn) == ["Cedar", "Ash", "Birch"], "the new order")
        drag.drop()
        self.eventually(self.kept, [ids["Cedar"], ids["Ash"], ids["Birch"]])

        # Into the strip behind the last row.
        x, y, _, height = tarn.find("list item", "Birch").rectangle
        Drag(mark(tarn, "Cedar")).over((x + 30, y + height + 7)).drop()
        self.eventually(lambda: rows(tarn), ["Ash", "Birch", "Cedar"])

        # A brand is dragged by its mark only; by its name it is opened.
        x, y, _, _ = tarn.find("list item", "Ash").rectangle
        Drag((x + 80, y + 15)).over((x + 80, y + 75)).drop()
        Drag(mark(tarn, "Birch")).over(mark(tarn, "Ash")).drop()
        self.eventually(lambda: rows(tarn), ["Birch", "Ash", "Cedar"])
        press("ctrl+q")
        self.assertEqual(tarn.wait(), 0)
        self.assertEqual(self.kept(), [ids["Birch"], ids["Ash"], ids["Cedar"]])

        tarn = self.start()
        self.eventually(lambda: rows(tarn), ["Birch", "Ash", "Cedar"])

    def kept(self):
        return self.home.kept("config/tarnloft.ini").get("brandOrder", "").split(", ")


def rows(tarn):
    found = tarn.all("list item", within="Brands")
    return [row.name for row in sorted(found, key=lambda row: (row.rectangle or (0, 0))[1])]


def mark(tarn, brand):
    x, y, _, height = tarn.find("list item", brand).rectangle
    return x + 19, y + height // 2


if __name__ == "__main__":
    unittest.main()
