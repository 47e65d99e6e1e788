// Stand-ins for the routines that other parts of the library put into the line pipeline:
// hidden lines, shield regions, the plane of a 3-D box, the base transformation, the
// screen's clip window, the SVG pen and the circle of azimuthal maps. Their owners define
// the real ones, which take precedence over these weak definitions at link time.
#include "draw/device.h"
#include "draw/line.h"

namespace zb {

[[gnu::weak]] void dhline(float x, float y, int mode) {
  if (mode == 2 || mode == 3) xjdraw(x, y, mode);
}

[[gnu::weak]] void qqbl01(float x1, float y1, float x2, float y2) {
  (void)x1;
  (void)y1;
  xjdraw(x2, y2, 2);
}

[[gnu::weak]] void proj3d(float& x, float& y) {
  (void)x;
  (void)y;
}

[[gnu::weak]] void btrf01(float& x, float& y) {
  (void)x;
  (void)y;
}

[[gnu::weak]] void qqwext(int code, int value) {
  (void)code;
  (void)value;
}

[[gnu::weak]] bool azimuthal_circle_clip() { return false; }

}  // namespace zb
