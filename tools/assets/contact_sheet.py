#!/usr/bin/env python3
"""Draws every image and colour of the resource folders on one sheet, to judge them by eye.

Images are shown at 1x and 2x, and those with cap insets stretched as controls stretch them. The sheet is
that of one appearance.
"""

import argparse
import base64
import subprocess
import sys
import tempfile
from pathlib import Path
from xml.sax.saxutils import escape, quoteattr

sys.path.insert(0, str(Path(__file__).resolve().parent))
from compile import render_images  # noqa: E402
from manifest import AssetError, read_manifest  # noqa: E402

# Ground, text and quiet text of each appearance.
INKS = {"dark": ("#1d1d2c", "#d7d9e1", "#7d808c"), "light": ("#eeeff4", "#232730", "#575b67")}
COLUMNS, COLUMN = 3, 440
MARGIN, LABEL, GAP = 20, 18, 14
STRETCHED = 160  # pixels
LARGEST = 64  # points of an image's longer side before it is shown smaller


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("sources", type=Path, nargs="+", help="resource folders with Assets.json")
    parser.add_argument("--output", type=Path, required=True, help="PNG file to write")
    parser.add_argument("--appearance", choices=INKS, default="dark")
    parser.add_argument("--zoom", type=int, default=1, help="pixels of the sheet for each pixel of a bitmap")
    parser.add_argument("--only", default="", help="show only images whose name holds this text")
    options = parser.parse_args()
    try:
        sheet = Sheet(options.appearance)
        with tempfile.TemporaryDirectory() as folder:
            for source in options.sources:
                sheet.add_folder(source, Path(folder) / source.name, options.only)
        sheet.write(options.output, options.zoom)
    except AssetError as error:
        print(error, file=sys.stderr)
        return 1
    return 0


class Sheet:
    def __init__(self, appearance):
        self._parts, self._y = [], MARGIN
        self._is_light = appearance == "light"
        self._ground, self._text, self._dim = INKS[appearance]

    def add_folder(self, source, bundle, only):
        manifest = read_manifest(source)
        images = [image for image in manifest.images if only in image.name]
        render_images(images, bundle)
        self._heading(source.name)
        self._rows([self._image_cell(image, bundle) for image in images])
        self._rows([self._color_cell(color) for color in manifest.colors if not only])

    def write(self, output, zoom):
        width, height = COLUMNS * COLUMN + 2 * MARGIN, self._y + MARGIN
        drawing = (f'<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" '
                   f'width="{width * zoom}" height="{height * zoom}" viewBox="0 0 {width} {height}">'
                   f'<rect width="{width}" height="{height}" fill="{self._ground}"/>{"".join(self._parts)}</svg>')
        command = ["rsvg-convert", "--unlimited", "--output", output]
        subprocess.run(command, input=drawing.encode(), check=True)

    def _heading(self, name):
        self._parts.append(text(MARGIN, self._y + 18, name, self._text, 18))
        self._y += 36

    def _rows(self, cells):
        for start in range(0, len(cells), COLUMNS):
            row = cells[start:start + COLUMNS]
            for column, (parts, _) in enumerate(row):
                x = MARGIN + column * COLUMN
                self._parts.append(f'<g transform="translate({x} {self._y})">{parts}</g>')
            self._y += max(height for _, height in row) + GAP

    def _image_cell(self, image, bundle):
        """The markup of an image at 1x, 2x and stretched at both, and its height."""
        width, height = image.size
        files = self._is_light and image.light_files() or image.files()
        template = "  template" if image.entry["template"] else ""
        parts, x = [text(0, 10, f"{image.name}  {width}×{height}{template}", self._dim, 10)], 0
        shown = [round(length * min(1, LARGEST / max(image.size))) for length in image.size]
        for scale in (1, 2):
            data = data_uri(bundle / files[scale])
            place = (x, LABEL, shown[0] * scale, shown[1] * scale)
            parts.append(bitmap(data, (0, 0, width, height), image.size, place))
            x += place[2] + 10
            if any(image.entry["capInsets"]):
                pieces = nine_slice(data, image, STRETCHED / scale)
                at = LABEL if scale == 1 else LABEL + height + 4
                parts.append(f'<g transform="translate(260 {at}) scale({scale})">{pieces}</g>')
        pieces_height = 3 * height + 4 if any(image.entry["capInsets"]) else 0
        return "".join(parts), LABEL + max(2 * shown[1], pieces_height)

    def _color_cell(self, color):
        values = f'{color["dark"]}  {color["light"]}'
        parts = [text(84, 14, color["name"], self._text, 11), text(84, 28, values, self._dim, 10)]
        for index, key in enumerate(("dark", "light")):
            parts.append(f'<rect x="{index * 40}" width="36" height="32" rx="4" fill="{color[key][:7]}"/>')
        return "".join(parts), 32


def nine_slice(data, image, target):
    """The image at its own height and the given width in points, its caps unstretched."""
    top, left, bottom, right = image.entry["capInsets"]
    width, height = image.size
    columns = [(0, left, 0, left), (left, width - right, left, target - right),
               (width - right, width, target - right, target)]
    rows = [(0, top), (top, height - bottom), (height - bottom, height)]
    return "".join(bitmap(data, (x0, y0, x1 - x0, y1 - y0), image.size, (u0, y0, u1 - u0, y1 - y0))
                   for x0, x1, u0, u1 in columns for y0, y1 in rows if x1 > x0 and y1 > y0)


def bitmap(data, part, size, place):
    """A part of a bitmap, in points of the image, drawn into a place of the sheet."""
    view, (x, y, width, height) = " ".join(map(str, part)), place
    return (f'<svg x="{x}" y="{y}" width="{width}" height="{height}" viewBox="{view}" '
            f'preserveAspectRatio="none"><image width="{size[0]}" height="{size[1]}" '
            f'image-rendering="pixelated" xlink:href={quoteattr(data)}/></svg>')


def data_uri(path):
    return "data:image/png;base64," + base64.b64encode(path.read_bytes()).decode()


def text(x, y, content, color, size):
    return (f'<text x="{x}" y="{y}" fill="{color}" font-family="Inter, sans-serif" font-size="{size}">'
            f'{escape(content)}</text>')


if __name__ == "__main__":
    sys.exit(main())
