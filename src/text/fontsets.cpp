// The font sets: lcinit clears the tables and sets the metrics of a font number, then each
// font routine appends its six alphabets from the constant glyph tables in text/data.
#include <algorithm>

#include "frame/frame.h"
#include "text/alphabet.h"
#include "text/data/glyph_data.h"

namespace zb {

namespace {

// Takes the next alphabet number; 0 once six are loaded.
int next_alphabet() {
  if (zg.nalf >= 6) return 0;
  return ++zg.nalf;
}

// Appends one alphabet from the tables. With shares_pool the contour starts count from the pool
// base of the alphabet loaded before it. A set that would not fit leaves the alphabet empty, so
// that all its characters are blanks.
void append(const glyphs::Alphabet& a, bool shares_pool = false) {
  const int i = next_alphabet();
  if (i == 0) return;
  const std::size_t k = std::size_t(i - 1);
  zg.nalfch[k] = a.npos;
  zg.ialfidx[k] = zg.nidxused + 1;
  zg.ialfpts[k] = shares_pool && i > 1 ? zg.ialfpts[k - 1] : zg.nptsused + 1;
  zg.nalfrec[k] = 0;
  if (zg.nidxused + a.nidx > kMaxAlfWords || zg.nptsused + a.npts > kMaxAlfPoints) return;
  if (a.ypts != nullptr) {   // outline family: x and y stored apart
    std::copy(a.pts, a.pts + a.npts, zg.ichx.begin() + zg.nptsused);
    std::copy(a.ypts, a.ypts + a.npts, zg.ichy.begin() + zg.nptsused);
    zg.nptsused += a.npts;
  } else if (a.npts > 0) {
    lcsets(a.pts, a.npts);
  }
  std::copy(a.idx, a.idx + a.nidx, zg.ichidx.begin() + zg.nidxused);
  zg.nidxused += a.nidx;
  zg.nalfrec[k] = a.nrec;
}

void stroke_set(int ifont, const glyphs::Alphabet& first, const glyphs::Alphabet* own_greek) {
  lcinit(ifont);
  append(first);
  if (own_greek != nullptr) append(*own_greek, true);
  else lcomgr();
  lcmath();
  lcital();
  lcomsc();
  lcomcy();
  zg.ifnttp = 0;
}

void outline_set(int ifont, const glyphs::Alphabet& family) { stroke_set(ifont, family, nullptr); }

}  // namespace

void lcinit(int ifont) {
  zg.ichx.fill(0);
  zg.ichy.fill(0);
  zg.ichidx.fill(0);
  zg.nidxused = zg.nptsused = 0;
  zg.nalf = 0;
  zg.ifont = ifont;
  for (std::size_t k = 0; k < 6; ++k) {
    const int i = int(k) + 1;
    int w = 20, h = 21;
    float sp = 0.25f;
    if (ifont == 1 && (i == 1 || i == 2 || i == 4)) {
      w = 6; h = 7; sp = 0.0f;
    } else if (ifont > 10 && (i == 1 || i == 4)) {
      w = 200; h = 200; sp = 0.2f;
    }
    zg.ncwid[k] = w;
    zg.nchgt[k] = h;
    zg.xalfsp[k] = sp;
    zg.ialffull[k] = i == 1 ? 1 : 0;
    zg.nalfch[k] = 1;
    zg.nalfrec[k] = 0;
    zg.ialfidx[k] = zg.ialfpts[k] = 1;
  }
  if (ifont != 7) zg.xalfsp[4] = 0.0f;   // script letters join
  zg.nblank = ifont == 1 ? 6 : (ifont > 10 ? 60 : 9);
  zg.xfixmul = 1.4f;
  zg.icuralf = 0;
}

// Each word holds x in the low byte and y in the high byte, both signed.
void lcsets(const int16_t* packed, int n) {
  if (packed == nullptr || n <= 0 || zg.nptsused + n > kMaxAlfPoints) return;
  for (int k = 0; k < n; ++k) {
    const auto w = uint16_t(packed[k]);
    const std::size_t at = std::size_t(zg.nptsused + k);
    zg.ichx[at] = int16_t(int8_t(uint8_t(w & 0xFFu)));
    zg.ichy[at] = int16_t(int8_t(uint8_t(w >> 8)));
  }
  zg.nptsused += n;
}

void lcomro() { append(glyphs::complex_latin); }
void lcomgr() { append(glyphs::complex_greek); }
void lcmath() { append(glyphs::math_signs); }
void lcomit() { append(glyphs::complex_italic); }
void lcomsc() { append(glyphs::complex_script); }
void lcomcy() { append(glyphs::complex_cyrillic); }
void lgroma() { append(glyphs::gothic_latin); }
void lgital() { append(glyphs::gothic_italic); }
void lgscri() { append(glyphs::gothic_script); }

// Italics of the sets without italic glyphs: alphabet 1 again, sheared when drawn.
void lcital() {
  const int i = next_alphabet();
  if (i == 0) return;
  const std::size_t k = std::size_t(i - 1);
  zg.ialfidx[k] = 1;
  zg.ialfpts[k] = 1;
  zg.nalfch[k] = 102;
  zg.nalfrec[k] = zg.nalfrec[0];
}

void load_default_font() { stroke_set(1, glyphs::cell_latin, &glyphs::cell_greek); }

void zoralf() {
  chkini("ZORALF");
  load_default_font();
}

void complx() {
  chkini("COMPLX");
  lcinit(3);
  lcomro();
  lcomgr();
  lcmath();
  lcomit();
  lcomsc();
  lcomcy();
  zg.ifnttp = 0;
}

void simplx() {
  chkini("SIMPLX");
  stroke_set(4, glyphs::simplex_latin, &glyphs::simplex_greek);
}

void duplx() {
  chkini("DUPLX");
  stroke_set(5, glyphs::duplex_latin, nullptr);
}

void triplx() {
  chkini("TRIPLX");
  stroke_set(6, glyphs::triplex_latin, nullptr);
}

void gothic() {
  chkini("GOTHIC");
  lcinit(7);
  lgroma();
  lcomgr();
  lcmath();
  lgital();
  lgscri();
  lcomcy();
  zg.ifnttp = 0;
}

// Complex roman with the Gothic alphabets; alphabet 6 is the Gothic roman with all characters.
void comgot() {
  chkini("COMGOT");
  lcinit(7);
  lcomro();
  lcomgr();
  lcmath();
  lgital();
  lgscri();
  lgroma();
  zg.ialffull[5] = 1;
  zg.ifnttp = 0;
}

void helve() {
  chkini("HELVE");
  outline_set(11, glyphs::sans);
}

void helves() {
  chkini("HELVES");
  outline_set(12, glyphs::sans_condensed);
}

void helvet() {
  chkini("HELVET");
  outline_set(13, glyphs::sans_bold);
}

void serif() {
  chkini("SERIF");
  outline_set(14, glyphs::serif);
}

}  // namespace zb
