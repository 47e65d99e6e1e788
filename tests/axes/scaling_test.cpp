// The 2-D axis system: automatic scaling to round values, the checks of graf, the levels
// it reaches, crossed systems and centring.
#include <cmath>

#include "axes_support.h"

using namespace zb;

namespace {

class Scaling : public zbt::AxesTest {};

TEST_F(Scaling, AutomaticScalingRoundsFirstLabelAndStep) {
  struct Row {
    float mn, mx;
    int iaxis, nlen;
    const char* type;
    bool log;
    float a, e, o, s;
    int digits;
  };
  const Row rows[] = {
      {0.0f, 7.0f, 1, 1500, "FLOA", false, 0.0f, 7.0f, 0.0f, 1.0f, -1},
      {0.0f, 7.0f, 1, 1200, "FLOA", false, 0.0f, 7.0f, 0.0f, 2.0f, -1},
      {0.0137f, 0.0921f, 1, 1100, "FLOA", false, 0.0137f, 0.0921f, 0.02f, 0.02f, 2},
      {-3.7e4f, 1.2e5f, 2, 700, "EXP", false, -3.7e4f, 1.2e5f, -2.0e4f, 2.0e4f, 1},
      {1.0f, 2.0f, 1, 1980, "FLOA", false, 1.0f, 2.0f, 1.0f, 0.2f, 1},
      {3.0f, 5.5f, 2, 1400, "FLOA", false, 3.0f, 5.5f, 3.0f, 0.5f, 1},
      {0.0f, 7.0e6f, 1, 1980, "EXP", false, 0.0f, 7.0e6f, 0.0f, 2.0e6f, 1},
      {3.1e5f, 9.9e5f, 1, 1980, "EXP", false, 3.1e5f, 9.9e5f, 4.0e5f, 1.0e5f, 2},
      {-1234.5f, -1234.1f, 1, 1980, "FLOA", false, -1234.5f, -1234.1f, -1234.5f, 0.1f, 1},
      {1.0f, 1.0e12f, 1, 1980, "FLOA", true, 0.0f, 12.0f, 0.0f, 2.0f, -1},
      {1.0f, 1.0e12f, 1, 900, "FLOA", true, 0.0f, 12.0f, 0.0f, 5.0f, -1},
      {1.0e3f, 1.0e6f, 2, 1400, "FLOA", true, 3.0f, 6.0f, 3.0f, 1.0f, -1},
      {2.0f, 4.0e4f, 2, 1400, "FLOA", true, std::log10(2.0f), std::log10(4.0e4f), 1.0f, 1.0f, -1},
  };
  for (const Row& r : rows) {
    SCOPED_TRACE(std::to_string(r.mn) + " .. " + std::to_string(r.mx) + " on " + std::to_string(r.nlen));
    zb::resall();
    if (r.iaxis == 1) axslen(r.nlen, 1000);
    else axslen(1000, r.nlen);
    labels(r.type, "XY");
    if (r.log) axsscl("LOG", "XY");
    const float data[] = {r.mx, r.mn, (r.mn + r.mx) / 2.0f};
    setscl(data, 3, r.iaxis == 1 ? "X" : "Y");
    float a = 99, e = 99, o = 99, s = 99;
    gscale(a, e, o, s, r.iaxis);
    EXPECT_FLOAT_EQ(a, r.a);
    EXPECT_FLOAT_EQ(e, r.e);
    EXPECT_FLOAT_EQ(o, r.o);
    EXPECT_FLOAT_EQ(s, r.s);
    EXPECT_EQ(zg.ilabdg[std::size_t(r.iaxis - 1)], r.digits);
  }
  EXPECT_EQ(take_lines(), std::vector<std::string>{});
}

TEST_F(Scaling, SetsclFeedsGrafThroughTheCallersVariables) {
  place();
  const float x[] = {0.3f, 6.8f, 2.0f};
  const float y[] = {-0.45f, 0.2f};
  setscl(x, 3, "X");
  setscl(y, 2, "YAX");
  float xa = 0, xe = 0, xo = 0, xs = 0, ya = 0, ye = 0, yo = 0, ys = 0;
  zb::graf(xa, xe, xo, xs, ya, ye, yo, ys);
  EXPECT_EQ(zg.ilevel, 2);
  // 6.5 units on 1001 points: 1001 / 6 < 200 doubles the step.
  EXPECT_EQ((std::vector<float>{xa, xe, xo, xs}), (std::vector<float>{0.3f, 6.8f, 2.0f, 2.0f}));
  EXPECT_FLOAT_EQ(ya, -0.45f);
  EXPECT_FLOAT_EQ(ye, 0.2f);
  EXPECT_FLOAT_EQ(yo, -0.4f);
  EXPECT_FLOAT_EQ(ys, 0.1f);
  EXPECT_EQ(zg.ilabdg[0], -1);
  EXPECT_EQ(zg.ilabdg[1], 1);
  // Switched off again: the caller's scaling stands as given.
  endgrf();
  setscl(nullptr, 0, "RESET");
  graf(0, 1, 0, 0.5f, 0, 1, 0, 0.5f);
  EXPECT_FLOAT_EQ(zg.xe, 1.0f);
  EXPECT_EQ(take_lines(), std::vector<std::string>{});
}

TEST_F(Scaling, LogScalingRepairsNonPositiveData) {
  axsscl("LOG", "X");
  const float both[] = {-3.0f, 0.0f};
  setscl(both, 2, "X");
  float a = 0, e = 0, o = 0, s = 0;
  gscale(a, e, o, s, 1);
  EXPECT_EQ(take_lines(),
            (std::vector<std::string>{
                " <<<< Warning  23: Non positive minimum for log scaling (set to 0.1) in SETSCL!",
                " <<<< Warning  24: Non positive maximum for log scaling (set to 1.0) in SETSCL!"}));
  EXPECT_FLOAT_EQ(a, -1.0f);
  EXPECT_FLOAT_EQ(e, 0.0f);
  EXPECT_FLOAT_EQ(zg.xmn[0], 0.1f);
  EXPECT_FLOAT_EQ(zg.xmx[0], 1.0f);
  EXPECT_EQ(zg.ilabst[0], 1);   // powers of ten

  const float low[] = {0.0f, 500.0f};
  setscl(low, 2, "X");
  gscale(a, e, o, s, 1);
  EXPECT_EQ(take_lines(), std::vector<std::string>{
      " <<<< Warning  23: Non positive minimum for log scaling (set to 0.1) in SETSCL!"});
  EXPECT_FLOAT_EQ(a, -1.0f);
  EXPECT_FLOAT_EQ(e, std::log10(500.0f));
}

TEST_F(Scaling, ConstantDataWidenByOneEachSide) {
  const float flat[] = {4.0f, 4.0f, 4.0f};
  setscl(flat, 3, "XY");
  EXPECT_EQ(take_lines(), std::vector<std::string>{
      " <<<< Warning  25: Minimum equal maximum (added -1 and +1) in SETSCL!"});
  EXPECT_EQ(zg.xmn, (std::array<float, 3>{3.0f, 3.0f, 0.0f}));
  EXPECT_EQ(zg.xmx, (std::array<float, 3>{5.0f, 5.0f, 0.0f}));
  EXPECT_EQ(zg.iautox + zg.iautoy + zg.iautoz, 2);
}

TEST_F(Scaling, SetsclRejectsWhatItCannotRead) {
  const float nan[] = {NAN, NAN};
  struct Row {
    const float* data;
    int n;
    const char* key;
    const char* line;
  };
  const Row rows[] = {
      {nan, 2, "X", " <<<< Warning   2: Incorrect parameter in SETSCL!   (   2)"},
      {nan, 0, "X", " <<<< Warning   2: Incorrect parameter in SETSCL!   (   0)"},
      {nan, 2, "AB", " <<<< Warning   2: Incorrect parameter in SETSCL!   (AB)"},
  };
  for (const Row& r : rows) {
    Zorglb before = zg;
    setscl(r.data, r.n, r.key);
    EXPECT_EQ(take_lines(), std::vector<std::string>{r.line});
    EXPECT_EQ(zg, zbt::with_warning_fields(before));
  }
}

TEST_F(Scaling, BadScalingsWarnAndLeaveTheLibraryAtLevel1) {
  struct Row {
    float xa, xe, xo, xs;
    const char* line;
  };
  const Row rows[] = {
      {1.0f, 1.0f, 1.0f, 1.0f, " <<<< Warning  10: Begin and end of scaling are equal in GRAF!"},
      {NAN, 1.0f, 0.0f, 1.0f, " <<<< Warning  10: Begin and end of scaling are equal in GRAF!"},
      {0.0f, INFINITY, 0.0f, 1.0f, " <<<< Warning  10: Begin and end of scaling are equal in GRAF!"},
      {0.0f, 1.0f, 0.0f, 0.0f, " <<<< Warning   9: Step equal zero in GRAF!"},
      {0.0f, 1.0f, 0.0f, 1.0e-36f, " <<<< Warning   9: Step equal zero in GRAF!"},
      {0.0f, 1.0f, 0.0f, NAN, " <<<< Warning   9: Step equal zero in GRAF!"},
      {0.0f, 1.0f, NAN, 0.5f, " <<<< Warning  12: Startlabel out of scaling in GRAF!"},
  };
  for (const Row& r : rows) {
    SCOPED_TRACE(r.line);
    Zorglb before = zg;
    graf(r.xa, r.xe, r.xo, r.xs, 0.0f, 1.0f, 0.0f, 0.5f);
    EXPECT_EQ(take_lines(), std::vector<std::string>{r.line});
    EXPECT_EQ(zg, zbt::with_warning_fields(before));
    // The same on the y axis.
    before = zg;
    graf(0.0f, 1.0f, 0.0f, 0.5f, r.xa, r.xe, r.xo, r.xs);
    EXPECT_EQ(take_lines(), std::vector<std::string>{r.line});
    EXPECT_EQ(zg, zbt::with_warning_fields(before));
  }
  // An axis shorter than two points cannot carry a scaling.
  zg.nxl = 1;
  Zorglb before = zg;
  graf(0, 1, 0, 0.5f, 0, 1, 0, 0.5f);
  EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Warning  11: Axis length < 2 in GRAF!"});
  EXPECT_EQ(zg, zbt::with_warning_fields(before));
  EXPECT_EQ(zg.ilevel, 1);
}

TEST_F(Scaling, DoubtfulLabelsWarnButTheSystemStands) {
  // First label outside, or a step against the direction: warned, drawn as far as it goes.
  struct Row {
    float xa, xe, xo, xs;
    std::vector<std::string> lines;
  };
  const Row rows[] = {
      {0.0f, 10.0f, 12.0f, 2.0f, {" <<<< Warning  12: Startlabel out of scaling in GRAF!"}},
      {0.0f, 10.0f, 0.0f, -2.0f, {" <<<< Warning  50: Incorrect sign for step in GRAF!"}},
      {10.0f, 0.0f, 10.0f, 2.0f, {" <<<< Warning  50: Incorrect sign for step in GRAF!"}},
      {10.0f, 0.0f, -1.0f, 2.0f, {" <<<< Warning  12: Startlabel out of scaling in GRAF!",
                                  " <<<< Warning  50: Incorrect sign for step in GRAF!"}},
      {10.0f, 0.0f, 10.0f, -2.0f, {}},
  };
  for (const Row& r : rows) {
    place();
    graf(r.xa, r.xe, r.xo, r.xs, 0.0f, 1.0f, 0.0f, 0.5f);
    EXPECT_EQ(take_lines(), r.lines);
    EXPECT_EQ(zg.ilevel, 2);
    endgrf();
    EXPECT_EQ(zg.ilevel, 1);
  }
}

TEST_F(Scaling, GrafOnlyAtLevel1) {
  graf(0, 1, 0, 0.5f, 0, 1, 0, 0.5f);
  EXPECT_EQ(zg.ilevel, 2);
  EXPECT_EQ(zg.iaxknd, 0);
  take_lines();
  Zorglb before = zg;
  graf(0, 2, 0, 0.5f, 0, 2, 0, 0.5f);
  EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Warning   3: Incorrect level in GRAF!   (   2)"});
  EXPECT_EQ(zg, zbt::with_warning_fields(before));
  endgrf();
  zorfin();
  take_lines();
  endgrf();
  EXPECT_EQ(zg.ilevel, 0);
}

TEST_F(Scaling, StoredTransformation) {
  place();
  graf(10.0f, 0.0f, 10.0f, -2.0f, -1.0f, 1.0f, -1.0f, 0.5f);
  EXPECT_FLOAT_EQ(zg.xscl, -100.0f);
  EXPECT_FLOAT_EQ(zg.yscl, 400.0f);
  EXPECT_FLOAT_EQ(zg.xpos0, 500.0f);
  EXPECT_FLOAT_EQ(zg.ypos0, 1500.0f);
  // Sorted, so that the point test still works on a reversed axis.
  EXPECT_FLOAT_EQ(zg.xumin, 0.0f);
  EXPECT_FLOAT_EQ(zg.xumax, 10.0f);
  endgrf();
  axsscl("LOG", "Y");
  graf(0, 10, 0, 2, 0.0f, 3.0f, 0.0f, 1.0f);
  EXPECT_FLOAT_EQ(zg.yumin, 1.0f);
  EXPECT_FLOAT_EQ(zg.yumax, 1000.0f);
  endgrf();
  // After automatic scaling a log axis keeps the data's own range.
  const float data[] = {3.0f, 70.0f};
  setscl(data, 2, "Y");
  graf(0, 10, 0, 2, 0, 0, 0, 0);
  EXPECT_FLOAT_EQ(zg.yumin, 3.0f);
  EXPECT_FLOAT_EQ(zg.yumax, 70.0f);
}

TEST_F(Scaling, CrossedSystemsNeedTheOriginAndLinearAxes) {
  axstyp("CROS");
  place();
  Zorglb before = zg;
  graf(1, 10, 1, 1, -1, 1, -1, 0.5f);
  EXPECT_EQ(take_lines(), std::vector<std::string>{
      " <<<< Warning 101: No origin found for crossed axis system in GRAF!"});
  EXPECT_EQ(zg, zbt::with_warning_fields(before));
  axsscl("LOG", "X");
  before = zg;
  graf(0, 1, 0, 1, -1, 1, -1, 0.5f);
  EXPECT_EQ(take_lines(), std::vector<std::string>{
      " <<<< Warning 101: Crossed axis systems must have linear scaling in GRAF!"});
  EXPECT_EQ(zg, zbt::with_warning_fields(before));
  axsscl("LIN", "X");
  // Without axsorg the axes cross at the user origin.
  graf(-2, 8, -2, 2, -1, 1, -1, 0.5f);
  EXPECT_EQ(zg.nxcros, 700);
  EXPECT_EQ(zg.nycros, 1100);
  endgrf();
  // With axsorg the system moves so that the origin falls on the given point.
  axsorg(1200, 900);
  graf(-2, 8, -2, 2, -1, 1, -1, 0.5f);
  EXPECT_EQ(zg.nxa, 1000);
  EXPECT_EQ(zg.nya, 1300);
  EXPECT_EQ(nxposn(0.0f), 1200);
  EXPECT_EQ(nyposn(0.0f), 900);
  endgrf();
  axspos(500, 1500);
  EXPECT_EQ(zg.icrosf, 0);
}

TEST_F(Scaling, CenterMovesTheOriginOnce) {
  place();
  name("X", "X");
  ticks(0, "XY");
  labels("NONE", "XY");
  center();
  graf(0, 10, 0, 2, 0, 10, 0, 2);
  // Left: no ticks, no labels, name 30 + 36; bottom: the same; right and top nothing.
  EXPECT_EQ(zg.nxorg, (2969 - 1001 - 0 - 0) / 2 + 0 - 500);
  EXPECT_EQ(zg.nyorg, (2099 + 801 + 66 + 0) / 2 - 66 - 1500);
  endgrf();
  const int nx = zg.nxorg, ny = zg.nyorg;
  axspos(300, 1000);
  graf(0, 10, 0, 2, 0, 10, 0, 2);
  EXPECT_EQ(zg.nxorg, nx);
  EXPECT_EQ(zg.nyorg, ny);
  endgrf();
  reset("CENT");
  reset("ORIG");
  center();
  graf(0, 10, 0, 2, 0, 10, 0, 2);
  EXPECT_EQ(zg.nxorg, (2969 - 1001) / 2 - 300);
}

TEST_F(Scaling, SettersOfTheSystemCheckTheirValues) {
  struct Row {
    void (*call)();
    const char* line;
  };
  const Row rows[] = {
      {[] { axslen(1, 500); }, " <<<< Warning   2: Incorrect parameter in AXSLEN!   (   1)"},
      {[] { axslen(500, 2101); }, " <<<< Warning   2: Incorrect parameter in AXSLEN!   (2101)"},
      {[] { axspos(-1, 500); }, " <<<< Warning   2: Incorrect parameter in AXSPOS!   (  -1)"},
      {[] { axsorg(10, 2100); }, " <<<< Warning   2: Incorrect parameter in AXSORG!   (2100)"},
      {[] { axstyp("DIAG"); }, " <<<< Warning   2: Incorrect parameter in AXSTYP!   (DIAG)"},
      {[] { axsscl("LN", "X"); }, " <<<< Warning   2: Incorrect parameter in AXSSCL!   (LN)"},
      {[] { neglog(0.0f); }, " <<<< Warning   2: Incorrect parameter in NEGLOG!"},
      {[] { neglog(NAN); }, " <<<< Warning   2: Incorrect parameter in NEGLOG!"},
      {[] { axsbgd(256); }, " <<<< Warning   2: Incorrect parameter in AXSBGD!   ( 256)"},
      {[] { setgrf("NAME", "LINE", "TICKS", "ALL"); }, " <<<< Warning   2: Incorrect parameter in SETGRF!   (ALL)"},
  };
  for (const Row& r : rows) {
    Zorglb before = zg;
    r.call();
    EXPECT_EQ(take_lines(), std::vector<std::string>{r.line});
    EXPECT_EQ(zg, zbt::with_warning_fields(before));
  }
  setgrf("none", "LINE", "TICKS", "label");
  EXPECT_EQ(zg.iside, (std::array<int, 4>{0, 3, 2, 1}));
  int a, b, c;
  axslen(1200, 900);
  getlen(a, b, c);
  EXPECT_EQ((std::array<int, 3>{a, b, c}), (std::array<int, 3>{1200, 900, 1400}));
}

TEST_F(Scaling, DenseScalingsEndWithoutDrawingEachTick) {
  // 1e30 label steps would never end; the axis draws what fits and returns.
  place();
  graf(0.0f, 1.0e30f, 0.0f, 1.0e-5f, 0.0f, 1.0f, 0.0f, 1.0e-30f);
  EXPECT_EQ(zg.ilevel, 2);
  endgrf();
  zorfin();
  std::string log;
  EXPECT_EQ(zbt::run("gs -q -dSAFER -dNOPAUSE -dBATCH -sDEVICE=nullpage axes.ps", &log), 0) << log;
}

}  // namespace
