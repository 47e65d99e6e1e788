// The page: format by keyword or own size, turning, units and scale, the printable area
// and origin on paper, all set before the session opens; the page frame and the y origin
// within a session.
#include <array>
#include <cmath>

#include "draw/line.h"
#include "frame/frame.h"
#include "frame/page.h"

namespace zb {

namespace {

// Page formats in 0.1 mm, long side by short side; keys end in L (landscape).
struct PageFormat {
  const char* key;
  int nlong, nshort;
};
constexpr std::array<PageFormat, 16> kPages = {{
    {"DA4L", 2969, 2099},  {"DA3L", 4199, 2969},  {"DA2L", 5939, 4199}, {"DA1L", 8409, 5939},
    {"DA0L", 11889, 8409}, {"HP4L", 2716, 1899},  {"HP3L", 3989, 2716}, {"HP2L", 5339, 3359},
    {"HP1L", 7569, 5339},  {"KY4L", 2869, 1999},  {"PS4L", 2799, 1949}, {"USAL", 2789, 2159},
    {"USBL", 4319, 2789},  {"USCL", 5589, 4319},  {"USDL", 8639, 5589}, {"USEL", 11179, 8639},
}};

// Sizes on paper beyond 10 km (in 0.1 mm) are refused: every later product of a size and
// a factor stays a valid integer.
constexpr float kMaxPaper = 1.0e8f;

}  // namespace

void setpag(std::string_view cpag) {
  if (jqqlev(0, 0, "SETPAG")) return;
  std::string key = "    ";
  for (std::size_t i = 0; i < 4 && i < cpag.size(); ++i) key[i] = upper(cpag[i]);
  const bool portrait = key[3] == 'P';
  if (portrait) key[3] = 'L';
  const PageFormat* found = nullptr;
  for (const auto& p : kPages)
    if (key == p.key) found = &p;
  if (found == nullptr) {
    warnc1(2, cpag);
    return;
  }
  if (portrait) {
    key[3] = 'P';
    zg.fpagx = float(found->nshort);
    zg.fpagy = float(found->nlong);
  } else {
    zg.fpagx = float(found->nlong);
    zg.fpagy = float(found->nshort);
  }
  zg.cpagfmt = key;
  if (zg.imetsel == 0) {
    zg.idev = 201;
    zg.cfmt = "ZMET";
  }
}

void page(int nx, int ny) {
  if (jqqlev(0, 0, "PAGE")) return;
  // A page counts points: it needs two in each direction to have a size.
  for (int v : {nx, ny}) {
    if (v < 2 || float(v - 1) * zg.unitfac > kMaxPaper) {
      warni1(2, v);
      return;
    }
  }
  zg.fpagx = float(nx - 1) * zg.unitfac;
  zg.fpagy = float(ny - 1) * zg.unitfac;
  zg.cpagfmt = "PAGE";
}

void pagera() {
  if (jqqlev(1, 3, "PAGERA")) return;
  const float w = float(zg.nxpag), h = float(zg.nypag);
  qqmove(0.0f, 0.0f);
  qqdraw(0.0f, h);
  qqdraw(w, h);
  qqdraw(w, 0.0f);
  qqdraw(0.0f, 0.0f);
}

void pagmod(std::string_view cmod) {
  if (jqqlev(0, 0, "PAGMOD")) return;
  static constexpr int kMode[] = {0, 1, 0, 1, 2};
  const int i = jqqind("COMI+MOVI+LAND+PORT+NONE", 5, cmod);
  if (i > 0) zg.ipgmod = kMode[i - 1];
}

void pagorg(std::string_view copt) {
  if (jqqlev(1, 3, "PAGORG")) return;
  const int i = jqqind("TOP +BOTT", 2, copt);
  if (i > 0) zg.ipgorg = i - 1;
}

void units(std::string_view cunit) {
  if (jqqlev(0, 0, "UNITS")) return;
  static constexpr float kFactor[] = {1.0f, 2.54f, 0.352778f, 0.176389f};
  const int i = jqqind("CM  +INCH+POIN+TWIP", 4, cunit);
  if (i > 0) zg.unitfac = kFactor[i - 1];
}

void sclfac(float xfac) {
  if (jqqlev(0, 0, "SCLFAC")) return;
  if (!(xfac > 0.0f) || !std::isfinite(xfac)) {
    warnin(2);
    return;
  }
  zg.xsclfac = xfac;
  zg.isclmd = 0;
}

void sclmod(std::string_view cmod) {
  if (jqqlev(0, 0, "SCLMOD")) return;
  const int i = jqqind("DOWN+FULL+NONE", 3, cmod);
  if (i > 0) zg.isclmd = i - 1;
}

void scrmod(std::string_view cmod) {
  if (jqqlev(0, 0, "SCRMOD")) return;
  const int i = jqqind("ERAS+NOER+REVE+NORE+AUTO", 5, cmod);
  if (i > 0) zg.iscrset = i - 1;
}

void hwpage(int nw, int nh) {
  if (jqqlev(0, 0, "HWPAGE")) return;
  for (int v : {nw, nh}) {
    if (v < 1 || float(v) * zg.unitfac > kMaxPaper) {
      warni1(2, v);
      return;
    }
  }
  zg.xpaper = int(float(nw) * zg.unitfac + 0.5f);
  zg.ypaper = int(float(nh) * zg.unitfac + 0.5f);
  zg.ihwpag = 1;
}

void hworig(int nx, int ny) {
  if (jqqlev(0, 0, "HWORIG")) return;
  for (int v : {nx, ny}) {
    if (std::abs(float(v)) > kMaxPaper) {
      warni1(2, v);
      return;
    }
  }
  zg.nhworx = nx;
  zg.nhwory = ny;
  zg.ihworg = 1;
}

}  // namespace zb
