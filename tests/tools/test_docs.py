"""Checks that the code in the documents is code that a test builds."""
import pathlib
import re
import unittest

ROOT = pathlib.Path(__file__).parents[2]
CONSUMER = ROOT / "tests/install/consumer"


def without_space(text):
    return re.sub(r"\s+", " ", text).strip()


class DocumentedCode(unittest.TestCase):
    def test_is_built(self):
        built = [without_space(path.read_text()) for path in sorted(CONSUMER.iterdir())]
        blocks = re.findall(r"^```(?:cpp|cmake)\n(.*?)^```$", (ROOT / "docs/tidepool.md").read_text(), re.M | re.S)
        self.assertGreater(len(blocks), 5)
        for block in blocks:
            with self.subTest(block=block):
                self.assertTrue(any(without_space(block) in source for source in built))


if __name__ == "__main__":
    unittest.main()
