// Defaults of the primitives' plot parameters (resall) and the reset keywords they answer:
// CIRC for circsp, SYMR for symrot.
#include "frame/frame.h"

namespace zb {

void resall_prims() {
  zg.xcirsp = 10.0f / zg.unitfac;
  zg.xsymang = 0.0f;
  zg.nsymmx = 23;
}

void reset_prims(std::string_view key) {
  if (key == "CIRC") zg.xcirsp = 10.0f / zg.unitfac;
  else if (key == "SYMR") zg.xsymang = 0.0f;
}

}  // namespace zb
