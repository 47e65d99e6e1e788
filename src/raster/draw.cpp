// Drawing into the raster store: lines with both end points, filled rectangles with
// inclusive limits, and filled triangles by spans. Pixels outside the store are left out;
// a line that leaves the store sets exactly the pixels of its full walk that lie inside.
#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "raster/raster.h"
#include "raster/store.h"

namespace zb {

namespace {

// Sets the pixel at p in the current colour.
inline void put(const RasterStore& s, unsigned char* p) {
  if (s.irgb_v == 1) {
    p[0] = s.ir_v;
    p[1] = s.ig_v;
    p[2] = s.ib_v;
  } else {
    *p = (unsigned char)s.nclr_v;
  }
}

// Pixels a .. b (any order) of one row or column in the current colour.
void straight(const RasterStore& s, long fixed, long a, long b, bool row) {
  const long lim_fixed = row ? s.nhwind : s.nwwind, lim_run = row ? s.nwwind : s.nhwind;
  if (fixed < 0 || fixed >= lim_fixed) return;
  const long lo = std::max(std::min(a, b), 0L), hi = std::min(std::max(a, b), lim_run - 1);
  for (long k = lo; k <= hi; ++k) put(s, row ? s.at(int(k), int(fixed)) : s.at(int(fixed), int(k)));
}

// Bresenham walk along the major axis u (steps su), the minor axis v (steps sv): du >= dv.
// The error starts at -du / 2 and stays in (-du, 0] after each step, so the minor offset
// after k steps is ceil((e0 + k dv) / du): the walk can start at the first pixel inside.
struct Walk {
  long u1, v1, du, dv, su, sv;
  long lim_u, lim_v;   // store size along u and v
};

template <class At>
void walk(const RasterStore& s, const Walk& w, At at) {
  const long e0 = (-w.du) / 2;
  const long kmin = std::max(0L, w.su > 0 ? -w.u1 : w.u1 - (w.lim_u - 1));
  const long kmax = std::min(w.du, w.su > 0 ? w.lim_u - 1 - w.u1 : w.u1);
  if (kmin > kmax) return;
  auto minor_steps = [&](long k) {
    const long t = e0 + k * w.dv;
    return t > 0 ? (t + w.du - 1) / w.du : 0L;
  };
  long m = minor_steps(kmin);
  long e = e0 + kmin * w.dv - m * w.du;
  long u = w.u1 + kmin * w.su, v = w.v1 + m * w.sv;
  const bool checked = !(w.v1 >= 0 && w.v1 < w.lim_v && w.v1 + w.dv * w.sv >= 0 &&
                         w.v1 + w.dv * w.sv < w.lim_v);
  for (long k = kmin;; ++k) {
    if (!checked || (v >= 0 && v < w.lim_v)) put(s, at(u, v));
    if (k == kmax) break;
    e += w.dv;
    u += w.su;
    if (e > 0) {
      e -= w.du;
      v += w.sv;
    }
  }
}

// One span of a triangle on row y from edge positions p, q, clipped to the store.
void span(const RasterStore& s, long y, double p, double q) {
  if (y < 0 || y >= s.nhwind) return;
  double l = p + 0.5, r = q + 0.5;
  if (l > r) std::swap(l, r);   // truncation keeps the order, so doubles decide as ints would
  if (l >= double(s.nwwind) || r <= -1.0) return;
  const long a = l < 0.0 ? 0L : long(l);
  const long b = r >= double(s.nwwind) ? long(s.nwwind) - 1 : long(r);
  for (long x = a; x <= b; ++x) put(s, s.at(int(x), int(y)));
}

// Rows y0 .. y1 of a triangle half: a span per row, the edges moving by mp and mq per row
// whether the row is drawn or not. Rows above the store are passed over in one step.
void rows(const RasterStore& s, long y0, long y1, double& p, double& q, double mp, double mq) {
  if (y1 < y0) return;
  if (y0 < 0) {
    const long skip = std::min(-y0, y1 - y0 + 1);
    p += mp * double(skip);
    q += mq * double(skip);
    y0 += skip;
  }
  for (long y = y0; y <= y1; ++y) {
    if (y >= s.nhwind) {   // nothing more to draw; keep the edges where the walk puts them
      p += mp * double(y1 - y + 1);
      q += mq * double(y1 - y + 1);
      return;
    }
    span(s, y, p, q);
    p += mp;
    q += mq;
  }
}

}  // namespace

void qqvlin(int ix1, int iy1, int ix2, int iy2) {
  const RasterStore& s = raster_store();
  if (!s.open()) return;
  if (iy1 == iy2) {
    straight(s, iy1, ix1, ix2, true);
    return;
  }
  if (ix1 == ix2) {
    straight(s, ix1, iy1, iy2, false);
    return;
  }
  const long dx = std::labs(long(ix2) - ix1), dy = std::labs(long(iy2) - iy1);
  const long sx = ix2 > ix1 ? 1 : -1, sy = iy2 > iy1 ? 1 : -1;
  if (dx <= dy) {
    walk(s, {iy1, ix1, dy, dx, sy, sx, s.nhwind, s.nwwind},
         [&](long y, long x) { return s.at(int(x), int(y)); });
  } else {
    walk(s, {ix1, iy1, dx, dy, sx, sy, s.nwwind, s.nhwind},
         [&](long x, long y) { return s.at(int(x), int(y)); });
  }
}

void qqvfll(int ix1, int iy1, int ix2, int iy2, int iclr) {
  const RasterStore& s = raster_store();
  if (!s.open()) return;
  const int x1 = std::max(ix1, 0), x2 = std::min(ix2, s.nwwind - 1);
  const int y1 = std::max(iy1, 0), y2 = std::min(iy2, s.nhwind - 1);
  if (x1 > x2 || y1 > y2) return;
  unsigned char c[3];
  store_colour(iclr, c);
  for (int y = y1; y <= y2; ++y) {
    unsigned char* p = s.at(x1, y);
    if (s.irgb_v == 0) {
      std::memset(p, c[0], std::size_t(x2 - x1 + 1));
      continue;
    }
    for (int x = x1; x <= x2; ++x, p += 3) std::memcpy(p, c, 3);
  }
}

void qqtri1(int a, int b, int c, int& ilow, int& imid, int& ihigh) {
  if (a >= b) {
    if (c > b && c >= a) { ilow = 1; imid = 0; ihigh = 2; }
    else if (c > b) { ilow = 1; imid = 2; ihigh = 0; }
    else { ilow = 2; imid = 1; ihigh = 0; }
  } else {
    if (c > a && c >= b) { ilow = 0; imid = 1; ihigh = 2; }
    else if (c > a) { ilow = 0; imid = 2; ihigh = 1; }
    else { ilow = 2; imid = 0; ihigh = 1; }
  }
}

void qqvftr(const int* x, const int* y, int iclr) {
  const RasterStore& s = raster_store();
  if (!s.open() || x == nullptr || y == nullptr) return;
  qqvclr(iclr);
  qqvlin(x[0], y[0], x[1], y[1]);
  qqvlin(x[0], y[0], x[2], y[2]);
  qqvlin(x[2], y[2], x[1], y[1]);
  int lo, mid, hi;
  qqtri1(y[0], y[1], y[2], lo, mid, hi);
  const double xa = x[lo], xb = x[mid], xc = x[hi];
  const long ya = y[lo], yb = y[mid], yc = y[hi];
  if (ya == yb && yb == yc) {
    straight(s, ya, std::min({x[0], x[1], x[2]}), std::max({x[0], x[1], x[2]}), true);
    return;
  }
  const double mac = (xc - xa) / double(yc - ya);
  double p, q;
  if (ya != yb) {
    const double mab = (xb - xa) / double(yb - ya);
    p = q = xa;
    rows(s, ya, yb, p, q, mab, mac);
    if (yc == yb) return;
    const double mbc = (xc - xb) / double(yc - yb);
    p = xb + mbc;
    rows(s, yb + 1, yc, p, q, mbc, mac);
  } else {
    const double mbc = (xc - xb) / double(yc - yb);
    p = xb;
    q = xa;
    rows(s, yb, yc, p, q, mbc, mac);
  }
}

}  // namespace zb
