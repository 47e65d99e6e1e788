// curve: a line or symbols through user points in one of eight figures (line, steps,
// stairs, stems, open and filled bars, splines), drawn in thick passes, with markers
// every n-th point, gaps, and the attributes that change from curve to curve.
#include <algorithm>
#include <cmath>
#include <cstdint>

#include "axes/axes.h"
#include "charts/charts.h"
#include "charts/internal.h"
#include "draw/draw.h"
#include "draw/prims.h"

namespace zb {

namespace {

enum Mode : int { kLine = 0, kStep, kBars, kSpli, kPspl, kStem, kStai, kFbar };

struct Pt {
  float x, y;
};

// Real plot position of a user point, without origin.
Pt at(float x, float y) {
  Pt p{};
  qqrel2(x, y, p.x, p.y);
  return p;
}
void move_to(Pt p) { strtqq(p.x, p.y); }
void draw_to(Pt p) { connqq(p.x, p.y); }

// Gap tests between point i - 1 and i: the line mode in both directions, steps forward.
bool gap_either(const float* x, int i) { return zg.igapcv != 0 && std::fabs(x[i] - x[i - 1]) > zg.xgapcv; }
bool gap_forward(const float* x, int i) { return zg.igapcv != 0 && x[i] - x[i - 1] > zg.xgapcv; }

void line_figure(const float* x, const float* y, int n) {
  move_to(at(x[0], y[0]));
  for (int i = 1; i < n; ++i) {
    const Pt p = at(x[i], y[i]);
    if (gap_either(x, i)) move_to(p);
    else draw_to(p);
  }
}

// Steps half-way between the points, with half a step beyond each end.
void step_figure(const float* x, const float* y, int n) {
  float h = (x[1] - x[0]) / 2.0f;
  move_to(at(x[0] - h, y[0]));
  draw_to(at(x[0], y[0]));
  bool gap = false;
  for (int i = 1; i < n; ++i) {
    h = (x[i] - x[i - 1]) / 2.0f;
    gap = gap_forward(x, i);
    if (gap) {
      move_to(at(x[i], y[i]));
      continue;
    }
    draw_to(at(x[i - 1] + h, y[i - 1]));
    draw_to(at(x[i - 1] + h, y[i]));
    draw_to(at(x[i], y[i]));
  }
  if (!gap) draw_to(at(x[n - 1] + h, y[n - 1]));
}

void stair_figure(const float* x, const float* y, int n) {
  move_to(at(x[0], y[0]));
  for (int i = 1; i < n; ++i) {
    if (gap_forward(x, i)) {
      move_to(at(x[i], y[i]));
      continue;
    }
    draw_to(at(x[i], y[i - 1]));
    draw_to(at(x[i], y[i]));
  }
}

void stem_figure(const float* x, const float* y, int n) {
  const bool polar = zg.iaxknd == 1;
  for (int i = 0; i < n; ++i) {
    move_to(polar ? at(0.0f, 0.0f) : at(x[i], 0.0f));
    draw_to(at(x[i], y[i]));
  }
}

// Outline, and fill when asked, of a polygon in plot coordinates; at most 1004 corners.
void polygon(const Pt* p, int n, bool fill) {
  if (fill) {
    std::array<float, 1004> xs{}, ys{};
    const int m = std::min(n, 1004);
    for (int i = 0; i < m; ++i) {
      xs[std::size_t(i)] = p[i].x;
      ys[std::size_t(i)] = p[i].y;
    }
    dareaf(xs.data(), ys.data(), m);
  }
  move_to(p[0]);
  for (int i = 1; i < n; ++i) draw_to(p[i]);
}

// A polar bar: a wedge from the centre out to radius r, angle phi -+ h (radians).
void wedge(float r, float phi, float h, bool fill) {
  const Pt c = at(0.0f, 0.0f), a = at(r, phi);
  const float rp = std::hypot(a.x - c.x, a.y - c.y);
  float steps = rp * 2.0f * std::fabs(h) / std::max(zg.xcirsp, 0.01f);
  if (!(steps < 1000.0f)) steps = 1000.0f;
  const int m = std::max(2, int(steps) + 1);
  std::array<Pt, 1004> p{};
  p[0] = c;
  for (int j = 0; j <= m; ++j) p[std::size_t(j + 1)] = at(r, phi - h + 2.0f * h * float(j) / float(m));
  p[std::size_t(m + 2)] = c;
  polygon(p.data(), m + 3, fill);
}

// Open or filled bars; the fill only in the first pass of a thick curve.
void bar_figure(const float* x, const float* y, int n, bool fill) {
  const float w = zg.xbarw;
  if (zg.iaxknd == 1) {
    const float h = w > 0.0f ? (x[1] - x[0]) * w / 2.0f : std::fabs(w) * zg.xpi / 180.0f / 2.0f;
    for (int i = 0; i < n; ++i) wedge(x[i], y[i], h, fill);
    return;
  }
  const float base = zg.ilogy != 0 ? std::pow(10.0f, zg.ya) : zg.ya;
  for (int i = 0; i < n; ++i) {
    std::array<Pt, 4> c{};
    if (w > 0.0f) {
      const float h = (x[1] - x[0]) * w / 2.0f;
      c = {at(x[i] - h, base), at(x[i] - h, y[i]), at(x[i] + h, y[i]), at(x[i] + h, base)};
    } else {
      const float h = std::fabs(w) / 2.0f, bottom = float(zg.nya);
      const Pt p = at(x[i], y[i]);
      c = {Pt{p.x - h, bottom}, Pt{p.x - h, p.y}, Pt{p.x + h, p.y}, Pt{p.x + h, bottom}};
    }
    polygon(c.data(), 4, fill);
  }
}

void spline_figure(const SplineFit& fit, const float* x, const float* y) {
  for (int j = 0; j <= zg.nsppts; ++j) {
    Pt u{};
    spline_point(fit, x, y, j, u.x, u.y);
    const Pt p = at(u.x, u.y);
    if (j == 0) move_to(p);
    else draw_to(p);
  }
}

// Symbols at the points 1, 1 + |nmrk|, 1 + 2 |nmrk| ...
void markers(const float* x, const float* y, int n) {
  const std::int64_t step = std::max<std::int64_t>(1, std::abs(std::int64_t(zg.nmrk)));
  for (std::int64_t i = 0; i < n; i += step) {
    const Pt p = at(x[i], y[i]);
    dsymbl(zg.nsym, chart_trunc(p.x + 0.5f), chart_trunc(p.y + 0.5f));
  }
}

// The line of the curve in its mode, once per thick pass at the offsets 0, +1, -1, +2 ...
// of the nominal unit, each pass starting its dash pattern afresh.
void curve_line(const float* x, const float* y, int n) {
  const int mode = zg.ipolcv;
  SplineFit fit;
  if ((mode == kSpli || mode == kPspl) && !fit_spline(x, y, n, mode == kPspl, fit)) return;
  const FillState fill0 = zg;
  if (mode == kFbar) keeping_name([] { shdpat(16); });
  const int passes = std::max(1, chart_trunc(float(zg.nthick) * zg.unitfac + 0.5f));
  for (int r = 1; r <= passes; ++r) {
    zg.xoffln = float((r % 2 == 0 ? r : -r) / 2) / zg.unitfac;
    inityp();
    switch (mode) {
      case kStep: step_figure(x, y, n); break;
      case kBars: bar_figure(x, y, n, false); break;
      case kFbar: bar_figure(x, y, n, r == 1); break;
      case kSpli:
      case kPspl: spline_figure(fit, x, y); break;
      case kStem: stem_figure(x, y, n); break;
      case kStai: stair_figure(x, y, n); break;
      default: line_figure(x, y, n); break;
    }
  }
  qqstrk();
  zg.xoffln = 0.0f;
  if (mode == kFbar) static_cast<FillState&>(zg) = fill0;
}

// The dash pattern and its phase, kept across a curve that sets its own style.
struct Style {
  int itypln, npatln, ipatln, ipenup;
  std::array<int, 10> npattn;
  float xpatrem;
};
Style current_style() {
  return {zg.itypln, zg.npatln, zg.ipatln, zg.ipenup, zg.npattn, zg.xpatrem};
}
void restore_style(const Style& s) {
  zg.itypln = s.itypln;
  zg.npatln = s.npatln;
  zg.ipatln = s.ipatln;
  zg.ipenup = s.ipenup;
  zg.npattn = s.npattn;
  zg.xpatrem = s.xpatrem;
}

}  // namespace

void curve(const float* xray, const float* yray, int n) {
  if (jqqlev(2, 3, "CURVE")) return;
  if (n < 1 || (n == 1 && zg.nmrk >= 0) || xray == nullptr || yray == nullptr) {
    warni1(2, n);
    return;
  }
  if (jqqlog(xray, yray, n)) return;

  const int clr0 = zg.ipenclr, nochk0 = zg.inochk, flip0 = zg.iyflip;
  const Style style0 = current_style();
  zg.iyflip = 1;
  const std::size_t ia = std::size_t(std::clamp(zg.iatnum, 1, 30) - 1);
  if ((zg.ichncv == 1 || zg.ichncv == 3) && zg.iclrcy[ia] != -1) {
    qqstrk();
    qqsclr(zg.iclrcy[ia]);
  }
  if (zg.ichncv == 2 || zg.ichncv == 3) keeping_name([&] { lintyp(zg.ilincy[ia]); });
  if (zg.iplegn == 1) {
    slegnd(zg.nlegct + 1);
    zg.iplegn = 0;
  }
  chkscl(xray, yray, n);
  zg.inochk = 1;
  sclpax(0);

  if (zg.nmrk != 0) markers(xray, yray, n);
  if (zg.nmrk >= 0) curve_line(xray, yray, n);

  sclpax(1);
  if (zg.ipenclr != clr0) {
    qqstrk();
    qqsclr(clr0);
  }
  restore_style(style0);
  zg.inochk = nochk0;
  zg.iyflip = flip0;
  // A cycle shortened by inccrv while it runs ends at once.
  if (zg.ncrvcn >= zg.ninccv) {
    zg.ncrvcn = 0;
    chnatt();
  } else {
    ++zg.ncrvcn;
  }
}

}  // namespace zb
