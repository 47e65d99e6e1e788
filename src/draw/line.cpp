// Style stage and stroke buffer of the line pipeline. strtqq/connqq cut a line into
// dashes and offset it for thick curves; qqmove/qqdraw collect up to 100 points, which
// qqstrk hands, segment by segment, to the clipping stage.
#include <algorithm>
#include <cmath>
#include <utility>

#include "draw/line.h"
#include "draw/line_internal.h"

namespace zb {

namespace {

// Segments longer than this are dashed only where they can be seen, so that a huge
// coordinate cannot make the dash loop run for ever.
constexpr float kLongRun = 1.0e6f;

// The pen goes to (x, y) as the dash pattern has it: drawing while down, moving while up.
inline void pen_to(float x, float y) {
  if (zg.ipenup != 0) qqmove(x, y);
  else qqdraw(x, y);
}

// Next entry of the dash pattern; the pen toggles at every entry.
inline void next_entry() {
  if (++zg.ipatln > zg.npatln) zg.ipatln = 1;
  zg.ipenup = 1 - zg.ipenup;
  zg.xpatrem = float(zg.npattn[std::size_t(zg.ipatln - 1)]);
}

// Runs the pattern over a distance without drawing. One period brings back the same
// entry and pen: the sum of the entries, twice that for an odd count.
void skip_pattern(float dist) {
  if (!(dist > 0.0f) || !std::isfinite(dist)) return;
  if (zg.xpatrem < dist) {
    dist -= zg.xpatrem;
    next_entry();
    float period = 0.0f;
    for (int i = 0; i < zg.npatln; ++i) period += float(zg.npattn[std::size_t(i)]);
    if (zg.npatln % 2 == 1) period *= 2.0f;
    dist = std::fmod(dist, period);
    while (zg.xpatrem < dist) {
      dist -= zg.xpatrem;
      next_entry();
    }
  }
  zg.xpatrem -= dist;
}

// Dashes from the working point (wx, wy) along (c, -s) over len, ending at (ex, ey).
void dash_run(float wx, float wy, float ex, float ey, float s, float c, float len) {
  while (zg.xpatrem < len) {
    wx += c * zg.xpatrem;
    wy -= s * zg.xpatrem;
    pen_to(wx, wy);
    len -= zg.xpatrem;
    next_entry();
  }
  pen_to(ex, ey);
  zg.xpatrem -= len;
}

// Cuts a segment to the box round the clipping region (Cohen-Sutherland, in coordinates
// so that a far end costs no precision near the box); false if it misses the box.
bool cut_to_box(float& x1, float& y1, float& x2, float& y2) {
  float xl = float(zg.nclpx1), yl = float(zg.nclpy1), xh = float(zg.nclpx2), yh = float(zg.nclpy2);
  if (zg.iclpcirc != 0) {
    xl = zg.xclpc - zg.xclpr;
    xh = zg.xclpc + zg.xclpr;
    yl = zg.yclpc - zg.xclpr;
    yh = zg.yclpc + zg.xclpr;
  }
  xl -= 2.0f; yl -= 2.0f; xh += 2.0f; yh += 2.0f;
  auto code = [&](float x, float y) {
    return (x < xl ? 1 : 0) | (x > xh ? 2 : 0) | (y < yl ? 4 : 0) | (y > yh ? 8 : 0);
  };
  for (int pass = 0; pass < 8; ++pass) {
    const int c1 = code(x1, y1), c2 = code(x2, y2);
    if ((c1 | c2) == 0) return true;
    if ((c1 & c2) != 0) return false;
    const int c = c1 != 0 ? c1 : c2;
    float& px = c1 != 0 ? x1 : x2;
    float& py = c1 != 0 ? y1 : y2;
    if (c & 3) {
      const float xe = (c & 1) ? xl : xh;
      py = y1 == y2 ? y1 : y1 + (y2 - y1) * (xe - x1) / (x2 - x1);
      px = xe;
    } else {
      const float ye = (c & 4) ? yl : yh;
      px = x1 == x2 ? x1 : x1 + (x2 - x1) * (ye - y1) / (y2 - y1);
      py = ye;
    }
  }
  return false;
}

// A dashed segment too long to step through: the pattern runs on unseen outside the
// clipping region. With per-point transforms the region is unknown; the pattern is then
// only advanced.
void long_dash_run(float wx, float wy, float ex, float ey, float s, float c, float len) {
  float ax = wx, ay = wy, bx = ex, by = ey;
  if (zg.ixfpts != 0 || !cut_to_box(ax, ay, bx, by)) {
    skip_pattern(len);
    pen_to(ex, ey);
    return;
  }
  skip_pattern(std::hypot(ax - wx, ay - wy));
  pen_to(ax, ay);
  dash_run(ax, ay, bx, by, s, c, std::hypot(bx - ax, by - ay));
  skip_pattern(std::hypot(ex - bx, ey - by));
  pen_to(ex, ey);
}

inline void transform_point(float& x, float& y) {
  if (zg.ixfpts & 1) proj3d(x, y);
  if (zg.ixfpts & 2) btrf01(x, y);
}

}  // namespace

void seg_direction(float x1, float y1, float x2, float y2, float& s, float& c, float& len) {
  const float dx = x2 - x1, dy = y1 - y2, eps = zg.eps;
  float a;
  if (std::fabs(dx) <= eps && std::fabs(dy) <= eps) {
    a = 0.0f;
  } else if (std::fabs(dx) <= eps) {
    a = y2 > y1 ? -0.5f * zg.xpi : 0.5f * zg.xpi;
  } else if (std::fabs(dy) <= eps) {
    a = x1 > x2 ? zg.xpi : 0.0f;
  } else {
    a = std::atan(dy / dx);
    if (x1 > x2) a += dy > 0.0f ? zg.xpi : -zg.xpi;
  }
  s = std::sin(a);
  c = std::cos(a);
  len = std::fabs(dy) > eps ? std::fabs(dy / s) : std::fabs(dx);
}

void strtqq(float x, float y) {
  zg.xlast = float(zg.nxorg) + x;
  zg.ylast = float(zg.nyorg) + y;
  if (std::fabs(zg.xoffln) < zg.eps) qqmove(zg.xlast, zg.ylast);
  else zg.ifirst = 1;   // the first point depends on the direction of the first segment
}

void connqq(float x, float y) {
  const float x2 = float(zg.nxorg) + x, y2 = float(zg.nyorg) + y;
  const bool offset = !(std::fabs(zg.xoffln) < zg.eps);
  if (zg.npatln == 1 && !offset) {   // solid thin line: the hot path
    zg.xlast = x2;
    zg.ylast = y2;
    qqdraw(x2, y2);
    return;
  }
  float s, c, len;
  seg_direction(zg.xlast, zg.ylast, x2, y2, s, c, len);
  float wx = zg.xlast, wy = zg.ylast, ex = x2, ey = y2;
  if (offset) {
    wx -= s * zg.xoffln;
    wy -= c * zg.xoffln;
    ex -= s * zg.xoffln;
    ey -= c * zg.xoffln;
    if (zg.ifirst != 0) {
      qqmove(wx, wy);
      zg.ifirst = 0;
    } else {
      pen_to(wx, wy);
    }
  }
  if (zg.npatln == 1) {
    qqdraw(ex, ey);
  } else if (len <= kLongRun) {
    dash_run(wx, wy, ex, ey, s, c, len);
  } else if (len > kLongRun) {
    long_dash_run(wx, wy, ex, ey, s, c, len);
  } else {
    pen_to(ex, ey);   // a coordinate is not a number: clipping drops the segment
  }
  zg.xlast = x2;
  zg.ylast = y2;
}

void lineqq(int ix1, int iy1, int ix2, int iy2) {
  strtqq(float(ix1), float(iy1));
  connqq(float(ix2), float(iy2));
}

void inityp() {
  zg.ipatln = 1;
  zg.ipenup = 0;
  zg.xpatrem = float(zg.npattn[0]);
}

// Offsets of the thkcrv passes: 0, 1, -1, 2, -2, ...
void thklin(int ix1, int iy1, int ix2, int iy2) {
  for (int i = 1; i <= zg.nthick; ++i) {
    zg.xoffln = float(((i % 2 == 0) ? i : -i) / 2);
    lineqq(ix1, iy1, ix2, iy2);
  }
  zg.xoffln = 0.0f;
}

void qqmove(float x, float y) {
  qqstrk();
  if (zg.ixfpts != 0) transform_point(x, y);
  zg.nstrk = 1;
  zg.xstrk[0] = x;
  zg.ystrk[0] = y;
}

void qqdraw(float x, float y) {
  if (zg.ixfpts != 0) transform_point(x, y);
  zg.xstrk[std::size_t(zg.nstrk)] = x;
  zg.ystrk[std::size_t(zg.nstrk)] = y;
  if (++zg.nstrk == 100) {
    qqstrk();
    zg.nstrk = 1;
    zg.xstrk[0] = x;
    zg.ystrk[0] = y;
  }
}

void xline(const float* xray, const float* yray) {
  if (xray == nullptr || yray == nullptr) return;
  qqmove(xray[0], yray[0]);
  qqdraw(xray[1], yray[1]);
}

void qqstrk() {
  const int n = zg.nstrk;
  if (n == 0) return;
  zg.nstrk = 0;
  ClipPen pen;
  pen.move(zg.xstrk[0], zg.ystrk[0]);
  for (int i = 1; i < n; ++i) pen.draw(zg.xstrk[std::size_t(i)], zg.ystrk[std::size_t(i)]);
  if (zg.ilinw > 1) thick_stroke(zg.xstrk.data(), zg.ystrk.data(), n);
}

}  // namespace zb
