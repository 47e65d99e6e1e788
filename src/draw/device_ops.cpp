// Boxes, colour changes, page ends and the text records of the simple drivers: metafile
// points, Kyocera, HPGL and Java source.
#include <array>
#include <cmath>

#include "draw/colour.h"
#include "draw/device.h"
#include "draw/line.h"
#include "formats/drivers.h"
#include "frame/frame.h"
#include "raster/drivers.h"

namespace zb {

bool psc_turned();

namespace {

int rnd(float v) { return int(v + 0.5f); }

bool is_ps(int d) { return d >= 501 && d <= 600 && d != 511; }

// Java lines stand on their own: the record is flushed first.
void java_line(const std::string& s) {
  if (zg.nobuf > 0) write_record();
  lun_write(zg.lunplt, s);
}

// Device coordinates of the screen, WMF, raster and Java outputs.
void map_pixels(float x, float y, int& ix, int& iy) {
  const float s = zg.devscl;
  if (zg.ipgmod == 1) {
    ix = rnd(y * s);
    iy = rnd((float(zg.nxpag) - x) * s);
  } else {
    ix = rnd(x * s);
    iy = rnd(y * s);
  }
}


}  // namespace

// Row (0..7) of the 8 by 8 grey pattern ipat (1..9) of terminals and printers, as a byte.
int grey_pattern_row(int ipat, int row) {
  static constexpr std::array<std::array<unsigned char, 8>, 9> kGreyPatterns = {{
      {128, 0, 0, 0, 0, 0, 0, 0},
      {128, 0, 0, 0, 8, 0, 0, 0},
      {128, 0, 0, 32, 0, 0, 4, 0},
      {128, 8, 0, 0, 64, 4, 0, 0},
      {128, 16, 2, 0, 32, 0, 8, 1},
      {128, 16, 2, 64, 8, 1, 32, 4},
      {170, 0, 85, 0, 170, 0, 85, 0},
      {170, 85, 170, 85, 170, 85, 170, 85},
      {255, 255, 255, 255, 255, 255, 255, 255},
  }};
  return kGreyPatterns[std::size_t(ipat - 1)][std::size_t(row & 7)];
}

// Pen moves of the outputs that write text records here: metafile, Kyocera, HPGL, Java.
void simple_draw(float x, float y, int icode) {
  const int d = zg.idev;
  const float s = zg.devscl;
  const float nx = float(zg.nxpag), ny = float(zg.nypag);
  if (d == 201) {
    float u = x * s, v = (ny - y) * s;
    if (zg.ipgmod == 1) { u = y * s; v = x * s; }
    qqsbuf(fmt_f(u, 10, 7));
    qqsbuf(fmt_f(v, 10, 7));
    if (icode != zg.ipencd) {
      qqsbuf(icode == 2 ? " 2.0000000" : " 3.0000000");
      zg.ipencd = icode;
    }
  } else if (d >= 301 && d <= 400) {
    qqsbuf((icode == 2 ? "DAP " : "MAP ") + fmt_i(rnd(x * s), 4) + "," + fmt_i(rnd(y * s), 4) + ";");
  } else if (d >= 401 && d <= 500) {
    int ix, iy;
    if (d == 401) {
      if (zg.ipgmod == 1) { ix = rnd(y * s); iy = rnd(x * s); }
      else { ix = rnd(x * s); iy = rnd((ny - y) * s); }
    } else if (nx > ny) {
      ix = rnd(x * s); iy = rnd((ny - y) * s);
    } else {
      ix = rnd((ny - y) * s); iy = rnd((nx - x) * s);
    }
    qqsbuf((icode == 2 ? "PD" : "PU") + itoa(ix) + "," + itoa(iy) + ";");
  } else if (d == 701) {
    int ix, iy;
    map_pixels(x, y, ix, iy);
    if (icode == 2)
      java_line("  g.drawLine (" + itoa(zg.ixlast) + "," + itoa(zg.iylast) + "," + itoa(ix) + "," +
                itoa(iy) + ");");
    zg.ixlast = ix;
    zg.iylast = iy;
  } else if (d >= 601 && d <= 700) {
    int ix, iy;
    map_pixels(x, y, ix, iy);
    if (icode == 2) qqvlin(zg.ixlast, zg.iylast, ix, iy);
    zg.ixlast = ix;
    zg.iylast = iy;
  } else if (d < 101 || d == 221) {
    int ix, iy;
    map_pixels(x, y, ix, iy);
    if (d == 221) qqwmf4(ix, iy, icode);
    else qqwdrw(ix, iy, icode);
  }
}

void dbox(float x1, float y1, float x2, float y2, int iclr) {
  x1 += float(zg.nxorg);
  x2 += float(zg.nxorg);
  y1 += float(zg.nyorg);
  y2 += float(zg.nyorg);
  if (!clip_box(x1, y1, x2, y2)) return;
  const int d = zg.idev;
  if (d == 701) {
    int ix1, iy1, ix2, iy2;
    map_pixels(x1, y1, ix1, iy1);
    map_pixels(x2, y2, ix2, iy2);
    int r, g, b;
    qqgrgb(iclr, r, g, b);
    java_line("  g.setColor (new Color (" + itoa(r) + "," + itoa(g) + "," + itoa(b) + "));");
    java_line("  g.fillRect (" + itoa(std::min(ix1, ix2)) + "," + itoa(std::min(iy1, iy2)) + "," +
              itoa(std::abs(ix2 - ix1)) + "," + itoa(std::abs(iy2 - iy1)) + ");");
    return;
  }
  if (is_ps(d)) {
    int r, g, b;
    qqgrgb(iclr, r, g, b);
    const float s = zg.devscl, ny = float(zg.nypag);
    int v[4];
    if (psc_turned()) {
      v[0] = rnd(y1 * s); v[1] = rnd(x1 * s); v[2] = rnd(y2 * s); v[3] = rnd(x2 * s);
    } else {
      v[0] = rnd(x1 * s); v[1] = rnd((ny - y2) * s); v[2] = rnd(x2 * s); v[3] = rnd((ny - y1) * s);
    }
    std::string rec;
    for (int k : v) rec += fmt_i(k, 5) + " ";
    rec += fmt_i(r, 3) + " " + fmt_i(g, 3) + " " + fmt_i(b, 3) + " e ";
    qpsbuf(rec);
    return;
  }
  if (d >= 301 && d <= 400) {
    const int pat = ((iclr % 10) + 10) % 10;
    if (pat == 0) return;
    const float s = zg.devscl;
    std::string rec = "MAP " + fmt_i(rnd(x1 * s), 4) + "," + fmt_i(rnd(y1 * s), 4) + "; FPAT ";
    for (int i = 0; i < 8; ++i) {
      if (i > 0) rec += ",";
      rec += fmt_i(grey_pattern_row(pat, i), 3);
    }
    rec += "; BLK " + fmt_i(rnd((x2 - x1) * s), 4) + "," + fmt_i(rnd((y2 - y1) * s), 4) + ";";
    qqsbuf(rec);
    return;
  }
  if (d >= 101 && d <= 200) {
    const int pat = ((iclr % 10) + 10) % 10;
    if (pat == 0) return;
    const float s = zg.devscl, ny = float(zg.nypag);
    const int ix1 = rnd(x1 * s), ix2 = rnd(x2 * s);
    const int iy1 = rnd((ny - y2) * s), iy2 = rnd((ny - y1) * s);
    zg.ctek[0] = 28;
    for (int iy = iy1; iy <= iy2; ++iy) {
      const unsigned row = unsigned(grey_pattern_row(pat, iy));
      for (int ix = ix1; ix <= ix2; ++ix)
        if (row & (128u >> (ix & 7))) {
          if (d == 161) dtdr12(ix + 1, iy + 1, 3);
          else dtdraw(ix + 1, iy + 1, 3);
        }
    }
    const char end = 31;
    qqsbuf(&end, 1);
    zg.ctek[0] = 29;
    return;
  }
  if (d < 101 || (d >= 601 && d <= 700) || d == 221) {
    int ix1, iy1, ix2, iy2;
    if (zg.ipgmod == 1) {
      map_pixels(x2, y1, ix1, iy1);
      map_pixels(x1, y2, ix2, iy2);
    } else {
      map_pixels(x1, y1, ix1, iy1);
      map_pixels(x2, y2, ix2, iy2);
    }
    if (d < 101) {
      qqwfll(ix1, iy1, ix2 - ix1 + 1, iy2 - iy1 + 1, iclr);
    } else if (d == 221) {
      int r, g, b;
      qqgrgb(iclr, r, g, b);
      qqstrk();
      qqwmf5(ix1, iy1, ix2 - ix1 + 1, iy2 - iy1 + 1, r, g, b);
    } else {
      qqvfll(ix1, iy1, ix2, iy2, iclr);
    }
    return;
  }
  if (d == 511 || d == 801) {
    int r, g, b;
    qqgrgb(iclr, r, g, b);
    qqstrk();
    const float s = zg.devscl;
    if (d == 801) {
      if (zg.ipgmod == 1) qqsvg4(y1 * s, (float(zg.nxpag) - x2) * s, (y2 - y1) * s, (x2 - x1) * s, r, g, b);
      else qqsvg4(x1 * s, y1 * s, (x2 - x1) * s, (y2 - y1) * s, r, g, b);
    } else {
      qqpdf3(r, g, b, 1);
      if (psc_turned()) qqpdf4(y1 * s, x1 * s, (y2 - y1) * s, (x2 - x1) * s);
      else qqpdf4(x1 * s, (float(zg.nypag) - y2) * s, (x2 - x1) * s, (y2 - y1) * s);
    }
    return;
  }
  // Metafile, CGM, HPGL: hatch with thin lines.
  setclr(iclr);
  const float step = 1.4f / zg.unitfac;
  const int n = int((y2 - y1 + step) / step);
  for (int k = 0; k < n; ++k) {
    const float y = y1 + float(k) * step;
    if (y > y2) break;
    xjdraw(x1, y, 3);
    xjdraw(x2, y, 2);
  }
  xjdraw(x1, y2, 3);
  xjdraw(x2, y2, 2);
}

void qqsclr(int iclr) {
  zg.ipenclr = iclr;
  const int d = zg.idev;
  // Screen and raster store resolve the colour word themselves.
  if (d < 101) { qqwclr(iclr); return; }
  if (d >= 601 && d <= 700) { qqvclr(iclr); return; }
  const bool rgb_value = (unsigned(iclr) >> 24) == 1u;
  int r, g, b;
  qqgrgb(iclr, r, g, b);
  // Table index of the value: explicit colours on outputs of 8 bits take the nearest entry.
  auto index = [&] { return rgb_value ? qqgidx(r, g, b) : ((iclr % 256) + 256) % 256; };
  if (d == 201) {
    // Metafile: index 0 counts as 256; each prefix 99.0 adds 89 to the field behind it.
    const int c = index() == 0 ? 256 : index();
    const int k = c / 89 - (c % 89 == 0 ? 1 : 0);
    for (int i = 0; i < k; ++i) qqsbuf("99.0000000");
    qqsbuf(fmt_f(double(c - 89 * k) + 9.0, 10, 7));
  } else if (d == 211) {
    xjdraw(0.0f, 0.0f, 999);
    const char rec[6] = {'P', char(131), char(r), char(g), char(b), 0};
    qqsbuf(rec, 6);
  } else if (d == 221) {
    qqwmf3(r, g, b);
  } else if (d >= 401 && d <= 500) {
    qqsbuf("SP" + itoa(index()) + ";");
  } else if (d == 511) {
    qqpdf3(r, g, b, 0);
    qqpdf3(r, g, b, 1);
  } else if (is_ps(d)) {
    xjdraw(0.0f, 0.0f, 999);
    qpsbuf(fmt_i(r, 3) + " " + fmt_i(g, 3) + " " + fmt_i(b, 3) + " f ");
  } else if (d == 701) {
    java_line("  g.setColor (new Color (" + itoa(r) + "," + itoa(g) + "," + itoa(b) + "));");
  } else if (d == 801) {
    qqsvg3(r, g, b);
  }
}

void sendbf() {
  if (jqqlev(1, 3, "SENDBF")) return;
  qqstrk();
  const int d = zg.idev;
  if (d < 101) qqwsbf();
  if (d >= 101 && d <= 150 && zg.nobuf > 0) {
    lun_write(zg.lunplt, " " + std::string(zg.cobuf.c.data(), std::size_t(zg.nobuf)));
    zg.nobuf = 0;
    qqsbuf(zg.ctek.data(), 5);
  }
  if (std::FILE* f = lun_file(zg.lunplt)) std::fflush(f);
}

int device_end() {
  const int d = zg.idev;
  int shown = 1;
  if (d < 101) {
    qqwfin(zg.iwinmd == 4 ? 10 * zg.iwinop + 4 : 10 * zg.iwinky + zg.iwinmd);
    shown = 0;
  } else if (d <= 200) {
    if (d == 161) dtdr12(0, 0, 3);
    else dtdraw(0, 0, 3);
    const char esc = 27;
    qqsbuf(&esc, 1);
    if (d == 101 || d == 151) qqsbuf("2");
    if (d == 161) qqsbuf("[?38l");
    if (d < 150) shown = 0;
  } else if (d <= 300) {
    if (d == 201) {
      xjdraw(0.0f, float(zg.nypag), 3);
      qqsbuf(" 9.0000000");
    } else if (d == 211) {
      drwcgm(0.0f, 0.0f, 999);
      const char end[4] = {0, char(160), 0, 64};
      qqsbuf(end, 4);
    } else if (d == 221) {
      qqwmf2();
    }
  } else if (d <= 400) {
    qqsbuf("RES;EXIT;");
  } else if (d <= 500) {
    qqsbuf("PU0,0;");
  } else if (d <= 600) {
    if (is_ps(d)) {
      xjdraw(0.0f, 0.0f, 999);
      qpsbuf("showpage ");
    } else if (d == 511) {
      shown = pdf_end();
    }
  } else if (d <= 700) {
    if (d == 603) {
      shown = 0;
    } else {
      std::string name = zg.cplotfl.str();
      gfilnn(name);
      zg.cplotfl = name;
      qqrfil(name.c_str(), d - 600);
    }
    qqvfin();
  } else if (d == 701) {
    java_line("  }");
    java_line("}");
  } else if (d == 801) {
    qqsvg2(0.0f, 0.0f, 999);
  }
  if (d < 601 && d != 221 && d != 511) {
    if (zg.nobuf > 0) {
      if (d >= 101 && d <= 200) {
        lun_write(zg.lunplt, " " + std::string(zg.cobuf.c.data(), std::size_t(zg.nobuf)));
        zg.nobuf = 0;
      } else {
        write_record();
      }
    }
  }
  if (d == 211 && zg.nobuf > 0) write_record();
  if (d != 101 && d != 103) lun_close(15);
  return shown;
}

void device_after_close() {
  const int d = zg.idev;
  if (d == 103) {
    char line[256];
    if (std::fgets(line, sizeof line, stdin) == nullptr) { /* no terminal: go on */ }
    std::fputs("\x1b[?38l", stdout);
    std::fflush(stdout);
  } else if (d == 101) {
    std::fputs("\x1b" "2", stdout);
    std::fflush(stdout);
  }
}

void device_newpage() {
  const int d = zg.idev;
  if (d < 101) {
    if (zg.iwinmd != 2 && zg.iwinmd != 3) {   // not NONE, not NOHO
      qqwnpg();
      device_erase();
    }
  } else if (d >= 101 && d <= 150) {
    device_erase();
  } else if (d == 211) {
    inicgm(2);
  } else if (d >= 301 && d <= 400) {
    qqsbuf("PAGE;");
  } else if (d == 511) {
    // The new page starts from PDF's default state: background, join, cap and width anew.
    xjdraw(0.0f, 0.0f, 4);
    if (zg.irevscr != 2)
      dbox(-float(zg.nxorg), -float(zg.nyorg), float(zg.nxpag - zg.nxorg), float(zg.nypag - zg.nyorg), 0);
    const float s = zg.devscl;
    xjdraw(float(zg.ilnjoin) / s, float(zg.ilnjoin) / s, 7);
    xjdraw(float(zg.ilncap) / s, float(zg.ilncap) / s, 8);
    const float w = float(std::max(int(2.0f * float(std::abs(zg.ilinw)) * zg.unitfac), 5));
    const float pts = 0.5f * w * 72.0f / (254.0f * s);
    xjdraw(pts, pts, 6);
  } else if (is_ps(d) && d != 503) {
    xjdraw(0.0f, 0.0f, 999);
    qpsbuf("copypage ");
    write_record();
    qqsbuf("%%Page: 1 " + fmt_i(zg.npagno, 8) + " ");
    write_record();
    if ((d == 502 || d == 504) && zg.irevscr != 2) {
      dbox(-float(zg.nxorg), -float(zg.nyorg), float(zg.nxpag - zg.nxorg),
           float(zg.nypag - zg.nyorg), 0);
    } else {
      qpsbuf("erasepage ");
    }
  }
  if (d >= 501 && d <= 600 && d != 503) setclr(zg.ipenclr);
}

void device_erase() {
  const int d = zg.idev;
  if (d < 101) {
    qqwclr(0);
    qqwers();
    qqwclr(zg.ipenclr);
  } else if (d >= 101 && d <= 200) {
    const char seq[3] = {28, 27, 12};
    qqsbuf(seq, 3);
  } else if (d >= 601 && d <= 700) {
    qqvers();
  } else if (d == 701) {
    java_line("  g.clearRect (0,0," + itoa(zg.nwimg) + "," + itoa(zg.nhimg) + ");");
  }
}

}  // namespace zb
