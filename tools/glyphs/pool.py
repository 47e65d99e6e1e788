"""Point pool and glyph records of one alphabet (or of alphabets that share a pool).

A glyph is a list of polylines in integer font units. Each polyline becomes a contour that refers to a
contiguous run of the pool, drawn at an offset: a polyline that repeats a run already stored, as a whole, in
reverse or as part of a longer run, costs index words only. Records are laid out as the library reads them:

    [length, (npts, start) | (-npts, start, packed offset), ...]

with start counted from 1 at the pool base and the offset packed as dx in the low byte and dy in the high
byte, in units of `unit` font units (0.5 for stroke fonts, 2.0 for outlines).
"""


def simplify(line, tol):
    """Douglas-Peucker on integer points; keeps both ends and every point farther than tol from its chord."""
    if tol <= 0 or len(line) < 3:
        return list(line)
    keep = [False] * len(line)
    keep[0] = keep[-1] = True
    stack = [(0, len(line) - 1)]
    while stack:
        a, b = stack.pop()
        (ax, ay), (bx, by) = line[a], line[b]
        dx, dy = bx - ax, by - ay
        norm = (dx * dx + dy * dy) ** 0.5
        best, best_d = -1, tol
        for k in range(a + 1, b):
            px, py = line[k]
            if norm == 0:
                d = ((px - ax) ** 2 + (py - ay) ** 2) ** 0.5
            else:
                d = abs(dx * (py - ay) - dy * (px - ax)) / norm
            if d > best_d:
                best, best_d = k, d
        if best >= 0:
            keep[best] = True
            stack.append((a, best))
            stack.append((best, b))
    return [p for p, k in zip(line, keep) if k]


def drop_repeats(line):
    out = []
    for p in line:
        if not out or out[-1] != p:
            out.append(p)
    return out


def join_strokes(strokes):
    """Joins polylines whose ends meet, so that each chain is one contour."""
    work = [list(s) for s in strokes if s]
    changed = True
    while changed:
        changed = False
        for i in range(len(work)):
            for j in range(len(work)):
                if i == j or not work[i] or not work[j]:
                    continue
                a, b = work[i], work[j]
                if a[-1] == b[0]:
                    work[i] = a + b[1:]
                elif a[-1] == b[-1]:
                    work[i] = a + b[::-1][1:]
                elif a[0] == b[-1] and i < j:
                    work[i] = b + a[1:]
                else:
                    continue
                work[j] = []
                changed = True
    return [w for w in work if w]


def bridge_strokes(strokes, gap):
    """Joins polylines whose ends lie within gap of each other by a short connecting segment.

    Thick strokes of the multi-stroke fonts are bundles of parallel lines one unit apart; a bridge between
    their ends stays inside the ink and saves a contour.
    """
    work = join_strokes(strokes)
    if gap <= 0:
        return work
    g2 = gap * gap
    while True:
        best = None
        for i, a in enumerate(work):
            for j, b in enumerate(work):
                if i >= j:
                    continue
                for ra in (False, True):
                    for rb in (False, True):
                        pa = a[0] if ra else a[-1]
                        pb = b[-1] if rb else b[0]
                        d = (pa[0] - pb[0]) ** 2 + (pa[1] - pb[1]) ** 2
                        if d <= g2 and (best is None or d < best[0]):
                            best = (d, i, j, ra, rb)
        if best is None:
            return work
        _, i, j, ra, rb = best
        a = work[i][::-1] if ra else work[i]
        b = work[j][::-1] if rb else work[j]
        work[i] = a + b if a[-1] != b[0] else a + b[1:]
        del work[j]


def _deltas(line):
    return tuple((line[k + 1][0] - line[k][0], line[k + 1][1] - line[k][1]) for k in range(len(line) - 1))


class Pool:
    """Collects points and records; `unit` is the offset unit in font units, `limit` the packed byte range."""

    MAX_WINDOW = 48

    def __init__(self, unit, byte_range=(-128, 127), coord_range=(-128, 127)):
        self.unit = unit
        self.byte_range = byte_range
        self.coord_range = coord_range
        self.points = []
        self.steps = []       # steps[k]: from point k to point k + 1
        self.windows = {}     # (deltas) -> list of pool starts (0-based)
        self.records = []     # one list of words per glyph, length word included

    # -- offsets ---------------------------------------------------------------------------------------
    def _packed(self, tx, ty):
        """Packed offset word for a translation in font units, or None if it cannot be expressed."""
        qx, qy = tx / self.unit, ty / self.unit
        if qx != int(qx) or qy != int(qy):
            return None
        qx, qy = int(qx), int(qy)
        lo, hi = self.byte_range
        if not (lo <= qx <= hi and lo <= qy <= hi):
            return None
        word = ((qy & 0xFF) << 8) | (qx & 0xFF)
        return word - 0x10000 if word >= 0x8000 else word

    def _find(self, line):
        """A stored run equal to line up to translation: (start, packed offset) or None."""
        starts = self.windows.get(_deltas(line))
        if not starts:
            return None
        for s in starts:
            px, py = self.points[s]
            tx, ty = line[0][0] - px, line[0][1] - py
            if tx == 0 and ty == 0:
                return s, 0
        for s in starts:
            px, py = self.points[s]
            packed = self._packed(line[0][0] - px, line[0][1] - py)
            if packed is not None:
                return s, packed
        return None

    def _index_run(self, first, last):
        """Registers every window that ends inside points[first..last] (windows may start earlier)."""
        pts, steps = self.points, self.steps
        while len(steps) < len(pts) - 1:
            k = len(steps)
            steps.append((pts[k + 1][0] - pts[k][0], pts[k + 1][1] - pts[k][1]))
        for j in range(first, last + 1):
            for i in range(max(0, j - self.MAX_WINDOW), j):
                key = tuple(steps[i:j])
                self.windows.setdefault(key, []).append(i)

    def _fits(self, pts):
        lo, hi = self.coord_range
        return all(lo <= x <= hi and lo <= y <= hi for x, y in pts)

    # -- contours --------------------------------------------------------------------------------------
    def contour(self, line, reversible=True):
        """Places one polyline; returns (npts, start0, packed)."""
        line = drop_repeats(line)
        if len(line) == 1:
            # A single point is a pen move that draws nothing; it can only widen the glyph.
            if line[0] in self.points:
                return 1, self.points.index(line[0]), 0
            self.points.append(line[0])
            return 1, len(self.points) - 1, 0
        found = self._find(line)
        if found is None and reversible:
            found = self._find(line[::-1])
            if found is not None:
                line = line[::-1]
        if found is not None:
            return len(line), found[0], found[1]
        # Overlap with the tail of the pool: the first m points of the line repeat the last m points.
        best = None
        for cand in ([line, line[::-1]] if reversible else [line]):
            for m in range(min(len(cand) - 1, len(self.points), 12), 0, -1):
                tail = self.points[len(self.points) - m:]
                if _deltas(tail) != _deltas(cand[:m]):
                    continue
                tx, ty = cand[0][0] - tail[0][0], cand[0][1] - tail[0][1]
                packed = 0 if (tx, ty) == (0, 0) else self._packed(tx, ty)
                rest = [(x - tx, y - ty) for x, y in cand[m:]]
                if packed is None or not self._fits(rest) or (m == 1 and packed != 0):
                    continue
                if best is None or m > best[0]:
                    best = (m, cand, packed, rest)
                break
        if best is not None and best[0] >= 1:
            m, cand, packed, rest = best
            start = len(self.points) - m
            first = len(self.points)
            self.points.extend(rest)
            self._index_run(first, len(self.points) - 1)
            return len(cand), start, packed
        if not self._fits(line):
            raise ValueError(f"point out of range: {line}")
        start = len(self.points)
        self.points.extend(line)
        self._index_run(start, len(self.points) - 1)
        return len(line), start, 0

    def record(self, contours):
        """Appends a glyph record made of contours (npts, start0, packed); returns its words."""
        words = [0]
        for npts, start, packed in contours:
            if packed == 0:
                words += [npts, start + 1]
            else:
                words += [-npts, start + 1, packed]
        words[0] = len(words)
        self.records.append(words)
        return words

    def glyph(self, lines, reversible=True):
        return self.record([self.contour(l, reversible) for l in lines])

    def index_words(self):
        return [w for r in self.records for w in r]
