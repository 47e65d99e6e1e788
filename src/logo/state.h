// Record fields owned by this folder.
#pragma once
#include "util/fstr.h"

namespace zb {

struct LogoState {
  bool operator==(const LogoState&) const = default;
};

}  // namespace zb
