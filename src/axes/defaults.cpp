// Defaults of this folder's plot parameters (resall) and the reset keywords it answers.
#include "frame/frame.h"

namespace zb {

void resall_axes() {
  zg.nxa = zg.nxa0;
  zg.nya = zg.nya0;
  zg.icrosf = 0;
  zg.nxl = zg.nxl0;
  zg.nyl = zg.nyl0;
  zg.nzl = zg.nzl0;
}

void reset_axes(std::string_view key) {
  if (key == "AXSP") {
    zg.nxa = zg.nxa0;
    zg.nya = zg.nya0;
    zg.icrosf = 0;
  }
  if (key == "AXSL" || key == "AX3L") {
    zg.nxl = zg.nxl0;
    zg.nyl = zg.nyl0;
  }
  if (key == "AX3L") zg.nzl = zg.nzl0;
}

}  // namespace zb
