// What stands inside and around an axis system besides its axes: grid lines at the ticks,
// lines and axes through the origin, and the frame with its thickness and colour.
#include <algorithm>
#include <string>

#include "axes/axes.h"
#include "draw/line.h"
#include "frame/frame.h"

namespace zb {

namespace {

// The scaling of a linear axis holds 0 strictly inside.
bool holds_zero(float a, float e, int ilog) {
  if (ilog != 0) return false;
  const float lo = std::min(a, e), hi = std::max(a, e);
  return lo + zg.eps < 0.0f && hi - zg.eps > 0.0f;
}

// Plot position of the origin 0, 0 of the axis system, without page origin or flip.
void origin_at(float& x, float& y) { qqpos2(0.0f, 0.0f, x, y); }

}  // namespace

[[gnu::weak]] void grdpol(int, int) {}

void grid(int ixgrid, int iygrid) {
  if (jqqlev(2, 3, "GRID")) return;
  if (ixgrid < 0) warni1(2, ixgrid);
  if (iygrid < 0) warni1(2, iygrid);
  const int nx = std::max(ixgrid, 0), ny = std::max(iygrid, 0);
  if (zg.iaxknd == 1) {
    const float m = 360.0f / zg.ystp + 0.5f;
    const int mi = (m >= 0.0f && m < 1.0e6f) ? int(m) : 0;
    grdpol(nx, int(std::min<long long>((long long)mi * ny, 1000000)));
    return;
  }
  // Ticks that reach across the whole axis system.
  markx(zg.xa, zg.xe, zg.xorg, zg.xstp, zg.nxl, 1 - zg.nyl, 1 - zg.nyl, nx, zg.nxa, zg.nya, zg.ilogx, 0, 1);
  markx(zg.ya, zg.ye, zg.yorg, zg.ystp, zg.nyl, zg.nxl - 1, zg.nxl - 1, ny, zg.nxa, zg.nya, zg.ilogy, 0, 2);
}

void daxgit(int n) {
  if (jqqlev(2, 3, "AXGIT")) return;
  const int flip0 = zg.iyflip;
  zg.iyflip = 1;
  float x0 = 0.0f, y0 = 0.0f;
  origin_at(x0, y0);
  if (n != 2 && holds_zero(zg.ya, zg.ye, zg.ilogy)) {
    strtqq(float(zg.nxa), y0);
    connqq(float(zg.nxa + zg.nxl - 1), y0);
  }
  if (n != 1 && holds_zero(zg.xa, zg.xe, zg.ilogx)) {
    strtqq(x0, float(zg.nya - zg.nyl + 1));
    connqq(x0, float(zg.nya));
  }
  zg.iyflip = flip0;
}

void dcross(int n) {
  if (jqqlev(2, 3, "CROSS")) return;
  const int flip0 = zg.iyflip;
  zg.iyflip = 1;
  float x0 = 0.0f, y0 = 0.0f;
  origin_at(x0, y0);
  const int ix = int(std::clamp(x0 + 0.5f, -1.0e6f, 1.0e6f));
  const int iy = int(std::clamp(y0 + 0.5f, -1.0e6f, 1.0e6f));
  // Axes without labels and names, linear whatever the scaling.
  if (n != 2 && holds_zero(zg.ya, zg.ye, zg.ilogy)) {
    const int keep = zg.ilabtp[0];
    zg.ilabtp[0] = 0;
    daxis(zg.xa, zg.xe, zg.xorg, zg.xstp, zg.nxl, "", 0, zg.nxa, iy, 0, 1);
    zg.ilabtp[0] = keep;
  }
  if (n != 1 && holds_zero(zg.xa, zg.xe, zg.ilogx)) {
    const int keep = zg.ilabtp[1];
    zg.ilabtp[1] = 0;
    daxis(zg.ya, zg.ye, zg.yorg, zg.ystp, zg.nyl, "", 1, ix, zg.nya, 0, 2);
    zg.ilabtp[1] = keep;
  }
  zg.iyflip = flip0;
}

void frame(int n) {
  chkini("FRAME");
  // Frames thicker than 10000 units draw as 10000; the limit keeps sizes that add frames
  // (legend boxes) in range.
  zg.frame = std::clamp(n, -10000, 10000);
}

void frmclr(int iclr) {
  chkini("FRMCLR");
  if (jqqval(iclr, -1, -2)) return;   // -1 or any colour above
  zg.ifrmcl = iclr;
}

void box2d() {
  if (jqqlev(1, 3, "BOX2D")) return;
  if (zg.frame != 0) dframe(zg.nxa, zg.nya - zg.nyl + 1, zg.nxl, zg.nyl, zg.frame, 0.0f);
}

}  // namespace zb
