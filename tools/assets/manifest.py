"""Reading and checking of an asset manifest (Assets.json) with the drawings and shaders it names."""

import dataclasses
import json
import re
import xml.etree.ElementTree as ElementTree
from pathlib import Path

from noise import read_recipe

MANIFEST = "Assets.json"
SCALES = (1, 2, 3)
LIGHT = "light"  # the folder of drawings for the light appearance, beside those that serve both
COLOR = re.compile(r"#[0-9a-fA-F]{6}([0-9a-fA-F]{2})?\Z")
COLOR_SPACES = ("srgb", "display-p3")
RESIZING_MODES = ("stretch", "tile")
COLOR_KEYS = {"name", "light", "dark", "space", "comment"}
IMAGE_KEYS = {"name", "source", "size", "capInsets", "resizing", "template", "comment"}
UNREAD = "unread"  # the reason of an asset that the module's own code does not read
SVG_NAMESPACE = "{http://www.w3.org/2000/svg}"


class AssetError(Exception):
    """Everything that is wrong with one resource folder, one message a line."""

    def __init__(self, messages):
        self.messages = list(messages)
        super().__init__("\n".join(self.messages))


@dataclasses.dataclass(frozen=True)
class Image:
    name: str
    source: Path  # of the drawing or recipe, absolute or relative to the working directory
    light: Path  # of the drawing for the light appearance; None where one drawing serves both
    size: tuple  # width, height in points
    entry: dict  # as in the manifest

    def files(self):
        """The bitmap of each scale, relative to the bundle."""
        return {scale: f"Images/{self.name}@{scale}x.png" for scale in SCALES}

    def light_files(self):
        """The same of the light appearance; empty where one drawing serves both."""
        return {scale: f"Images/{LIGHT}/{self.name}@{scale}x.png" for scale in SCALES if self.light}

    def sources(self):
        return [self.source, self.light] if self.light else [self.source]

    def renderings(self):
        """Yields (drawing, scale, bitmap relative to the bundle)."""
        yield from ((self.source, scale, file) for scale, file in self.files().items())
        yield from ((self.light, scale, file) for scale, file in self.light_files().items())


@dataclasses.dataclass(frozen=True)
class Manifest:
    path: Path
    colors: list  # entries as in the manifest
    images: list  # of Image


def read_manifest(folder):
    """Reads and checks folder/Assets.json; raises AssetError with all that is wrong with it."""
    path = Path(folder) / MANIFEST
    data = _load(path)
    errors = [f"unknown key \"{key}\"" for key in sorted(set(data) - {"colors", "images"})]
    colors, images = data.get("colors", []), data.get("images", [])
    for kind, entries in (("color", colors), ("image", images)):
        errors += _check_names(kind, entries)
    for entry in colors:
        errors += [f"color \"{entry.get('name')}\": {e}" for e in _color_errors(entry)]
    for entry in images:
        errors += [f"image \"{entry.get('name')}\": {e}" for e in _image_errors(path.parent, entry)]
    errors += _stray_drawings(path.parent, images)
    if errors:
        raise AssetError(f"{path}: {error}" for error in errors)
    return Manifest(path, colors, [_image(path.parent, entry) for entry in images])


def _load(path):
    try:
        data = json.loads(path.read_text(encoding="utf-8"))
    except OSError as error:
        raise AssetError([f"{path}: cannot be read: {error.strerror}"]) from error
    except ValueError as error:
        raise AssetError([f"{path}: not valid JSON: {error}"]) from error
    lists = [data.get(key, []) for key in ("colors", "images")] if isinstance(data, dict) else [None]
    if not all(isinstance(part, list) and all(isinstance(e, dict) for e in part) for part in lists):
        raise AssetError([f"{path}: must be an object with the lists \"colors\" and \"images\""])
    return data


def _image(folder, entry):
    source = folder / entry["source"]
    light = light_drawing(source)
    return Image(entry["name"], source, light if light.is_file() else None, tuple(entry["size"]), entry)


def light_drawing(source):
    """Where the drawing for the light appearance lies if there is one: Images/light/, under the same name."""
    return source.parent / LIGHT / source.with_suffix(".svg").name


def _check_names(kind, entries):
    names = [entry.get("name") for entry in entries]
    errors = [f"{kind} number {index}: has no name" for index, name in enumerate(names, 1)
              if not isinstance(name, str) or not name]
    repeated = {name for name in names if isinstance(name, str) and names.count(name) > 1}
    return errors + [f"{kind} \"{name}\": is named more than once" for name in sorted(repeated)]


def _key_errors(entry, keys):
    yield from (f"has no \"{key}\"" for key in sorted(keys - set(entry)))
    yield from (f"unknown key \"{key}\"" for key in sorted(set(entry) - keys - {UNREAD}))
    if not isinstance(entry.get(UNREAD, "-"), str) or not entry.get(UNREAD, "-"):
        yield f"{UNREAD} must give a reason"


def _color_errors(entry):
    yield from _key_errors(entry, COLOR_KEYS)
    for key in ("light", "dark"):
        value = entry.get(key, "#000000")
        if not isinstance(value, str) or not COLOR.match(value):
            yield f"{key} value {value!r} is not #rrggbb or #rrggbbaa"
    if entry.get("space", "srgb") not in COLOR_SPACES:
        yield f"space {entry['space']!r} is not one of {', '.join(COLOR_SPACES)}"


def _image_errors(folder, entry):
    yield from _key_errors(entry, IMAGE_KEYS)
    if "/" in str(entry.get("name")):
        yield "a name with a slash cannot be a file name"
    if entry.get("resizing", "stretch") not in RESIZING_MODES:
        yield f"resizing {entry['resizing']!r} is not one of {', '.join(RESIZING_MODES)}"
    if not isinstance(entry.get("template", False), bool):
        yield "template must be true or false"
    size = entry.get("size")
    if not _whole_numbers(size, 2, 1):
        yield "size must be [width, height] in whole points above 0"
        return
    yield from _inset_errors(entry.get("capInsets"), size)
    yield from _drawing_errors(folder, entry.get("source"), size)


def _whole_numbers(value, count, least):
    return (isinstance(value, list) and len(value) == count
            and all(type(part) is int and part >= least for part in value))


def _inset_errors(insets, size):
    if not _whole_numbers(insets, 4, 0):
        yield "capInsets must be [top, left, bottom, right] in whole points of 0 or more"
        return
    top, left, bottom, right = insets
    if left + right >= size[0] and left + right > 0:
        yield f"cap insets left {left} and right {right} leave nothing of the width {size[0]}"
    if top + bottom >= size[1] and top + bottom > 0:
        yield f"cap insets top {top} and bottom {bottom} leave nothing of the height {size[1]}"


def _drawing_errors(folder, source, size):
    if not isinstance(source, str) or not re.fullmatch(r"Images/[^/]+\.(svg|noise)", source):
        yield "source must be a drawing Images/<name>.svg or a recipe Images/<name>.noise"
        return
    if source.endswith(".noise"):
        yield from _recipe_errors(folder / source, size)
    else:
        yield from _shape_errors(folder, source, size)
    light = light_drawing(folder / source)
    if light.is_file():
        yield from _shape_errors(folder, str(light.relative_to(folder)), size)


def _shape_errors(folder, source, size):
    try:
        root = ElementTree.parse(folder / source).getroot()
    except OSError:
        yield f"{source}: no such file"
        return
    except ElementTree.ParseError as error:
        yield f"{source}: not well-formed: {error}"
        return
    yield from (f"{source}: {error}" for error in _svg_errors(root, size))


def _recipe_errors(path, size):
    try:
        read_recipe(path, size)
    except OSError:
        yield f"Images/{path.name}: no such file"
    except ValueError as error:
        yield f"Images/{path.name}: {error}"


def _svg_errors(root, size):
    if root.tag != f"{SVG_NAMESPACE}svg":
        yield "is not an SVG drawing"
        return
    if root.find(f".//{SVG_NAMESPACE}text") is not None:
        yield "holds text, whose look would depend on the fonts of the build machine: use outlines"
    box = _view_box(root)
    if box is None:
        yield "has neither a viewBox nor a width and a height"
    elif abs(box[0] * size[1] - box[1] * size[0]) > 1e-6 * box[0] * size[1]:
        yield f"is {box[0]:g} by {box[1]:g}, which is not the shape of the size {size[0]} by {size[1]}"


def _view_box(root):
    try:
        box = [float(part) for part in re.split(r"[\s,]+", root.get("viewBox", "").strip()) if part]
        if not box:
            box = [0, 0, float(root.get("width", 0)), float(root.get("height", 0))]
    except ValueError:
        return None
    return box[2:] if len(box) == 4 and box[2] > 0 and box[3] > 0 else None


def _stray_drawings(folder, images):
    named = {entry.get("source") for entry in images}
    named |= {f"Images/{LIGHT}/{Path(source).stem}.svg" for source in named if isinstance(source, str)}
    files = sorted(path for path in (folder / "Images").rglob("*") if path.is_file())
    drawings = (str(path.relative_to(folder)) for path in files)
    return [f"{drawing}: no image names this file" for drawing in drawings if drawing not in named]
