// PNG writer: signature, IHDR, PLTE for index pictures, tRNS with pngmod TRAN, one IDAT
// of the whole picture deflated in one call, IEND. Every integer big-endian; the CRC is
// our own table-driven CRC-32.
#include <zlib.h>

#include <array>
#include <cstdio>

#include "frame/frame.h"
#include "raster/raster.h"
#include "raster/store.h"
#include "raster/writer.h"

namespace zb {

namespace {

// Status of the zlib steps.
constexpr int kInitError = -3, kDeflateError = -4, kEndError = -5;

const std::array<std::uint32_t, 256>& crc_table() {
  static const std::array<std::uint32_t, 256> table = [] {
    std::array<std::uint32_t, 256> t{};
    for (std::uint32_t n = 0; n < 256; ++n) {
      std::uint32_t c = n;
      for (int k = 0; k < 8; ++k) c = (c & 1u) ? 0xEDB88320u ^ (c >> 1) : c >> 1;
      t[n] = c;
    }
    return t;
  }();
  return table;
}

// One chunk: length, then type and data (contiguous, as the CRC covers both), then CRC.
void chunk(ByteSink& out, const unsigned char* type_and_data, std::size_t ndata) {
  out.put_be32(std::uint32_t(ndata));
  out.put(type_and_data, 4 + ndata);
  out.put_be32(png_crc(type_and_data, 4 + ndata));
}

// Filter byte 0 before each row, then deflate of the whole block into one IDAT.
int write_idat(ByteSink& out, Picture& pic) {
  const std::size_t rowbytes = std::size_t(pic.w) * (pic.rgb ? 3u : 1u);
  const std::size_t n = std::size_t(pic.h) * (rowbytes + 1);
  auto block = raster_alloc(n);
  if (!block) return kNoMemory;
  for (std::size_t y = 0; y < std::size_t(pic.h); ++y) {
    unsigned char* row = block.get() + y * (rowbytes + 1);
    row[0] = 0;
    std::copy_n(pic.px + y * rowbytes, rowbytes, row + 1);
  }
  if (!pic.is_store) {
    pic.own.reset();
    pic.px = nullptr;
  }
  const std::size_t space = n + n / 100 + 13;
  auto idat = raster_alloc(4 + space);
  if (!idat) return kNoMemory;
  idat[0] = 'I';
  idat[1] = 'D';
  idat[2] = 'A';
  idat[3] = 'T';
  z_stream zs{};
  // Default level; the version only has to agree with the library's first digit.
  if (deflateInit_(&zs, Z_DEFAULT_COMPRESSION, "1.1.3", int(sizeof(z_stream))) != Z_OK) return kInitError;
  zs.next_in = block.get();
  zs.avail_in = uInt(n);
  zs.next_out = idat.get() + 4;
  zs.avail_out = uInt(space);
  const int rc = deflate(&zs, Z_FINISH);
  const std::size_t packed = space - zs.avail_out;
  if (deflateEnd(&zs) != Z_OK && rc == Z_STREAM_END) return kEndError;
  if (rc != Z_STREAM_END) return kDeflateError;
  chunk(out, idat.get(), packed);
  return kWriteOk;
}

int write_png(ByteSink& out, Picture& pic) {
  const int ctype = zg.imgrgb == 1 ? 2 : 3;
  static const unsigned char kSignature[8] = {0x89, 'P', 'N', 'G', 0x0D, 0x0A, 0x1A, 0x0A};
  out.put(kSignature, 8);
  unsigned char ihdr[4 + 13] = {'I', 'H', 'D', 'R'};
  for (int k = 0; k < 4; ++k) {
    ihdr[4 + k] = (unsigned char)(unsigned(pic.w) >> (24 - 8 * k));
    ihdr[8 + k] = (unsigned char)(unsigned(pic.h) >> (24 - 8 * k));
  }
  ihdr[12] = 8;              // bit depth
  ihdr[13] = (unsigned char)ctype;
  ihdr[14] = ihdr[15] = ihdr[16] = 0;   // compression, filter, interlace
  chunk(out, ihdr, 13);
  if (ctype == 3) {
    unsigned char plte[4 + 768] = {'P', 'L', 'T', 'E'};
    for (int i = 0; i < 256; ++i) {
      plte[4 + 3 * i] = pic.r[i];
      plte[5 + 3 * i] = pic.g[i];
      plte[6 + 3 * i] = pic.b[i];
    }
    chunk(out, plte, 768);
  }
  if (zg.ipngtr == 1) {
    // RGB: white is transparent; palette: entry 0.
    const unsigned char trns_rgb[4 + 6] = {'t', 'R', 'N', 'S', 0, 0xFF, 0, 0xFF, 0, 0xFF};
    const unsigned char trns_index[4 + 1] = {'t', 'R', 'N', 'S', 0};
    if (ctype == 2) chunk(out, trns_rgb, 6);
    else chunk(out, trns_index, 1);
  }
  if (const int rc = write_idat(out, pic); rc != kWriteOk) return rc;
  const unsigned char iend[4] = {'I', 'E', 'N', 'D'};
  chunk(out, iend, 0);
  return kWriteOk;
}

}  // namespace

std::uint32_t png_crc(const unsigned char* data, std::size_t n) {
  const auto& t = crc_table();
  std::uint32_t c = 0xFFFFFFFFu;
  for (std::size_t i = 0; i < n; ++i) c = t[(c ^ data[i]) & 0xFFu] ^ (c >> 8);
  return c ^ 0xFFFFFFFFu;
}

// With buf null the file at path is written; otherwise the bytes go to buf (nmax 0 only
// counts them) and nlen is the size, or 0 if buf was too small.
int qqppng(const char* path, unsigned char* buf, long nmax, long& nlen) {
  nlen = 0;
  Picture pic;
  if (const int rc = fetch_picture(pic, zg.imgrgb == 1, zg.imgrgb != 1); rc != kWriteOk) return rc;
  if (buf != nullptr || path == nullptr) {
    ByteSink out(buf, nmax);
    const int rc = write_png(out, pic);
    if (rc != kWriteOk) return rc;
    nlen = out.ok() ? out.pos() : 0;
    return kWriteOk;
  }
  std::FILE* f = std::fopen(path, "wb");
  if (f == nullptr) return kFileError;
  ByteSink out(f);
  int rc = write_png(out, pic);
  if (std::fclose(f) != 0 || (!out.ok() && rc == kWriteOk)) rc = kFileError;
  nlen = out.pos();
  return rc;
}

}  // namespace zb
