// Conversions between user and plot coordinates in the 2-D axis system, both ways, linear
// and logarithmic, with the polar form and the hook of the map projections; the checks
// of data against the scaling.
#include <climits>
#include <cmath>

#include "axes/axes.h"
#include "frame/frame.h"

namespace zb {

namespace {

constexpr float kLimit = 1000000.0f;

// Keeps far-away values (and NaN) inside the range the pipeline can take.
float limit(float v) {
  if (!(v > -kLimit)) return -kLimit;
  return v > kLimit ? kLimit : v;
}

// A log axis works on exponents; neglog stands in for values at or below 0.
float axis_value(float v, int ilog) {
  if (ilog == 0) return v;
  if (v <= 0.0f && zg.ineglg != 0) return std::log10(zg.xneglg);
  return std::log10(v);
}

float x_plot(float x) { return (axis_value(x, zg.ilogx) - zg.xa) * zg.xscl + zg.xpos0; }
float y_plot(float y) { return zg.ypos0 - (axis_value(y, zg.ilogy) - zg.ya) * zg.yscl; }

// Truncation toward zero that cannot overflow.
int trunc_int(float v) {
  if (v != v) return 0;
  if (v > 2.0e9f) return 2000000000;
  if (v < -2.0e9f) return -2000000000;
  return int(v);
}

}  // namespace

[[gnu::weak]] bool qqpos2_map(float, float, float&, float&) { return false; }

void qqpos2(float xu, float yu, float& xp, float& yp) {
  if (zg.iaxknd == 1) {
    const float r = xu * zg.xscl;
    const float turn = float(zg.ipolst) * zg.xpi / 2.0f;
    const float phi = zg.ipoldr == 1 ? 2.0f * zg.xpi - yu + turn : yu + turn;
    xp = limit(float(zg.nxcros) + std::cos(phi) * r);
    yp = limit(float(zg.nycros) - std::sin(phi) * r);
    return;
  }
  if (zg.iaxknd == 2 && qqpos2_map(xu, yu, xp, yp)) {
    xp = limit(xp);
    yp = limit(yp);
    return;
  }
  xp = limit(x_plot(xu));
  yp = limit(y_plot(yu));
}

void qqrel2(float xu, float yu, float& xp, float& yp) { qqpos2(xu, yu, xp, yp); }

float xposn(float x) {
  if (jqqlev(2, 3, "XPOSN")) return 0.0f;
  return x_plot(x);
}

float yposn(float y) {
  if (jqqlev(2, 3, "YPOSN")) return 0.0f;
  if (zg.iaxknd == 1) {
    qqserr("YPOSN does not work for polar axis systems");
    warnin(101);
    return 0.0f;
  }
  const float v = y_plot(y);
  return (zg.ipgorg == 0 || zg.iyflip != 0) ? v : float(zg.nypag) - v;
}

int nxposn(float x) {
  if (jqqlev(2, 3, "NXPOSN")) return 0;
  return trunc_int(x_plot(x) + 0.5f);
}

int nyposn(float y) {
  if (jqqlev(2, 3, "NYPOSN")) return 0;
  if (zg.iaxknd == 1) {
    qqserr("NYPOSN does not work for polar axis systems");
    warnin(101);
    return 0;
  }
  return jqqyvl(trunc_int(y_plot(y) + 0.5f));
}

float xinvrs(int n) {
  if (jqqlev(2, 3, "XINVRS")) return 0.0f;
  const float u = float(n - zg.nxa) / zg.xscl + zg.xa;
  return zg.ilogx ? std::pow(10.0f, u) : u;
}

float yinvrs(int n) {
  if (jqqlev(2, 3, "YINVRS")) return 0.0f;
  const float u = float(zg.nya - jqqyvl(n)) / zg.yscl + zg.ya;
  return zg.ilogy ? std::pow(10.0f, u) : u;
}

int jqqlog(const float* xray, const float* yray, int n) {
  if (zg.ineglg != 0) return 0;
  for (int i = 0; i < n; ++i) {
    if ((zg.ilogx && xray != nullptr && xray[i] <= 0.0f) ||
        (zg.ilogy && yray != nullptr && yray[i] <= 0.0f)) {
      warnin(27);
      return 1;
    }
  }
  return 0;
}

void chkscl(const float* xray, const float* yray, int n) {
  if (zg.inochk != 0 || zg.iwarn == 0 || zg.ichek == 0 || zg.lunerr == 0) return;
  if (xray == nullptr || yray == nullptr) return;
  for (int i = 0; i < n; ++i) {
    const float x = xray[i], y = yray[i];
    const bool out = x < zg.xumin || x > zg.xumax ||
                     (zg.iaxknd != 1 && (y < zg.yumin || y > zg.yumax));
    if (!out) continue;
    qqerrfil();
    lun_write(zg.lunerr, " <<<< (" + fmt_e(x, 12, 4) + " /" + fmt_e(y, 12, 4) +
                             ") out of axis scaling!");
  }
}

int gaxsop(std::string_view cax) {
  int mask = 0;
  for (std::size_t i = 0; i < 3 && i < cax.size(); ++i) {
    const char c = upper(cax[i]);
    if (c == 'X') mask |= 1;
    if (c == 'Y') mask |= 2;
    if (c == 'Z') mask |= 4;
  }
  return mask;
}

}  // namespace zb
