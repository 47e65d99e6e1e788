// Symbols: the 24 built-in markers from three small tables, the user symbol of mysymb,
// and their rotation. Symbol lines enter at the stroke stage, so they are always solid;
// filled symbols are scanned with thin lines at 0.75 plot units.
#include <array>
#include <cstdint>
#include <memory>

#include "draw/fill.h"
#include "draw/line.h"
#include "draw/prims.h"
#include "draw/prims_internal.h"
#include "frame/frame.h"

namespace zb {

namespace {

// Outline points in percent of the symbol size, y downward. 0-4 square, 5-13 octagon,
// 14-17 triangle up, 18-21 triangle down, 22-26 diamond, 27-30 plus, 31-34 cross,
// 35-53 circle (its first 10 points are the half circle).
constexpr std::array<std::int8_t, 54> kSymX = {
    -50, -50, 50,  50,  -50,                                    // square
    -20, -50, -50, -20, 20,  50,  50,  20,  -20,                // octagon
    0,   50,  -50, 0,                                           // triangle up
    -50, 0,   50,  -50,                                         // triangle down
    0,   50,  0,   -50, 0,                                      // diamond
    -50, 50,  0,   0,                                           // plus
    -50, 50,  50,  -50,                                         // cross
    49,  49,  42,  27,  9,   -9,  -27, -42, -49, -49,           // circle
    -49, -42, -27, -9,  9,   27,  42,  49,  49};
constexpr std::array<std::int8_t, 54> kSymY = {
    -50, 50,  50,  -50, -50,
    -50, -20, 20,  50,  50,  20,  -20, -50, -50,
    -50, 50,  50,  -50,
    -50, 50,  -50, -50,
    -50, 0,   50,  0,   -50,
    0,   0,   -50, 50,
    -50, 50,  -50, 50,
    0,   -9,  -27, -42, -49, -49, -42, -27, -9,  0,
    9,   27,  42,  49,  49,  42,  27,  9,   -9};

// At each symbol's index: the number of strokes, then per stroke its first point and
// its number of points.
constexpr std::array<std::int8_t, 106> kSymStrokes = {
    1, 0,  5,                          // 0 square
    1, 5,  9,                          // 1 octagon
    1, 14, 4,                          // 2 triangle up
    2, 27, 2,  29, 2,                  // 3 plus
    2, 31, 2,  33, 2,                  // 4 cross
    1, 22, 5,                          // 5 diamond
    1, 18, 4,                          // 6 triangle down
    3, 0,  5,  31, 2,  33, 2,          // 7 square and cross
    4, 27, 2,  29, 2,  31, 2,  33, 2,  // 8 plus and cross
    3, 22, 5,  27, 2,  29, 2,          // 9 diamond and plus
    3, 5,  9,  27, 2,  29, 2,          // 10 octagon and plus
    2, 18, 4,  14, 4,                  // 11 triangle down and up
    3, 0,  5,  27, 2,  29, 2,          // 12 square and plus
    3, 5,  9,  31, 2,  33, 2,          // 13 octagon and cross
    2, 0,  5,  14, 4,                  // 14 square and triangle up
    1, 35, 19,                         // 15 circle
    1, 0,  5,                          // 16 square, filled
    1, 5,  9,                          // 17 octagon, filled
    1, 14, 4,                          // 18 triangle up, filled
    1, 22, 5,                          // 19 diamond, filled
    1, 18, 4,                          // 20 triangle down, filled
    1, 35, 19,                         // 21 circle, filled
    1, 35, 10,                         // 22 half circle
    1, 35, 10};                        // 23 half circle, filled
constexpr std::array<std::int8_t, 24> kSymIndex = {0,  3,  6,  9,  14, 19, 22, 25,
                                                   32, 41, 48, 55, 60, 67, 74, 79,
                                                   82, 85, 88, 91, 94, 97, 100, 103};

// Points of the user symbol, -1 to 1 with y upward; zg.nmysym says how many are valid.
std::unique_ptr<float[]> g_xmysym, g_ymysym;
int g_nalloc = 0;

// Places n points of a stroke: rotation, move to (px, py), pen stream, fill.
void place(float* x, float* y, int n, float px, float py, bool turn, float sn, float cs,
           bool filled) {
  if (turn) trfro2(x, y, n, sn, cs);
  for (int i = 0; i < n; ++i) {
    x[i] += px;
    y[i] += py;
  }
  qqmove(x[0], y[0]);
  for (int i = 1; i < n; ++i) qqdraw(x[i], y[i]);
  if (filled) gkwfa(n, x, y, 0.75f / zg.unitfac, xline);
}

}  // namespace

void dsymbl(int nsym, int nx, int ny) {
  const float px = float(std::int64_t(nx) + zg.nxorg);
  const float py = float(std::int64_t(ny) + zg.nyorg);
  const bool turn = std::fabs(zg.xsymang) > zg.eps;
  const float t = -zg.xsymang * zg.xpi / 180.0f;
  const float sn = turn ? std::sin(t) : 0.0f, cs = turn ? std::cos(t) : 1.0f;

  if (zg.nmysym != 0 && nsym == zg.imysym && g_xmysym) {
    const int n = std::min(zg.nmysym, g_nalloc);
    auto x = alloc<float>(n), y = alloc<float>(n);
    if (!x || !y) return;
    const float s = 0.5f * float(zg.hsym);
    for (int i = 0; i < n; ++i) {
      x[i] = s * g_xmysym[i];
      y[i] = -s * g_ymysym[i];
    }
    place(x.get(), y.get(), n, px, py, turn, sn, cs, zg.imysfl == 1);
    return;
  }
  if (nsym < 0 || nsym >= int(kSymIndex.size())) return;

  const float s = float(zg.hsym) / 100.0f;
  const int at = kSymIndex[std::size_t(nsym)];
  const int nstroke = kSymStrokes[std::size_t(at)];
  for (int k = 0; k < nstroke; ++k) {
    const int first = kSymStrokes[std::size_t(at + 1 + 2 * k)];
    int n = kSymStrokes[std::size_t(at + 2 + 2 * k)];
    std::array<float, 20> x{}, y{};
    for (int i = 0; i < n; ++i) {
      x[std::size_t(i)] = s * float(kSymX[std::size_t(first + i)]);
      y[std::size_t(i)] = s * float(kSymY[std::size_t(first + i)]);
    }
    if (nsym == 22 || nsym == 23) {   // the half circle closes over its flat side
      x[std::size_t(n)] = x[0];
      y[std::size_t(n)] = y[0];
      ++n;
    }
    place(x.data(), y.data(), n, px, py, turn, sn, cs, nsym >= 16 && nsym != 22);
  }
}

void draw_symbol(int nsym, int nx, int ny) {
  const bool user = nsym == zg.imysym && zg.nmysym != 0;
  if (!user && jqqval(nsym, 0, zg.nsymmx)) return;
  const std::int64_t x = std::int64_t(nx) + zg.nxorg, y = std::int64_t(ny) + zg.nyorg;
  if (x < 0 || x > zg.nxpag || y < 0 || y > zg.nypag) {
    // Counted as a warning; drawn all the same, clipping decides what shows.
    ++zg.nwarn;
    if (zg.lunerr != 0 && zg.iwarn != 0) {
      qqerrfil();
      lun_write(zg.lunerr, " >>>> (" + fmt_i(long(x), 8) + "/" + fmt_i(long(y), 8) +
                               ") out of page in SYMBOL!");
    }
  }
  dsymbl(nsym, nx, ny);
}

void symbol(int nsym, int nx, int ny) {
  if (jqqlev(1, 3, "SYMBOL")) return;
  draw_symbol(nsym, nx, prims_iyvl(ny));
}

void mysymb(const float* xray, const float* yray, int n, int isym, int iflag) {
  chkini("MYSYMB");
  if (n < 1) return warni1(2, n);
  if (iflag != 0 && iflag != 1) return warni1(2, iflag);
  if (isym < 0) return warni1(2, isym);
  if (xray == nullptr || yray == nullptr) return warnin(2);
  bool out = false;
  for (int i = 0; i < n; ++i) {
    if (!prims_finite(xray[i], yray[i])) return warnin(2);
    out = out || std::fabs(xray[i]) > 1.00001f || std::fabs(yray[i]) > 1.00001f;
  }
  if (out) {
    qqserr("Values out of range");
    warnin(101);
  }
  auto x = alloc<float>(n), y = alloc<float>(n);
  if (!x || !y) return;
  for (int i = 0; i < n; ++i) {
    x[i] = xray[i];
    y[i] = yray[i];
  }
  g_xmysym = std::move(x);
  g_ymysym = std::move(y);
  g_nalloc = n;
  zg.nmysym = n;
  zg.imysym = isym;
  zg.imysfl = iflag;
}

void symrot(float xang) {
  chkini("SYMROT");
  if (!prims_finite(xang)) return warnin(2);
  zg.xsymang = xang;
}

}  // namespace zb
