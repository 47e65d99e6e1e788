// Numbers as text: fixed and exponent notation, integers, the decimal sign, groups and sign
// of numode, and number/rlnumb/nlnumb, which draw and measure that text as a string.
#include <charconv>
#include <cmath>
#include <string>

#include "frame/frame.h"
#include "text/strings.h"
#include "text/text.h"

namespace zb {

namespace {

constexpr std::size_t kField = 40;   // the text of a number is cut to this
constexpr int kMaxDigits = 100;

// 10^n as a float, from exact double products.
float power10(int n) {
  double p = 1.0;
  for (int i = 0; i < n; ++i) p *= 10.0;
  return float(p);
}

// The digits of ax >= 0 rounded to nd places, halves up: integer part (at least "0") and
// nd decimals. Rounding is done in float as the widths are computed; beyond the precision
// of a float the exact decimal value of ax is written.
void rounded_digits(float ax, int nd, std::string& ip, std::string& fp) {
  if (ax >= 8388608.0f) {   // 2^23 and above: every float is an integer
    char buf[64];
    const auto r = std::to_chars(buf, buf + sizeof buf, double(ax), std::chars_format::fixed, 0);
    ip.assign(buf, r.ptr);
    fp.assign(std::size_t(nd), '0');
    return;
  }
  const float scaled = nd <= 38 ? ax * power10(nd) : INFINITY;
  if (scaled < 8388608.0f) {   // below 2^23 the half that rounds is still held exactly
    const auto m = static_cast<unsigned long long>(std::trunc(scaled + 0.5f));
    std::string d = std::to_string(m);
    if (d.size() < std::size_t(nd) + 1) d.insert(0, std::size_t(nd) + 1 - d.size(), '0');
    ip = d.substr(0, d.size() - std::size_t(nd));
    fp = d.substr(d.size() - std::size_t(nd));
    return;
  }
  char buf[256];
  const auto r = std::to_chars(buf, buf + sizeof buf, double(ax), std::chars_format::fixed, nd);
  const std::string s(buf, r.ptr);
  const std::size_t p = s.find('.');
  ip = s.substr(0, p);
  fp = p == std::string::npos ? std::string(std::size_t(nd), '0') : s.substr(p + 1);
}

std::string control(int k) { return std::string(1, zg.ctlchr.c[std::size_t(k)]); }

// The text number() draws: fixed, exponent or power-of-ten form, numode applied, cut to 40.
std::string number_text(float x, int ndig) {
  std::string s, tail;
  int n = 0;
  const int f = zg.inumfmt;
  if (f == 1 || f == 2) {
    gexpno(x, ndig, n, s, f == 1 ? 1 : 2);
    const std::size_t cut = s.find(f == 1 ? '*' : 'E');
    if (cut != std::string::npos) {
      tail = s.substr(cut, 8);
      s.resize(cut);
    }
  } else {
    fcha(x, ndig, n, s);
  }
  s = apply_numode(s);
  if (f == 3) s = "10" + control(0) + s + control(2);
  else s += tail;
  if (s.size() > kField) s.resize(kField);
  return s;
}

// For the length of one number call: equal digit widths with numode "EQUA", control
// characters on for the exponent forms.
class NumberScope {
 public:
  NumberScope() : fix_(zg.ifixsp), fac_(zg.xfixsp), mix_(zg.imixexp) {
    if (zg.cnumod.c[3] == '1') {
      zg.ifixsp = 1;
      zg.xfixsp = 0.7f;
    }
    if (zg.inumfmt != 0) zg.imixexp = 1;
  }
  ~NumberScope() {
    zg.ifixsp = fix_;
    zg.xfixsp = fac_;
    zg.imixexp = mix_;
  }
  NumberScope(const NumberScope&) = delete;
  NumberScope& operator=(const NumberScope&) = delete;

 private:
  int fix_;
  float fac_;
  int mix_;
};

// The checks of number, rlnumb and nlnumb after their level test.
bool bad_number(float x, int ndig) {
  if (jqqval(ndig, -1, kMaxDigits)) return true;
  if (std::isfinite(x)) return false;
  warnin(2);
  return true;
}

}  // namespace

void fcha(float x, int ndig, int& nlen, std::string& cstr) {
  if (!std::isfinite(x)) {
    cstr = "*";
    nlen = 1;
    return;
  }
  ndig = std::clamp(ndig, -1, kMaxDigits);
  std::string ip, fp;
  rounded_digits(std::fabs(x), std::max(ndig, 0), ip, fp);
  cstr = x < 0.0f ? "-" : "";
  cstr += ip;
  if (ndig >= 0) cstr += "." + fp;
  nlen = int(cstr.size());
}

void flen(float x, int ndig, int& nlen) {
  std::string s;
  fcha(x, ndig, nlen, s);
}

void gexpno(float x, int ndig, int& nlen, std::string& cstr, int iopt) {
  if (!std::isfinite(x) || std::fabs(x) <= 1.0e-35f) {
    fcha(x, ndig, nlen, cstr);
    return;
  }
  float m = std::fabs(x);
  int e = 0;
  while (m >= 10.0f) {
    m /= 10.0f;
    ++e;
  }
  while (m < 1.0f) {
    m *= 10.0f;
    --e;
  }
  std::string mant;
  fcha(x < 0.0f ? -m : m, ndig, nlen, mant);
  // A mantissa that rounds up to 10 belongs to the next power.
  const std::size_t d = mant[0] == '-' ? 1 : 0;
  if (mant.compare(d, 2, "10") == 0 && (mant.size() == d + 2 || mant[d + 2] == '.')) {
    m /= 10.0f;
    ++e;
    fcha(x < 0.0f ? -m : m, ndig, nlen, mant);
  }
  std::string ex;
  int ne = 0;
  intcha(e, ne, ex);
  cstr = iopt == 1 ? mant + "*10" + control(0) + ex + control(2) : mant + "E" + ex;
  nlen = int(cstr.size());
}

void intcha(int n, int& nlen, std::string& cstr) {
  cstr = itoa(n);
  nlen = int(cstr.size());
}

void gnustr(std::string& cstr, int& nlen, std::string_view cmode) {
  std::string s = cstr.substr(0, std::size_t(std::clamp(nlen, 0, int(cstr.size()))));
  const char cdec = cmode.size() > 0 ? cmode[0] : '.';
  const char cgrp = cmode.size() > 1 ? cmode[1] : '0';
  const char csign = cmode.size() > 2 ? cmode[2] : '0';
  const std::size_t p = s.find('.');
  if (p != std::string::npos) s[p] = cdec;
  if (cgrp != '0') {
    // The integer part (a minus sign counts as one of its characters) in threes from the
    // right, the decimals in threes from the left.
    const std::size_t ni = p == std::string::npos ? s.size() : p;
    std::string g;
    for (std::size_t i = 0; i < ni; ++i) {
      if (i > 0 && (ni - i) % 3 == 0) g += cgrp;
      g += s[i];
    }
    if (p != std::string::npos) {
      g += s[p];
      for (std::size_t i = p + 1; i < s.size(); ++i) {
        if (i > p + 1 && (i - p - 1) % 3 == 0) g += cgrp;
        g += s[i];
      }
    }
    s = g;
  }
  if (csign != '0') s.insert(0, 1, csign);
  if (s.size() > kField) s.resize(kField);
  cstr = s;
  nlen = int(s.size());
}

std::string apply_numode(std::string_view cstr) {
  std::string s(cstr);
  int n = int(s.size());
  gnustr(s, n, zg.cnumod.full());
  return s;
}

std::string gnustr(float x, int ndig) { return number_text(x, ndig); }

void number(float x, int ndig, int nx, int ny) {
  if (jqqlev(1, 3, "NUMBER")) return;
  if (bad_number(x, ndig)) return;
  const NumberScope scope;
  place_string(number_text(x, ndig), nx, ny, true);
}

void rlnumb(float x, int ndig, float xp, float yp) {
  if (jqqlev(2, 3, "RLNUMB")) return;
  if (bad_number(x, ndig)) return;
  int nx = 0, ny = 0;
  user_position(xp, yp, nx, ny);
  const NumberScope scope;
  place_string(number_text(x, ndig), nx, ny, false);
}

int nlnumb(float x, int ndig) {
  if (jqqlev(1, 3, "NLNUMB")) return 0;
  if (bad_number(x, ndig)) return 0;
  const NumberScope scope;
  return nlmess(number_text(x, ndig));
}

void numfmt(std::string_view copt) {
  chkini("NUMFMT");
  const int i = jqqind("FLOA+EXP +FEXP+LOG ", 4, copt);
  if (i != 0) zg.inumfmt = i - 1;
}

// Keywords are checked all four before anything is set.
void numode(std::string_view cdec, std::string_view cgrp, std::string_view csign, std::string_view cfix) {
  if (jqqlev(1, 3, "NUMODE")) return;
  const int i1 = jqqind("POIN+COMM", 2, cdec);
  const int i2 = jqqind("NONE+SPAC+POIN+COMM", 4, cgrp);
  const int i3 = jqqind("NONE+SPAC+PLUS", 3, csign);
  const int i4 = jqqind("NOEQ+EQUA", 2, cfix);
  if (i1 == 0 || i2 == 0 || i3 == 0 || i4 == 0) return;
  const char mode[4] = {".,"[i1 - 1], "0 .,"[i2 - 1], "0 +"[i3 - 1], "01"[i4 - 1]};
  zg.cnumod = std::string_view(mode, 4);
}

}  // namespace zb
