// Titles of up to four lines above or below the axis system, their setters, and the page
// header: a line of two texts around a date, time and version stamp in a page corner.
#include <algorithm>
#include <cmath>
#include <string>

#include "axes/axes.h"
#include "axes/internal.h"
#include "draw/line.h"
#include "frame/frame.h"
#include "text/text.h"

namespace zb {

namespace {

int trunc_int(float v) {
  if (v != v) return 0;
  if (v > 2.0e9f) return 2000000000;
  if (v < -2.0e9f) return -2000000000;
  return int(v);
}

// Height of the titles: htitle's, or the text height in force.
int title_height() { return zg.nhtitl != 0 ? zg.nhtitl : zg.nhchar; }

}  // namespace

void title() {
  if (jqqlev(2, 3, "TITLE")) return;
  const int h0 = zg.nhchar;
  if (zg.nhtitl != 0) height(zg.nhtitl);
  const int h = zg.nhchar;
  const float fh = float(h), ls = zg.xlinsp * fh;
  for (int i = 1; i <= 4; ++i) {
    const std::string_view line = zg.ctitle[std::size_t(i - 1)].view();
    if (line.empty()) continue;
    const int l = nlmess(line);
    int x = (zg.nxl - l) / 2 + zg.nxa;
    if (zg.ititjs == 1) x = zg.nxa;
    else if (zg.ititjs == 2) x = zg.nxa + zg.nxl - l;
    // Line 4 lowest; above the system 3 heights off its top, below 4 heights under it.
    const int y = zg.ititps == 0
        ? trunc_int(float(zg.nya - zg.nyl - zg.nvkytt) - float(4 - i) * ls - 3.0f * fh)
        : trunc_int(4.0f * fh + float(i - 1) * ls + float(zg.nya - zg.nvkytt));
    axis_text(line, x, y, 0, h);
    if (zg.ctitul.c[std::size_t(i - 1)] == '1') {
      const int yu = trunc_int(float(y) + 1.2f * fh);
      lineqq(x - h / 2, yu, x + l + h / 2, yu);
    }
  }
  if (zg.nhtitl != 0) height(h0);
  zg.cproc = "TITLE";
}

int title_room(bool top) {
  if ((zg.ititps == 0) != top) return 0;
  const float ls = zg.xlinsp * float(title_height());
  int m = 0;
  for (const auto& s : zg.ctitle)
    if (!s.view().empty()) m = trunc_int(float(m) + ls);
  return m;
}

void titlin(std::string_view cstr, int n) {
  chkini("TITLIN");
  if (n < -4 || n > 4 || n == 0) {
    warni1(2, n);
    return;
  }
  const std::size_t i = std::size_t(std::abs(n) - 1);
  zg.ctitle[i] = cstr;
  zg.ctitul.c[i] = n < 0 ? '1' : '0';
}

void titjus(std::string_view copt) {
  chkini("TITJUS");
  const int i = jqqind("CENT+LEFT+RIGH", 3, copt);
  if (i != 0) zg.ititjs = i - 1;
}

void titpos(std::string_view copt) {
  chkini("TITPOS");
  const int i = jqqind("ABOV+BELO", 2, copt);
  if (i != 0) zg.ititps = i - 1;
}

void htitle(int nh) {
  chkini("HTITLE");
  if (jqqval(nh, 1, 10000)) return;
  zg.nhtitl = nh;
}

void vkytit(int nv) {
  chkini("VKYTIT");
  zg.nvkytt = std::clamp(nv, -1000000, 1000000);
}

void lfttit() {
  chkini("LFTTIT");
  zg.ititjs = 1;
}

void getcen(int& ncen) {
  chkini("GETCEN");
  ncen = zg.ititjs;
}

std::string page_header_line(std::string_view cstr1, std::string_view cstr2) {
  // Stamp of 32 characters: date, time and version.
  std::string date, time;
  clock_strings(date, time);
  const std::string stamp = date + ", " + time + ", ZORBEL " + fmt_f(kVersion, 3, 1);
  // A field of 132: cstr1 (100 at most), the stamp from place l + 2, cstr2 from l + 35.
  std::string field(132, ' ');
  const std::string_view s1 = fstr(cstr1.data(), int(std::min<std::size_t>(cstr1.size(), 1000)));
  const std::size_t l = std::min<std::size_t>(s1.size(), 100);
  field.replace(0, l, s1.substr(0, l));
  field.replace(l + 1, stamp.size(), stamp);
  if (l + 35 < 133) {
    const std::size_t room = 132 - (l + 34);
    const std::string_view s2 = cstr2.substr(0, std::min(room, cstr2.size()));
    field.replace(l + 34, s2.size(), s2);
  }
  return std::string(fstr(field.data(), int(field.size())));
}

void page_header_start(int iopt, int idir, int w, int hh, int& nx, int& ny) {
  const int right = zg.nxpag, bottom = zg.nypag;
  switch (iopt * 2 + idir) {
    case 2: nx = 100; ny = bottom - 15 - hh; break;            // lower left
    case 3: nx = 15; ny = bottom - 100; break;
    case 4: nx = right - 100 - w; ny = bottom - 15 - hh; break;  // lower right
    case 5: nx = right - 15; ny = bottom - w - 100; break;
    case 6: nx = right - 100 - w; ny = 15; break;               // upper right
    case 7: nx = right - 15; ny = 100; break;
    case 8: nx = 100; ny = 15; break;                           // upper left
    default: nx = 15; ny = w + 100; break;
  }
}

void paghdr(std::string_view cstr1, std::string_view cstr2, int iopt, int idir) {
  if (jqqlev(1, 3, "PAGHDR")) return;
  if (iopt < 1 || iopt > 4) {
    warni1(2, iopt);
    iopt = 1;
  }
  if (idir < 0 || idir > 1) {
    warni1(2, idir);
    idir = 1;
  }
  const std::string line = page_header_line(cstr1, cstr2);
  const int a0 = zg.nangle, h0 = zg.nhchar;
  const int hh = std::max(1, trunc_int(0.6f * float(zg.nhchar)));
  angle(idir == 0 ? 0 : (iopt == 1 || iopt == 4) ? 90 : 270);
  height(hh);
  int x = 0, y = 0;
  page_header_start(iopt, idir, nlmess(line), hh, x, y);
  qqmess(line, x, y);
  angle(a0);
  height(h0);
  zg.cproc = "PAGHDR";
}

}  // namespace zb
