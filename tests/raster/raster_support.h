// Helpers of the raster tests: a test colour table, the store as text of pixels, a PPM
// reader for what netpbm and ghostscript decode, and a PNG decoder on zlib for our files.
#pragma once
#include <zlib.h>

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "raster/raster.h"
#include "raster/store.h"
#include "support/harness.h"

namespace zbt {

// Entry i: red i, green 255 - i, blue (7 i) mod 256; entry 0 black, entry 255 white.
inline std::array<int, 256> test_table() {
  std::array<int, 256> t{};
  for (int i = 0; i < 256; ++i) t[std::size_t(i)] = (i << 16) | ((255 - i) << 8) | ((7 * i) & 255);
  t[0] = 0;
  t[255] = 0xFFFFFF;
  return t;
}

// A store of w x h, indexed or RGB, with the test table.
inline void open_store(int w, int h, int irgb, int irev = 0) {
  int ierr = 0;
  const auto t = test_table();
  zb::qqvvlt(8, t.data());
  zb::qqvini(0, 0, w, h, 1, irev, irgb, ierr);
  ASSERT_EQ(ierr, 0);
}

// The indexed store as rows of characters: '.' for 0, '#' for any other value.
inline std::vector<std::string> store_rows() {
  const auto& s = zb::raster_store();
  std::vector<std::string> rows;
  for (int y = 0; y < s.nhwind; ++y) {
    std::string r;
    for (int x = 0; x < s.nwwind; ++x) r += *s.at(x, y) ? '#' : '.';
    rows.push_back(r);
  }
  return rows;
}

struct Image {
  int w = 0, h = 0;
  std::vector<unsigned char> rgb;   // rows from the top
  std::array<unsigned char, 3> at(int x, int y) const {
    const std::size_t i = 3 * (std::size_t(y) * std::size_t(w) + std::size_t(x));
    return {rgb[i], rgb[i + 1], rgb[i + 2]};
  }
};

// Binary P6 with maxval 255, as netpbm and ghostscript write it.
inline Image parse_ppm(const std::string& data) {
  Image im;
  std::size_t p = 0;
  auto token = [&] {
    while (p < data.size() && (isspace((unsigned char)data[p]) || data[p] == '#')) {
      if (data[p] == '#') while (p < data.size() && data[p] != '\n') ++p;
      else ++p;
    }
    std::string t;
    while (p < data.size() && !isspace((unsigned char)data[p])) t += data[p++];
    return t;
  };
  if (token() != "P6") return im;
  im.w = std::stoi(token());
  im.h = std::stoi(token());
  if (token() != "255") return {};
  ++p;
  im.rgb.assign(data.begin() + long(p), data.end());
  if (im.rgb.size() != 3 * std::size_t(im.w) * std::size_t(im.h)) return {};
  return im;
}

// Runs a netpbm converter on a file and reads its PPM.
inline Image decode_with(const std::string& tool, const std::string& file) {
  std::string out;
  const int rc = run("(" + tool + " " + file + " > " + file + ".ppm)", &out);
  EXPECT_EQ(rc, 0) << tool << " " << file << ": " << out;
  return parse_ppm(read_file(file + ".ppm"));
}

// The store as RGB through its table.
inline Image store_image() {
  const auto& s = zb::raster_store();
  Image im;
  im.w = s.nwwind;
  im.h = s.nhwind;
  im.rgb.resize(3 * std::size_t(im.w) * std::size_t(im.h));
  zb::qqvrdr(im.rgb.data(), 0, 0, im.w, im.h, 1);
  return im;
}

inline std::uint32_t be32(const std::string& s, std::size_t at) {
  return std::uint32_t((unsigned char)s[at]) << 24 | std::uint32_t((unsigned char)s[at + 1]) << 16 |
         std::uint32_t((unsigned char)s[at + 2]) << 8 | std::uint32_t((unsigned char)s[at + 3]);
}
inline unsigned le16(const std::string& s, std::size_t at) {
  return unsigned((unsigned char)s[at]) | unsigned((unsigned char)s[at + 1]) << 8;
}
inline std::uint32_t le32(const std::string& s, std::size_t at) {
  return le16(s, at) | std::uint32_t(le16(s, at + 2)) << 16;
}

struct Chunk {
  std::string type, data;
  std::uint32_t crc = 0;
};

// The chunks of a PNG file after its signature.
inline std::vector<Chunk> png_chunks(const std::string& f) {
  std::vector<Chunk> out;
  std::size_t p = 8;
  while (p + 12 <= f.size()) {
    const std::uint32_t n = be32(f, p);
    if (p + 12 + n > f.size()) break;
    out.push_back({f.substr(p + 4, 4), f.substr(p + 8, n), be32(f, p + 8 + n)});
    p += 12 + n;
  }
  return out;
}

// Our PNG back to RGB: inflate IDAT, drop the filter bytes (all 0), map through PLTE.
inline Image decode_png(const std::string& f) {
  Image im;
  std::string idat, plte;
  int ctype = 0;
  for (const auto& c : png_chunks(f)) {
    if (c.type == "IHDR") {
      im.w = int(be32(c.data, 0));
      im.h = int(be32(c.data, 4));
      ctype = (unsigned char)c.data[9];
    }
    if (c.type == "PLTE") plte = c.data;
    if (c.type == "IDAT") idat += c.data;
  }
  const std::size_t bpp = ctype == 2 ? 3 : 1;
  const std::size_t rowbytes = bpp * std::size_t(im.w) + 1;
  std::vector<unsigned char> raw(rowbytes * std::size_t(im.h));
  uLongf n = uLongf(raw.size());
  EXPECT_EQ(uncompress(raw.data(), &n, reinterpret_cast<const Bytef*>(idat.data()), uLong(idat.size())), Z_OK);
  EXPECT_EQ(n, raw.size());
  for (int y = 0; y < im.h; ++y) {
    const unsigned char* row = raw.data() + std::size_t(y) * rowbytes;
    EXPECT_EQ(row[0], 0) << "filter of row " << y;
    for (int x = 0; x < im.w; ++x) {
      if (ctype == 2) {
        for (int k = 0; k < 3; ++k) im.rgb.push_back(row[1 + 3 * x + k]);
      } else {
        for (int k = 0; k < 3; ++k) im.rgb.push_back((unsigned char)plte[3 * std::size_t(row[1 + x]) + std::size_t(k)]);
      }
    }
  }
  return im;
}

}  // namespace zbt
