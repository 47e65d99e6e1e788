// SVG driver: one SVG 1.0 document of text lines. Strokes of one colour and width share a
// <g> group; pen moves are held in a buffer of 50 points so that they leave as polylines.
// Device units are pixels with y downward; the device layer maps plot coordinates.
#include <algorithm>
#include <array>
#include <cmath>

#include "draw/device.h"
#include "formats/drivers.h"
#include "frame/frame.h"

namespace zb {

namespace {

constexpr int kMaxPoints = 50;
int npts = 0;
std::array<float, kMaxPoints> xpts{}, ypts{};
float xold = 0.0f, yold = 0.0f;

// Polygon in progress: the points of its current line of five, not yet written, since the
// last line carries the end of the element.
std::string poly_line;
int poly_points = 0;

// Family, weight and style of the 35 font indices of the device fonts.
struct SvgFont {
  const char* family;
  const char* weight;
  const char* style;
};
constexpr SvgFont kTimes = {"Times", "normal", "normal"};

SvgFont svg_font(int idx) {
  switch (idx) {
    case 1: return {"Times", "bold", "normal"};
    case 2: return {"Times", "normal", "italic"};
    case 3: return {"Times", "bold", "italic"};
    case 4: case 8: return {"Helvetica", "normal", "normal"};
    case 5: case 9: return {"Helvetica", "bold", "normal"};
    case 6: case 10: return {"Helvetica", "normal", "oblique"};
    case 7: case 11: return {"Helvetica", "bold", "oblique"};
    case 18: return {"Courier", "normal", "normal"};
    case 19: return {"Courier", "bold", "normal"};
    case 20: return {"Courier", "normal", "oblique"};
    case 21: return {"Courier", "bold", "oblique"};
    case 34: return {"Symbol", "normal", "normal"};
    default: return kTimes;
  }
}

// The font index of the device font in use. The device-font text path keeps it in ifntix;
// until that field exists every character is set in Times.
template <class Z>
int font_index(const Z& z) {
  if constexpr (requires { z.ifntix; }) return z.ifntix;
  else return 0;
}

// Codes 127..186 of the library's character set in the WinAnsi (and Latin-1) encoding.
constexpr std::array<unsigned char, 60> kWinAnsi = {
    0xC4, 0xD6, 0xDC, 0xE4, 0xF6, 0xFC, 0xDF, 0xC5, 0xD8, 0xC6, 0xE5, 0xF8, 0xE6, 0xD1, 0xF1,
    0xC7, 0xE7, 0xCB, 0xCF, 0xEB, 0xEF, 0xC1, 0xC9, 0xCD, 0xD3, 0xDA, 0xE1, 0xE9, 0xED, 0xF3,
    0xFA, 0xC0, 0xC8, 0xCC, 0xD2, 0xD9, 0xE0, 0xE8, 0xEC, 0xF2, 0xF9, 0xC2, 0xCA, 0xCE, 0xD4,
    0xDB, 0xE2, 0xEA, 0xEE, 0xF4, 0xFB, 0xC3, 0xE3, 0xD5, 0xF5, 0xDD, 0xFD, 0xFF, 0xA1, 0xBF};

void put(std::string_view line) { lun_write(zg.lunplt, line); }

std::string strip(std::string s) {
  const std::size_t a = s.find_first_not_of(' ');
  return a == std::string::npos ? std::string() : s.substr(a);
}

// F12.2 without blanks.
std::string num(float v) { return strip(fmt_f(v, 12, 2)); }

std::string colour() { return qqsvg6(zg.ir, zg.ig, zg.ib); }

std::string point(float x, float y) { return num(x) + " " + num(y); }

// Points of a polyline after its opening line: five to a line, each line led by a blank,
// the last closed by the end of the element.
void put_points(const float* x, const float* y, int n) {
  std::string line;
  for (int i = 0; i < n; ++i) {
    line += " " + point(x[i], y[i]);
    if (i == n - 1) line += "\"/>";
    if (i % 5 == 4 || i == n - 1) {
      put(line);
      line.clear();
    }
  }
}

void write_head(float w, float h) {
  std::string date, time;
  clock_strings(date, time);
  put("<?xml version=\"1.0\" encoding=\"ISO-8859-1\" standalone=\"no\"?>");
  put("<!DOCTYPE svg PUBLIC \"-//W3C//DTD SVG 20010904//EN\"");
  put("  \"http://www.w3.org/TR/2001/REC-SVG-20010904/DTD/svg10.dtd\">");
  put("<!-- Created by ZORBEL (https://zorbel.org)");
  put("Version: " + fmt_f(kVersion, 4, 1));
  put("Date   : " + date + " " + time);
  put("-->");
  put("<svg width=\"" + itoa(long(std::trunc(w + 1.0f))) + "\" height=\"" +
      itoa(long(std::trunc(h + 1.0f))) + "\"");
  put("  xmlns=\"http://www.w3.org/2000/svg\"");
  put("  xmlns:xlink=\"http://www.w3.org/1999/xlink\">");
  put("");
  zg.isvggr = 0;
  zg.xsvgwd = 1.0f;
  // Each document starts in black, so that a second session writes the same bytes.
  zg.ir = zg.ig = zg.ib = 0;
  npts = 0;
  xold = yold = 0.0f;
  poly_line.clear();
  poly_points = 0;
}

// Writes the buffered points: a line element for two, a polyline for more.
void flush_points() {
  if (npts != 0 && zg.isvggr != 1) qqsvg1(1);
  if (npts == 2) {
    put("<line x1=\"" + num(xpts[0]) + "\" y1=\"" + num(ypts[0]) + "\" x2=\"" + num(xpts[1]) +
        "\" y2=\"" + num(ypts[1]) + "\"/>");
  } else if (npts > 2) {
    put("<polyline points=\"");
    put_points(xpts.data(), ypts.data(), npts);
  }
}

// A character code as it stands in the document.
std::string svg_char(int ic) {
  if (ic > 127 && ic <= 186) return std::string(1, char(kWinAnsi[std::size_t(ic - 127)]));
  if (ic > 186 || ic < 32) return " ";   // no control characters in XML
  if (ic == '&') return "&amp;";
  if (ic == '<') return "&lt;";
  if (ic == '>') return "&gt;";
  return std::string(1, char(ic));
}

// Device values of a point in plot coordinates.
void map_point(float x, float y, float& u, float& v) {
  const float s = zg.devscl;
  if (zg.ipgmod == 1) {
    u = y * s;
    v = (float(zg.nxpag) - x) * s;
  } else {
    u = x * s;
    v = y * s;
  }
}

}  // namespace

void zori_svg() {
  zg.ndepth = 24;
  const float w = float(zg.nwimg - 1), h = float(zg.nhimg - 1);
  qqsvg2(w, h, 1);
  // The page is painted black unless the background is reversed; the rectangle covers
  // the whole picture of nwimg by nhimg pixels.
  if (zg.irevscr != 2) qqsvg4(0.0f, 0.0f, w + 1.0f, h + 1.0f, 0, 0, 0);
}

void qqsvg1(int imode) {
  if (imode == 0) {
    if (zg.isvggr != 0) put("</g>");
    zg.isvggr = 0;
  } else if (imode == 1) {
    if (zg.isvggr == 2) qqsvg1(0);
    if (zg.isvggr != 1) {
      put("<g fill=\"none\" stroke=\"#" + colour() + "\" stroke-width=\"" +
          strip(fmt_f(zg.xsvgwd, 12, 3)) + "\">");
    }
    zg.isvggr = 1;
  } else if (imode == 2) {
    if (zg.isvggr == 1) qqsvg1(0);
    if (zg.isvggr != 2) {
      const int idx = font_index(zg);
      const SvgFont f = svg_font(idx);
      const float size = float(zg.nhchar) * 22.0f * zg.devscl / 15.0f + 0.5f;
      const long isize = std::isfinite(size) ? long(std::clamp(size, -1.0e9f, 1.0e9f)) : 0;
      put(std::string("<g font-family=\"") + f.family + "\" font-weight=\"" + f.weight +
          "\" font-style=\"" + f.style + "\"");
      put("font-size=\"" + itoa(isize) + "\" stroke=\"none\" fill=\"#" + colour() + "\">");
      zg.isvgft = idx;
    }
    zg.isvggr = 2;
  }
}

void qqsvg2(float x, float y, int icode) {
  if (icode == 1) {
    write_head(x, y);
    return;
  }
  if (icode == 2) {
    if (npts == 0) {
      xpts[0] = xold;
      ypts[0] = yold;
      npts = 1;
    }
    xpts[std::size_t(npts)] = x;
    ypts[std::size_t(npts)] = y;
    ++npts;
    if (npts < kMaxPoints) return;
  }
  flush_points();
  if (icode == 6) {
    qqsvg1(0);
    zg.xsvgwd = x;
  } else if (icode == 999) {
    qqsvg1(0);
    put("</svg>");
    put("");
    npts = 0;
    return;
  }
  if (icode == 6 || icode == 9) {
    if (npts != 0) {
      xold = xpts[std::size_t(npts - 1)];
      yold = ypts[std::size_t(npts - 1)];
    }
    npts = 0;
    return;
  }
  // A move, or a full buffer that goes on from its last point.
  npts = 1;
  xpts[0] = x;
  ypts[0] = y;
}

void qqsvg3(int r, int g, int b) {
  qqsvg2(0.0f, 0.0f, 9);
  qqsvg1(0);
  zg.ir = r;
  zg.ig = g;
  zg.ib = b;
}

void qqsvg4(float x, float y, float w, float h, int r, int g, int b) {
  if (zg.isvggr != 1) qqsvg1(1);
  put("<rect x=\"" + num(x) + "\" y=\"" + num(y) + "\" width=\"" + num(w) + "\" height=\"" +
      num(h) + "\"");
  put("fill=\"#" + qqsvg6(r, g, b) + "\" stroke=\"none\"/>");
}

void qqsvg5(int ic, float x, float y) {
  const int idx = font_index(zg);
  if (zg.isvggr == 1) {
    qqsvg2(0.0f, 0.0f, 9);
    qqsvg1(0);
  }
  if (zg.isvggr == 2 && zg.isvgft != idx) qqsvg1(0);
  if (zg.isvggr == 0) qqsvg1(2);
  const float d = zg.xbshft + zg.xoffs;
  x -= d * zg.xsin;
  y -= d * zg.xcos;
  float u, v;
  map_point(x, y, u, v);
  std::string line = "<text x=\"" + num(u) + "\" y=\"" + num(v) + "\"";
  if (zg.nangle != 0) line += " rotate=\"" + itoa(-long(zg.nangle)) + "\"";
  put(line + ">" + svg_char(ic) + "</text>");
}

std::string qqsvg6(int r, int g, int b) {
  static constexpr char kHex[] = "0123456789abcdef";
  std::string s;
  for (int v : {r, g, b}) {
    const int c = std::clamp(v, 0, 255);
    s += kHex[c >> 4];
    s += kHex[c & 15];
  }
  return s;
}

// A filled polygon of the current colour in the same five-point lines as a polyline.
void svg_polygon(float x, float y, int icode) {
  if (icode == 1) {
    qqsvg1(1);
    put("<polygon fill=\"#" + colour() + "\" points=\"");
    poly_line.clear();
    poly_points = 0;
  } else if (icode == 2) {
    if (poly_points == 5) {
      put(poly_line);
      poly_line.clear();
      poly_points = 0;
    }
    poly_line += " " + point(x, y);
    ++poly_points;
  } else if (icode == 9) {
    put(poly_line + "\"/>");
    poly_line.clear();
    poly_points = 0;
  }
}

}  // namespace zb
