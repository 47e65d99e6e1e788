// TIFF writer: little-endian, uncompressed, one strip per row, a fixed directory of 13
// entries (14 with the colour map). Kinds by imgfmt: palette, RGB or bilevel.
#include <cstdio>

#include "frame/frame.h"
#include "raster/raster.h"
#include "raster/store.h"
#include "raster/writer.h"

namespace zb {

namespace {

enum Kind { kPalette = 0, kRgb = 1, kBilevel = 2 };
enum Type { kShort = 3, kLong = 4, kRational = 5 };

// One directory entry: tag, type, count, value or offset (below 65536, so its high half is 0).
void entry(ByteSink& out, unsigned tag, unsigned type, std::uint32_t count, std::uint32_t value) {
  out.put_le16(tag);
  out.put_le16(type);
  out.put_le32(count);
  out.put_le32(value);
}

// Bilevel rows, most significant bit first: a pixel's bit tells whether it is the
// background (white with irev 2, where the bit is 1, else black, where it is 0).
int bilevel_block(const Picture& pic, std::size_t rowbytes, std::unique_ptr<unsigned char[]>& block) {
  block = raster_alloc(rowbytes * std::size_t(pic.h));
  if (!block) return kNoMemory;
  const bool white = zg.irevscr == 2;
  const int bg = white ? 255 : 0;
  for (int y = 0; y < pic.h; ++y) {
    for (int x = 0; x < pic.w; ++x) {
      const std::size_t i = std::size_t(y) * std::size_t(pic.w) + std::size_t(x);
      int r, g, b;
      if (pic.rgb) {
        r = pic.px[3 * i];
        g = pic.px[3 * i + 1];
        b = pic.px[3 * i + 2];
      } else {
        r = pic.r[pic.px[i]];
        g = pic.g[pic.px[i]];
        b = pic.b[pic.px[i]];
      }
      const bool background = r == bg && g == bg && b == bg;
      if (background == white)
        block[std::size_t(y) * rowbytes + std::size_t(x / 8)] |= (unsigned char)(0x80u >> (x % 8));
    }
  }
  return kWriteOk;
}

int write_tiff(ByteSink& out, const Picture& pic, int kind) {
  const std::uint32_t w = std::uint32_t(pic.w), h = std::uint32_t(pic.h);
  const std::uint32_t rowbytes = kind == kPalette ? w : kind == kRgb ? 3 * w : (w + 7) / 8;
  std::unique_ptr<unsigned char[]> bits;
  if (kind == kBilevel)
    if (const int rc = bilevel_block(pic, rowbytes, bits); rc != kWriteOk) return rc;
  const std::uint32_t e = kind == kPalette ? 14 : 13;
  const std::uint32_t t = 14 + 12 * e;
  const std::uint32_t tables = t + 6 * h + 16;
  const std::uint32_t pixels = tables + (kind == kPalette ? 1536 : kind == kRgb ? 6 : 0);
  out.put_u8(0x49);
  out.put_u8(0x49);
  out.put_le16(42);
  out.put_le32(8);                                   // first directory
  out.put_le16(e);
  entry(out, 254, kLong, 1, 0);                      // NewSubfileType
  entry(out, 256, kShort, 1, w);                     // ImageWidth
  entry(out, 257, kShort, 1, h);                     // ImageLength
  entry(out, 258, kShort, kind == kRgb ? 3 : 1, kind == kRgb ? tables : kind == kPalette ? 8 : 1);
  entry(out, 259, kShort, 1, 1);                     // Compression: none
  entry(out, 262, kShort, 1, kind == kPalette ? 3 : kind == kRgb ? 2 : 1);   // Photometric
  // Counts that fit the value field hold the values themselves, as readers take them.
  entry(out, 273, kLong, h, h == 1 ? pixels : t);    // StripOffsets
  entry(out, 277, kShort, 1, kind == kRgb ? 3 : 1);  // SamplesPerPixel
  entry(out, 278, kShort, 1, 1);                     // RowsPerStrip
  entry(out, 279, kShort, h, h == 1 ? rowbytes : h == 2 ? rowbytes | (rowbytes << 16) : t + 4 * h);
  entry(out, 282, kRational, 1, t + 6 * h);          // XResolution
  entry(out, 283, kRational, 1, t + 6 * h + 8);      // YResolution
  entry(out, 296, kShort, 1, std::uint32_t(zg.itifun));   // ResolutionUnit
  if (kind == kPalette) entry(out, 320, kShort, 768, tables);   // ColorMap
  out.put_le32(0);                                   // no next directory
  for (std::uint32_t y = 0; y < h; ++y) out.put_le32(pixels + y * rowbytes);
  for (std::uint32_t y = 0; y < h; ++y) out.put_le16(rowbytes);
  for (int k = 0; k < 2; ++k) {
    out.put_le32(std::uint32_t(zg.ntifres));
    out.put_le32(1);
  }
  if (kind == kPalette) {
    for (const unsigned char* part : {pic.r, pic.g, pic.b})
      for (int i = 0; i < 256; ++i) out.put_le16(part[i] * 257u);   // c / 255 * 65535
  } else if (kind == kRgb) {
    for (int k = 0; k < 3; ++k) out.put_le16(8);
  }
  const unsigned char* src = kind == kBilevel ? bits.get() : pic.px;
  out.put(src, std::size_t(rowbytes) * h);
  return kWriteOk;
}

}  // namespace

int qqptif(const char* path) {
  const int kind = zg.imgrgb == 1 ? kRgb : zg.imgrgb == 2 ? kBilevel : kPalette;
  Picture pic;
  if (const int rc = fetch_picture(pic, kind == kRgb, kind == kPalette); rc != kWriteOk) return rc;
  // Offsets of the directory are 16 bits: the tables ahead of the pixels must end below 65536.
  const long e = kind == kPalette ? 14 : 13;
  const long ahead = 14 + 12 * e + 6L * pic.h + 16 + (kind == kPalette ? 1536 : kind == kRgb ? 6 : 0);
  if (pic.w > 65535 || pic.h > 65535 || ahead >= 65536) return kFileError;
  std::FILE* f = std::fopen(path, "wb");
  if (f == nullptr) return kFileError;
  ByteSink out(f);
  int rc = write_tiff(out, pic, kind);
  if (std::fclose(f) != 0 || (!out.ok() && rc == kWriteOk)) rc = kFileError;
  return rc;
}

}  // namespace zb
