// The raster store: creation and release, the colour table and the current colour, nearest
// colour search, and access to single pixels, rows and rectangles.
#include <algorithm>
#include <cstring>
#include <new>

#include "raster/raster.h"
#include "raster/store.h"
#include "util/alloc.h"

namespace zb {

namespace {

RasterStore g_store;

// Largest store: each side below 32768 pixels and at most 1 GiB in all.
constexpr long kMaxSide = 32767;
constexpr long kMaxBytes = 1L << 30;

int table_last(int nclrtb) { return nclrtb == 0 ? 8 : nclrtb == 7 ? 15 : 255; }

}  // namespace

RasterStore& raster_store() { return g_store; }

bool raster_alloc_allowed() {
  if (detail::alloc_fail_after == 0) return false;
  if (detail::alloc_fail_after > 0) --detail::alloc_fail_after;
  return true;
}

void qqvini(int nxpag, int nypag, int& nw, int& nh, int isize, int irev, int irgb, int& ierr) {
  RasterStore& s = g_store;
  ierr = 0;
  if (isize == 0) {
    nw = nxpag <= nypag ? 603 : 853;
    nh = nxpag <= nypag ? 853 : 603;
  }
  if (irgb == 2) irgb = 0;
  s.cvirt.reset();
  s.nwwind = s.nhwind = s.nbytes_v = 0;
  const long row = long(nw) * (irgb == 1 ? 3 : 1);
  if (nw < 1 || nh < 1 || nw > kMaxSide || nh > kMaxSide || row * long(nh) > kMaxBytes) {
    ierr = 1;
    return;
  }
  s.cvirt = raster_alloc(std::size_t(row) * std::size_t(nh));
  if (!s.cvirt) {
    ierr = 1;
    return;
  }
  s.nwwind = nw;
  s.nhwind = nh;
  s.nbytes_v = int(row);
  s.irgb_v = irgb == 1 ? 1 : 0;
  s.irev = irev;
  s.nxclp = s.nyclp = 0;
  s.nuclp = nw - 1;
  s.nvclp = nh - 1;
  qqvers();
}

unsigned char* qqvptr() { return g_store.cvirt.get(); }

void qqvinf(int& nw, int& nh, int& irgb) {
  nw = g_store.nwwind;
  nh = g_store.nhwind;
  irgb = g_store.irgb_v;
}

void qqvers() {
  RasterStore& s = g_store;
  if (!s.open()) return;
  const int v = (s.irev == 2 && s.irgb_v == 1) ? 255 : 0;
  std::memset(s.cvirt.get(), v, std::size_t(s.nbytes_v) * std::size_t(s.nhwind));
}

void qqvfin() {
  RasterStore& s = g_store;
  s.cvirt.reset();
  s.nwwind = s.nhwind = s.nbytes_v = 0;
}

void qqvvlt(int itab, const int* tab) {
  RasterStore& s = g_store;
  s.nclrtb = itab;
  if (tab == nullptr) return;
  const int n = table_last(itab) + 1;
  for (int i = 0; i < n; ++i) {
    const unsigned v = unsigned(tab[i]);
    s.ivlt_r[std::size_t(i)] = (unsigned char)(v >> 16);
    s.ivlt_g[std::size_t(i)] = (unsigned char)(v >> 8);
    s.ivlt_b[std::size_t(i)] = (unsigned char)v;
  }
}

int qqgind(int r, int g, int b) {
  const RasterStore& s = g_store;
  const int n = table_last(s.nclrtb);
  auto is = [&](int i, int v) {
    return s.ivlt_r[std::size_t(i)] == v && s.ivlt_g[std::size_t(i)] == v && s.ivlt_b[std::size_t(i)] == v;
  };
  for (int v : {0, 255}) {
    if (r != v || g != v || b != v) continue;
    if (is(0, v)) return 0;
    if (is(n, v)) return n;
  }
  int best = 0, dmin = 1000;
  auto probe = [&](int i) {
    const int d = std::abs(r - s.ivlt_r[std::size_t(i)]) + std::abs(g - s.ivlt_g[std::size_t(i)]) +
                  std::abs(b - s.ivlt_b[std::size_t(i)]);
    if (d < dmin) {
      dmin = d;
      best = i;
    }
    return d == 0;
  };
  if (b > 0) {
    for (int i = 0; i <= n; ++i)
      if (probe(i)) return i;
  } else {
    for (int i = n; i >= 0; --i)
      if (probe(i)) return i;
  }
  return best;
}

void qqvclr(int iclr) {
  RasterStore& s = g_store;
  const unsigned v = unsigned(iclr);
  if (explicit_colour(iclr) && s.irgb_v == 1) {
    s.ir_v = (unsigned char)v;
    s.ig_v = (unsigned char)(v >> 8);
    s.ib_v = (unsigned char)(v >> 16);
    return;
  }
  const int k = explicit_colour(iclr) ? qqgind(int(v & 255), int((v >> 8) & 255), int((v >> 16) & 255))
                                      : int(v & 255);
  s.nclr_v = k;
  s.ir_v = s.ivlt_r[std::size_t(k)];
  s.ig_v = s.ivlt_g[std::size_t(k)];
  s.ib_v = s.ivlt_b[std::size_t(k)];
}

void store_colour(int iclr, unsigned char out[3]) {
  const RasterStore& s = g_store;
  const unsigned v = unsigned(iclr);
  const int r = int(v & 255), g = int((v >> 8) & 255), b = int((v >> 16) & 255);
  if (s.irgb_v == 1) {
    if (explicit_colour(iclr)) {
      out[0] = (unsigned char)r;
      out[1] = (unsigned char)g;
      out[2] = (unsigned char)b;
    } else {
      const std::size_t k = v & 255;
      out[0] = s.ivlt_r[k];
      out[1] = s.ivlt_g[k];
      out[2] = s.ivlt_b[k];
    }
    return;
  }
  out[0] = (unsigned char)(explicit_colour(iclr) ? qqgind(r, g, b) : int(v & 255));
  out[1] = out[2] = 0;
}

void qqvwpx(int ix, int iy, int iclr) {
  const RasterStore& s = g_store;
  if (!s.open() || !s.inside(ix, iy)) return;
  unsigned char c[3];
  store_colour(iclr, c);
  std::memcpy(s.at(ix, iy), c, s.irgb_v ? 3 : 1);
}

void qqvrow(const unsigned char* row, int ix, int iy, int n, int iflag) {
  const RasterStore& s = g_store;
  if (!s.open() || row == nullptr || iy < 0 || iy >= s.nhwind) return;
  const int in = iflag == 1 ? 3 : 1;
  for (long i = std::max(0L, -long(ix)); i < n && long(ix) + i < s.nwwind; ++i) {
    const unsigned char* src = row + i * in;
    unsigned char* dst = s.at(int(ix + i), iy);
    if (iflag == 1 && s.irgb_v == 1) {
      std::memcpy(dst, src, 3);
    } else if (iflag == 1) {
      *dst = (unsigned char)qqgind(src[0], src[1], src[2]);
    } else if (s.irgb_v == 1) {
      dst[0] = s.ivlt_r[*src];
      dst[1] = s.ivlt_g[*src];
      dst[2] = s.ivlt_b[*src];
    } else {
      *dst = *src;
    }
  }
}

void qqvrpx(int ix, int iy, int& iclr, int iflag) {
  const RasterStore& s = g_store;
  iclr = 0;
  if (!s.open() || !s.inside(ix, iy)) return;
  const unsigned char* p = s.at(ix, iy);
  int r, g, b;
  if (s.irgb_v == 1) {
    r = p[0];
    g = p[1];
    b = p[2];
  } else {
    r = s.ivlt_r[*p];
    g = s.ivlt_g[*p];
    b = s.ivlt_b[*p];
  }
  if (iflag == 1) iclr = 0x01000000 | (b << 16) | (g << 8) | r;
  else iclr = s.irgb_v == 1 ? qqgind(r, g, b) : *p;
}

void qqvrdr(unsigned char* buf, int ix, int iy, int nw, int nh, int iflag) {
  const RasterStore& s = g_store;
  if (buf == nullptr || nw < 1 || nh < 1) return;
  const int out = iflag == 1 ? 3 : 1;
  unsigned char* q = buf;
  for (long y = iy; y < long(iy) + nh; ++y) {
    for (long x = ix; x < long(ix) + nw; ++x, q += out) {
      if (!s.open() || !s.inside(x, y)) {
        std::memset(q, 0, std::size_t(out));
        continue;
      }
      const unsigned char* p = s.at(int(x), int(y));
      if (iflag == 1 && s.irgb_v == 1) {
        std::memcpy(q, p, 3);
      } else if (iflag == 1) {
        q[0] = s.ivlt_r[*p];
        q[1] = s.ivlt_g[*p];
        q[2] = s.ivlt_b[*p];
      } else if (s.irgb_v == 1) {
        *q = (unsigned char)qqgind(p[0], p[1], p[2]);
      } else {
        *q = *p;
      }
    }
  }
}

}  // namespace zb
