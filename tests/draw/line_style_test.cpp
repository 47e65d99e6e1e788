// The style stage: dash patterns in plot units and units, patterns that run on across
// segments and lines, odd patterns, offsets of thick curves, the stroke buffer, and the
// warnings of the style setters.
#include <limits>

#include "draw/line.h"
#include "draw/line_support.h"
#include "frame/page.h"

using namespace zb;
using zbt::runs_at;
using Runs = std::vector<std::pair<float, float>>;

namespace {

class LineStyle : public zbt::MetaSession {};

void expect_runs(const Runs& got, const Runs& want, const char* what) {
  ASSERT_EQ(got.size(), want.size()) << what;
  for (std::size_t i = 0; i < want.size(); ++i) {
    EXPECT_NEAR(got[i].first, want[i].first, 0.01) << what << " run " << i;
    EXPECT_NEAR(got[i].second, want[i].second, 0.01) << what << " run " << i;
  }
}

TEST_F(LineStyle, PatternsInPlotUnitsFollowUnits) {
  struct Case { const char* unit; int ntyp; std::vector<int> want; };
  const Case cases[] = {
      {"CM", 0, {1}},           {"CM", 1, {1, 10}},         {"CM", 3, {30, 15, 10, 15}},
      {"CM", 7, {30, 20}},      {"INCH", 2, {4, 4}},        {"INCH", 3, {12, 6, 4, 6}},
      {"INCH", 1, {1, 4}},      {"POIN", 3, {85, 43, 28, 43}}, {"POIN", 6, {3, 57}},
      {"TWIP", 2, {57, 57}},    {"TWIP", 5, {113, 85}},
  };
  for (const auto& c : cases) {
    units(c.unit);
    open();
    lintyp(c.ntyp);
    ASSERT_EQ(zg.npatln, int(c.want.size())) << c.unit << " " << c.ntyp;
    for (std::size_t i = 0; i < c.want.size(); ++i) EXPECT_EQ(zg.npattn[i], c.want[i]) << c.unit << " " << c.ntyp;
    int n = -1;
    gettyp(n);
    EXPECT_EQ(n, c.ntyp);
    close();
  }
}

TEST_F(LineStyle, DashesRunOnAcrossSegmentsAndLines) {
  open();
  lintyp(2);   // 10 down, 10 up
  strtqq(100, 100);
  connqq(105, 100);
  connqq(125, 100);
  // A new line takes the pattern where the last one left it: 5 more down, 10 up, ...
  strtqq(200, 300);
  connqq(220, 300);
  // lintyp restarts it.
  lintyp(2);
  strtqq(0, 500);
  connqq(30, 500);
  const auto segs = close();
  expect_runs(runs_at(segs, 100), {{100, 110}, {120, 125}}, "two segments");
  expect_runs(runs_at(segs, 300), {{200, 205}, {215, 220}}, "next line");
  expect_runs(runs_at(segs, 500), {{0, 10}, {20, 30}}, "restarted");
}

TEST_F(LineStyle, OddPatternSwapsDownAndUpEachCycle) {
  open();
  const int pat[3] = {10, 5, 20};
  myline(pat, 3);
  strtqq(0, 600);
  connqq(70, 600);
  // Down 10, up 5, down 20, then up 10, down 5, up 20.
  expect_runs(runs_at(close(), 600), {{0, 10}, {15, 35}, {45, 50}}, "odd pattern");
}

TEST_F(LineStyle, DashesOnSlantedAndVerticalLines) {
  open();
  lintyp(2);
  strtqq(100, 100);
  connqq(130, 140);   // length 50 along (0.6, 0.8)
  lintyp(2);
  strtqq(400, 100);
  connqq(400, 130);   // downward
  const auto segs = close();
  std::vector<zbt::Seg> want = {{100, 100, 106, 108}, {112, 116, 118, 124}, {124, 132, 130, 140},
                                {400, 100, 400, 110}, {400, 120, 400, 130}};
  std::vector<zbt::Seg> got;
  for (const auto& s : segs)
    if (std::hypot(s.x2 - s.x1, s.y2 - s.y1) > 0.01f) got.push_back(s);
  ASSERT_EQ(got.size(), want.size()) << zbt::show(got);
  for (std::size_t i = 0; i < want.size(); ++i) EXPECT_TRUE(zbt::same_seg(got[i], want[i], 0.02f)) << zbt::show(got);
}

TEST_F(LineStyle, ShortSegmentKeepsPenAndShortensEntry) {
  open();
  lintyp(2);
  strtqq(0, 0);
  connqq(3, 0);
  EXPECT_EQ(zg.ipenup, 0);
  EXPECT_EQ(zg.ipatln, 1);
  EXPECT_FLOAT_EQ(zg.xpatrem, 7.0f);
  connqq(15, 0);   // 7 down, then 5 of the 10 up
  EXPECT_EQ(zg.ipenup, 1);
  EXPECT_EQ(zg.ipatln, 2);
  EXPECT_FLOAT_EQ(zg.xpatrem, 5.0f);
  inityp();
  EXPECT_EQ(zg.ipenup, 0);
  EXPECT_EQ(zg.ipatln, 1);
  EXPECT_FLOAT_EQ(zg.xpatrem, 10.0f);
  close();
}

TEST_F(LineStyle, ZeroLengthDashedSegmentEmitsOnePoint) {
  open();
  lintyp(2);
  strtqq(50, 50);
  EXPECT_EQ(zg.nstrk, 1);
  connqq(50, 50);
  EXPECT_EQ(zg.nstrk, 2);
  EXPECT_FLOAT_EQ(zg.xpatrem, 10.0f);
  EXPECT_FLOAT_EQ(zg.xstrk[1], 50.0f);
  EXPECT_FLOAT_EQ(zg.ystrk[1], 50.0f);
  close();
}

TEST_F(LineStyle, OriginIsAddedAtTheStyleStageOnly) {
  open();
  origin(100, 200);
  strtqq(10, 10);
  connqq(20, 10);
  qqmove(10, 10);   // the stroke buffer takes plot coordinates as they are
  qqdraw(20, 10);
  const auto segs = close();
  expect_runs(runs_at(segs, 210), {{110, 120}}, "with origin");
  expect_runs(runs_at(segs, 10), {{10, 20}}, "stroke buffer");
}

TEST_F(LineStyle, StrokeOf250PointsLeavesTheBufferThreeTimes) {
  open();
  qqmove(0, 1000);
  int flushes = 0;
  for (int i = 1; i < 250; ++i) {
    const int before = zg.nstrk;
    qqdraw(float(i * 10), 1000);
    if (zg.nstrk < before) {
      ++flushes;
      EXPECT_EQ(zg.nstrk, 1);
      EXPECT_FLOAT_EQ(zg.xstrk[0], float(i * 10));   // the restart shares the last point
    }
  }
  EXPECT_EQ(flushes, 2);
  EXPECT_EQ(zg.nstrk, 52);
  const auto segs = close();   // the third time
  expect_runs(runs_at(segs, 1000), {{0, 2490}}, "one unbroken line");
  EXPECT_EQ(segs.size(), 249u);
}

TEST_F(LineStyle, OffsetLinesStartAtTheirOffsetPoint) {
  open();
  strtqq(0, 0);
  connqq(50, 50);   // somewhere else first: no stray line from here
  zg.xoffln = 1.0f;
  strtqq(100, 100);
  connqq(200, 100);
  connqq(200, 200);
  zg.xoffln = 0.0f;
  const auto segs = close();
  // Left of a line to the right is up on the page; left of a line downward is to the right.
  const std::vector<zbt::Seg> want = {{0, 0, 50, 50}, {100, 99, 200, 99}, {200, 99, 201, 100}, {201, 100, 201, 200}};
  ASSERT_EQ(segs.size(), want.size()) << zbt::show(segs);
  for (std::size_t i = 0; i < want.size(); ++i) EXPECT_TRUE(zbt::same_seg(segs[i], want[i])) << zbt::show(segs);
}

TEST_F(LineStyle, ThickCurveOffsetsAlternateSides) {
  open();
  thkcrv(3);
  thklin(100, 100, 200, 100);
  EXPECT_FLOAT_EQ(zg.xoffln, 0.0f);
  const auto segs = close();
  for (float y : {99.0f, 100.0f, 101.0f}) expect_runs(runs_at(segs, y), {{100, 200}}, "offset");
}

TEST_F(LineStyle, LineFollowsPageOrigin) {
  open();
  pagorg("BOTT");
  line(0, 0, 100, 0);
  xmove(0, 10);
  xdraw(50, 10);
  pagorg("TOP");
  line(0, 0, 100, 0);
  const auto segs = close();
  expect_runs(runs_at(segs, 2099), {{0, 100}}, "bottom");
  expect_runs(runs_at(segs, 2089), {{0, 50}}, "xmove bottom");
  expect_runs(runs_at(segs, 0), {{0, 100}}, "top");
}

TEST_F(LineStyle, BadStyleValuesWarnAndChangeNothing) {
  open();
  lintyp(3);
  struct Case { const char* line; void (*call)(); };
  const Case cases[] = {
      {" <<<< Warning   2: Incorrect parameter in LINTYP!   (   8)", [] { lintyp(8); }},
      {" <<<< Warning   2: Incorrect parameter in LINTYP!   (  -1)", [] { lintyp(-1); }},
      {" <<<< Warning   2: Incorrect parameter in MYLINE!   (   0)", [] { const int p[1] = {5}; myline(p, 0); }},
      {" <<<< Warning   2: Incorrect parameter in MYLINE!   (  11)", [] { const int p[11] = {}; myline(p, 11); }},
      {" <<<< Warning   2: Incorrect parameter in MYLINE!   (   0)", [] { const int p[3] = {5, 0, 5}; myline(p, 3); }},
      {" <<<< Warning   2: Incorrect parameter in LINWID!   (   0)", [] { linwid(0); }},
      {" <<<< Warning   2: Incorrect parameter in LINWID!   (32001)", [] { linwid(32001); }},
      {" <<<< Warning   2: Incorrect parameter in PENWID!", [] { penwid(0.0f); }},
      {" <<<< Warning   2: Incorrect parameter in PENWID!", [] { penwid(-2.0f); }},
      {" <<<< Warning   2: Incorrect parameter in PENWID!", [] { penwid(40000.0f); }},
      {" <<<< Warning   2: Incorrect parameter in PENWID!", [] { penwid(std::numeric_limits<float>::quiet_NaN()); }},
      {" <<<< Warning   2: Incorrect parameter in LNMLT!", [] { lnmlt(0.5f); }},
      {" <<<< Warning   2: Incorrect parameter in LNMLT!", [] { lnmlt(std::numeric_limits<float>::quiet_NaN()); }},
      {" <<<< Warning   2: Incorrect parameter in LNMLT!", [] { lnmlt(std::numeric_limits<float>::infinity()); }},
      {" <<<< Warning   2: Incorrect parameter in LNCAP!   (BUTT)", [] { lncap("BUTT"); }},
      {" <<<< Warning   2: Incorrect parameter in LNJOIN!   (MITER)", [] { lnjoin("MITER"); }},
      {" <<<< Warning   2: Incorrect parameter in THKCRV!   (   0)", [] { thkcrv(0); }},
      {" <<<< Warning   2: Incorrect parameter in THKCRV!   (10001)", [] { thkcrv(10001); }},
  };
  for (const auto& c : cases) {
    const Zorglb before = zg;
    c.call();
    EXPECT_EQ(take_lines(), std::vector<std::string>{c.line});
    EXPECT_EQ(zg, zbt::with_warning_fields(before)) << c.line;
  }
  close();
}

TEST_F(LineStyle, SettersWarnAtLevelZeroAndStillAct) {
  const int pat[2] = {7, 3};
  myline(pat, 2);
  EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Warning   3: Incorrect level in MYLINE!   (   0)"});
  EXPECT_EQ(zg.npatln, 2);
  EXPECT_EQ(zg.npattn[0], 7);
  // The session starts solid again.
  open();
  EXPECT_EQ(zg.npatln, 1);
  EXPECT_EQ(zg.itypln, 0);
  close();
}

TEST_F(LineStyle, HugeAndInvalidCoordinatesEndCleanly) {
  open();
  lintyp(1);   // dots: one step per 11 units, 1e30 units would never end
  strtqq(-1.0e30f, 100);
  connqq(1.0e30f, 100);
  strtqq(0, std::numeric_limits<float>::quiet_NaN());
  connqq(100, 200);
  strtqq(0, 200);
  connqq(std::numeric_limits<float>::infinity(), 200);
  xmove(std::numeric_limits<float>::quiet_NaN(), 0);
  xdraw(100, 100);
  const auto segs = close();
  const auto dots = runs_at(segs, 100);
  // Dots across the whole page width and nothing beyond it.
  ASSERT_GT(dots.size(), 200u);
  EXPECT_GE(dots.front().first, -0.01f);
  EXPECT_LE(dots.back().second, 2969.01f);
  for (const auto& s : segs) {
    EXPECT_TRUE(std::isfinite(s.x1) && std::isfinite(s.y1) && std::isfinite(s.x2) && std::isfinite(s.y2));
  }
}

}  // namespace
