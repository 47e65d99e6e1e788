// The 2-D axis system: graf and endgrf, the checks of a scaling, the automatic choice of
// round scalings from data, the stored transformation, and centring on the page.
#include <cmath>

#include "axes/axes.h"
#include "charts/charts.h"
#include "draw/colour.h"
#include "draw/device.h"
#include "draw/line.h"
#include "frame/frame.h"

namespace zb {

namespace {

constexpr float kEps = 1.0e-35f;

// Label types whose digits gscale sets for the exponent forms.
bool exp_type(int iaxis) {
  const int t = zg.ilabtp[std::size_t(iaxis - 1)];
  return t == 2 || t == 13;
}

int axis_length(int iaxis) { return iaxis == 1 ? zg.nxl : iaxis == 2 ? zg.nyl : zg.nzl; }
int& auto_flag(int iaxis) { return iaxis == 1 ? zg.iautox : iaxis == 2 ? zg.iautoy : zg.iautoz; }
int log_flag(int iaxis) { return iaxis == 1 ? zg.ilogx : iaxis == 2 ? zg.ilogy : zg.ilogz; }

// Across room of one side as centring sees it: ticks outside, labels, name.
int side_room(int side, int iaxis, float a, float e, float o, float s, int ilog) {
  const std::size_t ax = std::size_t(iaxis - 1);
  const int lvl = zg.iside[std::size_t(side - 1)];
  int m = 0;
  if (lvl >= 2 && zg.nticks[ax] > 0) {
    if (zg.iticps[ax] == 0) m += zg.ntcmaj;
    else if (zg.iticps[ax] == 2) m += zg.ntcmaj / 2;
  }
  if (lvl >= 3 && zg.ilabtp[ax] != 0) m += zg.nlabds[ax] + label_room(a, e, o, s, ilog, iaxis);
  if (lvl >= 4 && !zg.caxnam[ax].view().empty()) m += zg.nnamds[ax] + zg.nhname;
  return m;
}

}  // namespace

void erraxs(float xa, float xe, float xor_, float xstp, int nlen, int nx, int ny, int& ierr) {
  ierr = 0;
  if (!std::isfinite(xa) || !std::isfinite(xe) || !(std::fabs(xe - xa) >= kEps)) {
    warnin(10);
    ierr = 1;
    return;
  }
  if (!std::isfinite(xstp) || !(std::fabs(xstp) >= kEps)) {
    warnin(9);
    ierr = 1;
    return;
  }
  if (nlen < 2) {
    warnin(11);
    ierr = 1;
    return;
  }
  if (nx + zg.nxorg < 0) warni1(4, nx);
  if (ny + zg.nyorg < 0) warni1(5, ny);
  // A first label that is no number cannot be drawn from: it fails like a bad step.
  if (!std::isfinite(xor_)) {
    warnin(12);
    ierr = 1;
    return;
  }
  if (xa < xe ? (xor_ < xa || xor_ > xe) : (xor_ < xe || xor_ > xa)) warnin(12);
  if (xa < xe ? xstp < 0.0f : xstp > 0.0f) warnin(50);
}

void sxyscl(float xa, float xe, float xor_, float xstp, float ya, float ye, float yor, float ystp) {
  zg.xa = xa;
  zg.xe = xe;
  zg.xorg = xor_;
  zg.xstp = xstp;
  zg.ya = ya;
  zg.ye = ye;
  zg.yorg = yor;
  zg.ystp = ystp;
  zg.xscl = float(zg.nxl - 1) / (xe - xa);
  zg.yscl = float(zg.nyl - 1) / (ye - ya);
  zg.xpos0 = float(zg.nxa);
  zg.ypos0 = float(zg.nya);
  auto range = [](int ilog, int iauto, float a, float e, float mn, float mx, float& lo, float& hi) {
    lo = a;
    hi = e;
    if (ilog != 0) {
      if (iauto != 0) {
        lo = mn;
        hi = mx;
      } else {
        lo = std::pow(10.0f, a);
        hi = std::pow(10.0f, e);
      }
    }
    if (e < a) std::swap(lo, hi);
  };
  range(zg.ilogx, zg.iautox, xa, xe, zg.xmn[0], zg.xmx[0], zg.xumin, zg.xumax);
  range(zg.ilogy, zg.iautoy, ya, ye, zg.xmn[1], zg.xmx[1], zg.yumin, zg.yumax);
}

void gscale(float& xa, float& xe, float& xor_, float& xstp, int iaxis) {
  if (iaxis < 1 || iaxis > 3 || auto_flag(iaxis) == 0) return;
  const std::size_t ax = std::size_t(iaxis - 1);
  const int ilog = log_flag(iaxis);
  float a = zg.xmn[ax], e = zg.xmx[ax];
  if (ilog != 0) {
    zg.ilabst[ax] = 1;
    if (zg.xmn[ax] <= 0.0f) {
      warnin(23);
      zg.xmn[ax] = 0.1f;
      a = -1.0f;
    } else {
      a = std::log10(zg.xmn[ax]);
    }
    if (zg.xmx[ax] <= 0.0f) {
      warnin(24);
      zg.xmx[ax] = 1.0f;
      e = 0.0f;
    } else {
      e = std::log10(zg.xmx[ax]);
    }
  }
  // The power of ten of the span: 1 <= q < 10 after at most 50 rounds.
  const float span = std::fabs(e - a);
  int p = 0;
  float q = span;
  for (int round = 0; round < 50; ++round) {
    q = span / std::pow(10.0f, float(p));
    if (q >= 10.0f) ++p;
    else if (q < 1.0f) --p;
    else break;
  }
  const int n = q < 10.0f && q >= 0.0f ? int(q) : 0;
  float step = std::pow(10.0f, float(p));
  int d = p < 0 ? -p : -1;
  const int nlen = axis_length(iaxis);
  const int nmin = iaxis == 1 ? 200 : 100;
  auto finer = [&](float div) {
    step /= div;
    if (p < 0) ++d;
    else if (p == 0) d = 1;
  };
  if (n > 4) {
    if (nlen / n < nmin) step *= 2.0f;
    else if (n >= 7 && exp_type(iaxis)) step *= 2.0f;
  } else if (n == 1) {
    if (nlen / 2 >= nmin) finer(nlen / 5 >= nmin ? 5.0f : 2.0f);
  } else if ((n == 2 || n == 3) && ilog == 0) {
    if (nlen / (2 * n) >= nmin) finer(2.0f);
  }
  if (exp_type(iaxis)) d = 1;
  // Data from high to low keep their order with a negative step.
  if (e < a) step = -step;
  const float r = a / step;
  float k = std::trunc(r);
  float o = a;
  if (!(std::fabs(r - k) < 1.0e-15f)) {
    if (a > 0.0f) k += 1.0f;
    o = k * step;
  }
  if (exp_type(iaxis)) {
    for (double m = std::fabs(double(k)); m > 2.0 && d < 100; m = std::floor(m / 10.0)) ++d;
  }
  zg.ilabdg[ax] = d;
  xa = a;
  xe = e;
  xor_ = o;
  xstp = step;
}

void sgrafp(int iside, int iflag) {
  if (iside < 1 || iside > 4) return;
  const std::size_t ax = (iside == 1 || iside == 3) ? 0 : 1;
  if (iflag != 0) {
    zg.caxnam[ax] = zg.csgnam;
    zg.nticks[ax] = zg.nsgtic;
    zg.iaxlin[ax] = zg.isglin;
    zg.ilabtp[ax] = zg.isglab;
    return;
  }
  zg.csgnam = zg.caxnam[ax];
  zg.nsgtic = zg.nticks[ax];
  zg.isglin = zg.iaxlin[ax];
  zg.isglab = zg.ilabtp[ax];
  const int lvl = zg.iside[std::size_t(iside - 1)];
  if (lvl < 4) zg.caxnam[ax] = "";
  if (lvl < 3) zg.ilabtp[ax] = 0;
  if (lvl < 2) zg.nticks[ax] = 0;
  if (lvl == 0) zg.iaxlin[ax] = 0;
}

void newori() {
  const int ml = side_room(4, 2, zg.ya, zg.ye, zg.yorg, zg.ystp, zg.ilogy);
  int mb = side_room(1, 1, zg.xa, zg.xe, zg.xorg, zg.xstp, zg.ilogx);
  int mr = 0, mt = 0;
  if (zg.iaxtyp == 0 && zg.iax2gf == 0) {
    mr = side_room(2, 2, zg.ya, zg.ye, zg.yorg, zg.ystp, zg.ilogy);
    mt = side_room(3, 1, zg.xa, zg.xe, zg.xorg, zg.xstp, zg.ilogx);
  }
  mt += title_room(true);
  mb += title_room(false);
  zg.nxorg = (zg.nxpag - zg.nxl - ml - mr) / 2 + ml - zg.nxa;
  zg.nyorg = (zg.nypag + zg.nyl + mb + mt) / 2 - mb - zg.nya;
}

void graf(float& xa, float& xe, float& xor_, float& xstp, float& ya, float& ye, float& yor,
          float& ystp) {
  if (jqqlev(1, 1, "GRAF")) return;
  gscale(xa, xe, xor_, xstp, 1);
  gscale(ya, ye, yor, ystp, 2);
  int ierrx = 0, ierry = 0;
  erraxs(xa, xe, xor_, xstp, zg.nxl, 1 - zg.nxorg, 1 - zg.nyorg, ierrx);
  erraxs(ya, ye, yor, ystp, zg.nyl, 1 - zg.nxorg, 1 - zg.nyorg, ierry);
  if (ierrx != 0 || ierry != 0) return;
  const bool crossed = zg.iaxtyp == 1;
  if (crossed && (zg.ilogx != 0 || zg.ilogy != 0)) {
    qqserr("Crossed axis systems must have linear scaling");
    warnin(101);
    return;
  }
  if (crossed) {
    // The origin 0, 0 must lie inside both scalings.
    const float x1 = std::min(xa, xe), x2 = std::max(xa, xe);
    const float y1 = std::min(ya, ye), y2 = std::max(ya, ye);
    if (!(x1 - kEps <= 0.0f && 0.0f <= x2 + kEps && y1 - kEps <= 0.0f && 0.0f <= y2 + kEps)) {
      qqserr("No origin found for crossed axis system");
      warnin(101);
      return;
    }
  }
  zg.ilevel = 2;
  zg.iaxknd = 0;
  sxyscl(xa, xe, xor_, xstp, ya, ye, yor, ystp);
  if (crossed) {
    if (zg.icrosf == 0) {
      zg.nxcros = int(zg.xpos0 - xa * zg.xscl + 0.5f);
      zg.nycros = int(zg.ypos0 + ya * zg.yscl + 0.5f);
    } else {
      const float m = float(zg.nyl - 1);
      zg.nxa = int(float(zg.nxcros) + float(zg.nxl - 1) * xa / (xe - xa));
      zg.nya = int(float(zg.nycros) + m - m * ye / (ye - ya));
      zg.xpos0 = float(zg.nxa);
      zg.ypos0 = float(zg.nya);
    }
  }
  if (zg.icentr != 0 && zg.icentd == 0) {
    newori();
    zg.icentd = 1;
  }
  setclp();
  if (zg.inogrf != 0) return;
  if (zg.iaxbgd != -1) dbox(float(zg.nxa), float(zg.nya - zg.nyl + 1), float(zg.nxa + zg.nxl - 1),
                            float(zg.nya), zg.iaxbgd);
  auto side = [](int s, float a, float e, float o, float st, int nlen, int idir, int nx, int ny,
                 int ilog, int iaxis) {
    sgrafp(s, 0);
    const std::string name(zg.caxnam[std::size_t(iaxis - 1)].view());
    daxis(a, e, o, st, nlen, name, idir, nx, ny, ilog, iaxis);
    sgrafp(s, 1);
  };
  if (crossed) {
    side(1, xa, xe, xor_, xstp, zg.nxl, 0, zg.nxa, zg.nycros, zg.ilogx, 1);
    side(4, ya, ye, yor, ystp, zg.nyl, 1, zg.nxcros, zg.nya, zg.ilogy, 2);
    return;
  }
  side(1, xa, xe, xor_, xstp, zg.nxl, 0, zg.nxa, zg.nya, zg.ilogx, 1);
  side(4, ya, ye, yor, ystp, zg.nyl, 1, zg.nxa, zg.nya, zg.ilogy, 2);
  if (zg.iax2gf == 0) {
    side(3, xa, xe, xor_, xstp, zg.nxl, 1, zg.nxa, zg.nya - zg.nyl + 1, zg.ilogx, 1);
    side(2, ya, ye, yor, ystp, zg.nyl, 0, zg.nxa + zg.nxl - 1, zg.nya, zg.ilogy, 2);
  }
  if (zg.frame != 0) dframe(zg.nxa, zg.nya - zg.nyl + 1, zg.nxl, zg.nyl, zg.frame, 0.0f);
}

void endgrf() {
  if (jqqlev(0, 3, "ENDGRF")) return;
  if (zg.ilevel == 0) return;
  zg.ilevel = 1;
  end_curves();
  release_axis_clip();
  sendbf();
}

void setscl(const float* xray, int n, std::string_view cstr) {
  if (jqqlev(1, 1, "SETSCL")) return;
  const std::string key = upper(cstr.substr(0, 3));
  if (key == "RES") {
    zg.iautox = zg.iautoy = zg.iautoz = 0;
    return;
  }
  if (key == "XRE" || key == "YRE" || key == "ZRE") {
    auto_flag(key[0] - 'X' + 1) = 0;
    return;
  }
  int mask = 0;
  if (key == "XAX" || key == "YAX" || key == "ZAX") mask = 1 << (key[0] - 'X');
  else mask = gaxsop(key);
  if (mask == 0) {
    warnc1(2, cstr);
    return;
  }
  if (n < 1 || xray == nullptr) {
    warni1(2, n);
    return;
  }
  float mn = 0.0f, mx = 0.0f;
  bool any = false;
  for (int i = 0; i < n; ++i) {
    const float v = xray[i];
    if (!std::isfinite(v)) continue;
    if (!any || v < mn) mn = v;
    if (!any || v > mx) mx = v;
    any = true;
  }
  if (!any) {
    warni1(2, n);
    return;
  }
  if (mx - mn < kEps) {
    warnin(25);
    mn -= 1.0f;
    mx += 1.0f;
  }
  for (int i = 1; i <= 3; ++i) {
    if ((mask & (1 << (i - 1))) == 0) continue;
    auto_flag(i) = 1;
    zg.xmn[std::size_t(i - 1)] = mn;
    zg.xmx[std::size_t(i - 1)] = mx;
  }
}

}  // namespace zb
