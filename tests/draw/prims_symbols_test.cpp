// Symbols: the outlines of all 24 built-in markers, their fill, rotation and size, the
// user symbol, and the out-of-page line.
#include "draw/prims_support.h"

using namespace zb;
using zbt::Pt;
using zbt::Stroke;

namespace {

class Symbols : public zbt::PrimsFixture {
 protected:
  // Strokes of one symbol at (1000, 1000), each move a stroke of its own.
  std::vector<Stroke> draw(int nsym) {
    return strokes([&] { symbol(nsym, 1000, 1000); }, false);
  }
};

// Outline points relative to the centre at the default size 36: 50 percent is 18.
const Stroke kSquare = {{-18, -18}, {-18, 18}, {18, 18}, {18, -18}, {-18, -18}};
const Stroke kTriangleUp = {{0, -18}, {18, 18}, {-18, 18}, {0, -18}};
const Stroke kDiamond = {{0, -18}, {18, 0}, {0, 18}, {-18, 0}, {0, -18}};

void expect_outline(const Stroke& got, const Stroke& want, Pt at, const char* what) {
  ASSERT_EQ(got.size(), want.size()) << what;
  for (std::size_t i = 0; i < want.size(); ++i) {
    EXPECT_NEAR(got[i].x, at.x + want[i].x, 0.13f) << what << " point " << i;
    EXPECT_NEAR(got[i].y, at.y + want[i].y, 0.13f) << what << " point " << i;
  }
}

TEST_F(Symbols, EveryBuiltInSymbol) {
  struct Case { int nsym; std::vector<std::size_t> outline; bool filled; };
  // Points of each outline stroke in table order; filled symbols add scan lines.
  const Case cases[] = {
      {0, {5}, false},          {1, {9}, false},         {2, {4}, false},
      {3, {2, 2}, false},       {4, {2, 2}, false},      {5, {5}, false},
      {6, {4}, false},          {7, {5, 2, 2}, false},   {8, {2, 2, 2, 2}, false},
      {9, {5, 2, 2}, false},    {10, {9, 2, 2}, false},  {11, {4, 4}, false},
      {12, {5, 2, 2}, false},   {13, {9, 2, 2}, false},  {14, {5, 4}, false},
      {15, {19}, false},        {16, {5}, true},         {17, {9}, true},
      {18, {4}, true},          {19, {5}, true},         {20, {4}, true},
      {21, {19}, true},         {22, {11}, false},       {23, {11}, true},
  };
  for (const auto& c : cases) {
    const auto s = draw(c.nsym);
    ASSERT_GE(s.size(), c.outline.size()) << "symbol " << c.nsym;
    for (std::size_t k = 0; k < c.outline.size(); ++k)
      EXPECT_EQ(s[k].size(), c.outline[k]) << "symbol " << c.nsym << " stroke " << k;
    // Everything within the symbol box of 36 around the centre.
    for (const auto& st : s)
      for (Pt p : st) {
        EXPECT_LE(std::fabs(p.x - 1000.0f), 18.2f) << "symbol " << c.nsym;
        EXPECT_LE(std::fabs(p.y - 1000.0f), 18.2f) << "symbol " << c.nsym;
      }
    if (!c.filled) {
      EXPECT_EQ(s.size(), c.outline.size()) << "symbol " << c.nsym;
      continue;
    }
    // Scan lines 0.75 apart cover the height: about 48 for a full-height symbol.
    EXPECT_GE(s.size() - 1, 20u) << "symbol " << c.nsym;
    for (std::size_t k = 1; k < s.size(); ++k) {
      ASSERT_EQ(s[k].size(), 2u) << "symbol " << c.nsym;
      EXPECT_FLOAT_EQ(s[k][0].y, s[k][1].y) << "symbol " << c.nsym;
    }
  }
}

TEST_F(Symbols, OutlinesOfTheTable) {
  expect_outline(draw(0)[0], kSquare, {1000, 1000}, "square");
  expect_outline(draw(16)[0], kSquare, {1000, 1000}, "filled square");
  expect_outline(draw(2)[0], kTriangleUp, {1000, 1000}, "triangle up");
  expect_outline(draw(5)[0], kDiamond, {1000, 1000}, "diamond");
  // The half circle is the upper half, closed over its flat side.
  const Stroke half = draw(22)[0];
  EXPECT_NEAR(half.front().x, half.back().x, 0.01f);
  EXPECT_NEAR(half.front().y, half.back().y, 0.01f);
  for (Pt p : half) EXPECT_LE(p.y, 1000.0f);
  // Symbol 11 is triangle down, then triangle up.
  const auto star = draw(11);
  EXPECT_NEAR(star[0][1].y, 1018.0f, 0.13f);
  EXPECT_NEAR(star[1][0].y, 982.0f, 0.13f);
}

TEST_F(Symbols, RotationAndSize) {
  // symrot turns counter-clockwise on the page: the apex of triangle up points left.
  const auto turned = strokes([] {
    symrot(90);
    symbol(2, 1000, 1000);
    symbol(18, 1500, 1000);
  }, false);
  expect_outline(turned[0], {{-18, 0}, {18, -18}, {18, 18}, {-18, 0}}, {1000, 1000}, "turned");
  // The filled one turns the same way, scan lines included.
  const auto filled = std::find_if(turned.begin() + 1, turned.end(),
                                   [](const Stroke& s) { return s[0].x > 1400.0f; });
  ASSERT_NE(filled, turned.end());
  expect_outline(*filled, {{-18, 0}, {18, -18}, {18, 18}, {-18, 0}}, {1500, 1000}, "filled");
  for (auto it = filled + 1; it != turned.end(); ++it)
    for (Pt p : *it) EXPECT_GE(p.x, 1500.0f - 18.2f);

  const auto big = strokes([] {
    zg.hsym = 100;
    symbol(0, 1000, 1000);
  }, false);
  ASSERT_EQ(big.size(), 1u);
  EXPECT_NEAR(big[0][2].x, 1050.0f, 0.13f);
  EXPECT_NEAR(big[0][2].y, 1050.0f, 0.13f);
}

TEST_F(Symbols, UserSymbolHasYUpAndAnyNumber) {
  const float x[4] = {0.0f, 1.0f, -1.0f, 0.0f}, y[4] = {1.0f, -1.0f, -1.0f, 1.0f};
  const auto s = strokes([&] {
    mysymb(x, y, 4, 24, 0);
    symbol(24, 1000, 1000);   // 24 is above nsymmx, and drawn
  }, false);
  ASSERT_EQ(s.size(), 1u);
  expect_outline(s[0], {{0, -18}, {18, 18}, {-18, 18}, {0, -18}}, {1000, 1000}, "user");
  EXPECT_EQ(zg.nwarn, 0);

  // A filled user symbol adds scan lines; it may take a built-in number.
  const auto f = strokes([&] {
    mysymb(x, y, 4, 3, 1);
    symbol(3, 1000, 1000);
  }, false);
  EXPECT_EQ(f[0].size(), 4u);
  EXPECT_GT(f.size(), 20u);
}

TEST_F(Symbols, UserSymbolOutOfRangeIsStoredWithWarning) {
  metafl("HPGL");
  zorini();
  const float x[2] = {0.0f, 1.5f}, y[2] = {0.0f, 0.0f};
  mysymb(x, y, 2, 30, 0);
  EXPECT_EQ(take_lines(),
            std::vector<std::string>{" <<<< Warning 101: Values out of range in MYSYMB!"});
  EXPECT_EQ(zg.nmysym, 2);
  EXPECT_EQ(zg.imysym, 30);
  zorfin();
}

TEST_F(Symbols, OutOfPageIsCountedAndStillDrawn) {
  const auto s = strokes([&] {
    symbol(3, 2970, 100);
    EXPECT_EQ(zg.nwarn, 1);
    EXPECT_EQ(take_lines(), std::vector<std::string>{
                                " >>>> (    2970/     100) out of page in SYMBOL!"});
    symbol(3, 100, -5);
    EXPECT_EQ(take_lines(), std::vector<std::string>{
                                " >>>> (     100/      -5) out of page in SYMBOL!"});
  }, false);
  // The vertical bar of the first plus is cut away by the page, the horizontal one is cut.
  ASSERT_FALSE(s.empty());
  for (const auto& st : s)
    for (Pt p : st) EXPECT_LE(p.x, float(zg.nxpag) + 0.01f);
}

}  // namespace
