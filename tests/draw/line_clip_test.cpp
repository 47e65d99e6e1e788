// Clipping: segments against every side of the window, wholly outside, on its edge, of
// zero length, with invalid coordinates; the circle; the window of the axis system with
// its grace; clpwin, getclp and clpbor; and the warnings of the clipping setters.
#include <limits>

#include "draw/line.h"
#include "draw/line_support.h"
#include "frame/page.h"

using namespace zb;
using zbt::Seg;

namespace {

class Clip : public zbt::MetaSession {};

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

TEST_F(Clip, SegmentsAgainstEverySideOfTheWindow) {
  struct Case { const char* what; Seg line; std::vector<Seg> want; };
  const Case cases[] = {
      {"inside", {150, 150, 250, 150}, {{150, 150, 250, 150}}},
      {"out left", {50, 150, 150, 150}, {{100, 150, 150, 150}}},
      {"out right", {250, 120, 350, 120}, {{250, 120, 300, 120}}},
      {"out top", {200, 50, 200, 150}, {{200, 100, 200, 150}}},
      {"out bottom", {120, 150, 120, 260}, {{120, 150, 120, 200}}},
      {"in from right", {350, 120, 250, 120}, {{300, 120, 250, 120}}},
      {"through both sides", {0, 150, 400, 150}, {{100, 150, 300, 150}}},
      {"corner to corner", {50, 50, 350, 250}, {{125, 100, 275, 200}}},
      {"wholly left", {0, 120, 50, 180}, {}},
      {"wholly right", {350, 120, 400, 180}, {}},
      {"wholly above", {150, 0, 250, 50}, {}},
      {"wholly below", {150, 250, 250, 300}, {}},
      {"past a corner", {50, 160, 160, 250}, {}},
      {"on the top edge", {150, 100, 250, 100}, {{150, 100, 250, 100}}},
      {"within the tolerance", {150, 99.9995f, 250, 99.9995f}, {{150, 99.9995f, 250, 99.9995f}}},
      {"beyond the tolerance", {150, 99.99f, 250, 99.99f}, {}},
      {"zero length inside", {150, 150, 150, 150}, {{150, 150, 150, 150}}},
      {"zero length outside", {50, 50, 50, 50}, {}},
      {"not a number", {kNaN, 150, 150, 150}, {}},
      {"huge", {-1.0e30f, 150, 1.0e30f, 150}, {{100, 150, 300, 150}}},
  };
  for (const auto& c : cases) {
    open();
    clpwin(100, 100, 201, 101);
    qqmove(c.line.x1, c.line.y1);
    qqdraw(c.line.x2, c.line.y2);
    const auto got = close();
    ASSERT_EQ(got.size(), c.want.size()) << c.what << ": " << zbt::show(got);
    for (std::size_t i = 0; i < got.size(); ++i)
      EXPECT_TRUE(zbt::same_seg(got[i], c.want[i])) << c.what << ": " << zbt::show(got);
  }
}

TEST_F(Clip, ReenteringLineStartsWithAMove) {
  open();
  clpwin(100, 100, 201, 101);
  qqmove(150, 150);
  qqdraw(400, 150);   // out
  qqdraw(400, 180);   // outside
  qqdraw(150, 180);   // back in
  zorfin();
  const auto steps = zbt::metafile_pen(zg.cplotfl.str());
  // move 150 150, draw to the edge, move onto the edge where it comes back, draw in.
  ASSERT_GE(steps.size(), 4u);
  EXPECT_EQ(steps[0].code, 3);
  EXPECT_TRUE(zbt::near(steps[1].x, 300) && zbt::near(steps[1].y, 150) && steps[1].code == 2);
  EXPECT_TRUE(zbt::near(steps[2].x, 300) && zbt::near(steps[2].y, 180) && steps[2].code == 3);
  EXPECT_TRUE(zbt::near(steps[3].x, 150) && zbt::near(steps[3].y, 180) && steps[3].code == 2);
}

TEST_F(Clip, HugeDiagonalStaysInTheWindow) {
  open();
  clpwin(100, 100, 201, 101);
  lintyp(2);
  strtqq(-1.0e30f, -1.0e30f);
  connqq(1.0e30f, 1.0e30f);
  for (const auto& s : close()) {
    for (float x : {s.x1, s.x2}) EXPECT_TRUE(x >= 99.99f && x <= 300.01f) << x;
    for (float y : {s.y1, s.y2}) EXPECT_TRUE(y >= 99.99f && y <= 200.01f) << y;
  }
}

// An axis system by its fields: lower left corner (500, 1500), lengths 1000.
void axis_fields() {
  zg.nxa = 500;
  zg.nya = 1500;
  zg.nxl = 1000;
  zg.nyl = 1000;
}

TEST_F(Clip, AxisRectangleWithGrace) {
  struct Case { const char* fmt; int grace; int x1, y1, x2, y2; float radius; };
  const Case cases[] = {
      {"ZMET", -1, 501, 502, 1498, 1499, 499.0f},   // one unit inside the axis lines
      {"ZMET", 0, 500, 501, 1499, 1500, 500.0f},
      {"ZMET", 10, 490, 491, 1509, 1510, 510.0f},
      {"ZMET", 2000, 0, 0, 2969, 2099, 2500.0f},   // limited to the page
      {"VIRT", -1, 504, 505, 1495, 1496, 496.0f},  // on raster less nint(0.99 / devscl)
      {"VIRT", 0, 500, 501, 1499, 1500, 500.0f},
  };
  for (const auto& c : cases) {
    open(c.fmt);
    axis_fields();
    grace(c.grace);
    setclp();
    EXPECT_EQ(zg.nclax1, c.x1) << c.fmt << " " << c.grace;
    EXPECT_EQ(zg.nclay1, c.y1) << c.fmt << " " << c.grace;
    EXPECT_EQ(zg.nclax2, c.x2) << c.fmt << " " << c.grace;
    EXPECT_EQ(zg.nclay2, c.y2) << c.fmt << " " << c.grace;
    EXPECT_FLOAT_EQ(zg.xclpc, 1000.0f);
    EXPECT_FLOAT_EQ(zg.yclpc, 1000.0f);
    EXPECT_FLOAT_EQ(zg.xclpr, c.radius) << c.fmt << " " << c.grace;
    zorfin();
  }
}

TEST_F(Clip, SclpaxClipsToTheAxisSystemAndRestores) {
  open();
  axis_fields();
  setclp();
  sclpax(0);
  qqmove(0, 1000);
  qqdraw(2969, 1000);
  sclpax(1);
  EXPECT_EQ(zg.nclpx1, 0);
  EXPECT_EQ(zg.nclpx2, 2969);
  qqmove(0, 1200);
  qqdraw(2969, 1200);
  noclip();   // clpmod NONE: the page window stays
  sclpax(0);
  qqmove(0, 1400);
  qqdraw(2969, 1400);
  sclpax(1);
  const auto segs = close();
  ASSERT_EQ(segs.size(), 3u) << zbt::show(segs);
  EXPECT_TRUE(zbt::same_seg(segs[0], {501, 1000, 1498, 1000})) << zbt::show(segs);
  EXPECT_TRUE(zbt::same_seg(segs[1], {0, 1200, 2969, 1200})) << zbt::show(segs);
  EXPECT_TRUE(zbt::same_seg(segs[2], {0, 1400, 2969, 1400})) << zbt::show(segs);
}

TEST_F(Clip, CircleClipping) {
  open();
  axis_fields();
  setclp();   // centre (1000, 1000), radius 499
  clpmod("CIRC");
  sclpax(0);
  EXPECT_EQ(zg.iclpcirc, 1);
  EXPECT_EQ(jqqclp(1000, 1000), 0);
  EXPECT_EQ(jqqclp(1000, 1500), 1);
  qqmove(0, 1000);
  qqdraw(2000, 1000);   // both outside, through the centre
  qqmove(1000, 1000);
  qqdraw(1000, 2000);   // from the centre out
  qqmove(0, 0);
  qqdraw(2000, 0);      // misses
  qqmove(1100, 1100);
  qqdraw(1200, 1000);   // wholly inside
  qqmove(1000, 1000);
  qqdraw(1.0e7f, 1000);   // too far for the halvings
  qqmove(1000, 1000);
  qqdraw(1.0e30f, 1.0e30f);
  sclpax(1);
  EXPECT_EQ(zg.iclpcirc, 0);
  const auto segs = close();
  ASSERT_GE(segs.size(), 4u) << zbt::show(segs);
  EXPECT_TRUE(zbt::same_seg(segs[0], {501, 1000, 1499, 1000}, 0.02f)) << zbt::show(segs);
  EXPECT_TRUE(zbt::same_seg(segs[1], {1000, 1000, 1000, 1499}, 0.1f)) << zbt::show(segs);
  EXPECT_TRUE(zbt::same_seg(segs[2], {1100, 1100, 1200, 1000})) << zbt::show(segs);
  EXPECT_TRUE(zbt::same_seg(segs[3], {1000, 1000, 1499, 1000}, 0.1f)) << zbt::show(segs);
  for (const auto& s : segs) EXPECT_LE(std::hypot(s.x2 - 1000, s.y2 - 1000), 499.1f) << zbt::show(segs);
}

TEST_F(Clip, ClpwinAndGetclpRoundTripWithEitherPageOrigin) {
  for (const char* org : {"TOP", "BOTT"}) {
    open();
    pagorg(org);
    clpwin(100, 300, 201, 101);
    EXPECT_EQ(zg.iclpbd, 1);
    int nx, ny, nw, nh;
    getclp(nx, ny, nw, nh);
    EXPECT_EQ(nx, 100) << org;
    EXPECT_EQ(ny, 300) << org;
    EXPECT_EQ(nw, 201) << org;
    EXPECT_EQ(nh, 101) << org;
    // Measured from the bottom, the window lies at 1699..1799 from the top.
    EXPECT_EQ(zg.nclpy1, org[0] == 'T' ? 300 : 1699) << org;
    EXPECT_EQ(zg.nclpy2, org[0] == 'T' ? 400 : 1799) << org;
    reset("CLPW");
    EXPECT_EQ(zg.nclpx2, 2969);
    EXPECT_EQ(zg.nclpy2, 2099);
    pagorg("TOP");
    close();
  }
}

TEST_F(Clip, BadWindowsWarnAndChangeNothing) {
  open();
  clpwin(10, 10, 500, 500);
  struct Case { const char* line; int nx, ny, nw, nh; };
  const Case cases[] = {
      {" <<<< Warning   2: Incorrect parameter in CLPWIN!   (  -5)", -5, 10, 100, 100},
      {" <<<< Warning   2: Incorrect parameter in CLPWIN!   (  -7)", 10, -7, 100, 100},
      {" <<<< Warning   2: Incorrect parameter in CLPWIN!   (   0)", 10, 10, 0, 100},
      {" <<<< Warning   2: Incorrect parameter in CLPWIN!   (  -1)", 10, 10, 100, -1},
      {" <<<< Warning   2: Incorrect parameter in CLPWIN!   ( 100)", 2900, 10, 100, 100},
      {" <<<< Warning   2: Incorrect parameter in CLPWIN!   ( 100)", 10, 2050, 100, 100},
      {" <<<< Warning   2: Incorrect parameter in CLPWIN!   (2147483647)", 10, 10, 2147483647, 2147483647},
  };
  for (const auto& c : cases) {
    const Zorglb before = zg;
    clpwin(c.nx, c.ny, c.nw, c.nh);
    EXPECT_EQ(take_lines(), std::vector<std::string>{c.line});
    EXPECT_EQ(zg, zbt::with_warning_fields(before)) << c.line;
  }
  const Zorglb before = zg;
  clpmod("OVAL");
  EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Warning   2: Incorrect parameter in CLPMOD!   (OVAL)"});
  EXPECT_EQ(zg, zbt::with_warning_fields(before));
  clpbor("PAGE");   // needs an axis system
  EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Warning   3: Incorrect level in CLPBOR!   (   1)"});
  close();
}

TEST_F(Clip, ClpborAxisHoldsUntilTheAxisSystemEnds) {
  open();
  axis_fields();
  setclp();
  zg.ilevel = 2;   // an axis system stands
  clpbor("AXIS");
  EXPECT_EQ(zg.iclpbd, 2);
  EXPECT_EQ(zg.nclpx1, 501);
  sclpax(0);   // a curve's own clipping leaves it alone
  sclpax(1);
  EXPECT_EQ(zg.nclpx1, 501);
  clpbor("AXIS");   // again: still restores the page at the end
  release_axis_clip();
  EXPECT_EQ(zg.iclpbd, 0);
  EXPECT_EQ(zg.nclpx1, 0);
  EXPECT_EQ(zg.nclpx2, 2969);
  clpbor("AXIS");
  clpbor("PAGE");
  EXPECT_EQ(zg.iclpbd, 0);
  EXPECT_EQ(zg.nclpx1, 0);
  EXPECT_EQ(zg.nclpx2, 2969);
  zg.ilevel = 1;
  close();
}

TEST_F(Clip, BoxesClipToTheWindow) {
  open();
  clpwin(100, 100, 201, 101);
  float x1 = 50, y1 = 150, x2 = 400, y2 = 120;
  EXPECT_TRUE(clip_box(x1, y1, x2, y2));
  EXPECT_EQ(std::vector<float>({x1, y1, x2, y2}), std::vector<float>({100, 120, 300, 150}));
  float a = 0, b = 0, c = 50, d = 50;
  EXPECT_FALSE(clip_box(a, b, c, d));
  float n = kNaN, m = 0, o = 200, p = 200;
  EXPECT_FALSE(clip_box(n, m, o, p));
  close();
}

}  // namespace
