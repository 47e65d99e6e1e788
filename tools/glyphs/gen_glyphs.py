#!/usr/bin/env python3
"""Generates the glyph tables of the library: src/text/data/*.cpp and glyph_data.h.

Sources (Debian packages, see src/text/data/PROVENANCE):
  hershey-fonts-data   stroke alphabets (/usr/share/hershey-fonts/*.jhf)
  fonts-liberation2    outline families 11, 13, 14 (Liberation Sans, Sans Bold, Serif)
  fonts-dejavu-core    outline family 12 (DejaVu Sans Condensed)
  cellfont.py          the small cell font, drawn for this library
FreeType (libfreetype-dev) reads the outline fonts.

    gen_glyphs.py                 write the tables
    gen_glyphs.py --check         regenerate into a temporary folder and compare byte for byte
    gen_glyphs.py --out DIR       write elsewhere
Every font set must stay within 8500 points and 6000 index words; the run fails otherwise.
"""
import argparse
import filecmp
import os
import sys
import tempfile

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, HERE)

import alphabets as A           # noqa: E402
import compose as C             # noqa: E402
import outline                  # noqa: E402
from pool import Pool, bridge_strokes, simplify   # noqa: E402

ROOT = os.path.dirname(os.path.dirname(HERE))
MAX_POINTS, MAX_WORDS, MAX_OUTLINE = 8500, 6000, 200

OUTLINE_FONTS = {
    "sans": "/usr/share/fonts/truetype/liberation2/LiberationSans-Regular.ttf",
    "sans_condensed": "/usr/share/fonts/truetype/dejavu/DejaVuSansCondensed.ttf",
    "sans_bold": "/usr/share/fonts/truetype/liberation2/LiberationSans-Bold.ttf",
    "serif": "/usr/share/fonts/truetype/liberation2/LiberationSerif-Regular.ttf",
}
GERMAN_UNICODE = [0xC4, 0xD6, 0xDC, 0xE4, 0xF6, 0xFC, 0xDF]


def script_ss(font):
    s = font("s")
    return C.merge(s, C.shift(s, C.bbox(s)[2]))


def gothic_ss(font):
    """Long s and z, as sharp s is written in black letter."""
    s, z = font("s"), font("z")
    return C.merge(s, C.shift(z, C.bbox(s)[2] + 1))


def stroke_alphabets():
    """name -> (positions, glyphs, simplification tolerance, bridging gap, alphabet whose pool it shares)."""
    rs, rd, rt = A.Hershey("rowmans"), A.Hershey("rowmand", 2), A.Hershey("rowmant", 3)
    cr, ci = A.Hershey("timesr", 2), A.Hershey("timesi", 2)
    gs, gc = A.Hershey("greeks"), A.Hershey("greekc", 2)
    sc = A.Hershey("scriptc", 2, keep_bounds=True, descender=12)
    cy = A.Hershey("cyrillic", 2)
    ge, gi, gg = A.Hershey("gothiceng", 2), A.Hershey("gothicita", 2), A.Hershey("gothicger", 2)
    italic = [ci(k) for k in A.LETTERS[26:]] + [A.umlaut(ci, b) for b in "aou"]
    return {
        "cell_latin": (102, A.cell_latin(), 0, 0, None),
        "cell_greek": (95, A.cell_greek(), 0, 0, "cell_latin"),
        "simplex_latin": (102, A.full(rs, 102, caret=True), 0, 0, None),
        "simplex_greek": (95, A.greek(gs, 1), 0, 0, "simplex_latin"),
        "duplex_latin": (102, A.full(rd, 102, caret=True), 0, 0, None),
        "triplex_latin": (102, A.full(rt, 102, caret=True), 0, 0, None),
        "complex_latin": (209, A.full(cr, 209), 0, 0, None),
        "complex_greek": (95, A.greek(gc, 2), 0, 0, None),
        "math_signs": (95, A.math_signs(), 0, 0, None),
        "complex_italic": (102, italic, 0, 0, None),
        "complex_script": (102, A.letters(sc, 102, sharp=script_ss(sc)), 0, 0, None),
        "complex_cyrillic": (95, A.cyrillic(cy), 0, 0, None),
        "gothic_latin": (95, A.full(ge, 95), 0.6, 1.5, None),
        "gothic_italic": (95, A.letters(gi, 95), 0.6, 1.5, None),
        "gothic_script": (102, A.letters(gg, 102, sharp=gothic_ss(gg)), 0.6, 1.5, None),
    }


def outline_alphabet(font, tol=1.0, thin=0.8):
    scale = outline.cap_scale(font)
    codes = list(range(33, 127)) + GERMAN_UNICODE
    glyphs, _ = outline.decompose(font, codes)
    out = []
    for c in codes:
        polys = outline.flatten(glyphs[c], scale, tol, thin)
        out.append(C.tight(polys))
    return out


# Font sets: the alphabets 1..6 each loads ("alias" = alphabet 4 drawn from alphabet 1 by shearing).
FONT_SETS = {
    "zoralf": ["cell_latin", "cell_greek", "math_signs", "alias", "complex_script", "complex_cyrillic"],
    "complx": ["complex_latin", "complex_greek", "math_signs", "complex_italic", "complex_script",
               "complex_cyrillic"],
    "simplx": ["simplex_latin", "simplex_greek", "math_signs", "alias", "complex_script", "complex_cyrillic"],
    "duplx": ["duplex_latin", "complex_greek", "math_signs", "alias", "complex_script", "complex_cyrillic"],
    "triplx": ["triplex_latin", "complex_greek", "math_signs", "alias", "complex_script", "complex_cyrillic"],
    "gothic": ["gothic_latin", "complex_greek", "math_signs", "gothic_italic", "gothic_script",
               "complex_cyrillic"],
    "comgot": ["complex_latin", "complex_greek", "math_signs", "gothic_italic", "gothic_script",
               "gothic_latin"],
    "helve": ["sans", "complex_greek", "math_signs", "alias", "complex_script", "complex_cyrillic"],
    "helves": ["sans_condensed", "complex_greek", "math_signs", "alias", "complex_script", "complex_cyrillic"],
    "helvet": ["sans_bold", "complex_greek", "math_signs", "alias", "complex_script", "complex_cyrillic"],
    "serif": ["serif", "complex_greek", "math_signs", "alias", "complex_script", "complex_cyrillic"],
}


class Built:
    def __init__(self, name, npos, pool, records, shares, outline_font):
        self.name, self.npos, self.pool, self.records = name, npos, pool, records
        self.shares, self.outline = shares, outline_font

    def words(self):
        return [w for r in self.records for w in r]


def build():
    built = {}
    pools = {}
    for name, (npos, glyphs, tol, bridge, shares) in stroke_alphabets().items():
        pool = pools[shares] if shares else Pool(0.5)
        pools[name] = pool
        records = []
        for g in glyphs:
            lines = bridge_strokes(g, bridge)
            lines = [simplify(l, tol) for l in lines]
            records.append(pool.glyph(lines))
        built[name] = Built(name, npos, pool, records, shares, False)
    for name, font in OUTLINE_FONTS.items():
        pool = Pool(2.0, coord_range=(-32768, 32767))
        records = []
        for g in outline_alphabet(font):
            used = sum(len(l) for l in g) + max(0, len(g) - 1)
            if used > MAX_OUTLINE:
                raise SystemExit(f"{name}: a glyph needs {used} outline points")
            records.append(pool.glyph(g, reversible=False))
        built[name] = Built(name, 102, pool, records, None, True)
    return built


def check_limits(built):
    ok = True
    for font, names in FONT_SETS.items():
        pts = sum(len(built[n].pool.points) for n in names if n != "alias" and not built[n].shares)
        words = sum(len(built[n].words()) for n in names if n != "alias")
        flag = "" if pts <= MAX_POINTS and words <= MAX_WORDS else "  OVER"
        print(f"{font:8s} points {pts:5d}  index words {words:5d}{flag}", file=sys.stderr)
        ok = ok and not flag
    return ok


def _rows(values, per_line=16):
    return "\n".join("    " + ", ".join(str(v) for v in values[i:i + per_line]) + ","
                     for i in range(0, len(values), per_line))


HEAD = ("// Generated by tools/glyphs/gen_glyphs.py from the sources named in PROVENANCE; do not edit.\n")


def write(built, out):
    os.makedirs(out, exist_ok=True)
    decl = []
    for name, b in built.items():
        words = b.words()
        lines = [HEAD, "#include \"glyph_data.h\"\n", "namespace zb::glyphs {\nnamespace {\n"]
        if b.outline:
            xs = [p[0] for p in b.pool.points]
            ys = [p[1] for p in b.pool.points]
            lines.append(f"const int16_t x[{len(xs)}] = {{\n{_rows(xs)}\n}};\n")
            lines.append(f"const int16_t y[{len(ys)}] = {{\n{_rows(ys)}\n}};\n")
            pts, ypts, npts = "x", "y", len(xs)
        elif b.shares:
            pts, ypts, npts = "nullptr", "nullptr", 0
        else:
            packed = [((y & 0xFF) << 8 | (x & 0xFF)) for x, y in b.pool.points]
            packed = [v - 0x10000 if v >= 0x8000 else v for v in packed]
            lines.append(f"const int16_t pts[{len(packed)}] = {{\n{_rows(packed)}\n}};\n")
            pts, ypts, npts = "pts", "nullptr", len(packed)
        lines.append(f"const int16_t idx[{len(words)}] = {{\n{_rows(words)}\n}};\n")
        lines.append("}  // namespace\n")
        lines.append(f"const Alphabet {name} = {{{pts}, {ypts}, {npts}, idx, {len(words)}, "
                     f"{len(b.records)}, {b.npos}}};\n")
        lines.append("}  // namespace zb::glyphs\n")
        with open(os.path.join(out, name + ".cpp"), "w") as f:
            f.write("".join(lines))
        decl.append(f"extern const Alphabet {name};")
    header = HEAD + """// The constant glyph tables: one Alphabet per alphabet routine and per outline family.
#pragma once
#include <cstdint>

namespace zb::glyphs {

// Records of glyphs as the library reads them (length word, then per contour npts and start, with a third
// word holding a packed offset when npts is negative). Stroke alphabets store each point as one word, x in
// the low byte and y in the high byte; outline families store x and y apart. An alphabet with npts 0
// uses the points of the alphabet loaded just before it.
struct Alphabet {
  const int16_t* pts;
  const int16_t* ypts;
  int npts;
  const int16_t* idx;
  int nidx;
  int nrec;
  int npos;
};

""" + "\n".join(decl) + "\n\n}  // namespace zb::glyphs\n"
    with open(os.path.join(out, "glyph_data.h"), "w") as f:
        f.write(header)


def main():
    ap = argparse.ArgumentParser()
    ap.add_argument("--out", default=os.path.join(ROOT, "src", "text", "data"))
    ap.add_argument("--check", action="store_true")
    args = ap.parse_args()
    built = build()
    if not check_limits(built):
        raise SystemExit("a font set exceeds the table limits")
    if not args.check:
        write(built, args.out)
        return
    tmp = tempfile.mkdtemp(prefix="zbglyphs-check")
    write(built, tmp)
    names = sorted(f for f in os.listdir(tmp))
    match, mismatch, errors = filecmp.cmpfiles(args.out, tmp, names, shallow=False)
    if mismatch or errors:
        raise SystemExit(f"generated tables differ from the committed ones: {mismatch + errors}")
    print(f"{len(match)} files identical", file=sys.stderr)


if __name__ == "__main__":
    main()
