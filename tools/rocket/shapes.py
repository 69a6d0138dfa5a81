"""Strokes and outlines that the glyphs are built from; lengths in font units, 1000 to the em."""

from booleanOperations.booleanGlyph import BooleanGlyph
from fontTools.pens.reverseContourPen import ReverseContourPen
from fontTools.pens.transformPen import TransformPen

STEM = 112  # width of a vertical stroke
BEAM = 100  # height of a horizontal one: optically equal
_SQUIRCLE = 0.61  # curve handle as a share of the corner; a circle's would be 0.55


def outline(contour):
    """A shape from one closed contour: points, or ("curve", handle, handle, point)."""
    shape = BooleanGlyph()
    pen = shape.getPen()
    at = contour[0]
    pen.moveTo(at)
    for part in contour[1:]:
        if part[0] == "curve":
            pen.curveTo(*part[1:])
        elif part != at:
            pen.lineTo(part)
        at = part[-1] if part[0] == "curve" else part
    pen.closePath()
    return moved(shape, reverse=True) if shape.contours[0].clockwise else shape


def union(*shapes):
    """The shapes as one; all of them run counter-clockwise, so that none cancels another."""
    result = BooleanGlyph()
    for shape in shapes:
        shape.draw(result.getPen())
    return result.removeOverlap()


def cut(shape, *others):
    for other in others:
        shape = shape.difference(other)
    return shape


def box(left, bottom, right, top):
    return outline([(left, bottom), (right, bottom), (right, top), (left, top)])


def slant(low, high, bottom, top, thickness):
    """A diagonal with level ends: its left edge runs from (low, bottom) to (high, top)."""
    return outline([(low, bottom), (low + thickness, bottom), (high + thickness, top), (high, top)])


def stroke(*points, closed=False):
    """A stroke along upright and level lines; a point is (x, y) or (x, y, radius of the corner)."""
    path = [(*point, 0)[:3] for point in points]
    if closed:
        return cut(_ring(path, 1), _ring(path, -1)) if _turns_left(path) else stroke(*path[::-1], closed=True)
    return union(outline(_side(path, 1) + _side(path[::-1], 1)))  # a stroke may meet itself


def bowl(left, bottom, right, top, radius):
    """A closed round stroke whose outside fills the given box."""
    x0, x1, y0, y1 = left + STEM / 2, right - STEM / 2, bottom + BEAM / 2, top - BEAM / 2
    return stroke((x0, y0, radius), (x1, y0, radius), (x1, y1, radius), (x0, y1, radius), closed=True)


def disc(x, y, width, height=None):
    """A dot round the given centre."""
    rx, ry = width / 2, (height or width) / 2
    return outline(_rounded([((x - rx, y - ry), rx, ry), ((x + rx, y - ry), rx, ry),
                             ((x + rx, y + ry), rx, ry), ((x - rx, y + ry), rx, ry)], closed=True))


def moved(shape, dx=0.0, dy=0.0, xscale=1.0, yscale=1.0, reverse=False):
    """A copy of the shape; a mirrored one keeps running counter-clockwise."""
    result = BooleanGlyph()
    pen = TransformPen(result.getPen(), (xscale, 0, 0, yscale, dx, dy))
    shape.draw(ReverseContourPen(pen) if reverse or xscale * yscale < 0 else pen)
    return result


def _direction(start, end):
    dx, dy = end[0] - start[0], end[1] - start[1]
    assert (dx == 0) != (dy == 0), f"a stroke runs upright or level, not from {start} to {end}"
    return (dx > 0) - (dx < 0), (dy > 0) - (dy < 0)


def _turns_left(path):
    area = sum(a[0] * b[1] - b[0] * a[1] for a, b in zip(path, path[1:] + path[:1]))
    return area > 0


def _offset(point, incoming, outgoing, side):
    """The corner beside a point of the path, to its right for side 1, with the corner's radii."""
    upright, level = (incoming, outgoing) if incoming[1] else (outgoing, incoming)
    across, along = upright[1] * STEM / 2 * side, -level[0] * BEAM / 2 * side
    turn = incoming[0] * outgoing[1] - incoming[1] * outgoing[0]
    grow = turn * side  # the right side is the outside of a left turn
    radius = point[2]
    radii = (max(0, radius + grow * STEM / 2), max(0, radius + grow * BEAM / 2)) if radius else (0, 0)
    return (point[0] + across, point[1] + along), *radii


def _end(point, direction, side):
    if direction[1]:
        return (point[0] + direction[1] * STEM / 2 * side, point[1])
    return (point[0], point[1] - direction[0] * BEAM / 2 * side)


def _side(path, side):
    first, last = _direction(path[0], path[1]), _direction(path[-2], path[-1])
    corners = [_offset(point, _direction(before, point), _direction(point, after), side)
               for before, point, after in zip(path, path[1:], path[2:])]
    return _rounded([(_end(path[0], first, side), 0, 0), *corners, (_end(path[-1], last, side), 0, 0)])


def _ring(path, side):
    count = len(path)
    corners = []
    for index, point in enumerate(path):
        before, after = path[index - 1], path[(index + 1) % count]
        corners.append(_offset(point, _direction(before, point), _direction(point, after), side))
    return outline(_rounded(corners, closed=True))


def _rounded(corners, closed=False):
    """Points and curves along corners of the form ((x, y), horizontal radius, vertical radius)."""
    result = []
    for index, (point, rx, ry) in enumerate(corners):
        if not rx or not ry:
            result.append(point)
            continue
        before, after = corners[index - 1][0], corners[(index + 1) % len(corners)][0]
        start, end = _toward(point, before, rx, ry), _toward(point, after, rx, ry)
        result += [start, ("curve", _between(start, point), _between(end, point), end)]
    return result


def _toward(point, other, rx, ry):
    dx, dy = other[0] - point[0], other[1] - point[1]
    if abs(dx) > abs(dy):
        return (point[0] + (rx if dx > 0 else -rx), point[1])
    return (point[0], point[1] + (ry if dy > 0 else -ry))


def _between(start, end):
    return tuple(a + (b - a) * _SQUIRCLE for a, b in zip(start, end))
