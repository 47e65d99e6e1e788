// Record fields of the line pipeline: stroke buffer, dash pattern, widths, clipping.
#pragma once
#include "util/fstr.h"

namespace zb {

struct LineState {
  int nstrk = 0;
  std::array<float, 100> xstrk{}, ystrk{};
  float xlast = 0.0f, ylast = 0.0f;

  bool operator==(const LineState&) const = default;
};

}  // namespace zb
