// Geometry that computes and draws nothing, at every level: points of a Bezier curve and
// the circle through three points.
#include <array>
#include <cmath>

#include "draw/prims.h"
#include "frame/frame.h"

namespace zb {

void bezier(const float* xray, const float* yray, int n, float* xpray, float* ypray, int np) {
  if (jqqlev(0, 3, "BEZIER")) return;
  if (jqqval(n, 2, 21) || jqqval(np, 2, 32000)) return;
  if (xray == nullptr || yray == nullptr || xpray == nullptr || ypray == nullptr) return;
  xpray[0] = xray[0];
  ypray[0] = yray[0];
  // De Casteljau: the control polygon shrinks by linear interpolation to one point.
  std::array<float, 21> x{}, y{};
  for (int i = 1; i < np - 1; ++i) {
    const float t = float(i) / float(np - 1);
    for (int k = 0; k < n; ++k) {
      x[std::size_t(k)] = xray[k];
      y[std::size_t(k)] = yray[k];
    }
    for (int m = n - 1; m > 0; --m)
      for (std::size_t k = 0; k < std::size_t(m); ++k) {
        x[k] = (1.0f - t) * x[k] + t * x[k + 1];
        y[k] = (1.0f - t) * y[k] + t * y[k + 1];
      }
    xpray[i] = x[0];
    ypray[i] = y[0];
  }
  xpray[np - 1] = xray[n - 1];
  ypray[np - 1] = yray[n - 1];
}

void circ3p(float x1, float y1, float x2, float y2, float x3, float y3, float& xm, float& ym,
            float& r) {
  if (jqqlev(0, 3, "CIRC3P")) return;
  const float ax = x2 - x1, ay = y2 - y1, bx = x3 - x1, by = y3 - y1;
  const float c = ax * by - ay * bx;
  // NaN fails the test as well: no circle is computed from it.
  if (!(std::fabs(c) >= zg.eps)) {
    qqserr("Points are collinear");
    return warnin(101);
  }
  const float k = 0.5f / c;
  const float aa = ax * ax + ay * ay, bb = bx * bx + by * by;
  const float u = (aa * by - bb * ay) * k;
  const float v = (bb * ax - aa * bx) * k;
  xm = u + x1;
  ym = v + y1;
  r = std::sqrt(u * u + v * v);
}

}  // namespace zb
