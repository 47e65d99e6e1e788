// The rl* twins in user coordinates: each lands where its plot-coordinate original with
// the hand-mapped arguments lands, is clipped to the axis system, ignores the page origin,
// refuses logarithmic faults, and converts radii in polar systems by the x factor.
#include "draw/prims_support.h"
#include "frame/page.h"

using namespace zb;
using zbt::Pt;
using zbt::Stroke;

namespace {

class Twins : public zbt::PrimsFixture {
 protected:
  // Strokes of a drawing inside the axis system of the fixture (100 units per user unit,
  // user (0, 0) at plot (500, 1800)).
  std::vector<Stroke> in_axes(const std::function<void()>& draw) {
    return strokes([&] {
      axes();
      draw();
      endgrf();
    }, false);
  }
  static void expect_same(const std::vector<Stroke>& a, const std::vector<Stroke>& b,
                          const std::string& what) {
    ASSERT_EQ(a.size(), b.size()) << what;
    for (std::size_t k = 0; k < a.size(); ++k) {
      ASSERT_EQ(a[k].size(), b[k].size()) << what << " stroke " << k;
      for (std::size_t i = 0; i < a[k].size(); ++i) {
        EXPECT_FLOAT_EQ(a[k][i].x, b[k][i].x) << what << " stroke " << k << " point " << i;
        EXPECT_FLOAT_EQ(a[k][i].y, b[k][i].y) << what << " stroke " << k << " point " << i;
      }
    }
  }
};

TEST_F(Twins, LandWhereTheUserCoordinatesSay) {
  struct Case { const char* what; std::function<void()> user, plot; };
  const float tx[3] = {1, 4, 2}, ty[3] = {1, 2, 4};
  const int ix[3] = {600, 900, 700}, iy[3] = {1700, 1600, 1400};
  const Case cases[] = {
      {"rlcirc", [] { rlcirc(5, 5, 1); }, [] { circle(1000, 1300, 100); }},
      {"rlell", [] { rlell(5, 5, 2, 1); }, [] { ellips(1000, 1300, 200, 100); }},
      {"rlarc", [] { rlarc(5, 5, 2, 1, 30, 200, 10); },
       [] { arcell(1000, 1300, 200, 100, 30, 200, 10); }},
      {"rlpie", [] { rlpie(5, 5, 1, 30, 200); }, [] { pie(1000, 1300, 100, 30, 200); }},
      {"rlrec", [] { rlrec(2, 8, 3, 2); }, [] { rectan(700, 1000, 300, 200); }},
      {"rlrnd", [] { rlrnd(2, 8, 3, 2, 5); }, [] { rndrec(700, 1000, 300, 200, 5); }},
      {"rlsymb", [] { rlsymb(8, 5, 5); }, [] { symbol(8, 1000, 1300); }},
      {"rlvec", [] { rlvec(1, 1, 9, 9, 1211); }, [] { vector(600, 1700, 1400, 900, 1211); }},
      {"rlwind", [] { rlwind(25, 5, 5, 150, 30); }, [] { windbr(25, 1000, 1300, 150, 30); }},
      {"rlsec", [] { rlsec(5, 5, 0.5f, 1, 0, 90, 7); },
       [] { sector(1000, 1300, 50, 100, 0, 90, 7); }},
      {"rlstrt", [] { rlstrt(1, 1); rlconn(9, 9); rlconn(9, 1); },
       [] { strtpt(600, 1700); connpt(1400, 900); connpt(1400, 1700); }},
      {"rlarea", [&] { rlarea(tx, ty, 3); }, [&] { areaf(ix, iy, 3); }},
  };
  for (const auto& c : cases) {
    const auto user = in_axes(c.user);
    EXPECT_FALSE(user.empty()) << c.what;
    expect_same(user, in_axes(c.plot), c.what);
    EXPECT_EQ(zg.nwarn, 0) << c.what;
  }
}

TEST_F(Twins, PageOriginAtTheBottomDoesNotMoveThem) {
  // The twins' y is a plot position already; their originals flip under BOTT.
  const auto bottom = in_axes([] {
    pagorg("BOTT");
    rlsymb(8, 5, 5);
    rlcirc(5, 5, 1);
    rlwind(65, 5, 5, 150, 30);
    pagorg("TOP");   // the page origin outlives the session
  });
  const auto top = in_axes([] {
    rlsymb(8, 5, 5);
    rlcirc(5, 5, 1);
    rlwind(65, 5, 5, 150, 30);
  });
  expect_same(bottom, top, "BOTT");
  const auto flipped = in_axes([] {
    pagorg("BOTT");
    symbol(8, 1000, zg.nypag - 1300);
    pagorg("TOP");
  });
  ASSERT_FALSE(flipped.empty());
  EXPECT_FLOAT_EQ(flipped[0][0].y, top[0][0].y);
}

TEST_F(Twins, SymbolAt999IsAPlotPosition) {
  // The axis system lies right of x = 1500: (999, 999) is outside it and still drawn.
  const auto s = strokes([] {
    axspos(1600, 1800);
    axslen(1001, 1001);
    nograf();
    float xa = 0, xe = 10, xo = 0, xs = 2, ya = 0, ye = 10, yo = 0, ys = 2;
    graf(xa, xe, xo, xs, ya, ye, yo, ys);
    rlsymb(3, 999.05f, 998.95f);
  }, false);
  ASSERT_EQ(s.size(), 2u);
  EXPECT_NEAR(s[0][0].x, 999.0f - 18.0f, 0.13f);
  EXPECT_NEAR(s[0][0].y, 999.0f, 0.13f);
}

TEST_F(Twins, ClippedToTheAxisSystemAndRestored) {
  // The same circle twice: as a twin it stops at the right edge of the clipping rectangle
  // of the axis system; drawn plainly after it, it is whole again.
  int edge = 0;
  const auto s = in_axes([&] {
    edge = zg.nclax2;
    rlcirc(9.5f, 5, 1);
    circle(1450, 1300, 100);
  });
  EXPECT_GT(edge, 1490);
  EXPECT_LT(edge, 1500);
  ASSERT_GE(s.size(), 2u);
  float twin_max = 0;
  for (std::size_t k = 0; k + 1 < s.size(); ++k)
    for (Pt p : s[k]) twin_max = std::max(twin_max, p.x);
  EXPECT_NEAR(twin_max, float(edge), 0.2f);
  float plain_max = 0;
  for (Pt p : s.back()) plain_max = std::max(plain_max, p.x);
  EXPECT_NEAR(plain_max, 1550.0f, 0.2f);
}

TEST_F(Twins, LogarithmicFaultAndLevel) {
  metafl("HPGL");
  zorini();
  rlcirc(5, 5, 1);
  EXPECT_EQ(take_lines(), std::vector<std::string>{
                              " <<<< Warning   3: Incorrect level in RLCIRC!   (   1)"});
  axsscl("LOG", "X");
  axes();
  take_lines();
  const Zorglb before = zg;
  rlcirc(-1, 5, 1);
  EXPECT_EQ(take_lines(), std::vector<std::string>{
                              " <<<< Warning  27: Non positive values for log scaling in RLCIRC!"});
  EXPECT_EQ(zg, zbt::with_warning_fields(before));
  endgrf();
  zorfin();
}

TEST_F(Twins, PolarRadiiUseTheXFactor) {
  // In a polar system a length is the value times the x factor, on both axes.
  const auto s = in_axes([] {
    zg.iaxknd = 1;
    zg.nxcros = 1000;
    zg.nycros = 1300;
    rlell(0, 0, 2, 1);
  });
  ASSERT_FALSE(s.empty());
  for (const auto& st : s)
    for (Pt p : st) {
      const float u = (p.x - 1000.0f) / 200.0f, v = (p.y - 1300.0f) / 100.0f;
      EXPECT_NEAR(u * u + v * v, 1.0f, 0.01f);
    }
}

TEST_F(Twins, BoxesAtUserPoints) {
  // pointx and rlpoin give the box of point at the mapped position.
  const std::string plot = ps_body([] {
    axes();
    point(1000, 1300, 20, 10, 40);
    endgrf();
  });
  const std::string user = ps_body([] {
    axes();
    pointx(5, 5, 20, 10, 40);
    rlpoin(5, 5, 20, 10, 40);
    endgrf();
  });
  // The box record of point, twice, and no other box.
  auto flat = [](std::string t) {
    std::erase(t, '\n');
    return t;
  };
  const std::string p = flat(plot), u = flat(user);
  const std::size_t e = p.find(" e ");
  ASSERT_NE(e, std::string::npos);
  const std::size_t start = p.rfind(" f ", e) + 3;
  const std::string rec = p.substr(start, e + 3 - start);
  // Box 990..1010 by 1295..1305 on the turned page: (y1, x1, y2, x2) times 3900 / 2100.
  EXPECT_EQ(rec.rfind("2405 1839 2424 1876 ", 0), 0u) << rec;
  const std::size_t first = u.find(rec), second = u.find(rec, first + 1);
  EXPECT_NE(first, std::string::npos) << u;
  EXPECT_NE(second, std::string::npos) << u;
  EXPECT_EQ(u.find(" e ", second + rec.size()), std::string::npos) << u;
  // rlpoin leaves out a point outside the scaling and says so; pointx draws it.
  const std::string out = ps_body([&] {
    axes();
    take_lines();
    rlpoin(11, 5, 20, 10, 40);
    EXPECT_EQ(take_lines(), std::vector<std::string>{
                                " <<<< (  0.1100E+02 /  0.5000E+01)  out of axis scaling!"});
    endgrf();
  });
  EXPECT_EQ(out.find(" e "), std::string::npos);
}

}  // namespace
