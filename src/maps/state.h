// Record fields owned by this folder.
#pragma once
#include "util/fstr.h"

namespace zb {

struct MapsState {
  bool operator==(const MapsState&) const = default;
};

}  // namespace zb
