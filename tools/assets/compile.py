#!/usr/bin/env python3
"""Compiles a resource folder into a bundle directory.

Checks the manifest, renders each drawing and noise recipe at 1x, 2x and 3x, and so the drawing in
Images/light that an image may have for the light appearance. Checks and copies the shaders. Where code
folders are given, fails on each asset that nothing in them reads. With --header, only writes the C++ names
of the assets.
"""

import argparse
import concurrent.futures
import json
import os
import struct
import subprocess
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))
from manifest import LIGHT, MANIFEST, UNREAD, AssetError, read_manifest  # noqa: E402
from names import write_header  # noqa: E402
from noise import read_recipe, write_noise  # noqa: E402
from usage import source_files, usage_errors  # noqa: E402

SHADER_SUFFIXES = (".vert", ".frag")
SHADER_INDEX = "Shaders.json"
SHADER_VERSION = "#version 330 core"
WORKERS = 2


def main():
    options = parse_options()
    try:
        if options.header:
            write_header(options.header, read_manifest(options.source), options.namespace)
        else:
            compile_bundle(options)
    except AssetError as error:
        print("\n".join(error.messages), file=sys.stderr)
        return 1
    return 0


def parse_options():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--source", type=Path, required=True, help="resource folder with Assets.json")
    parser.add_argument("--output", type=Path, help="bundle directory to bring up to date")
    parser.add_argument("--code", type=Path, action="append", default=[],
                        help="folder whose code is checked against the manifest (repeatable)")
    parser.add_argument("--header", type=Path, help="header to write in place of a bundle")
    parser.add_argument("--namespace", help="namespace of that header")
    parser.add_argument("--depfile", type=Path, help="file to write with all that was read")
    return parser.parse_args()


def compile_bundle(options):
    manifest = read_manifest(options.source)
    code = source_files(options.code)
    errors = list(usage_errors(manifest, code)) if options.code else []
    if errors:
        raise AssetError(errors)
    bitmaps = render_images(manifest.images, options.output)
    shaders = copy_shaders(options.source / "Shaders", options.output / "Shaders")
    remove_others(options.output, bitmaps | shaders)
    index = options.output / MANIFEST
    replace(index, json.dumps(compiled(manifest), indent=1, ensure_ascii=False).encode() + b"\n")
    if options.depfile:
        write_depfile(options, index, manifest, code)


def compiled(manifest):
    """The manifest as the application reads it: files by scale in place of the drawing."""
    images = []
    for image in manifest.images:
        entry = {key: value for key, value in image.entry.items() if key not in ("source", UNREAD)}
        entry["files"] = {str(scale): file for scale, file in image.files().items()}
        if image.light:
            entry["lightFiles"] = {str(scale): file for scale, file in image.light_files().items()}
        images.append(entry)
    colors = [{key: value for key, value in entry.items() if key != UNREAD} for entry in manifest.colors]
    return {"colors": colors, "images": images}


def render_images(images, bundle):
    """Renders what is out of date and returns all bitmaps of the bundle."""
    jobs, bitmaps = [], set()
    for image in images:
        for drawing, scale, file in image.renderings():
            pixels = (image.size[0] * scale, image.size[1] * scale)
            bitmaps.add(bundle / file)
            if not is_current(bundle / file, drawing, pixels):
                jobs.append((image, drawing, scale, bundle / file))
    with concurrent.futures.ThreadPoolExecutor(WORKERS) as pool:
        errors = [error for error in pool.map(lambda job: render(*job), jobs) if error]
    if errors:
        raise AssetError(errors)
    return bitmaps


def is_current(bitmap, drawing, pixels):
    try:
        return bitmap.stat().st_mtime_ns >= drawing.stat().st_mtime_ns and size_of(bitmap) == pixels
    except (OSError, struct.error):
        return False


def size_of(bitmap):
    with bitmap.open("rb") as file:
        return struct.unpack(">16xII", file.read(24))


def render(image, drawing, scale, bitmap):
    """Returns what went wrong, or nothing. The bitmap appears only when it is complete."""
    bitmap.parent.mkdir(parents=True, exist_ok=True)
    partial = bitmap.with_suffix(".partial")
    if drawing.suffix == ".noise":
        write_noise(read_recipe(drawing, image.size), image.size, scale, partial)
    else:
        error = render_drawing(drawing, image.size, scale, partial)
        if error:
            partial.unlink(missing_ok=True)
            return f"{drawing}: image \"{image.name}\": {error}"
    os.replace(partial, bitmap)
    return None


def render_drawing(drawing, size, scale, output):
    width, height = (length * scale for length in size)
    command = ["rsvg-convert", "--width", str(width), "--height", str(height), "--output", output]
    result = subprocess.run([*command, drawing], capture_output=True, text=True, check=False)
    if result.returncode:
        return result.stderr.strip()
    return None if size_of(output) == (width, height) else f"did not render to {width} by {height} pixels"


def copy_shaders(source, target):
    """Checks and copies the shaders and returns all files of the bundle's shader folder."""
    if not source.is_dir():
        return set()
    shaders = sorted(path for path in source.iterdir() if path.suffix in SHADER_SUFFIXES)
    errors = [error for path in shaders for error in shader_errors(path, target / path.name)]
    errors += shader_index_errors(source / SHADER_INDEX)
    if errors:
        raise AssetError(errors)
    target.mkdir(parents=True, exist_ok=True)
    for path in [*shaders, source / SHADER_INDEX]:
        replace(target / path.name, path.read_bytes())
    return {target / path.name for path in [*shaders, source / SHADER_INDEX]}


def shader_errors(path, copied):
    text = path.read_text(encoding="utf-8")
    if copied.is_file() and copied.read_text(encoding="utf-8") == text:
        return []
    if text.split("\n", 1)[0].strip() != SHADER_VERSION:
        return [f"{path}: must begin with {SHADER_VERSION}"]
    result = subprocess.run(["glslangValidator", path], capture_output=True, text=True, check=False)
    return [f"{path}: {result.stdout.strip()}"] if result.returncode else []


def shader_index_errors(path):
    try:
        json.loads(path.read_text(encoding="utf-8"))
    except OSError as error:
        return [f"{path}: cannot be read: {error.strerror}"]
    except ValueError as error:
        return [f"{path}: not valid JSON: {error}"]
    return []


def remove_others(bundle, kept):
    """Removes what an earlier run made; only the two folders that the compiler owns are touched."""
    for folder in (bundle / "Images", bundle / "Shaders"):
        for path in sorted([folder, *folder.rglob("*")], reverse=True):
            if path.is_file() and path not in kept:
                path.unlink()
            elif path.is_dir() and not any(path.iterdir()):
                path.rmdir()


def replace(path, content):
    path.parent.mkdir(parents=True, exist_ok=True)
    partial = path.with_name(path.name + ".partial")
    partial.write_bytes(content)
    os.replace(partial, path)


def write_depfile(options, index, manifest, code):
    """Folders are listed too: they change when a file comes or goes."""
    read = [manifest.path, *(source for image in manifest.images for source in image.sources()), *code]
    read += sorted(Path(__file__).resolve().parent.glob("*.py"))
    for folder in (options.source / "Images", options.source / "Images" / LIGHT, options.source / "Shaders"):
        read += [folder, *sorted(folder.iterdir())] if folder.is_dir() else []
    read += sorted({path.parent for path in code} | set(options.code))
    listed = " \\\n  ".join(escaped(path) for path in dict.fromkeys(read))
    replace(options.depfile, f"{escaped(index)}: \\\n  {listed}\n".encode())


def escaped(path):
    text = str(path).replace("$", "$$").replace("#", "\\#")
    return text.replace(" ", "\\ ")


if __name__ == "__main__":
    sys.exit(main())
