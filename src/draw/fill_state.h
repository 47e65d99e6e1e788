// Record fields of area fill and hatching.
#pragma once
#include "util/fstr.h"

namespace zb {

struct FillState {
  bool operator==(const FillState&) const = default;
};

}  // namespace zb
