// Dashed, thick and clipped lines on three PostScript pages, the C++ twin of
// examples/fortran/lines.f90: the two programs write the same files byte for byte (but
// the date line).
#include "zorbel.h"

namespace {

void line(int x1, int y1, int x2, int y2) { line_(&x1, &y1, &x2, &y2); }
void lintyp(int n) { lintyp_(&n); }
void linwid(int n) { linwid_(&n); }
void penwid(float w) { penwid_(&w); }
void clpwin(int x, int y, int w, int h) { clpwin_(&x, &y, &w, &h); }

// A polyline of four legs straight into the stroke buffer, so that its joints show.
void zigzag(int nx, int ny) {
  float x = float(nx), y = float(ny);
  xmove_(&x, &y);
  for (int leg = 1; leg <= 4; ++leg) {
    x = float(nx + 120 * leg);
    y = float(leg % 2 == 1 ? ny - 150 : ny);
    xdraw_(&x, &y);
  }
}

}  // namespace

int main() {
  // Page 1: A4 portrait, 0.1 mm units.
  metafl_("POST", 4);
  setpag_("DA4P", 4);
  zorini_();
  pagera_();
  // The eight line types, an own pattern, and a dashed zigzag whose pattern runs on.
  for (int i = 0; i <= 7; ++i) {
    lintyp(i);
    line(200, 200 + i * 70, 1900, 200 + i * 70);
  }
  const int mypat[4] = {40, 20, 5, 20};
  const int npat = 4;
  myline_(mypat, &npat);
  line(200, 780, 1900, 780);
  dash_();
  for (int i = 0; i <= 9; ++i) line(200 + i * 170, 860 + (i % 2) * 100, 370 + i * 170, 960 - (i % 2) * 100);
  // Widths 1 to 20.
  solid_();
  for (int i = 1; i <= 5; ++i) {
    linwid(i * i);
    line(200, 1080 + i * 60, 900, 1080 + i * 60);
  }
  // Caps CUT, ROUN, LONG on wide lines, with thin guides at their ends.
  linwid(40);
  lncap_("CUT", 3);
  line(1150, 1140, 1750, 1140);
  lncap_("ROUN", 4);
  line(1150, 1240, 1750, 1240);
  lncap_("LONG", 4);
  line(1150, 1340, 1750, 1340);
  linwid(1);
  line(1150, 1100, 1150, 1380);
  line(1750, 1100, 1750, 1380);
  // Joins SHAR, ROUN, TRUN on wide zigzags.
  linwid(30);
  lnjoin_("SHAR", 4);
  zigzag(200, 1650);
  lnjoin_("ROUN", 4);
  zigzag(800, 1650);
  lnjoin_("TRUN", 4);
  zigzag(1400, 1650);
  // Clipping: a dotted frame marks the window; a fan of solid, dashed and wide lines is
  // cut to it.
  linwid(1);
  lnjoin_("TRUN", 4);
  dot_();
  line(300, 1900, 1799, 1900);
  line(1799, 1900, 1799, 2699);
  line(1799, 2699, 300, 2699);
  line(300, 2699, 300, 1900);
  clpwin(300, 1900, 1500, 800);
  for (int k = 0; k <= 12; ++k) {
    lintyp((k % 3) * 2);
    linwid(1 + (k % 4) * 3);
    line(1050, 2300, k * 175, 1600);
    line(1050, 2300, k * 175, 2969);
  }
  linwid(1);
  solid_();
  line(0, 2000, 2098, 2100);
  line(100, 2968, 2000, 1500);
  reset_("CLPW", 4);
  zorfin_();

  // Page 2: US letter landscape in inch units (0.01 inch), y measured from the bottom.
  units_("INCH", 4);
  setpag_("USAL", 4);
  zorini_();
  pagorg_("BOTT", 4);
  pagera_();
  chndsh_();
  line(50, 50, 1048, 50);
  linwid(2);
  dashl_();
  line(50, 100, 1048, 100);
  linwid(1);
  dotl_();
  line(50, 800, 1048, 800);
  clpwin(300, 200, 500, 400);
  dashm_();
  for (int k = 0; k <= 10; ++k) line(k * 110, 150, 1098 - k * 110, 700);
  reset_("CLPW", 4);
  zorfin_();

  // Page 3: an own page in point units (0.1 point), 500 by 350 points.
  units_("POIN", 4);
  const int pw = 5000, ph = 3500;
  page_(&pw, &ph);
  zorini_();
  pagera_();
  penwid(2.5f);
  dashm_();
  line(200, 300, 4800, 300);
  penwid(0.5f);
  chndot_();
  line(200, 600, 4800, 600);
  linwid(4);
  lncap_("ROUN", 4);
  dot_();
  line(200, 1000, 4800, 3200);
  zorfin_();
  return 0;
}
