// Colour: the nine named tables, own tables and single entries, the current colour as an
// index or an explicit 0x01BBGGRR value, conversions between RGB and HSV, colour ranges
// and scales, and the table file of vltfil.
#include "draw/colour.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>

#include "draw/device.h"
#include "draw/line.h"
#include "frame/frame.h"

namespace zb {

// The screen and the raster store replace these with their own.
[[gnu::weak]] void qqwvlt(int, const int*) {}
[[gnu::weak]] void qqvvlt(int, const int*) {}

namespace {

enum Table { kSmal, kRain, kSpec, kGrey, kRrai, kRspe, kRgre, kVga, kTemp };

constexpr std::string_view kTableKeys = "SMAL+RAIN+SPEC+GREY+RRAI+RSPE+RGRE+VGA +TEMP";
constexpr std::array<const char*, 9> kTableNames = {"SMALL", "RAIN ", "SPEC ", "GREY ", "RRAIN",
                                                    "RSPEC", "RGREY", "VGA  ", "TEMP "};

// Explicit colours of the keywords of color: in colour, and as grey levels for GREY, RGRE.
constexpr std::array<int, 9> kKeyColours = {0x01FFFFFF, 0x010000FF, 0x0100FF00,
                                            0x0100FFFF, 0x01FF0000, 0x010080FF,
                                            0x01FFFF00, 0x01FF00FF, 0x01000000};
constexpr std::array<int, 9> kKeyGreys = {0x01FFFFFF, 0x01E6E6E6, 0x01B9B9B9,
                                          0x01969696, 0x015F5F5F, 0x01D7D7D7,
                                          0x01AFAFAF, 0x016E6E6E, 0x01000000};
constexpr int kBlack = 0x01000000, kWhite = 0x01FFFFFF;

constexpr std::array<int, 9> kSmall = {0x000000, 0xFFFFFF, 0xFF0000, 0x00FF00, 0x0000FF,
                                       0xFFFF00, 0xFF8000, 0x00FFFF, 0xFF00FF};
constexpr std::array<int, 16> kVgaTable = {0x000000, 0x0000AA, 0x00AA00, 0x00AAAA,
                                           0xAA0000, 0xAA00AA, 0xAA5500, 0xAAAAAA,
                                           0x555555, 0x5555FF, 0x55FF55, 0x55FFFF,
                                           0xFF5555, 0xFF55FF, 0xFFFF55, 0xFFFFFF};

// The course of RAIN and SPEC: fixed rows, the entries between them interpolated linearly.
struct Row {
  int i, rgb;
};
constexpr std::array<Row, 12> kRainRows = {{{0, 0x000000}, {1, 0x220044}, {2, 0x26004D},
                                            {32, 0x0008FF}, {64, 0x0084FF}, {96, 0x00FFFF},
                                            {128, 0x00FF52}, {160, 0x7BFF00}, {192, 0xFFFF00},
                                            {224, 0xFF7B00}, {254, 0xFF0000}, {255, 0xFFFFFF}}};
constexpr std::array<Row, 12> kSpecRows = {{{0, 0x000000}, {1, 0xFF00FF}, {2, 0xFA00FF},
                                            {32, 0x6300FF}, {64, 0x003EFF}, {96, 0x00E0FF},
                                            {128, 0x00FF7D}, {160, 0x24FF00}, {192, 0xC6FF00},
                                            {224, 0xFF9700}, {254, 0xFF0000}, {255, 0xFFFFFF}}};

int nint255(float x) { return std::clamp(int(std::floor(255.0f * x + 0.5f)), 0, 255); }
int pack(int r, int g, int b) { return (r << 16) | (g << 8) | b; }
bool is_explicit(int iclr) { return (unsigned(iclr) >> 24) == 1u; }
int index_of(int iclr) { return ((iclr % 256) + 256) % 256; }

// A colour part in -tol .. 1 + tol; false for NaN too.
bool part_ok(float x, float lo, float hi) { return x >= lo && x <= hi; }
bool parts_ok(float r, float g, float b) {
  return part_ok(r, -0.001f, 1.001f) && part_ok(g, -0.001f, 1.001f) && part_ok(b, -0.001f, 1.001f);
}

void fill_rows(const std::array<Row, 12>& rows) {
  for (std::size_t k = 0; k + 1 < rows.size(); ++k) {
    const Row a = rows[k], b = rows[k + 1];
    const int span = b.i - a.i;
    for (int i = a.i; i < b.i; ++i) {
      int v = 0;
      for (int shift : {16, 8, 0}) {
        const int ca = (a.rgb >> shift) & 255, cb = (b.rgb >> shift) & 255;
        const int c = (ca * (b.i - i) * 2 + cb * (i - a.i) * 2 + span) / (2 * span);
        v |= c << shift;
      }
      zg.ivlt[std::size_t(i)] = v;
    }
  }
  zg.ivlt[255] = rows.back().rgb;
}

void fill_temp() {
  for (int i = 0; i < 256; ++i) {
    const float x = float(i);
    const int r = i < 150 ? int(1.7f * x + 0.5f) : 255;
    const int g = i >= 120 ? int(1.8888889f * (x - 120.0f) + 0.5f) : 0;
    const int b = i >= 190 ? int(3.9230769f * (x - 190.0f) + 0.5f) : 0;
    zg.ivlt[std::size_t(i)] = pack(std::min(r, 255), std::min(g, 255), std::min(b, 255));
  }
}

// Fills ivlt with table nr; the SMAL and VGA tables lead with white on white pages.
void fill_table(int nr) {
  const bool white_page = zg.idev == 501 || zg.idev == 221;
  zg.ivlt.fill(0);
  switch (nr) {
    case kSmal:
      std::copy(kSmall.begin(), kSmall.end(), zg.ivlt.begin());
      if (white_page) { zg.ivlt[0] = 0xFFFFFF; zg.ivlt[1] = 0x000000; }
      return;
    case kVga:
      std::copy(kVgaTable.begin(), kVgaTable.end(), zg.ivlt.begin());
      if (white_page) { zg.ivlt[0] = 0xFFFFFF; zg.ivlt[15] = 0x000000; }
      return;
    case kTemp: fill_temp(); return;
    case kRain: case kRrai: fill_rows(kRainRows); break;
    case kSpec: case kRspe: fill_rows(kSpecRows); break;
    default:
      for (int i = 0; i < 256; ++i) zg.ivlt[std::size_t(i)] = i * 0x010101;
      break;
  }
  if (nr == kRrai || nr == kRspe || nr == kRgre) std::reverse(zg.ivlt.begin(), zg.ivlt.end());
}

// The entry that changes places with entry 0 when the screen is reversed.
int last_entry() { return zg.ivltnr == kSmal ? 1 : zg.ivltnr == kVga ? 15 : 255; }

bool is_pdf_or_ps(int d) { return d >= 501 && d <= 600; }

// Keywords WHIT and BLAC (the first and the ninth of icolnm) by table and output.
void key_colours(int nr) {
  const int d = zg.idev;
  const bool post = d == 501, cgm_wmf = d == 211 || d == 221;
  int w = zg.icolnm[0], k = zg.icolnm[8];
  if (nr == kSmal || nr == kGrey || nr == kRgre) k = w;
  if (nr == kSmal) {
    if (post || cgm_wmf) w = k = kBlack;
  } else if (nr == kRain || nr == kSpec || nr == kGrey || nr == kTemp) {
    if (cgm_wmf) w = kBlack;
  }
  if (nr == kRrai || nr == kRspe || nr == kRgre) {
    if (post || cgm_wmf) w = k = kBlack;
    else if (zg.ndepth <= 8) std::swap(w, k);
  } else if (nr == kVga) {
    w = kBlack;
    k = kWhite;
  }
  zg.icolnm[0] = w;
  zg.icolnm[8] = k;
}

// Foreground, background and the ends of the table.
void fore_and_back(int nr) {
  const int d = zg.idev;
  zg.ifgclr = 255;
  zg.ibgclr = 0;
  zg.nclrlo = 0;
  zg.nclrhi = 255;
  const bool white_page = d == 501 || d == 701 || d == 221 || d == 211;
  if (white_page && (nr == kRain || nr == kSpec || nr == kGrey || nr == kTemp)) {
    zg.ifgclr = 0;
    zg.ibgclr = 255;
  } else if (nr == kSmal) {
    zg.nclrhi = 9;
    zg.ifgclr = 1;
  } else if (nr == kVga) {
    zg.nclrhi = 15;
    zg.ifgclr = 15;
  } else if ((nr == kRrai || nr == kRspe || nr == kRgre) && zg.ndepth > 8 && d != 501 && d != 221) {
    zg.ifgclr = 0;
    zg.ibgclr = 255;
  }
  zg.nclr1 = zg.nclrlo + 1;
  zg.nclr2 = zg.nclrhi - 1;
}

// scrmod REVERSE on the outputs whose page is white by default.
void reverse_screen(int nr) {
  const int d = zg.idev;
  const bool applies = d < 101 || d == 502 || d == 503 || d == 504 || d == 511 || d > 600;
  if (zg.irevscr != 2 || !applies) return;
  std::swap(zg.ivlt[0], zg.ivlt[std::size_t(last_entry())]);
  std::swap(zg.nclrlo, zg.nclrhi);
  if (nr == kSmal || nr == kGrey || nr == kRgre) {
    zg.icolnm[0] = zg.icolnm[8] = kBlack;
  } else {
    std::swap(zg.icolnm[0], zg.icolnm[8]);
  }
}

// Stores one entry after the range check; false and warning 2 if a part is out of range.
bool store_entry(int i, float xr, float xg, float xb) {
  if (!parts_ok(xr, xg, xb)) {
    warnin(2);
    return false;
  }
  zg.ivlt[std::size_t(i)] = pack(nint255(xr), nint255(xg), nint255(xb));
  return true;
}

// Fields of other folders, read or set once those folders have put them in the record:
// the scale of setzpa (colour plots) and the saved-table flag of the metafile driver.
template <class Z>
bool read_zscale(const Z& z, float& zpa, float& zpe, float& zlow, float& zhigh, float& zcfac) {
  if constexpr (requires { z.zpa; z.zpe; z.zlow; z.zhigh; z.zcfac; }) {
    zpa = z.zpa; zpe = z.zpe; zlow = z.zlow; zhigh = z.zhigh; zcfac = z.zcfac;
    return true;
  } else {
    return false;
  }
}

template <class Z>
void mark_vlt_saved(Z& z, const std::string& name) {
  if constexpr (requires { z.ivltsv; z.cvltfl; }) {
    z.ivltsv = 1;
    z.cvltfl = name;
  }
}

// The pen colour without the checks of setclr.
void pen_colour(int iclr) {
  qqstrk();
  qqsclr(iclr);
}

}  // namespace

int active_vlt_length() { return zg.ivltnr == kSmal ? 9 : zg.ivltnr == kVga ? 16 : 256; }

void setvlt(std::string_view ctab) {
  if (jqqlev(1, 3, "SETVLT")) return;
  const int k = jqqind(kTableKeys, 9, ctab);
  if (k == 0) return;
  const int nr = (zg.idev >= 301 && zg.idev <= 400) ? kSmal : k - 1;
  zg.ivltnr = nr;
  zg.icolnm = (nr == kGrey || nr == kRgre) ? kKeyGreys : kKeyColours;
  key_colours(nr);
  if (zg.ivltset == 1) zg.ivltset = 0;
  else fill_table(nr);
  fore_and_back(nr);
  reverse_screen(nr);
  default_clrcyc();
  shwvlt();
  pen_colour(zg.ifgclr);
}

std::string getvlt() {
  chkini("GETVLT");
  return kTableNames[std::size_t(std::clamp(zg.ivltnr, 0, 8))];
}

void myvlt(const float* xr, const float* xg, const float* xb, int n) {
  chkini("MYVLT");
  if (jqqval(n, 1, 256)) return;
  if (xr == nullptr || xg == nullptr || xb == nullptr) {
    warnin(2);
    return;
  }
  for (int i = 0; i < n; ++i)
    if (!parts_ok(xr[i], xg[i], xb[i])) {
      warni1(2, i + 1);
      return;
    }
  for (int i = 0; i < n; ++i) store_entry(i, xr[i], xg[i], xb[i]);
  if (zg.ilevel == 0) zg.ivltset = 1;
  else shwvlt();
}

void setind(int i, float xr, float xg, float xb) {
  chkini("SETIND");
  if (jqqval(i, 0, 255)) return;
  if (!store_entry(i, xr, xg, xb)) return;
  if (zg.idev >= 71 && zg.ilevel > 0) shwvlt();
}

void getind(int i, float& xr, float& xg, float& xb) {
  chkini("GETIND");
  if (!is_explicit(i) && jqqval(i, 0, 255)) return;
  qqgrgb(i, xr, xg, xb);
}

void revscr() {
  chkini("REVSCR");
  std::swap(zg.ivlt[0], zg.ivlt[std::size_t(last_entry())]);
  if (zg.ilevel == 0) return;
  if (is_pdf_or_ps(zg.idev)) pen_colour(zg.ipenclr);
  else shwvlt();
}

void clrmod(std::string_view cmod) {
  if (jqqlev(0, 0, "CLRMOD")) return;
  const int k = jqqind("NONE+FULL+CONT", 3, cmod);
  if (k > 0) zg.iclrmd = k - 1;
}

void shwvlt() {
  const int d = zg.idev;
  if (d < 101) qqwvlt(zg.ivltnr, zg.ivlt.data());
  else if (d >= 501 && d <= 700) qqvvlt(zg.ivltnr, zg.ivlt.data());
}

void color(std::string_view cname) {
  if (jqqlev(1, 3, "COLOR")) return;
  const int k = jqqind("WHIT+RED +GREE+YELL+BLUE+ORAN+CYAN+MAGE+BLAC+FORE+BACK", 11, cname);
  if (k == 0) return;
  pen_colour(k <= 9 ? zg.icolnm[std::size_t(k - 1)] : k == 10 ? zg.ifgclr : zg.ibgclr);
}

void setclr(int iclr) {
  if (jqqlev(1, 3, "SETCLR")) return;
  if (jqqval(iclr, 0, -1)) return;
  pen_colour(iclr);
}

void getclr(int& iclr) {
  chkini("GETCLR");
  iclr = zg.ipenclr;
}

int intrgb(float xr, float xg, float xb) {
  if (!parts_ok(xr, xg, xb)) return -1;
  return 0x01000000 + nint255(xr) + (nint255(xg) << 8) + (nint255(xb) << 16);
}

void setrgb(float xr, float xg, float xb) {
  if (jqqlev(1, 3, "SETRGB")) return;
  const int v = intrgb(xr, xg, xb);
  if (v < 0) {
    warnin(2);
    return;
  }
  pen_colour(v);
}

void getrgb(float& xr, float& xg, float& xb) {
  if (jqqlev(1, 3, "GETRGB")) return;
  qqgrgb(zg.ipenclr, xr, xg, xb);
}

int indrgb(float xr, float xg, float xb) {
  if (jqqlev(1, 3, "INDRGB")) return -1;
  if (!parts_ok(xr, xg, xb)) {
    warnin(2);
    return -1;
  }
  const int r = nint255(xr), g = nint255(xg), b = nint255(xb);
  int best = 0, dbest = 1 << 30;
  for (int i = 0; i < active_vlt_length(); ++i) {
    const int v = zg.ivlt[std::size_t(i)];
    const int dist = std::abs(((v >> 16) & 255) - r) + std::abs(((v >> 8) & 255) - g) + std::abs((v & 255) - b);
    if (dist < dbest) { dbest = dist; best = i; }
  }
  return best;
}

int qqgidx(int r, int g, int b) {
  int best = 0, dbest = 1 << 30;
  for (int i = 0; i < active_vlt_length(); ++i) {
    const int v = zg.ivlt[std::size_t(i)];
    const int dist = std::abs(((v >> 16) & 255) - r) + std::abs(((v >> 8) & 255) - g) + std::abs((v & 255) - b);
    if (dist < dbest) {
      dbest = dist;
      best = i;
      if (dist == 0) break;
    }
  }
  return best;
}

void hsvrgb(float xh, float xs, float xv, float& xr, float& xg, float& xb) {
  if (jqqlev(1, 3, "HSVRGB")) return;
  if (!part_ok(xh, -0.0001f, 360.0f) || !part_ok(xs, -0.0001f, 1.0001f) || !part_ok(xv, -0.0001f, 1.0001f)) {
    warnin(2);
    return;
  }
  const float h6 = xh / 60.0f;
  int i = int(h6);
  const float f = h6 - float(i);
  const float v = xv, p = xv * (1.0f - xs), q = xv * (1.0f - xs * f), t = xv * (1.0f - xs * (1.0f - f));
  if (i == 6) i = 0;
  switch (i) {
    case 0: xr = v; xg = t; xb = p; break;
    case 1: xr = q; xg = v; xb = p; break;
    case 2: xr = p; xg = v; xb = t; break;
    case 3: xr = p; xg = q; xb = v; break;
    case 4: xr = t; xg = p; xb = v; break;
    default: xr = v; xg = p; xb = q; break;
  }
}

void rgbhsv(float xr, float xg, float xb, float& xh, float& xs, float& xv) {
  if (jqqlev(1, 3, "RGBHSV")) return;
  if (!part_ok(xr, -0.0001f, 1.0001f) || !part_ok(xg, -0.0001f, 1.0001f) || !part_ok(xb, -0.0001f, 1.0001f)) {
    warnin(2);
    return;
  }
  const float mx = std::max({xr, xg, xb}), mn = std::min({xr, xg, xb});
  const float d = mx - mn;
  xv = mx;
  xs = mx > 0.0f ? d / mx : 0.0f;
  float h = 0.0f;
  if (d > 0.0f) {
    if (xr == mx) h = (xg - xb) / d;
    else if (xg == mx) h = 2.0f + (xb - xr) / d;
    else h = 4.0f + (xr - xg) / d;
    h *= 60.0f;
    if (h < 0.0f) h += 360.0f;
  }
  xh = h;
}

void colran(int nlow, int nhigh) {
  chkini("COLRAN");
  if (jqqval(nlow, 0, 255) || jqqval(nhigh, 0, 255)) return;
  zg.nclr1 = nlow;
  zg.nclr2 = nhigh;
}

void getran(int& nlow, int& nhigh) {
  chkini("GETRAN");
  nlow = zg.nclr1;
  nhigh = zg.nclr2;
}

int scale_colour(float z, bool logscale, float zpa, float zpe, float zlow, float zhigh, float zcfac) {
  const bool up = zpa < zpe;
  if (std::isnan(z) || z < zlow) return up ? zg.nclrlo : zg.nclrhi;
  if (z > zhigh) return up ? zg.nclrhi : zg.nclrlo;
  const float v = logscale ? std::log10(z) : z;
  float t = float(zg.nclr1) + (v - zpa) * zcfac;
  if (std::isnan(t)) t = float(zg.nclr1);   // log10 of 0 times 0, or a scale of no width
  t = std::clamp(t, -1.0e6f, 1.0e6f);
  int n = int(t);
  if (n == zg.nclr1 - 1) n = zg.nclr1;
  if (n == zg.nclr2 + 1) n = zg.nclr2;
  // Only a degenerate scale lands farther out: keep it on the range.
  return std::clamp(n, std::min(zg.nclr1, zg.nclr2), std::max(zg.nclr1, zg.nclr2));
}

int ncolor(float z) {
  float zpa = 0, zpe = 0, zlow = 0, zhigh = 0, zcfac = 0;
  if (!read_zscale(zg, zpa, zpe, zlow, zhigh, zcfac)) return zg.nclr1;
  return scale_colour(z, false, zpa, zpe, zlow, zhigh, zcfac);
}

int ncollg(float z) {
  float zpa = 0, zpe = 0, zlow = 0, zhigh = 0, zcfac = 0;
  if (!read_zscale(zg, zpa, zpe, zlow, zhigh, zcfac)) return zg.nclr1;
  return scale_colour(z, true, zpa, zpe, zlow, zhigh, zcfac);
}

void clrcyc(int i, int iclr) {
  chkini("CLRCYC");
  if (jqqval(i, 1, 30) || jqqval(iclr, 0, -1)) return;
  zg.iclrcy[std::size_t(i - 1)] = iclr;
}

void lincyc(int i, int ityp) {
  chkini("LINCYC");
  if (jqqval(i, 1, 30) || jqqval(ityp, 0, 7)) return;
  zg.ilincy[std::size_t(i - 1)] = ityp;
}

void patcyc(int i, int ipat) {
  chkini("PATCYC");
  if (jqqval(i, 1, 30) || jqqval(ipat, 0, 180000)) return;
  zg.ipatcy[std::size_t(i - 1)] = ipat;
}

void qqgrgb(int iclr, int& r, int& g, int& b) {
  if (is_explicit(iclr)) {
    r = iclr & 255;
    g = (iclr >> 8) & 255;
    b = (iclr >> 16) & 255;
    return;
  }
  const int v = zg.ivlt[std::size_t(index_of(iclr))];
  r = (v >> 16) & 255;
  g = (v >> 8) & 255;
  b = v & 255;
}

void qqgrgb(int iclr, float& xr, float& xg, float& xb) {
  int r, g, b;
  qqgrgb(iclr, r, g, b);
  xr = float(r) / 255.0f;
  xg = float(g) / 255.0f;
  xb = float(b) / 255.0f;
}

void gbyt03(int iv, int& i1, int& i2, int& i3) {
  i1 = (iv >> 16) & 255;
  i2 = (iv >> 8) & 255;
  i3 = iv & 255;
}

// Table to and from a text file: 256 lines of r, g, b in the form F10.6.
void vltfil(std::string_view cfil, std::string_view cmod) {
  if (jqqlev(1, 3, "VLTFIL")) return;
  const int k = jqqind("SAVE+LOAD", 2, cmod);
  if (k == 0) return;
  std::string name(cfil);
  if (k == 1) {
    gfilnn(name);
    std::FILE* f = std::fopen(name.c_str(), "w");
    if (f == nullptr) {
      warnin(36);
      return;
    }
    for (int i = 0; i < 256; ++i) {
      float r, g, b;
      qqgrgb(i, r, g, b);
      const std::string line = fmt_f(r, 10, 6) + fmt_f(g, 10, 6) + fmt_f(b, 10, 6) + "\n";
      std::fputs(line.c_str(), f);
    }
    std::fclose(f);
    mark_vlt_saved(zg, name);
    return;
  }
  while (!name.empty() && name.back() == ' ') name.pop_back();
  std::FILE* f = std::fopen(name.c_str(), "r");
  if (f == nullptr) {
    warnin(36);
    return;
  }
  char line[256];
  for (int i = 0; i < 256 && std::fgets(line, sizeof line, f) != nullptr; ++i) {
    float v[3];
    const char* p = line;
    const char* end = line + std::char_traits<char>::length(line);
    for (float& x : v) {
      while (p < end && (*p == ' ' || *p == ',' || *p == '\t')) ++p;
      const auto res = std::from_chars(p, end, x);
      if (res.ec != std::errc()) {
        std::fclose(f);
        warnin(56);
        return;
      }
      p = res.ptr;
    }
    store_entry(i, v[0], v[1], v[2]);
  }
  std::fclose(f);
  shwvlt();
}

}  // namespace zb
