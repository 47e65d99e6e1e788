// Software thick lines. After the centre line of a stroke, outlines at growing distances
// on both sides fill its width: pass p lies 1.5 p units out, the last one at half the
// width. Open strokes get end pieces (cut, long or round caps); joints meet in a miter
// (SHAR) or by a plain connection of the two offset ends.
//
//   left side, forward   ------------------>  end piece
//   P0 . . . . . . . . . centre . . . . . . . P(n-1)     |
//   start piece  <------------------ right side, backward
#include <array>
#include <cmath>

#include "draw/line_internal.h"

namespace zb {

namespace {

// A stroke without repeated points, with sine and cosine of each segment's angle.
struct Run {
  std::array<float, 100> x{}, y{}, s{}, c{};
  int n = 0;        // points
  bool closed = false;
  // Segment i runs from point i to point i + 1 (to point 0 for the last of a closed run).
  int segments() const { return closed ? n : n - 1; }
  int next(int i) const { return i + 1 < n ? i + 1 : 0; }
};

// A draw that leaves out a step to where the pen already stands.
void draw_new(ClipPen& pen, float x, float y) {
  if (std::fabs(x - pen.x) > 1.0e-3f || std::fabs(y - pen.y) > 1.0e-3f) pen.draw(x, y);
}

void set_directions(Run& r) {
  for (int i = 0; i < r.segments(); ++i) {
    float len;
    const auto k = std::size_t(i), j = std::size_t(r.next(i));
    seg_direction(r.x[k], r.y[k], r.x[j], r.y[j], r.s[k], r.c[k], len);
  }
}

Run reversed(const Run& r) {
  Run v;
  v.n = r.n;
  v.closed = r.closed;
  for (int i = 0; i < r.n; ++i) {
    v.x[std::size_t(i)] = r.x[std::size_t(r.n - 1 - i)];
    v.y[std::size_t(i)] = r.y[std::size_t(r.n - 1 - i)];
  }
  set_directions(v);
  return v;
}

// Intersection of the line through (x1, y1) with direction (u1, v1) and the line through
// (x2, y2) with direction (u2, v2); false if they are parallel.
bool qqcut2(float x1, float y1, float u1, float v1, float x2, float y2, float u2, float v2,
            float& xs, float& ys) {
  const float den = u1 * v2 - v1 * u2;
  if (std::fabs(den) < 1.0e-6f) return false;
  const float t = ((x2 - x1) * v2 - (y2 - y1) * u2) / den;
  xs = x1 + t * u1;
  ys = y1 + t * v1;
  return std::isfinite(xs) && std::isfinite(ys);
}

// A SHAR joint is mitered while the miter, width / sin(b / 2) with b the angle between
// the segments, stays within xmiter widths and the segments do not fold back.
bool mitered(const Run& r, int i, int j) {
  if (zg.ilnjoin != 0) return false;
  const auto a = std::size_t(i), b = std::size_t(j);
  const float dot = r.c[a] * r.c[b] + r.s[a] * r.s[b];
  const float cross = r.s[a] * r.c[b] - r.c[a] * r.s[b];
  const float turn = std::fabs(std::atan2(cross, dot));
  const float angle = zg.xpi - turn;
  if (turn < 1.0e-4f || angle < 1.0e-3f) return false;
  return 1.0f / std::sin(0.5f * angle) <= zg.xmiter;
}

// The offset line at distance d on the left arrives at point k from segment i and leaves
// along segment j: one mitered corner or the two offset ends.
void joint(const Run& r, int i, int j, int k, float d, ClipPen& pen, bool first) {
  const auto a = std::size_t(i), b = std::size_t(j), p = std::size_t(k);
  const float bx = r.x[p] - d * r.s[a], by = r.y[p] - d * r.c[a];
  const float ax = r.x[p] - d * r.s[b], ay = r.y[p] - d * r.c[b];
  float xs, ys;
  if (mitered(r, i, j) && qqcut2(bx, by, r.c[a], -r.s[a], ax, ay, r.c[b], -r.s[b], xs, ys)) {
    if (first) pen.move(xs, ys);
    else pen.draw(xs, ys);
    return;
  }
  if (first) pen.move(bx, by);
  else pen.draw(bx, by);
  pen.draw(ax, ay);
}

// Forward along the left side of an open run, lengthened by e at both ends.
void walk_open(const Run& r, float d, float e, ClipPen& pen, bool connect) {
  const float sx = r.x[0] - d * r.s[0] - e * r.c[0], sy = r.y[0] - d * r.c[0] + e * r.s[0];
  if (connect) draw_new(pen, sx, sy);
  else pen.move(sx, sy);
  for (int k = 1; k < r.n - 1; ++k) joint(r, k - 1, k, k, d, pen, false);
  const auto l = std::size_t(r.n - 2), p = std::size_t(r.n - 1);
  pen.draw(r.x[p] - d * r.s[l] + e * r.c[l], r.y[p] - d * r.c[l] - e * r.s[l]);
}

// Once round the left side of a closed run.
void walk_closed(const Run& r, float d, ClipPen& pen) {
  joint(r, r.n - 1, 0, 0, d, pen, true);
  for (int k = 1; k < r.n; ++k) joint(r, k - 1, k, k, d, pen, false);
  // Back to where the joint at point 0 began.
  const auto a = std::size_t(r.n - 1);
  float xs, ys;
  if (mitered(r, r.n - 1, 0) && qqcut2(r.x[0] - d * r.s[a], r.y[0] - d * r.c[a], r.c[a], -r.s[a],
                                       r.x[0] - d * r.s[0], r.y[0] - d * r.c[0], r.c[0], -r.s[0], xs, ys))
    pen.draw(xs, ys);
  else
    pen.draw(r.x[0] - d * r.s[a], r.y[0] - d * r.c[a]);
}

// Half circle of radius r round (x, y), from the left of the direction a round its front
// to the right; nothing below 3 steps.
bool qqlcap(float x, float y, float r, float a, ClipPen& pen) {
  const float steps = r * zg.xpi / 2.5f;
  if (!(steps >= 3.0f) || steps > 1.0e6f) return false;
  const int n = int(steps);
  for (int k = 0; k <= n + 1; ++k) {
    const float ang = a + 0.5f * zg.xpi - float(k) * zg.xpi / float(n + 1);
    draw_new(pen, x + r * std::cos(ang), y - r * std::sin(ang));
  }
  return true;
}

// The piece across the last point of a run, from its left offset to its right one; false
// if a round cap was too small to draw, so that the next side starts with a move.
bool end_piece(const Run& r, float d, float e, ClipPen& pen) {
  const auto l = std::size_t(r.n - 2), p = std::size_t(r.n - 1);
  if (zg.ilncap == 1) return qqlcap(r.x[p], r.y[p], d, std::atan2(r.s[l], r.c[l]), pen);
  pen.draw(r.x[p] + d * r.s[l] + e * r.c[l], r.y[p] + d * r.c[l] - e * r.s[l]);
  return true;
}

}  // namespace

void thick_stroke(const float* xs, const float* ys, int n) {
  const float fw = float(zg.ilinw) * zg.unitfac + 0.5f;
  if (!(fw < 1.0e6f)) return;
  const int nw = int(fw);
  if (nw <= 1) return;
  Run r;
  for (int i = 0; i < n; ++i) {
    if (!std::isfinite(xs[i]) || !std::isfinite(ys[i])) return;
    const auto m = std::size_t(r.n);
    if (r.n > 0 && std::fabs(xs[i] - r.x[m - 1]) < 0.01f && std::fabs(ys[i] - r.y[m - 1]) < 0.01f)
      continue;
    r.x[m] = xs[i];
    r.y[m] = ys[i];
    ++r.n;
  }
  if (r.n < 2) return;
  const auto last = std::size_t(r.n - 1);
  if (r.n >= 4 && std::fabs(r.x[0] - r.x[last]) < 0.5f && std::fabs(r.y[0] - r.y[last]) < 0.5f) {
    r.closed = true;
    --r.n;
  }
  set_directions(r);
  const Run v = reversed(r);
  const int passes = (nw + 1) / 3;
  for (int p = 1; p <= passes; ++p) {
    const float d = p == passes ? 0.5f * float(nw) / zg.unitfac : 1.5f * float(p) / zg.unitfac;
    const float e = zg.ilncap == 2 ? d : 0.0f;
    ClipPen pen;
    if (r.closed) {
      walk_closed(r, d, pen);
      walk_closed(v, d, pen);
    } else {
      walk_open(r, d, e, pen, false);
      const bool joined = end_piece(r, d, e, pen);
      walk_open(v, d, e, pen, joined);
      end_piece(v, d, e, pen);
    }
  }
}

}  // namespace zb
