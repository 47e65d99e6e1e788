// Defaults of this folder's plot parameters (resall) and the reset keywords it answers.
#include "frame/frame.h"

namespace zb {

void resall_raster() {
  zg.iimgop = 0;
  zg.imgmode = 0;
  zg.iimgcl = 0;
  zg.iimgbx = 0;
  zg.iimgsz = 0;
}

void reset_raster(std::string_view key) {
  if (key == "IMGC") zg.iimgcl = 0;
  else if (key == "WIND" || key == "WINS") zg.iwsize = 0;
}

}  // namespace zb
