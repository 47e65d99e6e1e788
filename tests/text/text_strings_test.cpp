// Strings: lengths against hand-computed metrics, where the pen starts for every angle and
// justification, exponents and indices drawn where they belong, continued text, off-page
// records, framed strings and their boxes, and input that must not break anything.
#include <climits>
#include <cmath>
#include <limits>
#include <string>

#include "text/text_support.h"

using namespace zb;

namespace {

class Strings : public zbt::TextSession {};

// In the default cell font every glyph and the blank take nh - 1 plot units, with no gap.
TEST_F(Strings, LengthsAgainstHandMetrics) {
  open();
  struct Row { const char* what; void (*set)(); const char* text; int nh; int len; };
  const Row rows[] = {
      {"plain", [] {}, "ABC", 36, 3 * 35},
      {"leading blank", [] {}, " A", 36, 2 * 35},
      {"trailing blanks", [] {}, "A   ", 36, 35},
      {"height 11", [] {}, "Zorbel", 11, 6 * 10},
      {"turned", [] { angle(30); }, "ABCDEFG", 36, 7 * 35},
      {"upright", [] { angle(90); }, "ABCDEFG", 36, 7 * 35},
      {"mix off", [] {}, "10[2$", 36, 5 * 35},
      // Exponent at nint(0.8 * 36) = 29, its glyphs 28 wide; nested at nint(0.8 * 29) = 23.
      {"exponent", [] { mixalf(); }, "10[2$", 36, 2 * 35 + 28},
      {"index", [] { mixalf(); }, "x]2$y", 36, 35 + 28 + 35},
      {"nested", [] { mixalf(); }, "e[x[2$", 36, 35 + 28 + 22},
      {"setexp 0.5", [] { mixalf(); setexp(0.5f); }, "10[2$", 36, 2 * 35 + 17},
      {"new controls", [] { mixalf(); newmix(); }, "10^2%[", 36, 2 * 35 + 28 + 35},
      // A letter gap of 0.5 * 36: between the characters, never behind the last.
      {"gap one", [] { chaspc(0.5f); }, "x", 36, 35},
      {"gap two", [] { chaspc(0.5f); }, "xx", 36, 2 * 35 + 18},
      // Fixed spacing 1.0: cells of 1.4 * 35 = 49.
      {"fixed", [] { fixspc(1.0f); }, "AB", 36, 98},
      {"width", [] { chawth(0.5f); }, "AB", 37, 2 * 18},
  };
  for (const auto& r : rows) {
    reset("ALL");
    r.set();
    height(r.nh);
    EXPECT_EQ(nlmess(r.text), r.len) << r.what;
    height(10);
    EXPECT_EQ(nlmess_at(r.text, r.nh), r.len) << r.what << " measured at its height";
    EXPECT_EQ(zg.nhchar, 10) << r.what;
    height(r.nh);
    EXPECT_EQ(zg.nhchar, r.nh) << r.what;
  }
  EXPECT_EQ(take_text(), "");
  // The box of a plain string.
  reset("ALL");
  int h = 0, d = 0, l = 0;
  qqgmsg("Box", h, d, l);
  EXPECT_EQ((std::array<int, 3>{h, d, l}), (std::array<int, 3>{36, 0, 105}));
  measure_text("Box", 21, h, d, l);
  EXPECT_EQ((std::array<int, 3>{h, d, l}), (std::array<int, 3>{21, 0, 60}));
  EXPECT_EQ(zg.nhchar, 36);
}

// The pen starts at the lower left corner of the first cell; txtjus moves the start back
// along the baseline by the length (70 for "AB") or half of it.
TEST_F(Strings, PenStartJustifiedAndTurned) {
  open();
  struct Row { int ang; const char* just; int ox, oy; float x0, y0; };
  const Row rows[] = {
      {0, "LEFT", 0, 0, 100.0f, 235.0f},   {0, "CENT", 0, 0, 65.0f, 235.0f},
      {0, "RIGH", 0, 0, 30.0f, 235.0f},    {90, "LEFT", 0, 0, 135.0f, 200.0f},
      {90, "CENT", 0, 0, 135.0f, 235.0f},  {90, "RIGH", 0, 0, 135.0f, 270.0f},
      {180, "LEFT", 0, 0, 100.0f, 165.0f}, {180, "RIGH", 0, 0, 170.0f, 165.0f},
      {270, "RIGH", 0, 0, 65.0f, 130.0f},  {30, "LEFT", 0, 0, 117.5f, 230.3109f},
      {30, "RIGH", 0, 0, 56.5f, 265.3109f}, {0, "LEFT", 40, -30, 140.0f, 205.0f},
  };
  for (const auto& r : rows) {
    reset("ALL");
    origin(r.ox, r.oy);
    angle(r.ang);
    txtjus(r.just);
    messag("AB", 100, 200);
    EXPECT_NEAR(zg.xstr0, r.x0, 0.001f) << r.ang << " " << r.just;
    EXPECT_NEAR(zg.ystr0, r.y0, 0.001f) << r.ang << " " << r.just;
    // The pen ends one length further along the baseline.
    EXPECT_NEAR(zg.xchr, r.x0 + 70.0f * zg.xcos, 0.001f) << r.ang << " " << r.just;
    EXPECT_NEAR(zg.ychr, r.y0 - 70.0f * zg.xsin, 0.001f) << r.ang << " " << r.just;
  }
  // 999, 999 continues at the pen, also after a page origin at the bottom.
  reset("ALL");
  origin(0, 0);
  messag("AB", 100, 200);
  messag("CD", 999, 999);
  EXPECT_FLOAT_EQ(zg.xchr, 100.0f + 4 * 35.0f);
  EXPECT_FLOAT_EQ(zg.xstr0, 100.0f);
  // dtext takes 999, 999 for a position, one unit to the right; angle and height come back.
  dtext("A", 999, 999, 90, 21);
  EXPECT_FLOAT_EQ(zg.xstr0, 1000.0f + 20.0f);
  EXPECT_NEAR(zg.ystr0, 999.0f, 0.001f);
  EXPECT_EQ(zg.nangle, 0);
  EXPECT_EQ(zg.nhchar, 36);
  EXPECT_EQ(zg.xsin, 0.0f);
  EXPECT_EQ(take_text(), "");
}

TEST_F(Strings, TurnedTextTurnsAroundTheUpperLeftCorner) {
  // "|" is one stroke in the middle of the cell: at 90 degrees the cell stands on the
  // vertical through x = 100 + 35, its top toward smaller x.
  const auto pen = drawn([] {
    height(36);
    angle(90);
    messag("I", 100, 500);
  });
  ASSERT_FALSE(pen.empty());
  for (const auto& p : pen) {
    EXPECT_GE(p.x, 100.0f - 0.01f);
    EXPECT_LE(p.x, 135.0f + 0.01f);
    EXPECT_GE(p.y, 465.0f - 0.01f);
    EXPECT_LE(p.y, 500.0f + 0.01f);
  }
}

// An exponent is the same glyph drawn at the smaller height with the pen raised by
// setbas * nh; an index is lowered by setbas times its own height.
TEST_F(Strings, ExponentsAndIndicesWhereTheyBelong) {
  auto with = [&](const char* s) {
    return drawn([s] {
      height(30);
      mixalf();
      setbas(0.5f);
      messag(s, 100, 300);
    });
  };
  auto piece = [&](const char* s, int nh, int nx, int ny) {
    return drawn([=] {
      height(nh);
      messag(s, nx, ny);
    });
  };
  auto join = [](std::vector<zbt::Pen> a, const std::vector<zbt::Pen>& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
  };
  // Exponent: baseline 300 + 29 - 15 = 314, at height 24 its cell starts at 314 - 23.
  const auto exp = with("x[y$z");
  const auto exp_want = join(join(piece("x", 30, 100, 300), piece("y", 24, 129, 291)), piece("z", 30, 152, 300));
  // Index: height 24 first, then down by 12 to 341, so its cell starts at 341 - 23.
  const auto ind = with("x]y$z");
  const auto ind_want = join(join(piece("x", 30, 100, 300), piece("y", 24, 129, 318)), piece("z", 30, 152, 300));
  for (const auto& [got, want] : {std::pair{exp, exp_want}, std::pair{ind, ind_want}}) {
    ASSERT_EQ(got.size(), want.size());
    for (std::size_t i = 0; i < got.size(); ++i) {
      EXPECT_NEAR(got[i].x, want[i].x, 0.02f) << i;
      EXPECT_NEAR(got[i].y, want[i].y, 0.02f) << i;
    }
  }
  // The pen ends on the baseline and the height comes back, so 999, 999 continues there.
  open();
  height(30);
  mixalf();
  messag("x[y[z", 100, 300);
  EXPECT_FLOAT_EQ(zg.ychr, 329.0f);
  EXPECT_EQ(zg.nhchar, 30);
  EXPECT_EQ(zg.iexpfl, 1);
  EXPECT_EQ(zg.iindfl, 0);
}

TEST_F(Strings, OffPageRecords) {
  open();
  struct Row { void (*call)(); const char* text; };
  const Row rows[] = {
      {[] { messag("Outside the page", -100, 500); },
       " <<<< Warning: Startpoint ( -100/  500) in MESSAG out of page - (Outside ...)\n"},
      {[] { messag("ABCDEFGHIJ", 2900, 500); },
       " <<<< Warning: Endpoint   ( 3250/  535) in MESSAG out of page - (ABCDEFGH...)\n"},
      {[] { messag("Both", 100, 3000); },
       " <<<< Warning: Startpoint (  100/ 3000) in MESSAG out of page - (Both...)\n"
       " <<<< Warning: Endpoint   (  240/ 3035) in MESSAG out of page - (Both...)\n"},
      {[] { number(-12345.0f, -1, 2900, 100); },
       " <<<< Warning: Endpoint   ( 3110/  135) in MESSAG out of page - (-12345...)\n"},
      {[] { messag("x", 2969, 2099); messag("More", 999, 999); },
       " <<<< Warning: Endpoint   ( 3004/ 2134) in MESSAG out of page - (x...)\n"},
  };
  for (const auto& r : rows) {
    const int n = zg.nwarn;
    r.call();
    const std::string got = take_text();
    EXPECT_EQ(got, r.text);
    EXPECT_EQ(zg.nwarn - n, int(std::count(got.begin(), got.end(), '\n')));
  }
  // Counted but not printed with warnings off.
  errmod("WARN", "OFF");
  const int n = zg.nwarn;
  messag("Outside", -5, -5);
  EXPECT_EQ(take_text(), "");
  EXPECT_EQ(zg.nwarn, n + 1);
}

// Frames: margin m = (linesp - 1) * nh around the box, and (setexp + setbas - 1) * nh more
// above for a string with an exponent or index.
TEST_F(Strings, FramedStrings) {
  struct Row { const char* what; void (*set)(); const char* text; float x0, y0, x1, y1; };
  const Row rows[] = {
      {"plain", [] {}, "AB", 82, 182, 187, 253},
      {"linesp 2", [] { linesp(2.0f); }, "AB", 64, 164, 205, 271},
      {"exponent", [] { mixalf(); }, "A[B$", 82, 167, 180, 252},
      {"exponent and index", [] { mixalf(); }, "A[B$]C", 82, 153, 208, 252},
  };
  for (const auto& r : rows) {
    const auto pen = drawn([&r] {
      height(36);
      frmess(1);
      r.set();
      messag(r.text, 100, 200);
    });
    // The frame is the last closed rectangle drawn.
    ASSERT_GE(pen.size(), 5u) << r.what;
    const auto* f = &pen[pen.size() - 5];
    EXPECT_NEAR(f[0].x, r.x0, 0.02f) << r.what;
    EXPECT_NEAR(f[0].y, r.y0, 0.02f) << r.what;
    EXPECT_NEAR(f[2].x, r.x1, 0.02f) << r.what;
    EXPECT_NEAR(f[2].y, r.y1, 0.02f) << r.what;
    EXPECT_NEAR(f[4].x, r.x0, 0.02f) << r.what;
  }
  // Turned with the text around the corner of the margin.
  const auto turned = drawn([] {
    height(36);
    frmess(1);
    angle(90);
    messag("AB", 500, 500);
  });
  ASSERT_GE(turned.size(), 5u);
  const auto* f = &turned[turned.size() - 5];
  EXPECT_NEAR(f[0].x, 482.0f, 0.02f);   // x = 500 - m cos + t sin, t = -18
  EXPECT_NEAR(f[0].y, 518.0f, 0.02f);   // y = 500 + m sin + t cos
  EXPECT_NEAR(f[1].y, 518.0f - 105.0f, 0.02f);
}

TEST_F(Strings, InputThatMustNotBreakAnything) {
  open();
  // Empty and blank strings: no length, no pen movement, nothing drawn.
  messag("AB", 100, 200);
  const float x = zg.xchr;
  for (const char* s : {"", " ", "      "}) {
    EXPECT_EQ(nlmess(s), 0);
    messag(s, 500, 500);
    messag(s, 999, 999);
    EXPECT_EQ(zg.xchr, x);
  }
  // Thousands of characters are cut to 256; control characters of every kind pile up.
  const std::string many(5000, 'W');
  EXPECT_EQ(nlmess(many), 256 * 35);
  mixalf();
  smxalf("INST", "|", "|", 1);
  for (const std::string& s : {std::string(300, '['), std::string(300, ']'), std::string(1000, '|'),
                               std::string("|") + std::string(50, '9') + "|", std::string(1, '\0') + "\x7f\xff"}) {
    messag(s, 100, 100);
    EXPECT_GE(nlmess(s), 0);
    EXPECT_EQ(zg.nhchar, 36);
  }
  // Absurd heights, angles, positions and factors.
  angle(INT_MAX);
  messag("A", 100, 100);
  angle(INT_MIN);
  EXPECT_TRUE(std::isfinite(zg.xcos) && std::isfinite(zg.xsin));
  angle(0);
  dtext("dtext", 100, 100, 45, 0);
  dtext("dtext", 100, 100, -720, 1000000);
  EXPECT_EQ(zg.nhchar, 36);
  EXPECT_EQ(zg.nangle, 0);
  messag("far", INT_MAX, INT_MIN);
  messag("far", INT_MIN, INT_MAX);
  setexp(1.0e30f);
  setbas(-1.0e30f);
  linesp(1.0e30f);
  frmess(10000);
  messag("A[B]C$D", 100, 100);
  frmess(0);
  take_text();
  const Zorglb before = zg;
  struct Case { void (*call)(); const char* line; };
  const Case cases[] = {
      {[] { height(0); }, " <<<< Warning   2: Incorrect parameter in HEIGHT!   (   0)"},
      {[] { height(10001); }, " <<<< Warning   2: Incorrect parameter in HEIGHT!   (10001)"},
      {[] { setexp(std::numeric_limits<float>::quiet_NaN()); }, " <<<< Warning   2: Incorrect parameter in SETEXP!"},
      {[] { setbas(std::numeric_limits<float>::infinity()); }, " <<<< Warning   2: Incorrect parameter in SETBAS!"},
      {[] { linesp(-std::numeric_limits<float>::infinity()); }, " <<<< Warning   2: Incorrect parameter in LINESP!"},
      {[] { frmess(INT_MIN); }, " <<<< Warning   2: Incorrect parameter in FRMESS!   (-2147483648)"},
      {[] { txtjus("BOTH"); }, " <<<< Warning   2: Incorrect parameter in TXTJUS!   (BOTH)"},
      {[] { rlmess("x", 1.0f, 1.0f); }, " <<<< Warning   3: Incorrect level in RLMESS!   (   1)"},
  };
  for (const auto& c : cases) {
    c.call();
    EXPECT_EQ(take_text(), std::string(c.line) + "\n");
    EXPECT_EQ(zg, zbt::with_warning_fields(before));
  }
  zorfin();
  take_text();
  messag("no session", 100, 100);
  EXPECT_EQ(take_text(), " <<<< Warning   3: Incorrect level in MESSAG!   (   0)\n");
}

}  // namespace
