// Splines: the knots of spnak, interpolation through known points compared with an
// independent not-a-knot construction in double precision, reproduction of polynomials,
// the public spline routine, and warnings 31, 32 and 38.
#include <array>
#include <cmath>
#include <vector>

#include "charts/internal.h"
#include "charts_support.h"

using namespace zb;

namespace {

// Cubic spline with not-a-knot ends by its second derivatives (moments) M(i): continuity of
// the second derivative inside, a continuous third derivative at x(2) and x(n-1). Dense
// Gaussian elimination with partial pivoting.
struct Moments {
  std::vector<double> x, y, m;
  double operator()(double t) const {
    std::size_t i = 0;
    while (i + 2 < x.size() && t > x[i + 1]) ++i;
    const double h = x[i + 1] - x[i], a = x[i + 1] - t, b = t - x[i];
    return m[i] * a * a * a / (6 * h) + m[i + 1] * b * b * b / (6 * h) + (y[i] / h - m[i] * h / 6) * a +
           (y[i + 1] / h - m[i + 1] * h / 6) * b;
  }
};

Moments not_a_knot(const std::vector<double>& x, const std::vector<double>& y) {
  const std::size_t n = x.size();
  std::vector<std::vector<double>> a(n, std::vector<double>(n + 1, 0.0));
  auto h = [&](std::size_t i) { return x[i + 1] - x[i]; };
  a[0][0] = h(1);
  a[0][1] = -(h(0) + h(1));
  a[0][2] = h(0);
  for (std::size_t i = 1; i + 1 < n; ++i) {
    a[i][i - 1] = h(i - 1);
    a[i][i] = 2 * (h(i - 1) + h(i));
    a[i][i + 1] = h(i);
    a[i][n] = 6 * ((y[i + 1] - y[i]) / h(i) - (y[i] - y[i - 1]) / h(i - 1));
  }
  a[n - 1][n - 3] = h(n - 2);
  a[n - 1][n - 2] = -(h(n - 3) + h(n - 2));
  a[n - 1][n - 1] = h(n - 3);
  for (std::size_t c = 0; c < n; ++c) {
    std::size_t p = c;
    for (std::size_t r = c + 1; r < n; ++r)
      if (std::fabs(a[r][c]) > std::fabs(a[p][c])) p = r;
    std::swap(a[c], a[p]);
    for (std::size_t r = 0; r < n; ++r) {
      if (r == c) continue;
      const double f = a[r][c] / a[c][c];
      for (std::size_t k = c; k <= n; ++k) a[r][k] -= f * a[c][k];
    }
  }
  Moments s{x, y, std::vector<double>(n)};
  for (std::size_t i = 0; i < n; ++i) s.m[i] = a[i][n] / a[i][i];
  return s;
}

// Fit of the spline core alone: knots, coefficients and values.
struct Fit {
  int n, k;
  std::array<float, kSplineKnots> t{};
  std::array<float, kSplineCoef> b{};
  int flag = 0;
  Fit(const std::vector<float>& x, const std::vector<float>& y, int order) : n(int(x.size())), k(order) {
    std::array<float, kSplineBand> q{};
    spnak(x.data(), n, k, t.data());
    flag = splint(x.data(), y.data(), t.data(), n, k, q.data(), b.data());
  }
  float operator()(float u) const { return bvalue(t.data(), b.data(), n, k, u); }
};

class Splines : public zbt::CurveTest {};

TEST_F(Splines, NotAKnotKnots) {
  const std::vector<float> x = {0, 1, 3, 4, 7, 9};
  std::array<float, 12> t{};
  spnak(x.data(), 6, 4, t.data());   // even order: interior knots at x(3), x(4)
  EXPECT_EQ(std::vector<float>(t.begin(), t.begin() + 10),
            (std::vector<float>{0, 0, 0, 0, 3, 4, 9 + 1e-7f, 9 + 1e-7f, 9 + 1e-7f, 9 + 1e-7f}));
  spnak(x.data(), 6, 3, t.data());   // odd order: half-way, x(2..3), x(3..4), x(4..5)
  EXPECT_EQ(std::vector<float>(t.begin(), t.begin() + 9),
            (std::vector<float>{0, 0, 0, 2, 3.5f, 5.5f, 9 + 1e-7f, 9 + 1e-7f, 9 + 1e-7f}));
}

TEST_F(Splines, CubicThroughKnownPointsMatchesAnIndependentConstruction) {
  const std::vector<double> xd = {0.0, 0.7, 1.5, 2.1, 3.4, 4.0, 5.2, 6.3, 7.0};
  std::vector<double> yd;
  for (double v : xd) yd.push_back(std::sin(v) + 0.3 * v);
  const Moments ref = not_a_knot(xd, yd);
  const std::vector<float> x(xd.begin(), xd.end()), y(yd.begin(), yd.end());
  const Fit fit(x, y, 4);
  ASSERT_EQ(fit.flag, 1);
  for (std::size_t i = 0; i + 1 < x.size(); ++i) EXPECT_NEAR(fit(x[i]), y[i], 2e-5f) << i;
  for (int j = 0; j < 140; ++j) {
    const double u = 7.0 * j / 140.0;
    EXPECT_NEAR(fit(float(u)), ref(u), 5e-5) << u;
  }
}

TEST_F(Splines, ReproducePolynomialsOfTheirDegree) {
  const std::vector<float> x = {-2.0f, -1.3f, 0.1f, 0.8f, 2.2f, 3.0f, 4.5f, 5.1f};
  struct Case {
    int order;
    double c0, c1, c2, c3;
  };
  for (const Case c : {Case{3, 1.0, -0.5, 0.25, 0.0}, Case{4, 0.5, 1.0, -0.3, 0.05}, Case{6, -1.0, 0.2, 0.1, -0.02}}) {
    auto p = [&](double u) { return c.c0 + u * (c.c1 + u * (c.c2 + u * c.c3)); };
    std::vector<float> y;
    for (float v : x) y.push_back(float(p(v)));
    const Fit fit(x, y, c.order);
    ASSERT_EQ(fit.flag, 1) << c.order;
    for (int j = 0; j <= 70; ++j) {
      const double u = -2.0 + 7.0 * j / 70.0;
      if (u >= 5.1) break;
      EXPECT_NEAR(fit(float(u)), p(u), 2e-4) << "order " << c.order << " at " << u;
    }
  }
}

TEST_F(Splines, PublicRoutineGivesNspptsPlusOnePoints) {
  open();
  splmod(3, 8);
  const float x[] = {1, 2, 4, 5, 7}, y[] = {2, 1, 3, 2, 4};
  std::array<float, 9> xo{}, yo{};
  int nout = -1;
  spline(x, y, 5, xo.data(), yo.data(), nout);   // level 1 is enough
  ASSERT_EQ(nout, 9);
  EXPECT_EQ(xo.front(), 1.0f);
  EXPECT_EQ(yo.front(), 2.0f);
  EXPECT_EQ(xo.back(), 7.0f);
  EXPECT_EQ(yo.back(), 4.0f);
  const Fit fit({1, 2, 4, 5, 7}, {2, 1, 3, 2, 4}, 4);
  for (int j = 1; j < 8; ++j) {
    EXPECT_FLOAT_EQ(xo[std::size_t(j)], 1.0f + 6.0f * float(j) / 8.0f);
    EXPECT_FLOAT_EQ(yo[std::size_t(j)], fit(xo[std::size_t(j)]));
  }
  // Parametric: a closed square of points comes back to its start.
  polcrv("PSPL");
  const float sx[] = {0, 1, 1, 0, 0}, sy[] = {0, 0, 1, 1, 0};
  spline(sx, sy, 5, xo.data(), yo.data(), nout);
  ASSERT_EQ(nout, 9);
  EXPECT_EQ(xo[8], 0.0f);
  EXPECT_EQ(yo[8], 0.0f);
  EXPECT_NEAR(xo[4], 1.0f, 0.05f);   // half the chord length: the opposite corner
  EXPECT_NEAR(yo[4], 1.0f, 0.05f);
  take_lines();
  zorfin();
}

TEST_F(Splines, WarningsAndNothingDrawn) {
  struct Case {
    const char* mode;
    int ngrad;
    std::vector<float> x, y;
    std::string warning;
  };
  std::vector<float> many(143), manyy(143);
  for (int i = 0; i < 143; ++i) many[std::size_t(i)] = float(i) / 15.0f;
  const Case cases[] = {
      {"SPLI", 3, {1, 2, 3}, {1, 2, 1},
       " <<<< Warning  31: Incorrect number of points for spline interpolation in CURVE!   (   3)"},
      // 7 n words of band for the order 4: 143 points need 1001.
      {"SPLI", 3, many, manyy,
       " <<<< Warning  31: Incorrect number of points for spline interpolation in CURVE!   ( 143)"},
      {"PSPL", 10, {1, 2, 3, 4, 5, 6, 7, 8, 9, 9.5f}, {1, 2, 3, 4, 5, 6, 7, 8, 9, 1},
       " <<<< Warning  31: Incorrect number of points for spline interpolation in CURVE!   (  10)"},
      {"SPLI", 3, {1, 2, 4, 3, 5}, {1, 2, 1, 2, 1},
       " <<<< Warning  32: No increasing X coordinates for spline interpolation in CURVE!"},
      {"SPLI", 3, {1, 2, 2, 3, 5}, {1, 2, 1, 2, 1},
       " <<<< Warning  32: No increasing X coordinates for spline interpolation in CURVE!"},
      {"SPLI", 3, {1, 2, NAN, 4, 5}, {1, 2, 1, 2, 1},
       " <<<< Warning  32: No increasing X coordinates for spline interpolation in CURVE!"},
      // A point given twice has no chord length between: two equal rows.
      {"PSPL", 3, {1, 2, 2, 3, 5}, {1, 2, 2, 1, 2},
       " <<<< Warning  38: Singular matrix in CURVE!"},
  };
  for (const auto& c : cases) {
    begin();
    polcrv(c.mode);
    splmod(c.ngrad, 200);
    thkcrv(3);   // three passes, one warning
    curve(c.x.data(), c.y.data(), int(c.x.size()));
    EXPECT_EQ(take_lines(), std::vector<std::string>{c.warning}) << c.mode;
    EXPECT_TRUE(finish().empty()) << c.warning;
  }
  // 142 points fit.
  begin();
  polcrv("SPLI");
  curve(many.data(), manyy.data(), 142);
  EXPECT_TRUE(take_lines().empty());
  EXPECT_FALSE(finish().empty());
}

TEST_F(Splines, PublicRoutineWarnsAndReturnsNoPoints) {
  open();
  const float x[] = {3, 2, 1, 0, -1}, y[] = {1, 2, 3, 4, 5};
  float xo[201], yo[201];
  int nout = 7;
  spline(x, y, 5, xo, yo, nout);
  EXPECT_EQ(nout, 0);
  EXPECT_EQ(take_lines(), std::vector<std::string>{
                              " <<<< Warning  32: No increasing X coordinates for spline interpolation in SPLINE!"});
  spline(x, y, 5, nullptr, yo, nout);
  EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Warning   2: Incorrect parameter in SPLINE!"});
  zorfin();
}

}  // namespace
