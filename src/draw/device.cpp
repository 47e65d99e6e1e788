// The device table, the choice of output by metafl, the scale devscl, and the dispatcher
// xjdraw that maps plot coordinates to device coordinates by device class.
#include "draw/device.h"

#include <array>
#include <cmath>

#include "draw/colour.h"
#include "draw/line.h"
#include "formats/drivers.h"
#include "frame/frame.h"
#include "raster/drivers.h"

namespace zb {

extern float psc_factor;
bool psc_turned();
void simple_draw(float x, float y, int icode);

namespace {

struct DevEntry {
  const char* key;
  int idev;
};

// Searched from first to last; XWIN and XWI1 both mean window 1.
constexpr std::array<DevEntry, 37> kDevices = {{
    {"ZMET", 201}, {"CGM ", 211}, {"KYOC", 301}, {"HPGL", 401}, {"HPA4", 402}, {"HPA3", 403},
    {"HPA2", 404}, {"HPA1", 405}, {"CONS", 101}, {"TEKT", 151}, {"VT34", 103}, {"LN03", 161},
    {"POST", 501}, {"PSCL", 502}, {"EPS ", 503}, {"PS  ", 504}, {"PDF ", 511}, {"XWIN", 72},
    {"XWI1", 72},  {"XWI2", 73},  {"XWI3", 74},  {"XWI4", 75},  {"XWI5", 76},  {"XWI6", 77},
    {"XWI7", 78},  {"XWI8", 79},  {"XWND", 80},  {"TIFF", 601}, {"IMAG", 602}, {"VIRT", 603},
    {"PNG ", 604}, {"PPM ", 605}, {"BMP ", 606}, {"GIF ", 607}, {"JAVA", 701}, {"WMF ", 221},
    {"SVG ", 801},
}};

std::string key4(std::string_view s) {
  std::string k = "    ";
  for (std::size_t i = 0; i < 4 && i < s.size(); ++i) k[i] = upper(s[i]);
  return k;
}

int rnd(float v) { return int(v + 0.5f); }

// Device classes of the pen stream.
bool is_screen(int d) { return d < 101; }
bool is_terminal(int d) { return d >= 101 && d <= 200; }
bool is_ps(int d) { return d >= 501 && d <= 600 && d != 511; }
bool is_raster(int d) { return d >= 601 && d <= 700; }

}  // namespace

int qqgdnr(std::string_view cfmt) {
  const std::string k = key4(cfmt);
  if (k >= "MET1" && k <= "MET9") return 80;
  for (const auto& e : kDevices)
    if (k == e.key) return e.idev;
  warnc1(2, cfmt);
  return 0;
}

std::string qqgfxt(int idev) {
  switch (idev) {
    case 201: return "met";
    case 211: return "cgm";
    case 221: return "wmf";
    case 301: return "kyo";
    case 151: return "tek";
    case 161: return "ln3";
    case 501: case 502: return "psc";
    case 503: return "eps";
    case 504: return "ps";
    case 511: return "pdf";
    case 601: return "tif";
    case 602: return "img";
    case 604: return "png";
    case 605: return "ppm";
    case 606: return "bmp";
    case 607: return "gif";
    case 701: return "java";
    case 801: return "svg";
    default: break;
  }
  if (idev >= 401 && idev <= 405) return "hpg";
  return "   ";
}

void metafl(std::string_view cfmt) {
  if (jqqlev(0, 0, "METAFL")) return;
  int nr = qqgdnr(cfmt);
  if (nr == 0) return;
  if (nr == 101 && qqwchk()) nr = 80;
  zg.idev = nr;
  zg.cfmt = key4(cfmt);
  zg.imetsel = 1;
}

std::string getmfl() {
  chkini("GETMFL");
  return std::string(zg.cfmt.full());
}

// devscl by device class, with the limit of sclmod DOWN.
void set_devscl() {
  const int d = zg.idev;
  const float nx = float(zg.nxpag), ny = float(zg.nypag);
  const float s = zg.xsclfac * zg.unitfac;
  const float a = zg.ipgmod == 1 ? ny : nx;
  const float b = zg.ipgmod == 1 ? nx : ny;
  const float mx = std::max(nx, ny), mn = std::min(nx, ny);
  const bool down = zg.isclmd == 0;
  float v = 1.0f, lim = -1.0f;
  if (is_screen(d) || is_raster(d) || d == 701 || d == 801) {
    v = std::min(float(zg.nwimg - 1) / a, float(zg.nhimg - 1) / b);
    lim = a > b ? s * float(zg.nwimg - 1) / 2969.0f : s * float(zg.nhimg - 1) / 2969.0f;
  } else if (d >= 101 && d <= 151) {
    v = std::min(1023.0f / a, 791.0f / b);
    lim = a > b ? s * 1023.0f / 2969.0f : s * 791.0f / 2969.0f;
  } else if (d >= 152 && d <= 200) {
    v = nx > ny ? std::min(4095.0f / nx, 3071.0f / ny) : std::min(4095.0f / ny, 3071.0f / nx);
    lim = nx > ny ? s * 4095.0f / 2969.0f : s * 3071.0f / 2099.0f;
  } else if (d == 201) {
    v = 1.0f / mx;
  } else if (d == 211) {
    v = 2.0f * s;
  } else if (d == 221) {
    v = s * 5.66929150f;
  } else if (d >= 301 && d <= 400) {
    v = nx > ny ? std::min(3390.0f / nx, 2362.0f / ny) : std::min(2362.0f / nx, 3390.0f / ny);
    lim = s * 300.0f / 254.0f;
  } else if (d == 401) {
    v = 4.0f * s;
  } else if (d >= 402 && d <= 405) {
    static constexpr float kLong[] = {10870.0f, 15970.0f, 21360.0f, 30280.0f};
    static constexpr float kShort[] = {7600.0f, 10870.0f, 13440.0f, 21360.0f};
    v = std::min(kLong[d - 402] / mx, kShort[d - 402] / mn);
    lim = 4.0f * s;
  } else if (d >= 501 && d <= 600) {
    float w = 3900.0f, h = 5600.0f;
    if (zg.ihwpag) {
      w = 2.0f * float(zg.xpaper);
      h = 2.0f * float(zg.ypaper);
    }
    if (d == 511) {
      w *= 0.5f * 72.0f / 254.0f;
      h *= 0.5f * 72.0f / 254.0f;
    }
    float f = (nx > ny && zg.ipgmod != 2) ? std::min(h / nx, w / ny) : std::min(w / nx, h / ny);
    if (down) f = std::min(f, d == 511 ? s * 72.0f / 254.0f : 2.0f * s);
    if (d == 511 || zg.ihwpag) {
      zg.devscl = f;
    } else {
      zg.devscl = zg.unitfac * 3900.0f / 2100.0f;
    }
    psc_factor = f / zg.devscl;
    return;
  }
  if (down && lim > 0.0f) v = std::min(v, lim);
  zg.devscl = v;
}

void zori01() {
  set_devscl();
  zori_window();
}

void zori02() {
  const int d = zg.idev;
  if (d == 101 || d == 103) {
    zg.lunplt = 6;
    zg.lobuf = 79;
    zg.nobuf = 0;
    return;
  }
  std::string name;
  if (zg.ifilst == 1 || zg.ifilst == 2) {
    name = zg.cplotfl.str();
    zg.ifilst = 2;
  } else {
    name = "zorbel." + qqgfxt(d);
    while (!name.empty() && name.back() == ' ') name.pop_back();
  }
  zg.lunplt = 15;
  zg.lobuf = 80;
  zg.nobuf = 0;
  zg.cobuf = "";
  gfilnn(name);
  zg.cplotfl = name;
  if (d == 603 || (is_raster(d))) return;   // raster files are written at the end
  if (d == 211) zg.nrec = 0;
  if (d == 221 || d == 511) return;          // their drivers open the file
  if (!lun_open(15, name, "wb")) {
    lun_write(6, " <<<< Open error: " + name);
    std::fflush(nullptr);
    std::exit(1);
  }
}

void zori03() {
  const int d = zg.idev;
  set_devscl();
  zg.ctek = {29, 32, 96, 32, 64, 0};
  zg.ixlast = zg.iylast = 0;
  zg.ipencd = 0;
  if (d == 211 || d == 221 || is_ps(d) || d == 511 || d == 701 || d == 801 || d == 605 ||
      (is_raster(d) && zg.imgrgb == 1))
    zg.ndepth = 24;
  if (is_ps(d)) {
    inipsc(15);
  } else if (is_terminal(d)) {
    dtdraw(0, 0, 0);
  } else if (d == 211) {
    inicgm(1);
  } else if (d == 221) {
    qqwmf1();
  } else if (d == 511) {
    zori_pdf();
  } else if (d == 801) {
    zori_svg();
  } else if (is_raster(d)) {
    zori_raster();
  }
}

void xjdraw(float x, float y, int icode) {
  ++zg.nvect;
  const int d = zg.idev;
  const float s = zg.devscl;
  const float nx = float(zg.nxpag), ny = float(zg.nypag);
  if (icode == 999) {
    // Closes a buffered stroke.
    if (is_ps(d)) drwpsc(0.0f, 0.0f, 999);
    else if (d == 211) drwcgm(0.0f, 0.0f, 999);
    else if (d == 801) qqsvg2(0.0f, 0.0f, 9);
    else if (d == 511) qqpdf2(0.0f, 0.0f, 999);
    return;
  }
  if (d >= 501 && d <= 600) {
    float u = x * s, v = (ny - y) * s;
    if (psc_turned()) { u = y * s; v = x * s; }
    if (d == 511) qqpdf2(u, v, icode);
    else drwpsc(u, v, icode);
    return;
  }
  if (is_terminal(d)) {
    int ix, iy;
    if (d == 161) {
      if (nx > ny) { ix = rnd(x * s); iy = rnd((ny - y) * s); }
      else { ix = rnd(y * s); iy = rnd(x * s); }
      dtdr12(ix + 1, iy + 1, icode);
      return;
    }
    if (zg.ipgmod == 1) { ix = rnd(y * s); iy = rnd(x * s); }
    else { ix = rnd(x * s); iy = rnd((ny - y) * s); }
    dtdraw(ix + 1, iy + 1, icode);
    return;
  }
  if (d == 211) {
    if (zg.ipgmod == 1) drwcgm(y * s, x * s, icode);
    else drwcgm(x * s, (ny - y) * s, icode);
    return;
  }
  if (d == 801) {
    if (zg.ipgmod == 1) qqsvg2(y * s, (nx - x) * s, icode);
    else qqsvg2(x * s, y * s, icode);
    return;
  }
  simple_draw(x, y, icode);
}

void xjpoly(const float* xray, const float* yray, int n) {
  if (n < 3 || xray == nullptr || yray == nullptr) return;
  const int d = zg.idev;
  const float s = zg.devscl;
  if (d == 801) {
    svg_polygon(0.0f, 0.0f, 1);
    for (int i = 0; i < n; ++i) {
      const float x = xray[i], y = yray[i];
      if (zg.ipgmod == 1) svg_polygon(y * s, (float(zg.nxpag) - x) * s, 2);
      else svg_polygon(x * s, y * s, 2);
    }
    svg_polygon(0.0f, 0.0f, 9);
    return;
  }
  if (d != 221) return;   // the screen driver takes polygons when it is present
  qqwmf6(n, 0, 1);
  for (int i = 0; i < n; ++i) {
    const float x = xray[i], y = yray[i];
    if (zg.ipgmod == 1) qqwmf6(rnd(y * s), rnd((float(zg.nxpag) - x) * s), 2);
    else qqwmf6(rnd(x * s), rnd(y * s), 2);
  }
  qqwmf6(0, 0, 9);
}

}  // namespace zb
