// GIF writer: GIF87a (GIF89a with a transparent background), a global table of 256
// entries, one image of LZW codes from 9 to 12 bits in sub-blocks of 255 bytes.
#include <array>
#include <cstdio>

#include "frame/frame.h"
#include "raster/raster.h"
#include "raster/store.h"
#include "raster/writer.h"

namespace zb {

namespace {

constexpr int kSlots = 5021;           // hash table size, a prime
constexpr int kClear = 256, kEnd = 257, kFirst = 258, kFull = 4095;

// Packs codes least significant bit first and writes them as sub-blocks.
class CodePacker {
 public:
  explicit CodePacker(ByteSink& out) : out_(out) {}
  void put(int code, int nbits) {
    while (nbits > 0) {
      const int used = 8 - left_;
      const int take = nbits < left_ ? nbits : left_;
      buf_[std::size_t(idx_)] = (unsigned char)(buf_[std::size_t(idx_)] | ((code & ((1 << take) - 1)) << used));
      code >>= take;
      nbits -= take;
      left_ -= take;
      if (left_ == 0) {
        ++idx_;
        buf_[std::size_t(idx_)] = 0;
        left_ = 8;
      }
    }
    if (idx_ > 254) {
      out_.put_u8(255);
      out_.put(buf_.data(), 255);
      for (int i = 255; i <= idx_; ++i) buf_[std::size_t(i - 255)] = buf_[std::size_t(i)];
      idx_ -= 255;
    }
  }
  // The byte in hand counts even if it holds no bits yet.
  void flush() {
    out_.put_u8(unsigned(idx_ + 1));
    out_.put(buf_.data(), std::size_t(idx_ + 1));
  }

 private:
  ByteSink& out_;
  std::array<unsigned char, 260> buf_{};
  int idx_ = 0, left_ = 8;
};

// LZW over the indices, table in three arrays of kSlots: code (-1 empty), prefix, suffix.
int write_lzw(ByteSink& out, const unsigned char* px, std::size_t n) {
  auto codes = raster_alloc<short>(kSlots);
  auto prefixes = raster_alloc<short>(kSlots);
  auto suffixes = raster_alloc(kSlots);
  if (!codes || !prefixes || !suffixes) return kNoMemory;
  auto empty = [&] { for (int i = 0; i < kSlots; ++i) codes[i] = -1; };
  CodePacker pack(out);
  int bits = 9, next = kFirst;
  pack.put(kClear, bits);
  empty();
  int prefix = px[0];
  for (std::size_t k = 1; k < n; ++k) {
    const int c = px[k];
    int i = prefix ^ (c << 4);
    const int disp = i == 0 ? 1 : kSlots - i;
    bool found = false;
    while (codes[i] != -1) {
      if (prefixes[i] == prefix && suffixes[i] == c) {
        prefix = codes[i];
        found = true;
        break;
      }
      i -= disp;
      if (i < 0) i += kSlots;
    }
    if (found) continue;
    codes[i] = short(next);
    prefixes[i] = short(prefix);
    suffixes[i] = (unsigned char)c;
    pack.put(prefix, bits);
    if (next == 1 << bits) ++bits;
    ++next;
    prefix = c;
    if (next >= kFull) {
      pack.put(kClear, bits);
      next = kFirst;
      bits = 9;
      empty();
    }
  }
  pack.put(prefix, bits);
  pack.put(kEnd, bits);
  pack.flush();
  return kWriteOk;
}

int write_gif(ByteSink& out, const Picture& pic) {
  const int transparent = zg.igiftr == 1;
  const unsigned bg = unsigned(zg.ibgclr) & 255u;
  out.put_text(transparent ? "GIF89a" : "GIF87a");
  out.put_le16(unsigned(pic.w));
  out.put_le16(unsigned(pic.h));
  out.put_u8(0xF7);                  // global table of 256, colour resolution 8 bits
  out.put_u8(bg);
  out.put_u8(0);                     // aspect
  for (int i = 0; i < 256; ++i) {
    out.put_u8(pic.r[i]);
    out.put_u8(pic.g[i]);
    out.put_u8(pic.b[i]);
  }
  if (transparent) {
    const unsigned char gce[8] = {0x21, 0xF9, 4, 1, 0, 0, (unsigned char)bg, 0};
    out.put(gce, 8);
  }
  out.put_u8(0x2C);                  // image descriptor
  out.put_le16(0);
  out.put_le16(0);
  out.put_le16(unsigned(pic.w));
  out.put_le16(unsigned(pic.h));
  out.put_u8(0);
  out.put_u8(8);                     // LZW minimum code size
  if (const int rc = write_lzw(out, pic.px, std::size_t(pic.w) * std::size_t(pic.h)); rc != kWriteOk) return rc;
  out.put_u8(0);
  out.put_u8(0x3B);
  return kWriteOk;
}

}  // namespace

int qqpgif(const char* path) {
  Picture pic;
  if (const int rc = fetch_picture(pic, false, true); rc != kWriteOk) return rc;
  if (pic.w > 65535 || pic.h > 65535) return kFileError;
  std::FILE* f = std::fopen(path, "wb");
  if (f == nullptr) return kFileError;
  ByteSink out(f);
  int rc = write_gif(out, pic);
  if (std::fclose(f) != 0 || (!out.ok() && rc == kWriteOk)) rc = kFileError;
  return rc;
}

}  // namespace zb
