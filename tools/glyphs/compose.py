"""Geometry on glyphs (lists of integer polylines, y upward, baseline 0) and composed letters.

Accented letters are the base letter's strokes plus an accent placed above (or below) the letter; the pool
later stores the accent once and draws it at an offset for every letter that carries it.
"""

# Accent shapes, drawn around their own origin; `place` centres them on the letter.
ACUTE = [[(-1, 0), (2, 4), (3, 3), (-1, 0)]]
GRAVE = [[(3, 0), (0, 4), (-1, 3), (3, 0)]]
CIRCUMFLEX = [[(-3, 0), (0, 3), (3, 0)]]
CARON = [[(-3, 3), (0, 0), (3, 3)]]
TILDE = [[(-4, 0), (-3, 2), (-1, 2), (1, 0), (3, 0), (4, 2)]]
BREVE = [[(-3, 3), (-2, 1), (0, 0), (2, 1), (3, 3)]]
RING = [[(-1, 0), (1, 0), (2, 1), (2, 3), (1, 4), (-1, 4), (-2, 3), (-2, 1), (-1, 0)]]
DOUBLE_ACUTE = [[(-3, 0), (-1, 4)], [(1, 0), (3, 4)]]
CEDILLA = [[(0, 0), (0, -2), (2, -3), (2, -5), (0, -6), (-2, -6)]]
OGONEK = [[(1, 0), (-1, -2), (-1, -4), (1, -6), (3, -6)]]
BAR = [[(-3, 0), (3, 0)]]
SLASH = [[(-3, -2), (3, 2)]]

SHARP_S = [[(0, 0), (0, 16), (1, 19), (3, 21), (6, 21), (8, 19), (8, 16), (6, 13), (4, 13)],
           [(4, 13), (8, 12), (10, 10), (10, 4), (8, 1), (6, 0), (3, 0)]]
THORN_BOWL = [[(0, 15), (8, 15), (11, 14), (12, 12), (12, 9), (11, 7), (8, 6), (0, 6)]]
FINAL_SIGMA = [[(9, 12), (7, 14), (4, 14), (1, 12), (0, 9), (0, 6), (1, 3), (3, 1), (6, 0), (7, -1),
                (7, -3), (5, -5), (4, -6)]]


def points(glyph):
    return [p for line in glyph for p in line]


def bbox(glyph):
    pts = points(glyph)
    if not pts:
        return 0, 0, 0, 0
    xs = [p[0] for p in pts]
    ys = [p[1] for p in pts]
    return min(xs), min(ys), max(xs), max(ys)


def shift(glyph, dx, dy=0):
    return [[(x + dx, y + dy) for x, y in line] for line in glyph]


def tight(glyph):
    """Moves the ink to start at x = 0."""
    if not points(glyph):
        return []
    return shift(glyph, -bbox(glyph)[0])


def transform(glyph, fn):
    return [[fn(x, y) for x, y in line] for line in glyph]


def flip_vertical(glyph):
    x0, y0, x1, y1 = bbox(glyph)
    return transform(glyph, lambda x, y: (x, y0 + y1 - y))


def rotate_half(glyph, top):
    """Turns a glyph upside down so that its former baseline lies at y = top."""
    x0, y0, x1, y1 = bbox(glyph)
    return transform(glyph, lambda x, y: (x0 + x1 - x, top - y))


def scale(glyph, sx, sy, ox=0, oy=0):
    return [[(int(round(ox + (x - ox) * sx)), int(round(oy + (y - oy) * sy))) for x, y in line]
            for line in glyph]


def top_centre(glyph, band=4):
    """x at the middle of the topmost ink: the centre line of accents, also for slanted letters."""
    x0, y0, x1, y1 = bbox(glyph)
    xs = [x for x, y in points(glyph) if y >= y1 - band]
    return (min(xs) + max(xs)) / 2.0


def dotless(glyph, xheight):
    """Drops the strokes that lie wholly above the x-height (the dot of i and j)."""
    return [line for line in glyph if min(y for _, y in line) <= xheight]


def place(accent, cx, y, above=True):
    """The accent centred at x = cx with its bottom (above) or its top (below) at height y."""
    x0, y0, x1, y1 = bbox(accent)
    dx = int(round(cx - (x0 + x1) / 2.0))
    dy = y - y0 if above else y - y1
    return shift(accent, dx, dy)


def merge(*glyphs):
    out = []
    for g in glyphs:
        out += [list(l) for l in g]
    return out


def thicken(glyph, weight):
    """Draws each stroke weight times, one unit apart across, as the multi-stroke fonts do."""
    out = []
    for k in range(weight):
        out += shift(glyph, k, 0)
    return out
