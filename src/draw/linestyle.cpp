// Line style setters: dash patterns, widths (software or by the device), caps, joins and
// the miter limit. PostScript, PDF and SVG take widths, caps and joins themselves.
#include <array>
#include <cmath>
#include <string>

#include "draw/device.h"
#include "draw/line.h"
#include "formats/drivers.h"
#include "frame/frame.h"

namespace zb {

void psc_gstate(const std::string& rec);   // ps.cpp

namespace {

// Dash patterns of lintyp 0..7 in plot units for the units CM; pen down, up, down, ...
struct Pattern {
  int n;
  std::array<int, 4> v;
};
constexpr std::array<Pattern, 8> kPatterns = {{
    {1, {1, 0, 0, 0}},        // solid
    {2, {1, 10, 0, 0}},       // dot
    {2, {10, 10, 0, 0}},      // dash
    {4, {30, 15, 10, 15}},    // chndsh
    {4, {1, 15, 15, 15}},     // chndot
    {2, {20, 15, 0, 0}},      // dashm
    {2, {1, 20, 0, 0}},       // dotl
    {2, {30, 20, 0, 0}},      // dashl
}};

bool is_ps() { return zg.idev >= 501 && zg.idev <= 600 && zg.idev != 511; }
bool is_pdf() { return zg.idev == 511; }
bool is_svg() { return zg.idev == 801; }
// Device settings are written only into an open output.
bool device_open() { return zg.ilevel >= 1; }

// Device width in units of 0.05 mm, as PostScript and PDF take an integer width.
int device_width(int nw) { return std::max(int(2.0f * float(nw) * zg.unitfac), 5); }

// A real value to the PDF driver by the dispatcher; code 6 width, 7 join, 8 cap, 9 miter.
void pdf_value(float v, int code) { xjdraw(v, v, code); }

float pdf_points(float w) { return 0.5f * w * 72.0f / (254.0f * zg.devscl); }

// Widths, caps and joins already set on the device stay; with SHAR joins the miter
// limit follows the width.
void after_device_width() {
  if (zg.ilnjoin == 0) lnmlt(zg.xmiter);
}

}  // namespace

void lintyp(int ntyp) {
  chkini("LINTYP");
  if (jqqval(ntyp, 0, 7)) return;
  qqstrk();
  const Pattern& p = kPatterns[std::size_t(ntyp)];
  zg.itypln = ntyp;
  zg.npatln = p.n;
  for (int i = 0; i < p.n; ++i)
    zg.npattn[std::size_t(i)] = std::max(int(float(p.v[std::size_t(i)]) / zg.unitfac + 0.5f), 1);
  inityp();
}

void myline(const int* nray, int n) {
  chkini("MYLINE");
  if (jqqval(n, 1, 10)) return;
  if (nray == nullptr) return;
  for (int i = 0; i < n; ++i)
    if (nray[i] < 1) {
      warni1(2, nray[i]);
      return;
    }
  qqstrk();
  zg.npatln = n;
  for (int i = 0; i < n; ++i) zg.npattn[std::size_t(i)] = nray[i];
  inityp();
}

void gettyp(int& ntyp) {
  chkini("GETTYP");
  ntyp = zg.itypln;
}

void linwid(int nw) {
  chkini("LINWID");
  if (jqqval(nw, 1, 32000)) return;
  qqstrk();
  if (!device_open() || !(is_ps() || is_pdf() || is_svg())) {
    zg.ilinw = nw;
    return;
  }
  zg.ilinw = -nw;
  if (is_ps()) {
    psc_gstate(fmt_i(device_width(nw), 5) + " cm setlinewidth ");
  } else if (is_pdf()) {
    pdf_value(pdf_points(float(device_width(nw))), 6);
  } else {
    qqsvg2(float(nw), float(nw), 6);
  }
  if (!is_svg()) after_device_width();
}

void penwid(float xw) {
  chkini("PENWID");
  if (!(xw > 0.0f && xw <= 32000.0f)) {
    warnin(2);
    return;
  }
  qqstrk();
  const int iw = std::max(int(xw + 0.5f), 1);
  if (!device_open() || !(is_ps() || is_pdf() || is_svg())) {
    zg.ilinw = iw;
    return;
  }
  zg.ilinw = -iw;
  float w;
  if (xw <= 1.0f) w = (zg.unitfac > 2.0f ? 2.0f : 5.0f) * xw * zg.unitfac;
  else w = std::max(2.0f * xw * zg.unitfac, 5.0f);
  if (is_ps()) {
    psc_gstate(fmt_f(w, 8, 2) + " cm setlinewidth ");
  } else if (is_pdf()) {
    pdf_value(pdf_points(w), 6);
  } else {
    qqsvg2(xw, xw, 6);
  }
  if (!is_svg()) after_device_width();
}

void getlin(int& nw) {
  chkini("GETLIN");
  nw = std::abs(zg.ilinw);
}

void lncap(std::string_view copt) {
  chkini("LNCAP");
  const int i = jqqind("CUT +ROUN+LONG", 3, copt);
  if (i == 0) return;
  qqstrk();
  zg.ilncap = i - 1;
  if (!device_open()) return;
  if (is_ps()) psc_gstate(itoa(zg.ilncap) + " setlinecap ");
  else if (is_pdf()) pdf_value(float(zg.ilncap) / zg.devscl, 8);
}

void lnjoin(std::string_view copt) {
  chkini("LNJOIN");
  const int i = jqqind("SHAR+ROUN+TRUN", 3, copt);
  if (i == 0) return;
  qqstrk();
  zg.ilnjoin = i - 1;
  if (!device_open()) return;
  if (is_ps()) psc_gstate(itoa(zg.ilnjoin) + " setlinejoin ");
  else if (is_pdf()) pdf_value(float(zg.ilnjoin) / zg.devscl, 7);
}

void lnmlt(float xf) {
  chkini("LNMLT");
  if (!(xf >= 1.0f) || !std::isfinite(xf)) {
    warnin(2);
    return;
  }
  qqstrk();
  zg.xmiter = xf;
  if (!device_open()) return;
  const float w = float(std::max(2 * std::abs(zg.ilinw), 5));
  if (is_ps()) {
    // The limit is a ratio, at least 1 after the cm scaling (0.1417), or PostScript fails.
    const int v = int(std::clamp(w * xf + 0.5f, 8.0f, 1.0e9f));
    psc_gstate(fmt_i(v, 12) + " cm setmiterlimit ");
  } else if (is_pdf()) {
    pdf_value(w * xf * 0.5f * 72.0f / (zg.devscl * 254.0f), 9);
  }
}

void thkcrv(int n) {
  chkini("THKCRV");
  if (jqqval(n, 1, 10000)) return;
  zg.nthick = n;
}

}  // namespace zb
