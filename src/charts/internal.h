// Shared inside the charts folder by the curve, spline and attribute code.
#pragma once
#include <array>

#include "charts/spline_core.h"
#include "frame/frame.h"

namespace zb {

// Truncation toward zero that cannot overflow; not-a-number gives 0.
inline int chart_trunc(float v) {
  if (v != v) return 0;
  if (v > 2.0e9f) return 2000000000;
  if (v < -2.0e9f) return -2000000000;
  return int(v);
}

// Runs a public setter for a routine's own work and keeps the routine's name for the
// warnings that follow.
template <class F>
void keeping_name(F&& f) {
  const FStr<8> name = zg.cproc;
  f();
  zg.cproc = name;
}

// A spline fitted to a curve's points: on x (SPLI) or on the chord length (PSPL).
struct SplineFit {
  int n = 0, k = 0;
  bool param = false;
  bool logx = false;                 // SPLI: equal steps in log10 x
  float u0 = 0.0f, u1 = 0.0f;        // parameter range
  std::array<float, kSplineKnots> t{};
  std::array<float, kSplineCoef> bx{}, by{};
};

// Checks the points and fits the spline; false after warning 31, 32 or 38.
bool fit_spline(const float* x, const float* y, int n, bool param, SplineFit& fit);
// Point j of nsppts equal steps; j = 0 and j = nsppts are the first and last data points.
void spline_point(const SplineFit& fit, const float* x, const float* y, int j, float& xo, float& yo);

}  // namespace zb
