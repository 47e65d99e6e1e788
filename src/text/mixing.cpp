// The control characters of strings: exponent, index, reset, legend line and TeX command,
// their switch, the shift and height of exponents and indices, and the mode of axis labels.
#include <array>
#include <cmath>
#include <string>

#include "frame/frame.h"
#include "text/text.h"

namespace zb {

namespace {

// Keywords EXP, IND, RES, LEG, TEX, compared on their first three letters: 1 .. 5 or 0.
int mix_key(std::string_view cmix) {
  static constexpr std::array<std::string_view, 5> kKeys = {"EXP", "IND", "RES", "LEG", "TEX"};
  const std::string key = upper(cmix.substr(0, std::min<std::size_t>(3, cmix.size())));
  for (std::size_t i = 0; i < kKeys.size(); ++i)
    if (key == kKeys[i]) return int(i) + 1;
  warnc1(2, cmix);
  return 0;
}

bool all_different(std::string_view c) {
  for (std::size_t i = 0; i < c.size(); ++i)
    for (std::size_t j = i + 1; j < c.size(); ++j)
      if (c[i] == c[j]) return false;
  return true;
}

// Stores five control characters if no two are the same, else warning 57.
void set_controls(const std::string& c) {
  if (!all_different(c)) return warnin(57);
  zg.ctlchr = c;
}

}  // namespace

void mixalf() {
  chkini("MIXALF");
  zg.imixexp = 1;
}

// A blank would turn every blank of a text into a control character: refused.
void setmix(std::string_view cchar, std::string_view cmix) {
  chkini("SETMIX");
  const int k = mix_key(cmix);
  if (k == 0) return;
  if (cchar.empty() || cchar[0] == ' ') return warnin(2);
  std::string c(zg.ctlchr.full());
  c[std::size_t(k - 1)] = cchar[0];
  set_controls(c);
}

std::string getmix(std::string_view cmix) {
  chkini("GETMIX");
  const int k = mix_key(cmix);
  return k == 0 ? std::string(" ") : std::string(1, zg.ctlchr.c[std::size_t(k - 1)]);
}

void newmix() {
  chkini("NEWMIX");
  std::string c(zg.ctlchr.full());
  c.replace(0, 3, "^_%");
  set_controls(c);
}

void setbas(float xfac) {
  chkini("SETBAS");
  if (!std::isfinite(xfac)) return warnin(2);
  zg.xbasfac = xfac;
}

void setexp(float xfac) {
  chkini("SETEXP");
  if (!std::isfinite(xfac)) return warnin(2);
  zg.xexpfac = xfac;
}

ForcedMix::ForcedMix(bool force) : force_(force), mix_(zg.imixexp), texoff_(zg.itexoff) {
  if (!force_) return;
  zg.imixexp = 1;
  zg.itexoff = 1;
}

ForcedMix::~ForcedMix() {
  if (!force_) return;
  zg.imixexp = mix_;
  zg.itexoff = texoff_;
}

}  // namespace zb
