// Texts of axis labels: fixed and exponent notation of numbers (with the decimal sign, groups
// and sign of numode), powers of ten, degrees, times and user labels; which labels an axis
// has, and how much room they take.
#include <cmath>

#include "axes/axes.h"
#include "axes/internal.h"
#include "frame/frame.h"
#include "text/text.h"

namespace zb {

namespace {

constexpr int kMaxLabels = 10000;   // more labels than this on one axis are not drawn

// Types of the keyword list NONE+FLOA+EXP +LOG +CLOG+ELOG+MAP +DMAP+LMAP+TIME+HOUR+SECO+
// MYLA+FEXP+DATE.
enum : int { kNone = 0, kFloa, kExp, kLog, kClog, kElog, kMap, kDmap, kLmap, kTime, kHour,
             kSeco, kMyla, kFexp, kDate };

bool numeric_type(int t) { return (t >= kFloa && t <= kElog) || t == kFexp; }

std::string two_digits(long v) { return (v < 10 ? "0" : "") + itoa(v); }

// hh mm or hh mm ss of a number of seconds, a day wrapping to the next.
std::string time_label(float v, int type) {
  if (!std::isfinite(v)) return "";
  double n = std::fmod(std::round(double(v)), 86400.0);
  if (n < 0.0) n += 86400.0;
  const long secs = long(n);
  if (type == kHour) return itoa(long(std::round(double(secs) / 3600.0)) % 24);
  long h = secs / 3600;
  const long r = secs - 3600 * h;
  long m = 0, s = 0;
  if (type == kTime) {
    m = long(std::round(double(r) / 60.0));
  } else {
    m = r / 60;
    s = r - 60 * m;
  }
  if (m == 60) {
    m = 0;
    ++h;
  }
  h %= 24;
  const std::string sep = zg.itmopt != 0 ? ":" : "";
  std::string t = two_digits(h) + sep + two_digits(m);
  if (type == kSeco) t += sep + two_digits(s);
  return t;
}

std::string map_label(float v, int type, int iaxis) {
  const std::size_t ax = std::size_t(iaxis - 1);
  std::string t = apply_numode(fixed_label(type == kDmap ? v : std::fabs(v), zg.ilabdg[ax]));
  t += label_exp_char();
  t += 'o';
  t += label_reset_char();
  if (type == kDmap) return t;
  char c = 0;
  if (v > 0.001f) c = iaxis == 1 ? 'E' : 'N';
  else if (v < -0.001f) c = iaxis == 1 ? 'W' : 'S';
  if (c != 0) t += type == kLmap ? char(c + 32) : c;
  return t;
}

std::string cut32(std::string s) {
  if (s.size() > 32) s.resize(32);
  return s;
}

}  // namespace

char label_exp_char() { return zg.ctlchr.c[0]; }
char label_reset_char() { return zg.ctlchr.c[2]; }

int label_width(float x, int ndig) { return int(fixed_label(x, ndig).size()); }

std::string fixed_label(float x, int ndig) {
  if (!std::isfinite(x)) return "*";
  const int nd = ndig < 0 ? 0 : ndig;
  const float ax = std::fabs(x);
  const float scaled = nd <= 30 ? ax * std::pow(10.0f, float(nd)) + 0.5f : INFINITY;
  if (!(scaled < 9.0e18f)) {
    // Beyond what an integer holds: the plain decimal form.
    std::string s = fmt_f(double(x), 0, nd);
    if (ndig < 0 && !s.empty() && s.back() == '.') s.pop_back();
    return s;
  }
  // Rounded half up to nd places as an integer m; digits come from m, so that the text
  // and its width agree.
  const unsigned long long m = (unsigned long long)(scaled);
  std::string digits = std::to_string(m);
  if (int(digits.size()) <= nd) digits.insert(0, std::size_t(nd + 1) - digits.size(), '0');
  std::string s = m != 0 && x < 0.0f ? "-" : "";
  s += digits.substr(0, digits.size() - std::size_t(nd));
  if (ndig >= 0) {
    s += '.';
    s += digits.substr(digits.size() - std::size_t(nd));
  }
  return s;
}

std::string exp_label(float x, int ndig, int iopt) {
  if (!std::isfinite(x)) return "*";
  if (std::fabs(x) <= 1.0e-35f) return fixed_label(x, ndig);
  float m = std::fabs(x);
  int e = 0;
  while (m >= 10.0f) { m /= 10.0f; ++e; }
  while (m < 1.0f) { m *= 10.0f; --e; }
  // A mantissa that rounds up to 10 moves to the next power.
  const int nd = ndig < 0 ? 0 : std::min(ndig, 30);
  const float scale = std::pow(10.0f, float(nd));
  if (std::trunc(m * scale + 0.5f) >= 10.0f * scale) {
    m /= 10.0f;
    ++e;
  }
  std::string s = apply_numode(fixed_label(x < 0.0f ? -m : m, ndig));
  if (iopt == 1) {
    s += "*10";
    s += label_exp_char();
    s += itoa(e);
    s += label_reset_char();
  } else {
    s += "E" + itoa(e);
  }
  return s;
}

bool power_label(int ilog, int iaxis) {
  const std::size_t ax = std::size_t(iaxis - 1);
  return ilog != 0 && zg.ilabst[ax] == 1 && numeric_type(zg.ilabtp[ax]);
}

bool raised_label(int ilog, int iaxis) {
  return power_label(ilog, iaxis) || zg.ilabtp[std::size_t(iaxis - 1)] == kExp;
}

bool centred_power(int ilog, int iaxis) {
  return power_label(ilog, iaxis) && zg.ilabct[std::size_t(iaxis - 1)] == 1;
}

float raised_factor() { return zg.xbasfac + zg.xexpfac; }

bool forced_mix(int ilog, int iaxis) {
  const int type = zg.ilabtp[std::size_t(iaxis - 1)];
  return power_label(ilog, iaxis) || type == kExp || type == kMap || type == kDmap || type == kLmap;
}

std::string glabxy(float v, int i, int ilog, int iaxis) {
  if (iaxis < 1 || iaxis > 3) return "";
  const std::size_t ax = std::size_t(iaxis - 1);
  const int type = zg.ilabtp[ax];
  const int dg = zg.ilabdg[ax];
  if (ilog != 0 && numeric_type(type)) {
    if (zg.ilabst[ax] == 1) {
      std::string s = "10";
      s += label_exp_char();
      s += apply_numode(fixed_label(v, dg));
      s += label_reset_char();
      return cut32(s);
    }
    if (zg.ilabst[ax] == 3) return cut32(apply_numode(fixed_label(v, dg)));
  }
  const float value = ilog != 0 ? std::pow(10.0f, v) : v;
  switch (type) {
    case kFloa: case kLog: case kClog: case kElog: return cut32(apply_numode(fixed_label(value, dg)));
    case kExp: return cut32(exp_label(value, dg, 1));
    case kFexp: return cut32(exp_label(value, dg, 2));
    case kMap: case kDmap: case kLmap: return cut32(map_label(v, type, iaxis));
    case kTime: case kHour: case kSeco: return time_label(value, type);
    case kMyla: {
      const int k = i + 1;
      if (k < 1 || k > zg.nmylab[ax] || k > 20) return "";
      return std::string(zg.caxlab[ax * 20 + std::size_t(k - 1)].view());
    }
    default: return "";
  }
}

void endpar(int n, int iaxend, int& i0, int& i1, int& istep) {
  i0 = 0;
  i1 = n;
  istep = 1;
  switch (iaxend) {
    case 1: i0 = 1; break;
    case 2: i1 = n - 1; break;
    case 3: i0 = 1; i1 = n - 1; break;
    case 4: istep = n > 0 ? n : 1; break;
    case 5: i1 = 0; break;
    case 6: i0 = n; break;
    default: break;
  }
}

bool crossed_system() {
  return zg.ilevel >= 2 && (zg.iaxknd == 1 || (zg.iaxknd == 0 && zg.iaxtyp == 1));
}

static int label_count(float xe, float xor_, float xstp, int iaxis) {
  const float r = (xe - xor_) / xstp + 0.0001f;
  if (!(r > -1.0f)) return -1;
  if (r > float(kMaxLabels)) return -1;
  int n = int(r);
  if (zg.ilabps[std::size_t(iaxis - 1)] == 1) --n;
  return n;
}

void for_each_label(float xe, float xor_, float xstp, int iaxis,
                    const std::function<void(int, float)>& fn) {
  const std::size_t ax = std::size_t(iaxis - 1);
  const int type = zg.ilabtp[ax];
  if (type == kNone) return;
  const int n = label_count(xe, xor_, xstp, iaxis);
  if (n < 0) return;
  int i0 = 0, i1 = 0, istep = 1;
  endpar(n, zg.iaxend[ax], i0, i1, istep);
  const bool crossed = crossed_system();
  for (int i = i0; i <= i1; i += istep) {
    float v = xor_ + float(i) * xstp;
    if ((type == kExp || type == kFexp) && std::fabs(v) < 1.0e-7f && std::fabs(v) < std::fabs(xstp) / 2.0f)
      v = 0.0f;
    if (crossed && std::fabs(v) < 1.0e-35f) continue;
    if (zg.ilabps[ax] == 1) v += xstp / 2.0f;
    fn(i, v);
  }
}

int maxnuy(float /*xa*/, float xe, float xor_, float xstp, int ilog, int iaxis) {
  if (iaxis < 1 || iaxis > 3) return 0;
  int widest = 0;
  const bool crossed = crossed_system();
  const ForcedMix mix(forced_mix(ilog, iaxis));
  for_each_label(xe, xor_, xstp, iaxis, [&](int i, float v) {
    if (crossed && v < 0.0f) return;
    widest = std::max(widest, nlmess(glabxy(v, i, ilog, iaxis)));
  });
  return widest;
}

int label_room(float xa, float xe, float xor_, float xstp, int ilog, int iaxis) {
  if (iaxis < 1 || iaxis > 3) return 0;
  const std::size_t ax = std::size_t(iaxis - 1);
  if (zg.ilabtp[ax] == kNone) return 0;
  const int nh = zg.nhchar;
  const bool along = (iaxis == 1) == (zg.ilabor[ax] == 0);   // text runs along the axis
  if (!along) return maxnuy(xa, xe, xor_, xstp, ilog, iaxis);
  return raised_label(ilog, iaxis) ? int(raised_factor() * float(nh) + 0.5f) : nh;
}

}  // namespace zb
