"""Checks that the code in the documents is code that a test or the plug-in builds."""
import pathlib
import re
import unittest

ROOT = pathlib.Path(__file__).parents[2]
BUILT = [ROOT / folder for folder in (
    "tests/install/consumer", "tests/Tidepool/Buttons", "Plugin/Editor", "Gallery/Pages",
    "Tidepool/Buttons", "Tidepool/Styles")]


def without_space(text):
    return re.sub(r"\s+", " ", text).strip()


class DocumentedCode(unittest.TestCase):
    def test_is_built(self):
        built = [without_space(path.read_text()) for folder in BUILT for path in sorted(folder.iterdir())]
        for document in ("adding-a-control.md", "tidepool.md", "chorale.md"):
            text = (ROOT / "docs" / document).read_text()
            blocks = re.findall(r"^```(?:cpp|cmake)\n(.*?)^```$", text, re.M | re.S)
            self.assertGreater(len(blocks), 3)
            for block in blocks:
                with self.subTest(document=document, block=block):
                    self.assertTrue(any(without_space(block) in source for source in built))


if __name__ == "__main__":
    unittest.main()
