"""Reader for Hershey font files in the .jhf layout.

Each glyph is a record: a five-character number, a three-character vertex count, then vertex pairs of
characters whose codes minus ord('R') are the coordinates. The first pair holds the left and right bounds,
" R" lifts the pen. Hershey y runs downward with the baseline at 9 and capitals reaching up to -12.
"""


def parse(path):
    """Returns the glyphs of a file in order as (left, right, strokes); strokes are lists of (x, y)."""
    with open(path, encoding="latin-1") as f:
        text = "".join(line.rstrip("\r\n") for line in f if line.strip())
    glyphs = []
    pos = 0
    while pos < len(text):
        count = int(text[pos + 5:pos + 8])
        body = text[pos + 8:pos + 8 + 2 * count]
        pos += 8 + 2 * count
        left, right = ord(body[0]) - 82, ord(body[1]) - 82
        strokes, cur = [], []
        for k in range(1, count):
            a, b = body[2 * k], body[2 * k + 1]
            if a == " " and b == "R":
                if cur:
                    strokes.append(cur)
                cur = []
            else:
                cur.append((ord(a) - 82, ord(b) - 82))
        if cur:
            strokes.append(cur)
        glyphs.append((left, right, strokes))
    return glyphs


def ascii_glyphs(path):
    """Maps the character codes 32..127 to glyphs, for files that hold 96 glyphs in ASCII order."""
    glyphs = parse(path)
    return {32 + i: g for i, g in enumerate(glyphs[:96])}


def to_font_units(glyph, yshift=9):
    """Strokes of a glyph with y upward, baseline 0 and the left bound at x = 0."""
    left, right, strokes = glyph
    return [[(x - left, yshift - y) for x, y in s] for s in strokes]
