// BMP writer: a Windows bitmap with the 40-byte header, little-endian, rows from the bottom
// up, each padded with zeros to a multiple of 4 bytes; 256 palette entries for indices,
// blue, green, red for RGB pictures.
#include <cstdio>

#include "frame/frame.h"
#include "raster/raster.h"
#include "raster/store.h"
#include "raster/writer.h"

namespace zb {

namespace {

int write_bmp(ByteSink& out, const Picture& pic) {
  const std::uint32_t w = std::uint32_t(pic.w), h = std::uint32_t(pic.h);
  const std::uint32_t data = pic.rgb ? 3 * w : w;
  const std::uint32_t rowbytes = (data + 3) / 4 * 4;
  const std::uint32_t np = pic.rgb ? 0 : 256;
  auto row = raster_alloc(rowbytes);
  if (!row) return kNoMemory;
  out.put_text("BM");
  out.put_le32(54 + 4 * np + rowbytes * h);   // file size
  out.put_le16(0);
  out.put_le16(0);
  out.put_le32(54 + 4 * np);                  // offset of the pixels
  out.put_le32(40);                           // header size
  out.put_le32(w);
  out.put_le32(h);                            // positive: rows from the bottom
  out.put_le16(1);                            // planes
  out.put_le16(pic.rgb ? 24 : 8);             // bits per pixel
  out.put_le32(0);                            // no compression
  out.put_le32(rowbytes * h);
  out.put_le32(2500);                         // resolutions
  out.put_le32(2500);
  out.put_le32(np);                           // colours used, important
  out.put_le32(np);
  for (std::uint32_t i = 0; i < np; ++i) {
    out.put_u8(pic.b[i]);
    out.put_u8(pic.g[i]);
    out.put_u8(pic.r[i]);
    out.put_u8(0);
  }
  // Rows are copied out, so the raster itself never changes; padding stays zero.
  for (std::uint32_t k = 0; k < h; ++k) {
    const unsigned char* src = pic.px + std::size_t(h - 1 - k) * data;
    if (pic.rgb) {
      for (std::uint32_t x = 0; x < w; ++x) {
        row[3 * x] = src[3 * x + 2];
        row[3 * x + 1] = src[3 * x + 1];
        row[3 * x + 2] = src[3 * x];
      }
    } else {
      std::copy_n(src, data, row.get());
    }
    out.put(row.get(), rowbytes);
  }
  return kWriteOk;
}

}  // namespace

int qqpbmp(const char* path) {
  Picture pic;
  if (const int rc = fetch_picture(pic, zg.imgrgb == 1, zg.imgrgb != 1); rc != kWriteOk) return rc;
  std::FILE* f = std::fopen(path, "wb");
  if (f == nullptr) return kFileError;
  ByteSink out(f);
  int rc = write_bmp(out, pic);
  if (std::fclose(f) != 0 || (!out.ok() && rc == kWriteOk)) rc = kFileError;
  return rc;
}

}  // namespace zb
