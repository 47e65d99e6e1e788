// Area fill: the native fill of the devices that can fill a polygon, and the hatching of all
// others: the polygon is turned by the pattern angle, cut by horizontal scan lines on a grid
// of the pattern distance, and each inside span is turned back and drawn as a line.
#include "draw/fill.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "draw/colour.h"
#include "draw/device.h"
#include "draw/line.h"
#include "frame/frame.h"

namespace zb {

bool psc_turned();

namespace {

constexpr int kMaxCrossings = 100;
constexpr double kMaxHeights = 4.0e6;   // scan lines of one sweep: beyond any page

// Limits of the spans of the pass in hand, in its turned frame: the page and a margin.
// What lies beyond is clipped away anyway, and huge values never reach the pipeline.
float span_xmin = -std::numeric_limits<float>::max();
float span_xmax = std::numeric_limits<float>::max();
float span_ymin = -std::numeric_limits<float>::max();
float span_ymax = std::numeric_limits<float>::max();

// The map projection belongs to the maps; until they put it in the record there is none.
template <class Z>
int projection_code(const Z& z) {
  if constexpr (requires { z.nproj; }) return z.nproj;
  else return 0;
}

constexpr std::array<int, 18> kPatterns = {0,     45150, 150450, 135150, 45450, 45151,
                                           135210, 45451, 30140, 45211, 151,   45310,
                                           70470, 45311, 451,   45210, 100,   550};

bool native_device(int d) { return (d >= 71 && d <= 99) || d == 221 || d == 801 || (d >= 501 && d <= 600); }

bool can_fill_natively(const float* x, const float* y, int n) {
  if (!native_device(zg.idev) || zg.ipatnr != 16) return false;
  if (zg.ishield > 0 || projection_code(zg) >= 30) return false;
  const float ox = float(zg.nxorg), oy = float(zg.nyorg);
  for (int i = 0; i < n; ++i)
    if (jqqclp(x[i] + ox, y[i] + oy) != 0) return false;
  return true;
}

int rnd(float v) { return int(v + 0.5f); }

// PostScript: one path in the device mapping of xjdraw, filled by the even-odd rule.
void fill_postscript(const float* x, const float* y, int n) {
  xjdraw(0.0f, 0.0f, 999);
  const float s = zg.devscl, ny = float(zg.nypag);
  const float ox = float(zg.nxorg), oy = float(zg.nyorg);
  auto point = [&](int i, const char* op) {
    const float px = x[i] + ox, py = y[i] + oy;
    int u, v;
    if (psc_turned()) { u = rnd(py * s); v = rnd(px * s); }
    else { u = rnd(px * s); v = rnd((ny - py) * s); }
    qpsbuf(fmt_i(u, 5) + " " + fmt_i(v, 5) + op);
  };
  point(0, " u ");
  for (int i = 1; i < n; ++i) point(i, " d ");
  point(0, " d ");
  qpsbuf("eofill ");
}

void fill_natively(const float* x, const float* y, int n) {
  qqstrk();
  const int d = zg.idev;
  const float ox = float(zg.nxorg), oy = float(zg.nyorg);
  if (d >= 501 && d <= 600 && d != 511) {
    fill_postscript(x, y, n);
  } else if (d == 511) {
    xjdraw(x[0] + ox, y[0] + oy, 3);
    for (int i = 1; i < n; ++i) xjdraw(x[i] + ox, y[i] + oy, 2);
    xjdraw(0.0f, 0.0f, 5);
  } else {
    // Screen, WMF and SVG: the device layer hands the polygon to the driver.
    auto px = alloc<float>(n);
    if (!px) return;
    auto py = alloc<float>(n);
    if (!py) return;
    for (int i = 0; i < n; ++i) {
      px[std::size_t(i)] = x[i] + ox;
      py[std::size_t(i)] = y[i] + oy;
    }
    xjpoly(px.get(), py.get(), n);
  }
}

// The page, relative to the origin and turned by the pass angle: bounds of the spans.
void set_span_limits(float s, float c) {
  const float margin = 2.0f * zg.xpatst + 2.0f;
  const float x0 = -float(zg.nxorg) - margin, x1 = float(zg.nxpag - zg.nxorg) + margin;
  const float y0 = -float(zg.nyorg) - margin, y1 = float(zg.nypag - zg.nyorg) + margin;
  span_xmin = span_ymin = std::numeric_limits<float>::max();
  span_xmax = span_ymax = -std::numeric_limits<float>::max();
  for (float px : {x0, x1})
    for (float py : {y0, y1}) {
      const float u = c * px - s * py, v = s * px + c * py;
      span_xmin = std::min(span_xmin, u);
      span_xmax = std::max(span_xmax, u);
      span_ymin = std::min(span_ymin, v);
      span_ymax = std::max(span_ymax, v);
    }
}

void clear_span_limits() {
  span_xmin = span_ymin = -std::numeric_limits<float>::max();
  span_xmax = span_ymax = std::numeric_limits<float>::max();
}

// One hatching pass at the given angle; false if the scan had to stop.
bool hatch_pass(const float* x, const float* y, int n, int angle, float* wx, float* wy) {
  zg.ipatsk = zg.npatdr = zg.npatgp = 0;
  zg.ypatpv = -std::numeric_limits<float>::max();
  zg.ipatang = angle;
  zg.xpatsn = 0.0f;
  zg.xpatcs = 1.0f;
  std::copy(x, x + n, wx);
  std::copy(y, y + n, wy);
  if (angle != 0) {
    const float a = float(angle) * zg.fpi;
    zg.xpatsn = std::sin(a);
    zg.xpatcs = std::cos(a);
    trfro2(wx, wy, n, zg.xpatsn, zg.xpatcs);
  }
  set_span_limits(zg.xpatsn, zg.xpatcs);
  const bool ok = gkwfa(n, wx, wy, zg.xpatst, dlinef);
  clear_span_limits();
  return ok;
}

void hatch(const float* x, const float* y, int n) {
  auto wx = alloc<float>(n);
  if (!wx) return;
  auto wy = alloc<float>(n);
  if (!wy) return;
  const int t = zg.ipatt;
  const int style = t == 5 ? 6 : t == 6 ? 5 : t == 7 ? 4 : 0;
  const int kept = zg.itypln;
  if (style != kept) lintyp(style);
  const int a = zg.ipata;
  if (hatch_pass(x, y, n, a, wx.get(), wy.get()) && zg.ipatc == 1)
    hatch_pass(x, y, n, a < 90 ? a + 90 : 180 - a, wx.get(), wy.get());
  qqstrk();
  if (style != kept) lintyp(kept);
}

// One edge of the scan, from its lower to its upper end in y.
struct Edge {
  float ylo, yhi, xlo, slope;   // x at ylo, and dx / dy
};

// Crossings of the scan line at height y with the active edges; -1 past the limit.
int crossings_at(float y, const Edge* edges, int* active, int& nactive, float* xs) {
  int keep = 0;
  for (int k = 0; k < nactive; ++k)
    if (edges[active[k]].yhi > y) active[keep++] = active[k];
  nactive = keep;
  if (nactive > kMaxCrossings) return -1;
  for (int k = 0; k < nactive; ++k) {
    const Edge& e = edges[active[k]];
    xs[k] = e.xlo + (y - e.ylo) * e.slope;
  }
  std::sort(xs, xs + nactive);
  // Crossings that meet (a vertex touched from one side) leave the span list as a pair.
  int m = 0;
  for (int k = 0; k < nactive; ++k) {
    if (k + 1 < nactive && xs[k + 1] - xs[k] < zg.eps) {
      ++k;
      continue;
    }
    xs[m++] = xs[k];
  }
  return m;
}

// Draws one span of the pass in hand, turned back into the frame of the page.
void draw_span(const float* xpair, const float* ypair) {
  float x1 = std::clamp(xpair[0], span_xmin, span_xmax), y1 = ypair[0];
  float x2 = std::clamp(xpair[1], span_xmin, span_xmax), y2 = ypair[1];
  if (zg.ipatang != 0) {
    const float s = -zg.xpatsn, c = zg.xpatcs;
    const float u1 = c * x1 - s * y1, v1 = s * x1 + c * y1;
    const float u2 = c * x2 - s * y2, v2 = s * x2 + c * y2;
    x1 = u1; y1 = v1; x2 = u2; y2 = v2;
  }
  strtqq(x1, y1);
  connqq(x2, y2);
}

}  // namespace

void trfro2(float* xray, float* yray, int n, float xsin, float xcos) {
  if (xray == nullptr || yray == nullptr) return;
  for (int i = 0; i < n; ++i) {
    const float x = xray[i], y = yray[i];
    xray[i] = xcos * x - xsin * y;
    yray[i] = xsin * x + xcos * y;
  }
}

bool gkwfa(int n, const float* xray, const float* yray, float xstep, SpanFn span) {
  if (n < 3 || xray == nullptr || yray == nullptr || span == nullptr) return false;
  if (!(xstep > 0.0f) || !std::isfinite(xstep)) return false;
  auto edges = alloc<Edge>(n);
  if (!edges) return false;
  auto active = alloc<int>(n);
  if (!active) return false;
  // Edges sorted by their lower end; horizontal ones never cross a scan line.
  int ne = 0;
  float ylow = std::numeric_limits<float>::max(), yhigh = -ylow;
  for (int i = 0; i < n; ++i) {
    const int j = i + 1 == n ? 0 : i + 1;
    float x1 = xray[i], y1 = yray[i], x2 = xray[j], y2 = yray[j];
    if (!std::isfinite(x1) || !std::isfinite(y1)) {
      warni1(2, i + 1);
      return false;
    }
    ylow = std::min(ylow, y1);
    yhigh = std::max(yhigh, y1);
    if (y1 == y2) continue;
    if (y1 > y2) { std::swap(x1, x2); std::swap(y1, y2); }
    edges[std::size_t(ne++)] = {y1, y2, x1, (x2 - x1) / (y2 - y1)};
  }
  std::sort(edges.get(), edges.get() + ne, [](const Edge& a, const Edge& b) { return a.ylo < b.ylo; });
  ylow = std::max(ylow, span_ymin);
  yhigh = std::min(yhigh, span_ymax);
  if (ne < 2 || ylow > yhigh) return true;
  // Heights on multiples of xstep, so that neighbouring areas share their scan lines.
  const float y0 = std::trunc(ylow / xstep - 0.5f) * xstep;
  const double nh = std::floor((double(yhigh) + 0.5 * xstep - y0) / xstep) + 1.0;
  if (nh > kMaxHeights) {
    warni1(2, n);
    return false;
  }
  const long heights = long(nh);
  std::array<float, kMaxCrossings> xs{};
  // Sweep r emits the r-th span of every height, so the pen stays on one piece at a time.
  for (int rank = 0;; ++rank) {
    bool found = false, forward = true;
    int next = 0, nactive = 0;
    for (long k = 0; k < heights; ++k) {
      const float y = y0 + float(k) * xstep;
      while (next < ne && edges[std::size_t(next)].ylo <= y) active[std::size_t(nactive++)] = next++;
      const int m = crossings_at(y, edges.get(), active.get(), nactive, xs.data());
      if (m < 0) {
        warni1(26, nactive);
        return false;
      }
      if (2 * rank + 1 >= m) continue;
      found = true;
      float xp[2] = {xs[std::size_t(2 * rank)], xs[std::size_t(2 * rank + 1)]};
      if (rank < 4 && !forward) std::swap(xp[0], xp[1]);
      forward = !forward;
      const float yp[2] = {y, y};
      span(xp, yp);
    }
    if (!found) return true;
  }
}

void dlinef(const float* xpair, const float* ypair) {
  if (xpair == nullptr || ypair == nullptr) return;
  if (zg.ipatt == 1 || zg.ipatt == 5) {
    draw_span(xpair, ypair);
    return;
  }
  const bool new_line = std::fabs(ypair[0] - zg.ypatpv) >= zg.eps;
  if (new_line) zg.ypatpv = ypair[0];
  if (zg.ipatsk == 1) {
    if (new_line && ++zg.npatgp >= zg.npatsk) zg.npatgp = zg.ipatsk = 0;
    return;
  }
  draw_span(xpair, ypair);
  if (new_line && ++zg.npatdr >= zg.npatgr) {
    zg.npatdr = 0;
    zg.ipatsk = 1;
  }
}

void ffllin(const float* xpair, const float* ypair) {
  if (xpair == nullptr || ypair == nullptr) return;
  float x1 = xpair[0], y1 = ypair[0], x2 = xpair[1], y2 = ypair[1];
  if (zg.ipatang != 0) {
    const float s = -zg.xpatsn, c = zg.xpatcs;
    const float u1 = c * x1 - s * y1, v1 = s * x1 + c * y1;
    const float u2 = c * x2 - s * y2, v2 = s * x2 + c * y2;
    x1 = u1; y1 = v1; x2 = u2; y2 = v2;
  }
  qqmove(x1, y1);
  qqdraw(x2, y2);
}

void dareaf(const float* xray, const float* yray, int n) {
  if (xray == nullptr || yray == nullptr || n < 2) {
    warni1(2, n);
    return;
  }
  for (int i = 0; i < n; ++i)
    if (!std::isfinite(xray[i]) || !std::isfinite(yray[i])) {
      warni1(2, i + 1);
      return;
    }
  if (n < 3) return;   // a line has no inside
  if (can_fill_natively(xray, yray, n)) fill_natively(xray, yray, n);
  else hatch(xray, yray, n);
}

void arealx(const float* xray, const float* yray, int n) {
  if (xray == nullptr || yray == nullptr || n < 1) return;
  strtqq(xray[0], yray[0]);
  for (int i = 1; i < n; ++i) connqq(xray[i], yray[i]);
  connqq(xray[0], yray[0]);
}

void areaf(const int* nxray, const int* nyray, int n) {
  if (jqqlev(1, 3, "AREAF")) return;
  if (jqqval(n, 2, 1000000)) return;
  if (nxray == nullptr || nyray == nullptr) {
    warnin(2);
    return;
  }
  // Small polygons need no allocation.
  std::array<float, 50> fx{}, fy{};
  std::unique_ptr<float[]> hx, hy;
  float* x = fx.data();
  float* y = fy.data();
  if (n > 50) {
    hx = alloc<float>(n);
    if (!hx) return;
    hy = alloc<float>(n);
    if (!hy) return;
    x = hx.get();
    y = hy.get();
  }
  for (int i = 0; i < n; ++i) {
    x[i] = float(nxray[i]);
    y[i] = float(jqqyvl(nyray[i]));
  }
  if (zg.iarln == 1) arealx(x, y, n);
  if (zg.ipatt != 0) dareaf(x, y, n);
}

void set_pattern_code(int code, bool wmf_rule) {
  const int a = code / 1000, t = (code / 100) % 10, d = (code / 10) % 10, c = code % 2;
  zg.ipata = a;
  zg.ipatt = t;
  zg.ipatd = d;
  zg.ipatc = c;
  float dist = float(5 * d + 2);
  if (t == 2 || t == 3) {
    dist = t == 2 ? 20.0f : 15.0f;
    zg.npatgr = t;
    zg.npatsk = d + 1;
  } else if (t == 4) {
    dist = 1.0f;
    zg.npatgr = 8;
    zg.npatsk = 5 * d + 5;
  } else if (wmf_rule && zg.idev == 221 && d == 0) {
    dist = 0.4f;
  }
  zg.xpatst = dist / zg.unitfac;
}

void shdpat(int ipat) {
  chkini("SHDPAT");
  if (ipat < 0) {
    warni1(2, ipat);
    return;
  }
  set_pattern_code(ipat <= 17 ? kPatterns[std::size_t(ipat)] : ipat, true);
  zg.ipatnr = ipat;
}

void mypat(int iangle, int itype, int idens, int icross) {
  chkini("MYPAT");
  if (jqqval(iangle, 0, 179) || jqqval(itype, 0, 7) || jqqval(idens, 0, 9) || jqqval(icross, 0, 1)) return;
  const int code = 1000 * iangle + 100 * itype + 10 * idens + icross;
  set_pattern_code(code, false);
  zg.ipatnr = code;
}

void getpat(int& ipat) {
  chkini("GETPAT");
  ipat = zg.ipatnr;
}

void noarln() {
  chkini("NOARLN");
  zg.iarln = 0;
}

}  // namespace zb
