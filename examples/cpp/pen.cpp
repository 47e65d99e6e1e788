// Pen moves on a PostScript page, the C++ twin of examples/fortran/pen.f90: the two
// programs write the same file byte for byte (but the date line).
#include <cmath>

#include "zorbel.h"

namespace {

void pen(float x, float y, int code) { xjdraw_(&x, &y, &code); }

}  // namespace

int main() {
  metafl_("POST", 4);
  zorini_();
  pen(10.0f, 10.0f, 3);
  pen(2959.0f, 10.0f, 2);
  pen(2959.0f, 2089.0f, 2);
  pen(10.0f, 2089.0f, 2);
  pen(10.0f, 10.0f, 2);
  // Five-pointed star around (800, 1050)
  for (int i = 0; i <= 5; ++i) {
    const float a = float((i * 2) % 5) * 72.0f * 0.0174533f - 1.5708f;
    pen(800.0f + 500.0f * std::cos(a), 1050.0f + 500.0f * std::sin(a), i == 0 ? 3 : 2);
  }
  // Spiral of 120 points around (2100, 1050): more than two path batches
  for (int i = 0; i < 120; ++i) {
    const float a = float(i) * 0.2f;
    const float r = 20.0f + 4.0f * float(i);
    pen(2100.0f + r * std::cos(a), 1050.0f + r * std::sin(a), i == 0 ? 3 : 2);
  }
  zorfin_();
}
