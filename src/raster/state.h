// Record fields of the raster outputs, the image calls and the screen window geometry.
// The pixels themselves live in the raster store (raster/store.cpp), not in the record.
#pragma once
#include "util/fstr.h"

namespace zb {

struct RasterState {
  int nwimg = 0, nhimg = 0;      // window or raster size in pixels
  int nxwin = 0, nywin = 0;      // window position
  int iwsize = 0;                // 0 free, 1 window, 2 winsiz
  int nwwin = 0, nhwin = 0;      // size given by window or winsiz
  int nxwin0 = 0, nywin0 = 0;    // position given by window
  int iwinap = 0;                // winapp: 0 CONS, 1 WIND
  int ix11md = 2;                // x11mod: AUTO
  int ixidkd = 0;                // setxid kind
  int iwinmd = 0, iwinky = 0, iwinop = 10;   // winmod, winkey, winopt delay

  // Level-0 format choices, kept from one session to the next.
  int imgrgb = 0;                // imgfmt: 0 INDE, 1 RGB, 2 BILE
  int ipngtr = 0, igiftr = 0;    // pngmod, gifmod: 1 transparent
  int ntifres = 100, itifun = 2; // tifmod: resolution, unit 2 inch or 3 centimetre

  // Image calls.
  int iimgop = 0;                // 1 between imgini and imgfin
  int imgmode = 0;               // imgmod: pixel values 0 INDE, 1 RGB
  int iimgsz = 0, nwisz = 0, nhisz = 0;                        // imgsiz
  int iimgbx = 0, nximgb = 0, nyimgb = 0, nwimgb = 0, nhimgb = 0;   // imgbox, plot units
  int iimgcl = 0, nxicl = 0, nyicl = 0, nwicl = 0, nhicl = 0;       // imgclp, pixels

  bool operator==(const RasterState&) const = default;
};

}  // namespace zb
