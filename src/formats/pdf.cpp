// PDF 1.3 writer: emits the file as it goes, keeps the position of each object, and closes
// with a classic cross-reference table. Page content goes to a buffer and is deflated when
// its stream ends; the whole file may go to memory instead of a file. One file at a time.
#include <zlib.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <climits>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <string>

#include "formats/drivers.h"
#include "formats/pdf.h"
#include "frame/frame.h"

namespace zb {

namespace {

// Object kinds of the table; a font i has kFont + i.
enum : unsigned char { kOther = 0, kStream = 1, kPage = 2, kImage = 3, kForm = 4, kOutline = 5, kFont = 10 };

constexpr int kTableStep = 100;
constexpr int kFileStep = 512000;
constexpr int kStreamSize = 300000;
constexpr int kFonts = 35;

constexpr std::array<const char*, kFonts> kFontNames = {
    "Times-Roman", "Times-Bold", "Times-Italic", "Times-BoldItalic", "Helvetica", "Helvetica-Bold",
    "Helvetica-Oblique", "Helvetica-BoldOblique", "Helvetica-Narrow", "Helvetica-Narrow-Bold",
    "Helvetica-Narrow-Oblique", "Helvetica-Narrow-BoldOblique", "NewCenturySchlbk-Roman",
    "NewCenturySchlbk-Italic", "NewCenturySchlbk-Bold", "NewCenturySchlbk-BoldItalic",
    "ZapfChancery-MediumItalic", "ZapfDingbats", "Courier", "Courier-Bold", "Courier-Oblique",
    "Courier-BoldOblique", "AvantGarde-Book", "AvantGarde-Demi", "AvantGarde-BookOblique",
    "AvantGarde-DemiOblique", "Bookman-Light", "Bookman-LightItalic", "Bookman-Demi",
    "Bookman-DemiItalic", "Palatino-Roman", "Palatino-Italic", "Palatino-Bold",
    "Palatino-BoldItalic", "Symbol",
};

// Codes 127..186 of the library's national letters as WinAnsi codes.
constexpr std::array<unsigned char, 60> kWinAnsi = {
    0xC4, 0xD6, 0xDC, 0xE4, 0xF6, 0xFC, 0xDF, 0xC5, 0xD8, 0xC6, 0xE5, 0xF8, 0xE6, 0xD1, 0xF1,
    0xC7, 0xE7, 0xCB, 0xCF, 0xEB, 0xEF, 0xC1, 0xC9, 0xCD, 0xD3, 0xDA, 0xE1, 0xE9, 0xED, 0xF3,
    0xFA, 0xC0, 0xC8, 0xCC, 0xD2, 0xD9, 0xE0, 0xE8, 0xEC, 0xF2, 0xF9, 0xC2, 0xCA, 0xCE, 0xD4,
    0xDB, 0xE2, 0xEA, 0xEE, 0xF4, 0xFB, 0xC3, 0xE3, 0xD5, 0xF5, 0xDD, 0xFD, 0xFF, 0xA1, 0xBF,
};

struct Mark {
  int level, page;
  char title[257];
};

// Output.
bool iopen_pdf = false;                  // a file is being written
std::FILE* fp_pdf = nullptr;
int nbyt_pdf = 0;                        // bytes of the file so far
int ibfop_pdf = 0;                       // 1 = the file goes to cbf2_pdf
unsigned char* cbf2_pdf = nullptr;
int nmx2_pdf = 0, ierr_pdf = 0;
int nfile_pdf = 0;                       // size of the finished buffered file
// Objects.
int* nptr_pdf = nullptr;
unsigned char* ityp_pdf = nullptr;
int nmax_pdf = 0, nobj_pdf = 3, nobj1_pdf = 1;
// Streams: content, image data and forms.
int nstream_pdf = 0, nobjstr_pdf = 0;
int icomp_pdf = 0, iorgc_pdf = 0, istrop_pdf = 0;
unsigned char* cbuf_pdf = nullptr;
int nbuf_pdf = 0, nmx1_pdf = 0;
int nslen_pdf = 0;                       // file position where the plain stream data began
// Page and drawing state.
int nwidth_pdf = 0, nheight_pdf = 0, irot_pdf = 0;
int ipopt_pdf = 0, ipold_pdf = 3;
float xold_pdf = 0.0f, yold_pdf = 0.0f;
int ibt_pdf = 0, icfnt_pdf = 0, icpts_pdf = 0, ifont_pdf = 0;
std::array<unsigned char, kFonts> ifntop_pdf{};
int ir_pdf = -1, ig_pdf = -1, ib_pdf = -1;
// Images: iimg_pdf 1 while pixel data are taken, 2 while the image is being placed.
int imgn_pdf = 0, iformn_pdf = 0, imgw_pdf = 0, imgh_pdf = 0;
int iimg_pdf = 0, nimgb_pdf = 0;
int npag_pdf = 1;
// Bookmarks.
Mark* pmrk_pdf = nullptr;
int nmrk_pdf = 0, nmrkmx_pdf = 0;

// Allocations of the writer follow the test fault switch but report nothing themselves:
// the caller decides whether a failure is worth a warning.
void* pdf_malloc(long n) {
  if (n < 0 || n > 0x7fffffffL) return nullptr;
  if (detail::alloc_fail_after == 0) return nullptr;
  if (detail::alloc_fail_after > 0) --detail::alloc_fail_after;
  return std::malloc(std::size_t(n == 0 ? 1 : n));
}

void* pdf_realloc(void* p, long n) {
  if (n <= 0 || n > 0x7fffffffL) return nullptr;
  if (detail::alloc_fail_after == 0) return nullptr;
  if (detail::alloc_fail_after > 0) --detail::alloc_fail_after;
  return std::realloc(p, std::size_t(n));
}

// printf "%.<d>f"; a value that is not a number writes 0, a huge one is held at 1E15.
std::string fixed(float v, int d) {
  if (!std::isfinite(v)) v = 0.0f;
  v = std::clamp(v, -1.0e15f, 1.0e15f);
  char buf[64];
  auto r = std::to_chars(buf, buf + sizeof buf, double(v), std::chars_format::fixed, d);
  return std::string(buf, r.ptr);
}

std::string f2(float v) { return fixed(v, 2); }

// trunc(v + 0.5), held within the integers.
int round_half(float v) {
  if (!std::isfinite(v)) return 0;
  return int(std::clamp(v + 0.5f, -2.0e9f, 2.0e9f));
}

// Bytes to the file or the file buffer, counted in nbyt_pdf.
void raw_out(const unsigned char* p, int n) {
  if (ibfop_pdf == 1) {
    if (ierr_pdf == 0 && long(nbyt_pdf) + n > nmx2_pdf) {
      const long need = long(nbyt_pdf) + n - nmx2_pdf;
      const long size = long(nmx2_pdf) + (need + kFileStep - 1) / kFileStep * kFileStep;
      void* q = pdf_realloc(cbf2_pdf, size);
      if (q == nullptr) {
        ierr_pdf = 1;
      } else {
        cbf2_pdf = static_cast<unsigned char*>(q);
        nmx2_pdf = int(size);
      }
    }
    if (ierr_pdf == 0) std::memcpy(cbf2_pdf + nbyt_pdf, p, std::size_t(n));
  } else if (fp_pdf != nullptr) {
    std::fwrite(p, 1, std::size_t(n), fp_pdf);
  }
  nbyt_pdf = int(std::min<long>(long(nbyt_pdf) + n, INT_MAX));
}

void qqpdfadd(int ikind, int iphase);

// The single output point: n = -1 takes the length of a zero-ended text.
void qqpdfbuf(const void* pv, int n) {
  const auto* p = static_cast<const unsigned char*>(pv);
  if (p == nullptr) return;
  if (n == -1) n = int(std::strlen(static_cast<const char*>(pv)));
  if (n <= 0) return;
  if (icomp_pdf == 1 && istrop_pdf == 1) {
    if (iimg_pdf == 1) {
      // Image data are collected up to their announced size.
      const int take = std::min(n, nmx1_pdf - nbuf_pdf);
      if (take > 0) std::memcpy(cbuf_pdf + nbuf_pdf, p, std::size_t(take));
      nbuf_pdf += std::max(take, 0);
      return;
    }
    // A long page continues in a further content stream.
    if (nbuf_pdf + n > nmx1_pdf) {
      qqpdfadd(1, 2);
      qqpdfadd(1, 1);
    }
    if (icomp_pdf == 1 && istrop_pdf == 1 && nbuf_pdf + n <= nmx1_pdf) {
      std::memcpy(cbuf_pdf + nbuf_pdf, p, std::size_t(n));
      nbuf_pdf += n;
      return;
    }
  }
  raw_out(p, n);
}

void put(std::string_view s) { qqpdfbuf(s.data(), int(s.size())); }

// Books object n of type t at the current position and writes its head. n = -1 makes
// the table, n = -2 frees it. Nonzero if the table could not grow.
int qqpdfobj(int n, int t) {
  if (n == -1 || n == -2) {
    std::free(nptr_pdf);
    std::free(ityp_pdf);
    nptr_pdf = nullptr;
    ityp_pdf = nullptr;
    nmax_pdf = 0;
    if (n == -2) return 0;
    nptr_pdf = static_cast<int*>(pdf_malloc(long(kTableStep) * long(sizeof(int))));
    ityp_pdf = static_cast<unsigned char*>(pdf_malloc(kTableStep));
    if (nptr_pdf == nullptr || ityp_pdf == nullptr) {
      qqpdfobj(-2, 0);
      return 1;
    }
    nmax_pdf = kTableStep;
    std::memset(nptr_pdf, 0, sizeof(int) * kTableStep);
    std::memset(ityp_pdf, 0, kTableStep);
    return 0;
  }
  int fail = 0;
  if (n >= nmax_pdf) {
    const int size = (n / kTableStep + 1) * kTableStep;
    void* a = pdf_realloc(nptr_pdf, long(size) * long(sizeof(int)));
    if (a != nullptr) nptr_pdf = static_cast<int*>(a);
    void* b = a == nullptr ? nullptr : pdf_realloc(ityp_pdf, size);
    if (b != nullptr) {
      ityp_pdf = static_cast<unsigned char*>(b);
      for (int i = nmax_pdf; i < size; ++i) {
        nptr_pdf[i] = 0;
        ityp_pdf[i] = 0;
      }
      nmax_pdf = size;
    } else {
      fail = 1;
    }
  }
  if (n < nmax_pdf) {
    nptr_pdf[n] = nbyt_pdf;
    ityp_pdf[n] = static_cast<unsigned char>(t);
  }
  put(itoa(n) + " 0 obj\n");
  if (t == kStream) {
    nobjstr_pdf = nobj_pdf;
    ++nstream_pdf;
  }
  ++nobj_pdf;
  return fail;
}

int type_of(int k) { return k >= 0 && k < nmax_pdf ? ityp_pdf[k] : -1; }

// Deflates in one call at the default level; null if zlib or memory fails.
unsigned char* deflate_block(const unsigned char* in, int n, int& nout) {
  const long cap = long(n) + n / 100 + 13;
  auto* out = static_cast<unsigned char*>(pdf_malloc(cap));
  if (out == nullptr) return nullptr;
  z_stream zs{};
  // zlib checks the record size against its own (56 bytes on 32-bit hosts).
  if (deflateInit_(&zs, Z_DEFAULT_COMPRESSION, "1.1.3", int(sizeof(z_stream))) != Z_OK) {
    std::free(out);
    return nullptr;
  }
  zs.next_in = const_cast<unsigned char*>(in);
  zs.avail_in = unsigned(n);
  zs.next_out = out;
  zs.avail_out = unsigned(cap);
  const int rc = deflate(&zs, Z_FINISH);
  nout = int(zs.total_out);
  deflateEnd(&zs);
  if (rc != Z_STREAM_END) {
    std::free(out);
    return nullptr;
  }
  return out;
}

// Writes a block deflated, or plain if that fails, from the length on to the end of the
// object. dict_open: the dictionary was begun already (images, forms), its lines indented.
void put_deflated(const unsigned char* p, int n, bool dict_open) {
  int nz = 0;
  unsigned char* z = deflate_block(p, n, nz);
  const std::string in = dict_open ? "   " : "";
  const std::string lead = dict_open ? in : "<< ";
  if (z != nullptr) {
    put(lead + "/Length " + itoa(nz) + "\n");
    put(in + "/Filter /FlateDecode\n");
    put(">>\n");
    put("stream\n");
    qqpdfbuf(z, nz);
    std::free(z);
  } else {
    put(lead + "/Length " + itoa(n) + " >>\n");
    put("stream\n");
    qqpdfbuf(p, n);
  }
  put("endstream\n");
  put("endobj\n");
}

void open_stream() {
  icomp_pdf = 0;
  if (iorgc_pdf == 1) {
    cbuf_pdf = static_cast<unsigned char*>(pdf_malloc(kStreamSize));
    if (cbuf_pdf != nullptr) {
      icomp_pdf = 1;
      nmx1_pdf = kStreamSize;
      nbuf_pdf = 0;
    }
  }
  qqpdfobj(nobj_pdf, kStream);
  if (icomp_pdf == 1) {
    istrop_pdf = 1;   // the dictionary follows when the length is known
  } else {
    put("<< /Length " + itoa(nobj_pdf) + " 0 R >>\n");
    put("stream\n");
    nslen_pdf = nbyt_pdf;
  }
}

void close_stream() {
  if (icomp_pdf == 1) {
    istrop_pdf = 0;
    icomp_pdf = 0;
    put_deflated(cbuf_pdf, nbuf_pdf, false);
    std::free(cbuf_pdf);
    cbuf_pdf = nullptr;
    nbuf_pdf = 0;
    return;
  }
  const int len = nbyt_pdf - nslen_pdf;
  put("endstream\n");
  put("endobj\n");
  qqpdfobj(nobj_pdf, kOther);
  put(itoa(len) + "\n");
  put("endobj\n");
}

void write_fonts() {
  for (int i = 0; i < kFonts; ++i) {
    if (ifntop_pdf[std::size_t(i)] != 1) continue;
    qqpdfobj(nobj_pdf, kFont + i);
    put("<< /Type /Font\n");
    put("/Subtype /Type1\n");
    put(std::string("/BaseFont /") + kFontNames[std::size_t(i)] + "\n");
    put("/Encoding /WinAnsiEncoding\n");
    put(">>\n");
    put("endobj\n");
    ifntop_pdf[std::size_t(i)] = 2;
  }
}

void write_page() {
  const int self = nobj_pdf;
  qqpdfobj(nobj_pdf, kPage);
  put("<<\n");
  put("/Type /Page\n");
  put("/MediaBox [0 0 " + itoa(nwidth_pdf) + " " + itoa(nheight_pdf) + "]\n");
  put("/Parent 2 0 R\n");
  if (irot_pdf == 1) put("/Rotate 90\n");
  bool images = false, forms = false;
  for (int k = nobj1_pdf; k < self; ++k) {
    images = images || type_of(k) == kImage;
    forms = forms || type_of(k) == kForm;
  }
  if (ifont_pdf == 1) put(images ? "/Resources << /ProcSet [/PDF /Text /ImageC]\n" : "/Resources << /ProcSet [/PDF /Text]\n");
  else put(images ? "/Resources << /ProcSet [/PDF /ImageC]\n" : "/Resources << /ProcSet [/PDF]\n");
  if (ifont_pdf == 1) {
    put("/Font <<\n");
    for (int k = 1; k < self; ++k)
      if (type_of(k) >= kFont) put("/F" + itoa(type_of(k) - kFont + 1) + " " + itoa(k) + " 0 R\n");
    put(">>\n");
  }
  if (images || forms) {
    put("/XObject <<\n");
    int ni = 0, nf = 0;   // images and forms are numbered through the whole file
    for (int k = 1; k < self; ++k) {
      if (type_of(k) == kImage) {
        ++ni;
        if (k >= nobj1_pdf) put("/Image" + itoa(ni) + " " + itoa(k) + " 0 R\n");
      } else if (type_of(k) == kForm) {
        ++nf;
        if (k >= nobj1_pdf) put("/Form" + itoa(nf) + " " + itoa(k) + " 0 R\n");
      }
    }
    put(">>\n");
  }
  put(">>\n");
  if (nstream_pdf == 1) {
    put("/Contents " + itoa(nobjstr_pdf) + " 0 R\n");
  } else {
    put("/Contents [\n");
    for (int k = nobj1_pdf; k < self; ++k)
      if (type_of(k) == kStream) put(itoa(k) + " 0 R\n");
    put("]\n");
  }
  put(">>\n");
  put("endobj\n");
}

// A title goes into its string as it stands, unless a reader would end the string before
// its end (an unbalanced parenthesis, a last backslash): then ( ) and \ are escaped.
void put_title(const char* t) {
  int depth = 0;
  bool stands = true;
  for (const char* c = t; stands && *c != '\0'; ++c) {
    if (*c == '\\') stands = *++c != '\0';
    else if (*c == '(') ++depth;
    else if (*c == ')') stands = --depth >= 0;
  }
  if (stands && depth == 0) {
    qqpdfbuf(t, -1);
    return;
  }
  std::string s;
  for (const char* c = t; *c != '\0'; ++c) {
    if (*c == '(' || *c == ')' || *c == '\\') s += '\\';
    s += *c;
  }
  put(s);
}

// The outline root and one item a mark; returns the root's object number.
int qqpdfmrk() {
  const int root = nobj_pdf, m = nmrk_pdf;
  qqpdfobj(root, kOutline);
  put("<< /Type /Outlines\n");
  put("   /First " + itoa(root + 1) + " 0 R\n");
  put("   /Last " + itoa(root + m) + " 0 R\n");
  put("   /Count " + itoa(m) + "\n");
  put(">>\n");
  put("endobj\n");
  auto level = [](int i) { return pmrk_pdf[i - 1].level; };
  for (int i = 1; i <= m; ++i) {
    const int lv = level(i);
    int parent = root, prev = 0, next = 0;
    for (int j = i - 1; j >= 1; --j)
      if (level(j) < lv) { parent = root + j; break; }
    for (int j = i - 1; j >= 1; --j)
      if (level(j) == lv) { prev = root + j; break; }
    for (int j = i + 1; j <= m; ++j)
      if (level(j) == lv) { next = root + j; break; }
    int run = 0;
    while (i + run + 1 <= m && level(i + run + 1) > lv) ++run;
    qqpdfobj(root + i, kOutline);
    put("<< /Title (");
    put_title(pmrk_pdf[i - 1].title);
    put(")\n");
    put("   /Parent " + itoa(parent) + " 0 R\n");
    if (prev > 0) put("   /Prev " + itoa(prev) + " 0 R\n");
    if (next > 0) put("   /Next " + itoa(next) + " 0 R\n");
    if (run > 0) {
      put("   /First " + itoa(root + i + 1) + " 0 R\n");
      put("   /Last " + itoa(root + i + run) + " 0 R\n");
      put("   /Count " + itoa(run) + "\n");
    }
    int seen = 0;
    for (int k = 1; k < nobj_pdf; ++k)
      if (type_of(k) == kPage && ++seen == pmrk_pdf[i - 1].page) {
        put("   /Dest [" + itoa(k) + " 0 R /XYZ 0 " + itoa(nheight_pdf) + " 0]\n");
        break;
      }
    put(">>\n");
    put("endobj\n");
  }
  return root;
}

std::string two(int v) { return v < 10 ? "0" + itoa(v) : itoa(v); }

// Page tree, outlines, catalog, info, cross-reference table and trailer.
void write_end() {
  if (nmax_pdf > 2) {
    nptr_pdf[2] = nbyt_pdf;
    ityp_pdf[2] = kOther;
  }
  put("2 0 obj\n");
  put("<< /Type /Pages /Kids [\n");
  int npages = 0;
  for (int k = 3; k < nobj_pdf; ++k)
    if (type_of(k) == kPage) {
      put(itoa(k) + " 0 R\n");
      ++npages;
    }
  put("] /Count " + itoa(npages) + "\n");
  put(">>\n");
  put("endobj\n");
  const int outlines = nmrk_pdf > 0 ? qqpdfmrk() : 0;
  if (nmax_pdf > 1) nptr_pdf[1] = nbyt_pdf;
  put("1 0 obj\n");
  put("<< /Type /Catalog /Pages 2 0 R\n");
  if (outlines > 0) {
    put("   /Outlines " + itoa(outlines) + " 0 R\n");
    put("   /PageMode /UseOutlines\n");
  }
  put(">>\n");
  put("endobj\n");
  const int info = nobj_pdf;
  qqpdfobj(info, kOther);
  std::time_t now = std::time(nullptr);
  std::tm t{};
  localtime_r(&now, &t);
  put("<< /CreationDate (D:" + itoa(t.tm_year + 1900) + two(t.tm_mon + 1) + two(t.tm_mday) +
      two(t.tm_hour) + two(t.tm_min) + two(t.tm_sec) + ")\n");
  put("/Producer (ZORBEL " + fmt_f(kVersion, 3, 1) + ")\n");
  put(">>\n");
  put("endobj\n");
  const int xref = nbyt_pdf;
  put("xref\n");
  put("0 " + itoa(nobj_pdf) + "\n");
  put("0000000000 65535 f \n");
  for (int k = 1; k < nobj_pdf; ++k) {
    std::string pos = itoa(k < nmax_pdf ? nptr_pdf[k] : 0);
    put(std::string(pos.size() < 10 ? 10 - pos.size() : 0, '0') + pos + " 00000 n \n");
  }
  put("trailer\n");
  put("<< /Size " + itoa(nobj_pdf) + " /Root 1 0 R /Info " + itoa(info) + " 0 R\n");
  put(">>\n");
  put("startxref\n");
  put(itoa(xref) + "\n");
  put("%%EOF\n");
}

void free_marks() {
  std::free(pmrk_pdf);
  pmrk_pdf = nullptr;
  nmrk_pdf = nmrkmx_pdf = 0;
}

void open_image() {
  icomp_pdf = 0;
  const long n = 3L * imgw_pdf * imgh_pdf;
  if (iorgc_pdf == 1) {
    cbuf_pdf = static_cast<unsigned char*>(pdf_malloc(n));
    if (cbuf_pdf != nullptr) {
      std::memset(cbuf_pdf, 0, std::size_t(n));
      icomp_pdf = 1;
      nmx1_pdf = int(n);
      nbuf_pdf = 0;
    }
  }
  ++imgn_pdf;
  qqpdfobj(nobj_pdf, kImage);
  put("<< /Type /XObject /Subtype /Image\n");
  put("   /ColorSpace /DeviceRGB\n");
  put("   /Width " + itoa(imgw_pdf) + " /Height " + itoa(imgh_pdf) + " /BitsPerComponent 8\n");
  iimg_pdf = 1;
  nimgb_pdf = 0;
  if (icomp_pdf == 1) {
    istrop_pdf = 1;
  } else {
    put("   /Length " + itoa(int(n)) + "\n");
    put(">>\n");
    put("stream\n");
  }
}

void close_image() {
  const int n = 3 * imgw_pdf * imgh_pdf;
  if (icomp_pdf == 1) {
    istrop_pdf = 0;
    icomp_pdf = 0;
    put_deflated(cbuf_pdf, n, true);   // rows not sent stay black
    std::free(cbuf_pdf);
    cbuf_pdf = nullptr;
    nbuf_pdf = 0;
  } else {
    static const unsigned char zeros[256] = {};
    for (int k = nimgb_pdf; k < n; k += 256) raw_out(zeros, std::min(256, n - k));
    put("endstream\n");
    put("endobj\n");
  }
  iimg_pdf = 0;
}

// Ends an open text object or stroke path.
void end_text() {
  if (ibt_pdf == 1) {
    put("ET\n");
    ibt_pdf = 0;
  }
}

void end_stroke() {
  if (ipopt_pdf == 1) {
    put("S\n");
    ipopt_pdf = 0;
    ipold_pdf = 3;
  }
}

// An image being placed (between its q and Q) ends at any other operation.
void end_placement() {
  if (iimg_pdf == 2) {
    put("Q\n");
    iimg_pdf = 0;
  }
}

void qqpdfadd(int ikind, int iphase) {
  if (ikind == 1 && iphase == 1) open_stream();
  else if (ikind == 1 && iphase == 2) close_stream();
  else if (ikind == 2) write_fonts();
  else if (ikind == 3) write_page();
  else if (ikind == 4) write_end();
  else if (ikind == 5 && iphase == 1) open_image();
  else if (ikind == 5 && iphase == 2) close_image();
}

void close_file() {
  if (iimg_pdf == 1) {
    close_image();   // the content stream was closed for the image
  } else {
    end_placement();
    end_text();
    end_stroke();
    qqpdfadd(1, 2);
  }
  qqpdfadd(2, 0);
  qqpdfadd(3, 0);
  qqpdfadd(4, 0);
  if (ibfop_pdf == 0) {
    if (fp_pdf != nullptr) std::fclose(fp_pdf);
    fp_pdf = nullptr;
  } else {
    nfile_pdf = nbyt_pdf;
  }
  free_marks();
  qqpdfobj(-2, 0);
  iopen_pdf = false;
}

}  // namespace

void qqpdf1(const char* path, int nw, int nh, int imode, int irot, int& ierr) {
  ierr = 0;
  if (iopen_pdf) {
    // A file left open by an earlier session is dropped unfinished.
    if (fp_pdf != nullptr) std::fclose(fp_pdf);
    fp_pdf = nullptr;
    std::free(cbuf_pdf);
    cbuf_pdf = nullptr;
    iopen_pdf = false;
  }
  iorgc_pdf = imode & 1;
  ibfop_pdf = (imode / 2) & 1;
  icomp_pdf = istrop_pdf = 0;
  nbyt_pdf = nbuf_pdf = 0;
  nobj_pdf = 3;
  nobj1_pdf = 1;
  nstream_pdf = nobjstr_pdf = 0;
  ir_pdf = ig_pdf = ib_pdf = -1;
  imgn_pdf = iformn_pdf = imgw_pdf = imgh_pdf = 0;
  iimg_pdf = nimgb_pdf = 0;
  npag_pdf = 1;
  ipopt_pdf = 0;
  ipold_pdf = 3;
  xold_pdf = yold_pdf = 0.0f;
  ibt_pdf = icfnt_pdf = icpts_pdf = ifont_pdf = 0;
  ifntop_pdf.fill(0);
  nwidth_pdf = nw;
  nheight_pdf = nh;
  irot_pdf = irot == 1 ? 1 : 0;
  free_marks();
  if (qqpdfobj(-1, 0) != 0) {
    ierr = -2;
    return;
  }
  if (ibfop_pdf == 0) {
    fp_pdf = path == nullptr ? nullptr : std::fopen(path, "wb");
    if (fp_pdf == nullptr) {
      qqpdfobj(-2, 0);
      ierr = -1;
      return;
    }
  } else {
    std::free(cbf2_pdf);
    nfile_pdf = 0;
    ierr_pdf = 0;
    cbf2_pdf = static_cast<unsigned char*>(pdf_malloc(kFileStep));
    nmx2_pdf = cbf2_pdf == nullptr ? 0 : kFileStep;
    if (cbf2_pdf == nullptr) {
      qqpdfobj(-2, 0);
      ierr = -2;
      return;
    }
  }
  iopen_pdf = true;
  put("%PDF-1.3\n");
  qqpdfadd(1, 1);
  put("0.709 w\n");
  put("2 J\n");
  put("2 j\n");
}

void qqpdf2(float x, float y, int icode) {
  if (!iopen_pdf) return;
  if (iimg_pdf == 1) {
    // Only the end of the pixel data (or of the file) may interrupt an image.
    if (icode == 1) close_file();
    if (icode != 11) return;
  }
  if (icode < 12 || icode > 14) end_placement();
  end_text();
  if (icode != 2 && icode != 5) end_stroke();
  switch (icode) {
    case 1:
      close_file();
      break;
    case 2:
      if (ipold_pdf == 3) put(f2(xold_pdf) + " " + f2(yold_pdf) + " m\n");
      put(f2(x) + " " + f2(y) + " l\n");
      ipopt_pdf = 1;
      ipold_pdf = 2;
      xold_pdf = x;
      yold_pdf = y;
      break;
    case 3:
      xold_pdf = x;
      yold_pdf = y;
      ipold_pdf = 3;
      break;
    case 4:
      iimg_pdf = 0;
      qqpdfadd(1, 2);
      qqpdfadd(2, 0);
      qqpdfadd(3, 0);
      nobj1_pdf = nobj_pdf;
      ++npag_pdf;
      nstream_pdf = 0;
      // A new page starts from the default graphics state, whose fill colour is black.
      ir_pdf = ig_pdf = ib_pdf = -1;
      qqpdfadd(1, 1);
      break;
    case 5:
      put("h\n");
      put("f*\n");
      break;
    case 6: put(fixed(x, 3) + " w\n"); break;
    case 7: put(itoa(round_half(x)) + " j\n"); break;
    case 8: put(itoa(round_half(x)) + " J\n"); break;
    case 9: put(fixed(x, 3) + " M\n"); break;
    case 10: {
      const float w = std::isfinite(x) ? x : 0.0f, h = std::isfinite(y) ? y : 0.0f;
      if (w < 1.0f || h < 1.0f || double(w) * double(h) * 3.0 > 1.0e9) break;
      imgw_pdf = int(w);
      imgh_pdf = int(h);
      qqpdfadd(1, 2);
      qqpdfadd(5, 1);
      break;
    }
    case 11:
      if (iimg_pdf != 1) break;
      qqpdfadd(5, 2);
      qqpdfadd(1, 1);
      put("q\n");
      iimg_pdf = 2;
      break;
    case 12:
      if (iimg_pdf == 2) put("1 0 0 1 " + f2(x) + " " + f2(y) + " cm\n");
      break;
    case 13:
      if (iimg_pdf == 2) put("0 1 -1 0 0 0 cm\n");
      break;
    case 14:
      if (iimg_pdf != 2) break;
      put(f2(x) + " 0 0 " + f2(y) + " 0 0 cm\n");
      put("/Image" + itoa(imgn_pdf) + " Do\n");
      put("Q\n");
      iimg_pdf = 0;
      break;
    default: break;   // 999 and the like only end the stroke
  }
}

void qqpdf3(int r, int g, int b, int ifill) {
  if (!iopen_pdf || iimg_pdf == 1) return;
  end_placement();
  end_stroke();
  end_text();
  r = std::clamp(r, 0, 255);
  g = std::clamp(g, 0, 255);
  b = std::clamp(b, 0, 255);
  if (ifill == 1) {
    if (r == ir_pdf && g == ig_pdf && b == ib_pdf) return;
    ir_pdf = r;
    ig_pdf = g;
    ib_pdf = b;
  }
  std::string s;
  for (int v : {r, g, b}) s += v == 0 ? "0 " : v == 255 ? "1 " : fixed(float(v) / 255.0f, 3) + " ";
  put(s + (ifill == 1 ? "rg\n" : "RG\n"));
}

void qqpdf4(float x, float y, float w, float h) {
  if (!iopen_pdf || iimg_pdf == 1) return;
  end_placement();
  end_stroke();
  end_text();
  put(f2(x) + " " + f2(y) + " " + f2(w) + " " + f2(h) + " re\n");
  put("f\n");
}

void qqpdf5(int ic, const float mat[6], int iang, int ifnt, int ipts) {
  if (!iopen_pdf || iimg_pdf == 1 || mat == nullptr || ifnt < 0 || ifnt >= kFonts) return;
  end_placement();
  end_stroke();
  if (ibt_pdf == 1 && (icfnt_pdf != ifnt || icpts_pdf != ipts)) end_text();
  ifont_pdf = 1;
  if (ifntop_pdf[std::size_t(ifnt)] == 0) ifntop_pdf[std::size_t(ifnt)] = 1;
  if (ibt_pdf == 0) {
    put("BT\n");
    put("/F" + itoa(ifnt + 1) + " " + fixed(float(ipts) / 10.0f, 1) + " Tf\n");
    ibt_pdf = 1;
    icfnt_pdf = ifnt;
    icpts_pdf = ipts;
  }
  if (iang == 0) {
    put("1 0 0 1 " + f2(mat[4]) + " " + f2(mat[5]) + " Tm\n");
  } else if (iang == 90) {
    put("0 1 -1 0 " + f2(mat[4]) + " " + f2(mat[5]) + " Tm\n");
  } else {
    std::string s;
    for (int i = 0; i < 6; ++i) s += f2(mat[i]) + " ";
    put(s + "Tm\n");
  }
  // Parentheses and the backslash are escaped, national letters go by their WinAnsi code.
  int code = ic;
  bool octal = false;
  if (ic < 0 || ic >= 187) {
    code = ' ';
    octal = true;
  } else if (ic >= 127) {
    code = kWinAnsi[std::size_t(ic - 127)];
    octal = true;
  } else if (ic == '(' || ic == ')' || ic == '\\') {
    octal = true;
  }
  if (octal) {
    char oct[8];
    auto r = std::to_chars(oct, oct + sizeof oct, code, 8);
    put("(\\" + std::string(oct, r.ptr) + ") Tj\n");
  } else {
    const char c[] = {'(', char(code), ')', ' ', 'T', 'j', '\n'};
    qqpdfbuf(c, 7);
  }
}

int qqpdf6(char* cbuf, int nmax) {
  const int size = cbf2_pdf == nullptr ? 0 : nfile_pdf;
  if (nmax == 0) return size;
  if (ierr_pdf == 1) return -1;
  if (size <= 0 || iopen_pdf) return -2;
  if (nmax < size || cbuf == nullptr) return -3;
  std::memcpy(cbuf, cbf2_pdf, std::size_t(size));
  std::free(cbf2_pdf);
  cbf2_pdf = nullptr;
  nmx2_pdf = 0;
  nfile_pdf = 0;
  return size;
}

void qqpdf7(const unsigned char* p, int n) {
  if (!iopen_pdf || iimg_pdf != 1 || p == nullptr || n <= 0) return;
  const int take = std::min(n, 3 * imgw_pdf * imgh_pdf - nimgb_pdf);
  if (take <= 0) return;
  qqpdfbuf(p, take);
  nimgb_pdf += take;
}

void qqpdf8(const unsigned char* p, int n, float x, float y, float w, float h, float xp, float yp,
            float wp, float hp, int icomp, int irot, int& ierr) {
  ierr = 1;
  if (!iopen_pdf || iimg_pdf != 0 || p == nullptr || n <= 0) return;
  for (float v : {x, y, w, h, xp, yp, wp, hp})
    if (!std::isfinite(v)) return;
  if (!(w > 0.0f && h > 0.0f)) return;
  ierr = 0;
  end_placement();
  end_text();
  end_stroke();
  qqpdfadd(1, 2);
  ++iformn_pdf;
  qqpdfobj(nobj_pdf, kForm);
  put("<< /Type /XObject /Subtype /Form\n");
  put("   /FormType 1\n");
  put("   /BBox [" + itoa(round_half(x)) + " " + itoa(round_half(y)) + " " + itoa(round_half(x + w)) + " " +
      itoa(round_half(y + h)) + "]\n");
  put("   /Matrix [1 0 0 1 0 0]\n");
  put("   /Resources << /ProcSet [/PDF] >>\n");
  if (icomp == 0) {
    put("   /Length " + itoa(n) + "\n");
    put(">>\n");
    put("stream\n");
    qqpdfbuf(p, n);
    put("endstream\n");
    put("endobj\n");
  } else {
    put_deflated(p, n, true);
  }
  qqpdfadd(1, 1);
  put("q\n");
  put("1 0 0 1 " + f2(xp - x) + " " + f2(irot == 1 ? yp - y + hp : yp - y) + " cm\n");
  put(irot == 1 ? "0 -1 1 0 0 0 cm\n" : "1 0 0 1 0 0 cm\n");
  const float k = irot == 1 ? std::min(wp / h, hp / w) : std::min(wp / w, hp / h);
  put(f2(k) + " 0 0 " + f2(k) + " 0 0 cm\n");
  put("/Form" + itoa(iformn_pdf) + " Do\n");
  put("Q\n");
}

void qqpdf9(const char* title, int level, int& ierr) {
  if (!iopen_pdf) { ierr = 4; return; }
  if (level < 0 || level > 4) { ierr = 1; return; }
  for (int l = 0; l < level; ++l) {
    bool found = false;
    for (int i = 0; i < nmrk_pdf && !found; ++i) found = pmrk_pdf[i].level == l;
    if (!found) { ierr = 2; return; }
  }
  if (nmrk_pdf == nmrkmx_pdf) {
    const int size = nmrkmx_pdf + 50;
    void* q = pdf_realloc(pmrk_pdf, long(size) * long(sizeof(Mark)));
    if (q == nullptr) { ierr = 3; return; }
    pmrk_pdf = static_cast<Mark*>(q);
    nmrkmx_pdf = size;
  }
  Mark& mk = pmrk_pdf[nmrk_pdf++];
  mk.level = level;
  mk.page = npag_pdf;
  std::size_t n = title == nullptr ? 0 : std::strlen(title);
  n = std::min<std::size_t>(n, 256);
  if (n > 0) std::memcpy(mk.title, title, n);
  mk.title[n] = '\0';
  ierr = 0;
}

bool pdf_buffered() { return ibfop_pdf == 1; }

}  // namespace zb
