// Character settings: the bounds of chawth, chaang, fixspc and iangle, the refused base alphabet
// of smxalf, the shifts as strings use them, reset keywords and the defaults of a session.
#include <cmath>
#include <limits>
#include <string>

#include "text/text_support.h"

using namespace zb;

namespace {

class Settings : public zbt::TextSession {};

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInf = std::numeric_limits<float>::infinity();

TEST_F(Settings, RejectedValuesLeaveTheStateAlone) {
  open();
  struct Case { const char* what; void (*call)(); const char* line; };
  const Case cases[] = {
      {"chawth 0", [] { chawth(0.0f); }, " <<<< Warning   2: Incorrect parameter in CHAWTH!"},
      {"chawth -1", [] { chawth(-1.0f); }, " <<<< Warning   2: Incorrect parameter in CHAWTH!"},
      {"chawth 2.01", [] { chawth(2.01f); }, " <<<< Warning   2: Incorrect parameter in CHAWTH!"},
      {"chawth NaN", [] { chawth(kNaN); }, " <<<< Warning   2: Incorrect parameter in CHAWTH!"},
      {"chaang 60.5", [] { chaang(60.5f); }, " <<<< Warning   2: Incorrect parameter in CHAANG!"},
      {"chaang -61", [] { chaang(-61.0f); }, " <<<< Warning   2: Incorrect parameter in CHAANG!"},
      {"chaang NaN", [] { chaang(kNaN); }, " <<<< Warning   2: Incorrect parameter in CHAANG!"},
      {"fixspc 0", [] { fixspc(0.0f); }, " <<<< Warning   2: Incorrect parameter in FIXSPC!"},
      {"fixspc -2", [] { fixspc(-2.0f); }, " <<<< Warning   2: Incorrect parameter in FIXSPC!"},
      {"fixspc inf", [] { fixspc(kInf); }, " <<<< Warning   2: Incorrect parameter in FIXSPC!"},
      {"chaspc NaN", [] { chaspc(kNaN); }, " <<<< Warning   2: Incorrect parameter in CHASPC!"},
      {"iangle 0", [] { iangle(0); }, " <<<< Warning   2: Incorrect parameter in IANGLE!   (   0)"},
      {"iangle 46", [] { iangle(46); }, " <<<< Warning   2: Incorrect parameter in IANGLE!   (  46)"},
      {"basalf INST", [] { basalf("INST"); }, " <<<< Warning   2: Incorrect parameter in BASALF!   (INST)"},
      {"chacod ISO3", [] { chacod("ISO3"); }, " <<<< Warning   2: Incorrect parameter in CHACOD!   (ISO3)"},
      {"smxalf n 7", [] { smxalf("GREE", "{", "}", 7); }, " <<<< Warning   2: Incorrect parameter in SMXALF!   (   7)"},
      {"smxalf base", [] { smxalf("STAN", "{", "}", 1); }, " <<<< Warning  19: The basealphabet cannot be used in SMXALF!"},
  };
  for (const auto& c : cases) {
    const Zorglb before = zg;
    c.call();
    EXPECT_EQ(take_text(), std::string(c.line) + "\n") << c.what;
    EXPECT_EQ(zg, zbt::with_warning_fields(before)) << c.what;
  }
}

TEST_F(Settings, AcceptedBoundsAndStoredValues) {
  open();
  chawth(2.0f);
  EXPECT_EQ(zg.xchwth, 2.0f);
  chawth(1.0e-6f);
  EXPECT_EQ(zg.xchwth, 1.0e-6f);
  chaang(60.0f);
  EXPECT_NEAR(zg.xchang, 1.7320508f, 1e-6f);
  chaang(-60.0f);
  EXPECT_NEAR(zg.xchang, -1.7320508f, 1e-6f);
  chaang(20.0f);
  EXPECT_NEAR(zg.xchang, 0.36397023f, 1e-6f);
  iangle(1);
  EXPECT_NEAR(zg.xitang, 57.28996f, 1e-3f);
  iangle(45);
  EXPECT_NEAR(zg.xitang, 1.0f, 1e-6f);
  iangle(15);
  EXPECT_NEAR(zg.xitang, 3.732f, 1e-3f);
  fixspc(0.25f);
  EXPECT_EQ(zg.ifixsp, 1);
  EXPECT_EQ(zg.xfixsp, 0.25f);
  chaspc(-0.1f);
  EXPECT_EQ(zg.xchspc, -0.1f);
  EXPECT_TRUE(take_text().empty());
}

TEST_F(Settings, BaseAlphabetOfAShiftIsRefusedWhereverItStands) {
  open();
  basalf("GREE");
  EXPECT_EQ(getalf(), "GREEK");
  const Zorglb before = zg;
  smxalf("gree", "<", ">", 2);
  EXPECT_EQ(take_text(), " <<<< Warning  19: The basealphabet cannot be used in SMXALF!\n");
  EXPECT_EQ(zg, zbt::with_warning_fields(before));
  smxalf("STAN", "<", ">", 2);   // the standard alphabet is a shift like any other now
  EXPECT_TRUE(take_text().empty());
  EXPECT_EQ(zg.ismxalf, 1);
}

TEST_F(Settings, ShiftsLookedUpAndUsed) {
  open();
  std::string a, b;
  int n = -1;
  gmxalf("GREE", a, b, n);
  EXPECT_EQ(a, " ");
  EXPECT_EQ(b, " ");
  EXPECT_EQ(n, 0);
  smxalf("RUSS", "[", "]", 5);
  smxalf("GREE", "{", "}", 3);
  smxalf("GREE", "<", ">", 4);
  gmxalf("GREE", a, b, n);
  EXPECT_EQ(a + b, "{}");
  EXPECT_EQ(n, 3);
  gmxalf("INST", a, b, n);
  EXPECT_EQ(n, 0);
  complx();
  // The shift characters take no room; the letters between them are Greek.
  basalf("GREE");
  const int greek = nlmess("wa");
  basalf("STAN");
  EXPECT_EQ(nlmess("{wa}"), greek);
  EXPECT_NE(nlmess("wa"), greek);
  // An instruction shift swallows what stands inside it.
  smxalf("INST", "|", "|", 6);
  EXPECT_EQ(nlmess("ab|H2.0|"), nlmess("ab"));
}

TEST_F(Settings, ResetKeywordsAndSessionDefaults) {
  open();
  chawth(0.5f);
  chaspc(0.5f);
  chaang(10.0f);
  fixspc(2.0f);
  iangle(30);
  shdcha();
  basalf("SCRI");
  eushft("GERM", "!");
  smxalf("GREE", "{", "}", 1);
  chacod("ISO2");
  simplx();
  for (const char* key : {"CHAW", "CHAS", "CHAA", "FIXS", "IANG", "SHDC", "BASA", "EUSH", "SMXA"}) reset(key);
  EXPECT_EQ(zg.xchwth, 1.0f);
  EXPECT_EQ(zg.xchspc, 0.0f);
  EXPECT_EQ(zg.xchang, 0.0f);
  EXPECT_EQ(zg.ifixsp, 0);
  EXPECT_EQ(zg.xitang, 3.732f);
  EXPECT_EQ(zg.ishdch, 0);
  EXPECT_EQ(zg.ibasalf, 1);
  EXPECT_EQ(zg.ieushf, 0);
  EXPECT_EQ(zg.ismxalf, 0);
  EXPECT_EQ(zg.ifont, 4);   // the font set stays until the next session
  zorfin();
  take_text();
  // A new session starts with the cell font and all settings at their defaults.
  shdcha();   // no level test: accepted without a warning
  EXPECT_TRUE(take_text().empty());
  metafl("POST");
  zorini();
  EXPECT_EQ(zg.ifont, 1);
  EXPECT_EQ(zg.ichcod, 0);
  EXPECT_EQ(zg.ishdch, 0);
  EXPECT_EQ(getalf(), "STANDARD");
}

}  // namespace
