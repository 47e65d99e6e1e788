// From a finished picture to a raster file: the byte writer, fetching the picture (the
// store itself or a rectangle of it), qqrfil with its warnings, the dump routines rtiff ...
// rgif and rbfpng, and the level-0 format options.
#include <cstring>
#include <string>

#include "draw/line.h"
#include "frame/frame.h"
#include "raster/drivers.h"
#include "raster/raster.h"
#include "raster/store.h"
#include "raster/writer.h"

namespace zb {

namespace {

// The write rectangle of qqpclp, apart from the record.
int iimgc = 0, nximgc = 0, nyimgc = 0, nwimgc = 0, nhimgc = 0;

bool dump_device() { return zg.idev <= 100 || (zg.idev >= 601 && zg.idev <= 700); }

bool to_indices(Picture& pic) {
  const std::size_t n = std::size_t(pic.w) * std::size_t(pic.h);
  auto idx = raster_alloc(n);
  if (!idx || !qqquant(pic.px, pic.w, pic.h, idx.get(), pic.r, pic.g, pic.b)) return false;
  pic.own = std::move(idx);
  pic.px = pic.own.get();
  pic.rgb = 0;
  pic.is_store = false;
  return true;
}

void table_palette(Picture& pic) {
  for (int i = 0; i < 256; ++i) {
    const unsigned v = unsigned(zg.ivlt[std::size_t(i)]);
    pic.r[i] = (unsigned char)(v >> 16);
    pic.g[i] = (unsigned char)(v >> 8);
    pic.b[i] = (unsigned char)v;
  }
}

// The dump routines: device check, flush, the name through gfilnn, the writer.
void dump(std::string_view cfil, const char* cname, int itype) {
  if (jqqlev(1, 3, cname)) return;
  if (!dump_device()) {
    warnin(40);
    return;
  }
  qqstrk();
  std::string name(cfil.substr(0, 132));
  gfilnn(name);
  qqrfil(name.c_str(), itype);
}

// Option OFF or ON of pngmod and gifmod for the one key TRAN.
void transparency(std::string_view copt, std::string_view ckey, const char* cname, int& field) {
  if (jqqlev(0, 0, cname)) return;
  const std::string key = upper(ckey.substr(0, 4));
  if (key != "TRAN") {
    warnc1(2, ckey);
    return;
  }
  const int k = jqqind("OFF +ON  ", 2, copt);
  if (k > 0) field = k - 1;
}

}  // namespace

void ByteSink::put(const unsigned char* p, std::size_t n) {
  if (!ok_) return;
  if (file_ != nullptr) {
    if (std::fwrite(p, 1, n, file_) != n) ok_ = false;
  } else if (nmax_ > 0) {
    if (pos_ + long(n) > nmax_) {
      ok_ = false;
      return;
    }
    std::memcpy(buf_ + pos_, p, n);
  }
  pos_ += long(n);
}

void qqpclp(int nx, int ny, int nw, int nh, int iflag) {
  iimgc = iflag;
  nximgc = nx;
  nyimgc = ny;
  nwimgc = nw;
  nhimgc = nh;
}

int fetch_picture(Picture& pic, bool rgb_wanted, bool indices_wanted) {
  const bool raster = zg.idev > 100;
  int sw = 0, sh = 0, srgb = 0;
  qqvinf(sw, sh, srgb);
  table_palette(pic);
  if (raster && iimgc == 0) {
    if (qqvptr() == nullptr) return kNoMemory;
    pic.w = sw;
    pic.h = sh;
    pic.rgb = srgb;
    if (!rgb_wanted || srgb == 1) {
      pic.px = qqvptr();
      pic.is_store = true;
    }
  } else if (iimgc != 0) {
    pic.w = nwimgc;
    pic.h = nhimgc;
  } else {
    pic.w = zg.nwimg;
    pic.h = zg.nhimg;
  }
  if (pic.w < 1 || pic.h < 1) return kNoMemory;
  if (pic.px == nullptr) {
    const int x = iimgc ? nximgc : 0, y = iimgc ? nyimgc : 0;
    const int iflag = (rgb_wanted || zg.imgrgb == 1 || zg.ndepth > 8) ? 1 : 0;
    pic.own = raster_alloc(std::size_t(pic.w) * std::size_t(pic.h) * (iflag ? 3u : 1u));
    if (!pic.own) return kNoMemory;
    if (raster) qqvrdr(pic.own.get(), x, y, pic.w, pic.h, iflag);
    else qqwrdr(pic.own.get(), x, y, pic.w, pic.h, iflag);
    pic.px = pic.own.get();
    pic.rgb = iflag;
  }
  if (indices_wanted && pic.rgb == 1 && !to_indices(pic)) return kNoMemory;
  return kWriteOk;
}

void qqrfil(const char* path, int itype) {
  qqstrk();
  std::string name = path ? std::string(path).substr(0, 255) : std::string();
  while (!name.empty() && name.back() == ' ') name.pop_back();
  const bool screen = zg.idev <= 100;
  bool started = false;
  if (screen && zg.iimgop != 1) {
    if (qqwimg(0) != 0) {
      warnin(53);
      return;
    }
    started = true;
  }
  if (zg.iimgcl) qqpclp(zg.nxicl, zg.nyicl, zg.nwicl, zg.nhicl, 1);
  int ierr = 0;
  long nlen = 0;
  switch (itype) {
    case 1: ierr = qqptif(name.c_str()); break;
    case 2:
      if (screen) qqwfil(name.c_str(), 0, ierr);
      else qqvfil(name.c_str(), 0, ierr);
      break;
    case 4: ierr = qqppng(name.c_str(), nullptr, 0, nlen); break;
    case 5: ierr = qqpppm(name.c_str()); break;
    case 6: ierr = qqpbmp(name.c_str()); break;
    case 7: ierr = qqpgif(name.c_str()); break;
    default: break;
  }
  if (zg.iimgcl) iimgc = 0;
  if (ierr == kFileError || (itype == 2 && ierr == 1)) {
    warnin(36);
  } else if (ierr == kNoMemory || (itype == 2 && ierr == 2)) {
    warnin(53);
  } else if (ierr != 0 && itype == 4) {
    qqserr("ZLIB error");
    warnin(101);
  }
  if (started) qqwimg(1);
}

void rtiff(std::string_view cfil) { dump(cfil, "RTIFF", 1); }
void rpng(std::string_view cfil) { dump(cfil, "RPNG", 4); }
void rppm(std::string_view cfil) { dump(cfil, "RPPM", 5); }
void rbmp(std::string_view cfil) { dump(cfil, "RBMP", 6); }
void rgif(std::string_view cfil) { dump(cfil, "RGIF", 7); }

void rbfpng(char* cbuf, int nmax, int& nlen) {
  nlen = 0;
  if (jqqlev(1, 3, "RBFPNG")) return;
  if (!dump_device()) {
    warnin(40);
    return;
  }
  if (nmax < 0 || (nmax > 0 && cbuf == nullptr)) {
    warni1(2, nmax);
    return;
  }
  qqstrk();
  const bool opened = zg.iimgop != 1;
  if (opened) {
    imgini();
    zg.cproc = "RBFPNG";
    if (zg.iimgop != 1) return;
  }
  if (zg.iimgcl) qqpclp(zg.nxicl, zg.nyicl, zg.nwicl, zg.nhicl, 1);
  long len = 0;
  const int ierr = qqppng(nullptr, reinterpret_cast<unsigned char*>(cbuf), nmax, len);
  if (zg.iimgcl) iimgc = 0;
  if (ierr == kNoMemory) {
    warnin(53);
  } else if (ierr < 0) {
    qqserr("ZLIB error");
    warnin(101);
  } else if (len == 0) {
    qqserr("Buffer too small for PNG file");
    warnin(101);
  } else {
    nlen = int(len);
  }
  if (opened) imgfin();
}

void pngmod(std::string_view copt, std::string_view ckey) { transparency(copt, ckey, "PNGMOD", zg.ipngtr); }
void gifmod(std::string_view copt, std::string_view ckey) { transparency(copt, ckey, "GIFMOD", zg.igiftr); }

void tifmod(int n, std::string_view cunit, std::string_view ckey) {
  if (jqqlev(0, 0, "TIFMOD")) return;
  if (jqqind("RESO", 1, ckey) == 0) return;
  const int k = jqqind("INCH+CM  ", 2, cunit);
  if (k == 0) return;
  if (jqqval(n, 1, -1)) return;
  zg.ntifres = n;
  zg.itifun = k + 1;
}

}  // namespace zb
