// Defaults of this folder's plot parameters (resall) and the reset keywords it answers.
#include "frame/frame.h"

namespace zb {

void resall_prims() {}

void reset_prims(std::string_view key) { (void)key; }

}  // namespace zb
