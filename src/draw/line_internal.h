// Shared pieces of the line pipeline files: the pen of the clipped output, the route of a
// visible segment, and the direction of a segment as the style stage measures it.
#pragma once
#include "draw/device.h"
#include "draw/line.h"
#include "frame/frame.h"

namespace zb {

// A finished segment whose ends lie in the clipping region: to the hidden-line test, the
// shield regions or the dispatcher, which then has its pen at (x1, y1).
void visible_segment(float x1, float y1, float x2, float y2);

// Pen of the clipped output: each segment wholly inside the clipping region goes straight
// on, any other through clip2d.
struct ClipPen {
  float x = 0.0f, y = 0.0f;
  bool in = false;

  void move(float px, float py) {
    x = px;
    y = py;
    in = jqqclp(px, py) == 0;
    if (in && zg.ihidln == 0) xjdraw(px, py, 3);
  }
  void draw(float px, float py) {
    const bool pin = jqqclp(px, py) == 0;
    if (in && pin) visible_segment(x, y, px, py);
    else clip2d(x, y, px, py);
    x = px;
    y = py;
    in = pin;
  }
};

// Angle of a segment with y upward, as sine and cosine, and its length. Zero length has
// the angle 0.
void seg_direction(float x1, float y1, float x2, float y2, float& s, float& c, float& len);

// Software thick lines of a finished stroke of n points (ilinw above 1).
void thick_stroke(const float* xs, const float* ys, int n);

}  // namespace zb
