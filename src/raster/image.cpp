// The raster device's store at session start, and the image calls: imgini ... imgfin with
// the picture embedded into PostScript, the image box, clip, size and formats, and the
// window size that the raster takes from window and winsiz.
#include <algorithm>
#include <utility>

#include "draw/device.h"
#include "draw/line.h"
#include "frame/frame.h"
#include "raster/drivers.h"
#include "raster/raster.h"

namespace zb {

namespace {

void swap_image_size() {
  std::swap(zg.nwimg, zg.nwisz);
  std::swap(zg.nhimg, zg.nhisz);
}

bool rectangle_ok(int nx, int ny, int nw, int nh) {
  if (nx < 0 || ny < 0) {
    warni1(2, std::min(nx, ny));
    return false;
  }
  if (nw < 1 || nh < 1) {
    warni1(2, std::min(nw, nh));
    return false;
  }
  return true;
}

// The scratch raster as a PostScript colour image in the image box, rows of hexadecimal
// red, green, blue from the top; the row buffer is freed on return.
void embed_postscript() {
  drwpsc(0.0f, 0.0f, 999);
  const int nw = zg.nwimg, nh = zg.nhimg;
  auto row = alloc<unsigned char>(3L * nw);
  if (!row) return;
  int x = 0, y = zg.nypag, w = zg.nxpag + 1, h = zg.nypag + 1;
  if (zg.iimgbx) {
    x = zg.nximgb;
    y = zg.nyimgb + zg.nhimgb - 1;
    w = zg.nwimgb;
    h = zg.nhimgb;
  }
  const float k = zg.devscl * 0.14173229f;
  const bool turned = zg.nxpag > zg.nypag && zg.ipgmod != 2;
  const float px = turned ? float(y) * k : float(x) * k;
  const float py = turned ? float(x) * k : float(zg.nypag - y) * k;
  qpsbuf("/picstr " + fmt_i(3L * nw, 5) + " string def ");
  qpsbuf("gsave " + fmt_f(px, 10, 3) + " " + fmt_f(py, 10, 3) + " translate ");
  if (turned) qpsbuf("90 rotate ");
  qpsbuf(fmt_f(float(w) * k, 10, 3) + " " + fmt_f(float(h) * k, 10, 3) + " scale " + fmt_i(nw, 5) + " " +
         fmt_i(nh, 5) + " 8 [" + fmt_i(nw, 5) + " 0 0 " + fmt_i(-nh, 5) + " 0 " + fmt_i(nh, 5) + "] ");
  qpsbuf("{currentfile picstr readhexstring pop} false 3 ");
  qpsbuf("colorimage ");
  qpsbuf(nullptr, -1);
  static constexpr char kHex[] = "0123456789ABCDEF";
  for (int iy = 0; iy < nh; ++iy) {
    qqvrdr(row.get(), 0, iy, nw, 1, 1);
    for (long i = 0; i < 3L * nw; ++i) {
      const char pair[2] = {kHex[row[std::size_t(i)] >> 4], kHex[row[std::size_t(i)] & 15]};
      qpsbuf(pair, 2);
    }
  }
  qpsbuf(" ");
  qpsbuf("grestore ");
}

}  // namespace

void zori_raster() {
  const int irgb = zg.idev == 605 ? 1 : zg.imgrgb;
  if (irgb == 1) zg.ndepth = 24;
  int ierr = 0;
  qqvini(zg.nxpag, zg.nypag, zg.nwimg, zg.nhimg, zg.iwsize, zg.irevscr, irgb, ierr);
  if (ierr != 0) {
    warnin(53);
    qqstop("", "");
  }
}

void imgini() {
  if (jqqlev(1, 3, "IMGINI")) return;
  if (zg.iimgop == 1) {
    warnin(54);
    return;
  }
  const int d = zg.idev;
  if ((d >= 101 && d <= 500) || d >= 701) {
    warnin(40);
    return;
  }
  qqstrk();
  int ierr = 0;
  if (d < 101) {
    ierr = qqwimg(0);
  } else if (d <= 600) {
    if (zg.iimgsz) swap_image_size();
    qqvini(zg.nxpag, zg.nypag, zg.nwimg, zg.nhimg, 1, zg.irevscr, 1, ierr);
    if (ierr != 0 && zg.iimgsz) swap_image_size();
  }
  if (ierr != 0) {
    warnin(53);
    return;
  }
  zg.iimgop = 1;
}

void imgfin() {
  if (jqqlev(1, 3, "IMGFIN")) return;
  if (zg.iimgop != 1) {
    warnin(55);
    return;
  }
  const int d = zg.idev;
  if (d < 101) {
    qqwimg(1);
  } else if (d <= 600) {
    // PDF takes the picture through its own driver, which does not embed images yet.
    if (d != 511) embed_postscript();
    qqvfin();
    if (zg.iimgsz) swap_image_size();
  }
  zg.iimgop = 0;
}

void imgbox(int nx, int ny, int nw, int nh) {
  if (jqqlev(1, 3, "IMGBOX")) return;
  if (!rectangle_ok(nx, ny, nw, nh)) return;
  zg.iimgbx = 1;
  zg.nximgb = nx;
  zg.nyimgb = jqqyvl(ny);
  zg.nwimgb = nw;
  zg.nhimgb = nh;
}

void imgclp(int nx, int ny, int nw, int nh) {
  if (jqqlev(1, 3, "IMGCLP")) return;
  if (!rectangle_ok(nx, ny, nw, nh)) return;
  if (long(nx) + nw > zg.nwimg || long(ny) + nh > zg.nhimg) {
    warnin(2);
    return;
  }
  zg.iimgcl = 1;
  zg.nxicl = nx;
  zg.nyicl = ny;
  zg.nwicl = nw;
  zg.nhicl = nh;
}

void imgsiz(int nw, int nh) {
  if (jqqlev(1, 3, "IMGSIZ")) return;
  if (nw < 1 || nh < 1) {
    warni1(2, std::min(nw, nh));
    return;
  }
  zg.iimgsz = 1;
  zg.nwisz = nw;
  zg.nhisz = nh;
}

void imgfmt(std::string_view copt) {
  if (jqqlev(0, 0, "IMGFMT")) return;
  const int k = jqqind("INDE+RGB +BILE", 3, copt);
  if (k > 0) zg.imgrgb = k - 1;
}

void imgmod(std::string_view copt) {
  if (jqqlev(1, 3, "IMGMOD")) return;
  const int k = jqqind("INDE+RGB ", 2, copt);
  if (k > 0) zg.imgmode = k - 1;
}

void window(int nx, int ny, int nw, int nh) {
  if (jqqlev(0, 3, "WINDOW")) return;
  if (!rectangle_ok(nx, ny, nw, nh)) return;
  zg.iwsize = 1;
  zg.nxwin0 = nx;
  zg.nywin0 = ny;
  zg.nwwin = nw;
  zg.nhwin = nh;
}

void winsiz(int nw, int nh) {
  if (jqqlev(0, 3, "WINSIZ")) return;
  if (nw < 1 || nh < 1) {
    warni1(2, std::min(nw, nh));
    return;
  }
  zg.iwsize = 2;
  zg.nwwin = nw;
  zg.nhwin = nh;
}

}  // namespace zb
