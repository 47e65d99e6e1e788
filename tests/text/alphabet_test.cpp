// Font sets and the drawing of characters: table limits and record structure of every set,
// widths against the metrics, the positions of gcspec, and characters that have no glyph.
#include <algorithm>
#include <array>
#include <string>

#include "text/text_support.h"

using namespace zb;

namespace {

struct FontSet {
  const char* name;
  void (*load)();
  int ifont;
  std::array<int, 6> npos;
};

const FontSet kSets[] = {
    {"ZORALF", zoralf, 1, {102, 95, 95, 102, 102, 95}},  {"COMPLX", complx, 3, {209, 95, 95, 102, 102, 95}},
    {"SIMPLX", simplx, 4, {102, 95, 95, 102, 102, 95}},  {"DUPLX", duplx, 5, {102, 95, 95, 102, 102, 95}},
    {"TRIPLX", triplx, 6, {102, 95, 95, 102, 102, 95}},  {"GOTHIC", gothic, 7, {95, 95, 95, 95, 102, 95}},
    {"COMGOT", comgot, 7, {209, 95, 95, 95, 102, 95}},   {"HELVE", helve, 11, {102, 95, 95, 102, 102, 95}},
    {"HELVES", helves, 12, {102, 95, 95, 102, 102, 95}}, {"HELVET", helvet, 13, {102, 95, 95, 102, 102, 95}},
    {"SERIF", serif, 14, {102, 95, 95, 102, 102, 95}},
};

class Alphabets : public zbt::TextSession {};

// Walks the records of one alphabet and checks that each parses into contours ending exactly at
// its length, with every point inside the loaded pool; returns the word after the last record.
int check_records(int k, const char* set) {
  const std::size_t a = std::size_t(k);
  int pos = zg.ialfidx[a];
  for (int r = 0; r < zg.nalfrec[a]; ++r) {
    const int len = zg.ichidx[std::size_t(pos - 1)];
    EXPECT_GE(len, 3) << set << " alphabet " << k + 1 << " record " << r;
    if (len < 3 || pos + len - 1 > zg.nidxused) return -1;
    int cur = pos + 1, outline_points = 0, contours = 0;
    while (cur < pos + len) {
      const int w = zg.ichidx[std::size_t(cur - 1)];
      const int start = zg.ichidx[std::size_t(cur)];
      const int npts = std::abs(w);
      EXPECT_NE(w, 0);
      const int first = zg.ialfpts[a] + start - 1;
      EXPECT_GE(first, 1) << set << " alphabet " << k + 1 << " record " << r;
      EXPECT_LE(first + npts - 1, zg.nptsused) << set << " alphabet " << k + 1 << " record " << r;
      outline_points += npts;
      ++contours;
      cur += w < 0 ? 3 : 2;
    }
    EXPECT_EQ(cur, pos + len) << set << " alphabet " << k + 1 << " record " << r;
    if (zg.ifont > 10 && zg.ialfidx[a] == 1)   // one polygon with a bridge per further contour
      EXPECT_LE(outline_points + contours - 1, 200) << set << " record " << r;
    pos += len;
  }
  return pos;
}

TEST_F(Alphabets, EveryFontSetStaysWithinTheTables) {
  open();
  for (const auto& s : kSets) {
    s.load();
    EXPECT_EQ(zg.ifont, s.ifont) << s.name;
    EXPECT_EQ(zg.nalf, 6) << s.name;
    EXPECT_EQ(zg.ifnttp, 0) << s.name;
    EXPECT_LE(zg.nptsused, kMaxAlfPoints) << s.name;
    EXPECT_LE(zg.nidxused, kMaxAlfWords) << s.name;
    EXPECT_GT(zg.nptsused, 1000) << s.name;
    for (int k = 0; k < 6; ++k) {
      EXPECT_EQ(zg.nalfch[std::size_t(k)], s.npos[std::size_t(k)]) << s.name << " alphabet " << k + 1;
      EXPECT_GE(zg.nalfrec[std::size_t(k)], 29) << s.name << " alphabet " << k + 1;
      const int end = check_records(k, s.name);
      // Records lie one behind the other: an alphabet of its own ends where the next begins.
      const bool alias = k > 0 && zg.ialfidx[std::size_t(k)] == 1;
      if (k < 5 && !alias && zg.ialfidx[std::size_t(k + 1)] != 1)
        EXPECT_EQ(end, zg.ialfidx[std::size_t(k + 1)]) << s.name;
    }
    // Full alphabets hold a record for every position but the blank.
    EXPECT_EQ(zg.nalfrec[0], s.npos[0] - 1) << s.name;
  }
}

TEST_F(Alphabets, MetricsByFontNumber) {
  open();
  struct Case { void (*load)(); std::array<int, 6> w, h; std::array<float, 6> sp; int nblank; };
  const Case cases[] = {
      {zoralf, {6, 6, 20, 6, 20, 20}, {7, 7, 21, 7, 21, 21}, {0, 0, 0.25f, 0, 0, 0.25f}, 6},
      {complx, {20, 20, 20, 20, 20, 20}, {21, 21, 21, 21, 21, 21}, {0.25f, 0.25f, 0.25f, 0.25f, 0, 0.25f}, 9},
      {gothic, {20, 20, 20, 20, 20, 20}, {21, 21, 21, 21, 21, 21}, {0.25f, 0.25f, 0.25f, 0.25f, 0.25f, 0.25f}, 9},
      {serif, {200, 20, 20, 200, 20, 20}, {200, 21, 21, 200, 21, 21}, {0.2f, 0.25f, 0.25f, 0.2f, 0, 0.25f}, 60},
  };
  for (const auto& c : cases) {
    c.load();
    EXPECT_EQ(zg.ncwid, c.w);
    EXPECT_EQ(zg.nchgt, c.h);
    EXPECT_EQ(zg.xalfsp, c.sp);
    EXPECT_EQ(zg.nblank, c.nblank);
  }
  comgot();
  EXPECT_EQ(zg.ialffull, (std::array<int, 6>{1, 0, 0, 0, 0, 1}));
  simplx();   // Greek shares the pool of alphabet 1; italics are alphabet 1 again
  EXPECT_EQ(zg.ialfpts[1], zg.ialfpts[0]);
  EXPECT_EQ(zg.ialfidx[3], 1);
  EXPECT_EQ(zg.ialfpts[3], 1);
}

TEST_F(Alphabets, CellFontGlyphsTakeTheirCell) {
  open();
  zoralf();
  for (const char* alph : {"STAN", "ITAL"}) {
    basalf(alph);
    for (int code = 32; code <= 133; ++code)
      EXPECT_FLOAT_EQ(advance(code, 37), 36.0f) << alph << " code " << code;   // 6 units of 36 / 6
  }
  basalf("GREE");   // the Greek cells carry their width in a pen move
  for (int code : {'A', 'i', 'w', 'W'}) EXPECT_FLOAT_EQ(advance(code, 37), 36.0f) << char(code);
}

TEST_F(Alphabets, WidthsAgainstTheMetrics) {
  open();
  simplx();
  // nh 21: one font unit is one plot unit; the gap is 0.25 of the height.
  EXPECT_FLOAT_EQ(advance(' '), 9.0f + 5.25f);
  EXPECT_FLOAT_EQ(advance('H'), 14.0f + 5.25f);   // the stems of H stand 14 units apart
  EXPECT_FLOAT_EQ(advance('l'), 0.0f + 5.25f);    // a single stroke has no width
  EXPECT_FLOAT_EQ(advance(200), 9.0f + 5.25f);    // beyond the 102 positions: a blank
  EXPECT_FLOAT_EQ(advance(7), 9.0f + 5.25f);      // a control code is a blank
  chawth(2.0f);                                   // the blank widens with the letters
  EXPECT_FLOAT_EQ(advance(' '), 18.0f + 5.25f);
  EXPECT_FLOAT_EQ(advance('H'), 28.0f + 5.25f);
  chawth(1.0f);
  chaspc(1.0f);
  EXPECT_FLOAT_EQ(advance('H'), 14.0f + 26.25f);
  chaspc(0.0f);
  // Fixed spacing: every cell is 1.4 * factor * (nh - 1) wide and the alphabet's gap falls away.
  fixspc(1.0f);
  for (int code : {' ', 'i', 'H', 'W', '1'}) EXPECT_FLOAT_EQ(advance(code), 28.0f) << char(code);
  chaspc(0.5f);
  EXPECT_FLOAT_EQ(advance('W'), 28.0f + 10.5f);
  // Outline families: cap height 200 in a cell of 200, the blank 60 units, gap 0.2 of the height.
  reset("FIXS");
  chaspc(0.0f);
  helve();
  EXPECT_FLOAT_EQ(advance(' ', 201), 60.0f + 40.2f);
  const float h = advance('H', 201) - 40.2f;
  EXPECT_GT(h, 120.0f);
  EXPECT_LT(h, 200.0f);
}

TEST_F(Alphabets, ScriptDigitsAreShearedAndSpaced) {
  open();
  simplx();
  basalf("SCRI");
  zg.nhchar = 21;
  begin_string();
  zg.imeasr = 1;
  zg.xchr = 0.0f;
  alfcha('a');
  const float after_a = zg.xchr;
  alfcha('1');
  const float one = zg.xchr - after_a;
  EXPECT_EQ(zg.ishear, 1);
  // The digit comes from alphabet 1, behind a gap of alphabet 1, as script letters join.
  basalf("STAN");
  EXPECT_FLOAT_EQ(one, advance('1') + 5.25f);
}

TEST_F(Alphabets, GlyphsStandOnTheBaseline) {
  const auto pen = drawn([] {
    simplx();
    height(22);
    messag("H", 100, 100);
  });
  ASSERT_FALSE(pen.empty());
  float x0 = 1e9f, x1 = -1e9f, y0 = 1e9f, y1 = -1e9f;
  for (const auto& p : pen) {
    x0 = std::min(x0, p.x); x1 = std::max(x1, p.x);
    y0 = std::min(y0, p.y); y1 = std::max(y1, p.y);
  }
  // The cell's upper left corner is (100, 100); capitals are nh - 1 high and sit on y = 121.
  EXPECT_NEAR(x0, 100.0f, 0.01f);
  EXPECT_NEAR(x1, 114.7f, 0.01f);   // 14 units of 21 / 20
  EXPECT_NEAR(y0, 100.0f, 0.01f);
  EXPECT_NEAR(y1, 121.0f, 0.01f);
}

TEST_F(Alphabets, ItalicsOfTheCellFontAreSheared) {
  const auto pen = drawn([] {
    basalf("ITAL");
    height(36);
    messag("|", 100, 100);   // one stroke from (2, 7) to (2, 0) in the cell
  });
  float top = 0, bottom = 0, ymin = 1e9f, ymax = -1e9f;
  for (const auto& p : pen) {
    if (p.y < ymin) { ymin = p.y; top = p.x; }
    if (p.y > ymax) { ymax = p.y; bottom = p.x; }
  }
  EXPECT_NEAR(ymax - ymin, 35.0f, 0.01f);
  EXPECT_NEAR(top - bottom, 35.0f / 3.732f, 0.01f);
}

TEST_F(Alphabets, OutlinesAreFilledAfterShdcha) {
  auto segments = [this](bool fill) {
    const auto pen = drawn([fill] {
      helve();
      if (fill) shdcha();
      height(200);
      messag("O", 100, 100);
    });
    int n = 0;
    for (const auto& p : pen) n += p.code == 2;
    return n;
  };
  const int outline = segments(false), filled = segments(true);
  EXPECT_GT(outline, 20);
  EXPECT_GT(filled, outline + 100);   // scan lines every 0.75 units across 200 units
}

TEST_F(Alphabets, GcspecPositions) {
  open();
  struct Case { void (*load)(); int ialf, idx, out, flag; };
  const Case cases[] = {
      {complx, 1, 34, 34, 0},   {complx, 2, 34, 2, 0},    {complx, 2, 59, 27, 0},  {complx, 2, 66, 28, 0},
      {complx, 2, 91, 53, 0},   {complx, 2, 18, 18, 1},   {complx, 2, 60, 60, 1},  {complx, 2, 96, 32, 1},
      {complx, 3, 34, 2, 0},    {complx, 5, 96, 54, 0},   {complx, 5, 102, 60, 0}, {complx, 4, 66, 2, 0},
      {complx, 4, 91, 27, 0},   {complx, 4, 99, 28, 0},   {complx, 4, 101, 30, 0}, {complx, 4, 34, 34, 1},
      {complx, 4, 102, 102, 1}, {complx, 6, 5, 2, 0},     {complx, 6, 7, 4, 0},    {complx, 6, 29, 5, 0},
      {complx, 6, 31, 7, 0},    {complx, 6, 34, 8, 0},    {complx, 6, 63, 37, 0},  {complx, 6, 66, 38, 0},
      {complx, 6, 95, 67, 0},   {complx, 6, 96, 32, 1},   {complx, 6, 17, 17, 1},  {complx, 6, 64, 64, 1},
      {gothic, 4, 66, 28, 0},   {gothic, 4, 99, 32, 1},   {comgot, 6, 34, 34, 0},  {comgot, 6, 96, 96, 0},
  };
  for (const auto& c : cases) {
    c.load();
    zg.ialf = c.ialf;
    int idx = c.idx, flag = -1;
    gcspec(idx, flag);
    EXPECT_EQ(idx, c.out) << "alphabet " << c.ialf << " idx " << c.idx;
    EXPECT_EQ(flag, c.flag) << "alphabet " << c.ialf << " idx " << c.idx;
  }
}

TEST_F(Alphabets, AnyCodeInAnyAlphabetIsSafe) {
  open();
  for (const auto& s : kSets) {
    s.load();
    shdcha();
    for (const char* alph : {"STAN", "GREE", "MATH", "ITAL", "SCRI", "RUSS"}) {
      basalf(alph);
      height(30);
      std::string all;
      for (int c = 1; c < 256; ++c) all += char(c);
      // In rows that stay on the page: a string running off it is reported.
      for (std::size_t r = 0; r < 5; ++r) messag(all.substr(51 * r, 51), 50, 500 + 60 * int(r));
      EXPECT_GT(nlmess(all), 0) << s.name << " " << alph;
      for (int code : {-1000, -1, 0, 31, 256, 1000, 1 << 30}) {
        zg.xchr = zg.ychr = 500.0f;
        begin_string();
        alfcha(code);
        EXPECT_TRUE(std::isfinite(zg.xchr)) << s.name << " " << code;
      }
    }
  }
  EXPECT_EQ(zg.nwarn, 0);
}

TEST_F(Alphabets, StringsOfAnyLength) {
  open();
  complx();
  const std::string a256(256, 'M'), a300(300, 'M');
  EXPECT_EQ(nlmess(""), 0);
  EXPECT_EQ(nlmess("    "), 0);
  EXPECT_EQ(nlmess(a300), nlmess(a256));   // cut to 256 characters
  EXPECT_GT(nlmess(a256), nlmess("MMM"));
  messag(std::string(100000, 'x'), 10, 10);
  messag(std::string(1, '\0'), 10, 10);
  // A half-loaded set (no alphabet yet) draws blanks only.
  lcinit(3);
  EXPECT_FLOAT_EQ(advance('A'), float(zg.nblank) * 1.0f + 5.25f);
}

}  // namespace
