"""Which assets the code reads: one that is only given another name (`constexpr auto a = Images::b;`) is not read,
but one whose other name is read is."""

import re
from pathlib import Path

from manifest import UNREAD
from names import constants

_HIDDEN = re.compile(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])*\'', re.DOTALL)
_TOKEN = re.compile(
    r"\b(?:struct|class)\s+(?P<scope>\w+)(?:\s*:\s*(?:public\s+)?(?P<base>[\w:]+))?[^;{}()]*\{"
    r"|\bconstexpr\s+auto\s+(?P<alias>\w+)\s*=\s*(?P<target>[\w:]+)\s*;"
    r"|\busing\s+(?P<type>\w+)\s*=\s*(?P<other>[\w:]+)\s*;"
    r"|(?P<read>\w+(?:::\w+)+)|(?P<brace>[{}])")


def source_files(folders):
    """The C++ files under the folders, in a fixed order."""
    found = (path for folder in folders for path in Path(folder).rglob("*"))
    return sorted({path for path in found if path.suffix in (".cpp", ".h")})


def usage_errors(manifest, files):
    """Assets that nothing reads and that give no reason for it, and reasons that no longer hold."""
    read = _read_names([_HIDDEN.sub(" ", path.read_text(encoding="utf-8")) for path in files])
    for kind, entry, scope, member in constants(manifest):
        asset = f"{manifest.path}: {kind} \"{entry['name']}\""
        if (scope, member) in read and UNREAD in entry:
            yield f"{asset}: {scope}::{member} is read, so \"{UNREAD}\" must go"
        elif (scope, member) not in read and UNREAD not in entry:
            yield f"{asset}: nothing reads {scope}::{member}"


def _read_names(texts):
    """All (scope, member) that are read, by their own names or by others."""
    same, bases, found = {}, {}, set()
    for text in texts:
        scopes = [""]
        for token in _TOKEN.finditer(text):
            if token["brace"] == "}":
                scopes = scopes[:-1] or [""]
            elif token["brace"] or token["scope"]:
                scopes.append(token["scope"] or "")
            if token["base"] or token["type"]:
                bases[token["scope"] or token["type"]] = _last(token["base"] or token["other"])[1]
            if token["alias"]:
                same[scopes[-1], token["alias"]] = _last(token["target"])
            elif token["read"]:
                found.add(_last(token["read"]))
    return _with_meanings(found, same, bases)


def _last(name):
    scope, _, member = name.rpartition("::")
    return scope.rpartition("::")[2], member


def _with_meanings(names, same, bases):
    seen, due = set(), list(names)
    while due:
        scope, member = due.pop()
        if (scope, member) in seen:
            continue
        seen.add((scope, member))
        if (scope, member) in same:
            due.append(same[scope, member])
        elif scope in bases:
            due.append((bases[scope], member))
    return seen
