// Tektronix addressing: 10-bit addresses in the published short form, and the 12-bit
// addresses of the LN03 with their extra byte. Bytes go into the output record.
#include <algorithm>
#include <array>

#include "draw/device.h"
#include "frame/frame.h"

namespace zb {

namespace {

std::array<unsigned char, 1024> hix{}, lox{};
std::array<unsigned char, 792> hiy{}, loy{};
bool tables_built = false;

void build_tables() {
  for (int x = 0; x < 1024; ++x) {
    hix[std::size_t(x)] = static_cast<unsigned char>(32 + (x >> 5));
    lox[std::size_t(x)] = static_cast<unsigned char>(64 + (x & 31));
  }
  for (int y = 0; y < 792; ++y) {
    hiy[std::size_t(y)] = static_cast<unsigned char>(32 + (y >> 5));
    loy[std::size_t(y)] = static_cast<unsigned char>(96 + (y & 31));
  }
  tables_built = true;
}

void put(char c) { qqsbuf(&c, 1); }

}  // namespace

void dtdraw(int ix, int iy, int icode) {
  if (icode == 0 || !tables_built) build_tables();
  if (icode == 0) return;
  ix = std::clamp(ix, 0, 1023);
  iy = std::clamp(iy, 0, 791);
  const char hy = char(hiy[std::size_t(iy)]), ly = char(loy[std::size_t(iy)]);
  const char hx = char(hix[std::size_t(ix)]), lx = char(lox[std::size_t(ix)]);
  auto& t = zg.ctek;
  if (icode == 3) {
    t[1] = hy; t[2] = ly; t[3] = hx; t[4] = lx;
    qqsbuf(t.data(), 5);
    return;
  }
  const bool chy = t[1] != hy, cly = t[2] != ly, chx = t[3] != hx;
  if (chy) put(hy);
  if (cly || chx) put(ly);
  if (chx) put(hx);
  put(lx);
  t[1] = hy; t[2] = ly; t[3] = hx; t[4] = lx;
}

void gtk12b(int ix, int iy, char out[5]) {
  ix = std::clamp(ix, 0, 4095);
  iy = std::clamp(iy, 0, 4095);
  out[0] = char(32 + (iy >> 7));
  out[1] = char(96 + ((iy & 3) << 2) + (ix & 3));
  out[2] = char(96 + ((iy >> 2) & 31));
  out[3] = char(32 + (ix >> 7));
  out[4] = char(64 + ((ix >> 2) & 31));
}

void dtdr12(int ix, int iy, int icode) {
  if (icode == 0) return;
  char a[5];
  gtk12b(ix, iy, a);
  auto& t = zg.ctek;
  if (icode == 3) {
    for (int i = 0; i < 5; ++i) t[std::size_t(i + 1)] = a[i];
    qqsbuf(t.data(), 6);
    return;
  }
  const bool chy = t[1] != a[0], cex = t[2] != a[1], chx = t[4] != a[3];
  const bool cly = t[3] != a[2];
  if (chy) put(a[0]);
  if (cex) put(a[1]);
  if (cly || chx || cex) put(a[2]);
  if (chx) put(a[3]);
  put(a[4]);
  for (int i = 0; i < 5; ++i) t[std::size_t(i + 1)] = a[i];
}

}  // namespace zb
