// Record fields of text: character height and angle, and the stroke alphabets.
#pragma once
#include "util/fstr.h"

namespace zb {

struct TextState {
  int nhchar = 36;                 // character height in plot units
  int nangle = 0;                  // text angle in degrees
  float xcos = 1.0f, xsin = 0.0f;  // its cosine and sine

  bool operator==(const TextState&) const = default;
};

}  // namespace zb
