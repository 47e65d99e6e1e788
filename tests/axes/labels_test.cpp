// Label texts of every type and digit count, which labels an axis carries, where labels
// and names stand, and the warnings of the label setters.
#include <cmath>

#include "axes_support.h"
#include "text/text.h"

using namespace zb;

namespace {

class Labels : public zbt::AxesTest {
 protected:
  // Placed texts whose text is one of the given.
  std::vector<zbt::Placed> texts_of(const std::vector<std::string>& want) const {
    std::vector<zbt::Placed> r;
    for (const auto& p : placed)
      for (const auto& w : want)
        if (p.text == w) r.push_back(p);
    return r;
  }
};

TEST_F(Labels, FixedNotation) {
  struct Row {
    float x;
    int ndig;
    const char* text;
  };
  const Row rows[] = {
      {0.5f, 2, "0.50"},     {-0.5f, 2, "-0.50"},   {12.0f, 0, "12."},       {12.4f, -1, "12"},
      {0.4f, -1, "0"},       {2.5f, -1, "3"},       {-2.5f, -1, "-3"},       {0.45f, 1, "0.5"},
      {9.96f, 1, "10.0"},    {-0.06f, 1, "-0.1"},   {-0.04f, 1, "0.0"},      {1234.5678f, 3, "1234.568"},
      {0.0f, 3, "0.000"},    {7.0f, 5, "7.00000"},  {123456.0f, -1, "123456"}, {1.0e20f, -1, "100000002004087734272"},
      {INFINITY, 1, "*"},
  };
  for (const Row& r : rows) EXPECT_EQ(fixed_label(r.x, r.ndig), r.text) << r.x << " with " << r.ndig;
  EXPECT_EQ(fixed_label(1.0f, 100).size(), 102u);
}

TEST_F(Labels, ExponentNotation) {
  struct Row {
    float x;
    int ndig, iopt;
    const char* text;
  };
  const Row rows[] = {
      {2500.0f, 1, 1, "2.5*10[3$"}, {2500.0f, 1, 2, "2.5E3"},   {-0.00042f, 2, 2, "-4.20E-4"},
      {9.99f, 1, 1, "1.0*10[1$"},   {0.0f, 1, 1, "0.0"},       {1.0f, -1, 1, "1*10[0$"},
      {-3.0e-20f, 0, 2, "-3.E-20"},
  };
  for (const Row& r : rows) EXPECT_EQ(exp_label(r.x, r.ndig, r.iopt), r.text) << r.x;
}

TEST_F(Labels, TextOfEveryType) {
  struct Row {
    const char* type;
    int ndig, iaxis, ilog;
    float v;
    const char* text;
  };
  const Row rows[] = {
      {"NONE", 1, 1, 0, 2.0f, ""},
      {"FLOA", 1, 1, 0, 2.5f, "2.5"},
      {"FLOAT", 2, 2, 0, -0.25f, "-0.25"},
      {"FLOA", -1, 1, 1, 2.0f, "100"},
      {"FLOA", 2, 1, 1, -1.0f, "0.10"},
      {"EXP", 1, 1, 0, 25000.0f, "2.5*10[4$"},
      {"EXP", 0, 2, 1, 3.0f, "1.*10[3$"},
      {"LOG", -1, 1, 1, 2.0f, "10[2$"},
      {"LOG", 1, 1, 1, -1.0f, "10[-1.0$"},
      {"LOG", 1, 1, 0, 2.0f, "2.0"},
      {"CLOG", -1, 2, 1, -1.0f, "10[-1$"},
      {"ELOG", -1, 1, 1, 3.0f, "3"},
      {"ELOG", 1, 1, 0, 3.0f, "3.0"},
      {"MAP", -1, 1, 0, 30.0f, "30[o$E"},
      {"MAP", -1, 1, 0, -45.0f, "45[o$W"},
      {"MAP", 1, 2, 0, -10.0f, "10.0[o$S"},
      {"MAP", -1, 2, 0, 0.0f, "0[o$"},
      {"DMAP", -1, 1, 0, -45.0f, "-45[o$"},
      {"LMAP", -1, 1, 0, -45.0f, "45[o$w"},
      {"LMAP", -1, 2, 0, 20.0f, "20[o$n"},
      {"TIME", 1, 1, 0, 3725.0f, "0102"},
      {"SECO", 1, 1, 0, 3725.0f, "010205"},
      {"HOUR", 1, 1, 0, 3725.0f, "1"},
      {"TIME", 1, 1, 0, 86390.0f, "0000"},
      {"SECO", 1, 1, 0, 86390.0f, "235950"},
      {"TIME", 1, 1, 0, -60.0f, "2359"},
      {"HOUR", 1, 1, 0, 43200.0f, "12"},
      {"HOUR", 1, 1, 0, 84600.0f, "0"},
      {"TIME", 1, 1, 1, 3.0f, "0017"},
      {"FEXP", 2, 1, 0, 25000.0f, "2.50E4"},
      {"FEXP", 1, 1, 1, -2.0f, "1.0E-2"},
  };
  for (const Row& r : rows) {
    labels(r.type, "XY");
    labdig(r.ndig, "XY");
    EXPECT_EQ(glabxy(r.v, 0, r.ilog, r.iaxis), r.text) << r.type << " " << r.v;
  }
  timopt();
  labels("TIME", "X");
  EXPECT_EQ(glabxy(3725.0f, 0, 0, 1), "01:02");
  labels("SECO", "X");
  EXPECT_EQ(glabxy(3725.0f, 0, 0, 1), "01:02:05");
  EXPECT_EQ(take_lines(), std::vector<std::string>{});
}

TEST_F(Labels, UserLabels) {
  labels("MYLAB", "X");
  mylab("one", 1, "X");
  mylab("three", 3, "X");
  EXPECT_EQ(zg.nmylab, (std::array<int, 3>{3, 0, 0}));
  const std::vector<std::string> got = {glabxy(0, 0, 0, 1), glabxy(0, 1, 0, 1), glabxy(0, 2, 0, 1),
                                        glabxy(0, 3, 0, 1)};
  EXPECT_EQ(got, (std::vector<std::string>{"one", "", "three", ""}));
  Zorglb before = zg;
  mylab("again", 3, "XY");
  EXPECT_EQ(take_lines(), std::vector<std::string>{
      " <<<< Warning   6: Same tick number as in a call before in MYLAB!   (   3)"});
  EXPECT_EQ(zg, zbt::with_warning_fields(before));
  reset("MYLAB");
  mylab("again", 3, "X");
  EXPECT_EQ(glabxy(0, 2, 0, 1), "again");
  EXPECT_EQ(take_lines(), std::vector<std::string>{});
}

TEST_F(Labels, EndsOfTheLabelRange) {
  struct Row {
    const char* opt;
    int n, i0, i1, step;
  };
  const Row rows[] = {{"NONE", 5, 0, 5, 1}, {"NOFIRST", 5, 1, 5, 1}, {"NOLAST", 5, 0, 4, 1},
                      {"NOENDS", 5, 1, 4, 1}, {"ENDS", 5, 0, 5, 5},  {"FIRST", 5, 0, 0, 1},
                      {"LAST", 5, 5, 5, 1},  {"ENDS", 0, 0, 0, 1}};
  for (const Row& r : rows) {
    axends(r.opt, "X");
    int i0, i1, st;
    endpar(r.n, zg.iaxend[0], i0, i1, st);
    EXPECT_EQ((std::array<int, 3>{i0, i1, st}), (std::array<int, 3>{r.i0, r.i1, r.step})) << r.opt;
  }
}

TEST_F(Labels, LabelsAndNamesOfARectangularSystem) {
  place();
  name("Time", "X");
  name("Level", "Y");
  graf(0, 10, 0, 2, 0, 8, 0, 2);
  const int nh = 36;
  // Bottom: 0.0 .. 10.0 centred under their ticks, tick length and distance below.
  std::vector<zbt::Placed> want;
  for (int k = 0; k <= 5; ++k) {
    const std::string t = fixed_label(float(2 * k), 1);
    want.push_back({t, int(500.5f + 200.0f * float(k) - float(nlmess(t)) / 2.0f), 1548, 0, nh});
  }
  want.push_back({"Time", 500 + (1001 - nlmess("Time")) / 2, 1500 + 78 + nh, 0, 36});
  // Left: right-justified against the ticks, centred on them.
  int widest = 0;
  for (int k = 0; k <= 4; ++k) widest = std::max(widest, nlmess(fixed_label(float(2 * k), 1)));
  for (int k = 0; k <= 4; ++k) {
    const std::string t = fixed_label(float(2 * k), 1);
    want.push_back({t, 452 - nlmess(t), int(1499.5f - 200.0f * float(k) - 18.0f), 0, nh});
  }
  // Names beyond the labels; the top and right sides carry no labels.
  want.push_back({"Level", 500 - 78 - widest - 36, 1500 - (801 - nlmess("Level")) / 2, 90, 36});
  EXPECT_EQ(placed, want);
}

TEST_F(Labels, PlacementRules) {
  // Each row: settings, one label or name expected among the placed texts.
  struct Row {
    const char* what;
    void (*set)();
    zbt::Placed (*expect)();
  };
  const Row rows[] = {
      {"x labels read upward, ends toward the axis",
       [] { labtyp("VERT", "X"); },
       [] { return zbt::Placed{"4.0", int(500.5f + 400.0f - 18.0f), 1548 + nlmess("4.0"), 90, 36}; }},
      {"ticks centred: half a tick in the distance",
       [] { ticpos("CENT", "XY"); },
       [] { return zbt::Placed{"4.0", int(900.5f - float(nlmess("4.0")) / 2.0f), 1536, 0, 36}; }},
      {"no ticks: labels nearer",
       [] { ticks(0, "X"); },
       [] { return zbt::Placed{"4.0", int(900.5f - float(nlmess("4.0")) / 2.0f), 1524, 0, 36}; }},
      {"reversed ticks: no tick term",
       [] { ticpos("REVERS", "X"); },
       [] { return zbt::Placed{"4.0", int(900.5f - float(nlmess("4.0")) / 2.0f), 1524, 0, 36}; }},
      {"left y labels justified left",
       [] { labjus("LEFT", "Y"); },
       [] { return zbt::Placed{"2.0", 452 - nlmess("8.0"), int(1299.5f - 18.0f), 0, 36}; }},
      {"shifted: first label pushed inside",
       [] { labpos("SHIFT", "X"); },
       [] { return zbt::Placed{"0.0", 500, 1548, 0, 36}; }},
      {"shifted: last label pushed inside",
       [] { labpos("SHIFT", "X"); },
       [] { return zbt::Placed{"10.0", 1501 - nlmess("10.0"), 1548, 0, 36}; }},
      {"centred labels stand between ticks",
       [] { labpos("CENT", "X"); },
       [] { return zbt::Placed{"5.0", int(500.5f + 500.0f - float(nlmess("5.0")) / 2.0f), 1548, 0, 36}; }},
      {"right y labels read downward",
       [] { setgrf("NAME", "NAME", "TICKS", "LABELS"); labtyp("VERT", "Y"); },
       [] { return zbt::Placed{"2.0", 1500 + 48 + 36, int(1299.5f + float(nlmess("2.0")) / 2.0f) - nlmess("2.0"), 270, 36}; }},
      {"right y labels read upward with rvynam",
       [] { setgrf("NAME", "NAME", "TICKS", "LABELS"); labtyp("VERT", "Y"); rvynam(); },
       [] { return zbt::Placed{"2.0", 1548, int(1299.5f + float(nlmess("2.0")) / 2.0f), 90, 36}; }},
      {"name justified right",
       [] { namjus("RIGHT", "X"); },
       [] { return zbt::Placed{"Time", 500 + 1001 - nlmess("Time"), 1614, 0, 36}; }},
  };
  for (const Row& r : rows) {
    SCOPED_TRACE(r.what);
    zb::resall();
    place();
    name("Time", "X");
    r.set();
    placed.clear();
    graf(0, 10, 0, 2, 0, 8, 0, 2);
    endgrf();
    const zbt::Placed e = r.expect();
    const auto got = texts_of({e.text});
    EXPECT_NE(std::find(got.begin(), got.end(), e), got.end()) << "wanted " << e << "\nfirst placed " << (got.empty() ? zbt::Placed{} : got[0]);
  }
  EXPECT_EQ(take_lines(), std::vector<std::string>{});
}

TEST_F(Labels, NameAtItsOwnHeight) {
  place();
  name("Time", "X");
  hname(50);
  namdis(10, "X");
  graf(0, 10, 0, 2, 0, 8, 0, 2);
  // nlmess measures at the current height: the name is measured at 50.
  const int keep = zg.nhchar;
  zg.nhchar = 50;
  const int l = nlmess("Time");
  zg.nhchar = keep;
  const auto got = texts_of({"Time"});
  ASSERT_EQ(got.size(), 1u);
  EXPECT_EQ(got[0], (zbt::Placed{"Time", 500 + (1001 - l) / 2, 1500 + 10 + 24 + 24 + 36, 0, 50}));
}

TEST_F(Labels, PowerLabelsStandRaised) {
  axsscl("LOG", "X");
  labels("LOG", "X");
  labdig(-1, "X");
  place();
  graf(0, 3, 0, 1, 0, 8, 0, 2);
  const auto one = texts_of({"10[1$"});
  ASSERT_EQ(one.size(), 1u);
  const int raised = int(1548.0f + 0.4f * 36.0f);
  // Measured as drawn: "10" at the height, the exponent at 0.8 of it (29, glyphs 28 wide).
  EXPECT_EQ(one[0], (zbt::Placed{"10[1$", int(500.5f + 1000.0f / 3.0f - float(2 * 35 + 28) / 2.0f), raised, 0, 36}));
  // CLOG centres on the "10".
  endgrf();
  labels("CLOG", "X");
  placed.clear();
  graf(0, 3, 0, 1, 0, 8, 0, 2);
  const auto two = texts_of({"10[2$"});
  ASSERT_EQ(two.size(), 1u);
  EXPECT_EQ(two[0].nx, int(500.5f + 2000.0f / 3.0f - float(nlmess("10")) / 2.0f));
  EXPECT_EQ(two[0].ny, raised);
}

TEST_F(Labels, CrossedSystemSkipsTheOriginAndNamesThePositivePart) {
  axstyp("CROSS");
  place();
  name("Right", "X");
  graf(-2, 8, -2, 2, -4, 4, -4, 2);
  for (const auto& p : placed) EXPECT_NE(p.text, "0.0");
  const auto got = texts_of({"Right"});
  ASSERT_EQ(got.size(), 1u);
  // The x axis runs at y = nycros = 1100; its positive part is 800 long from x = 700.
  EXPECT_EQ(got[0].nx, 700 + (801 - nlmess("Right")) / 2);
  EXPECT_EQ(got[0].ny, 1100 + 78 + 36);
}

TEST_F(Labels, SettersCheckTheirValues) {
  struct Row {
    void (*call)();
    const char* line;
  };
  const Row rows[] = {
      {[] { ticks(-1, "X"); }, " <<<< Warning   2: Incorrect parameter in TICKS!   (  -1)"},
      {[] { ticks(1001, "X"); }, " <<<< Warning   2: Incorrect parameter in TICKS!   (1001)"},
      {[] { ticlen(0, 5); }, " <<<< Warning   2: Incorrect parameter in TICLEN!   (   0)"},
      {[] { ticlen(5, 10001); }, " <<<< Warning   2: Incorrect parameter in TICLEN!   (10001)"},
      {[] { hname(0); }, " <<<< Warning   2: Incorrect parameter in HNAME!   (   0)"},
      {[] { labdig(-2, "X"); }, " <<<< Warning   2: Incorrect parameter in LABDIG!   (  -2)"},
      {[] { labels("FOO", "X"); }, " <<<< Warning   2: Incorrect parameter in LABELS!   (FOO)"},
      {[] { labpos("", "X"); }, " <<<< Warning   2: Incorrect parameter in LABPOS!   ()"},
      {[] { axclrs(-2, "ALL", "X"); }, " <<<< Warning   2: Incorrect parameter in AXCLRS!   (  -2)"},
      {[] { axclrs(3, "BOX", "X"); }, " <<<< Warning   2: Incorrect parameter in AXCLRS!   (BOX)"},
      {[] { mylab("x", 21, "X"); }, " <<<< Warning   2: Incorrect parameter in MYLAB!   (  21)"},
      {[] { logtic("HALF"); }, " <<<< Warning   2: Incorrect parameter in LOGTIC!   (HALF)"},
  };
  for (const Row& r : rows) {
    Zorglb before = zg;
    r.call();
    EXPECT_EQ(take_lines(), std::vector<std::string>{r.line});
    EXPECT_EQ(zg, zbt::with_warning_fields(before));
  }
}

TEST_F(Labels, GettersAndResetKeywords) {
  labels("EXP", "X");
  labels("map", "Z");
  labdis(40, "XZ");
  namdis(7, "Y");
  ticks(5, "Y");
  intax();
  ticlen(30, 20);
  hname(48);
  std::string a, b, c;
  getlab(a, b, c);
  EXPECT_EQ((std::array<std::string, 3>{a, b, c}), (std::array<std::string, 3>{"EXP     ", "FLOA    ", "MAP     "}));
  int n1, n2, n3;
  getsp1(n1, n2, n3);
  EXPECT_EQ((std::array<int, 3>{n1, n2, n3}), (std::array<int, 3>{40, 24, 40}));
  getsp2(n1, n2, n3);
  EXPECT_EQ((std::array<int, 3>{n1, n2, n3}), (std::array<int, 3>{30, 7, 30}));
  gettic(n1, n2, n3);
  EXPECT_EQ((std::array<int, 3>{n1, n2, n3}), (std::array<int, 3>{2, 5, 2}));
  getdig(n1, n2, n3);
  EXPECT_EQ((std::array<int, 3>{n1, n2, n3}), (std::array<int, 3>{-1, -1, -1}));
  gettcl(n1, n2);
  EXPECT_EQ((std::array<int, 2>{n1, n2}), (std::array<int, 2>{30, 20}));
  gethnm(n1);
  EXPECT_EQ(n1, 48);
  // Each keyword brings its own setting back and nothing else.
  for (const char* key : {"LABE", "LABD", "NAMD", "TICK", "INTA", "TICL", "HNAM"}) reset(key);
  Zorglb fresh = zg;
  zb::resall();
  // resall also talks to the output; the axis settings are what must agree.
  EXPECT_TRUE(static_cast<const AxesState&>(zg) == static_cast<const AxesState&>(fresh));
}

}  // namespace
