// Record fields of the raster outputs and the screen window geometry.
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
  int imgfmt = 0;                // 0 index, 1 RGB
  int ipngmd = 0, igifmd = 0;
  int itifrs = 100, itifun = 2;  // tifmod resolution and unit
  int iwinmd = 0, iwinky = 0, iwinop = 10;   // winmod, winkey, winopt delay

  bool operator==(const RasterState&) const = default;
};

}  // namespace zb
