#!/usr/bin/env python3
"""Fails on an include that crosses the layers: prints each one and exits 1.

A module includes itself and the modules below it. A model never includes a view.
"""

import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
BELOW = {
    "Platform": set(),
    "Chorale": {"Platform"},
    "VantorShaders": {"Platform"},
    "Tidepool": {"Platform"},
    "Noteloft": {"Platform", "Chorale", "VantorShaders", "Tidepool"},
    "Plugin": set(),
    "Gallery": {"Platform", "Chorale", "VantorShaders", "Tidepool"},
}
# Processing code runs in a host's audio thread and stands alone; the editor beside it may use the modules.
BELOW_FOLDER = {"Plugin/Editor": {"Platform", "Chorale", "Tidepool"}}
INCLUDE = re.compile(r'^\s*#\s*include\s*["<](?P<path>[^">]+)[">]', re.MULTILINE)
# Parts of Platform from the bottom up: a folder includes itself and what stands to its left.
PLATFORM = ["Core", "Graphics", "Gpu", "Publishing", "Display", "Controls", "Windows", "AudioUnits", "Updates"]


def allowed(source):
    for folder, modules in BELOW_FOLDER.items():
        if source.is_relative_to(folder):
            return modules | {source.parts[0]}
    return BELOW[source.parts[0]] | {source.parts[0]}


def platform_part_is_above(source, included):
    """Implementations for one operating system serve every part, so they are not checked."""
    if source.parts[0] != "Platform" or len(included.parts) < 3 or included.parts[0] != "Platform":
        return False
    if source.parts[1] not in PLATFORM or included.parts[1] not in PLATFORM:
        return False
    return PLATFORM.index(included.parts[1]) > PLATFORM.index(source.parts[1])


def violations(root):
    for module in BELOW:
        for path in sorted(p for p in (root / module).rglob("*") if p.suffix in (".h", ".cpp")):
            source = path.relative_to(root)
            for match in INCLUDE.finditer(path.read_text(encoding="utf-8")):
                included = Path(match["path"])
                if included.parts[0] in BELOW and included.parts[0] not in allowed(source):
                    yield f"{source}: {included.parts[0]} is not below {source.parts[0]}: {included}"
                elif platform_part_is_above(source, included):
                    yield f"{source}: {included.parts[1]} is above {source.parts[1]}: {included}"
                elif source.stem.endswith("Model") and included.stem.endswith("View"):
                    yield f"{source}: a model includes a view: {included}"


def main():
    root = Path(sys.argv[1]) if len(sys.argv) > 1 else ROOT
    found = list(violations(root))
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
