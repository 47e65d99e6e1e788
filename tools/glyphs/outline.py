"""Outline glyphs from TrueType fonts, flattened to closed polygons.

FreeType reads the font (through the small helper ft_outline.c, compiled on first use) and hands out the
contours as lines and Bezier arcs in font units; here they are scaled to a cap height of 200, cut into
straight pieces within a tolerance, thinned and rounded to integers. Every contour is closed by repeating
its first point.
"""
import math
import os
import subprocess
import tempfile

from pool import simplify, drop_repeats

HERE = os.path.dirname(os.path.abspath(__file__))
_helper = None


def _helper_path():
    global _helper
    if _helper is None:
        out = os.path.join(tempfile.mkdtemp(prefix="zbglyphs"), "ft_outline")
        try:
            flags = subprocess.run(["pkg-config", "--cflags", "--libs", "freetype2"], check=True,
                                   capture_output=True, text=True).stdout.split()
        except (OSError, subprocess.CalledProcessError):
            flags = ["-I/usr/include/freetype2", "-lfreetype"]
        subprocess.run(["cc", "-O1", "-o", out, os.path.join(HERE, "ft_outline.c")] + flags, check=True)
        _helper = out
    return _helper


def decompose(font, codes):
    """{code: [contour commands]} in font units; also the units per em."""
    text = subprocess.run([_helper_path(), font] + [str(c) for c in codes], check=True,
                          capture_output=True, text=True).stdout
    glyphs, cur, contours, upem = {}, None, None, 0
    for line in text.splitlines():
        f = line.split()
        if f[0] == "U":
            upem = int(f[1])
        elif f[0] == "G":
            cur, contours = int(f[1]), []
        elif f[0] == "E":
            glyphs[cur] = contours
        elif f[0] == "M":
            contours.append([("M", int(f[1]), int(f[2]))])
        else:
            contours[-1].append((f[0],) + tuple(int(v) for v in f[1:]))
    return glyphs, upem


def _quad(p0, c, p1, tol):
    dd = math.hypot(p0[0] - 2 * c[0] + p1[0], p0[1] - 2 * c[1] + p1[1])
    n = max(1, math.ceil(math.sqrt(dd / (4.0 * tol))))
    out = []
    for k in range(1, n + 1):
        t = k / n
        a, b, d = (1 - t) * (1 - t), 2 * t * (1 - t), t * t
        out.append((a * p0[0] + b * c[0] + d * p1[0], a * p0[1] + b * c[1] + d * p1[1]))
    return out


def _cubic(p0, c1, c2, p1, tol):
    dd = max(math.hypot(p0[0] - 2 * c1[0] + c2[0], p0[1] - 2 * c1[1] + c2[1]),
             math.hypot(c1[0] - 2 * c2[0] + p1[0], c1[1] - 2 * c2[1] + p1[1]))
    n = max(1, math.ceil(math.sqrt(3.0 * dd / (4.0 * tol))))
    out = []
    for k in range(1, n + 1):
        t = k / n
        s = 1 - t
        w = (s * s * s, 3 * s * s * t, 3 * s * t * t, t * t * t)
        out.append((w[0] * p0[0] + w[1] * c1[0] + w[2] * c2[0] + w[3] * p1[0],
                    w[0] * p0[1] + w[1] * c1[1] + w[2] * c2[1] + w[3] * p1[1]))
    return out


def flatten(contours, scale, tol, thin):
    """Closed integer polygons of one glyph, scaled by `scale`; tol and thin are in output units."""
    polys = []
    for cmds in contours:
        pts = []
        cur = None
        for c in cmds:
            if c[0] == "M":
                cur = (c[1] * scale, c[2] * scale)
                pts.append(cur)
            elif c[0] == "L":
                cur = (c[1] * scale, c[2] * scale)
                pts.append(cur)
            elif c[0] == "Q":
                seg = _quad(cur, (c[1] * scale, c[2] * scale), (c[3] * scale, c[4] * scale), tol)
                pts += seg
                cur = seg[-1]
            else:
                seg = _cubic(cur, (c[1] * scale, c[2] * scale), (c[3] * scale, c[4] * scale),
                             (c[5] * scale, c[6] * scale), tol)
                pts += seg
                cur = seg[-1]
        ipts = drop_repeats([(int(math.floor(x + 0.5)), int(math.floor(y + 0.5))) for x, y in pts])
        if len(ipts) > 1 and ipts[0] != ipts[-1]:
            ipts.append(ipts[0])
        ipts = simplify(ipts, thin)
        if len(ipts) >= 4:
            polys.append(ipts)
    return polys


def cap_scale(font, cap_height=200):
    """Scale that brings the top of "H" to cap_height."""
    glyphs, _ = decompose(font, [ord("H")])
    ys = [cmd[k] for cmds in glyphs[ord("H")] for cmd in cmds for k in range(2, len(cmd), 2)]
    return cap_height / float(max(ys))
