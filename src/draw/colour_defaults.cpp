// Defaults of colour (resall) and the reset keywords of the colour routines: the table of
// the output, the pen colour, the colour range and the three cycles of curve attributes.
#include "draw/colour.h"
#include "frame/frame.h"

namespace zb {

// Curve colours: the keyword colours 1 to 8 in turn.
void default_clrcyc() {
  for (int k = 1; k <= 30; ++k) {
    const int m = k % 8 == 0 ? 8 : k % 8;
    zg.iclrcy[std::size_t(k - 1)] = zg.icolnm[std::size_t(m - 1)];
  }
}

namespace {

// Line styles 0 to 7 in turn.
void default_lincyc() {
  for (int k = 1; k <= 30; ++k) zg.ilincy[std::size_t(k - 1)] = (k - 1) % 8;
}

// Patterns 0 to 17 in turn.
void default_patcyc() {
  for (int k = 1; k <= 30; ++k) {
    const int m = k % 18;
    zg.ipatcy[std::size_t(k - 1)] = m == 0 ? 17 : m - 1;
  }
}

}  // namespace

void resall_colour() {
  zg.ipenclr = 0;
  default_lincyc();
  default_patcyc();
  if (zg.ilevel > 0) setvlt(zg.idev == 501 ? "RGREY" : "RAINBO");
  else default_clrcyc();
}

void reset_colour(std::string_view key) {
  if (key == "CLRC") {
    default_clrcyc();
  } else if (key == "LINC") {
    default_lincyc();
  } else if (key == "PATC") {
    default_patcyc();
  } else if (key == "COLR") {
    zg.nclr1 = zg.nclrlo + 1;
    zg.nclr2 = zg.nclrhi - 1;
  } else if (key == "COLO" && zg.ilevel > 0) {
    setclr(zg.ifgclr);
  }
}

}  // namespace zb
