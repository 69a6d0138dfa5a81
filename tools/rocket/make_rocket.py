#!/usr/bin/env python3
"""Writes the Rocket face as a TrueType file: make_rocket.py OUTPUT.ttf

The same sources give the same bytes: the file carries a fixed date.
"""

import argparse
import sys
from pathlib import Path

from fontTools import agl
from fontTools.feaLib.builder import addOpenTypeFeaturesFromString
from fontTools.fontBuilder import FontBuilder
from fontTools.misc.timeTools import timestampFromString
from fontTools.pens.boundsPen import BoundsPen
from fontTools.pens.cu2quPen import Cu2QuPen
from fontTools.pens.ttGlyphPen import TTGlyphPen
from fontTools.ttLib import newTable

sys.path.insert(0, str(Path(__file__).resolve().parent))
import glyphs  # noqa: E402
from kerning import FEATURES  # noqa: E402
from shapes import cut, box, moved, union  # noqa: E402

EM, ASCENT, DESCENT = 1000, 920, -260
SPACE = 260
DATE = timestampFromString("Thu Jan  1 00:00:00 2026")
NAMES = {
    "familyName": "Rocket",
    "styleName": "Regular",
    "uniqueFontIdentifier": "Quillfen: Rocket Regular 1.000",
    "fullName": "Rocket",
    "psName": "Rocket-Regular",
    "version": "Version 1.000",
    "copyright": "Copyright (c) 2026 Quillfen",
    "manufacturer": "Quillfen",
    "licenseDescription": "Licensed under the MIT License.",
    "licenseInfoURL": "https://opensource.org/license/mit",
}


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("output", type=Path, help="the TrueType file to write")
    build().save(parser.parse_args().output)


def build():
    """The font, as a fontTools object."""
    drawings = drawn_glyphs()
    order = [".notdef", "space", "nbspace", *drawings]
    builder = FontBuilder(EM, isTTF=True)
    builder.setupGlyphOrder(order)
    builder.setupCharacterMap(characters(drawings))
    builder.setupGlyf({name: true_type(shape) for name, (shape, _) in blanks().items()}
                      | {name: true_type(shape) for name, (shape, _) in drawings.items()})
    widths = {name: width for name, (_, width) in (blanks() | drawings).items()}
    outlines = builder.font["glyf"]
    left_edges = {name: getattr(outlines[name], "xMin", 0) for name in order}
    builder.setupHorizontalMetrics({name: (widths[name], left_edges[name]) for name in order})
    setup_metrics(builder)
    addOpenTypeFeaturesFromString(builder.font, FEATURES)
    return builder.font


def setup_metrics(builder):
    builder.setupHorizontalHeader(ascent=ASCENT, descent=DESCENT, lineGap=0)
    builder.setupNameTable(NAMES, mac=False)
    builder.setupOS2(version=4, fsType=0, usWeightClass=600, achVendID="QLFN", fsSelection=0x40 | 0x80,
                     sTypoAscender=ASCENT, sTypoDescender=DESCENT, sTypoLineGap=0, usWinAscent=1000,
                     usWinDescent=-DESCENT, sxHeight=glyphs.XHEIGHT, sCapHeight=glyphs.CAP)
    builder.setupPost(underlinePosition=-120, underlineThickness=80)
    builder.updateHead(created=DATE, modified=DATE, fontRevision=1.0)
    builder.font.recalcTimestamp = False
    smooth = newTable("gasp")
    smooth.gaspRange = {0xFFFF: 0x000F}  # smooth at every size: the outlines carry no hints
    builder.font["gasp"] = smooth


def blanks():
    frame = cut(box(60, 0, 440, glyphs.CAP), box(120, 60, 380, glyphs.CAP - 60))
    return {".notdef": (frame, 500), "space": (None, SPACE), "nbspace": (None, SPACE)}


def drawn_glyphs():
    """Every drawn glyph's shape at its place and its advance width, by name."""
    drawn = {}
    for group in (glyphs.capitals, glyphs.small_letters, glyphs.marks, glyphs.symbols):
        for name, shape, left, right in group():
            left_edge, _, right_edge, _ = bounds(shape)
            drawn[name] = moved(shape, dx=left - left_edge), round(right_edge - left_edge + left + right)
    for name, shape in glyphs.digits():
        left_edge, _, right_edge, _ = bounds(shape)
        drawn[name] = moved(shape, dx=(glyphs.FIGURE - right_edge - left_edge) / 2), glyphs.FIGURE
    return drawn | dict(accented(drawn))


def accented(drawn):
    for accent, letters in glyphs.ACCENTED.items():
        for letter in letters:
            yield letter + accent, accent_on(drawn, letter, glyphs.ACCENTS[accent])


def accent_on(drawn, letter, accent):
    shape, width = drawn[letter]
    if letter == "i":
        shape = cut(shape, box(0, glyphs.XHEIGHT + 1, width, glyphs.ASCENT))
    left, _, right, _ = bounds(shape)
    accent_left, _, accent_right, _ = bounds(accent)
    raised = glyphs.CAP - glyphs.XHEIGHT if letter.isupper() else 0
    centred = moved(accent, dx=(left + right - accent_left - accent_right) / 2, dy=raised)
    return union(shape, centred), width


def bounds(shape):
    pen = BoundsPen(None)
    shape.draw(pen)
    return pen.bounds


def characters(names):
    """The glyph name of each character."""
    codes = {agl.toUnicode(name): name for name in names}
    assert all(len(character) == 1 for character in codes), "a glyph name that stands for no character"
    by_code = {ord(character): name for character, name in codes.items()}
    return by_code | {ord(" "): "space", 0xA0: "nbspace"}


def true_type(shape):
    """Quadratic outlines, outer contours clockwise."""
    pen = TTGlyphPen(None)
    if shape:
        for contour in shape.contours:
            contour.draw(Cu2QuPen(pen, max_err=0.7, reverse_direction=True))
    return pen.glyph()


if __name__ == "__main__":
    main()
