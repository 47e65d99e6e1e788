// Defaults of this folder's plot parameters (resall) and the reset keywords it answers.
#include "frame/frame.h"

namespace zb {

void resall_text() {
  zg.nhchar = jqquni(36);
  zg.nangle = 0;
  zg.xcos = 1.0f;
  zg.xsin = 0.0f;
}

void reset_text(std::string_view key) {
  if (key == "HEIG") zg.nhchar = jqquni(36);
  if (key == "ANGL") {
    zg.nangle = 0;
    zg.xcos = 1.0f;
    zg.xsin = 0.0f;
  }
}

}  // namespace zb
