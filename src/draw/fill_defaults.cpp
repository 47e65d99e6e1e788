// Defaults of area fill (resall) and the reset keywords of its routines.
#include "draw/fill.h"
#include "frame/frame.h"

namespace zb {

void resall_fill() {
  set_pattern_code(0, true);
  zg.ipatnr = 0;
  zg.npatgr = zg.npatsk = 0;
  zg.ipatang = zg.ipatsk = zg.npatdr = zg.npatgp = 0;
  zg.xpatsn = 0.0f;
  zg.xpatcs = 1.0f;
  zg.iarln = 1;
}

void reset_fill(std::string_view key) {
  if (key == "SHDP") {
    set_pattern_code(0, true);
    zg.ipatnr = 0;
  } else if (key == "NOAR") {
    zg.iarln = 1;
  }
}

}  // namespace zb
