// Record fields of colour: current colour, depth and the colour table.
#pragma once
#include "util/fstr.h"

namespace zb {

struct ColourState {
  int ipenclr = 0;                 // current colour, index or 0x01BBGGRR
  int ndepth = 8;                  // colour depth in bits

  bool operator==(const ColourState&) const = default;
};

}  // namespace zb
