// Strings on the page: where a string starts and how it is justified, the character loop with
// exponents and indices, measuring, the box and frame of a string, height and angle.
// Characters themselves are drawn by alfcha; formulas branch off to qqparse.
#include <algorithm>
#include <cmath>
#include <string>

#include "axes/axes.h"
#include "draw/draw.h"
#include "frame/frame.h"
#include "text/strings.h"
#include "text/text.h"

namespace zb {

namespace {

constexpr std::size_t kMaxString = 256;
constexpr int kLimit = 1000000000;   // positions are kept within this, so sums cannot overflow

int clamp_pos(int n) { return std::clamp(n, -kLimit, kLimit); }

bool continuation(int nx, int ny) { return nx == 999 && ny == 999; }

bool tex_mode() { return zg.itexoff == 0 && formula_mode(); }

// The string as drawn, also left in ctxbuf: at most 256 characters, national shifts
// expanded, blanks at the end cut.
std::string prepare(std::string_view cstr) {
  std::string s(cstr.substr(0, std::min(cstr.size(), kMaxString)));
  zg.iprvsp = -1;
  strsft(s);
  std::size_t n = s.size();
  while (n > 0 && s[n - 1] == ' ') --n;
  s.resize(n);
  zg.ctxbuf = s;
  return s;
}

// Shifts of exponents and indices since the last reset; sx, sy are what the pen owes the
// baseline. Measuring leaves the pen on the baseline and only changes the height.
struct Shift {
  float sx = 0.0f, sy = 0.0f;
};

void raise(Shift& sh) {
  const float nh = float(zg.nhchar);
  if (zg.imeasr == 0) {
    const float dx = nh * zg.xbasfac * zg.xsin, dy = nh * zg.xbasfac * zg.xcos;
    zg.xchr -= dx;
    zg.ychr -= dy;
    sh.sx += dx;
    sh.sy += dy;
  }
  set_text_height(nh * zg.xexpfac);
  zg.iexpfl = 1;
}

void lower(Shift& sh) {
  set_text_height(float(zg.nhchar) * zg.xexpfac);
  const float nh = float(zg.nhchar);
  if (zg.imeasr == 0) {
    const float dx = nh * zg.xbasfac * zg.xsin, dy = nh * zg.xbasfac * zg.xcos;
    zg.xchr += dx;
    zg.ychr += dy;
    sh.sx -= dx;
    sh.sy -= dy;
  }
  zg.iindfl = 1;
}

void to_baseline(Shift& sh) {
  zg.xchr += sh.sx;
  zg.ychr += sh.sy;
  sh.sx = sh.sy = 0.0f;
}

// Distance of the pen from (0, 0) less the gap behind the last character: the length of a
// string measured from a pen that started there.
int pen_length() {
  const float xe = zg.xchr - zg.xcgap * zg.xcos, ye = zg.ychr + zg.xcgap * zg.xsin;
  return nint(std::sqrt(xe * xe + ye * ye));
}

// The characters of a string through alfcha, with the control characters of mixalf. While
// measuring, *len collects the largest length reached.
void draw_chars(const std::string& s, int* len) {
  Shift sh;
  const bool mix = zg.imixexp != 0;
  const char cexp = zg.ctlchr.c[0], cind = zg.ctlchr.c[1], cres = zg.ctlchr.c[2];
  for (const char ch : s) {
    if (mix && ch == cexp) {
      raise(sh);
    } else if (mix && ch == cind) {
      lower(sh);
    } else if (mix && ch == cres) {
      set_text_height(float(zg.nhstr));
      to_baseline(sh);
    } else {
      alfcha(static_cast<unsigned char>(ch));
    }
    if (len != nullptr) *len = std::max(*len, pen_length());
  }
  to_baseline(sh);
}

// A formula in two passes: the first measures, the second draws if the first found no
// error. Pen, height and colour are back at their start values between the passes.
void draw_formula(const std::string& s, bool measure_only) {
  const float x0 = zg.xchr, y0 = zg.ychr;
  const int h0 = zg.nhchar, c0 = zg.ipenclr, m0 = zg.imeasr;
  int ierr = 0;
  zg.imeasr = 1;
  qqparse(s, ierr);
  zg.imeasr = m0;
  if (measure_only) return;
  zg.xchr = x0;
  zg.ychr = y0;
  if (zg.nhchar != h0) set_text_height(float(h0));
  if (zg.ipenclr != c0) {
    qqstrk();
    qqsclr(c0);
  }
  if (ierr == 0) qqparse(s, ierr);
}

// One record for a string that starts or ends off the page, counted with the warnings.
void off_page(const char* what, long long x, long long y, const std::string& s) {
  if (x >= 0 && x <= zg.nxpag && y >= 0 && y <= zg.nypag) return;
  ++zg.nwarn;
  if (zg.lunerr == 0 || zg.iwarn == 0) return;
  qqerrfil();
  lun_write(zg.lunerr, " <<<< Warning: " + pad(what, 10) + " (" + fmt_i(long(x), 5) + "/" + fmt_i(long(y), 5) +
                           ") in MESSAG out of page - (" + s.substr(0, 8) + "...)");
}

// The box of a string whose first cell has its upper left corner at (nx, ny), after it was
// drawn: framed with frmess, recorded for shield regions.
void string_box(std::string_view cstr, float nx, float ny) {
  const bool shield = shield_records_strings();
  if (zg.nfrmess == 0 && !shield) return;
  const int e = zg.iexpfl, i = zg.iindfl;
  int h = 0, d = 0, l = 0;
  qqgmsg(cstr, h, d, l);
  zg.iexpfl = e;
  zg.iindfl = i;
  const float nh = float(zg.nhchar);
  const float m = (zg.xlinsp - 1.0f) * nh, a = (zg.xexpfac + zg.xbasfac - 1.0f) * nh;
  const float ei = float(e + i);
  const int fh = to_int(float(h + d) + 2.0f * m + ei * a);
  const int fw = to_int(float(l) + 2.0f * m);
  const float t = -m - float(h - zg.nhchar) - ei * a;
  const int x = to_int(nx - m * zg.xcos + t * zg.xsin);
  const int y = to_int(ny + m * zg.xsin + t * zg.xcos);
  if (zg.nfrmess != 0) dframe(x, y, fw, fh, zg.nfrmess, float(zg.nangle));
  if (shield) shlrct(x, y, fw, fh, float(zg.nangle));
}

void set_angle(int nang) {
  zg.nangle = nang;
  const float a = float(nang % 360) * zg.fpi;
  zg.xcos = std::cos(a);
  zg.xsin = std::sin(a);
}

}  // namespace

void set_text_height(float nh) {
  int n = nint(nh);
  n = std::clamp(n, 1, 10000);
  zg.nhchar = n;
  zg.icuralf = 0;
}

void begin_string() {
  zg.imeasr = 0;
  zg.icuralf = 0;
  zg.iprvsp = -1;
  zg.nhstr = zg.nhchar;
  zg.istralf = zg.ibasalf;
  zg.ialf = zg.ibasalf;
  zg.istrclr = zg.ipenclr;
  zg.ifixstr = zg.ifixsp;
  zg.xfixstr = zg.xfixsp;
  zg.xspcstr = zg.xchspc;
  zg.xwthstr = zg.xchwth;
  zg.xslnstr = zg.xchang;
  zg.xbshft = zg.xoffs = 0.0f;
  zg.ismxcur = 0;
  zg.ninsbuf = 0;
  zg.cinsbuf = "";
  zg.iexpfl = zg.iindfl = 0;
  zg.xcgap = 0.0f;   // no gap before the first character of this string
}

void qqmess(std::string_view cstr, int nx, int ny) {
  const std::string s = prepare(cstr);
  if (s.empty()) return;
  const bool cont = continuation(nx, ny);
  nx = clamp_pos(nx);
  ny = clamp_pos(ny);
  begin_string();
  const float nh1 = float(zg.nhchar - 1);
  if (!cont) {
    zg.xchr = float(nx + zg.nxorg) + nh1 * zg.xsin;
    zg.ychr = float(ny + zg.nyorg) + nh1 * zg.xcos;
    zg.xstr0 = zg.xchr;
    zg.ystr0 = zg.ychr;
    if (zg.ismxalf != 0) zg.xtab.fill(0.0f);
  }
  // Upper left corner of the first cell, without origin: the frame starts from it.
  const float cx = zg.xchr - float(zg.nxorg) - nh1 * zg.xsin;
  const float cy = zg.ychr - float(zg.nyorg) - nh1 * zg.xcos;
  const bool check = !cont && (zg.ixfpts & 1) == 0;
  if (check) off_page("Startpoint", (long long)nx + zg.nxorg, (long long)ny + zg.nyorg, s);

  if (tex_mode()) draw_formula(s, false);
  else draw_chars(s, nullptr);

  if (check)
    off_page("Endpoint", nint(zg.xchr - zg.xcgap * zg.xcos), nint(zg.ychr + zg.xcgap * zg.xsin), s);
  if (zg.nhchar != zg.nhstr) set_text_height(float(zg.nhstr));
  if (zg.ipenclr != zg.istrclr) {
    qqstrk();
    qqsclr(zg.istrclr);
  }
  qqstrk();
  zg.icuralf = 0;
  string_box(cstr, cx, cy);
}

int nlmess(std::string_view cstr) {
  const std::string s = prepare(cstr);
  if (s.empty()) return 0;
  const float x0 = zg.xchr, y0 = zg.ychr, xs0 = zg.xstr0, ys0 = zg.ystr0;
  const auto tabs = zg.xtab;
  const int nh = zg.nhchar, measuring = zg.imeasr;
  begin_string();
  zg.imeasr = 1;
  zg.xchr = zg.ychr = zg.xstr0 = zg.ystr0 = 0.0f;
  int len = 0;
  if (tex_mode()) {
    draw_formula(s, true);
    len = pen_length();
  } else {
    draw_chars(s, &len);
  }
  zg.imeasr = measuring;
  zg.xchr = x0;
  zg.ychr = y0;
  zg.xstr0 = xs0;
  zg.ystr0 = ys0;
  zg.xtab = tabs;
  zg.nhchar = nh;
  zg.icuralf = 0;
  return len;
}

int nlmess_at(std::string_view cstr, int nh) {
  const int keep = zg.nhchar;
  set_text_height(float(nh));
  const int l = nlmess(cstr);
  zg.nhchar = keep;
  zg.icuralf = 0;
  return l;
}

void qqgmsg(std::string_view cstr, int& nheight, int& ndepth, int& nlen) {
  nlen = nlmess(cstr);
  nheight = zg.nhchar;
  ndepth = 0;
  if (nlen > 0 && tex_mode()) {
    float top = 0.0f, bottom = 0.0f;
    formula_extent(top, bottom);
    nheight = nint(top);
    ndepth = nint(-bottom);
  }
}

void measure_text(std::string_view cstr, int nh, int& nheight, int& ndepth, int& nlen) {
  const int keep = zg.nhchar;
  set_text_height(float(nh));
  qqgmsg(cstr, nheight, ndepth, nlen);
  zg.nhchar = keep;
  zg.icuralf = 0;
}

// Justification with txtjus: the string is measured and its start moved back along the
// baseline by its length, or half of it.
void place_string(std::string_view cstr, int nx, int ny, bool map_y) {
  if (!continuation(nx, ny) && map_y) ny = jqqyvl(clamp_pos(ny));
  if (zg.ijust != 0) {
    float l = float(nlmess(cstr));
    if (zg.ijust == 1) l /= 2.0f;
    nx = to_int(float(clamp_pos(nx)) - l * zg.xcos + 0.5f);
    ny = to_int(float(clamp_pos(ny)) + l * zg.xsin + 0.5f);
  }
  qqmess(cstr, nx, ny);
}

// User coordinates to a start position; values within 0.1 of 999 continue the text.
void user_position(float x, float y, int& nx, int& ny) {
  if (std::fabs(x - 999.0f) < 0.1f && std::fabs(y - 999.0f) < 0.1f) {
    nx = ny = 999;
    return;
  }
  float xp = 0.0f, yp = 0.0f;
  qqpos2(x, y, xp, yp);
  nx = to_int(xp + 0.5f);
  ny = to_int(yp + 0.5f);
}

void messag(std::string_view cstr, int nx, int ny) {
  if (jqqlev(1, 3, "MESSAG")) return;
  place_string(cstr, nx, ny, true);
}

void rlmess(std::string_view cstr, float x, float y) {
  if (jqqlev(2, 3, "RLMESS")) return;
  int nx = 0, ny = 0;
  user_position(x, y, nx, ny);
  place_string(cstr, nx, ny, false);
}

void dtext(std::string_view cstr, int nx, int ny, int nang, int nh) {
  const int ka = zg.nangle, kh = zg.nhchar;
  set_angle(nang);
  set_text_height(float(nh));
  if (continuation(nx, ny)) ++nx;
  qqmess(cstr, nx, ny);
  set_angle(ka);
  zg.nhchar = kh;
  zg.icuralf = 0;
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
  set_angle(nang);
}

void txtjus(std::string_view copt) {
  chkini("TXTJUS");
  const int i = jqqind("LEFT+CENT+RIGH", 3, copt);
  if (i != 0) zg.ijust = i - 1;
}

void linesp(float xfac) {
  chkini("LINESP");
  if (!std::isfinite(xfac)) return warnin(2);
  zg.xlinsp = xfac;
}

// Thicker frames than 10000 plot units would only run the frame loop for nothing.
void frmess(int nfrm) {
  chkini("FRMESS");
  if (jqqval(nfrm, -10000, 10000)) return;
  zg.nfrmess = nfrm;
}

void getang(int& nang) {
  chkini("GETANG");
  nang = zg.nangle;
}

void gethgt(int& nh) {
  chkini("GETHGT");
  nh = zg.nhchar;
}

}  // namespace zb
