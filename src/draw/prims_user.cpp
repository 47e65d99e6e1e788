// The rl* twins: primitives in user coordinates of the current axis system (levels 2 and
// 3). Each checks its points for logarithmic axes and the scaling, clips to the axis
// system, maps the points with qqpos2 and runs the plot-coordinate worker.
#include <algorithm>
#include <cstdint>
#include <initializer_list>

#include "axes/axes.h"
#include "draw/fill.h"
#include "draw/line.h"
#include "draw/prims.h"
#include "draw/prims_internal.h"
#include "frame/frame.h"

namespace zb {

namespace {

// jqqlog and chkscl on the points, then clipping to the axis system. false: draw nothing.
bool enter(std::initializer_list<float> xs, std::initializer_list<float> ys) {
  const int n = int(xs.size());
  if (jqqlog(xs.begin(), ys.begin(), n)) return false;
  chkscl(xs.begin(), ys.begin(), n);
  sclpax(0);
  return true;
}

void leave() { sclpax(1); }

struct Plot {
  float x, y;
};
Plot pos(float xu, float yu) {
  Plot p{};
  qqpos2(xu, yu, p.x, p.y);
  return p;
}

// A length in plot units on each axis: in a polar system the value times the x factor,
// otherwise the distance of the mapped point and the mapped point plus the value.
int length_x(float xm, float ym, float v) {
  if (zg.iaxknd == 1) return prims_nint(v * zg.xscl);
  const float d = std::fabs(pos(xm + v, ym).x - pos(xm, ym).x);
  return prims_nint(std::trunc(d + 0.5f));
}
int length_y(float xm, float ym, float v) {
  if (zg.iaxknd == 1) return prims_nint(v * zg.xscl);
  const float d = std::fabs(pos(xm, ym + v).y - pos(xm, ym).y);
  return prims_nint(std::trunc(d + 0.5f));
}

// Keeps the y-flip guard set while a worker with plot y runs.
struct FlipGuard {
  int saved = zg.iyflip;
  FlipGuard() { zg.iyflip = 1; }
  ~FlipGuard() { zg.iyflip = saved; }
};

// A call to another routine's frame (nxposn, yposn) leaves this routine's name in cproc.
template <class F>
auto keep_name(F f) {
  const auto name = zg.cproc;
  auto v = f();
  zg.cproc = name;
  return v;
}

}  // namespace

void rlcirc(float xm, float ym, float r) {
  if (jqqlev(2, 3, "RLCIRC")) return;
  if (!prims_finite(xm, ym, r)) return warnin(2);
  if (!enter({xm, xm + r}, {ym, ym + r})) return;
  const Plot p = pos(xm, ym);
  const int nr = length_x(xm, ym, r);
  elpsln(prims_nint(p.x), prims_nint(p.y), nr, nr, 0.0f, 360.0f, 0.0f, 1, 0);
  leave();
}

void rlell(float xm, float ym, float a, float b) {
  if (jqqlev(2, 3, "RLELL")) return;
  if (!prims_finite(xm, ym, a, b)) return warnin(2);
  if (!enter({xm, xm + a}, {ym, ym + b})) return;
  const Plot p = pos(xm, ym);
  elpsln(prims_nint(p.x), prims_nint(p.y), length_x(xm, ym, a), length_y(xm, ym, b), 0.0f, 360.0f,
         0.0f, 1, 0);
  leave();
}

void rlarc(float xm, float ym, float xa, float xb, float alpha, float beta, float theta) {
  if (jqqlev(2, 3, "RLARC")) return;
  if (!prims_finite(xm, ym, xa, xb)) return warnin(2);
  if (!enter({xm, xm + xa}, {ym, ym + xb})) return;
  const Plot p = pos(xm, ym);
  elpsln(prims_nint(p.x), prims_nint(p.y), length_x(xm, ym, xa), length_y(xm, ym, xb), alpha, beta,
         theta, 1, 0);
  leave();
}

void rlpie(float xm, float ym, float r, float alpha, float beta) {
  if (jqqlev(2, 3, "RLPIE")) return;
  if (!prims_finite(xm, ym, r)) return warnin(2);
  if (!enter({xm, xm + r}, {ym, ym + r})) return;
  const Plot p = pos(xm, ym);
  const int nr = length_x(xm, ym, r);
  elpsln(prims_nint(p.x), prims_nint(p.y), nr, nr, alpha, beta, 0.0f, 1, 1);
  leave();
}

void rlrec(float x, float y, float w, float h) {
  if (jqqlev(2, 3, "RLREC")) return;
  if (!prims_finite(x, y, w, h)) return warnin(2);
  if (!enter({x, x + w}, {y, y - h})) return;
  const Plot p = pos(x, y), q = pos(x + w, y - h);
  const int nw = prims_nint(std::trunc(std::fabs(q.x - p.x) + 0.5f));
  const int nh = prims_nint(std::trunc(std::fabs(q.y - p.y) + 0.5f));
  if (nw == 0) warni1(2, nw);
  else if (nh == 0) warni1(2, nh);
  else {
    const int ix = prims_nint(p.x), iy = prims_nint(p.y);
    draw_rect(float(ix), float(iy), float(ix + nw - 1), float(iy + nh - 1));
  }
  leave();
}

void rlrnd(float x, float y, float w, float h, int iopt) {
  if (jqqlev(2, 3, "RLRND")) return;
  if (!prims_finite(x, y, w, h)) return warnin(2);
  if (!enter({x, x + w}, {y, y - h})) return;
  const Plot p = pos(x, y), q = pos(x + w, y - h);
  const int nw = prims_nint(std::trunc(std::fabs(q.x - p.x) + 0.5f));
  const int nh = prims_nint(std::trunc(std::fabs(q.y - p.y) + 0.5f));
  const int bad = jqqval(nw, 1, 32000) + jqqval(nh, 1, 32000) + jqqval(iopt, 0, 9);
  if (bad == 0) draw_rndrec(prims_nint(p.x), prims_nint(p.y), nw, nh, iopt);
  leave();
}

void rlsec(float xm, float ym, float r1, float r2, float alpha, float beta, int ncol) {
  if (jqqlev(2, 3, "RLSEC")) return;
  if (!prims_finite(xm, ym, r1, r2)) return warnin(2);
  Plot p{};
  qqrel2(xm, ym, p.x, p.y);
  const int ix = prims_nint(p.x), iy = prims_nint(p.y);
  auto radius = [&](float r) {
    const std::int64_t d = std::int64_t(ix) - keep_name([&] { return nxposn(xm + r); });
    return int(std::min<std::int64_t>(d < 0 ? -d : d, 2147483647));
  };
  draw_sector(ix, iy, radius(r1), radius(r2), alpha, beta, ncol);
}

void rlsymb(int nsym, float x, float y) {
  if (jqqlev(2, 3, "RLSYMB")) return;
  if (!prims_finite(x, y)) return warnin(2);
  FlipGuard guard;
  // (999, 999) stands for itself in plot coordinates, wherever the axis system is.
  if (std::fabs(x - 999.0f) < 0.1f && std::fabs(y - 999.0f) < 0.1f)
    return draw_symbol(nsym, 999, 999);
  if (!enter({x}, {y})) return;
  const Plot p = pos(x, y);
  draw_symbol(nsym, prims_nint(p.x), prims_nint(p.y));
  leave();
}

void rlvec(float x1, float y1, float x2, float y2, int ivec) {
  if (jqqlev(2, 3, "RLVEC")) return;
  if (!prims_finite(x1, y1, x2, y2)) return warnin(2);
  if (!enter({x1, x2}, {y1, y2})) return;
  const Plot p = pos(x1, y1), q = pos(x2, y2);
  draw_vector(prims_nint(p.x), prims_nint(p.y), prims_nint(q.x), prims_nint(q.y), ivec);
  leave();
}

void rlwind(float xv, float x, float y, int nw, float a) {
  if (jqqlev(2, 3, "RLWIND")) return;
  if (!prims_finite(xv, x, y, a) || std::fabs(xv) > kMaxWind) return warnin(2);
  FlipGuard guard;
  if (!enter({x}, {y})) return;
  const Plot p = pos(x, y);
  draw_windbr(xv, prims_nint(p.x), prims_nint(p.y), nw, a);
  leave();
}

void rlstrt(float x, float y) {
  if (jqqlev(2, 3, "RLSTRT")) return;
  if (!prims_finite(x, y)) return warnin(2);
  const float xs[1] = {x}, ys[1] = {y};
  if (jqqlog(xs, ys, 1)) return;
  chkscl(xs, ys, 1);
  const Plot p = pos(x, y);
  strtqq(p.x, p.y);
}

void rlconn(float x, float y) {
  if (jqqlev(2, 3, "RLCONN")) return;
  if (!prims_finite(x, y)) return warnin(2);
  const float xs[1] = {x}, ys[1] = {y};
  if (jqqlog(xs, ys, 1)) return;
  chkscl(xs, ys, 1);
  const Plot p = pos(x, y);
  connqq(p.x, p.y);
}

void rlarea(const float* xray, const float* yray, int n) {
  if (jqqlev(2, 3, "RLAREA")) return;
  if (jqqval(n, 2, -1)) return;
  if (xray == nullptr || yray == nullptr) return warnin(2);
  if (jqqlog(xray, yray, n)) return;
  chkscl(xray, yray, n);
  auto xp = alloc<float>(n), yp = alloc<float>(n);
  if (!xp || !yp) return;
  for (int i = 0; i < n; ++i) qqpos2(xray[i], yray[i], xp[i], yp[i]);
  sclpax(0);
  if (zg.iarln == 1) arealx(xp.get(), yp.get(), n);
  if (zg.ipatt != 0) dareaf(xp.get(), yp.get(), n);
  leave();
}

void pointx(float x, float y, int nb, int nh, int ncol) {
  if (jqqlev(2, 3, "POINTX")) return;
  if (!prims_finite(x, y)) return warnin(2);
  // The linear factors alone: logarithmic axes are not looked at.
  const float xp = (x - zg.xa) * zg.xscl + zg.xpos0;
  const float yp = zg.ypos0 - (y - zg.ya) * zg.yscl;
  sclpax(0);
  draw_point(xp, yp, nb, nh, ncol);
  leave();
}

// A point outside the scaling is reported (with the point check on) and left out.
[[gnu::weak]] int ckpkt2(float x, float y) {
  int ierr = 0;
  if (x < zg.xumin || x > zg.xumax) ierr = 1;
  else if (y < zg.yumin || y > zg.yumax) ierr = 2;
  if (ierr != 0 && zg.inochk == 0 && zg.ichek != 0 && zg.iwarn != 0 && zg.lunerr != 0)
    lun_write(zg.lunerr, " <<<< (" + fmt_e(x, 12, 4) + " /" + fmt_e(y, 12, 4) +
                             ")  out of axis scaling!");
  return ierr;
}

void rlpoin(float x, float y, int nb, int nh, int ncol) {
  if (jqqlev(2, 3, "RLPOIN")) return;
  if (!prims_finite(x, y)) return warnin(2);
  FlipGuard guard;
  if (ckpkt2(x, y) != 0) return;
  const float xp = keep_name([&] { return xposn(x); });
  const float yp = keep_name([&] { return yposn(y); });
  sclpax(0);
  draw_point(xp, yp, nb, nh, ncol);
  leave();
}

}  // namespace zb
