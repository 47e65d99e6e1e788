// Filled boxes and triangles in one colour: point, recfll, pagfll through dbox, and trifll
// through the flat triangle filler. Each sets the pen colour back when it is done.
#include <cstdint>

#include "draw/colour.h"
#include "draw/device.h"
#include "draw/fill.h"
#include "draw/prims.h"
#include "draw/prims_internal.h"
#include "frame/frame.h"

namespace zb {

// Flat triangle of the 3-D folder, plot coordinates without origin. Until that folder
// links its own, the polygon route of the fill stands in.
[[gnu::weak]] void qqftri(const float* xray, const float* yray, int iclr) {
  setclr(iclr);
  arealx(xray, yray, 3);
  dareaf(xray, yray, 3);
}

namespace {

void box(float x1, float y1, float x2, float y2, int ncol) {
  const int iclr = zg.ipenclr;
  dbox(x1, y1, x2, y2, ncol);
  setclr(iclr);
}

}  // namespace

void draw_point(float x, float y, int nb, int nh, int ncol) {
  const float x1 = x - 0.5f * float(nb), y1 = y - 0.5f * float(nh);
  box(x1, y1, x1 + float(nb), y1 + float(nh), ncol);
}

void point(int nx, int ny, int nb, int nh, int ncol) {
  if (jqqlev(1, 3, "POINT")) return;
  draw_point(float(nx), prims_yvl(ny), nb, nh, ncol);
}

void recfll(int nx, int ny, int nw, int nh, int ncol) {
  if (jqqlev(1, 3, "RECFLL")) return;
  const float y = prims_yvl(ny);
  box(float(nx), y, float(std::int64_t(nx) + nw - 1), y + float(std::int64_t(nh) - 1), ncol);
}

void pagfll(int ncol) {
  if (jqqlev(1, 3, "PAGFLL")) return;
  if (jqqval(ncol, 0, -1)) return;
  // dbox adds the origin; the box is the page whatever the origin.
  box(-float(zg.nxorg), -float(zg.nyorg), float(std::int64_t(zg.nxpag) - zg.nxorg),
      float(std::int64_t(zg.nypag) - zg.nyorg), ncol);
}

void trifll(const float* xray, const float* yray) {
  if (jqqlev(1, 3, "TRIFLL")) return;
  if (xray == nullptr || yray == nullptr) return warnin(2);
  for (int i = 0; i < 3; ++i)
    if (!prims_finite(xray[i], yray[i])) return warnin(2);
  const int ipat = zg.ipatnr;
  if (ipat != 16) shdpat(16);
  const float x[3] = {xray[0], xray[1], xray[2]};
  float y[3] = {yray[0], yray[1], yray[2]};
  if (zg.ipgorg == 1)
    for (float& v : y) v = float(zg.nypag) - v;
  qqftri(x, y, zg.ipenclr);
  if (ipat != 16) shdpat(ipat);
}

}  // namespace zb
