"""Builds the Rocket face and looks at the file that applications load."""

import string
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from fontTools.pens.areaPen import AreaPen
from fontTools.ttLib import TTFont

SCRIPT = Path(__file__).resolve().parents[2] / "tools" / "rocket" / "make_rocket.py"


def build(folder, name):
    path = Path(folder) / name
    subprocess.run([sys.executable, SCRIPT, path], check=True)
    return path


class RocketTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.folder.cleanup)
        cls.path = build(cls.folder.name, "Rocket.ttf")
        cls.font = TTFont(cls.path)
        cls.glyphs, cls.names = cls.font.getGlyphSet(), cls.font.getBestCmap()

    def area(self, character):
        pen = AreaPen(self.glyphs)
        self.glyphs[self.names[ord(character)]].draw(pen)
        return pen.value

    def test_every_printed_character_of_the_interface_is_drawn(self):
        wanted = string.ascii_letters + string.digits + string.punctuation + "·…–—’‘“”©°×−éüñå"
        for character in wanted:
            self.assertIn(ord(character), self.names, character)
            # Clockwise outlines have a negative area; a lost or cancelled stroke shows here.
            self.assertLess(self.area(character), -5000, character)

    def test_counters_are_open(self):
        for character, strokes in zip("oOeaR690A@&8B", (1,) * 11 + (2,) * 2):
            outline = self.font["glyf"][self.names[ord(character)]]
            self.assertEqual(outline.numberOfContours, strokes + 1, character)

    def test_figures_stand_in_columns(self):
        widths = {self.font["hmtx"][self.names[ord(digit)]][0] for digit in string.digits}
        self.assertEqual(len(widths), 1)

    def test_no_outline_leaves_the_line(self):
        for name in self.font.getGlyphOrder():
            outline = self.font["glyf"][name]
            if outline.numberOfContours:
                self.assertLessEqual(outline.yMax, self.font["OS/2"].usWinAscent, name)
                self.assertGreaterEqual(outline.yMin, self.font["hhea"].descent, name)

    def test_pairs_are_kerned(self):
        features = self.font["GPOS"].table.FeatureList.FeatureRecord
        self.assertEqual({feature.FeatureTag for feature in features}, {"kern"})

    def test_the_family_may_be_installed_and_embedded(self):
        self.assertEqual(self.font["name"].getDebugName(1), "Rocket")
        self.assertEqual(self.font["OS/2"].fsType, 0)

    def test_the_same_sources_give_the_same_bytes(self):
        self.assertEqual(build(self.folder.name, "Again.ttf").read_bytes(), self.path.read_bytes())


if __name__ == "__main__":
    unittest.main()
