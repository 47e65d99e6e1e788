// One character of a stroke alphabet: its position in the alphabet, its record in the glyph
// index, its width, and its contours through the line pipeline (outline glyphs also through the
// scan-line fill). The pen (xchr, ychr) then moves on along the text direction.
#include <algorithm>
#include <array>
#include <cmath>

#include "draw/draw.h"
#include "frame/frame.h"
#include "text/alphabet.h"
#include "text/devfont.h"

namespace zb {

namespace {

constexpr int kOutlineBuffer = 200;
std::array<float, kOutlineBuffer> xoutl{}, youtl{};

std::size_t al(int ialf) { return std::size_t(std::clamp(ialf, 1, 6) - 1); }

// Outline glyphs: records of an alphabet that begins the index, in the outline families.
bool outline_alphabet() { return zg.iaidx == 1 && zg.ifont > 10; }

// The absolute pool index of a contour, or -1 if it would leave the loaded points.
int pool_start(int istart, int npts) {
  const long first = long(zg.iapts) + istart - 1;
  if (istart < 1 || npts < 1 || first < 1 || first + npts - 1 > zg.nptsused) return -1;
  return int(first - 1);
}

// Plot point of font coordinates (px + dx, py + dy), with slant, shear and vertical shifts.
void plot_point(float px, float py, float& x, float& y) {
  const float v = py * zg.ycscl;
  float u = px * zg.xcscl + v * zg.xslnstr;
  if (zg.ishear != 0 && zg.xitang != 0.0f) u += v / zg.xitang;
  const float a = zg.xbshft + zg.xoffs;
  x = zg.xchr - a * zg.xsin + u * zg.xcos - v * zg.xsin;
  y = zg.ychr - a * zg.xcos - v * zg.xcos - u * zg.xsin;
}

void advance(float w) {
  zg.xchr += w * zg.xcos;
  zg.ychr -= w * zg.xsin;
}

// First word of the record of position idx (2 and up) of the current alphabet, or 0 if the
// alphabet holds no such record.
int find_record(int idx, int ialf) {
  if (idx - 1 > zg.nalfrec[al(ialf)]) return 0;
  int pos = zg.iaidx;
  for (int k = 0; k < idx - 2; ++k) {
    if (pos < 1 || pos > zg.nidxused) return 0;
    const int len = zg.ichidx[std::size_t(pos - 1)];
    if (len < 1) return 0;
    pos += len;
  }
  if (pos < 1 || pos > zg.nidxused) return 0;
  const int len = zg.ichidx[std::size_t(pos - 1)];
  if (len < 1 || pos + len - 1 > zg.nidxused) return 0;
  return pos;
}

void draw_record(int ipos) {
  const int n = zg.ichidx[std::size_t(ipos - 1)];
  const bool outline = outline_alphabet();
  const float unit = outline ? 2.0f : 0.5f;
  int icur = ipos + 1, nbuf = 0;
  while (icur < ipos + n) {
    int istart = 0, npts = 0;
    float dx = 0.0f, dy = 0.0f;
    gconpa(ipos, icur, unit, istart, npts, dx, dy);
    const int at = pool_start(istart, npts);
    if (at < 0) continue;
    const int16_t* xs = zg.ichx.data() + at;
    const int16_t* ys = zg.ichy.data() + at;
    if (outline) shdcon(xs, ys, npts, dx, dy, zg.xcscl, zg.ycscl, nbuf);
    else alfcon(xs, ys, npts, dx, dy, zg.xcscl, zg.ycscl);
  }
  if (outline) shdfll(nbuf);
}

}  // namespace

void salfpa(int ialf) {
  ialf = std::clamp(ialf, 1, 6);
  if (ialf == zg.icuralf) return;
  device_font_alphabet(ialf);
  const std::size_t k = al(ialf);
  const float nh1 = float(zg.nhchar - 1);
  zg.xcscl = nh1 * zg.xwthstr / float(std::max(1, zg.ncwid[k]));
  zg.ycscl = nh1 / float(std::max(1, zg.nchgt[k]));
  zg.xcgap = zg.ifixstr != 0 ? zg.xspcstr * float(zg.nhchar)
                             : (zg.xspcstr + zg.xalfsp[k]) * float(zg.nhchar);
  zg.iaidx = zg.ialfidx[k];
  zg.iapts = zg.ialfpts[k];
  zg.icuralf = ialf;
}

void gconpa(int ipos, int& icur, float xscl, int& istart, int& npts, float& xoff, float& yoff) {
  const int end = ipos + zg.ichidx[std::size_t(ipos - 1)];
  istart = npts = 0;
  xoff = yoff = 0.0f;
  if (icur + 1 >= end || icur < 1 || icur + 1 > zg.nidxused) {
    icur = end;
    return;
  }
  const int w = zg.ichidx[std::size_t(icur - 1)];
  istart = zg.ichidx[std::size_t(icur)];
  if (w > 0) {
    npts = w;
    icur += 2;
  } else if (w < 0 && icur + 2 < end) {
    npts = -w;
    const auto packed = uint16_t(zg.ichidx[std::size_t(icur + 1)]);
    xoff = float(int8_t(uint8_t(packed & 0xFFu))) * xscl;
    yoff = float(int8_t(uint8_t(packed >> 8))) * xscl;
    icur += 3;
  } else {
    istart = 0;
    icur = end;
  }
}

void gmxcln(int n, int ipos, float xscl, float& xw) {
  if (zg.ifont == 1 && zg.iaidx == 1) {   // the cell font: every glyph takes its cell
    xw = 6.0f * xscl;
    return;
  }
  const float unit = outline_alphabet() ? 2.0f : 0.5f;
  bool any = false;
  float xmax = 0.0f;
  int icur = ipos + 1;
  while (icur < ipos + n) {
    int istart = 0, npts = 0;
    float dx = 0.0f, dy = 0.0f;
    gconpa(ipos, icur, unit, istart, npts, dx, dy);
    const int at = pool_start(istart, npts);
    if (at < 0) continue;
    for (int k = 0; k < npts; ++k) {
      const float x = float(zg.ichx[std::size_t(at + k)]) + dx;
      if (!any || x > xmax) xmax = x;
      any = true;
    }
  }
  xw = xmax * xscl;
}

void alfcon(const int16_t* xsec, const int16_t* ysec, int npts, float xoff, float yoff, float, float) {
  for (int k = 0; k < npts; ++k) {
    float x, y;
    plot_point(float(xsec[k]) + xoff, float(ysec[k]) + yoff, x, y);
    if (k == 0) qqmove(x, y);
    else qqdraw(x, y);
  }
}

// As alfcon, and the points go to the outline buffer. Each contour after the first is followed
// by the point the buffer stood at before it: all contours become one polygon whose bridges
// have no width.
void shdcon(const int16_t* xsec, const int16_t* ysec, int npts, float xoff, float yoff, float xscl,
            float yscl, int& nbuf) {
  alfcon(xsec, ysec, npts, xoff, yoff, xscl, yscl);
  if (nbuf < 0 || nbuf + npts + 1 > kOutlineBuffer) {
    nbuf = -1;   // too many points: the glyph keeps its outline only
    return;
  }
  const bool bridge = nbuf > 0;
  const float xb = bridge ? xoutl[std::size_t(nbuf - 1)] : 0.0f;
  const float yb = bridge ? youtl[std::size_t(nbuf - 1)] : 0.0f;
  for (int k = 0; k < npts; ++k) {
    plot_point(float(xsec[k]) + xoff, float(ysec[k]) + yoff, xoutl[std::size_t(nbuf)], youtl[std::size_t(nbuf)]);
    ++nbuf;
  }
  if (bridge) {
    xoutl[std::size_t(nbuf)] = xb;
    youtl[std::size_t(nbuf)] = yb;
    ++nbuf;
  }
}

void shdfll(int nbuf) {
  if (zg.ishdch == 0 || nbuf < 3 || zg.imeasr != 0) return;
  qqstrk();
  const int keep = zg.ipatang;
  zg.ipatang = 0;
  gkwfa(nbuf, xoutl.data(), youtl.data(), 0.75f / zg.unitfac, ffllin);
  qqstrk();
  zg.ipatang = keep;
}

void gcspec(int& idx, int& iflag) {
  const int a = std::clamp(zg.ialf, 1, 6);
  iflag = 0;
  if (a == 1 || zg.ialffull[al(a)] != 0) return;
  auto from_first = [&] { iflag = 1; };
  if (a == 6) {
    if (idx > 95) { iflag = 1; idx = 32; }
    else if (idx >= 66) idx -= 28;
    else if (idx >= 34 && idx <= 63) idx -= 26;
    else if (idx >= 29 && idx <= 31) idx -= 24;
    else if (idx >= 5 && idx <= 7) idx -= 3;
    else from_first();
  } else if (a == 4 && zg.ifont == 3) {
    if (idx > 101) from_first();
    else if (idx >= 99) idx -= 71;
    else if (idx >= 66 && idx <= 91) idx -= 64;
    else from_first();
  } else {
    if (idx > 95) {
      if (a == 5) idx -= 42;
      else { iflag = 1; idx = 32; }
    } else if (idx >= 66 && idx <= 91) idx -= 38;
    else if (idx >= 34 && idx <= 59) idx -= 32;
    else from_first();
  }
}

void alfcha(int ich) {
  int ialf = zg.ialf;
  if (smixal(ich, ialf)) {
    zg.ialf = ialf;
    return;
  }
  zg.ialf = ialf = std::clamp(ialf, 1, 6);
  if (ich < 32) ich = 32;
  if (zg.ichcod != 0) ich = qqgcod(ich);
  ich = device_font_code(ich, ialf);
  int idx = ich - 31;
  zg.ishear = 0;
  if (idx > zg.nalfch[al(ialf)] || idx < 1) idx = 1;
  salfpa(ialf);

  float width = 0.0f;
  const float nh1 = float(zg.nhchar - 1);
  const float fixed = zg.xfixstr * zg.xfixmul * zg.xwthstr * nh1;
  if (device_font_applies(ialf)) {
    width = device_font_char(ich, idx);
    advance(width + zg.xcgap);
    return;
  }

  int ialf_glyph = ialf;
  if (ialf == 1 || zg.ialffull[al(ialf)] != 0) {
    // its own positions
  } else if (ialf == 4 && zg.ifont != 3 && zg.ifont != 7) {
    zg.ishear = 1;
  } else {
    int iflag = 0;
    gcspec(idx, iflag);
    if (iflag != 0) {
      salfpa(1);
      ialf_glyph = 1;
      if (ialf == 5 && zg.ifont != 7) {
        zg.ishear = 1;
        if (zg.iprvsp == 0 && idx != 1) advance(zg.xcgap);
      }
      if (ialf == 4 && zg.ifont == 3) zg.ishear = 1;
    }
    zg.iprvsp = iflag;
  }

  const int ipos = idx <= 1 ? 0 : find_record(idx, ialf_glyph);
  if (ipos == 0) {   // the blank, and any position without a glyph
    width = zg.ifixstr != 0 ? fixed : float(zg.nblank) * zg.xcscl;
  } else {
    gmxcln(zg.ichidx[std::size_t(ipos - 1)], ipos, zg.xcscl, width);
    if (zg.ifixstr != 0) {
      const float p = (fixed - width) / 2.0f;
      advance(p);
      width = fixed - p;
    }
    if (zg.imeasr == 0) draw_record(ipos);
  }
  advance(width + zg.xcgap);
}

}  // namespace zb
