// Record fields of colour: the colour table of 256 entries 0x00RRGGBB, its foreground and
// background indices, the current colour, the colour range and the curve cycles.
#pragma once
#include <array>

#include "util/fstr.h"

namespace zb {

struct ColourState {
  std::array<int, 256> ivlt{};     // the table, entries 0x00RRGGBB
  int ivltnr = 0;                  // 0 SMAL, 1 RAIN, 2 SPEC, 3 GREY, 4 RRAI, 5 RSPE, 6 RGRE, 7 VGA, 8 TEMP
  int ipenclr = 0;                 // current colour, index or 0x01BBGGRR
  int ifgclr = 255, ibgclr = 0;    // indices of the keywords FORE and BACK
  int nclrlo = 0, nclrhi = 255;    // first and last index of the table
  int nclr1 = 1, nclr2 = 254;      // colour range of colran
  std::array<int, 9> icolnm{};     // explicit colours of the keywords of color
  std::array<int, 30> iclrcy{};    // colours of the curve cycle
  std::array<int, 30> ilincy{};    // line styles of the curve cycle
  std::array<int, 30> ipatcy{};    // patterns of the curve cycle
  int ivltset = 0;                 // 1 if myvlt filled the table at level 0
  int iclrmd = 0;                  // clrmod: 0 NONE, 1 FULL, 2 CONT
  int ndepth = 8;                  // colour depth of the output in bits

  bool operator==(const ColourState&) const = default;
};

}  // namespace zb
