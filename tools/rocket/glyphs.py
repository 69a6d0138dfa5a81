"""The drawings of the Rocket face.

A geometric face of level and upright strokes with squared round corners and flat ends. Each drawing
stands on x = 0; its side bearings are given with it.
"""

from shapes import BEAM, STEM, bowl, box, cut, disc, moved, outline, slant, stroke, union

CAP, XHEIGHT, ASCENT, DESCENT, FIGURE = 700, 520, 740, -200, 620
OVER = 8  # round shapes pass the lines by this much to look as high as flat ones
L = STEM / 2  # middle of a stem that stands on x = 0
B, RB = BEAM / 2, BEAM / 2 - OVER  # middle of the bottom beam, flat and round
T, RT = CAP - B, CAP - RB  # of the top beam of capitals
XT, XRT = XHEIGHT - B, XHEIGHT - RB  # of the top beam of small letters
M = CAP / 2 + 6  # middle beam of capitals, a little above the middle
FLAT, ROUND, OPEN, SLANT = 76, 44, 28, 12  # side bearings by the kind of edge


def stem(x, bottom, top):
    return box(x - L, bottom, x + L, top)


def beam(left, right, y):
    return box(left, y - B, right, y + B)


def mirrored(shape, width):
    return moved(shape, dx=width, xscale=-1)


def turned(shape, width, height):
    return moved(shape, dx=width, dy=height, xscale=-1, yscale=-1)


def small_bowl(radius=196):
    return bowl(0, -OVER, 536, XHEIGHT + OVER, radius)


def arch(left, right, top=XRT, radius=170):
    """The shoulder of n from the stem at left down to the base line at right."""
    return union(stroke((left, 200), (left, top, radius), (right, top, radius), (right, 0)))


def capitals():
    leg = slant(0, 272, 0, CAP, 130)
    legs = union(leg, mirrored(leg, 674))
    yield "A", union(legs, beam(120, 554, 214)), SLANT, SLANT
    yield "B", union(stroke((L, B), (510, B, 140), (510, M, 140), (L, M)),
                   stroke((L, M), (484, M, 130), (484, T, 130), (L, T)), stem(L, 0, CAP)), FLAT, ROUND
    yield "C", stroke((570, RT), (L, RT, 240), (L, RB, 240), (570, RB)), ROUND, OPEN
    yield "D", stroke((L, B), (570, B, 240), (570, T, 240), (L, T), closed=True), FLAT, ROUND
    yield "E", union(stroke((530, T), (L, T), (L, B), (530, B)), beam(L, 490, M)), FLAT, OPEN
    yield "F", union(stroke((520, T), (L, T), (L, 0)), beam(L, 480, M - 20)), FLAT, OPEN
    yield "G", stroke((590, RT), (L, RT, 240), (L, RB, 240), (574, RB, 90), (574, M - 10),
                   (330, M - 10)), ROUND, FLAT - 10
    yield "H", union(stem(L, 0, CAP), stem(574, 0, CAP), beam(L, 574, M)), FLAT, FLAT
    yield "I", stem(L, 0, CAP), FLAT, FLAT
    yield "J", stroke((0, RB), (404, RB, 180), (404, CAP)), OPEN, FLAT
    yield "K", union(stem(L, 0, CAP), slant(60, 432, 250, CAP, 152),
                   mirrored(slant(0, 262, 0, 440, 152), 620)), FLAT, SLANT
    yield "L", stroke((L, CAP), (L, B), (490, B)), FLAT, OPEN
    vertex = slant(344, 0, 200, CAP, 136)
    yield "M", union(stem(L, 0, CAP), stem(768, 0, CAP), vertex, mirrored(vertex, 824)), FLAT, FLAT
    yield "N", union(stem(L, 0, CAP), stem(574, 0, CAP), slant(486, 20, 0, CAP, 124)), FLAT, FLAT
    yield "O", bowl(0, -OVER, 700, CAP + OVER, 256), ROUND, ROUND
    yield "P", union(stroke((L, 270), (500, 270, 160), (500, T, 160), (L, T)),
                   stem(L, 0, CAP)), FLAT, ROUND - 14
    yield "Q", union(bowl(0, -OVER, 700, CAP + OVER, 256),
                   mirrored(slant(0, 180, -20, 230, 140), 700)), ROUND, ROUND - 24
    yield "R", union(stroke((L, 290), (504, 290, 150), (504, T, 150), (L, T)), stem(L, 0, CAP),
                   mirrored(slant(0, 190, 0, 300, 140), 580)), FLAT, SLANT
    yield "S", stroke((524, RT), (L, RT, 150), (L, M, 150), (504, M, 150), (504, RB, 150),
                   (24, RB)), ROUND, ROUND
    yield "T", union(beam(0, 580, T), stem(290, 0, CAP)), OPEN - 8, OPEN - 8
    yield "U", stroke((L, CAP), (L, RB, 220), (574, RB, 220), (574, CAP)), FLAT - 6, FLAT - 6
    yield "V", moved(legs, dy=CAP, yscale=-1), SLANT, SLANT
    wing = union(slant(202, 0, 0, CAP, 118), slant(202, 404, 0, CAP, 112))
    yield "W", union(wing, mirrored(wing, 920)), SLANT, SLANT
    yield "X", union(slant(0, 466, 0, CAP, 150), slant(466, 0, 0, CAP, 150)), SLANT, SLANT
    prong = slant(245, 490, 264, CAP, 140)
    yield "Y", union(prong, mirrored(prong, 630), stem(315, 0, 330)), SLANT, SLANT
    yield "Z", union(beam(10, 560, T), beam(0, 570, B), slant(0, 410, 0, CAP, 150)), OPEN, OPEN


def small_letters():
    bar = box(-56, XHEIGHT - BEAM, 300, XHEIGHT)
    right = 480  # the far stem of a bowl
    yield "a", union(small_bowl(), stem(right, 0, XHEIGHT)), ROUND, FLAT
    yield "b", union(small_bowl(), stem(L, 0, ASCENT)), FLAT, ROUND
    yield "c", stroke((446, XRT), (L, XRT, 190), (L, RB, 190), (446, RB)), ROUND, OPEN
    yield "d", union(small_bowl(), stem(right, 0, ASCENT)), ROUND, FLAT
    yield "e", stroke((L, 250), (474, 250), (474, XRT, 180), (L, XRT, 190), (L, RB, 190),
                   (490, RB)), ROUND, ROUND - 8
    hook = stroke((L, 0), (L, ASCENT - 44, 130), (330, ASCENT - 44))
    yield "f", union(hook, bar), 24, 8
    yield "g", union(small_bowl(),
                   stroke((right, XHEIGHT), (right, DESCENT + B, 150), (40, DESCENT + B))), ROUND, FLAT
    yield "h", union(stem(L, 0, ASCENT), arch(L, 466)), FLAT, FLAT - 8
    yield "i", union(stem(L, 0, XHEIGHT), disc(L, 668, 136)), FLAT, FLAT
    yield "j", union(stroke((-110, DESCENT + B), (L, DESCENT + B, 120), (L, XHEIGHT)),
                   disc(L, 668, 136)), FLAT - 110, FLAT
    yield "k", union(stem(L, 0, ASCENT), slant(20, 330, 180, XHEIGHT, 150),
                   mirrored(slant(0, 206, 0, 330, 146), 510)), FLAT, SLANT
    yield "l", stroke((L, ASCENT), (L, B, 110), (210, B)), FLAT, 20
    yield "m", union(stem(L, 0, XHEIGHT), arch(L, 412), arch(412, 768)), FLAT, FLAT - 8
    yield "n", union(stem(L, 0, XHEIGHT), arch(L, 466)), FLAT, FLAT - 8
    yield "o", small_bowl(), ROUND, ROUND
    yield "p", union(small_bowl(), stem(L, DESCENT, XHEIGHT)), FLAT, ROUND
    yield "q", union(small_bowl(), stem(right, DESCENT, XHEIGHT)), ROUND, FLAT
    yield "r", union(stem(L, 0, XHEIGHT), stroke((L, 200), (L, XRT, 160), (350, XRT))), FLAT, 14
    yield "s", stroke((420, XRT), (L, XRT, 108), (L, 262, 108), (400, 262, 108), (400, RB, 108),
                   (20, RB)), ROUND, ROUND
    yield "t", union(stroke((L, 670), (L, B, 130), (330, B)), bar), 24, 24
    yield "u", turned(union(stem(L, 0, XHEIGHT), arch(L, 466)), 522, XHEIGHT), FLAT - 8, FLAT
    side = slant(196, 0, 0, XHEIGHT, 128)
    yield "v", union(side, mirrored(side, 520)), SLANT, SLANT
    wing = union(slant(160, 0, 0, XHEIGHT, 116), slant(160, 318, 0, XHEIGHT, 108))
    yield "w", union(wing, mirrored(wing, 744)), SLANT, SLANT
    yield "x", union(slant(0, 362, 0, XHEIGHT, 146), slant(362, 0, 0, XHEIGHT, 146)), SLANT, SLANT
    yield "y", union(side, slant(196 - 75, 392, DESCENT, XHEIGHT, 128)), SLANT, SLANT
    yield "z", union(beam(8, 440, XT), beam(0, 448, B), slant(0, 302, 0, XHEIGHT, 146)), OPEN, OPEN


def digits():
    """Of one width, so that figures stand in columns; centred by the caller."""
    right = 444
    yield "zero", bowl(0, -OVER, 520, CAP + OVER, 200)
    yield "one", union(stem(250, 0, CAP), slant(40, 194, 500, CAP, 112))
    yield "two", stroke((20, RT), (right, RT, 150), (right, M, 150), (L, M, 150), (L, B), (510, B))
    yield "three", union(stroke((10, RT), (right, RT, 140), (right, M, 140), (110, M)),
                   stroke((110, M), (right + 10, M, 140), (right + 10, RB, 140), (0, RB)))
    yield "four", union(stem(390, 0, CAP), beam(20, 530, 190), slant(0, 300, 140, CAP, 140))
    yield "five", stroke((480, T), (L, T), (L, 410), (right + 6, 410, 150), (right + 6, RB, 160), (10, RB))
    six = stroke((460, RT), (L, RT, 200), (L, RB, 160), (454, RB, 160), (454, 400, 150), (L, 400))
    yield "six", six
    yield "seven", union(beam(0, 510, T), slant(100, 366, 0, CAP, 144))
    yield "eight", union(bowl(14, M - B, 496, CAP + OVER, 130), bowl(0, -OVER, 510, M + B, 140))
    yield "nine", turned(six, 510, CAP)


def marks():
    point = disc(68, 62, 136, 132)
    comma = union(point, slant(0, 46, -130, 62, 90))
    yield "period", point, 60, 60
    yield "comma", comma, 56, 60
    yield "colon", union(point, moved(point, dy=380)), 60, 60
    yield "semicolon", union(comma, moved(point, dy=380)), 56, 60
    yield "exclam", union(point, box(12, 210, 124, CAP)), 64, 64
    yield "question", union(moved(point, dx=150),
                   stroke((0, RT), (404, RT, 150), (404, 370, 120), (218, 370, 60), (218, 200))), 36, 40
    yield "periodcentered", moved(point, dy=270), 60, 60
    yield "ellipsis", union(point, moved(point, dx=236), moved(point, dx=472)), 60, 60
    tick = outline([(0, CAP), (118, CAP), (96, 450), (22, 450)])
    yield "quotesingle", tick, 60, 60
    yield "quotedbl", union(tick, moved(tick, dx=190)), 60, 60
    curl = union(disc(68, 640, 136, 132), slant(0, 46, 440, 638, 90))
    yield "quoteright", curl, 50, 50
    yield "quotedblright", union(curl, moved(curl, dx=200)), 50, 50
    yield "quoteleft", turned(curl, 136, 1166), 50, 50
    yield "quotedblleft", turned(union(curl, moved(curl, dx=200)), 336, 1166), 50, 50
    yield "hyphen", beam(0, 280, 270), 50, 50
    yield "endash", beam(0, 420, 270), 50, 50
    yield "emdash", beam(0, 760, 270), 50, 50
    yield "underscore", beam(0, 560, -100), 0, 0


def symbols():
    line = stem(L, -160, ASCENT + 60)
    yield "bar", line, 80, 80
    slope = slant(0, 330, -120, ASCENT + 20, 120)
    yield "slash", slope, 20, 20
    yield "backslash", mirrored(slope, 450), 20, 20
    bracket = stroke((240, ASCENT), (L, ASCENT), (L, -110), (240, -110))
    yield "bracketleft", bracket, FLAT, 30
    yield "bracketright", mirrored(bracket, 240), 30, FLAT
    paren = stroke((250, ASCENT), (L, ASCENT, 170), (L, -110, 170), (250, -110))
    yield "parenleft", paren, 60, 30
    yield "parenright", mirrored(paren, 250), 30, 60
    brace = union(stroke((300, ASCENT), (126, ASCENT, 90), (126, -110, 90), (300, -110)), beam(0, 126, 315))
    yield "braceleft", brace, 40, 30
    yield "braceright", mirrored(brace, 300), 30, 40
    yield "plus", union(beam(0, 480, 300), box(190, 60, 290, 540)), 50, 50
    yield "minus", beam(0, 480, 300), 50, 50
    yield "equal", union(beam(0, 480, 400), beam(0, 480, 200)), 50, 50
    yield "multiply", union(slant(20, 330, 100, 500, 130), slant(330, 20, 100, 500, 130)), 50, 50
    less = outline([(470, 560), (470, 440), (150, 300), (470, 160), (470, 40), (0, 252), (0, 348)])
    yield "less", less, 50, 50
    yield "greater", mirrored(less, 470), 50, 50
    yield "asciicircum", outline([(0, 400), (150, CAP), (270, CAP), (420, 400), (300, 400), (210, 590),
                   (120, 400)]), 40, 40
    wave = stroke((B, 190), (B, 340, 90), (250, 340, 90), (250, 250, 90), (450, 250, 90), (450, 400))
    yield "asciitilde", wave, 50, 50
    yield "grave", outline([(0, 730), (130, 730), (230, 580), (130, 580)]), 60, 60
    yield "degree", moved(bowl(0, 0, 330, 330, 110), dy=390), 40, 40
    yield "numbersign", union(slant(90, 190, 0, CAP, 104), slant(330, 430, 0, CAP, 104), beam(20, 620, 460),
                   beam(0, 600, 230)), 30, 30
    ring = moved(bowl(0, 0, 380, 370, 130), xscale=0.82, yscale=0.84)
    yield "percent", union(slant(170, 540, 0, CAP, 104), moved(ring, dy=390), moved(ring, dx=510)), 30, 30
    yield "dollar", union(stroke((500, 600), (L, 600, 130), (L, M, 130), (484, M, 130), (484, 100, 130),
                   (20, 100)), box(220, -70, 320, 770)), ROUND, ROUND
    yield "ampersand", union(stroke((440, RT), (96, RT, 110), (96, M + 14, 110), (590, M + 14)),
                   stroke((200, M + 14), (L, M + 14, 150), (L, RB, 150), (490, RB, 170),
                   (490, M + 14))), 40, 40
    spoke = outline([(20, 496), (60, 427), (400, 604), (360, 673)])
    yield "asterisk", union(box(170, 400, 250, CAP), spoke, mirrored(spoke, 420)), 40, 40
    at = stroke((640, 0 - 60), (L, -60, 240), (L, 620, 240), (760, 620, 240), (760, 130, 60), (560, 130))
    yield "at", union(at, bowl(240, 80, 610, 480, 130), stem(554, 130, 480)), ROUND, ROUND
    yield "copyright", union(bowl(0, -OVER, 780, CAP + OVER, 290),
                   moved(stroke((520, 520), (0, 520, 130), (0, 180, 130), (520, 180)), dx=270,
                   xscale=0.5)), 40, 40


ACCENTS = {
    "acute": outline([(0, 580), (96, 580), (230, 730), (100, 730)]),
    "grave": outline([(0, 730), (130, 730), (230, 580), (134, 580)]),
    "circumflex": outline([(0, 580), (110, 730), (230, 730), (340, 580), (225, 580), (170, 656), (115, 580)]),
    "dieresis": union(disc(60, 654, 120), disc(260, 654, 120)),
    "ring": cut(disc(120, 670, 240), disc(120, 670, 110)),
    "tilde": moved(stroke((0, 560), (0, 690, 60), (170, 690, 60), (170, 610, 60), (340, 610, 60),
               (340, 740)), yscale=0.7, xscale=0.9, dy=200),
}

ACCENTED = {
    "acute": "aeiouyAEIOUY", "grave": "aeiouAEIOU", "circumflex": "aeiouAEIOU",
    "dieresis": "aeiouyAEIOU", "ring": "aA", "tilde": "anoANO",
}
