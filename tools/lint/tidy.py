#!/usr/bin/env python3
"""tidy.py BUILD: runs clang-tidy over the sources of a build and exits 1 on a finding.

A source that was clean is not checked again until it, a header of the project that it includes, or the
configuration changes.
"""

import concurrent.futures
import hashlib
import json
import re
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
FOLDERS = ("Platform", "Noteloft", "Chorale", "VantorShaders", "Tidepool", "Plugin", "Gallery")
INCLUDE = re.compile(r'^\s*#\s*include\s*"(?P<path>[^"]+)"', re.MULTILINE)
PRECOMPILED = re.compile(r"-Winvalid-pch|-include \S*cmake_pch\.hxx|-fpch-preprocess")
WORKERS = 2


def read_by(source, seen=None):
    """The source and all headers of the project that it includes."""
    seen = {} if seen is None else seen
    if source in seen or not source.is_file():
        return seen
    seen[source] = source.read_bytes()
    for match in INCLUDE.finditer(seen[source].decode()):
        read_by(ROOT / match["path"], seen)
    return seen


def fingerprint(source):
    content = hashlib.sha256((ROOT / ".clang-tidy").read_bytes())
    for path, text in sorted(read_by(source).items()):
        content.update(str(path).encode() + text)
    return content.hexdigest()


def checked_commands(build):
    """The build's commands without its precompiled header, which is in another compiler's format."""
    commands = json.loads((build / "compile_commands.json").read_text())
    checked = []
    for command in commands:
        source = Path(command["file"])
        if any(source.is_relative_to(ROOT / folder) for folder in FOLDERS):
            command["command"] = PRECOMPILED.sub("", command["command"])
            checked.append(command)
    return checked


def findings(cache, source):
    command = ["clang-tidy-14", "-p", cache, "--quiet", "--extra-arg=-Qunused-arguments", source]
    result = subprocess.run(command, capture_output=True, text=True, check=False)
    return result.stdout + result.stderr if result.returncode else ""


def main():
    build = Path(sys.argv[1]).resolve()
    cache = build / "tidy"
    cache.mkdir(exist_ok=True)
    commands = checked_commands(build)
    (cache / "compile_commands.json").write_text(json.dumps(commands))
    sources = sorted({Path(command["file"]) for command in commands})
    due = [(source, cache / fingerprint(source)) for source in sources]
    due = [(source, stamp) for source, stamp in due if not stamp.exists()]
    failed = False
    with concurrent.futures.ThreadPoolExecutor(WORKERS) as pool:
        results = pool.map(lambda job: findings(cache, job[0]), due)
        for (_, stamp), found in zip(due, results):
            if found:
                print(found)
                failed = True
            else:
                stamp.touch()
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
