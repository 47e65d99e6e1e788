// Record fields owned by this folder.
#pragma once
#include "util/fstr.h"

namespace zb {

struct ChartsState {
  bool operator==(const ChartsState&) const = default;
};

}  // namespace zb
