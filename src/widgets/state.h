// Record fields owned by this folder.
#pragma once
#include "util/fstr.h"

namespace zb {

struct WidgetsState {
  bool operator==(const WidgetsState&) const = default;
};

}  // namespace zb
