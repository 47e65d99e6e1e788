// Number texts to the character: fixed notation and its width, exponent notation, powers of
// ten, every numfmt, digit counts, rounding and signs, the decimal sign, groups and signs of
// numode; nlnumb against hand-computed lengths; numbers that are no numbers.
#include <cmath>
#include <limits>
#include <string>

#include "text/text_support.h"

using namespace zb;

namespace {

class Numbers : public zbt::TextSession {};

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInf = std::numeric_limits<float>::infinity();

TEST_F(Numbers, FixedNotationAndItsWidth) {
  struct Row { float x; int ndig; const char* text; };
  const Row rows[] = {
      {0.5f, 2, "0.50"},     {-0.5f, 2, "-0.50"},  {12.0f, 0, "12."},      {12.7f, -1, "13"},
      {0.4f, -1, "0"},       {-0.4f, -1, "-0"},    {0.5f, -1, "1"},        {2.5f, -1, "3"},
      {-2.5f, -1, "-3"},     {9.96f, 1, "10.0"},   {9.94f, 1, "9.9"},      {0.125f, 2, "0.13"},
      {0.0f, 3, "0.000"},    {-0.0004f, 2, "-0.00"}, {1234.5678f, 2, "1234.57"}, {99999.5f, -1, "100000"},
      {3.0f, 5, "3.00000"},  {1.0e20f, 1, "100000002004087734272.0"},
      {16777216.0f, 2, "16777216.00"}, {0.1f, 12, "0.100000001490"},
  };
  for (const auto& r : rows) {
    int n = -1, w = -1;
    std::string s;
    fcha(r.x, r.ndig, n, s);
    flen(r.x, r.ndig, w);
    EXPECT_EQ(s, r.text) << r.x << " " << r.ndig;
    EXPECT_EQ(n, int(s.size())) << r.x;
    EXPECT_EQ(w, n) << r.x << " " << r.ndig;
  }
  // The width rule: digits before the point, ndig places, the point, a minus sign.
  int w = 0;
  flen(0.5f, 2, w);
  EXPECT_EQ(w, 4);
  flen(-999.4f, 0, w);
  EXPECT_EQ(w, 5);
  flen(999.6f, -1, w);
  EXPECT_EQ(w, 4);
}

TEST_F(Numbers, ExponentNotationAndIntegers) {
  struct Row { float x; int ndig; int iopt; const char* text; };
  const Row rows[] = {
      {2500.0f, 1, 1, "2.5*10[3$"},  {2500.0f, 1, 2, "2.5E3"},     {-0.00042f, 2, 2, "-4.20E-4"},
      {9.96f, 1, 1, "1.0*10[1$"},   {0.001f, 0, 2, "1.E-3"},      {1.0f, -1, 1, "1*10[0$"},
      {1.0e-36f, 2, 1, "0.00"},     {-1.0e-36f, 1, 2, "-0.0"},    {3.0e38f, 2, 2, "3.00E38"},
      {1.0e-35f, 1, 1, "0.0"},      {2.0e-35f, 1, 2, "2.0E-35"},  {999.96f, 1, 2, "1.0E3"},
  };
  for (const auto& r : rows) {
    int n = 0;
    std::string s;
    gexpno(r.x, r.ndig, n, s, r.iopt);
    EXPECT_EQ(s, r.text) << r.x << " " << r.ndig << " " << r.iopt;
    EXPECT_EQ(n, int(s.size()));
  }
  // The exponent takes the control characters in force.
  setmix("^", "EXP");
  setmix("%", "RES");
  int n = 0;
  std::string s;
  gexpno(-2500.0f, 2, n, s, 1);
  EXPECT_EQ(s, "-2.50*10^3%");
  for (const int i : {0, -7, 123456, std::numeric_limits<int>::min()}) {
    intcha(i, n, s);
    EXPECT_EQ(s, std::to_string(i));
    EXPECT_EQ(n, int(s.size()));
  }
}

TEST_F(Numbers, EveryFormatToTheCharacter) {
  open();
  struct Row { const char* fmt; float x; int ndig; const char* text; };
  const Row rows[] = {
      {"FLOA", 1234.5678f, 2, "1234.57"}, {"FLOA", -0.5f, 1, "-0.5"},   {"FLOA", 3.7f, -1, "4"},
      {"FLOA", 7.0f, 0, "7."},
      {"EXP", 1234.5678f, 2, "1.23*10[3$"}, {"EXP", -0.000427f, 1, "-4.3*10[-4$"},
      {"EXP", 0.0f, 2, "0.00"},           {"EXP", 99.96f, 1, "1.0*10[2$"},
      {"FEXP", 1234.5678f, 3, "1.235E3"}, {"FEXP", 0.5f, 2, "5.00E-1"}, {"FEXP", -7.0f, -1, "-7E0"},
      {"LOG", 3.0f, -1, "10[3$"},         {"LOG", -2.5f, 1, "10[-2.5$"}, {"LOG", 0.0f, 0, "10[0.$"},
  };
  for (const auto& r : rows) {
    numfmt(r.fmt);
    EXPECT_EQ(gnustr(r.x, r.ndig), r.text) << r.fmt << " " << r.x << " " << r.ndig;
  }
  EXPECT_EQ(take_text(), "");
}

TEST_F(Numbers, NumberModes) {
  open();
  struct Row { const char* dec; const char* grp; const char* sign; const char* fmt; float x; int ndig; const char* text; };
  const Row rows[] = {
      {"COMMA", "NONE", "NONE", "FLOA", 1234.5f, 1, "1234,5"},
      {"POINT", "SPACE", "NONE", "FLOA", 1234567.0f, -1, "1 234 567"},
      {"COMMA", "POINT", "NONE", "FLOA", 1234567.5f, 1, "1.234.567,5"},
      {"POINT", "COMMA", "NONE", "FLOA", 123456.0f, -1, "123,456"},
      {"POINT", "SPACE", "NONE", "FLOA", 0.1234567f, 7, "0.123 456 7"},
      {"POINT", "SPACE", "NONE", "FLOA", -12345.0f, -1, "-12 345"},
      {"POINT", "SPACE", "NONE", "FLOA", -123.0f, -1, "- 123"},   // the minus counts as a digit
      {"POINT", "NONE", "PLUS", "FLOA", -1.5f, 1, "+-1.5"},
      {"POINT", "NONE", "PLUS", "FLOA", 2.0f, -1, "+2"},
      {"POINT", "NONE", "SPACE", "FLOA", 2.0f, -1, " 2"},
      {"COMMA", "SPACE", "PLUS", "EXP", 12345.0f, 4, "+1,234 5*10[4$"},
      {"COMMA", "NONE", "NONE", "FEXP", 0.25f, 1, "2,5E-1"},
      {"COMMA", "NONE", "PLUS", "LOG", 2.5f, 1, "10[+2,5$"},
  };
  for (const auto& r : rows) {
    numode(r.dec, r.grp, r.sign, "NOEQ");
    numfmt(r.fmt);
    EXPECT_EQ(gnustr(r.x, r.ndig), r.text) << r.dec << r.grp << r.sign << r.fmt << " " << r.x;
  }
  // Texts longer than the field of 40 characters lose their end.
  numode("POIN", "SPAC", "PLUS", "NOEQ");
  numfmt("FLOA");
  EXPECT_EQ(gnustr(1.0f, 40), "+1." + std::string("000 000 000 000 000 000 000 000 000 0"));
  // A bad keyword sets none of the four.
  numode("POIN", "NONE", "NONE", "NOEQ");
  const Zorglb before = zg;
  numode("COMMA", "TABS", "PLUS", "EQUA");
  EXPECT_EQ(take_text(), " <<<< Warning   2: Incorrect parameter in NUMODE!   (TABS)\n");
  EXPECT_EQ(zg, zbt::with_warning_fields(before));
}

TEST_F(Numbers, LengthsOfNumbers) {
  open();
  // The cell font: every glyph nh - 1 = 35 wide, no gap; exponents at nint(0.8 * 36) = 29.
  struct Row { const char* fmt; float x; int ndig; int len; };
  const Row rows[] = {
      {"FLOA", 12.5f, 1, 4 * 35},        {"FLOA", -3.0f, -1, 2 * 35},
      {"EXP", 2500.0f, 1, 6 * 35 + 28},  {"EXP", -2.5e-12f, 0, 6 * 35 + 3 * 28},
      {"FEXP", 2500.0f, 1, 5 * 35},      {"LOG", 3.0f, -1, 2 * 35 + 28},
      {"LOG", -12.0f, -1, 2 * 35 + 3 * 28},
  };
  for (const auto& r : rows) {
    numfmt(r.fmt);
    EXPECT_EQ(nlnumb(r.x, r.ndig), r.len) << r.fmt << " " << r.x;
  }
  // Equal digit widths: fixed spacing with factor 0.7 for the call, then as before.
  numfmt("FLOA");
  numode("POIN", "NONE", "NONE", "EQUA");
  const int equal = nlnumb(1.5f, 1);
  EXPECT_EQ(zg.ifixsp, 0);
  EXPECT_EQ(zg.imixexp, 0);
  fixspc(0.7f);
  EXPECT_EQ(equal, nlmess("1.5"));
  EXPECT_EQ(equal, int(3.0f * 0.7f * 1.4f * 35.0f + 0.5f));
  EXPECT_EQ(take_text(), "");
}

TEST_F(Numbers, RejectedNumbers) {
  open();
  struct Case { const char* what; void (*call)(); const char* line; };
  const Case cases[] = {
      {"NaN", [] { number(kNaN, 2, 100, 100); }, " <<<< Warning   2: Incorrect parameter in NUMBER!"},
      {"inf", [] { number(kInf, 2, 100, 100); }, " <<<< Warning   2: Incorrect parameter in NUMBER!"},
      {"-inf", [] { number(-kInf, -1, 100, 100); }, " <<<< Warning   2: Incorrect parameter in NUMBER!"},
      {"ndig -2", [] { number(1.0f, -2, 100, 100); }, " <<<< Warning   2: Incorrect parameter in NUMBER!   (  -2)"},
      {"ndig 101", [] { number(1.0f, 101, 100, 100); }, " <<<< Warning   2: Incorrect parameter in NUMBER!   ( 101)"},
      {"nlnumb NaN", [] { EXPECT_EQ(nlnumb(kNaN, 1), 0); }, " <<<< Warning   2: Incorrect parameter in NLNUMB!"},
      {"rlnumb level", [] { rlnumb(1.0f, 1, 0.0f, 0.0f); }, " <<<< Warning   3: Incorrect level in RLNUMB!   (   1)"},
      {"numfmt", [] { numfmt("FIXED"); }, " <<<< Warning   2: Incorrect parameter in NUMFMT!   (FIXED)"},
  };
  for (const auto& c : cases) {
    const Zorglb before = zg;
    c.call();
    EXPECT_EQ(take_text(), std::string(c.line) + "\n") << c.what;
    EXPECT_EQ(zg, zbt::with_warning_fields(before)) << c.what;
  }
  // Internal routines write a star for what is no number, and 100 places at most.
  int n = 0;
  std::string s;
  fcha(kNaN, 2, n, s);
  EXPECT_EQ(s, "*");
  gexpno(-kInf, 2, n, s, 1);
  EXPECT_EQ(s, "*");
  fcha(1.0f, 1000000, n, s);
  EXPECT_EQ(n, 102);
  number(3.0e38f, 100, 2000, 100);   // 40 characters run off the page: reported, not refused
  EXPECT_NE(take_text().find("Endpoint"), std::string::npos);
}

}  // namespace
