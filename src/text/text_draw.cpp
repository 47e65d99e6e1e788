// Strings drawn with the stroke alphabets: position, the shift machine of smxalf, drawing and
// measuring character by character through alfcha. Exponent control characters, instructions,
// justification and formulas are not read here yet: such strings are drawn as they stand.
#include <cmath>
#include <string>

#include "draw/draw.h"
#include "frame/frame.h"
#include "text/alphabet.h"
#include "text/text.h"

namespace zb {

namespace {

constexpr std::size_t kMaxString = 256;

// The string as drawn: at most 256 characters, national shifts expanded, trailing blanks cut.
std::string prepare(std::string_view cstr) {
  std::string s(cstr.substr(0, std::min(cstr.size(), kMaxString)));
  zg.iprvsp = -1;
  strsft(s);
  std::size_t n = s.size();
  while (n > 0 && s[n - 1] == ' ') --n;
  s.resize(n);
  return s;
}

// An instruction shift collects its characters; instructions are carried out by the string
// layer once it reads them.
void instruction_char(int ich) {
  if (ich == ' ') return;
  const bool arg = (ich >= '0' && ich <= '9') || ich == '.' || ich == '-' || ich == 'X' || ich == 'x';
  if (!arg) zg.ninsbuf = 0;
  std::string buf(zg.cinsbuf.view().substr(0, std::size_t(std::min(zg.ninsbuf, 20))));
  if (buf.size() < 20) buf += char(ich);
  else buf.back() = char(ich);
  zg.cinsbuf = buf;
  zg.ninsbuf = int(buf.size());
}

}  // namespace

void begin_string() {
  zg.imeasr = 0;
  zg.icuralf = 0;
  zg.iprvsp = -1;
  zg.nhstr = zg.nhchar;
  zg.istralf = zg.ibasalf;
  zg.ialf = zg.ibasalf;
  zg.ifixstr = zg.ifixsp;
  zg.xfixstr = zg.xfixsp;
  zg.xspcstr = zg.xchspc;
  zg.xwthstr = zg.xchwth;
  zg.xslnstr = zg.xchang;
  zg.xbshft = zg.xoffs = 0.0f;
  zg.ismxcur = 0;
  zg.ninsbuf = 0;
  zg.cinsbuf = "";
}

bool smixal(int ich, int& ialf) {
  if (zg.ismxalf == 0) return false;
  if (zg.ismxcur == 0) {
    for (std::size_t k = 0; k < 6; ++k)
      if (zg.ismxtab[k] != 0 && zg.ismxin[k] == ich) {
        zg.ismxcur = int(k) + 1;
        if (zg.ismxtab[k] == 7) {
          zg.ninsbuf = 0;
          zg.cinsbuf = "";
        } else {
          ialf = zg.ismxtab[k];
        }
        return true;
      }
    return false;
  }
  const std::size_t k = std::size_t(zg.ismxcur - 1);
  if (ich == zg.ismxout[k]) {
    zg.ismxcur = 0;
    zg.ninsbuf = 0;
    ialf = zg.istralf;
    return true;
  }
  if (zg.ismxtab[k] != 7) return false;
  instruction_char(ich);
  return true;
}

int nlmess(std::string_view cstr) {
  const std::string s = prepare(cstr);
  if (s.empty()) return 0;
  const float x0 = zg.xchr, y0 = zg.ychr;
  const int nh = zg.nhchar;
  begin_string();
  zg.imeasr = 1;
  zg.xchr = zg.ychr = 0.0f;
  int len = 0;
  for (unsigned char c : s) {
    alfcha(c);
    const float xe = zg.xchr - zg.xcgap * zg.xcos, ye = zg.ychr + zg.xcgap * zg.xsin;
    len = std::max(len, int(std::lround(std::sqrt(xe * xe + ye * ye))));
  }
  zg.imeasr = 0;
  zg.xchr = x0;
  zg.ychr = y0;
  zg.nhchar = nh;
  zg.icuralf = 0;
  return len;
}

std::string gnustr(float x, int ndig) {
  if (ndig == -1) return itoa(long(std::lround(x)));
  std::string s = fmt_f(x, 0, ndig < 0 ? 0 : ndig);
  while (!s.empty() && s[0] == ' ') s.erase(0, 1);
  return s;
}

int nlnumb(float x, int ndig) { return nlmess(gnustr(x, ndig)); }

void qqmess(std::string_view cstr, int nx, int ny) {
  const std::string s = prepare(cstr);
  if (s.empty()) return;
  const int nh = zg.nhchar;
  begin_string();
  if (!(nx == 999 && ny == 999)) {
    zg.xchr = float(nx + zg.nxorg) + float(nh - 1) * zg.xsin;
    zg.ychr = float(ny + zg.nyorg) + float(nh - 1) * zg.xcos;
    zg.xstr0 = zg.xchr;
    zg.ystr0 = zg.ychr;
  }
  for (unsigned char c : s) alfcha(c);
  qqstrk();
  zg.nhchar = nh;
  zg.icuralf = 0;
}

void messag(std::string_view cstr, int nx, int ny) {
  if (jqqlev(1, 3, "MESSAG")) return;
  qqmess(cstr, nx, ny);
}

void number(float x, int ndig, int nx, int ny) {
  if (jqqlev(1, 3, "NUMBER")) return;
  qqmess(gnustr(x, ndig), nx, ny);
}

// A new height makes the next character recompute the scales of its alphabet.
void height(int nh) {
  if (jqqlev(1, 3, "HEIGHT")) return;
  if (jqqval(nh, 1, 10000)) return;
  zg.nhchar = nh;
  zg.icuralf = 0;
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
  zg.icuralf = 0;
  if (nx == 999 && ny == 999) ++nx;
  qqmess(cstr, nx, ny);
  angle(ka);
  zg.nhchar = kh;
  zg.icuralf = 0;
}

}  // namespace zb
