// Splines through the points of a curve: the checks and the fit of bspllx, the points at
// equal steps of x (or of log10 x on a logarithmic axis, or of the chord length), and the
// public spline routine that returns them.
#include <cmath>
#include <cstdint>

#include "charts/charts.h"
#include "charts/internal.h"

namespace zb {

bool fit_spline(const float* x, const float* y, int n, bool param, SplineFit& fit) {
  const int k = zg.nspord + 1;
  if ((2 * std::int64_t(k) - 1) * std::int64_t(n) > kSplineBand || k > n || n < 2) {
    warni1(31, n);
    return false;
  }
  fit.n = n;
  fit.k = k;
  fit.param = param;
  std::array<float, kSplineCoef> tau{};
  if (param) {
    // Accumulated chord length over the raw data.
    tau[0] = 0.0f;
    for (int i = 1; i < n; ++i) tau[std::size_t(i)] = tau[std::size_t(i - 1)] + std::hypot(x[i] - x[i - 1], y[i] - y[i - 1]);
  } else {
    for (int i = 1; i < n; ++i) {
      if (!(x[i] > x[i - 1])) {
        warnin(32);
        return false;
      }
    }
    for (int i = 0; i < n; ++i) tau[std::size_t(i)] = x[i];
  }
  fit.u0 = tau[0];
  fit.u1 = tau[std::size_t(n - 1)];
  fit.logx = !param && zg.ilogx != 0 && x[0] > 0.0f;
  spnak(tau.data(), n, k, fit.t.data());
  std::array<float, kSplineBand> q{};
  bool ok = true;
  if (param) ok = splint(tau.data(), x, fit.t.data(), n, k, q.data(), fit.bx.data()) == 1;
  if (ok) ok = splint(tau.data(), y, fit.t.data(), n, k, q.data(), fit.by.data()) == 1;
  if (!ok) {
    warnin(38);
    return false;
  }
  return true;
}

void spline_point(const SplineFit& fit, const float* x, const float* y, int j, float& xo, float& yo) {
  const int m = zg.nsppts;
  if (j <= 0 || j >= m) {
    const int i = j <= 0 ? 0 : fit.n - 1;
    xo = x[i];
    yo = y[i];
    return;
  }
  const float f = float(j) / float(m);
  float u;
  if (fit.logx) {
    const float l0 = std::log10(fit.u0), l1 = std::log10(fit.u1);
    u = std::pow(10.0f, l0 + f * (l1 - l0));
  } else {
    u = fit.u0 + f * (fit.u1 - fit.u0);
  }
  const float* t = fit.t.data();
  yo = bvalue(t, fit.by.data(), fit.n, fit.k, u);
  xo = fit.param ? bvalue(t, fit.bx.data(), fit.n, fit.k, u) : u;
}

void spline(const float* xray, const float* yray, int n, float* xout, float* yout, int& nout) {
  if (jqqlev(1, 3, "SPLINE")) return;
  nout = 0;
  if (xray == nullptr || yray == nullptr || xout == nullptr || yout == nullptr) {
    warnin(2);
    return;
  }
  SplineFit fit;
  if (!fit_spline(xray, yray, n, zg.ipolcv == 4, fit)) return;
  for (int j = 0; j <= zg.nsppts; ++j) spline_point(fit, xray, yray, j, xout[j], yout[j]);
  nout = zg.nsppts + 1;
}

}  // namespace zb
