// The attribute cycle from curve to curve: colours, styles and symbols, inccrv, the wrap
// after 30, the legend records, what endgrf and reset restore; rejected calls and bad data.
#include <array>
#include <cmath>
#include <functional>
#include <limits>

#include "charts_support.h"
#include "draw/prims.h"
#include "frame/page.h"

using namespace zb;

namespace {

using Steps = std::vector<zbt::Step>;

class Attributes : public zbt::CurveTest {
 protected:
  void curves(int count) {
    const float x[] = {1, 2, 3}, y[] = {1, 2, 1};
    for (int i = 0; i < count; ++i) curve(x, y, 3);
  }
};

TEST_F(Attributes, ColourAndStyleFollowTheCycleAndComeBack) {
  begin();
  setclr(200);
  lintyp(5);
  chncrv("BOTH");
  clrcyc(2, 40);
  lincyc(3, 6);
  curves(3);
  // Each curve recorded its legend line with the attributes it was drawn with.
  EXPECT_EQ(zg.nlegcv, 3);
  EXPECT_EQ(std::vector<int>(zg.ilegco.begin(), zg.ilegco.begin() + 3),
            (std::vector<int>{zg.iclrcy[0], 40, zg.iclrcy[2]}));
  EXPECT_EQ(std::vector<int>(zg.ilegty.begin(), zg.ilegty.begin() + 3), (std::vector<int>{0, 1, 6}));
  EXPECT_EQ(zg.iatnum, 4);
  // The caller's colour and style are back after each curve.
  EXPECT_EQ(zg.ipenclr, 200);
  EXPECT_EQ(zg.itypln, 5);
  finish();
}

TEST_F(Attributes, NoChangeKeepsTheCurrentAttributes) {
  begin();
  setclr(77);
  curves(2);
  EXPECT_EQ(zg.ilegco[0], 77);
  EXPECT_EQ(zg.ilegco[1], 77);
  EXPECT_EQ(zg.ilegty[1], 0);
  // The index runs on all the same, so that chncrv can join in later.
  EXPECT_EQ(zg.iatnum, 3);
  finish();
}

TEST_F(Attributes, InccrvKeepsTheColourForSeveralCurves) {
  begin();
  chncrv("COLO");
  inccrv(2);
  curves(5);
  // Curves 1-2 have index 1, 3-4 index 2, 5 index 3; one legend line per set.
  EXPECT_EQ(zg.nlegcv, 3);
  EXPECT_EQ(std::vector<int>(zg.ilegco.begin(), zg.ilegco.begin() + 3),
            (std::vector<int>{zg.iclrcy[0], zg.iclrcy[1], zg.iclrcy[2]}));
  EXPECT_EQ(zg.iatnum, 3);
  EXPECT_EQ(zg.ncrvcn, 2);
  finish();
}

TEST_F(Attributes, TheCycleWrapsAfterThirty) {
  begin();
  chncrv("COLO");
  curves(29);
  EXPECT_EQ(zg.iatnum, 30);
  curves(1);
  EXPECT_EQ(zg.iatnum, 1);
  curves(1);
  EXPECT_EQ(zg.iatnum, 2);
  // Legend lines beyond 30 are counted, not recorded.
  EXPECT_EQ(zg.nlegcv, 31);
  finish();
}

TEST_F(Attributes, SymbolsCycleFromOneToNsymmxLessOne) {
  begin();
  incmrk(1);
  curves(1);
  EXPECT_EQ(zg.ilegsy[0], 0);   // the first curve has the symbol of marker
  EXPECT_EQ(zg.nsym, 1);
  curves(21);
  EXPECT_EQ(zg.nsym, 22);
  curves(1);
  EXPECT_EQ(zg.nsym, 1);
  // Without markers the symbol stays.
  incmrk(0);
  curves(3);
  EXPECT_EQ(zg.nsym, 1);
  finish();
}

TEST_F(Attributes, LegendRecordsLineSymbolAndThickness) {
  begin();
  thkcrv(2);
  marker(5);
  incmrk(-1);   // symbols only: no line style
  curves(1);
  incmrk(2);    // both
  curves(1);
  incmrk(0);    // line only: no symbol
  curves(1);
  EXPECT_EQ(std::vector<int>(zg.ilegty.begin(), zg.ilegty.begin() + 3), (std::vector<int>{-1, 0, 0}));
  EXPECT_EQ(std::vector<int>(zg.ilegsy.begin(), zg.ilegsy.begin() + 3), (std::vector<int>{5, 6, -1}));
  EXPECT_EQ(std::vector<int>(zg.ilegth.begin(), zg.ilegth.begin() + 3), (std::vector<int>{2, 2, 2}));
  EXPECT_EQ(zg.ilegpa[0], -1);
  // Samples given line by line: curves record nothing but their count.
  zg.ilegpt = 1;
  zg.ilegty[3] = 4;
  curves(1);
  EXPECT_EQ(zg.ilegty[3], 4);
  EXPECT_EQ(zg.nlegcv, 4);
  finish();
}

TEST_F(Attributes, EndgrfStartsTheCycleAgain) {
  begin();
  chncrv("BOTH");
  incmrk(1);
  marker(7);
  curves(4);
  endgrf();
  EXPECT_EQ(zg.iatnum, 1);
  EXPECT_EQ(zg.ncrvcn, 1);
  EXPECT_EQ(zg.iplegn, 1);
  EXPECT_EQ(zg.nsym, 0);
  EXPECT_EQ(zg.nlegcv, 0);
  EXPECT_EQ(zg.nlegct, 0);
  // chncrv and incmrk stay until reset.
  EXPECT_EQ(zg.ichncv, 3);
  EXPECT_EQ(zg.nmrk, 1);
  zorfin();
}

TEST_F(Attributes, ResetKeywordsAndDefaults) {
  begin();
  polcrv("stai");
  barwth(-12.0f);
  chncrv("LINE");
  splmod(5, 30);
  gapcrv(2.0f);
  EXPECT_EQ(zg.ipolcv, 6);
  for (const char* k : {"POLCRV", "BARWTH", "CHNCRV", "SPLMOD", "GAPCRV"}) reset(k);
  EXPECT_EQ(zg.ipolcv, 0);
  EXPECT_EQ(zg.xbarw, 0.75f);
  EXPECT_EQ(zg.ichncv, 0);
  EXPECT_EQ(zg.nspord, 3);
  EXPECT_EQ(zg.nsppts, 200);
  EXPECT_EQ(zg.igapcv, 0);
  hsymbl(50);
  int nsym = 0, nh = 0;
  marker(9);
  getsym(nsym, nh);
  EXPECT_EQ(nsym, 9);
  EXPECT_EQ(nh, 50);
  finish();
  // The symbol size follows the units at the start of a session.
  units("INCH");
  open();
  EXPECT_EQ(zg.hsym, 14);
  zorfin();
}

TEST_F(Attributes, RejectedSettingsChangeNothing) {
  begin();
  mysymb(std::array<float, 3>{0, 1, -1}.data(), std::array<float, 3>{1, -1, -1}.data(), 3, 30, 0);
  take_lines();
  struct Case {
    std::function<void()> call;
    std::string line;
  };
  const Case cases[] = {
      {[] { polcrv("CURV"); }, " <<<< Warning   2: Incorrect parameter in POLCRV!   (CURV)"},
      {[] { chncrv("ALL"); }, " <<<< Warning   2: Incorrect parameter in CHNCRV!   (ALL)"},
      {[] { marker(24); }, " <<<< Warning   2: Incorrect parameter in MARKER!   (  24)"},
      {[] { marker(-1); }, " <<<< Warning   2: Incorrect parameter in MARKER!   (  -1)"},
      {[] { hsymbl(0); }, " <<<< Warning   2: Incorrect parameter in HSYMBL!   (   0)"},
      {[] { inccrv(0); }, " <<<< Warning   2: Incorrect parameter in INCCRV!   (   0)"},
      {[] { splmod(1, 200); }, " <<<< Warning   2: Incorrect parameter in SPLMOD!   (   1)"},
      {[] { splmod(3, 4); }, " <<<< Warning   2: Incorrect parameter in SPLMOD!   (   4)"},
      {[] { gapcrv(NAN); }, " <<<< Warning   2: Incorrect parameter in GAPCRV!"},
      {[] { barwth(INFINITY); }, " <<<< Warning   2: Incorrect parameter in BARWTH!"},
  };
  for (const auto& c : cases) {
    const Zorglb before = zg;
    c.call();
    EXPECT_EQ(take_lines(), std::vector<std::string>{c.line});
    EXPECT_EQ(zg, zbt::with_warning_fields(before)) << c.line;
  }
  // The user symbol takes its own number, beyond the built-in ones.
  marker(30);
  EXPECT_EQ(zg.nsym, 30);
  finish();
}

TEST_F(Attributes, BadDataNeverCrashes) {
  begin();
  const float x1[] = {5}, y1[] = {5};
  struct Case {
    std::function<void()> call;
    std::string line;
  };
  const Case cases[] = {
      {[&] { curve(x1, y1, 0); }, " <<<< Warning   2: Incorrect parameter in CURVE!   (   0)"},
      {[&] { curve(x1, y1, -7); }, " <<<< Warning   2: Incorrect parameter in CURVE!   (  -7)"},
      // One point is no line.
      {[&] { curve(x1, y1, 1); }, " <<<< Warning   2: Incorrect parameter in CURVE!   (   1)"},
      {[&] { curve(nullptr, y1, 1); }, " <<<< Warning   2: Incorrect parameter in CURVE!   (   1)"},
  };
  for (const auto& c : cases) {
    const Zorglb before = zg;
    c.call();
    EXPECT_EQ(take_lines(), std::vector<std::string>{c.line});
    EXPECT_EQ(zg, zbt::with_warning_fields(before)) << c.line;
  }
  // Not-a-number and far values reach the page limited, in every mode.
  const float nan = std::numeric_limits<float>::quiet_NaN(), big = 3.0e38f;
  const float xs[] = {1, nan, 3, big, 5, -big, 7}, ys[] = {1, 2, nan, 4, big, 6, -big};
  nochek();
  for (const char* mode : {"LINE", "STEP", "BARS", "STEM", "STAI", "FBAR", "PSPL"}) {
    polcrv(mode);
    curve(xs, ys, 7);
  }
  incmrk(-1);
  curve(xs, ys, 7);
  take_lines();
  // A long curve streams through.
  incmrk(0);
  polcrv("LINE");
  std::vector<float> x(300000), y(300000);
  for (std::size_t i = 0; i < x.size(); ++i) {
    x[i] = 1.0f + 8.0f * float(i) / 300000.0f;
    y[i] = 5.0f + std::sin(float(i) * 0.001f);
  }
  curve(x.data(), y.data(), int(x.size()));
  EXPECT_TRUE(take_lines().empty());
  EXPECT_EQ(zg.cproc.view(), "CURVE");
  finish();
}

TEST_F(Attributes, CurveNeedsAnAxisSystemAndPositiveLogValues) {
  open();
  const float x[] = {1, 2}, y[] = {1, 2};
  curve(x, y, 2);
  EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Warning   3: Incorrect level in CURVE!   (   1)"});
  axsscl("LOG", "Y");
  nograf();
  float xa = 0, xe = 10, xo = 0, xs = 2, ya = 0, ye = 2, yo = 0, ys = 1;
  graf(xa, xe, xo, xs, ya, ye, yo, ys);
  const float yl[] = {1, 0};
  const Zorglb before = zg;
  curve(x, yl, 2);
  EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Warning  27: Non positive values for log scaling in CURVE!"});
  EXPECT_EQ(zg, zbt::with_warning_fields(before));
  EXPECT_TRUE(finish().empty());
}

}  // namespace
