// The call frame: level checks, keyword lookup, range and date checks, warning lines.
#include "support/harness.h"

using namespace zb;

namespace {

class CallFrame : public zbt::Fixture {};

TEST_F(CallFrame, WrongLevelWarnsAndChangesOnlyFrameFields) {
  jqqlev(0, 3, "TEST");
  Zorglb before = zg;
  EXPECT_EQ(jqqlev(1, 3, "CURVE"), 1);
  EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Warning   3: Incorrect level in CURVE!   (   0)"});
  EXPECT_EQ(zg, zbt::with_warning_fields(before));
  EXPECT_EQ(zg.nwarn, 1);
  EXPECT_EQ(zg.cproc.view(), "CURVE");
}

TEST_F(CallFrame, RoutineNameIsCutOrPaddedToEight) {
  jqqlev(0, 3, "A_VERY_LONG_NAME");
  EXPECT_EQ(zg.cproc.full(), "A_VERY_L");
  jqqlev(0, 3, "AB");
  EXPECT_EQ(zg.cproc.full(), "AB      ");
}

TEST_F(CallFrame, KeywordLookup) {
  struct Case { const char* key; int expect; };
  const Case cases[] = {
      {"ON", 1},        {"on", 1},     {"OFF", 2},     {"off  ", 2},   {"OFFSET", 0},
      {"O", 0},         {"", 0},       {"PROTOCOL", 3}, {"prot", 3},   {"ALL", 4},
      {"ALL OF IT", 4}, {"AL", 0},     {" ON", 0},
  };
  jqqlev(0, 3, "TEST");
  for (const auto& c : cases) {
    const int n = zg.nwarn;
    EXPECT_EQ(jqqind("ON  +OFF +PROT+ALL ", 4, c.key), c.expect) << c.key;
    EXPECT_EQ(zg.nwarn, n + (c.expect == 0 ? 1 : 0)) << c.key;
  }
  take_lines();
  jqqind("ON  +OFF ", 2, "maybe");
  EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Warning   2: Incorrect parameter in TEST!   (maybe)"});
}

TEST_F(CallFrame, RangeCheck) {
  jqqlev(0, 3, "TEST");
  EXPECT_EQ(jqqval(5, 1, 0), 0);        // no upper limit
  EXPECT_EQ(jqqval(1000000, 1, 0), 0);
  EXPECT_EQ(jqqval(3, 1, 3), 0);
  EXPECT_EQ(jqqval(1, 1, 3), 0);
  EXPECT_EQ(jqqval(4, 1, 3), 1);
  EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Warning   2: Incorrect parameter in TEST!   (   4)"});
  EXPECT_EQ(jqqval(0, 1, 0), 1);
  EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Warning   2: Incorrect parameter in TEST!   (   0)"});
  EXPECT_EQ(jqqval(-123456, 1, 0), 1);
  EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Warning   2: Incorrect parameter in TEST!   (-123456)"});
}

TEST_F(CallFrame, DateCheck) {
  jqqlev(0, 3, "TEST");
  struct Case { int d, m, y, bad; };
  const Case cases[] = {
      {1, 1, 2000, 0},  {31, 12, 1999, 0}, {29, 2, 2000, 0}, {29, 2, 2024, 0}, {29, 2, 1900, 1},
      {29, 2, 2023, 1}, {30, 2, 2024, 1},  {0, 5, 2000, 1},  {32, 5, 2000, 1}, {1, 13, 2000, 1},
      {1, 0, 2000, 1},  {1, 1, 999, 1},
  };
  for (const auto& c : cases) EXPECT_EQ(jqqdat(c.d, c.m, c.y), c.bad) << c.d << "." << c.m << "." << c.y;
  take_lines();
  jqqdat(30, 2, 2024);
  EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Warning   2: Incorrect parameter in TEST!   (  30)"});
}

TEST_F(CallFrame, StringHelpers) {
  char s[12] = {'a', 'b', 'Z', '1', 'y', '{', ' ', ' ', 'q', ' ', ' ', ' '};
  upstr(s, 12);
  EXPECT_EQ(std::string(s, 12), "ABZ1Y{  Q   ");
  EXPECT_FLOAT_EQ(trmlen("abc   "), 3.5f);
  EXPECT_FLOAT_EQ(trmlen("      "), 0.5f);
  EXPECT_FLOAT_EQ(trmlen(""), 0.5f);
  EXPECT_EQ(fstr("abc  ", -3), "");
  EXPECT_EQ(fstr("abc  ", 5), "abc");
  char out[4];
  fput(out, 4, "xy");
  EXPECT_EQ(std::string(out, 4), "xy  ");
  fput(out, 4, "toolong");
  EXPECT_EQ(std::string(out, 4), "tool");
}

TEST_F(CallFrame, UnitConversionAndYFlip) {
  jqqlev(0, 3, "TEST");
  EXPECT_EQ(jqquni(300), 300);
  zg.unitfac = 2.54f;
  EXPECT_EQ(jqquni(300), 118);
  EXPECT_EQ(jqqyvl(100), 100);
  zg.ipgorg = 1;
  EXPECT_EQ(jqqyvl(100), zg.nypag - 100);
  zg.iyflip = 1;
  EXPECT_EQ(jqqyvl(100), 100);
}

}  // namespace
