// Defaults of this folder's plot parameters (resall) and the reset keywords it answers.
#include "frame/frame.h"

namespace zb {

void resall_raster() {}

void reset_raster(std::string_view key) { (void)key; }

}  // namespace zb
