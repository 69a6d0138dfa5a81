"""Which assets the code names: only the literals colorAsset("...") and imageAsset("...") name one."""

import re
from pathlib import Path

# Literals and comments are one pattern, so that neither is found inside the other.
_TOKEN = re.compile(
    r'//[^\n]*|/\*.*?\*/|\b(?P<kind>color|image)Asset\s*\(\s*"(?P<name>[^"\\\n]*)"'
    r'|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])*\'', re.DOTALL)


def source_files(folders):
    """The C++ files under the folders, in a fixed order."""
    found = (path for folder in folders for path in Path(folder).rglob("*"))
    return sorted({path for path in found if path.suffix in (".cpp", ".h")})


def names_in(text):
    """Yields (kind, name, line number) for each asset that a source text names."""
    for match in _TOKEN.finditer(text):
        if match["kind"]:
            yield match["kind"], match["name"], text.count("\n", 0, match.start()) + 1


def usage_errors(manifest, files):
    """What the code names and the manifest lacks, and what the manifest has and no code names."""
    declared = {("color", entry["name"]) for entry in manifest.colors}
    declared |= {("image", image.name) for image in manifest.images}
    errors, used = [], set()
    for path in files:
        for kind, name, line in names_in(path.read_text(encoding="utf-8")):
            used.add((kind, name))
            if (kind, name) not in declared:
                errors.append(f"{path}:{line}: {kind} \"{name}\": {manifest.path} has no such asset")
    for kind, name in sorted(declared - used):
        errors.append(f"{manifest.path}: {kind} \"{name}\": no code names it")
    return errors
