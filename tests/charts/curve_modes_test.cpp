// The figures of curve: the vertex sequence of each mode for a small data set, gaps,
// thick passes, markers every n-th point, and clipping to the axis system.
#include <algorithm>

#include "charts_support.h"
#include "draw/prims_support.h"
#include "frame/page.h"

using namespace zb;

namespace {

using zbt::D;
using zbt::M;
using Steps = std::vector<zbt::Step>;

class CurveModes : public zbt::CurveTest {
 protected:
  Steps in_mode(const char* mode, const std::vector<float>& x, const std::vector<float>& y) {
    begin();
    polcrv(mode);
    curve(x.data(), y.data(), int(x.size()));
    return finish();
  }
};

TEST_F(CurveModes, VertexSequenceOfEachMode) {
  const std::vector<float> x = {1, 2, 4}, y = {1, 3, 2};
  struct Case {
    const char* mode;
    Steps want;
  };
  const Case cases[] = {
      {"LINE", {M(1, 1), D(2, 3), D(4, 2)}},
      // Half a step before the first point and after the last, steps half-way between.
      {"STEP", {M(0.5f, 1), D(1, 1), D(1.5f, 1), D(1.5f, 3), D(2, 3), D(3, 3), D(3, 2), D(4, 2), D(5, 2)}},
      {"STAI", {M(1, 1), D(2, 1), D(2, 3), D(4, 3), D(4, 2)}},
      {"STEM", {M(1, 0), D(1, 1), M(2, 0), D(2, 3), M(4, 0), D(4, 2)}},
      // Bars 0.75 of the first spacing wide, from the start of the y scaling.
      {"BARS", {M(0.625f, 0), D(0.625f, 1), D(1.375f, 1), D(1.375f, 0),
                M(1.625f, 0), D(1.625f, 3), D(2.375f, 3), D(2.375f, 0),
                M(3.625f, 0), D(3.625f, 2), D(4.375f, 2), D(4.375f, 0)}},
  };
  for (const auto& c : cases) EXPECT_EQ(in_mode(c.mode, x, y), c.want) << c.mode;
}

TEST_F(CurveModes, StepOnTwoPointsIsOneStepWideWithHalfStepsAtTheEnds) {
  EXPECT_EQ(in_mode("STEP", {2, 6}, {1, 2}),
            (Steps{M(0, 1), D(2, 1), D(4, 1), D(4, 2), D(6, 2), D(8, 2)}));
}

TEST_F(CurveModes, BarsOfAFixedWidthInPlotUnits) {
  begin();
  polcrv("BARS");
  barwth(-40.0f);
  const float x[] = {3, 5}, y[] = {2, 4};
  curve(x, y, 2);
  EXPECT_EQ(finish(), (Steps{{780, 1800, false}, {780, 1600, true}, {820, 1600, true}, {820, 1800, true},
                             {980, 1800, false}, {980, 1400, true}, {1020, 1400, true}, {1020, 1800, true}}));
}

TEST_F(CurveModes, GapsBreakTheLineByMoves) {
  const std::vector<float> x = {1, 2, 4, 3.5f}, y = {1, 3, 2, 1};
  struct Case {
    const char* mode;
    float gap;
    Steps want;
  };
  const Case cases[] = {
      // Both directions count in LINE: only the spacing of 2 is a gap.
      {"LINE", 1.5f, {M(1, 1), D(2, 3), M(4, 2), D(3.5f, 1)}},
      // Steps look forward only; a gap at the end leaves out the last half step.
      {"STAI", 1.5f, {M(1, 1), D(2, 1), D(2, 3), M(4, 2), D(3.5f, 2), D(3.5f, 1)}},
  };
  for (const auto& c : cases) {
    begin();
    polcrv(c.mode);
    gapcrv(c.gap);
    curve(x.data(), y.data(), 4);
    EXPECT_EQ(finish(), c.want) << c.mode;
  }
  begin();
  polcrv("STEP");
  gapcrv(1.5f);
  const float xs[] = {1, 2, 4}, ys[] = {1, 3, 2};
  curve(xs, ys, 3);
  EXPECT_EQ(finish(), (Steps{M(0.5f, 1), D(1, 1), D(1.5f, 1), D(1.5f, 3), D(2, 3), M(4, 2)}));
}

TEST_F(CurveModes, AGapBelowEverySpacingDrawsNothing) {
  begin();
  gapcrv(0.5f);
  const float x[] = {1, 2, 3, 4}, y[] = {1, 3, 2, 4};
  curve(x, y, 4);
  const Steps s = finish();
  EXPECT_TRUE(std::none_of(s.begin(), s.end(), [](const zbt::Step& p) { return p.draw; }));
  // reset("GAPC") turns the gaps off again.
  begin();
  gapcrv(0.5f);
  reset("GAPC");
  curve(x, y, 4);
  EXPECT_EQ(finish().size(), 4u);
}

TEST_F(CurveModes, ThickCurvesArePassesAtOffsetsOfTheNominalUnit) {
  begin();
  thkcrv(3);
  lintyp(2);   // dashes: each pass starts its pattern afresh
  const float x[] = {1, 1.15f}, y[] = {5, 5};
  curve(x, y, 2);
  // Offsets 0, +1 (upward on the page for a line to the right), -1; dashes of 10.
  EXPECT_EQ(finish(), (Steps{{600, 1300, false}, {610, 1300, true}, {615, 1300, false},
                             {600, 1299, false}, {610, 1299, true}, {615, 1299, false},
                             {600, 1301, false}, {610, 1301, true}, {615, 1301, false}}));
  EXPECT_EQ(zg.xoffln, 0.0f);
}

TEST_F(CurveModes, ThickPassesFollowTheUnits) {
  // In inches the nominal unit is 2.54 plot units: thkcrv(3) makes 8 passes.
  units("INCH");
  begin();
  thkcrv(3);
  const float x[] = {1, 4}, y[] = {5, 5};
  curve(x, y, 2);
  const Steps s = finish();
  EXPECT_EQ(std::count_if(s.begin(), s.end(), [](const zbt::Step& p) { return !p.draw; }), 8);
}

TEST_F(CurveModes, MarkersEveryNthPoint) {
  const std::vector<float> x = {1, 2, 3, 4, 5, 6, 7}, y = {1, 1, 1, 1, 1, 1, 1};
  // A plus of size 20: a horizontal and a vertical stroke around the point.
  auto plus = [](float px, float py) {
    const zbt::Step c = M(px, py);
    return Steps{{c.x - 10, c.y, false}, {c.x + 10, c.y, true}, {c.x, c.y - 10, false}, {c.x, c.y + 10, true}};
  };
  auto with_markers = [&](int nmrk) {
    begin();
    marker(3);
    hsymbl(20);
    incmrk(nmrk);
    curve(x.data(), y.data(), int(x.size()));
    return finish();
  };
  // Line and symbols at 1, 4, 7; the symbols come first.
  Steps want;
  for (int i : {1, 4, 7}) {
    const Steps p = plus(float(i), 1);
    want.insert(want.end(), p.begin(), p.end());
  }
  want.push_back(M(1, 1));
  for (int i = 2; i <= 7; ++i) want.push_back(D(float(i), 1));
  EXPECT_EQ(with_markers(3), want);
  // Symbols only at every second point.
  want.clear();
  for (int i : {1, 3, 5, 7}) {
    const Steps p = plus(float(i), 1);
    want.insert(want.end(), p.begin(), p.end());
  }
  EXPECT_EQ(with_markers(-2), want);
}

TEST_F(CurveModes, MarkersSitOnTheRoundedPosition) {
  begin();
  marker(3);
  hsymbl(20);
  incmrk(-1);
  const float x[] = {1.234f}, y[] = {2.0f};
  curve(x, y, 1);   // a single point is fine with symbols only
  // 623.4 rounds to 623.
  EXPECT_EQ(finish(), (Steps{{613, 1600, false}, {633, 1600, true}, {623, 1590, false}, {623, 1610, true}}));
}

TEST_F(CurveModes, ClippedToTheAxisSystemAndTheWindowRestored) {
  begin(-1);   // the default grace: one unit inside the axis lines
  const int x2 = zg.nclpx2;
  const float x[] = {5, 15}, y[] = {5, 5};
  curve(x, y, 2);
  EXPECT_EQ(zg.nclpx2, x2);
  EXPECT_EQ(finish(), (Steps{M(5, 5), {1499, 1300, true}}));
}

TEST_F(CurveModes, PointsOutsideTheScalingAreReportedUnlessNochek) {
  begin();
  const float x[] = {5, 15}, y[] = {5, -1};
  curve(x, y, 2);
  EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< (  0.1500E+02 / -0.1000E+01) out of axis scaling!"});
  nochek();
  curve(x, y, 2);
  EXPECT_TRUE(take_lines().empty());
  finish();
}

TEST_F(CurveModes, SplineModesRunFromTheFirstToTheLastPoint) {
  for (const char* mode : {"SPLI", "PSPL"}) {
    begin();
    polcrv(mode);
    splmod(3, 10);
    const float x[] = {1, 2, 3.5f, 5, 6, 8}, y[] = {4, 5, 5.5f, 6, 5.5f, 3};
    curve(x, y, 6);
    // The same points as spline() gives.
    float xo[11], yo[11];
    int nout = 0;
    spline(x, y, 6, xo, yo, nout);
    ASSERT_EQ(nout, 11);
    const Steps s = finish();
    ASSERT_EQ(s.size(), 11u) << mode;
    EXPECT_EQ(s.back(), D(8, 3)) << mode;
    EXPECT_EQ(s.front(), M(1, 4)) << mode;
    for (int j = 0; j < 11; ++j) EXPECT_EQ(s[std::size_t(j)], (j == 0 ? M : D)(xo[j], yo[j])) << mode << " " << j;
  }
}

TEST_F(CurveModes, SplineOnALogarithmicAxisStepsInLog) {
  open();
  axspos(500, 1800);
  axslen(1001, 1001);
  axsscl("LOG", "X");
  nograf();
  float xa = 0, xe = 2, xo = 0, xs = 1, ya = 0, ye = 10, yo = 0, ys = 2;
  graf(xa, xe, xo, xs, ya, ye, yo, ys);
  polcrv("SPLI");
  splmod(3, 10);
  const float x[] = {1.5f, 3, 7, 20, 60, 90}, y[] = {2, 4, 3, 5, 2, 3};
  curve(x, y, 6);
  const Steps s = finish();
  ASSERT_EQ(s.size(), 11u);
  // Equal steps of log10 x are equal steps on the page.
  const float d = (s.back().x - s.front().x) / 10.0f;
  for (std::size_t j = 0; j < s.size(); ++j) EXPECT_NEAR(s[j].x, s.front().x + float(j) * d, 0.05f) << j;
}

TEST_F(CurveModes, PolarStemsAndBarsStartAtTheCentre) {
  // The mapping of a polar system: radius x at 100 units per unit, angle y in radians,
  // around (1000, 1300).
  auto polar = [&](const char* mode) {
    begin();
    zg.iaxknd = 1;
    zg.nxcros = 1000;
    zg.nycros = 1300;
    polcrv(mode);
    barwth(-20.0f);   // wedges 20 degrees wide
    const float r[] = {2, 3}, phi[] = {0.0f, 1.5707964f};
    curve(r, phi, 2);
    return finish();
  };
  EXPECT_EQ(polar("STEM"), (Steps{{1000, 1300, false}, {1200, 1300, true}, {1000, 1300, false}, {1000, 1000, true}}));
  const Steps w = polar("BARS");
  ASSERT_GE(w.size(), 8u);
  EXPECT_EQ(w.front(), (zbt::Step{1000, 1300, false}));
  const float a = 10.0f * 3.14159265f / 180.0f;
  EXPECT_EQ(w[1], (zbt::Step{1000 + 200 * std::cos(a), 1300 + 200 * std::sin(a), true}));
  // Each wedge: centre, an arc at its radius, centre.
  int wedges = 0;
  for (std::size_t i = 0; i < w.size(); ++i) {
    const float d = std::hypot(w[i].x - 1000, w[i].y - 1300);
    if (d < 0.05f) {
      wedges += w[i].draw ? 1 : 0;   // back at the centre
      continue;
    }
    EXPECT_TRUE(std::fabs(d - 200) < 0.05f || std::fabs(d - 300) < 0.05f) << i << " " << d;
  }
  EXPECT_EQ(wedges, 2);
  EXPECT_EQ(w.back(), (zbt::Step{1000, 1300, true}));
}

class FilledBars : public zbt::PrimsFixture {};

TEST_F(FilledBars, OneSolidFillPerPointAndThePatternReturns) {
  const std::string body = ps_body([] {
    shdpat(5);
    grace(5);   // the bars stand on the axis line: inside the window they fill natively
    axes();
    polcrv("FBAR");
    const float x[] = {2, 4, 7}, y[] = {3, 5, 4};
    curve(x, y, 3);
    EXPECT_EQ(zg.ipatnr, 5);
    EXPECT_EQ(zg.cproc.view(), "CURVE");
  });
  const zbt::PsShapes shapes = zbt::ps_shapes(body);
  ASSERT_EQ(shapes.fills.size(), 3u);
  for (const auto& f : shapes.fills) EXPECT_GE(f.size(), 4u);
  // The outlines too: three open bars of four corners.
  EXPECT_EQ(std::count_if(shapes.paths.begin(), shapes.paths.end(),
                          [](const zbt::Stroke& p) { return p.size() == 4; }), 3);
  EXPECT_TRUE(zbt::ghostscript_accepts(ps_file));
}

}  // namespace
