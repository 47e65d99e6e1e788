"""The glyphs of every alphabet, in record order (position 2 first), as integer polylines.

Layouts, by the position a character code reaches in each kind of alphabet:
  full alphabets   codes 33.. in order (102 positions reach the German letters 127..133, 209 reach 240);
  letter alphabets A..Z at 2..27, a..z at 28..53, and for 102 positions the German letters at 54..60;
  complex italic   a..z at 2..27, then a, o, u with umlaut;
  Cyrillic         33 capitals and 33 small letters in a layout of its own (see CYRILLIC).
"""
import os

import cellfont
import compose as C
import hershey

HERSHEY = "/usr/share/hershey-fonts"
LETTERS = [chr(c) for c in range(ord("A"), ord("Z") + 1)] + [chr(c) for c in range(ord("a"), ord("z") + 1)]
GERMAN = ["A", "O", "U", "a", "o", "u"]          # with umlaut, codes 127..132; 133 is sharp s


class Hershey:
    """A Hershey file in ASCII order, its glyphs moved to y upward and their ink to x = 0."""

    def __init__(self, name, weight=1, keep_bounds=False, descender=None):
        self.name = name
        self.descender = descender
        self.path = os.path.join(HERSHEY, name + ".jhf")
        self.raw = hershey.ascii_glyphs(self.path)
        self.weight = weight
        self.keep_bounds = keep_bounds

    def __call__(self, ch):
        glyph = self.raw[ord(ch)]
        lines = hershey.to_font_units(glyph)
        lines = [l if len(l) > 1 else l * 2 for l in lines]
        if self.descender:   # long descenders pressed into the cell, down to -7
            f = 7.0 / self.descender
            lines = [[(x, y if y >= 0 else int(round(y * f))) for x, y in l] for l in lines]
        if self.keep_bounds:      # script letters join at their bounds
            return lines
        return C.tight(lines)

    def xheight(self):
        return C.bbox(self("x"))[3]


# -- national letters ----------------------------------------------------------------------------------
def _stem_x(glyph):
    """x of the longest vertical segment: the stem that a bar or a stroke crosses."""
    best, bx = -1, 0
    for line in glyph:
        for (x0, y0), (x1, y1) in zip(line, line[1:]):
            if x0 == x1 and abs(y1 - y0) > best:
                best, bx = abs(y1 - y0), x0
    return bx


def umlaut(font, base):
    g = font(base)
    dot = font(".")
    cx = C.top_centre(g)
    y = C.bbox(g)[3] + 2
    half = 3.5 if base.isupper() else 3.0
    return C.merge(g, C.place(dot, cx - half, y), C.place(dot, cx + half, y))


def sharp_s(font):
    """A sharp s drawn for this library in the stroke weight of the font."""
    x0, y0, x1, y1 = C.bbox(font("l"))
    return C.thicken(C.SHARP_S, font.weight)


def german(font, code, sharp=None):
    if code == 133:
        return sharp if sharp is not None else sharp_s(font)
    return umlaut(font, GERMAN[code - 127])


def _accented(font, base, accent):
    g = font(base)
    if base in "ij":
        g = C.dotless(g, font.xheight())
    x0, y0, x1, y1 = C.bbox(g)
    return C.tight(C.merge(g, C.place(accent, C.top_centre(g), y1 + 2)))


def _below(font, base, accent, where):
    g = font(base)
    x0, y0, x1, y1 = C.bbox(g)
    cx = {"centre": (x0 + x1) / 2.0, "right": x1 - 2}[where]
    return C.tight(C.merge(g, C.place(accent, cx, 0, above=False)))


def _apostrophe(font, base):
    """d, l, t and L with caron take a small apostrophe right of the ascender."""
    g = font(base)
    x0, y0, x1, y1 = C.bbox(g)
    mark = font("'")
    mx0, my0, mx1, my1 = C.bbox(mark)
    top = max(y1, 21) if base in "dlL" else y1 + 3
    if base == "L":
        xs = _stem_x(g) + 4
    elif base == "l":
        xs = x1 + 2
    else:
        xs = x1 + 1
    return C.merge(g, C.shift(mark, xs - mx0, top - my1))


def _stroked(font, base):
    g = font(base)
    x0, y0, x1, y1 = C.bbox(g)
    sx = _stem_x(g)
    if base in "Oo":
        return C.merge(g, [[(x0 - 1, -1), (x1 + 1, y1 + 1)]])
    if base in "Dd":       # D and d with a bar across the stem
        y = 10 if base == "D" else 18
        return C.merge(g, C.place(C.BAR, sx, y))
    y = 9 if base == "L" else 11
    return C.merge(g, C.place(C.SLASH, sx, y - 2))


def _ligature(font, a, b, overlap):
    ga, gb = font(a), font(b)
    return C.merge(ga, C.shift(gb, C.bbox(ga)[2] - overlap))


def _thorn(font, small):
    if small:
        p, l = font("p"), font("l")
        return C.merge(p, C.shift(l, _stem_x(p) - _stem_x(l)))
    i = font("I")
    sx = _stem_x(i)
    return C.merge(i, C.shift(C.thicken(C.THORN_BOWL, font.weight), sx))


def _inverted(font, ch):
    return C.tight(C.rotate_half(font(ch), font.xheight()))


ACCENTS = {"acute": C.ACUTE, "grave": C.GRAVE, "circ": C.CIRCUMFLEX, "tilde": C.TILDE, "caron": C.CARON,
           "breve": C.BREVE, "ring": C.RING, "dacute": C.DOUBLE_ACUTE}

# Internal codes 134..240 and how each is made.
EXTRA = {
    134: ("ring", "A"), 135: ("stroke", "O"), 136: ("lig", "AE"), 137: ("ring", "a"), 138: ("stroke", "o"),
    139: ("lig", "ae"), 140: ("tilde", "N"), 141: ("tilde", "n"), 142: ("cedilla", "C"), 143: ("cedilla", "c"),
    144: ("dier", "E"), 145: ("dier", "I"), 146: ("dier", "e"), 147: ("dier", "i"),
    178: ("tilde", "A"), 179: ("tilde", "a"), 180: ("tilde", "O"), 181: ("tilde", "o"), 182: ("acute", "Y"),
    183: ("acute", "y"), 184: ("dier", "y"), 185: ("inv", "!"), 186: ("inv", "?"), 187: ("stroke", "D"),
    188: ("stroke", "d"), 189: ("thorn", "P"), 190: ("thorn", "p"),
    191: ("ogonek", "A"), 192: ("stroke", "L"), 193: ("apos", "L"), 194: ("acute", "S"), 195: ("caron", "S"),
    196: ("cedilla", "S"), 197: ("caron", "T"), 198: ("acute", "Z"), 199: ("caron", "Z"), 200: ("dot", "Z"),
    201: ("ogonek", "a"), 202: ("stroke", "l"), 203: ("apos", "l"), 204: ("acute", "s"), 205: ("caron", "s"),
    206: ("cedilla", "s"), 207: ("apos", "t"), 208: ("acute", "z"), 209: ("caron", "z"), 210: ("dot", "z"),
    211: ("acute", "R"), 212: ("breve", "A"), 213: ("acute", "L"), 214: ("acute", "C"), 215: ("caron", "C"),
    216: ("ogonek", "E"), 217: ("caron", "E"), 218: ("caron", "D"), 219: ("acute", "N"), 220: ("caron", "N"),
    221: ("dacute", "O"), 222: ("caron", "R"), 223: ("ring", "U"), 224: ("dacute", "U"), 225: ("cedilla", "T"),
    226: ("acute", "r"), 227: ("breve", "a"), 228: ("acute", "l"), 229: ("acute", "c"), 230: ("caron", "c"),
    231: ("ogonek", "e"), 232: ("caron", "e"), 233: ("apos", "d"), 234: ("acute", "n"), 235: ("caron", "n"),
    236: ("dacute", "o"), 237: ("caron", "r"), 238: ("ring", "u"), 239: ("dacute", "u"), 240: ("cedilla", "t"),
}
for _i, _v in enumerate("AEIOUaeiou"):
    EXTRA[148 + _i] = ("acute", _v)
    EXTRA[158 + _i] = ("grave", _v)
    EXTRA[168 + _i] = ("circ", _v)


def extra(font, code):
    if code <= 133:
        return german(font, code)
    how, base = EXTRA[code]
    if how in ACCENTS:
        return _accented(font, base, ACCENTS[how])
    if how == "dier":
        g = font(base)
        if base in "ij":
            g = C.dotless(g, font.xheight())
        dot = font(".")
        cx = C.top_centre(g)
        y = C.bbox(g)[3] + 2
        half = 3.5 if base.isupper() else 3.0
        return C.tight(C.merge(g, C.place(dot, cx - half, y), C.place(dot, cx + half, y)))
    if how == "dot":
        g = font(base)
        return C.merge(g, C.place(font("."), C.top_centre(g), C.bbox(g)[3] + 2))
    if how == "cedilla":
        return _below(font, base, C.CEDILLA, "centre")
    if how == "ogonek":
        return _below(font, base, C.OGONEK, "right")
    if how == "stroke":
        return C.tight(_stroked(font, base))
    if how == "lig":
        return _ligature(font, base[0], base[1], 6 if base[0] == "A" else 3)
    if how == "apos":
        return _apostrophe(font, base)
    if how == "thorn":
        return C.tight(_thorn(font, base == "p"))
    if how == "inv":
        return _inverted(font, base)
    raise KeyError(code)


# -- alphabets -----------------------------------------------------------------------------------------
CARET = [[(-4, 0), (0, 5), (4, 0)]]


def full(font, npos, caret=False):
    """Records of a full alphabet: codes 33 .. 31 + npos."""
    out = []
    for code in range(33, 32 + npos):
        if code < 127:
            g = font(chr(code))
            if caret and chr(code) == "^":
                g = C.tight(C.place(C.thicken(CARET, font.weight), 0, 14))
            out.append(g)
        else:
            out.append(extra(font, code))
    return out


def letters(font, npos, mapping=None, sharp=None):
    """Records of a letter alphabet; mapping gives the source of each letter key (a char or a glyph)."""
    out = []
    for key in LETTERS:
        src = mapping.get(key, key) if mapping else key
        out.append(font(src) if isinstance(src, str) else src)
    if npos == 102:
        out += [umlaut(font, b) for b in GERMAN]
        out.append(sharp if sharp is not None else sharp_s(font))
    return out


def cell_latin():
    return [cellfont.latin(code) for code in range(33, 134)]


def cell_greek():
    return [cellfont.greek(k) + [list(cellfont.ADVANCE)] for k in LETTERS]


# Greek keys in the Hershey files: the letters run in alphabetical order from "A".
_GREEK_ORDER = "ABGDEZHQIKLMNXOPRSTUFCYW"     # Alpha Beta Gamma Delta ... Omega, as Latin keys below


def greek(font, weight):
    """Greek letters on the Latin keys (A Alpha, B Beta, C Chi, D Delta, E Epsilon, F Phi, G Gamma, ...)."""
    src = {}
    for i, key in enumerate(_GREEK_ORDER):
        src[key] = chr(ord("A") + i)
        src[key.lower()] = chr(ord("a") + i)
    g = {}
    for key in LETTERS:
        if key in src:
            g[key] = font(src[key])
    # Keys without a letter of their own in the source.
    theta = font(src["q"])                       # the source's small theta has the open form
    g["J"] = theta
    g["q"] = theta
    g["V"] = C.thicken(C.FINAL_SIGMA, weight)
    o = font(src["o"])
    x0, y0, x1, y1 = C.bbox(o)
    cx = int(round((x0 + x1) / 2.0))
    g["j"] = C.merge(o, [[(cx, -7), (cx, 19)]])
    w = font(src["w"])
    wx0, wy0, wx1, wy1 = C.bbox(w)
    g["v"] = C.merge(w, [[(wx0, wy1), (wx1, wy1)]])
    return [g[k] for k in LETTERS]


# Cyrillic: key -> (source key in the Hershey file, or a composition). Capitals on A..Z [ \ ] ^ # $ %,
# small letters on a..z { | } ~ < = >:
#   A A, B Be, C Tse, D De, E Ie, F Ef, G Ge, H Kha, I I, J short I, K Ka, L El, M Em, N En, O O, P Pe,
#   Q Che, R Er, S Es, T Te, U U, V Ve, W Sha, X Shcha, Y Yeru, Z Ze, [ Zhe, \ E, ] Yu, ^ Ya,
#   # Io, $ hard sign, % soft sign.
CYRILLIC_CAPS = {"A": "A", "B": "B", "C": "`", "D": "D", "E": "[", "F": "F", "G": "G", "H": "X", "I": "I",
                 "J": ("breve", "I"), "K": "K", "L": "L", "M": "M", "N": "N", "O": "O", "P": "P", "Q": "J",
                 "R": "R", "S": "S", "T": "T", "U": "Y", "V": "V", "W": "Q", "X": "W", "Y": "$", "Z": "Z",
                 "[": "H", "\\": "C", "]": "U", "^": "^", "#": ("dier", "["), "$": "]", "%": "_"}
CYRILLIC_SMALL = {"a": "a", "b": "b", "c": "%", "d": "d", "e": "{", "f": "f", "g": "g", "h": "x", "i": "i",
                  "j": "e", "k": "k", "l": "l", "m": "m", "n": "n", "o": "o", "p": "p", "q": "j", "r": "r",
                  "s": "s", "t": "t", "u": "y", "v": "v", "w": "q", "x": "w", "y": "&", "z": "z", "{": "h",
                  "|": ("small", "C"), "}": "u", "~": "}", "<": ("dier", "{"), "=": "|", ">": "~"}


def cyrillic(font):
    def make(src):
        if isinstance(src, str):
            return font(src)
        how, base = src
        g = font(base)
        if how == "small":         # the source draws small e reversed at capital size
            x0, y0, x1, y1 = C.bbox(g)
            return C.tight(C.scale(g, 0.75, 14.0 / y1))
        if how == "breve":
            return C.tight(C.merge(g, C.place(C.BREVE, C.top_centre(g), C.bbox(g)[3] + 2)))
        return umlaut_from(font, g, base.isupper() or base == "[")

    order = "#$%" + "<=>" + "".join(chr(c) for c in range(ord("A"), ord("^") + 1)) + \
            "".join(chr(c) for c in range(ord("a"), ord("~") + 1))
    table = dict(CYRILLIC_CAPS)
    table.update(CYRILLIC_SMALL)
    return [make(table[k]) for k in order]


def umlaut_from(font, g, capital):
    dot = font(".")
    cx = C.top_centre(g)
    y = C.bbox(g)[3] + 2
    half = 3.5 if capital else 3.0
    return C.tight(C.merge(g, C.place(dot, cx - half, y), C.place(dot, cx + half, y)))


# Mathematical signs on the letter keys.
def math_signs():
    low = Hershey("mathlow")
    sym = Hershey("symbolic")
    rom = Hershey("rowmans")
    circle = sym("H")

    def over(a, b):
        """b centred on a."""
        ax0, ay0, ax1, ay1 = C.bbox(a)
        bx0, by0, bx1, by1 = C.bbox(b)
        return C.merge(a, C.shift(b, int(round((ax0 + ax1 - bx0 - bx1) / 2.0)),
                                  int(round((ay0 + ay1 - by0 - by1) / 2.0))))

    def underline(a):
        x0, y0, x1, y1 = C.bbox(a)
        return C.merge(C.shift(a, 0, 3), [[(x0, y0 - 1), (x1, y0 - 1)]])

    tilde = low(chr(127))
    signs = {
        "A": C.flip_vertical(rom("A")),            # for all
        "B": low("z"),                             # perpendicular
        "C": low("d"),                             # subset
        "D": low("m"),                             # partial
        "E": low("h"),                             # element of
        "F": low("~"),                             # therefore
        "G": low("'"),                             # greater or equal
        "H": low("v"),                             # there exists
        "I": low("p"),                             # integral
        "J": low("y"),                             # parallel
        "K": low("f"),                             # superset
        "L": low("&"),                             # less or equal
        "M": low('"'),                             # minus-plus
        "N": low("?"),                             # not equal
        "O": circle,                               # circle
        "P": low(":"),                             # product
        "Q": low("@"),                             # identical
        "R": low("i"),                             # arrow right
        "S": low(";"),                             # sum
        "T": low("|"),                             # angle
        "U": low("e"),                             # union
        "V": low("n"),                             # nabla
        "W": low("j"),                             # arrow up
        "X": low("#"),                             # times
        "Y": low("^"),                             # proportional
        "Z": low("w"),                             # aleph
        "a": C.merge(C.shift(tilde, 0, 2), C.shift(tilde, 0, -2)),     # approximately
        "b": low("k"),                             # arrow left
        "c": low("g"),                             # intersection
        "d": low("l"),                             # arrow down
        "e": over(circle, [[(0, 0), (12, 16)]]),   # empty set
        "f": low("x"),                             # division
        "g": low("$"),                             # dot
        "h": low("!"),                             # plus-minus
        "i": low("_"),                             # infinity
        "j": low("b"),                             # root
        "k": underline(low("d")),                  # subset or equal
        "l": underline(low("f")),                  # superset or equal
        "m": rom("-"),                             # minus
        "n": [[(0, 12), (12, 12), (12, 7)]],       # not
        "o": low("`"),                             # degree
        "p": over(circle, rom("+")),               # circled plus
        "q": tilde,                                # tilde
        "r": [[(0, 9), (20, 9)], [(4, 13), (0, 9), (4, 5)], [(16, 13), (20, 9), (16, 5)]],   # both ways
        "s": sym("i"),                             # section
        "t": sym("J"),                             # triangle
        "u": over(circle, [[(-4, -4), (4, 4)], [(-4, 4), (4, -4)]]),     # circled times
        "v": rom("v"),                             # or
        "w": C.flip_vertical(rom("v")),            # and
        "x": sym("I"),                             # square
        "y": sym("K"),                             # diamond
        "z": sym("L"),                             # star
    }
    return [C.tight(signs[k]) for k in LETTERS]
