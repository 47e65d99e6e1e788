// Record fields of the geometric primitives: symbols, circles, arrows.
#pragma once
#include "util/fstr.h"

namespace zb {

struct PrimsState {
  bool operator==(const PrimsState&) const = default;
};

}  // namespace zb
