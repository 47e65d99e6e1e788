// A strict reader of binary CGM elements for the tests, written apart from the driver: it
// walks the element words, checks every length and the order of the structure elements,
// and gives the elements back for checks.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

namespace zbt {

struct CgmElement {
  int cls = 0, id = 0;
  std::vector<std::uint8_t> par;
  int u16(std::size_t i) const { return (par.at(i) << 8) | par.at(i + 1); }
  int s16(std::size_t i) const { return std::int16_t(std::uint16_t(u16(i))); }
  // A string parameter at byte i: count byte, or 255 and a 16-bit count.
  std::string str(std::size_t i = 0) const {
    std::size_t n = par.at(i), at = i + 1;
    if (n == 255) {
      n = std::size_t(u16(i + 1));
      at = i + 3;
    }
    return std::string(par.begin() + long(at), par.begin() + long(at + n));
  }
};

struct CgmFile {
  std::vector<CgmElement> elements;
  std::string error;   // empty if the file is well formed
};

// Element ids by class, as ISO 8632-3 numbers them.
inline bool is(const CgmElement& e, int cls, int id) { return e.cls == cls && e.id == id; }
constexpr int kDelimiter = 0, kDescriptor = 1, kPictureDesc = 2, kPrimitive = 4, kAttribute = 5;

inline CgmFile parse_cgm(const std::string& bytes) {
  CgmFile f;
  std::size_t p = 0;
  auto word = [&](int& w) {
    if (p + 2 > bytes.size()) return false;
    w = (std::uint8_t(bytes[p]) << 8) | std::uint8_t(bytes[p + 1]);
    p += 2;
    return true;
  };
  if (bytes.size() % 80 != 0) f.error = "length not a multiple of 80";
  bool ended = false, in_picture = false, in_body = false;
  while (f.error.empty() && !ended) {
    int w;
    if (!word(w)) { f.error = "no END METAFILE"; break; }
    CgmElement e;
    e.cls = w >> 12;
    e.id = (w >> 5) & 0x7F;
    int len = w & 31;
    if (len == 31) {
      if (!word(len)) { f.error = "cut long form"; break; }
      if (len & 0x8000) { f.error = "partitioned parameters"; break; }
    }
    if (p + std::size_t(len) > bytes.size()) { f.error = "element past the end"; break; }
    e.par.assign(bytes.begin() + long(p), bytes.begin() + long(p) + len);
    p += std::size_t(len) + (len % 2);   // elements start on even bytes
    if (f.elements.empty() && !is(e, kDelimiter, 1)) f.error = "no BEGIN METAFILE first";
    if (is(e, kDelimiter, 3)) {
      if (in_picture) f.error = "BEGIN PICTURE inside a picture";
      in_picture = true;
    } else if (is(e, kDelimiter, 4)) {
      if (!in_picture || in_body) f.error = "BEGIN PICTURE BODY out of place";
      in_body = true;
    } else if (is(e, kDelimiter, 5)) {
      if (!in_body) f.error = "END PICTURE out of place";
      in_picture = in_body = false;
    } else if (is(e, kDelimiter, 2)) {
      if (in_picture) f.error = "END METAFILE inside a picture";
      ended = true;
    } else if (e.cls == kPrimitive || e.cls == kAttribute) {
      if (!in_body) f.error = "drawing outside a picture body";
    } else if (e.cls == kPictureDesc) {
      if (!in_picture || in_body) f.error = "picture descriptor out of place";
    }
    if (is(e, kPrimitive, 1) && (len % 4 != 0 || len == 0)) f.error = "POLYLINE of bad length";
    f.elements.push_back(std::move(e));
  }
  for (std::size_t i = p; f.error.empty() && i < bytes.size(); ++i)
    if (bytes[i] != 0) f.error = "bytes after END METAFILE";
  return f;
}

}  // namespace zbt
