// Rejected calls of the primitives: zero and negative radii, zero sides, symbol numbers
// out of range, bad arrow codes and counts, NaN and infinite reals, wrong levels. Each
// gives its warning line and leaves the record as it was, apart from the warning fields.
#include <limits>

#include "draw/prims_support.h"

using namespace zb;

namespace {

class BadInput : public zbt::PrimsFixture {};

const float kNan = std::numeric_limits<float>::quiet_NaN();
const float kInf = std::numeric_limits<float>::infinity();

TEST_F(BadInput, WarningAndNoChange) {
  struct Case { std::function<void()> call; std::vector<std::string> lines; };
  const std::string w2 = " <<<< Warning   2: Incorrect parameter in ";
  static const float tri[3] = {0, 1, 2}, tri_nan[3] = {0, kNan, 2};
  static const float sym[2] = {0, 0.5f}, sym_nan[2] = {0, kNan};
  float out[4] = {};
  const Case cases[] = {
      {[] { circle(500, 500, 0); }, {w2 + "CIRCLE!   (   0)"}},
      {[] { circle(500, 500, -5); }, {w2 + "CIRCLE!   (  -5)"}},
      {[] { ellips(500, 500, 10, 0); }, {w2 + "ELLIPS!   (   0)"}},
      {[] { ellips(500, 500, -1, 10); }, {w2 + "ELLIPS!   (  -1)"}},
      {[] { arcell(500, 500, 10, 10, kNan, 90, 0); }, {w2 + "ARCELL!"}},
      {[] { arcell(500, 500, 10, 10, 0, kInf, 0); }, {w2 + "ARCELL!"}},
      {[] { arcell(500, 500, 10, 10, 0, 90, kNan); }, {w2 + "ARCELL!"}},
      {[] { pie(500, 500, 0, 0, 90); }, {w2 + "PIE!   (   0)"}},
      {[] { elpsln(500, 500, 10, -2, 0, 90, 0, 1, 0); }, {w2 + "PIE!   (  -2)"}},
      {[] { rectan(500, 500, 0, 10); }, {w2 + "RECTAN!   (   0)"}},
      {[] { rectan(500, 500, 10, 0); }, {w2 + "RECTAN!   (   0)"}},
      {[] { rndrec(500, 500, 0, 40000, 10); },
       {w2 + "RNDREC!   (   0)", w2 + "RNDREC!   (40000)", w2 + "RNDREC!   (  10)"}},
      {[] { symbol(24, 500, 500); }, {w2 + "SYMBOL!   (  24)"}},
      {[] { symbol(-1, 500, 500); }, {w2 + "SYMBOL!   (  -1)"}},
      {[] { symrot(kNan); }, {w2 + "SYMROT!"}},
      {[] { symrot(-kInf); }, {w2 + "SYMROT!"}},
      {[] { mysymb(sym, sym, 0, 24, 0); }, {w2 + "MYSYMB!   (   0)"}},
      {[] { mysymb(sym, sym, 2, 24, 2); }, {w2 + "MYSYMB!   (   2)"}},
      {[] { mysymb(sym, sym, 2, -1, 0); }, {w2 + "MYSYMB!   (  -1)"}},
      {[] { mysymb(sym, sym_nan, 2, 24, 0); }, {w2 + "MYSYMB!"}},
      {[] { vector(100, 100, 200, 200, -1); }, {w2 + "VECTOR!   (  -1)"}},
      {[] { vector(100, 100, 200, 200, 10000); }, {w2 + "VECTOR!   (10000)"}},
      {[] { windbr(kNan, 500, 500, 100, 0); }, {w2 + "WINDBR!"}},
      {[] { windbr(10, 500, 500, 100, kInf); }, {w2 + "WINDBR!"}},
      {[] { windbr(1e9f, 500, 500, 100, 0); }, {w2 + "WINDBR!"}},
      {[] { circsp(0); }, {w2 + "CIRCSP!   (   0)"}},
      {[] { circsp(1000001); }, {w2 + "CIRCSP!   (1000001)"}},
      {[] { pagfll(-1); }, {w2 + "PAGFLL!   (  -1)"}},
      {[] { trifll(tri, tri_nan); }, {w2 + "TRIFLL!"}},
      {[] { strtpt(kNan, 0); }, {w2 + "STRTPT!"}},
      {[] { connpt(0, kInf); }, {w2 + "CONNPT!"}},
      {[] { xpolyl(tri, tri_nan, 3); }, {w2 + "XPOLYL!"}},
      {[] { rlcirc(1, 1, 1); }, {" <<<< Warning   3: Incorrect level in RLCIRC!   (   1)"}},
      {[] { pointx(1, 1, 5, 5, 1); }, {" <<<< Warning   3: Incorrect level in POINTX!   (   1)"}},
      {[] { rlarea(tri, tri, 3); }, {" <<<< Warning   3: Incorrect level in RLAREA!   (   1)"}},
      {[&] { bezier(tri, tri, 3, out, out + 2, 1); }, {w2 + "BEZIER!   (   1)"}},
  };
  metafl("POST");
  zorini();
  for (const auto& c : cases) {
    take_lines();
    zg.cproc = "PIE";   // elpsln has no frame of its own: its warning names the caller
    const Zorglb before = zg;
    c.call();
    EXPECT_EQ(take_lines(), c.lines) << c.lines[0];
    EXPECT_EQ(zg, zbt::with_warning_fields(before)) << c.lines[0];
  }
  zorfin();
  // Nothing reached the page.
  std::string body;
  for (const auto& l : zbt::read_lines(zg.cplotfl.str()))
    if (l.find(" u ") != std::string::npos || l.find(" e ") != std::string::npos) body += l;
  EXPECT_EQ(body, "");
}

TEST_F(BadInput, TwinsNeedAnAxisSystem) {
  // At level 1 the plot-coordinate routines draw; their twins refuse.
  const std::pair<const char*, std::function<void()>> calls[] = {
      {"RLSEC", [] { rlsec(1, 1, 0, 1, 0, 1, 1); }}, {"RLSYMB", [] { rlsymb(1, 1, 1); }},
      {"RLVEC", [] { rlvec(1, 1, 2, 2, 1); }},       {"RLWIND", [] { rlwind(1, 1, 1, 1, 0); }},
      {"RLSTRT", [] { rlstrt(1, 1); }},              {"RLCONN", [] { rlconn(1, 1); }},
      {"RLPOIN", [] { rlpoin(1, 1, 1, 1, 1); }},     {"RLREC", [] { rlrec(1, 1, 1, 1); }},
      {"RLRND", [] { rlrnd(1, 1, 1, 1, 1); }},       {"RLELL", [] { rlell(1, 1, 1, 1); }},
      {"RLARC", [] { rlarc(1, 1, 1, 1, 0, 1, 0); }}, {"RLPIE", [] { rlpie(1, 1, 1, 0, 1); }},
  };
  metafl("POST");
  zorini();
  for (const auto& [name, call] : calls) {
    take_lines();
    const Zorglb before = zg;
    call();
    EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Warning   3: Incorrect level in " +
                                                     std::string(name) + "!   (   1)"});
    EXPECT_EQ(zg, zbt::with_warning_fields(before)) << name;
  }
  zorfin();
}

TEST_F(BadInput, ArrowDigitAndFarOffValues) {
  // Values far outside the page or the int range draw clipped or nothing, never crash.
  const auto s = strokes([] {
    circle(2147483647, -2147483647, 2147483647);
    ellips(-2147483647, 100, 5, 2147483647);
    rectan(2147483647, 2147483647, 2147483647, 2147483647);
    rndrec(2147483647, -2147483647, 32000, 32000, 9);
    symbol(3, 2147483647, -2147483647);
    vector(-2147483647, 100, 2147483647, 100, 9921);
    sector(2147483647, 0, 0, 2147483647, 0, 360, 1);
    sector(100, 100, 0, 50, -1e30f, 1e30f, 1);
    arcell(1000, 1000, 100, 100, 1e30f, -1e30f, 1e30f);
    windbr(99999, 1000, 1000, 2147483647, 0);
    point(2147483647, 2147483647, 2147483647, -2147483647, 1);
    recfll(-2147483647, -2147483647, 2147483647, 2147483647, 1);
  });
  for (const auto& st : s)
    for (zbt::Pt p : st) {
      EXPECT_GE(p.x, -0.01f);
      EXPECT_LE(p.x, float(zg.nxpag) + 0.01f);
    }
}

}  // namespace
