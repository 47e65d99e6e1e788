// The line pipeline: style stage (strtqq, connqq), stroke buffer (qqmove, qqdraw, qqstrk)
// and clipping (clip2d), ending in xjdraw.
#pragma once

namespace zb {

void strtqq(float x, float y);      // starts a line; plot coordinates without origin
void connqq(float x, float y);      // continues it in the current style
void qqmove(float x, float y);      // new stroke; origin already added
void qqdraw(float x, float y);      // next point of the stroke
void qqstrk();                      // draws and empties the stroke buffer
void clip2d(float x1, float y1, float x2, float y2);
// Cuts a box (origin added) to the clipping window; false if nothing remains.
bool clip_box(float& x1, float& y1, float& x2, float& y2);

}  // namespace zb
