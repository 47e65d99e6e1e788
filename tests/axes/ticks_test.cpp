// Tick positions on linear, reversed and logarithmic axes, decade ticks, and the ticks as
// they reach the PostScript file.
#include <cmath>
#include <sstream>

#include "axes_support.h"

using namespace zb;

namespace {

class Ticks : public zbt::AxesTest {
 protected:
  using List = std::vector<std::pair<int, bool>>;   // position, major
  static List ticks_of(float xa, float xe, float xo, float xs, int nlen, int ntic, int ilog,
                       int iaxis) {
    List r;
    tick_marks(xa, xe, xo, xs, nlen, ntic, 500, 1500, ilog, iaxis,
               [&](int pos, bool major) { r.emplace_back(pos, major); });
    return r;
  }
  // Pen moves ("u") in the page body of the PostScript file.
  static int moves_in(const std::string& file) {
    const std::string ps = zbt::read_file(file);
    std::istringstream in(ps.substr(std::min(ps.size(), ps.find("setlinewidth"))));
    int n = 0;
    for (std::string tok; in >> tok;) n += tok == "u";
    return n;
  }
  static List evenly(int from, int step, int count, int every) {
    List r;
    for (int i = 0; i < count; ++i) r.emplace_back(from + i * step, i % every == 0);
    return r;
  }
};

TEST_F(Ticks, LinearAndReversedAxes) {
  // 100 plot units per user unit throughout.
  EXPECT_EQ(ticks_of(0, 10, 0, 2, 1001, 2, 0, 1), evenly(500, 100, 11, 2));
  // Ticks also stand before the first label.
  List before = {{550, false}};
  for (const auto& t : evenly(650, 100, 9, 2)) before.push_back(t);
  EXPECT_EQ(ticks_of(0.5f, 10, 2, 2, 951, 2, 0, 1), before);
  // A y axis runs up the page; with one tick per interval every tick is major.
  EXPECT_EQ(ticks_of(0, 8, 0, 2, 801, 1, 0, 2), evenly(1500, -200, 5, 1));
  // A reversed scaling draws toward the same plot direction.
  EXPECT_EQ(ticks_of(10, 0, 10, -2, 1001, 2, 0, 1), evenly(500, 100, 11, 2));
  EXPECT_EQ(ticks_of(0, 10, 0, 2, 1001, 0, 0, 1), List{});
  EXPECT_EQ(ticks_of(0, 10, 0, 2.5f, 1001, 5, 0, 1), evenly(500, 50, 21, 5));
}

TEST_F(Ticks, DecadesOnLogarithmicAxes) {
  List want = {{500, true}, {1000, true}, {1500, true}};
  for (int dec = 0; dec < 2; ++dec)
    for (int j = 2; j <= 9; ++j)
      want.emplace_back(500 + dec * 500 + int(std::lround(std::log10(double(j)) * 500.0)), false);
  EXPECT_EQ(ticks_of(0, 2, 0, 1, 1001, 2, 1, 1), want);
  // The minor ticks of the first decade, by hand.
  const List first(want.begin() + 3, want.begin() + 11);
  EXPECT_EQ(first, (List{{651, false}, {739, false}, {801, false}, {849, false}, {889, false},
                         {923, false}, {952, false}, {977, false}}));
  // One tick per interval: no decade ticks.
  EXPECT_EQ(ticks_of(0, 2, 0, 1, 1001, 1, 1, 1), (List{{500, true}, {1000, true}, {1500, true}}));
}

TEST_F(Ticks, LogticDecidesForWiderLabelSteps) {
  // Labels every two decades: AUTO divides the interval, FULL ticks every decade.
  EXPECT_EQ(ticks_of(0, 4, 0, 2, 1001, 2, 1, 1), evenly(500, 250, 5, 2));
  logtic("FULL");
  const List full = ticks_of(0, 4, 0, 2, 1001, 2, 1, 1);
  ASSERT_GE(full.size(), 5u);
  EXPECT_EQ(List(full.begin(), full.begin() + 5), evenly(500, 250, 5, 1));
  EXPECT_EQ(full.size(), 5u + 4u * 8u);
  // A label step that is no integer turns the decade ticks off.
  EXPECT_EQ(ticks_of(0, 2, 0, 0.5f, 1001, 2, 1, 1), evenly(500, 125, 9, 2));
}

TEST_F(Ticks, TooDenseToDraw) {
  EXPECT_EQ(ticks_of(0, 1.0e30f, 0, 1.0e-5f, 1001, 2, 0, 1), List{});
  EXPECT_EQ(ticks_of(0, 1.0e30f, 0, 1.0f, 1001, 2, 1, 1), List{});
}

TEST_F(Ticks, AxesOfASystemInThePostScriptFile) {
  labels("NONE", "XY");   // lines and ticks only, no strokes of text
  graf(0, 10, 0, 2, 0, 5, 0, 1);
  endgrf();
  zorfin();
  // Four axis lines, 11 ticks on each side, one frame.
  EXPECT_EQ(moves_in("axes.ps"), 4 + 44 + 1);
  std::string log;
  EXPECT_EQ(zbt::run("gs -q -dSAFER -dNOPAUSE -dBATCH -sDEVICE=nullpage axes.ps", &log), 0) << log;
  EXPECT_EQ(log.find("Error"), std::string::npos) << log;
}

TEST_F(Ticks, NografDrawsNothingAndTheLevelStands) {
  nograf();
  graf(0, 10, 0, 2, 0, 5, 0, 1);
  EXPECT_EQ(zg.ilevel, 2);
  EXPECT_EQ(placed, std::vector<zbt::Placed>{});
  endgrf();
  zorfin();
  EXPECT_EQ(moves_in("axes.ps"), 0);
}

}  // namespace
