// Curved outlines and rectangles: elpsln, the one routine behind circles, ellipses, arcs
// and pies; rectangles with square and round corners; closed polylines and the public
// entries to the style stage. Everything ends in strtqq/connqq and dareaf.
#include <algorithm>

#include "draw/fill.h"
#include "draw/line.h"
#include "draw/prims.h"
#include "draw/prims_internal.h"
#include "frame/frame.h"

namespace zb {

namespace {

// An angle in degrees brought into 0 .. 360 by whole turns. Wrapping in degrees keeps
// 360 exactly a full turn, whatever the rounding of its radians.
float wrap_turn(float a) {
  if (std::fabs(a) > 36000.0f) a = std::fmod(a, 360.0f);
  while (a < 0.0f) a += 360.0f;
  while (a > 360.0f) a -= 360.0f;
  return a;
}

// Outline with strtqq/connqq if iarln is set, fill if a pattern is set.
void outline_and_fill(const float* x, const float* y, int n) {
  if (zg.iarln == 1) {
    strtqq(x[0], y[0]);
    for (int i = 1; i < n; ++i) connqq(x[i], y[i]);
  }
  if (zg.ipatt != 0) dareaf(x, y, n);
}

}  // namespace

void elpsln(int nx, int ny, int nr1, int nr2, float alpha, float beta, float theta, int iline,
            int iclose) {
  if (jqqval(nr1, 1, 0) || jqqval(nr2, 1, 0)) return;
  if (!prims_finite(alpha, beta, theta)) {
    warnin(2);
    return;
  }
  float da = wrap_turn(alpha), db = wrap_turn(beta);
  if (!(db > da)) db += 360.0f;   // so an arc always runs counter-clockwise on the page
  const float a = da * zg.fpi, b = db * zg.fpi;
  const float span = b - a;

  const float chords = float(std::max(nr1, nr2)) * span / zg.xcirsp;
  int n = chords >= 1000.0f ? 1000 : int(chords);
  if (n == 0) return;
  n = std::max(n, 5);
  const float step = span / float(n);

  auto xs = alloc<float>(2L * n);
  auto ys = alloc<float>(2L * n);
  if (!xs || !ys) return;

  // Circles and full ellipses by the parameter angle; partial ellipses by the true polar
  // angle, so that an arc ends where its angles say.
  const float r1 = float(nr1), r2 = float(nr2);
  const bool full = nr1 == nr2 || span > 6.28f;
  int k = 0;
  for (int i = 0; i <= n; ++i, ++k) {
    const float t = i < n ? a + float(i) * step : b;
    const float c = std::cos(t), s = std::sin(t);
    if (full) {
      xs[k] = r1 * c;
      ys[k] = -r2 * s;
    } else {
      const float r = 1.0f / std::sqrt(c * c / (r1 * r1) + s * s / (r2 * r2));
      xs[k] = r * c;
      ys[k] = -r * s;
    }
  }
  if (span < 6.28f && (iclose == 1 || zg.ipatt != 0)) {
    xs[k] = 0.0f;
    ys[k++] = 0.0f;
    xs[k] = xs[0];
    ys[k] = ys[0];
    ++k;
  }
  if (std::fabs(theta) > 0.001f) {
    const float t = theta * zg.fpi;
    trfro2(xs.get(), ys.get(), k, std::sin(-t), std::cos(t));
  }
  for (int i = 0; i < k; ++i) {
    xs[i] += float(nx);
    ys[i] += float(ny);
  }

  const int npat = zg.npatln;
  if (iline == 0) zg.npatln = 1;
  outline_and_fill(xs.get(), ys.get(), k);
  zg.npatln = npat;
}

void circle(int nx, int ny, int nr) {
  if (jqqlev(1, 3, "CIRCLE")) return;
  elpsln(nx, prims_iyvl(ny), nr, nr, 0.0f, 360.0f, 0.0f, 1, 0);
}

void ellips(int nx, int ny, int na, int nb) {
  if (jqqlev(1, 3, "ELLIPS")) return;
  elpsln(nx, prims_iyvl(ny), na, nb, 0.0f, 360.0f, 0.0f, 1, 0);
}

void arcell(int nx, int ny, int na, int nb, float alpha, float beta, float theta) {
  if (jqqlev(1, 3, "ARCELL")) return;
  elpsln(nx, prims_iyvl(ny), na, nb, alpha, beta, theta, 1, 0);
}

void pie(int nx, int ny, int nr, float alpha, float beta) {
  if (jqqlev(1, 3, "PIE")) return;
  elpsln(nx, prims_iyvl(ny), nr, nr, alpha, beta, 0.0f, 1, 1);
}

void draw_rect(float x1, float y1, float x2, float y2) {
  const float x[4] = {x1, x2, x2, x1};
  const float y[4] = {y1, y1, y2, y2};
  if (zg.iarln == 1) arealx(x, y, 4);
  if (zg.ipatt != 0) dareaf(x, y, 4);
}

void rectan(int nx, int ny, int nw, int nh) {
  if (jqqlev(1, 3, "RECTAN")) return;
  if (nw == 0) return warni1(2, nw);
  if (nh == 0) return warni1(2, nh);
  // The corners as areaf would see them: each y through jqqyvl on its own.
  draw_rect(float(nx), prims_yvl(ny), float(std::int64_t(nx) + nw - 1),
            prims_yvl(std::int64_t(ny) + nh - 1));
}

void draw_rndrec(int nx, int ny, int nw, int nh, int iopt) {
  const float x1 = float(nx), y1 = float(ny);
  const float x2 = float(std::int64_t(nx) + nw - 1), y2 = float(std::int64_t(ny) + nh - 1);
  const float r = std::min(0.5f * float(nw) * float(iopt) / 9.0f,
                           0.5f * float(nh) * float(iopt) / 9.0f);
  const int n = std::min(400, int(r * zg.xpi * 0.5f / zg.xcirsp));
  if (iopt == 0 || n < 4) return draw_rect(x1, y1, x2, y2);

  auto xs = alloc<float>(4L * (n + 10));
  auto ys = alloc<float>(4L * (n + 10));
  if (!xs || !ys) return;
  // Corners clockwise on the page from the upper left; each arc turns by -pi/2.
  const float cx[4] = {x1 + r, x2 - r, x2 - r, x1 + r};
  const float cy[4] = {y1 + r, y1 + r, y2 - r, y2 - r};
  const float half = 0.5f * zg.xpi, step = half / float(n);
  int k = 0;
  for (int c = 0; c < 4; ++c) {
    const float t0 = zg.xpi - float(c) * half, t1 = t0 - half;
    for (int i = 0; i <= n; ++i, ++k) {
      const float t = i < n ? t0 - float(i) * step : t1;
      xs[k] = cx[c] + r * std::cos(t);
      ys[k] = cy[c] - r * std::sin(t);
    }
  }
  xs[k] = xs[0];
  ys[k] = ys[0];
  outline_and_fill(xs.get(), ys.get(), k + 1);
}

void rndrec(int nx, int ny, int nw, int nh, int iopt) {
  if (jqqlev(1, 3, "RNDREC")) return;
  const int bad = jqqval(nw, 1, 32000) + jqqval(nh, 1, 32000) + jqqval(iopt, 0, 9);
  if (bad != 0) return;
  draw_rndrec(nx, prims_iyvl(ny), nw, nh, iopt);
}

void xpolyl(const float* xray, const float* yray, int n) {
  if (n < 2 || xray == nullptr || yray == nullptr) return;
  for (int i = 0; i < n; ++i)
    if (!prims_finite(xray[i], yray[i])) {
      zg.cproc = "XPOLYL";
      return warnin(2);
    }
  qqmove(xray[0], yray[0]);
  for (int i = 1; i < n; ++i) qqdraw(xray[i], yray[i]);
  qqdraw(xray[0], yray[0]);
}

namespace {

void style_point(float x, float y, bool start) {
  if (!prims_finite(x, y)) return warnin(2);
  if (zg.ipgorg == 1 && zg.iyflip == 0) y = float(zg.nypag) - y;
  if (start) strtqq(x, y);
  else connqq(x, y);
}

}  // namespace

void strtpt(float x, float y) {
  if (jqqlev(1, 3, "STRTPT")) return;
  style_point(x, y, true);
}

void connpt(float x, float y) {
  if (jqqlev(1, 3, "CONNPT")) return;
  style_point(x, y, false);
}

void circsp(int nspc) {
  chkini("CIRCSP");
  if (jqqval(nspc, 1, 1000000)) return;
  zg.xcirsp = float(nspc);
}

}  // namespace zb
