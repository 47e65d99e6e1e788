// Record fields owned by this folder.
#pragma once
#include "util/fstr.h"

namespace zb {

struct ShieldState {
  bool operator==(const ShieldState&) const = default;
};

}  // namespace zb
