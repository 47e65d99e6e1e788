// Colour table lookup and pen colour selection.
#include "draw/colour.h"

#include "draw/device.h"
#include "draw/line.h"
#include "frame/frame.h"

namespace zb {

void setclr(int iclr) {
  qqstrk();
  qqsclr(iclr);
}

void qqgrgb(int iclr, int& r, int& g, int& b) {
  if ((iclr >> 24) == 1) {
    r = iclr & 255;
    g = (iclr >> 8) & 255;
    b = (iclr >> 16) & 255;
    return;
  }
  const int i = ((iclr % 256) + 256) % 256;
  // Until the tables are loaded: 0 black, 255 white, grey in between.
  r = g = b = i == 0 ? 0 : (i == 255 ? 255 : i);
}

int qqgidx(int r, int g, int b) { return (r + g + b) / 3; }

}  // namespace zb
