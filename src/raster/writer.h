// The byte writer of the raster files and the picture the file writers take: the store
// itself or a copy of a rectangle of it, with its palette. Multi-byte values are made by
// shifts in the byte order of the format, never from the host's memory layout.
#pragma once
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string_view>

namespace zb {

class ByteSink {
 public:
  explicit ByteSink(std::FILE* f) : file_(f) {}
  // Into a caller's buffer of nmax bytes; nmax 0 only counts.
  ByteSink(unsigned char* buf, long nmax) : buf_(buf), nmax_(nmax) {}

  void put(const unsigned char* p, std::size_t n);
  void put_u8(unsigned v) {
    const unsigned char b = (unsigned char)v;
    put(&b, 1);
  }
  void put_text(std::string_view s) { put(reinterpret_cast<const unsigned char*>(s.data()), s.size()); }
  void put_be16(unsigned v) { put_u8(v >> 8); put_u8(v); }
  void put_be32(std::uint32_t v) { put_be16(v >> 16); put_be16(v); }
  void put_le16(unsigned v) { put_u8(v); put_u8(v >> 8); }
  void put_le32(std::uint32_t v) { put_le16(v); put_le16(v >> 16); }
  bool ok() const { return ok_; }
  long pos() const { return pos_; }

 private:
  std::FILE* file_ = nullptr;
  unsigned char* buf_ = nullptr;
  long nmax_ = 0;
  long pos_ = 0;
  bool ok_ = true;
};

// Status of the writers: 0, -1 file, -2 memory, -3 to -5 zlib (PNG).
enum WriteStatus { kWriteOk = 0, kFileError = -1, kNoMemory = -2 };

struct Picture {
  const unsigned char* px = nullptr;   // rows from the top, w or 3 w bytes each
  std::unique_ptr<unsigned char[]> own;
  int w = 0, h = 0;
  int rgb = 0;                         // 1: red, green, blue; 0: colour indices
  bool is_store = false;
  unsigned char r[256] = {}, g[256] = {}, b[256] = {};   // palette for index data
};

// Fetches the picture: the clip rectangle of qqpclp or the whole raster. rgb_wanted reads
// triples (RGB files, PPM); indices_wanted turns RGB data into indices and a palette
// through the quantiser (GIF, palettes of PNG, BMP, TIFF). Returns a status.
int fetch_picture(Picture& pic, bool rgb_wanted, bool indices_wanted);

// The writers; path is a file name, the PNG writer may also fill a buffer.
int qqptif(const char* path);
int qqppng(const char* path, unsigned char* buf, long nmax, long& nlen);
int qqpppm(const char* path);
int qqpbmp(const char* path);
int qqpgif(const char* path);

}  // namespace zb
