// Record fields of the device layer: scale, output record, Tektronix address, paper.
#pragma once
#include "util/fstr.h"

namespace zb {

struct DeviceState {
  float devscl = 0.0f;             // device units per plot unit
  int imetsel = 0;                 // 1 once metafl chose an output
  FStr<80> cobuf;                  // output record under construction
  int nobuf = 0, lobuf = 80;
  int ixlast = 0, iylast = 0;      // last point of the raster and Java outputs
  int nvect = 0;                   // calls of xjdraw since zorini
  int nrec = 0;                    // CGM record number
  int ipencd = 0;                  // last pen code of the metafile
  std::array<char, 6> ctek{};      // Tektronix mode byte and address bytes
  int xpaper = 0, ypaper = 0;      // hwpage printable area in 0.1 mm
  int ihworg = 0, ihwpag = 0;
  int nhworx = 0, nhwory = 0;      // hworig origin in 0.1 mm
  int npagno = 1;                  // page counter of newpag (never reset)

  bool operator==(const DeviceState&) const = default;
};

}  // namespace zb
