// Provisional text layer: keeps the interface of text drawing whole for its callers while
// the stroke alphabets are being built. Strings are measured by a fixed cell and not drawn.
#include <cmath>

#include "frame/frame.h"
#include "text/text.h"

namespace zb {

int nlmess(std::string_view cstr) {
  std::size_t n = cstr.size();
  while (n > 0 && cstr[n - 1] == ' ') --n;
  return int(float(n) * float(zg.nhchar) * 0.8f + 0.5f);
}

std::string gnustr(float x, int ndig) {
  if (ndig == -1) return itoa(long(std::lround(x)));
  std::string s = fmt_f(x, 0, ndig < 0 ? 0 : ndig);
  while (!s.empty() && s[0] == ' ') s.erase(0, 1);
  return s;
}

int nlnumb(float x, int ndig) { return nlmess(gnustr(x, ndig)); }

void qqmess(std::string_view, int, int) {}
void messag(std::string_view cstr, int nx, int ny) {
  if (jqqlev(1, 3, "MESSAG")) return;
  qqmess(cstr, nx, ny);
}
void number(float x, int ndig, int nx, int ny) {
  if (jqqlev(1, 3, "NUMBER")) return;
  qqmess(gnustr(x, ndig), nx, ny);
}

void height(int nh) {
  if (jqqlev(1, 3, "HEIGHT")) return;
  if (jqqval(nh, 1, 10000)) return;
  zg.nhchar = nh;
}

void angle(int nang) {
  chkini("ANGLE");
  zg.nangle = nang;
  const float a = float(nang) * zg.fpi;
  zg.xcos = std::cos(a);
  zg.xsin = std::sin(a);
}

void dtext(std::string_view cstr, int nx, int ny, int nang, int nh) {
  const int ka = zg.nangle, kh = zg.nhchar;
  angle(nang);
  zg.nhchar = nh;
  qqmess(cstr, nx, ny);
  angle(ka);
  zg.nhchar = kh;
}

}  // namespace zb
