// Helpers shared by the primitive files: rounding, the page-origin flip on wide integers,
// and the drawing workers that take plot coordinates with y already mapped, so that the
// rl* twins reuse them without flipping y a second time.
#pragma once
#include <cmath>
#include <cstdint>

#include "frame/frame.h"

namespace zb {

// Nearest integer, halves away from zero, saturated to the int range.
inline int prims_nint(float v) {
  const double r = std::round(double(v));
  if (!(r > -2147483647.0)) return -2147483647;
  if (r > 2147483647.0) return 2147483647;
  return int(r);
}

// jqqyvl on a wide integer, so that y + h near the int limits cannot overflow.
inline float prims_yvl(std::int64_t iy) {
  return float((zg.ipgorg == 0 || zg.iyflip != 0) ? iy : std::int64_t(zg.nypag) - iy);
}

// The same as an int, saturated at the int limits.
inline int prims_iyvl(int iy) {
  const float v = prims_yvl(iy);
  return v >= 2147483647.0f ? 2147483647 : (v <= -2147483647.0f ? -2147483647 : int(v));
}

inline bool prims_finite(float a) { return std::isfinite(a); }
template <class... T>
bool prims_finite(float a, T... rest) { return std::isfinite(a) && prims_finite(rest...); }

// Wind speeds beyond this are refused: each 50 is a pennant.
inline constexpr float kMaxWind = 100000.0f;

// Rectangle with the corners (x1, y1), (x2, y1), (x2, y2), (x1, y2): outline by arealx
// if iarln is set, fill by dareaf if a pattern is set (the look of areaf).
void draw_rect(float x1, float y1, float x2, float y2);
void draw_rndrec(int nx, int ny, int nw, int nh, int iopt);
void draw_sector(int nx, int ny, int nr1, int nr2, float alpha, float beta, int ncol);
void draw_symbol(int nsym, int nx, int ny);
void draw_vector(int nx1, int ny1, int nx2, int ny2, int ivec);
void draw_windbr(float xv, int nx, int ny, int nw, float a);
// Box centred on a plot position, in the colour ncol; the colour is set back after.
void draw_point(float x, float y, int nb, int nh, int ncol);

}  // namespace zb
