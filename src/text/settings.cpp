// Character settings: base alphabet and alphabet shifts, national shift characters, the code of
// strings, width factor, letter gap, slant, fixed spacing, the shear of synthetic italics and
// the filling of outline fonts.
#include <array>
#include <cmath>

#include "frame/frame.h"
#include "text/alphabet.h"

namespace zb {

namespace {

constexpr std::string_view kAlphabets = "STAN+GREE+MATH+ITAL+SCRI+RUSS+INST";
constexpr std::string_view kModes = "GERM+DANI+SPAN+FREN+ACUT+GRAV+CIRC";
constexpr std::array<const char*, 6> kNames = {"STANDARD", "GREEK", "MATHEMATIC", "ITALIC", "SCRIPT",
                                               "RUSSIAN"};

int first_code(std::string_view s) { return s.empty() ? int(' ') : int(static_cast<unsigned char>(s[0])); }

bool finite(float x) { return std::isfinite(x); }

}  // namespace

void basalf(std::string_view calph) {
  chkini("BASALF");
  const int i = jqqind(kAlphabets, 6, calph);
  if (i != 0) zg.ibasalf = i;
}

void smxalf(std::string_view calph, std::string_view cstr1, std::string_view cstr2, int n) {
  chkini("SMXALF");
  const int i = jqqind(kAlphabets, 7, calph);
  if (i == 0 || jqqval(n, 1, 6) != 0) return;
  if (i == zg.ibasalf) {
    warnin(19);
    return;
  }
  const std::size_t k = std::size_t(n - 1);
  zg.ismxtab[k] = i;
  zg.ismxin[k] = first_code(cstr1);
  zg.ismxout[k] = first_code(cstr2);
  zg.ismxalf = 1;
}

void gmxalf(std::string_view calph, std::string& cstr1, std::string& cstr2, int& n) {
  chkini("GMXALF");
  cstr1 = " ";
  cstr2 = " ";
  n = 0;
  const int i = jqqind(kAlphabets, 7, calph);
  if (i == 0) return;
  for (std::size_t k = 0; k < 6; ++k)
    if (zg.ismxtab[k] == i) {
      cstr1 = std::string(1, char(zg.ismxin[k]));
      cstr2 = std::string(1, char(zg.ismxout[k]));
      n = int(k) + 1;
      return;
    }
}

std::string getalf() {
  chkini("GETALF");
  const int i = zg.ibasalf >= 1 && zg.ibasalf <= 6 ? zg.ibasalf : 1;
  return kNames[std::size_t(i - 1)];
}

// The first call after resall clears all seven modes; one character may serve one mode only.
void eushft(std::string_view cnat, std::string_view cshf) {
  chkini("EUSHFT");
  const int i = jqqind(kModes, 7, cnat);
  if (i == 0) return;
  int c = first_code(cshf);
  if (c == ' ') c = 0;
  if (zg.ieushf != 0 && c != 0)
    for (std::size_t k = 0; k < 7; ++k)
      if (int(k) != i - 1 && zg.inatsh[k] == c) {
        warnin(57);
        return;
      }
  if (zg.ieushf == 0) zg.inatsh.fill(0);
  zg.ieushf = 1;
  zg.inatsh[std::size_t(i - 1)] = c;
}

std::string getshf(std::string_view cnat) {
  chkini("GETSHF");
  const int i = jqqind(kModes, 7, cnat);
  if (i == 0 || zg.ieushf == 0 || zg.inatsh[std::size_t(i - 1)] == 0) return " ";
  return std::string(1, char(zg.inatsh[std::size_t(i - 1)]));
}

void chacod(std::string_view copt) {
  chkini("CHACOD");
  const int i = jqqind("STAN+ISO1+ISO2", 3, copt);
  if (i != 0) zg.ichcod = i - 1;
}

void chawth(float xfac) {
  chkini("CHAWTH");
  if (!(xfac > 0.0f && xfac <= 2.0f)) return warnin(2);
  zg.xchwth = xfac;
}

// Any finite gap is taken; a value that is no number would only spoil the pen.
void chaspc(float xspc) {
  chkini("CHASPC");
  if (!finite(xspc)) return warnin(2);
  zg.xchspc = xspc;
}

void chaang(float angle) {
  chkini("CHAANG");
  if (!(angle >= -60.0f && angle <= 60.0f)) return warnin(2);
  zg.xchang = angle == 0.0f ? 0.0f : float(1.0 / std::tan((90.0 - double(angle)) * double(zg.xpi) / 180.0));
}

void fixspc(float xfac) {
  chkini("FIXSPC");
  if (!(xfac > 0.0f) || !finite(xfac)) return warnin(2);
  zg.ifixsp = 1;
  zg.xfixsp = xfac;
}

void iangle(int ndeg) {
  chkini("IANGLE");
  if (jqqval(ndeg, 1, 45) != 0) return;
  zg.xitang = float(std::tan((90.0 - double(ndeg)) * double(zg.xpi) / 180.0));
}

void shdcha() { zg.ishdch = 1; }

}  // namespace zb
