// Public drawing routines of the line pipeline: styled lines in plot and user
// coordinates, and pen moves straight into the stroke buffer.
#include "axes/axes.h"
#include "draw/line.h"
#include "frame/frame.h"

namespace zb {

namespace {

// A line between user coordinates, clipped to the axis system.
void user_line(float x1, float y1, float x2, float y2) {
  float xp1, yp1, xp2, yp2;
  qqrel2(x1, y1, xp1, yp1);
  qqrel2(x2, y2, xp2, yp2);
  strtqq(xp1, yp1);
  connqq(xp2, yp2);
}

// y of a public plot coordinate, measured from the lower edge under pagorg("BOTT").
float plot_y(float y) { return (zg.ipgorg == 1 && zg.iyflip == 0) ? float(zg.nypag) - y : y; }

}  // namespace

void line(int nx1, int ny1, int nx2, int ny2) {
  if (jqqlev(1, 3, "LINE")) return;
  lineqq(nx1, jqqyvl(ny1), nx2, jqqyvl(ny2));
}

void rline(float x1, float y1, float x2, float y2) {
  if (jqqlev(2, 3, "RLINE")) return;
  sclpax(0);
  user_line(x1, y1, x2, y2);
  sclpax(1);
}

// rline once per thkcrv offset: 0, 1, -1, 2, -2, ...
void thklnx(float x1, float y1, float x2, float y2) {
  if (jqqlev(2, 3, "THKLNX")) return;
  sclpax(0);
  for (int i = 1; i <= zg.nthick; ++i) {
    zg.xoffln = float(((i % 2 == 0) ? i : -i) / 2);
    user_line(x1, y1, x2, y2);
  }
  zg.xoffln = 0.0f;
  sclpax(1);
}

// Without a session there is no output to move on: the call is skipped.
void xmove(float x, float y) {
  if (zg.ilevel == 0) return;
  qqmove(x, plot_y(y));
}

void xdraw(float x, float y) {
  if (zg.ilevel == 0) return;
  qqdraw(x, plot_y(y));
}

}  // namespace zb
