// Record fields of the 2-D axis system: position, lengths and scaling.
#pragma once
#include "util/fstr.h"

namespace zb {

struct AxesState {
  int nxa = 0, nya = 0, nxa0 = 0, nya0 = 0;   // lower left corner and its default
  int nxl = 0, nyl = 0, nzl = 0;              // axis lengths
  int nxl0 = 0, nyl0 = 0, nzl0 = 0;           // their defaults
  int iaxsorg = 0;                            // axsorg flag

  bool operator==(const AxesState&) const = default;
};

}  // namespace zb
