// Arrows and wind barbs: the geometry of every head form and position of vector, the size
// digits, the direction in each quadrant, and the pennants and barbs of windbr.
#include "draw/prims_support.h"

using namespace zb;
using zbt::Pt;
using zbt::Stroke;

namespace {

class Arrows : public zbt::PrimsFixture {};

// Expected head: first base corner, tip, second corner, and the first again unless open.
// The corners lie w to the left and right of the base, across the page direction u.
Stroke head(Pt base, Pt tip, Pt u, float w, int d3) {
  const Pt n{-u.y, u.x};
  Stroke s = {{base.x + w * n.x, base.y + w * n.y}, tip, {base.x - w * n.x, base.y - w * n.y}};
  if (d3 != 2) s.push_back(s[0]);
  return s;
}

void expect_stroke(const Stroke& got, const Stroke& want, const std::string& what) {
  ASSERT_EQ(got.size(), want.size()) << what;
  for (std::size_t i = 0; i < want.size(); ++i) {
    EXPECT_NEAR(got[i].x, want[i].x, 0.2f) << what << " point " << i;
    EXPECT_NEAR(got[i].y, want[i].y, 0.2f) << what << " point " << i;
  }
}

TEST_F(Arrows, EveryFormAndPositionInEveryDirection) {
  struct Dir { int x1, y1, x2, y2; };
  // Right, up, left, down on the page, and two oblique ones (3-4-5 triangles).
  const Dir dirs[] = {{100, 500, 400, 500}, {300, 800, 300, 500}, {400, 500, 100, 500},
                      {300, 500, 300, 800}, {200, 800, 500, 400}, {500, 400, 200, 800}};
  for (const Dir& v : dirs)
    for (int d3 = 0; d3 <= 3; ++d3)
      for (int d4 = 0; d4 <= 3; ++d4) {
        const int ivec = 1200 + 10 * d3 + d4;   // h = 30, w = 10
        const std::string what = "ivec " + std::to_string(ivec) + " from " +
                                 std::to_string(v.x1) + "," + std::to_string(v.y1);
        const auto s = strokes([&] { vector(v.x1, v.y1, v.x2, v.y2, ivec); }, false);
        const Pt a{float(v.x1), float(v.y1)}, b{float(v.x2), float(v.y2)};
        const float len = zbt::dist(a, b), h = 30.0f, w = 10.0f;
        const Pt u{(b.x - a.x) / len, (b.y - a.y) / len};
        auto at = [&](float d) { return Pt{a.x + d * u.x, a.y + d * u.y}; };

        std::vector<Stroke> want;
        if (d4 == 0 || d3 != 1) want.push_back({a, b});
        if (d3 == 1 && d4 != 0) want.push_back({at(d4 < 2 ? 0.0f : h), at(len - h)});
        if (d4 != 0) want.push_back(head(at(len - h), b, u, w, d3));
        if (d4 == 2) want.push_back(head(at(h), a, u, w, d3));
        if (d4 == 3) want.push_back(head(a, at(h), u, w, d3));

        // Filled heads add scan lines behind each head outline; they lie inside the head.
        std::vector<Stroke> outline;
        for (std::size_t k = 0; k < s.size(); ++k) {
          const bool scan = d3 == 0 && k > 0 && s[k].size() == 2;
          if (!scan) {
            outline.push_back(s[k]);
            continue;
          }
          EXPECT_FLOAT_EQ(s[k][0].y, s[k][1].y) << what;
          const Stroke& hd = outline.back();
          for (Pt p : s[k]) {
            EXPECT_GE(p.x, std::min({hd[0].x, hd[1].x, hd[2].x}) - 0.5f) << what;
            EXPECT_LE(p.x, std::max({hd[0].x, hd[1].x, hd[2].x}) + 0.5f) << what;
          }
        }
        if (d3 == 0 && d4 != 0) EXPECT_GT(s.size(), outline.size()) << what;
        ASSERT_EQ(outline.size(), want.size()) << what;
        for (std::size_t k = 0; k < want.size(); ++k)
          expect_stroke(outline[k], want[k], what + " stroke " + std::to_string(k));
      }
}

TEST_F(Arrows, SizeDigits) {
  // d1 widens the base: w = h (d1 + 0.5) / 4.5; d2 lengthens the head: h = 10 d2 + 10.
  for (int d1 : {0, 4, 9})
    for (int d2 : {0, 3, 9}) {
      const int ivec = 1000 * d1 + 100 * d2 + 21;   // open head at the end
      const auto s = strokes([&] { vector(100, 1000, 1100, 1000, ivec); }, false);
      ASSERT_EQ(s.size(), 2u) << ivec;
      const float h = 10.0f * float(d2) + 10.0f, w = h * (float(d1) + 0.5f) / 4.5f;
      EXPECT_NEAR(s[1][1].x - s[1][0].x, h, 0.2f) << ivec;
      EXPECT_NEAR(s[1][0].y - s[1][2].y, 2.0f * w, 0.3f) << ivec;
    }
}

TEST_F(Arrows, DigitsAboveThreeWarnAfterTheLine) {
  const auto s = strokes([&] {
    vector(100, 500, 400, 500, 1241);
    EXPECT_EQ(take_lines(), std::vector<std::string>{
                                " <<<< Warning   2: Incorrect parameter in VECTOR!   (   4)"});
    vector(100, 600, 400, 600, 1215);   // d3 is 1: no full line, then the warning
    EXPECT_EQ(take_lines(), std::vector<std::string>{
                                " <<<< Warning   2: Incorrect parameter in VECTOR!   (   5)"});
  }, false);
  ASSERT_EQ(s.size(), 1u);   // only the line of the first call stays
  EXPECT_FLOAT_EQ(s[0][0].y, 500.0f);
}

// Paths and fills of one wind barb at (1000, 1000), staff 200, on PostScript.
class Barbs : public zbt::PrimsFixture {
 public:
  zbt::PsShapes draw(float xv, float a = 0.0f) {
    return zbt::ps_shapes(ps_body([&] { windbr(xv, 1000, 1000, 200, a); }));
  }
};

TEST_F(Barbs, PennantsBarbsAndHalfBarbs) {
  struct Case { float xv; std::size_t lines, pennants; };
  // Speed rounded to 5 with 2 as the threshold: 50 a pennant, 10 a barb, 5 a half barb.
  const Case cases[] = {
      {3, 2, 0},  {2, 1, 0},  {7, 2, 0},   {10, 2, 0},  {15, 3, 0},  {48, 1, 1},
      {52, 1, 1}, {65, 3, 1}, {100, 1, 2}, {135, 5, 2}, {0.4f, 2, 0},
  };
  for (const auto& c : cases) {
    const auto sh = draw(c.xv);
    EXPECT_EQ(sh.paths.size(), c.lines) << "speed " << c.xv;
    EXPECT_EQ(sh.fills.size(), c.pennants) << "speed " << c.xv;
  }
  // Calm: two rings of the circle symbol, the second a fifth smaller, no staff.
  const auto calm = draw(0.4f);
  EXPECT_EQ(calm.paths[0].size(), 19u);
  EXPECT_EQ(calm.paths[1].size(), 19u);
}

TEST_F(Barbs, StaffPointsIntoTheWindAndBarbsLeanOutward) {
  // a = 0: the staff goes up the page; a barb of 10 ends right of the staff and further up.
  const auto up = strokes([] { windbr(10, 1000, 1000, 200, 0); }, false);
  ASSERT_EQ(up.size(), 2u);
  EXPECT_NEAR(up[0][1].x, 1000.0f, 0.2f);
  EXPECT_NEAR(up[0][1].y, 800.0f, 0.2f);
  EXPECT_NEAR(up[1][0].y, 800.0f, 0.2f);
  EXPECT_NEAR(up[1][1].x, 1036.0f, 0.2f);
  EXPECT_NEAR(up[1][1].y, 788.0f, 0.2f);
  // a = 90 turns the staff to the right.
  const auto right = strokes([] { windbr(10, 1000, 1000, 200, 90); }, false);
  EXPECT_NEAR(right[0][1].x, 1200.0f, 0.2f);
  EXPECT_NEAR(right[0][1].y, 1000.0f, 0.2f);
  // A lone half barb sits half a symbol away from the end of the staff.
  const auto half = strokes([] { windbr(5, 1000, 1000, 200, 0); }, false);
  ASSERT_EQ(half.size(), 2u);
  EXPECT_NEAR(half[1][0].y, 818.0f, 0.2f);
  EXPECT_NEAR(half[1][1].x, 1018.0f, 0.2f);
  // The pattern comes back after the pennants.
  strokes([] {
    shdpat(5);
    windbr(60, 1000, 1000, 200, 0);
    EXPECT_EQ(zg.ipatnr, 5);
  });
}

}  // namespace
