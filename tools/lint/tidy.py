#!/usr/bin/env python3
"""tidy.py BUILD: runs clang-tidy over the sources of a build and exits 1 on a finding.

A source that was clean is not checked again until it, a header of the project that it includes, or the
configuration changes. Sources of a folder are checked as one, since nearly all of the time goes into the headers of
the system; those that do not compile together are checked apart.
"""

import collections
import concurrent.futures
import hashlib
import json
import re
import shlex
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
FOLDERS = ("Platform", "Noteloft", "Chorale", "VantorShaders", "Tidepool", "Plugin", "Gallery")
INCLUDE = re.compile(r'^\s*#\s*include\s*"(?P<path>[^"]+)"', re.MULTILINE)
PRECOMPILED = re.compile(r"-Winvalid-pch|-include \S*cmake_pch\.hxx|-fpch-preprocess")
OUTPUT = re.compile(r" -o \S+ -c \S+$")
WORKERS = 2
TOGETHER = 16


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


def flags(build):
    """How the compiler is called for each source, without the build's precompiled header, which is another compiler's."""
    found = {}
    for command in json.loads((build / "compile_commands.json").read_text()):
        source = Path(command["file"])
        if any(source.is_relative_to(ROOT / folder) for folder in FOLDERS):
            found[source] = OUTPUT.sub("", PRECOMPILED.sub("", command["command"])).split(maxsplit=1)[1]
    return found


def groups(sources, call):
    """Lists of sources that may be checked as one: of one folder, and compiled in the same way."""
    alike = collections.defaultdict(list)
    for source in sources:
        alike[source.parent, call[source]].append(source)
    for members in alike.values():
        for start in range(0, len(members), TOGETHER):
            yield members[start:start + TOGETHER]


def joined(group):
    """The text of the sources in a row, and a function that tells where a line of it comes from. A source that were
    only included would not be analysed like one."""
    texts = [source.read_text().splitlines() for source in group]
    places = [f"{source}:{line}" for source, text in zip(group, texts) for line in range(1, len(text) + 1)]
    return "\n".join("\n".join(text) for text in texts) + "\n", lambda match: places[int(match[1]) - 1] + ":"


def check(cache, group, call):
    """The findings of each part of a group, with its sources."""
    unit = cache / (hashlib.sha256(str(group).encode()).hexdigest()[:16] + ".cpp")
    text, place = joined(group)
    unit.write_text(text)
    command = ["clang-tidy-14", f"--config-file={ROOT / '.clang-tidy'}", "--quiet", str(unit), "--",
               *shlex.split(call[group[0]]), "-Qunused-arguments"]
    result = subprocess.run(command, capture_output=True, text=True, check=False, cwd=cache)
    unit.unlink()
    found = re.sub(rf"{re.escape(str(unit))}:(\d+):", place, result.stdout + result.stderr) if result.returncode else ""
    if len(group) > 1 and "[clang-diagnostic-error]" in found:
        apart = [source for source in group if f"{source}:" in found]
        rest = [source for source in group if source not in apart]
        parts = [rest, *([source] for source in apart)] if rest and apart else [[source] for source in group]
        return [part for sources in parts for part in check(cache, sources, call)]
    return [(group, found)]


def main():
    build = Path(sys.argv[1]).resolve()
    cache = build / "tidy"
    cache.mkdir(exist_ok=True)
    call = flags(build)
    stamps = {source: cache / fingerprint(source) for source in sorted(call)}
    due = [source for source, stamp in stamps.items() if not stamp.exists()]
    failed = False
    with concurrent.futures.ThreadPoolExecutor(WORKERS) as pool:
        for parts in pool.map(lambda group: check(cache, group, call), list(groups(due, call))):
            for members, found in parts:
                print(found, end="")
                failed = failed or bool(found)
                for source in [] if found else members:
                    stamps[source].touch()
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
