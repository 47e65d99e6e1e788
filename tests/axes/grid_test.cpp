// Grid lines at the labels and between them on linear and logarithmic axes, lines and
// axes through the origin, and frames drawn outward and inward in their colour.
#include <algorithm>
#include <functional>
#include <set>

#include "axes_support.h"
#include "draw/line_support.h"

using namespace zb;

namespace {

using Lines = std::set<std::pair<int, int>>;   // x or y of a line, and its length

class Grids : public zbt::MetaSession {
 protected:
  // The axis system at (500, 1500), 1001 by 801 units, nothing drawn.
  void axes(float xa, float xe, float xo, float xs, float ya, float ye, float yo, float ys, bool logx = false) {
    open();
    if (logx) axsscl("LOG", "X");
    axspos(500, 1500);
    axslen(1001, 801);
    nograf();
    graf(xa, xe, xo, xs, ya, ye, yo, ys);
    take_text();
  }
  // Vertical and horizontal segments drawn, by their place and length.
  void split(const std::vector<zbt::Seg>& segs) {
    for (const auto& s : segs) {
      const int x1 = int(std::lround(s.x1)), x2 = int(std::lround(s.x2));
      const int y1 = int(std::lround(s.y1)), y2 = int(std::lround(s.y2));
      if (x1 == x2 && y1 != y2) vertical.insert({x1, std::abs(y2 - y1)});
      else if (y1 == y2 && x1 != x2) horizontal.insert({y1, std::abs(x2 - x1)});
    }
  }
  static Lines every(int from, int step, int count, int length) {
    Lines l;
    for (int i = 0; i < count; ++i) l.insert({from + i * step, length});
    return l;
  }
  Lines vertical, horizontal;
};

TEST_F(Grids, LinesAtTheLabelsAndBetween) {
  axes(0, 10, 0, 2, 0, 8, 0, 2);
  grid(1, 1);
  split(close());
  EXPECT_EQ(vertical, every(500, 200, 6, 800));
  EXPECT_EQ(horizontal, every(1500, -200, 5, 1000));

  vertical.clear();
  horizontal.clear();
  axes(0, 10, 0, 2, 0, 8, 0, 2);
  grid(2, 4);
  split(close());
  EXPECT_EQ(vertical, every(500, 100, 11, 800));
  EXPECT_EQ(horizontal, every(1500, -50, 17, 1000));
}

TEST_F(Grids, ZeroAndNegativeCountsDrawNoLinesOnThatAxis) {
  axes(0, 10, 0, 2, 0, 8, 0, 2);
  grid(0, 1);
  grid(-1, 0);
  EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Warning   2: Incorrect parameter in GRID!   (  -1)"});
  split(close());
  EXPECT_TRUE(vertical.empty());
  EXPECT_EQ(horizontal, every(1500, -200, 5, 1000));
}

TEST_F(Grids, LogarithmicGridFollowsTheDecades) {
  axes(0, 2, 0, 1, 0, 8, 0, 2, true);
  grid(2, 0);
  split(close());
  // Decades at 500, 1000, 1500 and the lines at 2 .. 9 times each decade.
  Lines want = {{500, 800}, {1000, 800}, {1500, 800}};
  for (int dec = 0; dec < 2; ++dec)
    for (int j = 2; j <= 9; ++j) want.insert({500 + dec * 500 + int(std::lround(std::log10(double(j)) * 500.0)), 800});
  EXPECT_EQ(vertical, want);
  EXPECT_TRUE(horizontal.empty());
}

TEST_F(Grids, LinesThroughTheOrigin) {
  struct Case {
    std::function<void()> call;
    Lines v, h;
  };
  // y from -4 to 4: y = 0 at 1100. x from 0 to 10 ends at 0: no line x = 0.
  const Case cases[] = {
      {[] { daxgit(3); }, {}, {{1100, 1000}}},
      {[] { daxgit(2); }, {}, {}},
  };
  for (const auto& c : cases) {
    vertical.clear();
    horizontal.clear();
    axes(0, 10, 0, 2, -4, 4, -4, 2);
    c.call();
    split(close());
    EXPECT_EQ(vertical, c.v);
    EXPECT_EQ(horizontal, c.h);
  }
  // Both scalings hold 0: x from -5 to 5 has x = 0 at 1000.
  for (int n : {1, 2, 3}) {
    vertical.clear();
    horizontal.clear();
    axes(-5, 5, -5, 1, -4, 4, -4, 2);
    daxgit(n);
    split(close());
    EXPECT_EQ(vertical, (n == 1 ? Lines{} : Lines{{1000, 800}})) << n;
    EXPECT_EQ(horizontal, (n == 2 ? Lines{} : Lines{{1100, 1000}})) << n;
  }
}

TEST_F(Grids, CrossedAxesThroughTheOriginWithoutLabels) {
  std::vector<zbt::Placed> texts;
  zbt::g_placed = &texts;
  set_axis_text_sink(zbt::record_text);
  axes(-5, 5, -5, 1, -4, 4, -4, 2);
  name("never", "XY");
  dcross(3);
  EXPECT_EQ(zg.ilabtp[0], 1);
  EXPECT_EQ(zg.ilabtp[1], 1);
  split(close());
  set_axis_text_sink(nullptr);
  zbt::g_placed = nullptr;
  EXPECT_TRUE(texts.empty());
  // The axis lines, and ticks on them of the tick length 24 and 16.
  EXPECT_TRUE(horizontal.count({1100, 1000}));
  EXPECT_TRUE(vertical.count({1000, 800}));
  EXPECT_TRUE(vertical.count({500, 24}));    // x tick at -5 down from y = 0
  EXPECT_TRUE(horizontal.count({1300, 24}));   // y tick at -2 left of x = 0
}

TEST_F(Grids, FramesOutwardInwardAndInTheirColour) {
  struct Case {
    int thickness;
    std::vector<int> d;   // distances of the rectangles outside the system
  };
  const Case cases[] = {{3, {0, 1, 2}}, {-3, {0, -1, -2}}, {0, {}}};
  for (const auto& c : cases) {
    vertical.clear();
    horizontal.clear();
    axes(0, 10, 0, 2, 0, 8, 0, 2);
    frame(c.thickness);
    box2d();
    split(close());
    Lines v, h;
    for (int d : c.d) {
      v.insert({500 - d, 800 + 2 * d});
      v.insert({1500 + d, 800 + 2 * d});
      h.insert({700 - d, 1000 + 2 * d});
      h.insert({1500 + d, 1000 + 2 * d});
    }
    EXPECT_EQ(vertical, v) << c.thickness;
    EXPECT_EQ(horizontal, h) << c.thickness;
  }
  open();
  setclr(30);
  frmclr(100);
  box2d();
  EXPECT_EQ(zg.ipenclr, 30);
  const Zorglb before = zg;
  frmclr(-2);
  EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Warning   2: Incorrect parameter in FRMCLR!   (  -2)"});
  EXPECT_EQ(zg, zbt::with_warning_fields(before));
  frame(-2000000000);
  EXPECT_EQ(zg.frame, -10000);
  reset("FRAME");
  EXPECT_EQ(zg.frame, 1);
  close();
}

TEST_F(Grids, NeedAnAxisSystem) {
  open();
  for (auto& call : std::vector<std::function<void()>>{[] { grid(1, 1); }, [] { daxgit(3); }, [] { dcross(3); }}) {
    const Zorglb before = zg;
    call();
    const auto lines = take_lines();
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_NE(lines[0].find("Warning   3: Incorrect level"), std::string::npos);
    EXPECT_EQ(zg, zbt::with_warning_fields(before));
  }
  close();
}

}  // namespace
