// The library's own raster dump, the Bitmap file: an 80-byte text head and the rows of the
// store as they are. The reader takes the dumps of the raster and of the screen, of 8, 24
// or 32 bits a pixel, into the open store whatever its kind.
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string>

#include "raster/raster.h"
#include "raster/store.h"
#include "util/fmt.h"

namespace zb {

namespace {

struct File {
  std::FILE* f;
  explicit File(std::FILE* p) : f(p) {}
  ~File() {
    if (f) std::fclose(f);
  }
};

// Reads up to nine integers from the text after byte 20 of the head.
int read_fields(const char* head, long v[9]) {
  int n = 0;
  const char* p = head + 20;
  const char* end = head + 80;
  while (n < 9 && p < end) {
    while (p < end && *p == ' ') ++p;
    bool neg = false;
    if (p < end && (*p == '-' || *p == '+')) neg = *p++ == '-';
    if (p >= end || *p < '0' || *p > '9') break;
    long x = 0;
    while (p < end && *p >= '0' && *p <= '9' && x < 100000000) x = 10 * x + (*p++ - '0');
    v[n++] = neg ? -x : x;
  }
  return n;
}

// Value remap of 8-bit dumps whose field 8 is 0: base to 0, v to 2 (v - base) - 1.
void remap(unsigned char* p, std::size_t n, long base) {
  for (std::size_t i = 0; i < n; ++i)
    p[i] = p[i] == base ? 0 : (unsigned char)((long(p[i]) - base) * 2 - 1);
}

void write_file(const char* path, int& ierr) {
  const RasterStore& s = raster_store();
  File out(std::fopen(path, "wb"));
  if (!out.f) {
    ierr = 1;
    return;
  }
  std::string head = "!Bitmap ZORBEL VIRT ";
  const long fields[9] = {s.nwwind, s.nhwind, 8, s.nbytes_v, s.irgb_v ? 24 : 8, 32, 0, 1, 0};
  for (int i = 0; i < 9; ++i) head += (i ? " " : "") + fmt_i(fields[i], 5);
  head.resize(80, ' ');
  bool ok = std::fwrite(head.data(), 1, 80, out.f) == 80;
  if (s.open()) {
    const std::size_t n = std::size_t(s.nbytes_v) * std::size_t(s.nhwind);
    ok = ok && std::fwrite(s.cvirt.get(), 1, n, out.f) == n;
  }
  if (std::fclose(out.f) != 0) ok = false;
  out.f = nullptr;
  if (!ok) ierr = 1;
}

void read_file(const char* path, int& ierr) {
  const RasterStore& s = raster_store();
  File in(std::fopen(path, "rb"));
  if (!in.f) {
    ierr = 1;
    return;
  }
  char head[80];
  long v[9] = {};
  if (std::fread(head, 1, 80, in.f) != 80 || std::memcmp(head, "!Bitmap", 7) != 0 ||
      read_fields(head, v) != 9) {
    ierr = 3;
    return;
  }
  const long width = v[0], height = v[1], rowbytes = v[3], bits = v[4], base = v[8];
  const bool shift = v[7] == 0;
  if ((bits != 8 && bits != 24 && bits != 32) || width < 1 || height < 1 || width > 32767 ||
      rowbytes < width * (bits / 8) || rowbytes > 4 * 32767 + 3) {
    ierr = 3;
    return;
  }
  if (!s.open()) return;
  const bool same_kind = bits == (s.irgb_v ? 24 : 8);
  const bool fix = shift && bits == 8;
  if (same_kind && rowbytes == s.nbytes_v && height == s.nhwind) {
    const std::size_t n = std::size_t(s.nbytes_v) * std::size_t(s.nhwind);
    const std::size_t got = std::fread(s.cvirt.get(), 1, n, in.f);
    if (fix) remap(s.cvirt.get(), got, base);
    return;
  }
  const long nrows = std::min(height, long(s.nhwind));
  if (same_kind && s.nbytes_v >= rowbytes) {
    for (long y = 0; y < nrows; ++y) {
      unsigned char* row = s.at(0, int(y));
      const std::size_t got = std::fread(row, 1, std::size_t(rowbytes), in.f);
      if (fix) remap(row, got, base);
      if (got < std::size_t(rowbytes)) return;
    }
    return;
  }
  auto buf = raster_alloc(std::size_t(rowbytes));
  const long n = std::min(width, long(s.nwwind));
  auto rgb = raster_alloc(std::size_t(3 * n));
  if (!buf || !rgb) {
    ierr = 2;
    return;
  }
  for (long y = 0; y < nrows; ++y) {
    if (std::fread(buf.get(), 1, std::size_t(rowbytes), in.f) != std::size_t(rowbytes)) return;
    if (bits == 8) {
      if (fix) remap(buf.get(), std::size_t(n), base);
      qqvrow(buf.get(), 0, int(y), int(n), 0);
    } else if (bits == 24) {
      qqvrow(buf.get(), 0, int(y), int(n), 1);
    } else {
      for (long i = 0; i < n; ++i) {   // blue, green, red, unused
        rgb[std::size_t(3 * i)] = buf[std::size_t(4 * i + 2)];
        rgb[std::size_t(3 * i + 1)] = buf[std::size_t(4 * i + 1)];
        rgb[std::size_t(3 * i + 2)] = buf[std::size_t(4 * i)];
      }
      qqvrow(rgb.get(), 0, int(y), int(n), 1);
    }
  }
}

}  // namespace

void qqvfil(const char* path, int iread, int& ierr) {
  ierr = 0;
  if (path == nullptr) {
    ierr = 1;
    return;
  }
  if (iread == 1) read_file(path, ierr);
  else write_file(path, ierr);
}

}  // namespace zb
