// Bezier points and the circle through three points, at any level; boxes of one colour
// and the filled triangle.
#include "draw/prims_support.h"
#include "frame/page.h"

using namespace zb;
using zbt::Pt;

namespace {

class Calc : public zbt::PrimsFixture {};

TEST_F(Calc, BezierPointsWithoutASession) {
  // Quadratic (0,0) (1,2) (2,0): B(t) = (2t, 4t(1 - t)).
  const float x[3] = {0, 1, 2}, y[3] = {0, 2, 0};
  float xp[5], yp[5];
  bezier(x, y, 3, xp, yp, 5);
  const float wx[5] = {0, 0.5f, 1, 1.5f, 2}, wy[5] = {0, 0.75f, 1, 0.75f, 0};
  for (int i = 0; i < 5; ++i) {
    EXPECT_FLOAT_EQ(xp[i], wx[i]) << i;
    EXPECT_FLOAT_EQ(yp[i], wy[i]) << i;
  }
  // Cubic against its closed form; the ends are copies of the end points.
  const float cx[4] = {100, 200, 400, 500}, cy[4] = {700, 300, 300, 700};
  float bx[101], by[101];
  bezier(cx, cy, 4, bx, by, 101);
  for (int i = 0; i <= 100; ++i) {
    const float t = float(i) / 100.0f, s = 1.0f - t;
    EXPECT_NEAR(bx[i], s * s * s * 100 + 3 * s * s * t * 200 + 3 * s * t * t * 400 + t * t * t * 500, 0.01f);
    EXPECT_NEAR(by[i], s * s * s * 700 + 3 * s * s * t * 300 + 3 * s * t * t * 300 + t * t * t * 700, 0.01f);
  }
  EXPECT_EQ(bx[100], 500.0f);
  EXPECT_EQ(by[100], 700.0f);
  EXPECT_EQ(zg.nwarn, 0);
}

TEST_F(Calc, BezierCountsOutOfRange) {
  const float x[22] = {}, y[22] = {};
  float xp[4] = {7, 7, 7, 7}, yp[4] = {7, 7, 7, 7};
  struct Case { int n, np; const char* line; };
  const Case cases[] = {
      {1, 4, " <<<< Warning   2: Incorrect parameter in BEZIER!   (   1)"},
      {22, 4, " <<<< Warning   2: Incorrect parameter in BEZIER!   (  22)"},
      {3, 1, " <<<< Warning   2: Incorrect parameter in BEZIER!   (   1)"},
      {3, 32001, " <<<< Warning   2: Incorrect parameter in BEZIER!   (32001)"},
  };
  for (const auto& c : cases) {
    bezier(x, y, c.n, xp, yp, c.np);
    EXPECT_EQ(take_lines(), std::vector<std::string>{c.line});
  }
  for (int i = 0; i < 4; ++i) EXPECT_EQ(xp[i] + yp[i], 14.0f);
}

TEST_F(Calc, CircleThroughThreePoints) {
  float xm = 0, ym = 0, r = 0;
  circ3p(0, 0, 2, 0, 0, 2, xm, ym, r);
  EXPECT_FLOAT_EQ(xm, 1.0f);
  EXPECT_FLOAT_EQ(ym, 1.0f);
  EXPECT_FLOAT_EQ(r, std::sqrt(2.0f));
  circ3p(1950, 1650, 2150, 1450, 2250, 1620, xm, ym, r);
  for (Pt p : {Pt{1950, 1650}, Pt{2150, 1450}, Pt{2250, 1620}})
    EXPECT_NEAR(zbt::dist(p, {xm, ym}), r, 0.01f);
  EXPECT_TRUE(take_lines().empty());

  // Collinear points, and NaN, leave the results alone.
  const float nan = std::numeric_limits<float>::quiet_NaN();
  for (float x3 : {2.0f, nan}) {
    xm = ym = r = 5;
    circ3p(0, 0, 1, 1, x3, 2, xm, ym, r);
    EXPECT_EQ(take_lines(), std::vector<std::string>{
                                " <<<< Warning 101: Points are collinear in CIRC3P!"});
    EXPECT_EQ(xm + ym + r, 15.0f);
  }
}

TEST_F(Calc, BoxesOfOneColour) {
  // Turned page: (y1, x1, y2, x2) times 3900 / 2100, rounded; the colour is set back.
  const std::string body = ps_body([] {
    setclr(0);
    point(1000, 1300, 20, 10, 40);
    recfll(100, 200, 50, 30, 40);
    origin(100, 50);
    pagfll(40);
    EXPECT_EQ(zg.ipenclr, 0);
  });
  std::string flat = body;
  std::erase(flat, '\n');
  for (const char* rec : {"2405 1839 2424 1876 ", "371 186 425 277 ", "0 0 3898 5514 "})
    EXPECT_NE(flat.find(std::string(rec) + "215 215 215 e "), std::string::npos) << rec;
  EXPECT_TRUE(zbt::ghostscript_accepts(ps_file));
}

TEST_F(Calc, FilledTriangle) {
  const float x[3] = {1000, 1400, 1100}, y[3] = {1000, 1100, 1400};
  const auto inside = [&](Pt p) {
    // Same side of all three edges, with a little slack for rounding.
    float s[3];
    for (int i = 0; i < 3; ++i) {
      const int j = (i + 1) % 3;
      s[i] = (x[j] - x[i]) * (p.y - y[i]) - (y[j] - y[i]) * (p.x - x[i]);
    }
    const float tol = 400.0f;
    return (s[0] >= -tol && s[1] >= -tol && s[2] >= -tol) || (s[0] <= tol && s[1] <= tol && s[2] <= tol);
  };
  const auto st = strokes([&] {
    shdpat(3);
    trifll(x, y);
    EXPECT_EQ(zg.ipatnr, 3);
  });
  ASSERT_GT(st.size(), 50u);   // scan lines over 400 plot units
  for (const auto& s : st)
    for (Pt p : s) EXPECT_TRUE(inside(p)) << p.x << " " << p.y;
  // With the page origin at the bottom, y counts from the bottom edge.
  const auto b = strokes([&] {
    pagorg("BOTT");
    trifll(x, y);
    pagorg("TOP");
  });
  float ymin = 1e9f;
  for (const auto& s : b)
    for (Pt p : s) ymin = std::min(ymin, p.y);
  EXPECT_NEAR(ymin, float(zg.nypag) - 1400.0f, 1.0f);
}

}  // namespace
