"""Runs the asset compiler as the build does, on small resource folders of its own."""

import json
import os
import struct
import subprocess
import sys
import tempfile
import unittest
import zlib
from pathlib import Path

COMPILER = Path(__file__).resolve().parents[2] / "tools" / "assets" / "compile.py"
DRAWING = '<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 20 10"><rect width="20" height="10"/></svg>'
VERTEX = "#version 330 core\nvoid main() { gl_Position = vec4(0.0); }\n"


def color(name="Grey 20%", **changes):
    return {"name": name, "light": "#ffffff", "dark": "#00000080", "space": "srgb", "comment": ""} | changes


def image(name="knob", **changes):
    return {"name": name, "source": f"Images/{name}.svg", "size": [20, 10], "capInsets": [0, 4, 0, 4],
            "resizing": "stretch", "template": False, "comment": ""} | changes


class CompileTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)
        self.source, self.bundle = self.root / "Kit", self.root / "Kit.bundle"
        self.manifest([color()], [image()])
        self.write("Kit/Images/knob.svg", DRAWING)

    def write(self, path, content):
        target = self.root / path
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_text(content, encoding="utf-8")
        return target

    def manifest(self, colors, images):
        self.write("Kit/Assets.json", json.dumps({"colors": colors, "images": images}))

    def run_compiler(self, *options):
        command = [sys.executable, COMPILER, "--source", self.source, "--output", self.bundle, *options]
        return subprocess.run(command, capture_output=True, text=True, check=False)

    def compile(self, *options):
        result = self.run_compiler(*options)
        self.assertEqual(result.returncode, 0, result.stderr)

    def fails_with(self, *parts, options=()):
        result = self.run_compiler(*options)
        self.assertEqual(result.returncode, 1, result.stderr)
        self.assertNotIn("Traceback", result.stderr)
        for part in parts:
            self.assertIn(part, result.stderr)

    def bitmaps(self):
        return sorted(path.name for path in (self.bundle / "Images").iterdir())


class BundleTest(CompileTest):
    def test_bitmaps_have_the_pixels_of_each_scale(self):
        self.compile()
        for scale in (1, 2, 3):
            header = (self.bundle / f"Images/knob@{scale}x.png").read_bytes()[:24]
            self.assertEqual(struct.unpack(">II", header[16:]), (20 * scale, 10 * scale))

    def test_index_names_the_bitmaps_in_place_of_the_drawing(self):
        self.compile()
        index = json.loads((self.bundle / "Assets.json").read_text(encoding="utf-8"))
        expected = image() | {"files": {str(s): f"Images/knob@{s}x.png" for s in (1, 2, 3)}}
        del expected["source"]
        self.assertEqual(index, {"colors": [color()], "images": [expected]})

    def test_second_run_renders_nothing_anew(self):
        self.compile()
        before = {path: path.stat().st_ino for path in (self.bundle / "Images").iterdir()}
        self.compile()
        self.assertEqual({path: path.stat().st_ino for path in before}, before)

    def test_a_changed_drawing_is_rendered_again(self):
        self.compile()
        before = (self.bundle / "Images/knob@2x.png").read_bytes()
        drawing = self.write("Kit/Images/knob.svg", DRAWING.replace("<rect", '<rect fill="#f00"'))
        later = (self.bundle / "Images/knob@2x.png").stat().st_mtime + 1
        os.utime(drawing, (later, later))
        self.compile()
        self.assertNotEqual((self.bundle / "Images/knob@2x.png").read_bytes(), before)

    def test_a_changed_size_is_rendered_again(self):
        self.compile()
        self.manifest([color()], [image(size=[40, 20])])
        self.compile()
        header = (self.bundle / "Images/knob@1x.png").read_bytes()[:24]
        self.assertEqual(struct.unpack(">II", header[16:]), (40, 20))

    def test_what_is_no_longer_made_is_removed_and_nothing_else(self):
        self.manifest([], [image(), image("dial")])
        self.write("Kit/Images/dial.svg", DRAWING)
        self.write("Kit/Shaders/a.vert", VERTEX)
        self.write("Kit/Shaders/Shaders.json", "{}")
        self.compile()
        kept = self.write("Kit.bundle/Info.json", "{}")
        self.manifest([], [image()])
        (self.source / "Images/dial.svg").unlink()
        (self.source / "Shaders/a.vert").unlink()
        self.compile()
        self.assertEqual(self.bitmaps(), ["knob@1x.png", "knob@2x.png", "knob@3x.png"])
        self.assertFalse((self.bundle / "Shaders/a.vert").exists())
        self.assertTrue(kept.exists())

    def test_a_light_drawing_has_bitmaps_of_its_own(self):
        self.write("Kit/Images/light/knob.svg", DRAWING.replace("<rect", '<rect fill="#f00"'))
        depfile = self.root / "kit.d"
        self.compile("--depfile", depfile)
        (entry,) = json.loads((self.bundle / "Assets.json").read_text(encoding="utf-8"))["images"]
        self.assertEqual(entry["lightFiles"], {str(s): f"Images/light/knob@{s}x.png" for s in (1, 2, 3)})
        for scale in (1, 2, 3):
            dark, light = (self.bundle / entry[files][str(scale)] for files in ("files", "lightFiles"))
            self.assertEqual(light.read_bytes()[:24], dark.read_bytes()[:24])
            self.assertNotEqual(light.read_bytes(), dark.read_bytes())
        self.assertIn(f"{self.source}/Images/light/knob.svg", depfile.read_text(encoding="utf-8"))

    def test_a_light_drawing_that_is_gone_leaves_nothing(self):
        drawing = self.write("Kit/Images/light/knob.svg", DRAWING)
        self.compile()
        drawing.unlink()
        self.compile()
        self.assertEqual(self.bitmaps(), ["knob@1x.png", "knob@2x.png", "knob@3x.png"])
        self.assertNotIn("lightFiles", (self.bundle / "Assets.json").read_text(encoding="utf-8"))

    def test_depfile_lists_what_was_read(self):
        code = self.write("code dir/a.cpp", "Colors::grey20; Images::knob;")
        depfile = self.root / "kit.d"
        self.compile("--depfile", depfile, "--code", code.parent)
        text = depfile.read_text(encoding="utf-8")
        self.assertTrue(text.startswith(f"{self.bundle}/Assets.json:"))
        for read in ("Kit/Images/knob.svg", "Kit/Assets.json", r"code\ dir/a.cpp"):
            self.assertIn(f"{self.root}/{read}", text)


class ManifestErrorTest(CompileTest):
    def test_missing_drawing(self):
        (self.source / "Images/knob.svg").unlink()
        self.fails_with('image "knob"', "no such file")

    def test_drawing_of_another_shape(self):
        self.manifest([], [image(size=[20, 11])])
        self.fails_with('image "knob"', "20 by 10", "20 by 11")

    def test_drawing_that_is_not_well_formed(self):
        self.write("Kit/Images/knob.svg", "<svg>")
        self.fails_with('image "knob"', "not well-formed")

    def test_drawing_that_depends_on_fonts(self):
        self.write("Kit/Images/knob.svg", DRAWING.replace("</svg>", "<text>a</text></svg>"))
        self.fails_with('image "knob"', "use outlines")

    def test_drawing_that_no_image_names(self):
        self.write("Kit/Images/old.svg", DRAWING)
        self.fails_with("Images/old.svg", "no image names this file")

    def test_light_drawings_are_checked_too(self):
        self.write("Kit/Images/light/knob.svg", DRAWING.replace("20 10", "10 10"))
        self.write("Kit/Images/light/dial.svg", DRAWING)
        self.fails_with("Images/light/knob.svg", "10 by 10", "Images/light/dial.svg: no image names this file")

    def test_cap_insets_that_leave_nothing_to_stretch(self):
        self.manifest([], [image(capInsets=[0, 10, 0, 10])])
        self.fails_with('image "knob"', "leave nothing of the width 20")
        self.manifest([], [image(capInsets=[6, 4, 5, 4])])
        self.fails_with('image "knob"', "leave nothing of the height 10")

    def test_repeated_names(self):
        self.manifest([color(), color()], [image(), image()])
        self.fails_with('color "Grey 20%": is named more than once', 'image "knob": is named more than once')

    def test_bad_values(self):
        for entry in (color(dark="#12345"), color(light="red"), color(space="cmyk"), color(extra=1)):
            self.manifest([entry], [image()])
            self.fails_with('color "Grey 20%"')
        for entry in (image(size=[20, 10.5]), image(size=[0, 0]), image(resizing="fit"), image(template=1),
                      image(capInsets=[1, 2]), image(source="../knob.svg"), image(unread="")):
            self.manifest([], [entry])
            self.fails_with('image "knob"')

    def test_manifest_that_cannot_be_read(self):
        self.write("Kit/Assets.json", "{")
        self.fails_with("not valid JSON")
        (self.source / "Assets.json").unlink()
        self.fails_with("cannot be read")


class NoiseTest(CompileTest):
    RECIPE = '{"seed": 5, "cells": 4, "deviation": 0.2}'

    def setUp(self):
        super().setUp()
        (self.source / "Images/knob.svg").unlink()
        self.manifest([], [image("fog", source="Images/fog.noise", size=[32, 32], capInsets=[0, 0, 0, 0])])
        self.write("Kit/Images/fog.noise", self.RECIPE)

    def pixel_rows(self, scale):
        data = (self.bundle / f"Images/fog@{scale}x.png").read_bytes()
        at, packed = 8, b""
        while at < len(data):
            length, kind = struct.unpack(">I4s", data[at:at + 8])
            packed += data[at + 8:at + 8 + length] if kind == b"IDAT" else b""
            at += 12 + length
        raw, line = zlib.decompress(packed), 1 + 3 * 32 * scale
        return [raw[start + 1:start + line] for start in range(0, len(raw), line)]

    def test_the_tile_has_no_seam(self):
        def step(one, other):
            return sum(abs(a - b) for a, b in zip(one, other))
        self.compile()
        for scale in (1, 2, 3):
            rows = self.pixel_rows(scale)
            columns = list(zip(*rows))[::3]  # of the red field
            for lines in (rows, columns):
                inner = max(step(*pair) for pair in zip(lines, lines[1:]))
                self.assertGreater(inner, 0)
                self.assertLessEqual(step(lines[0], lines[-1]), 1.5 * inner)

    def test_the_seed_alone_decides(self):
        self.compile()
        first = self.pixel_rows(2)
        (self.bundle / "Images/fog@2x.png").unlink()
        self.compile()
        self.assertEqual(self.pixel_rows(2), first)
        self.write("Kit/Images/fog.noise", self.RECIPE.replace("5", "6"))
        (self.bundle / "Images/fog@2x.png").unlink()
        self.compile()
        self.assertNotEqual(self.pixel_rows(2), first)

    def test_a_recipe_that_cannot_tile(self):
        for recipe in (self.RECIPE.replace("4", "5"), self.RECIPE.replace("0.2", "1"), "{", "[]"):
            self.write("Kit/Images/fog.noise", recipe)
            self.fails_with('image "fog"', "fog.noise")


class UsageTest(CompileTest):
    def check(self, code):
        self.write("code/a.cpp", f"auto a = Colors::grey20.color();\n{code}")
        return ("--code", self.root / "code")

    def test_what_reads_something(self):
        kit = "struct Kit : Base { struct Dial { static constexpr auto knob = Images::knob; }; };\n"
        for code in ("Images::knob;", "Kit::Dial::knob;", "using Own = Kit::Dial; Own::knob;",
                     "struct Own : public Kit::Dial {}; Own::knob;"):
            self.compile(*self.check(kit + code))

    def test_what_reads_nothing(self):
        for code in ("// Images::knob\n", "/* Images::knob\n */", r'"\"" "Images::knob"', "Colors::knob;",
                     "struct Kit { static constexpr auto handle = Images::knob; };"):
            self.fails_with('image "knob": nothing reads Images::knob', options=self.check(code))
            self.assertFalse((self.bundle / "Assets.json").exists())

    def test_what_nothing_reads_needs_a_reason_and_nothing_else_has_one(self):
        self.manifest([color()], [image(unread="for makers")])
        self.compile(*self.check(""))
        self.fails_with('"unread" must go', options=self.check("Images::knob;"))

    def test_a_header_is_written_anew_only_when_a_name_changes(self):
        header, seen = self.root / "Assets.h", []
        for entry in (color("Signal/Red"), color("Signal/Red", dark="#112233"), color("Signal/Error")):
            self.manifest([entry], [image()])
            self.compile("--header", header, "--namespace", "kit")
            seen.append(header.stat().st_mtime_ns)
        self.assertEqual(seen[0], seen[1])
        self.assertIn('ColorResource error{"Signal/Error", resourceBundle}', header.read_text(encoding="utf-8"))


class ShaderTest(CompileTest):
    def setUp(self):
        super().setUp()
        self.write("Kit/Shaders/Shaders.json", "{}")
        self.write("Kit/Shaders/a.vert", VERTEX)

    def test_shaders_are_copied_with_their_index(self):
        self.compile()
        self.assertEqual((self.bundle / "Shaders/a.vert").read_text(encoding="utf-8"), VERTEX)
        self.assertTrue((self.bundle / "Shaders/Shaders.json").exists())

    def test_a_shader_error_is_told_even_after_a_good_run(self):
        self.compile()
        self.write("Kit/Shaders/a.vert", VERTEX.replace("0.0", "nothing"))
        self.fails_with("a.vert", "nothing")

    def test_another_language_version_is_refused(self):
        self.write("Kit/Shaders/a.vert", VERTEX.replace("330 core", "450"))
        self.fails_with("a.vert", "#version 330 core")

    def test_missing_index(self):
        (self.source / "Shaders/Shaders.json").unlink()
        self.fails_with("Shaders.json", "cannot be read")


if __name__ == "__main__":
    unittest.main()
