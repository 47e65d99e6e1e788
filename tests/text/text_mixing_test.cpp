// Control characters and the instruction alphabet: instructions measured and drawn, their
// warnings 43 to 46, setmix, getmix and newmix with warning 57, reset keywords and session
// defaults of the string settings, and axis labels drawn with them.
#include <string>

#include "axes/axes_support.h"
#include "text/text_support.h"

using namespace zb;

namespace {

class Mixing : public zbt::TextSession {
 protected:
  // The instruction shift "|" ... "|" on the default cell font (glyphs nh - 1 wide, no gap).
  void instructions() {
    open();
    smxalf("INST", "|", "|", 1);
  }
};

TEST_F(Mixing, InstructionsMoveThePenAndChangeTheHeight) {
  instructions();
  struct Row { const char* text; int len; };
  const Row rows[] = {
      {"A|A|A", 35 + 36 + 35},       {"A|A2|A", 35 + 72 + 35},     {"A|A0.5|A", 35 + 18 + 35},
      {"A|AX|A", 70},                {"|H2|A", 71},                 {"|H-0.5|A", 17},
      {"|H|A", 21},                  {"A|H|B|HX|C", 35 + 21 + 35},  {"AB|T|C", 70},
      {"AB|T100|C", 135},            {"|F3|A", 4 * 35},             {"A|P|BB|G|C", 105},
      {"A|P3|B|T|C|G3|D", 70},      {"|K|AB", 78},                 {"|K2|A|KX|B", 133},
      {"|W0.5|AB", 35},              {"|S|A", 36 + 35},             {"|S21|", 36},
      {"|E|A", 21},                  {"A|E|B|R|C", 35 + 21 + 35},   {"A|I|B|IX|C", 35 + 21 + 35},
      {"A|U|B|D0.5|C", 105},         {"A|O|B|OX|C", 105},           {"A|Z30|B", 70},
      {"A|A", 35},                   {"A|A|", 71},                  {"A|Y0.5|BC", 35 + 35 + 18 + 35},
      {"|A A A|", 108},              {"|N2 L J V|A", 35},
  };
  for (const auto& r : rows) EXPECT_EQ(nlmess(r.text), r.len) << r.text;
  // Letter gap 0.5: "C" moves by one gap, "F" by a blank and its gap.
  chaspc(0.5f);
  EXPECT_EQ(nlmess("A|C|A"), 35 + 18 + 18 + 35);
  EXPECT_EQ(nlmess("A|C2|A"), 35 + 18 + 36 + 35);
  EXPECT_EQ(nlmess("A|F|A"), 35 + 18 + 53 + 35);
  chaspc(0.0f);
  // "M" changes the alphabet of the string after the shift.
  basalf("GREE");
  const int greek = nlmess("abc");
  basalf("STAN");
  EXPECT_EQ(nlmess("|M2|abc"), greek);
  EXPECT_EQ(nlmess("|M2|a|MX|bc"), nlmess("|M2|a") + 70);
  // Measuring warns of nothing; the working set does not outlive the string.
  EXPECT_EQ(nlmess("|Q H1.2.3 P99|"), 0);
  EXPECT_EQ(take_text(), "");
  EXPECT_EQ(nlmess("AB"), 70);
}

TEST_F(Mixing, InstructionWarnings) {
  instructions();
  struct Row { const char* text; int code; const char* arg; };
  const Row rows[] = {
      {"|H1.5.2|", 43, "H1.5.2"}, {"|H-|", 43, "H-"},     {"|A1-2|", 43, "A1-2"},
      {"|S30|", 43, "S30"},       {"|M7|", 43, "M7"},     {"|N300|", 43, "N300"},
      {"|Z70|", 43, "Z70"},       {"|I2|", 43, "I2"},     {"|RX|", 43, "RX"},
      {"|KX5|", 43, "KX5"},       {"|W0|", 43, "W0"},     {"|T99999999999|", 43, "T99999999999"},
      {"|P21|", 44, "P21"},       {"|G0|", 44, "G0"},     {"|L-3|", 44, "L-3"},
      {"|P1.5|", 45, "P1.5"},     {"|LX|", 45, "LX"},     {"|T2.5|", 45, "T2.5"},
      {"|S2.0|", 45, "S2.0"},     {"|CX|", 45, "CX"},     {"|Q|", 46, "Q"},
      {"|9|", 46, "9"},           {"|q5|", 46, "q5"},
  };
  const char* texts[] = {"", "", "", "Instruction code: incorrect parameter", "Instruction code: incorrect tabulator index",
                         "Instruction code: no integer value", "Instruction code: unknown command"};
  for (const auto& r : rows) {
    const int n = zg.nwarn;
    messag(r.text, 100, 100);
    EXPECT_EQ(take_text(), " <<<< Warning  " + std::to_string(r.code) + ": " + texts[r.code - 40] +
                               " in MESSAG!   (" + r.arg + ")\n")
        << r.text;
    EXPECT_EQ(zg.nwarn, n + 1) << r.text;
  }
  // The routine that drew the string is named; justification measures without warning.
  txtjus("CENT");
  number(1.0f, 1, 100, 100);
  setmix("|", "EXP");
  EXPECT_EQ(take_text(), "");
  txtjus("LEFT");
  smxalf("INST", "#", "#", 1);
  numfmt("EXP");
  number(2.0f, 1, 100, 100);
  EXPECT_EQ(take_text(), "");
  messag("#Q#", 100, 100);
  EXPECT_EQ(take_text(), " <<<< Warning  46: Instruction code: unknown command in MESSAG!   (Q)\n");
  // Lower case letters and blanks between instructions are fine; the last one of a shift
  // that never closes is not carried out.
  messag("#h2 n1 l# #p1 q", 100, 100);
  EXPECT_EQ(take_text(), "");
}

TEST_F(Mixing, InstructionsDrawLinesAtTheirDistances) {
  struct Row { const char* text; float y; int lines; };
  const Row rows[] = {
      {"AB|L|", 235.0f, 1},     // 0.2 * 30 below the baseline 229
      {"AB|J|", 235.0f, 2},     // and 0.4 * 30 below
      {"AB|V|", 214.0f, 1},     // 0.5 * 30 above
      {"|U|AB|L|", 205.0f, 1},  // a baseline shift of the string height moves it too
      {"|O0.5|AB|L|", 220.0f, 1},
  };
  for (const auto& r : rows) {
    const auto pen = drawn([&r] {
      height(30);
      smxalf("INST", "|", "|", 1);
      messag(r.text, 100, 200);
    });
    ASSERT_GE(pen.size(), std::size_t(2 * r.lines)) << r.text;
    for (int k = 0; k < r.lines; ++k) {
      const auto* p = &pen[pen.size() - std::size_t(2 * (r.lines - k))];
      EXPECT_NEAR(p[0].x, 100.0f, 0.02f) << r.text;
      EXPECT_NEAR(p[1].x, 158.0f, 0.02f) << r.text;
      EXPECT_NEAR(p[0].y, r.y + 6.0f * float(k), 0.02f) << r.text;
      EXPECT_NEAR(p[1].y, p[0].y, 0.02f) << r.text;
    }
  }
  // From a tab to the pen.
  const auto pen = drawn([] {
    height(30);
    smxalf("INST", "|", "|", 1);
    messag("A|P4|BC|L4|", 100, 200);
  });
  ASSERT_GE(pen.size(), 2u);
  EXPECT_NEAR(pen[pen.size() - 2].x, 129.0f, 0.02f);
  EXPECT_NEAR(pen[pen.size() - 1].x, 187.0f, 0.02f);
  // Colour and height of the string come back at its end.
  open();
  smxalf("INST", "|", "|", 1);
  const int c = zg.ipenclr;
  messag("|N3 H2|red and big", 100, 100);
  EXPECT_EQ(zg.ipenclr, c);
  EXPECT_EQ(zg.nhchar, 36);
}

TEST_F(Mixing, ControlCharacters) {
  open();
  EXPECT_EQ(getmix("EXP") + getmix("IND") + getmix("RES") + getmix("LEG") + getmix("TEX"), "[]$/\\");
  setmix("#", "EXPONENT");
  setmix("~", "res");
  EXPECT_EQ(getmix("EXPO"), "#");
  EXPECT_EQ(std::string(zg.ctlchr.view()), "#]~/\\");
  newmix();
  EXPECT_EQ(std::string(zg.ctlchr.view()), "^_%/\\");
  struct Case { const char* what; void (*call)(); const char* line; };
  const Case cases[] = {
      {"same as index", [] { setmix("_", "EXP"); }, " <<<< Warning  57: Control characters must be different in SETMIX!"},
      {"same as TeX", [] { setmix("\\", "LEG"); }, " <<<< Warning  57: Control characters must be different in SETMIX!"},
      {"bad keyword", [] { setmix("#", "POWER"); }, " <<<< Warning   2: Incorrect parameter in SETMIX!   (POWER)"},
      {"blank", [] { setmix(" ", "EXP"); }, " <<<< Warning   2: Incorrect parameter in SETMIX!"},
      {"empty", [] { setmix("", "IND"); }, " <<<< Warning   2: Incorrect parameter in SETMIX!"},
      {"getmix", [] { EXPECT_EQ(getmix("XYZ"), " "); }, " <<<< Warning   2: Incorrect parameter in GETMIX!   (XYZ)"},
  };
  for (const auto& c : cases) {
    newmix();
    take_text();
    const Zorglb before = zg;
    c.call();
    EXPECT_EQ(take_text(), std::string(c.line) + "\n") << c.what;
    EXPECT_EQ(zg, zbt::with_warning_fields(before)) << c.what;
  }
  // newmix where the legend or TeX character is already one of its three.
  for (const char* c : {"^", "%", "_"}) {
    reset("NEWMIX");
    setmix(c, "LEG");
    take_text();
    const Zorglb before = zg;
    newmix();
    EXPECT_EQ(take_text(), " <<<< Warning  57: Control characters must be different in NEWMIX!\n") << c;
    EXPECT_EQ(zg, zbt::with_warning_fields(before)) << c;
  }
  // The characters in force are what strings read.
  reset("NEWMIX");
  mixalf();
  setmix("^", "EXP");
  EXPECT_EQ(nlmess("10^2$"), 2 * 35 + 28);
  EXPECT_EQ(nlmess("10[2$"), 4 * 35);
}

TEST_F(Mixing, ResetKeywordsAndSessionDefaults) {
  open();
  auto change = [] {
    txtjus("RIGHT");
    mixalf();
    newmix();
    setbas(0.3f);
    setexp(0.3f);
    linesp(3.0f);
    frmess(4);
    numfmt("LOG");
    numode("COMM", "SPAC", "PLUS", "EQUA");
  };
  change();
  const char* keys[] = {"MIXALF", "NEWMIX", "SETBAS", "SETEXP", "LINS", "FRMESS", "NUMFMT", "NUMODE"};
  for (const char* k : keys) reset(k);
  EXPECT_EQ(take_text(), "");
  EXPECT_EQ(zg.imixexp, 0);
  EXPECT_EQ(std::string(zg.ctlchr.view()), "[]$/\\");
  EXPECT_EQ(zg.xbasfac, 0.8f);   // not the 0.6 of a new session
  EXPECT_EQ(zg.xexpfac, 1.0f);   // not the 0.8 of a new session
  EXPECT_EQ(zg.xlinsp, 1.5f);
  EXPECT_EQ(zg.nfrmess, 0);
  EXPECT_EQ(zg.inumfmt, 0);
  EXPECT_EQ(std::string(zg.cnumod.view()), ".000");
  EXPECT_EQ(zg.ijust, 2);   // txtjus has no reset keyword
  setmix("#", "EXP");
  reset("SETMIX");
  EXPECT_EQ(getmix("EXP"), "[");
  // A new session starts from the defaults.
  change();
  zorfin();
  open();
  EXPECT_EQ(zg.ijust, 0);
  EXPECT_EQ(zg.imixexp, 0);
  EXPECT_EQ(zg.xbasfac, 0.6f);
  EXPECT_EQ(zg.xexpfac, 0.8f);
  EXPECT_EQ(zg.xlinsp, 1.5f);
  EXPECT_EQ(zg.nfrmess, 0);
  EXPECT_EQ(zg.inumfmt, 0);
  EXPECT_EQ(std::string(zg.cnumod.view()), ".000");
  EXPECT_EQ(std::string(zg.ctlchr.view()), "[]$/\\");
  int n = 0;
  angle(-45);
  getang(n);
  EXPECT_EQ(n, -45);
  height(77);
  gethgt(n);
  EXPECT_EQ(n, 77);
}

class LabelTexts : public zbt::AxesTest {};

// Power, exponent and map labels read the control characters in force with mixalf off,
// and numbers follow numode; mixalf is left as it was.
TEST_F(LabelTexts, LabelsUseTheControlCharactersAndNumberMode) {
  setmix("^", "EXP");
  setmix("!", "RES");
  numode("COMM", "NONE", "NONE", "NOEQ");
  setexp(0.5f);
  setbas(0.5f);
  axsscl("LOG", "X");
  labels("LOG", "X");
  labdig(-1, "X");
  place();
  graf(0, 3, 0, 1, 0, 8, 0, 2);
  EXPECT_EQ(zg.imixexp, 0);
  bool power = false, comma = false;
  for (const auto& p : placed) {
    if (p.text == "10^1!") {
      power = true;
      // With setexp + setbas = 1 a raised label stands where a plain one would; the
      // exponent is measured at half the height (18, glyphs 17 wide).
      EXPECT_EQ(p.ny, 1548);
      EXPECT_EQ(p.nx, int(500.5f + 1000.0f / 3.0f - float(2 * 35 + 17) / 2.0f));
    }
    if (p.text == "2,0") comma = true;
  }
  EXPECT_TRUE(power);
  EXPECT_TRUE(comma);
  EXPECT_EQ(take_lines(), std::vector<std::string>{});
}

// rlmess and rlnumb place at user coordinates without the page-origin mapping; 999.0 within
// 0.1 continues the text; justification applies as with messag.
TEST_F(LabelTexts, StringsAndNumbersAtUserCoordinates) {
  place();
  graf(0, 10, 0, 2, 0, 8, 0, 2);
  const int nx = nxposn(5.0f), ny = nyposn(4.0f);
  rlmess("AB", 5.0f, 4.0f);
  EXPECT_FLOAT_EQ(zg.xstr0, float(nx));
  EXPECT_FLOAT_EQ(zg.ystr0, float(ny + 35));
  rlnumb(12.5f, 1, 999.05f, 998.95f);
  EXPECT_FLOAT_EQ(zg.xchr, float(nx + 6 * 35));
  txtjus("RIGHT");
  numfmt("LOG");
  rlnumb(3.0f, -1, 5.0f, 4.0f);   // "10" and a raised "3": 70 + 28
  EXPECT_FLOAT_EQ(zg.xstr0, float(nx - 98));
  EXPECT_EQ(zg.imixexp, 0);
  EXPECT_EQ(take_lines(), std::vector<std::string>{});
}

}  // namespace
