// Test helpers for PDF files: a reader that follows the cross-reference table (and checks
// each offset lands on its object head), the objects, their streams inflated by zlib, the
// pages in order, and PPM images of rendered pages.
#pragma once
#include <gtest/gtest.h>
#include <zlib.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <string>
#include <vector>

#include "support/harness.h"

namespace zbt {

inline std::string inflate_all(const std::string& z, bool* ok = nullptr) {
  std::string out;
  z_stream zs{};
  bool good = inflateInit(&zs) == Z_OK;
  zs.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(z.data()));
  zs.avail_in = uInt(z.size());
  char buf[65536];
  int rc = Z_OK;
  while (good && rc == Z_OK) {
    zs.next_out = reinterpret_cast<Bytef*>(buf);
    zs.avail_out = sizeof buf;
    rc = inflate(&zs, Z_NO_FLUSH);
    out.append(buf, sizeof buf - zs.avail_out);
  }
  good = good && rc == Z_STREAM_END && zs.avail_in == 0;
  inflateEnd(&zs);
  if (ok) *ok = good;
  return out;
}

// Number behind "key " in text, -1 if absent.
inline long number_after(const std::string& text, const std::string& key) {
  const std::size_t at = text.find(key);
  if (at == std::string::npos) return -1;
  return std::strtol(text.c_str() + at + key.size(), nullptr, 10);
}

struct Pdf {
  std::string bytes;
  long startxref = -1;
  int size = 0;                         // /Size of the trailer
  std::vector<long> offsets;            // by object number, from the xref table
  std::map<int, std::string> objects;   // what stands between "N 0 obj\n" and the next object
  std::string trailer;
  std::vector<std::string> problems;

  bool ok() const { return problems.empty(); }

  static Pdf parse(const std::string& bytes) {
    Pdf p;
    p.bytes = bytes;
    const std::size_t sx = bytes.rfind("startxref\n");
    if (sx == std::string::npos) return p.fail("no startxref");
    p.startxref = std::strtol(bytes.c_str() + sx + 10, nullptr, 10);
    if (p.startxref <= 0 || std::size_t(p.startxref) >= bytes.size()) return p.fail("startxref out of file");
    if (bytes.compare(std::size_t(p.startxref), 7, "xref\n0 ") != 0) return p.fail("startxref misses xref");
    const char* c = bytes.c_str() + p.startxref + 7;
    char* end = nullptr;
    const long n = std::strtol(c, &end, 10);
    if (*end != '\n') return p.fail("xref count line");
    std::size_t at = std::size_t(end - bytes.c_str()) + 1;
    if (bytes.compare(at, 20, "0000000000 65535 f \n") != 0) return p.fail("xref entry 0");
    p.offsets.assign(std::size_t(n), 0);
    for (long k = 1; k < n; ++k) {
      const std::string e = bytes.substr(at + std::size_t(k) * 20, 20);
      if (e.size() != 20 || e.compare(10, 10, " 00000 n \n") != 0) return p.fail("xref entry " + std::to_string(k));
      p.offsets[std::size_t(k)] = std::stol(e.substr(0, 10));
      const std::string head = std::to_string(k) + " 0 obj\n";
      if (bytes.compare(std::size_t(p.offsets[std::size_t(k)]), head.size(), head) != 0)
        p.problems.push_back("offset of object " + std::to_string(k) + " misses its head");
    }
    p.trailer = bytes.substr(at + std::size_t(n) * 20);
    p.size = int(number_after(p.trailer, "/Size "));
    std::vector<long> order(p.offsets.begin() + 1, p.offsets.end());
    order.push_back(p.startxref);
    std::sort(order.begin(), order.end());
    for (long k = 1; k < n; ++k) {
      const long from = p.offsets[std::size_t(k)];
      const long to = *std::upper_bound(order.begin(), order.end(), from);
      const std::size_t head = std::to_string(k).size() + 7;
      p.objects[int(k)] = bytes.substr(std::size_t(from) + head, std::size_t(to - from) - head);
    }
    return p;
  }

  Pdf& fail(const std::string& why) {
    problems.push_back(why);
    return *this;
  }

  const std::string& object(int k) const {
    static const std::string none;
    auto it = objects.find(k);
    return it == objects.end() ? none : it->second;
  }

  // The data of a stream object, inflated if it says /FlateDecode.
  std::string stream(int k) const {
    const std::string& o = object(k);
    const std::size_t s = o.find("stream\n");
    if (s == std::string::npos) return {};
    long len = -1;
    const std::size_t l = o.find("/Length ");
    if (l != std::string::npos && l < s) {
      char* end = nullptr;
      len = std::strtol(o.c_str() + l + 8, &end, 10);
      if (std::string(end).rfind(" 0 R", 0) == 0) len = std::strtol(object(int(len)).c_str(), nullptr, 10);
    }
    if (len < 0 || s + 7 + std::size_t(len) > o.size()) return {};
    const std::string data = o.substr(s + 7, std::size_t(len));
    if (o.compare(s + 7 + std::size_t(len), 17, "endstream\nendobj\n") != 0) return "<bad end of stream>";
    if (o.find("/FlateDecode") < s) return inflate_all(data);
    return data;
  }

  // Page objects in the order of /Kids.
  std::vector<int> pages() const {
    std::vector<int> r;
    const std::string& tree = object(2);
    std::size_t at = tree.find("/Kids [\n");
    if (at == std::string::npos) return r;
    at += 8;
    while (at < tree.size() && tree[at] != ']') {
      r.push_back(std::atoi(tree.c_str() + at));
      at = tree.find('\n', at) + 1;
    }
    return r;
  }

  // Content stream objects of a page, from /Contents.
  std::vector<int> contents(int page) const {
    const std::string& o = object(page);
    std::vector<int> r;
    const std::size_t at = o.find("/Contents ");
    if (at == std::string::npos) return r;
    if (o[at + 10] != '[') return {std::atoi(o.c_str() + at + 10)};
    std::size_t p = at + 12;
    while (p < o.size() && o[p] != ']') {
      r.push_back(std::atoi(o.c_str() + p));
      p = o.find('\n', p) + 1;
    }
    return r;
  }

  std::string content(int page) const {
    std::string s;
    for (int k : contents(page)) s += stream(k);
    return s;
  }
};

// A file written by the library, with the creation date (its only varying bytes) masked.
inline std::string masked(std::string bytes) {
  const std::size_t at = bytes.find("/CreationDate (D:");
  if (at != std::string::npos) bytes.replace(at + 17, 14, "YYYYMMDDhhmmss");
  return bytes;
}

struct Ppm {
  int w = 0, h = 0;
  std::vector<unsigned char> rgb;
  // Colour at pixel (x, y), rows from the top, as 0xRRGGBB; -1 outside.
  long at(int x, int y) const {
    if (x < 0 || y < 0 || x >= w || y >= h) return -1;
    const std::size_t i = (std::size_t(y) * std::size_t(w) + std::size_t(x)) * 3;
    return (long(rgb[i]) << 16) | (long(rgb[i + 1]) << 8) | long(rgb[i + 2]);
  }
  static Ppm read(const std::string& name) {
    Ppm p;
    std::ifstream in(name, std::ios::binary);
    std::vector<std::string> head;
    while (head.size() < 4 && in) {
      std::string tok;
      in >> tok;
      if (!tok.empty() && tok[0] == '#') {
        std::getline(in, tok);
        continue;
      }
      head.push_back(tok);
    }
    in.get();
    if (head.size() < 4 || head[0] != "P6") return p;
    p.w = std::stoi(head[1]);
    p.h = std::stoi(head[2]);
    p.rgb.resize(std::size_t(p.w) * std::size_t(p.h) * 3);
    in.read(reinterpret_cast<char*>(p.rgb.data()), std::streamsize(p.rgb.size()));
    if (!in) p.w = p.h = 0;
    return p;
  }
};

}  // namespace zbt
