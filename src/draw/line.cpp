// Stroke buffer: collects points and hands each run of them to the dispatcher.
#include "draw/line.h"

#include <algorithm>
#include <utility>

#include "draw/device.h"
#include "frame/frame.h"

namespace zb {

void strtqq(float x, float y) {
  zg.xlast = float(zg.nxorg) + x;
  zg.ylast = float(zg.nyorg) + y;
  qqmove(zg.xlast, zg.ylast);
}

void connqq(float x, float y) {
  zg.xlast = float(zg.nxorg) + x;
  zg.ylast = float(zg.nyorg) + y;
  qqdraw(zg.xlast, zg.ylast);
}

void qqmove(float x, float y) {
  qqstrk();
  zg.nstrk = 1;
  zg.xstrk[0] = x;
  zg.ystrk[0] = y;
}

void qqdraw(float x, float y) {
  zg.xstrk[std::size_t(zg.nstrk)] = x;
  zg.ystrk[std::size_t(zg.nstrk)] = y;
  ++zg.nstrk;
  if (zg.nstrk == 100) {
    qqstrk();
    zg.nstrk = 1;
    zg.xstrk[0] = x;
    zg.ystrk[0] = y;
  }
}

void qqstrk() {
  if (zg.nstrk == 0) return;
  for (int i = 1; i < zg.nstrk; ++i)
    clip2d(zg.xstrk[std::size_t(i - 1)], zg.ystrk[std::size_t(i - 1)], zg.xstrk[std::size_t(i)],
           zg.ystrk[std::size_t(i)]);
  zg.nstrk = 0;
}

void clip2d(float x1, float y1, float x2, float y2) {
  xjdraw(x1, y1, 3);
  xjdraw(x2, y2, 2);
}

}  // namespace zb

namespace zb {

bool clip_box(float& x1, float& y1, float& x2, float& y2) {
  if (x1 > x2) std::swap(x1, x2);
  if (y1 > y2) std::swap(y1, y2);
  x1 = std::max(x1, 0.0f);
  y1 = std::max(y1, 0.0f);
  x2 = std::min(x2, float(zg.nxpag));
  y2 = std::min(y2, float(zg.nypag));
  return x1 <= x2 && y1 <= y2;
}

}  // namespace zb
