// Curved outlines and rectangles: chord counts from circsp, points on the curve, arcs in
// every quadrant and across 0, pies closed through the centre, round rectangles.
#include <numbers>

#include "draw/prims_support.h"
#include "frame/page.h"

using namespace zb;
using zbt::Pt;
using zbt::Stroke;

namespace {

class Shapes : public zbt::PrimsFixture {};

// Page angle of p seen from c, degrees counter-clockwise (y downward), in -180 .. 180.
float angle_of(Pt p, Pt c) {
  return std::atan2(c.y - p.y, p.x - c.x) * 180.0f / std::numbers::pi_v<float>;
}

TEST_F(Shapes, CirclePointCountFollowsCircsp) {
  struct Case { int nspc, nr; std::size_t points; };
  // n = truncate(r 2 pi / circsp), at most 1000, raised to 5 if not 0; n + 1 points.
  const Case cases[] = {
      {10, 1, 0},     {10, 2, 6},     {10, 7, 6},    {10, 8, 6},    {10, 9, 6},
      {10, 100, 63},  {10, 500, 315}, {5, 100, 126}, {1, 200, 1001}, {1000000, 1000, 0},
  };
  for (const auto& c : cases) {
    const auto s = strokes([&] {
      circsp(c.nspc);
      circle(1000, 1000, c.nr);
    });
    if (c.points == 0) {
      EXPECT_TRUE(s.empty()) << "r " << c.nr;
      continue;
    }
    ASSERT_EQ(s.size(), 1u) << "r " << c.nr;
    EXPECT_EQ(s[0].size(), c.points) << "r " << c.nr << " circsp " << c.nspc;
    // Starts at angle 0, ends where it started, every point on the circle.
    EXPECT_NEAR(s[0].front().x, 1000.0f + float(c.nr), 0.13f);
    EXPECT_NEAR(zbt::dist(s[0].front(), s[0].back()), 0.0f, 0.2f);
    for (Pt p : s[0]) EXPECT_NEAR(zbt::dist(p, {1000, 1000}), float(c.nr), 0.2f);
    // Counter-clockwise on the page: the second point lies above the first.
    EXPECT_LT(s[0][1].y, s[0][0].y);
  }
}

TEST_F(Shapes, EllipsePointsLieOnTheEllipse) {
  struct Case { int na, nb; std::size_t points; };
  // The longer half axis sets the count.
  const Case cases[] = {{300, 100, 189}, {100, 300, 189}, {40, 400, 252}};
  for (const auto& c : cases) {
    const auto s = strokes([&] { ellips(1400, 1000, c.na, c.nb); });
    ASSERT_EQ(s.size(), 1u);
    EXPECT_EQ(s[0].size(), c.points);
    for (Pt p : s[0]) {
      const float u = (p.x - 1400.0f) / float(c.na), v = (p.y - 1000.0f) / float(c.nb);
      EXPECT_NEAR(u * u + v * v, 1.0f, 0.01f) << p.x << " " << p.y;
    }
  }
}

TEST_F(Shapes, ArcsRunCounterClockwiseFromStartToEnd) {
  struct Case { float alpha, beta, theta; float first, last; };
  // Angles as the page shows them; 350 to 10 runs 20 degrees through 0; theta turns all.
  const Case cases[] = {
      {10, 80, 0, 10, 80},     {100, 170, 0, 100, 170},  {190, 260, 0, -170, -100},
      {280, 350, 0, -80, -10}, {350, 10, 0, -10, 10},    {-30, 30, 0, -30, 30},
      {45, 405, 0, 45, 45},    {0, 90, 30, 30, 120},     {300, 120, 0, -60, 120},
      {720, 810, 0, 0, 90},
  };
  for (const auto& c : cases) {
    const auto s = strokes([&] { arcell(1400, 1000, 300, 300, c.alpha, c.beta, c.theta); });
    ASSERT_EQ(s.size(), 1u) << c.alpha << " " << c.beta;
    const Stroke& a = s[0];
    EXPECT_NEAR(angle_of(a.front(), {1400, 1000}), c.first, 0.1f) << c.alpha << " " << c.beta;
    EXPECT_NEAR(angle_of(a.back(), {1400, 1000}), c.last, 0.1f) << c.alpha << " " << c.beta;
    // Each step turns the same way.
    for (std::size_t i = 1; i < a.size(); ++i) {
      float d = angle_of(a[i], {1400, 1000}) - angle_of(a[i - 1], {1400, 1000});
      if (d < -180.0f) d += 360.0f;
      EXPECT_GT(d, 0.0f) << c.alpha << " " << c.beta << " point " << i;
    }
  }
}

TEST_F(Shapes, PartialEllipseEndsAtItsPolarAngles) {
  // A partial ellipse uses the true polar angle: its end lies on the ray at 60 degrees.
  const auto s = strokes([] { arcell(1400, 1000, 400, 100, 0, 60, 0); });
  ASSERT_EQ(s.size(), 1u);
  EXPECT_NEAR(angle_of(s[0].back(), {1400, 1000}), 60.0f, 0.2f);
  EXPECT_NEAR(angle_of(s[0].front(), {1400, 1000}), 0.0f, 0.2f);
  for (Pt p : s[0]) {
    const float u = (p.x - 1400.0f) / 400.0f, v = (p.y - 1000.0f) / 100.0f;
    EXPECT_NEAR(u * u + v * v, 1.0f, 0.01f);
  }
}

TEST_F(Shapes, PieAndPatternCloseThroughTheCentre) {
  // pie closes through the centre; an arc only with a pattern set.
  const auto pie_strokes = strokes([] { pie(1000, 1000, 200, 30, 120); });
  ASSERT_EQ(pie_strokes.size(), 1u);
  const Stroke& p = pie_strokes[0];
  EXPECT_NEAR(zbt::dist(p[p.size() - 2], {1000, 1000}), 0.0f, 0.2f);
  EXPECT_NEAR(zbt::dist(p.back(), p.front()), 0.0f, 0.2f);
  EXPECT_NEAR(angle_of(p[p.size() - 3], {1000, 1000}), 120.0f, 0.1f);

  const auto open_arc = strokes([] { arcell(1000, 1000, 200, 200, 30, 120, 0); });
  ASSERT_EQ(open_arc.size(), 1u);
  EXPECT_EQ(open_arc[0].size(), p.size() - 2);

  const auto patterned = strokes([] {
    shdpat(1);
    arcell(1000, 1000, 200, 200, 30, 120, 0);
  });
  ASSERT_GT(patterned.size(), 1u);   // the outline, then the hatch lines
  EXPECT_EQ(patterned[0].size(), p.size());
  EXPECT_NEAR(zbt::dist(patterned[0][p.size() - 2], {1000, 1000}), 0.0f, 0.2f);

  // A full circle never closes through its centre.
  const auto disc = strokes([] { pie(1000, 1000, 200, 0, 360); });
  ASSERT_EQ(disc.size(), 1u);
  for (Pt q : disc[0]) EXPECT_NEAR(zbt::dist(q, {1000, 1000}), 200.0f, 0.2f);
}

TEST_F(Shapes, SolidOutlineKeepsTheDashPattern) {
  // iline 0 draws solid under a dash pattern and gives the pattern back.
  const auto s = strokes([] {
    lintyp(2);
    const int npat = zg.npatln;
    elpsln(1000, 1000, 200, 200, 0, 360, 0, 0, 0);
    EXPECT_EQ(zg.npatln, npat);
  });
  EXPECT_EQ(s.size(), 1u);
  const auto dashed = strokes([] {
    lintyp(2);
    circle(1000, 1000, 200);
  });
  EXPECT_GT(dashed.size(), 30u);
}

TEST_F(Shapes, RectangleCornersAndPageOrigin) {
  const auto s = strokes([] { rectan(100, 200, 50, 30); });
  ASSERT_EQ(s.size(), 1u);
  const Stroke want = {{100, 200}, {149, 200}, {149, 229}, {100, 229}, {100, 200}};
  ASSERT_EQ(s[0].size(), want.size());
  for (std::size_t i = 0; i < want.size(); ++i) {
    EXPECT_FLOAT_EQ(s[0][i].x, want[i].x) << i;
    EXPECT_FLOAT_EQ(s[0][i].y, want[i].y) << i;
  }
  // With the page origin at the bottom each corner's y counts from the bottom edge.
  const auto b = strokes([] {
    pagorg("BOTT");
    rectan(100, 200, 50, 30);
  });
  ASSERT_EQ(b.size(), 1u);
  EXPECT_FLOAT_EQ(b[0][0].y, float(zg.nypag - 200));
  EXPECT_FLOAT_EQ(b[0][2].y, float(zg.nypag - 229));
  strokes([] { pagorg("TOP"); });   // the page origin outlives the session
  // noarln and no pattern: nothing at all.
  EXPECT_TRUE(strokes([] {
    noarln();
    rectan(100, 200, 50, 30);
  }).empty());
}

TEST_F(Shapes, RoundRectangle) {
  // iopt 9 on a square: corner radius 100, 15 steps a corner, clockwise from (nx, y + r).
  const auto s = strokes([] { rndrec(100, 100, 200, 200, 9); });
  ASSERT_EQ(s.size(), 1u);
  const Stroke& r = s[0];
  EXPECT_EQ(r.size(), 4u * 16u + 1u);
  EXPECT_FLOAT_EQ(r[0].x, 100.0f);
  EXPECT_FLOAT_EQ(r[0].y, 200.0f);
  EXPECT_LT(r[1].y, r[0].y);        // up the left side first: clockwise on the page
  EXPECT_NEAR(zbt::dist(r[15], {200, 100}), 0.0f, 0.2f);   // end of the upper left arc
  for (Pt p : r) EXPECT_NEAR(zbt::dist(p, {199.5f, 199.5f}), 100.0f, 1.0f);

  // Small corners (n below 4) and iopt 0 fall back to the plain rectangle.
  for (int iopt : {0, 1}) {
    const auto f = strokes([&] { rndrec(100, 100, 20, 20, iopt); });
    ASSERT_EQ(f.size(), 1u);
    EXPECT_EQ(f[0].size(), 5u);
    EXPECT_FLOAT_EQ(f[0][2].x, 119.0f);
    EXPECT_FLOAT_EQ(f[0][2].y, 119.0f);
  }
}

TEST_F(Shapes, ClosedPolylineAndStylePoints) {
  const auto s = strokes([] {
    const float x[3] = {100, 300, 200}, y[3] = {100, 100, 300};
    xpolyl(x, y, 3);
    xpolyl(x, y, 1);   // below 2 points: nothing
  });
  ASSERT_EQ(s.size(), 1u);
  ASSERT_EQ(s[0].size(), 4u);
  EXPECT_FLOAT_EQ(s[0][3].x, 100.0f);
  EXPECT_FLOAT_EQ(s[0][3].y, 100.0f);

  const auto t = strokes([] {
    pagorg("BOTT");
    strtpt(100, 100);
    connpt(300, 400);
    pagorg("TOP");
  });
  ASSERT_EQ(t.size(), 1u);
  EXPECT_FLOAT_EQ(t[0][0].y, float(zg.nypag) - 100.0f);
  EXPECT_FLOAT_EQ(t[0][1].y, float(zg.nypag) - 400.0f);
}

TEST_F(Shapes, ResetRestoresChordAndRotation) {
  metafl("VIRT");
  zorini();
  EXPECT_FLOAT_EQ(zg.xcirsp, 10.0f);
  circsp(4);
  symrot(30);
  EXPECT_FLOAT_EQ(zg.xcirsp, 4.0f);
  reset("CIRCSP");
  EXPECT_FLOAT_EQ(zg.xcirsp, 10.0f);
  EXPECT_FLOAT_EQ(zg.xsymang, 30.0f);
  reset("SYMR");
  EXPECT_FLOAT_EQ(zg.xsymang, 0.0f);
  zorfin();
}

}  // namespace
