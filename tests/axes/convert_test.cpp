// User to plot coordinates and back: corners and inside of linear, reversed, logarithmic
// and polar systems, the limits, neglog, and the checks of data against the scaling.
#include <cmath>

#include "axes_support.h"

using namespace zb;

namespace {

class Convert : public zbt::AxesTest {
 protected:
  void expect_at(float xu, float yu, float xp, float yp) {
    float x = 0, y = 0;
    qqpos2(xu, yu, x, y);
    EXPECT_NEAR(x, xp, 0.01f) << "x of " << xu << ", " << yu;
    EXPECT_NEAR(y, yp, 0.01f) << "y of " << xu << ", " << yu;
    float rx = 0, ry = 0;
    qqrel2(xu, yu, rx, ry);
    EXPECT_EQ(rx, x);
    EXPECT_EQ(ry, y);
  }
};

TEST_F(Convert, CornersAndInsideBothWays) {
  struct Row {
    bool log;
    float xa, xe, xo, xs, ya, ye, yo, ys;
    // user point, its plot point
    std::vector<std::array<float, 4>> points;
  };
  const std::vector<Row> rows = {
      {false, 0, 10, 0, 2, -1, 1, -1, 0.5f,
       {{0, -1, 500, 1500}, {10, 1, 1500, 700}, {10, -1, 1500, 1500}, {0, 1, 500, 700},
        {2.5f, 0.25f, 750, 1000}}},
      {false, 10, 0, 10, -2, 1, -1, 1, -0.5f,
       {{10, 1, 500, 1500}, {0, -1, 1500, 700}, {7.5f, 0.5f, 750, 1300}}},
      {true, 0, 3, 0, 1, -1, 2, -1, 1,
       {{1, 0.1f, 500, 1500}, {1000, 100, 1500, 700}, {10, 1, 500 + 1000.0f / 3, 1500 - 800.0f / 3},
        {100, 10, 500 + 2000.0f / 3, 1500 - 1600.0f / 3}}},
  };
  for (const Row& r : rows) {
    reset("SCAL");
    if (r.log) axsscl("LOG", "XY");
    place();
    graf(r.xa, r.xe, r.xo, r.xs, r.ya, r.ye, r.yo, r.ys);
    for (const auto& p : r.points) {
      expect_at(p[0], p[1], p[2], p[3]);
      EXPECT_NEAR(xposn(p[0]), p[2], 0.01f);
      EXPECT_NEAR(yposn(p[1]), p[3], 0.01f);
      EXPECT_NEAR(xinvrs(int(p[2])), p[0], 0.01f * std::max(1.0f, std::fabs(p[0]))) << "x back from " << p[2];
      EXPECT_NEAR(yinvrs(int(p[3])), p[1], 0.01f * std::max(1.0f, std::fabs(p[1]))) << "y back from " << p[3];
    }
    endgrf();
  }
  EXPECT_EQ(take_lines(), std::vector<std::string>{});
}

TEST_F(Convert, IntegerPositionsAddOneHalfAndTruncate) {
  place();
  graf(0, 10, 0, 2, 0, 8, 0, 2);
  EXPECT_EQ(nxposn(0.004f), 500);
  EXPECT_EQ(nxposn(0.0051f), 501);
  EXPECT_EQ(nxposn(-0.0049f), 500);
  EXPECT_EQ(nyposn(0.0049f), 1500);
  EXPECT_EQ(nyposn(0.0051f), 1499);
  EXPECT_EQ(nxposn(1.0e30f), 2000000000);   // far away, but no overflow
  // With the page origin at the bottom, y counts from the lower edge.
  zg.ipgorg = 1;
  EXPECT_EQ(nyposn(0.0f), 2099 - 1500);
  EXPECT_FLOAT_EQ(yposn(8.0f), 2099.0f - 700.0f);
  EXPECT_NEAR(yinvrs(2099 - 700), 8.0f, 1e-5f);
  zg.iyflip = 1;
  EXPECT_EQ(nyposn(0.0f), 1500);
}

TEST_F(Convert, FarPointsAreLimited) {
  place();
  graf(0, 10, 0, 2, 0, 8, 0, 2);
  float x, y;
  qqpos2(1.0e30f, -1.0e30f, x, y);
  EXPECT_EQ(x, 1.0e6f);
  EXPECT_EQ(y, 1.0e6f);
  qqpos2(-1.0e30f, NAN, x, y);
  EXPECT_EQ(x, -1.0e6f);
  EXPECT_EQ(y, -1.0e6f);
}

TEST_F(Convert, NeglogStandsInForNonPositiveValues) {
  axsscl("LOG", "X");
  place();
  graf(-1, 3, -1, 1, 0, 8, 0, 2);
  float x, y;
  qqpos2(0.0f, 0.0f, x, y);
  EXPECT_EQ(x, -1.0e6f);
  endgrf();
  neglog(0.1f);
  graf(-1, 3, -1, 1, 0, 8, 0, 2);
  qqpos2(0.0f, 0.0f, x, y);
  EXPECT_FLOAT_EQ(x, 500.0f);
  qqpos2(-5.0f, 0.0f, x, y);
  EXPECT_FLOAT_EQ(x, 500.0f);
}

TEST_F(Convert, PolarForm) {
  zg.iaxknd = 1;
  zg.nxcros = zg.nycros = 1000;
  zg.xscl = 100.0f;
  const float pi = 3.14159274f;
  expect_at(1.0f, 0.0f, 1100.0f, 1000.0f);
  expect_at(2.0f, pi / 2.0f, 1000.0f, 800.0f);
  // polmod TOP, CLOC: angle 0 points up, a quarter turn lies to the right.
  zg.ipolst = 1;
  zg.ipoldr = 1;
  expect_at(1.0f, 0.0f, 1000.0f, 900.0f);
  expect_at(1.0f, pi / 2.0f, 1100.0f, 1000.0f);
  zg.ilevel = 2;
  EXPECT_EQ(yposn(1.0f), 0.0f);
  EXPECT_EQ(nyposn(1.0f), 0);
  EXPECT_EQ(take_lines(),
            (std::vector<std::string>{
                " <<<< Warning 101: YPOSN does not work for polar axis systems in YPOSN!",
                " <<<< Warning 101: NYPOSN does not work for polar axis systems in NYPOSN!"}));
}

TEST_F(Convert, ConversionsNeedAnAxisSystem) {
  Zorglb before = zg;
  EXPECT_EQ(xposn(1.0f), 0.0f);
  EXPECT_EQ(nyposn(1.0f), 0);
  EXPECT_EQ(xinvrs(5), 0.0f);
  EXPECT_EQ(take_lines(), (std::vector<std::string>{
                              " <<<< Warning   3: Incorrect level in XPOSN!   (   1)",
                              " <<<< Warning   3: Incorrect level in NYPOSN!   (   1)",
                              " <<<< Warning   3: Incorrect level in XINVRS!   (   1)"}));
  EXPECT_EQ(zg, zbt::with_warning_fields(before));
}

TEST_F(Convert, PointsOutsideTheScalingAreReported) {
  place();
  graf(10, 0, 10, -2, 0, 8, 0, 2);
  const float x[] = {5.0f, -0.5f, 5.0f, 12.0f};
  const float y[] = {4.0f, 4.0f, 9.0f, -1.0f};
  chkscl(x, y, 4);
  EXPECT_EQ(take_lines(), (std::vector<std::string>{
                              " <<<< ( -0.5000E+00 /  0.4000E+01) out of axis scaling!",
                              " <<<< (  0.5000E+01 /  0.9000E+01) out of axis scaling!",
                              " <<<< (  0.1200E+02 / -0.1000E+01) out of axis scaling!"}));
  nochek();
  chkscl(x, y, 4);
  EXPECT_EQ(take_lines(), std::vector<std::string>{});
}

TEST_F(Convert, LogAxesRefuseNonPositiveData) {
  axsscl("LOG", "Y");
  place();
  graf(0, 10, 0, 2, 0, 3, 0, 1);
  const float x[] = {-1.0f, 2.0f};
  const float good[] = {1.0f, 5.0f};
  const float bad[] = {1.0f, 0.0f};
  jqqlev(2, 3, "CURVE");
  EXPECT_EQ(jqqlog(x, good, 2), 0);
  EXPECT_EQ(jqqlog(x, bad, 2), 1);
  EXPECT_EQ(take_lines(), std::vector<std::string>{
      " <<<< Warning  27: Non positive values for log scaling in CURVE!"});
  endgrf();
  neglog(0.5f);
  EXPECT_EQ(jqqlog(x, bad, 2), 0);
}

}  // namespace
