"""Smooth noise that tiles, as a bitmap of three independent fields in red, green and blue.

A recipe names the seed, the cells of the coarsest octave along an edge, and the deviation of the values
(0.5 in the middle) as a share of the whole range. Octaves halve their cells and their weight down to the
pixels of the tile at 1x. Fields are periodic cubic B-splines, so that larger scales show the same noise.
"""

import json
import random
import statistics
import struct
import zlib

KEYS = {"seed": int, "cells": int, "deviation": float}


def read_recipe(path, size):
    """The recipe's values; raises ValueError with what is wrong with them."""
    recipe = json.loads(path.read_text(encoding="utf-8"))
    if not isinstance(recipe, dict) or {key: type(value) for key, value in recipe.items()} != KEYS:
        raise ValueError("must hold a whole seed and cells and a broken deviation")
    octaves, cells = 0, recipe["cells"]
    while 0 < cells < size[0]:
        octaves, cells = octaves + 1, cells * 2
    if size[0] != size[1] or cells != size[0]:
        raise ValueError(f"{recipe['cells']} cells do not double to a square of {size[0]} by {size[1]}")
    return recipe


def write_noise(recipe, size, scale, path):
    """Writes the tile of size points at a scale."""
    source = random.Random(recipe["seed"])
    channels = [level(enlarged(field(source, recipe["cells"], size[0]), scale), recipe["deviation"])
                for _ in range(3)]
    rows = [b"\0" + bytes(value for pixel in zip(*rows) for value in pixel) for rows in zip(*channels)]
    path.write_bytes(png(size[0] * scale, size[1] * scale, b"".join(rows)))


def field(source, cells, edge):
    total, weight = [[0.0] * cells for _ in range(cells)], 1.0
    while True:
        total = [[value + weight * source.uniform(-1, 1) for value in row] for row in total]
        if len(total) * 2 > edge // 2:
            return enlarged(total, edge // len(total))
        total, weight = enlarged(total, 2), weight / 2


def enlarged(rows, factor):
    """The periodic cubic B-spline over the rows, sampled factor times as densely both ways."""
    return _transposed(_taller(_transposed(_taller(rows, factor)), factor)) if factor > 1 else rows


def _taller(rows, factor):
    count, result = len(rows), []
    for index in range(count):
        near = [rows[(index + step) % count] for step in (-1, 0, 1, 2)]
        for part in range(factor):
            a, b, c, d = _spline(part / factor)
            result.append([a * p + b * q + c * r + d * s for p, q, r, s in zip(*near)])
    return result


def _spline(t):
    return (1 - t) ** 3 / 6, (3 * t**3 - 6 * t**2 + 4) / 6, (-3 * t**3 + 3 * t**2 + 3 * t + 1) / 6, t**3 / 6


def _transposed(rows):
    return [list(column) for column in zip(*rows)]


def level(rows, deviation):
    """The rows as bytes with the given deviation about the middle."""
    values = [value for row in rows for value in row]
    mean = statistics.fmean(values)
    gain = 255 * deviation / (statistics.fmean((value - mean) ** 2 for value in values) ** 0.5)
    return [[min(255, max(0, round(127.5 + gain * (value - mean)))) for value in row] for row in rows]


def png(width, height, rows):
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))
    header = chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0))
    return b"\x89PNG\r\n\x1a\n" + header + chunk(b"IDAT", zlib.compress(rows, 9)) + chunk(b"IEND", b"")
