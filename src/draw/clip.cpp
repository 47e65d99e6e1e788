// Clipping stage of the line pipeline: segments cut to the clipping window or circle, the
// window of the axis system (setclp, sclpax) and the public clipping setters.
//
// Zones of a coordinate against the window, with a tolerance of 0.001:
//        1    |    2    |    3
//   ----------+---------+----------   x1 - 0.001 ... x2 + 0.001 is zone 2 (inside)
#include <algorithm>
#include <cmath>
#include <cstdint>

#include "draw/line.h"
#include "draw/line_internal.h"

namespace zb {

namespace {

constexpr float kTol = 0.001f;

inline int zone(float v, float lo, float hi) { return v < lo - kTol ? 1 : (v > hi + kTol ? 3 : 2); }

// Cuts the segment to the window; moved tells that the first point was moved onto an edge.
bool clip_rect(float& x1, float& y1, float& x2, float& y2, bool& moved) {
  const float xl = float(zg.nclpx1), xh = float(zg.nclpx2);
  const float yl = float(zg.nclpy1), yh = float(zg.nclpy2);
  for (int pass = 0; pass < 8; ++pass) {
    const int zx1 = zone(x1, xl, xh), zy1 = zone(y1, yl, yh);
    const int zx2 = zone(x2, xl, xh), zy2 = zone(y2, yl, yh);
    const bool out1 = zx1 != 2 || zy1 != 2, out2 = zx2 != 2 || zy2 != 2;
    if (!out1 && !out2) return std::isfinite(x1) && std::isfinite(y1) && std::isfinite(x2) && std::isfinite(y2);
    if ((zx1 == zx2 && zx1 != 2) || (zy1 == zy2 && zy1 != 2)) return false;
    // Move the outside point (the first one if it is out) onto an edge of its zone.
    float& px = out1 ? x1 : x2;
    float& py = out1 ? y1 : y2;
    const int zx = out1 ? zx1 : zx2, zy = out1 ? zy1 : zy2;
    if (zx != 2) {
      const float xe = zx == 1 ? xl : xh;
      const float ny = y1 == y2 ? y1 : y1 + (y2 - y1) * (xe - x1) / (x2 - x1);
      px = xe;
      py = ny;
    } else {
      const float ye = zy == 1 ? yl : yh;
      const float nx = x1 == x2 ? x1 : x1 + (x2 - x1) * (ye - y1) / (y2 - y1);
      px = nx;
      py = ye;
    }
    if (out1) moved = true;
  }
  return false;
}

// Points where the line through the segment meets the circle, as parameters t of
// (x1, y1) + t (dx, dy); false for fewer than two.
bool cutcrc(float u1, float v1, float dx, float dy, float r, float& t1, float& t2) {
  const float a = dx * dx + dy * dy;
  const float b = 2.0f * (u1 * dx + v1 * dy);
  const float c = u1 * u1 + v1 * v1 - r * r;
  const float disc = b * b - 4.0f * a * c;
  if (!(a > 0.0f) || !(disc > 0.0f)) return false;
  const float q = std::sqrt(disc);
  t1 = (-b - q) / (2.0f * a);
  t2 = (-b + q) / (2.0f * a);
  return true;
}

bool clip_circle(float& x1, float& y1, float& x2, float& y2, bool& moved) {
  const float cx = zg.xclpc, cy = zg.yclpc, r = zg.xclpr;
  const float r1 = std::sqrt((x1 - cx) * (x1 - cx) + (y1 - cy) * (y1 - cy));
  const float r2 = std::sqrt((x2 - cx) * (x2 - cx) + (y2 - cy) * (y2 - cy));
  const bool in1 = r1 <= r, in2 = r2 <= r;
  if (in1 && in2) return true;
  const float dx = x2 - x1, dy = y2 - y1;
  if (!in1 && !in2) {
    if (std::fabs(dx) + std::fabs(dy) < 0.1f) return false;
    float t1, t2;
    if (!cutcrc(x1 - cx, y1 - cy, dx, dy, r, t1, t2)) return false;
    if (t1 < 0.0f || t2 > 1.0f) return false;
    if (azimuthal_circle_clip()) return false;
    x2 = x1 + t2 * dx;
    y2 = y1 + t2 * dy;
    x1 = x1 + t1 * dx;
    y1 = y1 + t1 * dy;
    moved = true;
    return true;
  }
  // One end inside: bisection between it and the outside end for the point on the circle.
  float ix = in1 ? x1 : x2, iy = in1 ? y1 : y2, ox = in1 ? x2 : x1, oy = in1 ? y2 : y1;
  float mx = ox, my = oy, rm = 0.0f;
  for (int k = 0; k < 20; ++k) {
    mx = 0.5f * (ix + ox);
    my = 0.5f * (iy + oy);
    rm = std::sqrt((mx - cx) * (mx - cx) + (my - cy) * (my - cy));
    if (std::fabs(rm - r) < 0.1f) break;
    if (rm < r) { ix = mx; iy = my; }
    else { ox = mx; oy = my; }
  }
  // An outside end too far away for 20 halvings: the cut of the line with the circle.
  if (!(rm <= r + 0.1f)) {
    float t1, t2;
    if (!cutcrc(x1 - cx, y1 - cy, dx, dy, r, t1, t2)) return false;
    const float t = in1 ? t2 : t1;
    mx = x1 + t * dx;
    my = y1 + t * dy;
    if (!std::isfinite(mx) || !std::isfinite(my)) return false;
  }
  if (in1) {
    x2 = mx;
    y2 = my;
  } else {
    x1 = mx;
    y1 = my;
    moved = true;
  }
  return true;
}

bool screen_or_raster() { return zg.idev < 101 || (zg.idev >= 601 && zg.idev <= 700); }

// The screen and raster drivers clip their own fills to the window, in device units.
void pass_window() {
  if (!screen_or_raster() || zg.ilevel == 0) return;
  const float s = zg.devscl;
  auto dev = [s](int x, int y, int& ix, int& iy) {
    if (zg.ipgmod == 1) {
      ix = int(float(y) * s + 0.5f);
      iy = int(float(zg.nxpag - x) * s + 0.5f);
    } else {
      ix = int(float(x) * s + 0.5f);
      iy = int(float(y) * s + 0.5f);
    }
  };
  int ax, ay, bx, by;
  dev(zg.nclpx1, zg.nclpy1, ax, ay);
  dev(zg.nclpx2, zg.nclpy2, bx, by);
  qqwext(11, std::min(ax, bx));
  qqwext(12, std::min(ay, by));
  qqwext(13, std::max(ax, bx));
  qqwext(14, std::max(ay, by));
}

void set_window(int x1, int y1, int x2, int y2) {
  zg.nclpx1 = x1;
  zg.nclpy1 = y1;
  zg.nclpx2 = x2;
  zg.nclpy2 = y2;
}

int clamp_int(std::int64_t v, std::int64_t lo, std::int64_t hi) { return int(std::clamp(v, lo, hi)); }

}  // namespace

void visible_segment(float x1, float y1, float x2, float y2) {
  if (zg.ihidln != 0) {
    dhline(x1, y1, 3);
    dhline(x2, y2, 2);
  } else if (zg.ishield > 0) {
    qqbl01(x1, y1, x2, y2);
  } else {
    xjdraw(x2, y2, 2);
  }
}

void clip2d(float x1, float y1, float x2, float y2) {
  if (!std::isfinite(x1) || !std::isfinite(y1) || !std::isfinite(x2) || !std::isfinite(y2)) return;
  bool moved = false;
  const bool seen = zg.iclpcirc != 0 ? clip_circle(x1, y1, x2, y2, moved)
                                     : clip_rect(x1, y1, x2, y2, moved);
  if (!seen) return;
  if (moved && zg.ihidln == 0) xjdraw(x1, y1, 3);
  visible_segment(x1, y1, x2, y2);
}

int jqqclp(float x, float y) {
  if (zg.iclpcirc != 0) {
    const float dx = x - zg.xclpc, dy = y - zg.yclpc;
    return std::sqrt(dx * dx + dy * dy) <= zg.xclpr ? 0 : 1;
  }
  const bool in = x >= float(zg.nclpx1) - kTol && x <= float(zg.nclpx2) + kTol &&
                  y >= float(zg.nclpy1) - kTol && y <= float(zg.nclpy2) + kTol;
  return in ? 0 : 1;
}

bool clip_box(float& x1, float& y1, float& x2, float& y2) {
  if (!std::isfinite(x1) || !std::isfinite(y1) || !std::isfinite(x2) || !std::isfinite(y2)) return false;
  if (x1 > x2) std::swap(x1, x2);
  if (y1 > y2) std::swap(y1, y2);
  x1 = std::max(x1, float(zg.nclpx1));
  y1 = std::max(y1, float(zg.nclpy1));
  x2 = std::min(x2, float(zg.nclpx2));
  y2 = std::min(y2, float(zg.nclpy2));
  return x1 <= x2 && y1 <= y2;
}

void setclp() {
  std::int64_t g = zg.ngrace;
  if (g == -1 && screen_or_raster() && zg.devscl > 0.0f)
    g -= std::int64_t(std::min(0.99f / zg.devscl + 0.5f, 1.0e9f));
  const std::int64_t x0 = std::int64_t(zg.nxa) + zg.nxorg, y0 = std::int64_t(zg.nya) + zg.nyorg;
  const std::int64_t big = 2000000000;
  zg.nclax1 = clamp_int(x0 - g, 0, big);
  zg.nclay1 = clamp_int(y0 - zg.nyl + 1 - g, 0, big);
  zg.nclax2 = clamp_int(x0 + zg.nxl - 1 + g, -big, zg.nxpag);
  zg.nclay2 = clamp_int(y0 + g, -big, zg.nypag);
  zg.xclpc = float(x0) + 0.5f * float(zg.nxl);
  zg.yclpc = float(y0) - 0.5f * float(zg.nyl);
  zg.xclpr = std::max(0.5f * float(std::min(zg.nxl, zg.nyl)) + float(g), 0.0f);
}

void sclpax(int mode) {
  if (zg.iclpbd == 2) return;
  qqstrk();
  if (mode == 1) {
    set_window(zg.nclsx1, zg.nclsy1, zg.nclsx2, zg.nclsy2);
    zg.iclpcirc = 0;
    pass_window();
    return;
  }
  if (mode != 0) return;
  zg.nclsx1 = zg.nclpx1;
  zg.nclsy1 = zg.nclpy1;
  zg.nclsx2 = zg.nclpx2;
  zg.nclsy2 = zg.nclpy2;
  if (zg.iclpmd == 1) return;
  if (zg.iclpmd == 2 || (zg.ilevel >= 2 && zg.iaxknd == 1) || (zg.iclpmd == 0 && azimuthal_circle_clip())) {
    zg.iclpcirc = 1;
    return;
  }
  set_window(std::max(zg.nclpx1, zg.nclax1), std::max(zg.nclpy1, zg.nclay1),
             std::min(zg.nclpx2, zg.nclax2), std::min(zg.nclpy2, zg.nclay2));
  pass_window();
}

void release_axis_clip() {
  if (zg.iclpbd != 2) return;
  zg.iclpbd = 0;
  sclpax(1);
}

void clpwin(int nx, int ny, int nw, int nh) {
  if (jqqlev(1, 3, "CLPWIN")) return;
  if (nx < 0 || ny < 0) {
    warni1(2, std::min(nx, ny));
    return;
  }
  if (nw < 1 || nh < 1 || std::int64_t(nx) + nw - 1 > zg.nxpag || std::int64_t(ny) + nh - 1 > zg.nypag) {
    warni1(2, std::min(nw, nh));
    return;
  }
  qqstrk();
  zg.iclpbd = 1;
  const int y1 = jqqyvl(ny), y2 = jqqyvl(ny + nh - 1);
  set_window(nx, std::min(y1, y2), nx + nw - 1, std::max(y1, y2));
  pass_window();
}

void clpbor(std::string_view copt) {
  if (jqqlev(2, 3, "CLPBOR")) return;
  const int i = jqqind("PAGE+AXIS", 2, copt);
  if (i == 0) return;
  // Out of an earlier AXIS first, so that a second one saves the page, not the axis window.
  release_axis_clip();
  zg.iclpbd = 0;
  if (i == 1) {
    qqstrk();
    zg.iclpcirc = 0;
    set_window(0, 0, zg.nxpag, zg.nypag);
    pass_window();
  } else {
    sclpax(0);
    zg.iclpbd = 2;
  }
}

void clpmod(std::string_view cmod) {
  chkini("CLPMOD");
  const int i = jqqind("AUTO+NONE+CIRC+RECT", 4, cmod);
  if (i > 0) zg.iclpmd = i - 1;
}

void noclip() {
  chkini("NOCLIP");
  zg.iclpmd = 1;
}

void getclp(int& nx, int& ny, int& nw, int& nh) {
  chkini("GETCLP");
  nx = zg.nclpx1;
  nw = zg.nclpx2 - zg.nclpx1 + 1;
  nh = zg.nclpy2 - zg.nclpy1 + 1;
  // Measured from the bottom, the window starts at its lower edge.
  ny = (zg.ipgorg == 1 && zg.iyflip == 0) ? jqqyvl(zg.nclpy2) : zg.nclpy1;
}

void grace(int ngrace) {
  chkini("GRACE");
  zg.ngrace = ngrace;
  if (zg.ilevel >= 2) setclp();
}

}  // namespace zb
