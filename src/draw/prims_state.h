// Record fields of the geometric primitives: chord length of curved outlines, symbol
// rotation, and the user symbol (its points live in prims_symbols.cpp). The symbol size
// hsym belongs to the curves (charts/state.h).
#pragma once
#include "util/fstr.h"

namespace zb {

struct PrimsState {
  float xcirsp = 10.0f;            // circsp: plot units per chord of a curved outline
  float xsymang = 0.0f;            // symrot: symbol rotation, degrees counter-clockwise
  int nmysym = 0;                  // points of the user symbol, 0 if none
  int imysym = 0;                  // symbol number the user symbol takes
  int imysfl = 0;                  // 1 if the user symbol is filled
  int nsymmx = 23;                 // highest built-in symbol number

  bool operator==(const PrimsState&) const = default;
};

}  // namespace zb
