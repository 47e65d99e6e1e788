// Record fields owned by this folder.
#pragma once
#include "util/fstr.h"

namespace zb {

struct Graph3dState {
  bool operator==(const Graph3dState&) const = default;
};

}  // namespace zb
