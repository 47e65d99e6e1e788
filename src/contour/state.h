// Record fields owned by this folder.
#pragma once
#include "util/fstr.h"

namespace zb {

struct ContourState {
  bool operator==(const ContourState&) const = default;
};

}  // namespace zb
