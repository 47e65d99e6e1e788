// Solid ring sectors: one "sec" record on PostScript, an ARC command in the Kyocera
// printer language, and a scanned polygon of 1-degree steps on every other output.
#include <algorithm>
#include <array>
#include <cstdint>

#include "draw/colour.h"
#include "draw/device.h"
#include "draw/fill.h"
#include "draw/line.h"
#include "draw/prims.h"
#include "draw/prims_internal.h"
#include "frame/frame.h"

namespace zb {

namespace {

// Grey patterns of the printer for the sector record: the device layer's patterns with the
// bits of each row in the opposite order.
int kyo_pattern_row(int ipat, int row) {
  const unsigned v = unsigned(grey_pattern_row(ipat, row));
  unsigned r = 0;
  for (int bit = 0; bit < 8; ++bit)
    if (v & (1u << bit)) r |= 128u >> bit;
  return int(r);
}

int scaled(float v) { return prims_nint(v * zg.devscl); }

// PostScript: x y r1 r2 a1 a2 r g b sec, "(4(I5,1X),2(F8.2,1X),3(I3,1X),A)".
void sector_ps(float x, float y, int nr1, int nr2, float alpha, float beta, int ncol) {
  int r, g, b;
  qqgrgb(((ncol % 256) + 256) % 256, r, g, b);
  const bool turned = zg.nypag < zg.nxpag && zg.ipgmod != 2;
  int v[4];
  if (turned) {
    v[0] = scaled(y);
    v[1] = scaled(x);
    alpha += 90.0f;
    beta += 90.0f;
  } else {
    v[0] = scaled(x);
    v[1] = scaled(float(zg.nypag) - y);
  }
  v[2] = scaled(float(nr1));
  v[3] = scaled(float(nr2));
  std::string rec;
  for (int k : v) rec += fmt_i(k, 5) + " ";
  rec += fmt_f(alpha, 8, 2) + " " + fmt_f(beta, 8, 2) + " ";
  rec += fmt_i(r, 3) + " " + fmt_i(g, 3) + " " + fmt_i(b, 3) + " sec ";
  qqstrk();
  xjdraw(0.0f, 0.0f, 999);   // the open path goes out first
  qpsbuf(rec);
}

// Cuts a polygon to the half plane where side(x, y) >= 0 (Sutherland-Hodgman); the result
// goes to (xo, yo), at most cap points. The scan of a huge sector then stays on the page.
template <class Side>
int cut_polygon(const float* x, const float* y, int n, float* xo, float* yo, int cap, Side side) {
  int m = 0;
  for (int i = 0; i < n && m + 2 <= cap; ++i) {
    const int j = i + 1 == n ? 0 : i + 1;
    const float si = side(x[i], y[i]), sj = side(x[j], y[j]);
    if (si >= 0.0f) {
      xo[m] = x[i];
      yo[m++] = y[i];
    }
    if ((si >= 0.0f) != (sj >= 0.0f)) {
      const float t = si / (si - sj);
      xo[m] = x[i] + t * (x[j] - x[i]);
      yo[m++] = y[i] + t * (y[j] - y[i]);
    }
  }
  return m;
}

// The polygon cut to the clipping window widened by one unit; returns the new count.
int cut_to_window(std::array<float, 1600>& x, std::array<float, 1600>& y, int n) {
  std::array<float, 1600> u{}, v{};
  const float x1 = float(zg.nclpx1) - 1.0f, x2 = float(zg.nclpx2) + 1.0f;
  const float y1 = float(zg.nclpy1) - 1.0f, y2 = float(zg.nclpy2) + 1.0f;
  const int cap = int(x.size());
  n = cut_polygon(x.data(), y.data(), n, u.data(), v.data(), cap, [&](float a, float) { return a - x1; });
  n = cut_polygon(u.data(), v.data(), n, x.data(), y.data(), cap, [&](float a, float) { return x2 - a; });
  n = cut_polygon(x.data(), y.data(), n, u.data(), v.data(), cap, [&](float, float b) { return b - y1; });
  return cut_polygon(u.data(), v.data(), n, x.data(), y.data(), cap, [&](float, float b) { return y2 - b; });
}

// Other outputs: the ring as a polygon in 1-degree steps, scanned at 2 plot units.
void sector_scan(float x, float y, int nr1, int nr2, float alpha, float beta, int ncol) {
  beta = std::min(beta, alpha + 360.0f);
  std::array<float, 1600> xs{}, ys{};   // 800 points of the ring, room for the cut
  int n = 0;
  const int steps = int(std::ceil(std::min(beta - alpha, 360.0f)));
  auto at = [&](float r, float t) {
    xs[std::size_t(n)] = x + r * std::cos(t * zg.fpi);
    ys[std::size_t(n)] = y - r * std::sin(t * zg.fpi);
    ++n;
  };
  for (int k = 0; k < steps; ++k) {
    if (alpha + float(k) >= beta) break;
    at(float(nr2), alpha + float(k));
  }
  at(float(nr2), beta);
  if (nr1 == 0) {
    xs[std::size_t(n)] = x;
    ys[std::size_t(n)] = y;
    ++n;
  } else {
    for (int k = 0; k < steps; ++k) {
      if (beta - float(k) <= alpha) break;
      at(float(nr1), beta - float(k));
    }
    at(float(nr1), alpha);
  }
  n = cut_to_window(xs, ys, n);
  if (n < 3) return;
  const int iclr = zg.ipenclr;
  setclr(ncol);
  gkwfa(n, xs.data(), ys.data(), 2.0f, xline);
  setclr(iclr);
}

}  // namespace

void kdarc(int nx, int ny, int nr2, int nr1, float beta, float alpha, int ipat) {
  if (ipat < 1 || ipat > 9 || !prims_finite(alpha, beta)) return;
  const int x = scaled(float(std::int64_t(nx) + zg.nxorg));
  const int y = scaled(float(std::int64_t(ny) + zg.nyorg));
  std::string rec = "MAP " + fmt_i(x, 4) + "," + fmt_i(y, 4) + "; FPAT ";
  for (std::size_t i = 0; i < 8; ++i) {
    if (i > 0) rec += ",";
    rec += fmt_i(kyo_pattern_row(ipat, int(i)), 3);
  }
  // The printer counts angles clockwise from the top.
  rec += "; ARC " + fmt_i(scaled(float(nr1)), 4) + "," + fmt_i(scaled(float(nr2)), 4) + "," +
         fmt_i(90L - prims_nint(beta), 4) + "," + fmt_i(90L - prims_nint(alpha), 4) + ";";
  qqsbuf(rec);
}

void draw_sector(int nx, int ny, int nr1, int nr2, float alpha, float beta, int ncol) {
  if (nr2 < 1) return warni1(51, nr2);
  if (nr1 < 0) return warni1(1, nr1);
  if (!prims_finite(alpha, beta) || !(beta - alpha >= zg.eps)) return warnin(8);
  if (nr2 < nr1) return warnin(7);
  const int d = zg.idev;
  if (d >= 301 && d <= 400) return kdarc(nx, ny, nr2, nr1, beta, alpha, ((ncol % 10) + 10) % 10);
  const float x = float(std::int64_t(nx) + zg.nxorg), y = float(std::int64_t(ny) + zg.nyorg);
  if (d >= 501 && d <= 600 && d != 511) return sector_ps(x, y, nr1, nr2, alpha, beta, ncol);
  sector_scan(x, y, nr1, nr2, alpha, beta, ncol);
}

void sector(int nx, int ny, int nr1, int nr2, float alpha, float beta, int ncol) {
  if (jqqlev(1, 3, "SECTOR")) return;
  draw_sector(nx, prims_iyvl(ny), nr1, nr2, alpha, beta, ncol);
}

}  // namespace zb
