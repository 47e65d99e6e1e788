// Number formatting by std::to_chars, so output does not depend on the caller's locale.
#include "util/fmt.h"

#include <charconv>
#include <cmath>
#include <cstdio>

namespace zb {

std::string itoa(long v) {
  char buf[32];
  auto r = std::to_chars(buf, buf + sizeof buf, v);
  return std::string(buf, r.ptr);
}

std::string fmt_i(long v, int w) {
  std::string s = itoa(v);
  if (int(s.size()) < w) s.insert(0, std::size_t(w) - s.size(), ' ');
  return s;
}

std::string fmt_il(long v, int w) {
  std::string s = itoa(v);
  if (int(s.size()) < w) s.append(std::size_t(w) - s.size(), ' ');
  return s;
}

std::string pad(std::string_view s, int w) {
  std::string r(s.substr(0, std::size_t(w < 0 ? 0 : w)));
  if (int(r.size()) < w) r.append(std::size_t(w) - r.size(), ' ');
  return r;
}

std::string fmt_f(double v, int w, int d) {
  if (!std::isfinite(v)) return std::string(std::size_t(w > 0 ? w : 1), '*');
  char buf[400];
  auto r = std::to_chars(buf, buf + sizeof buf, v, std::chars_format::fixed, d);
  std::string s(buf, r.ptr);
  if (s == "-0" || (s.find_first_not_of("-0.") == std::string::npos && s[0] == '-')) s.erase(0, 1);
  if (int(s.size()) > w) {
    // Fortran drops the optional zero ahead of the point to make room.
    if (s.rfind("0.", 0) == 0) s.erase(0, 1);
    else if (s.rfind("-0.", 0) == 0) s.erase(1, 1);
  }
  if (int(s.size()) < w) s.insert(0, std::size_t(w) - s.size(), ' ');
  return s;
}

std::string fmt_e(double v, int w, int d) {
  if (!std::isfinite(v)) return std::string(std::size_t(w > 0 ? w : 1), '*');
  int ex = 0;
  double m = std::fabs(v);
  if (m != 0.0) {
    ex = int(std::floor(std::log10(m))) + 1;
    double mant = m / std::pow(10.0, ex);
    // Rounding to d digits may carry to 1.000.
    if (std::round(mant * std::pow(10.0, d)) >= std::pow(10.0, d)) ++ex;
  }
  double mant = (m == 0.0) ? 0.0 : m / std::pow(10.0, ex);
  char buf[64];
  auto r = std::to_chars(buf, buf + sizeof buf, mant, std::chars_format::fixed, d);
  std::string s(buf, r.ptr);   // "0.dddd"
  if (v < 0) s.insert(0, "-");
  s += (ex < 0) ? "E-" : "E+";
  int ae = ex < 0 ? -ex : ex;
  if (ae < 10) s += '0';
  s += itoa(ae);
  if (int(s.size()) > w && s.rfind("0.", 0) == 0) s.erase(0, 1);
  if (int(s.size()) < w) s.insert(0, std::size_t(w) - s.size(), ' ');
  return s;
}

}  // namespace zb
