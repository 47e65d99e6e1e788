// Arrows and wind barbs: vector with its four-digit head code, windbr with pennants,
// barbs and half barbs around a staff.
#include <cstdint>

#include "draw/fill.h"
#include "draw/line.h"
#include "draw/prims.h"
#include "draw/prims_internal.h"
#include "frame/frame.h"

namespace zb {

namespace {

// One head: base centre (bx, by), tip (tx, ty), half base w across the direction t.
// d3 0 filled, 1 and 3 closed, 2 open. Coordinates have the origin added here.
void arrow_head(float bx, float by, float tx, float ty, float w, float sn, float cs, int d3) {
  const float ox = float(zg.nxorg), oy = float(zg.nyorg);
  float x[3] = {bx + w * sn + ox, tx + ox, bx - w * sn + ox};
  float y[3] = {by + w * cs + oy, ty + oy, by - w * cs + oy};
  qqmove(x[0], y[0]);
  qqdraw(x[1], y[1]);
  qqdraw(x[2], y[2]);
  if (d3 != 2) qqdraw(x[0], y[0]);
  if (d3 == 0) gkwfa(3, x, y, 0.75f, xline);
}

}  // namespace

void draw_vector(int nx1, int ny1, int nx2, int ny2, int ivec) {
  if (ivec < 0 || ivec > 9999) return warni1(2, ivec);
  const int d1 = ivec / 1000, d2 = ivec / 100 % 10, d3 = ivec / 10 % 10, d4 = ivec % 10;
  const float x1 = float(nx1), y1 = float(ny1), x2 = float(nx2), y2 = float(ny2);
  if (d4 == 0 || d3 != 1) {
    strtqq(x1, y1);
    connqq(x2, y2);
  }
  if (d4 == 0) return;
  if (d3 > 3) return warni1(2, d3);
  if (d4 > 3) return warni1(2, d4);

  const float h = 10.0f * float(d2) + 10.0f;
  const float w = h * (float(d1) + 0.5f) / 4.5f;
  // Direction counter-clockwise on the page (y downward), and the length.
  const float dx = x2 - x1, dy = y1 - y2;
  float t;
  if (dx == 0.0f) t = dy < 0.0f ? -0.5f * zg.xpi : 0.5f * zg.xpi;
  else if (dy == 0.0f) t = dx < 0.0f ? zg.xpi : 0.0f;
  else t = std::atan2(dy, dx);
  const float len = std::sqrt(dx * dx + dy * dy);
  const float cs = std::cos(t), sn = std::sin(t);
  auto ax = [&](float s) { return x1 + s * cs; };   // point s along the vector
  auto ay = [&](float s) { return y1 - s * sn; };

  if (d3 == 1) {
    const float s0 = d4 < 2 ? 0.0f : h;
    strtqq(ax(s0), ay(s0));
    connqq(ax(len - h), ay(len - h));
  }
  arrow_head(ax(len - h), ay(len - h), ax(len), ay(len), w, sn, cs, d3);
  if (d4 == 2) arrow_head(ax(h), ay(h), x1, y1, w, sn, cs, d3);
  if (d4 == 3) arrow_head(x1, y1, ax(h), ay(h), w, sn, cs, d3);
}

void vector(int nx1, int ny1, int nx2, int ny2, int ivec) {
  if (jqqlev(1, 3, "VECTOR")) return;
  draw_vector(nx1, prims_iyvl(ny1), nx2, prims_iyvl(ny2), ivec);
}

namespace {

// Pieces of a barb, built with the staff from (0, 0) to (0, -nw), turned by a and moved
// to the station.
struct BarbFrame {
  float sn, cs, px, py;
  void map(float* x, float* y, int n) const {
    trfro2(x, y, n, sn, cs);
    for (int i = 0; i < n; ++i) {
      x[i] += px;
      y[i] += py;
    }
  }
  void line(float x1, float y1, float x2, float y2) const {
    float x[2] = {x1, x2}, y[2] = {y1, y2};
    map(x, y, 2);
    strtqq(x[0], y[0]);
    connqq(x[1], y[1]);
  }
};

}  // namespace

void draw_windbr(float xv, int nx, int ny, int nw, float a) {
  const int ipat = zg.ipatnr;
  const int hs = zg.hsym, d = zg.hsym / 3;
  const float h = float(hs);
  if (prims_nint(xv) < 1) {   // calm: two rings
    shdpat(0);
    dsymbl(15, nx, ny);
    zg.hsym = hs - hs / 5;
    dsymbl(15, nx, ny);
    zg.hsym = hs;
    shdpat(ipat);
    return;
  }
  const int npen = prims_nint(xv + 2.0f) / 50;
  const int nbarb = prims_nint(xv - 50.0f * float(npen) + 2.0f) / 10;
  const int nhalf = prims_nint(xv - 50.0f * float(npen) - 10.0f * float(nbarb) + 2.0f) / 5;

  const float ar = a * zg.fpi;
  const BarbFrame f{std::sin(ar), std::cos(ar), float(nx), float(ny)};
  const float top = -float(nw);
  f.line(0.0f, 0.0f, 0.0f, top);

  shdpat(16);
  float s = 0.0f;   // distance from the far end of the staff
  for (int i = 0; i < npen; ++i) {
    const float y0 = top + s;
    float x[3] = {0.0f, h, 0.0f};
    float y[3] = {y0, y0, y0 + float(hs / 3)};
    f.map(x, y, 3);
    dareaf(x, y, 3);
    s += h / 3.0f + 0.5f * float(d);
  }
  if (npen > 0) s += 0.5f * float(d);
  for (int i = 0; i < nbarb; ++i) {
    const float y0 = top + s;
    f.line(0.0f, y0, h, y0 - float(hs / 3));
    s += float(d);
  }
  if (npen == 0 && nbarb == 0 && nhalf == 1) {
    // A lone half barb sits away from the end of the staff.
    const float y0 = top + s + 0.5f * h;
    f.line(0.0f, y0, float(hs / 2), y0 - float(hs / 2));
  } else {
    for (int i = 0; i < nhalf; ++i) {
      const float y0 = top + s;
      f.line(0.0f, y0, float(hs / 2), y0 - float(hs / 6));
      s += float(d);
    }
  }
  shdpat(ipat);
}

void windbr(float xv, int nx, int ny, int nw, float a) {
  if (!prims_finite(xv, a) || std::fabs(xv) > kMaxWind) {
    zg.cproc = "WINDBR";
    return warnin(2);
  }
  draw_windbr(xv, nx, prims_iyvl(ny), nw, a);
}

}  // namespace zb
