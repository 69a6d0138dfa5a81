"""The C++ constants that stand for the assets of a module, and the header that declares them."""

import re

HEADER = """// The assets of the module, made from Resources/{module}/Assets.json.
#pragma once

#include "Platform/Graphics/AssetResource.h"

namespace {namespace} {{

const platform::Bundle& resourceBundle();
{structs}
}} // namespace {namespace}
"""


def constants(manifest):
    """Yields (kind, entry, scope, member): of "Background/Darker" Background::darker, of "tpk-button" tpkButton."""
    for kind, entries in (("color", manifest.colors), ("image", [image.entry for image in manifest.images])):
        for entry in entries:
            group, _, name = entry["name"].rpartition("/")
            yield kind, entry, _joined(group) or f"{kind.capitalize()}s", _lower(_joined(name))


def write_header(path, manifest, namespace):
    """An unchanged header is left alone, so that nothing is built anew."""
    found = list(constants(manifest))
    structs = "".join(_struct(kind, [each for each in found if each[0] == kind]) for kind in ("color", "image"))
    text = HEADER.format(module=manifest.path.parent.name, namespace=namespace, structs=structs)
    if not path.is_file() or path.read_text(encoding="utf-8") != text:
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")


def _struct(kind, found):
    if not found:
        return ""
    outer = f"{kind.capitalize()}s"
    body = "".join(f"    struct {scope} {{\n{_members(found, scope, 8)}    }};\n\n"
                   for scope in dict.fromkeys(scope for _, _, scope, _ in found) if scope != outer)
    return f"\nstruct {outer} {{\n{body}{_members(found, outer, 4)}}};\n"


def _members(found, wanted, indent):
    return "".join(f"{' ' * indent}/// {entry['comment']}.\n"
                   f"{' ' * indent}static constexpr platform::{kind.capitalize()}Resource {member}"
                   f"{{\"{entry['name']}\", resourceBundle}};\n"
                   for kind, entry, scope, member in found if scope == wanted)


def _joined(name):
    words = re.findall(r"[A-Za-z0-9]+", name)
    return "".join(word[0].upper() + word[1:] for word in words)


def _lower(name):
    return name[:1].lower() + name[1:]
