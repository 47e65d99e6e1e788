// Colour: the named tables and their foreground and background by output, single entries
// and own tables, explicit RGB values, HSV, colour scales, the cycles, the table file, and
// the colour records that reach the PostScript, HPGL and metafile outputs.
#include <cmath>
#include <sstream>

#include "support/harness.h"

using namespace zb;

namespace {

class Colour : public zbt::Fixture {
 protected:
  void open(const char* fmt, int scr = 4) {
    metafl(fmt);
    zg.iscrset = scr;
    zorini();
    take_lines();
  }
  // Record lines of the plot file behind the PostScript head.
  std::vector<std::string> finish_ps() {
    zorfin();
    const auto lines = zbt::read_lines(zg.cplotfl.str());
    std::size_t i = 0;
    while (i < lines.size() && !lines[i].ends_with(" scale")) ++i;
    return {lines.begin() + long(i + 1), lines.end()};
  }
};

int rgb(int r, int g, int b) { return (r << 16) | (g << 8) | b; }

TEST_F(Colour, TableEntriesAtChosenIndices) {
  struct Case { const char* fmt; const char* table; int index; int value; };
  const Case cases[] = {
      // The default table of POST: grey reversed, white first.
      {"POST", nullptr, 0, 0xFFFFFF}, {"POST", nullptr, 255, 0x000000}, {"POST", nullptr, 100, 155 * 0x010101},
      // The default table elsewhere: the rainbow with its fixed rows.
      {"VIRT", nullptr, 0, 0x000000}, {"VIRT", nullptr, 1, 0x220044}, {"VIRT", nullptr, 2, 0x26004D},
      {"VIRT", nullptr, 32, 0x0008FF}, {"VIRT", nullptr, 96, 0x00FFFF}, {"VIRT", nullptr, 160, 0x7BFF00},
      {"VIRT", nullptr, 224, 0xFF7B00}, {"VIRT", nullptr, 254, 0xFF0000}, {"VIRT", nullptr, 255, 0xFFFFFF},
      {"VIRT", nullptr, 48, rgb(0x00, 0x46, 0xFF)},   // halfway between rows 32 and 64
      {"VIRT", "SPEC", 1, 0xFF00FF}, {"VIRT", "SPEC", 64, 0x003EFF}, {"VIRT", "SPEC", 192, 0xC6FF00},
      {"VIRT", "SPEC", 224, 0xFF9700}, {"VIRT", "SPEC", 255, 0xFFFFFF},
      {"VIRT", "GREY", 77, 77 * 0x010101},
      {"VIRT", "RRAI", 254, 0x220044}, {"VIRT", "RRAI", 0, 0xFFFFFF}, {"VIRT", "RSPE", 191, 0x003EFF},
      {"VIRT", "RGRE", 55, 200 * 0x010101},
      {"VIRT", "TEMP", 0, 0}, {"VIRT", "TEMP", 100, rgb(170, 0, 0)}, {"VIRT", "TEMP", 130, rgb(221, 19, 0)},
      {"VIRT", "TEMP", 200, rgb(255, 151, 39)}, {"VIRT", "TEMP", 255, 0xFFFFFF},
      {"VIRT", "VGA", 6, 0xAA5500}, {"VIRT", "VGA", 15, 0xFFFFFF}, {"POST", "VGA", 0, 0xFFFFFF},
      {"POST", "VGA", 15, 0x000000},
      {"VIRT", "SMAL", 6, 0xFF8000}, {"VIRT", "SMAL", 8, 0xFF00FF}, {"VIRT", "SMAL", 0, 0x000000},
      {"POST", "SMAL", 0, 0xFFFFFF}, {"POST", "SMAL", 1, 0x000000},
  };
  for (const auto& c : cases) {
    open(c.fmt);
    if (c.table) setvlt(c.table);
    EXPECT_EQ(zg.ivlt[std::size_t(c.index)], c.value)
        << c.fmt << " " << (c.table ? c.table : "default") << " entry " << c.index;
    zorfin();
  }
}

TEST_F(Colour, ForegroundAndBackgroundByTableAndOutput) {
  struct Case {
    const char* fmt; int scr; const char* table;
    int fg, bg, lo, hi, white_key, black_key; const char* name;
  };
  constexpr int W = 0x01FFFFFF, K = 0x01000000;
  const Case cases[] = {
      {"POST", 4, nullptr, 255, 0, 0, 255, K, K, "RGREY"},
      {"POST", 4, "RAIN", 0, 255, 0, 255, W, K, "RAIN "},
      {"POST", 4, "SMAL", 1, 0, 0, 9, K, K, "SMALL"},
      {"POST", 4, "VGA", 15, 0, 0, 15, K, W, "VGA  "},
      {"VIRT", 4, nullptr, 255, 0, 0, 255, W, K, "RAIN "},
      {"VIRT", 4, "GREY", 255, 0, 0, 255, W, W, "GREY "},
      {"VIRT", 4, "RRAI", 255, 0, 0, 255, K, W, "RRAIN"},   // 8 bits: the two keys change places
      {"PSCL", 4, "RRAI", 0, 255, 0, 255, W, K, "RRAIN"},   // 24 bits
      {"VIRT", 4, "TEMP", 255, 0, 0, 255, W, K, "TEMP "},
      {"CGM", 4, "SPEC", 0, 255, 0, 255, K, K, "SPEC "},
      // Reversed screen: entries 0 and 255 change places, so do the ends of the table.
      {"PNG", 2, nullptr, 255, 0, 255, 0, K, W, "RAIN "},
      {"PNG", 2, "SMAL", 1, 0, 9, 0, K, K, "SMALL"},
      {"PS", 4, nullptr, 255, 0, 255, 0, K, W, "RAIN "},
  };
  for (const auto& c : cases) {
    open(c.fmt, c.scr);
    if (c.table) setvlt(c.table);
    const std::string what = std::string(c.fmt) + " " + (c.table ? c.table : "default");
    EXPECT_EQ(zg.ifgclr, c.fg) << what;
    EXPECT_EQ(zg.ibgclr, c.bg) << what;
    EXPECT_EQ(zg.nclrlo, c.lo) << what;
    EXPECT_EQ(zg.nclrhi, c.hi) << what;
    EXPECT_EQ(zg.icolnm[0], c.white_key) << what;
    EXPECT_EQ(zg.icolnm[8], c.black_key) << what;
    EXPECT_EQ(getvlt(), c.name) << what;
    EXPECT_EQ(zg.ipenclr, zg.ifgclr) << what;
    zorfin();
  }
}

TEST_F(Colour, ReversedRasterPageHasABlackForeground) {
  open("PNG", 2);
  EXPECT_EQ(zg.ivlt[0], 0xFFFFFF);
  EXPECT_EQ(zg.ivlt[std::size_t(zg.ifgclr)], 0x000000);
  EXPECT_EQ(zg.nclr1, 1);
  EXPECT_EQ(zg.nclr2, 254);
  zorfin();
}

TEST_F(Colour, KeywordsAndCycles) {
  open("VIRT");
  EXPECT_EQ(zg.icolnm[1], 0x010000FF);   // RED: red in the low byte
  EXPECT_EQ(zg.icolnm[5], 0x010080FF);   // ORAN
  for (int k = 1; k <= 30; ++k) {
    const int m = k % 8 == 0 ? 8 : k % 8;
    EXPECT_EQ(zg.iclrcy[std::size_t(k - 1)], zg.icolnm[std::size_t(m - 1)]) << k;
    EXPECT_EQ(zg.ilincy[std::size_t(k - 1)], (k - 1) % 8) << k;
  }
  EXPECT_EQ(zg.ipatcy[0], 0);
  EXPECT_EQ(zg.ipatcy[16], 16);
  EXPECT_EQ(zg.ipatcy[17], 17);
  EXPECT_EQ(zg.ipatcy[18], 0);
  EXPECT_EQ(zg.ipatcy[29], 11);
  color("GREE");
  EXPECT_EQ(zg.ipenclr, 0x0100FF00);
  color("back");
  EXPECT_EQ(zg.ipenclr, zg.ibgclr);
  setvlt("GREY");
  color("RED");
  EXPECT_EQ(zg.ipenclr, 0x01E6E6E6);
  clrcyc(3, 77);
  lincyc(3, 7);
  patcyc(3, 180000);
  reset("CLRCYC");
  reset("LINC");
  EXPECT_EQ(zg.iclrcy[2], zg.icolnm[2]);
  EXPECT_EQ(zg.ilincy[2], 2);
  EXPECT_EQ(zg.ipatcy[2], 180000);
  reset("PATC");
  EXPECT_EQ(zg.ipatcy[2], 2);
  zorfin();
}

TEST_F(Colour, GettersReturnWhatSettersStored) {
  open("VIRT");
  setclr(300);
  int i = 0;
  getclr(i);
  EXPECT_EQ(i, 300);
  setind(17, 0.25f, 0.5f, 1.0f);
  EXPECT_EQ(zg.ivlt[17], rgb(64, 128, 255));
  float r, g, b;
  getind(17, r, g, b);
  EXPECT_FLOAT_EQ(r, 64.0f / 255.0f);
  EXPECT_FLOAT_EQ(g, 128.0f / 255.0f);
  EXPECT_FLOAT_EQ(b, 1.0f);
  colran(10, 20);
  int lo = 0, hi = 0;
  getran(lo, hi);
  EXPECT_EQ(lo, 10);
  EXPECT_EQ(hi, 20);
  reset("COLRAN");
  getran(lo, hi);
  EXPECT_EQ(lo, 1);
  EXPECT_EQ(hi, 254);
  const float xr[3] = {0.0f, 1.0f, 0.2f}, xg[3] = {0.5f, 0.0f, 0.2f}, xb[3] = {1.0f, 0.0f, 0.2f};
  const int fourth = zg.ivlt[3];
  myvlt(xr, xg, xb, 3);
  EXPECT_EQ(zg.ivlt[0], rgb(0, 128, 255));
  EXPECT_EQ(zg.ivlt[1], 0xFF0000);
  EXPECT_EQ(zg.ivlt[2], 51 * 0x010101);
  EXPECT_EQ(zg.ivlt[3], fourth);
  revscr();
  EXPECT_EQ(zg.ivlt[255], rgb(0, 128, 255));
  zorfin();
}

TEST_F(Colour, MyvltAtLevelZeroSurvivesTheSessionStart) {
  const float xr[2] = {1.0f, 0.0f}, xg[2] = {0.0f, 0.0f}, xb[2] = {0.0f, 1.0f};
  metafl("VIRT");
  myvlt(xr, xg, xb, 2);
  EXPECT_EQ(zg.ivltset, 1);
  zorini();
  EXPECT_EQ(zg.ivlt[0], 0xFF0000);
  EXPECT_EQ(zg.ivlt[1], 0x0000FF);
  EXPECT_EQ(zg.ivltset, 0);
  setvlt("RAIN");   // the next table load is a plain one
  EXPECT_EQ(zg.ivlt[1], 0x220044);
  zorfin();
}

TEST_F(Colour, ExplicitValuesSurviveTheRoundTrip) {
  open("PSCL");
  const float parts[][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {0.2f, 0.4f, 0.6f}, {1, 1, 1}, {0, 0, 0},
                            {0.5f, 0.25f, 0.75f}, {0.999f, 0.001f, 0.5f}};
  for (const auto& p : parts) {
    const int v = intrgb(p[0], p[1], p[2]);
    const int r = int(std::lround(255 * p[0])), g = int(std::lround(255 * p[1])), b = int(std::lround(255 * p[2]));
    EXPECT_EQ(v, 0x01000000 | (b << 16) | (g << 8) | r);
    float xr, xg, xb;
    getind(v, xr, xg, xb);
    EXPECT_EQ(intrgb(xr, xg, xb), v);
    setrgb(p[0], p[1], p[2]);
    EXPECT_EQ(zg.ipenclr, v);
    getrgb(xr, xg, xb);
    EXPECT_FLOAT_EQ(xr, float(r) / 255.0f);
    EXPECT_FLOAT_EQ(xg, float(g) / 255.0f);
    EXPECT_FLOAT_EQ(xb, float(b) / 255.0f);
    int i1, i2, i3;
    gbyt03(v, i1, i2, i3);
    EXPECT_EQ(i1, b);
    EXPECT_EQ(i3, r);
  }
  EXPECT_EQ(intrgb(1.0011f, 0, 0), -1);
  EXPECT_EQ(intrgb(0, std::nanf(""), 0), -1);
  EXPECT_EQ(intrgb(-0.0009f, 0, 1.0009f), 0x01FF0000);
  zorfin();
}

TEST_F(Colour, NearestIndex) {
  open("VIRT");
  EXPECT_EQ(qqgidx(255, 0, 0), 254);
  EXPECT_EQ(indrgb(1.0f, 0.0f, 0.0f), 254);
  EXPECT_EQ(qqgidx(0, 0, 0), 0);
  setvlt("SMAL");
  EXPECT_EQ(qqgidx(255, 128, 0), 6);
  EXPECT_EQ(indrgb(0.0f, 0.9f, 0.9f), 7);
  // Only the nine entries of SMAL count, though the rest of the table is black.
  zg.ivlt[100] = 0x123456;
  EXPECT_LT(qqgidx(0x12, 0x34, 0x56), 9);
  zorfin();
}

TEST_F(Colour, HsvConversions) {
  open("VIRT");
  struct Case { float h, s, v, r, g, b; };
  const Case cases[] = {
      {0, 1, 1, 1, 0, 0},     {360, 1, 1, 1, 0, 0},   {120, 1, 1, 0, 1, 0}, {240, 1, 1, 0, 0, 1},
      {60, 1, 1, 1, 1, 0},    {180, 0.5f, 1, 0.5f, 1, 1}, {300, 1, 0.5f, 0.5f, 0, 0.5f},
      {30, 1, 1, 1, 0.5f, 0}, {0, 0, 0.25f, 0.25f, 0.25f, 0.25f},
  };
  for (const auto& c : cases) {
    float r = -1, g = -1, b = -1;
    hsvrgb(c.h, c.s, c.v, r, g, b);
    EXPECT_NEAR(r, c.r, 1e-6) << c.h;
    EXPECT_NEAR(g, c.g, 1e-6) << c.h;
    EXPECT_NEAR(b, c.b, 1e-6) << c.h;
    float h, s, v;
    rgbhsv(r, g, b, h, s, v);
    EXPECT_NEAR(v, c.v, 1e-6) << c.h;
    if (c.s > 0) {
      EXPECT_NEAR(s, c.s, 1e-6) << c.h;
      EXPECT_NEAR(std::fmod(h, 360.0f), std::fmod(c.h, 360.0f), 1e-4) << c.h;
    } else {
      EXPECT_EQ(h, 0.0f);
      EXPECT_EQ(s, 0.0f);
    }
  }
  zorfin();
}

TEST_F(Colour, ScaleColours) {
  open("VIRT");
  // Scale 0..10 over the colours 1..254: 25.4 colours per unit.
  const float f = 254.0f / 10.0f;
  EXPECT_EQ(scale_colour(-1.0f, false, 0, 10, 0, 10, f), 0);
  EXPECT_EQ(scale_colour(11.0f, false, 0, 10, 0, 10, f), 255);
  EXPECT_EQ(scale_colour(0.0f, false, 0, 10, 0, 10, f), 1);
  EXPECT_EQ(scale_colour(5.0f, false, 0, 10, 0, 10, f), 128);
  EXPECT_EQ(scale_colour(10.0f, false, 0, 10, 0, 10, f), 254);   // the top is nclr2, not beyond
  EXPECT_EQ(scale_colour(std::nanf(""), false, 0, 10, 0, 10, f), 0);
  // A falling scale takes the ends the other way round.
  EXPECT_EQ(scale_colour(-1.0f, false, 10, 0, 0, 10, -f), 255);
  EXPECT_EQ(scale_colour(10.0f, false, 10, 0, 0, 10, -f), 1);
  // Logarithmic: exponents 0..2 for the values 1..100.
  const float g = 254.0f / 2.0f;
  EXPECT_EQ(scale_colour(10.0f, true, 0, 2, 1, 100, g), 128);
  EXPECT_EQ(scale_colour(100.0f, true, 0, 2, 1, 100, g), 254);
  EXPECT_EQ(scale_colour(0.0f, true, 0, 2, 0, 100, g), 1);   // log of 0: the low end, no UB
  EXPECT_EQ(scale_colour(5.0f, false, 5, 5, 5, 5, INFINITY), 1);
  zorfin();
}

TEST_F(Colour, PostScriptColourRecords) {
  open("POST");
  color("FORE");                  // RGREY on POST: index 255 is black
  setclr(0);                      // index 0 is white
  setclr(300);                    // 300 is the index 44
  setrgb(1.0f, 0.5f, 0.0f);       // written red, green, blue, though the value holds blue high
  setclr(0x01FF0000);             // pure blue
  setvlt("TEMP");                 // foreground of TEMP on POST is 0: black
  const auto body = finish_ps();
  EXPECT_EQ(body, (std::vector<std::string>{
                      "0 0 0 f 0 0 0 f 255 255 255 f 211 211 211 f 255 128 0 f 0 0 255 f 0 0 0 f ",
                      "showpage "}));
}

TEST_F(Colour, HpglAndMetafileTakeTableIndices) {
  open("HPGL");
  setclr(intrgb(1.0f, 0.0f, 0.0f));   // the nearest entry of RAIN is 254
  setclr(300);
  zorfin();
  const auto hp = zbt::read_file(zg.cplotfl.str());
  EXPECT_NE(hp.find("SP254;SP44;"), std::string::npos) << hp;

  open("ZMET");
  for (int c : {1, 89, 90, 256, 0}) setclr(c);
  zorfin();
  const auto met = zbt::read_lines(zg.cplotfl.str());
    // 1 -> 10.0; 89 -> 98.0; 90 -> prefix, 10.0; 256 and 0 -> two prefixes, 87.0.
  const std::string fields = "10.0000000" "98.0000000" "99.0000000" "10.0000000"
                             "99.0000000" "99.0000000" "87.0000000" "99.0000000" "99.0000000" "87.0000000";
  std::string all;
  for (const auto& l : met) all += l;
  EXPECT_NE(all.find(fields), std::string::npos) << all;
}

TEST_F(Colour, TableFileSaveAndLoad) {
  open("VIRT");
  setvlt("TEMP");
  vltfil("temp.vlt", "SAVE");
  const auto lines = zbt::read_lines("temp.vlt");
  ASSERT_EQ(lines.size(), 256u);
  EXPECT_EQ(lines[0], "  0.000000  0.000000  0.000000");
  EXPECT_EQ(lines[255], "  1.000000  1.000000  1.000000");
  EXPECT_EQ(lines[100], "  0.666667  0.000000  0.000000");
  const auto temp = zg.ivlt;
  setvlt("GREY");
  vltfil("temp.vlt", "LOAD");
  EXPECT_EQ(zg.ivlt, temp);
  // A second save does not overwrite the first.
  vltfil("temp.vlt", "save");
  EXPECT_TRUE(file_exists("temp_1.vlt"));
  zorfin();
}

TEST_F(Colour, RejectedCallsChangeNothing) {
  open("VIRT");
  std::FILE* bad = std::fopen("bad.vlt", "w");
  std::fputs("0.5 0.5 0.5\n0.1 zz 0.3\n", bad);
  std::fclose(bad);
  const float one[1] = {0.5f}, big[1] = {1.5f}, nan[1] = {std::nanf("")};
  struct Case { const char* what; void (*call)(const float*, const float*, const float*); std::string line; };
  const Case cases[] = {
      {"setvlt", [](auto, auto, auto) { setvlt("BLUE"); }, "Warning   2: Incorrect parameter in SETVLT!   (BLUE)"},
      {"setind index", [](auto, auto, auto) { setind(256, 0, 0, 0); }, "Warning   2: Incorrect parameter in SETIND!   ( 256)"},
      {"setind part", [](auto, auto, auto) { setind(3, 0, 1.01f, 0); }, "Warning   2: Incorrect parameter in SETIND!"},
      {"setind nan", [](auto, auto, auto) { setind(3, std::nanf(""), 0, 0); }, "Warning   2: Incorrect parameter in SETIND!"},
      {"myvlt none", [](auto r, auto g, auto b) { myvlt(r, g, b, 0); }, "Warning   2: Incorrect parameter in MYVLT!   (   0)"},
      {"myvlt many", [](auto r, auto g, auto b) { myvlt(r, g, b, 257); }, "Warning   2: Incorrect parameter in MYVLT!   ( 257)"},
      {"setclr", [](auto, auto, auto) { setclr(-5); }, "Warning   2: Incorrect parameter in SETCLR!   (  -5)"},
      {"setrgb", [](auto, auto, auto) { setrgb(0, -0.01f, 0); }, "Warning   2: Incorrect parameter in SETRGB!"},
      {"color", [](auto, auto, auto) { color("PINK"); }, "Warning   2: Incorrect parameter in COLOR!   (PINK)"},
      {"colran", [](auto, auto, auto) { colran(3, 256); }, "Warning   2: Incorrect parameter in COLRAN!   ( 256)"},
      {"clrcyc", [](auto, auto, auto) { clrcyc(31, 1); }, "Warning   2: Incorrect parameter in CLRCYC!   (  31)"},
      {"lincyc", [](auto, auto, auto) { lincyc(1, 8); }, "Warning   2: Incorrect parameter in LINCYC!   (   8)"},
      {"patcyc", [](auto, auto, auto) { patcyc(1, 180001); }, "Warning   2: Incorrect parameter in PATCYC!   (180001)"},
      {"hsvrgb", [](auto, auto, auto) { float r, g, b; hsvrgb(361, 1, 1, r, g, b); }, "Warning   2: Incorrect parameter in HSVRGB!"},
      {"rgbhsv", [](auto, auto, auto) { float h, s, v; rgbhsv(0, 0, 2, h, s, v); }, "Warning   2: Incorrect parameter in RGBHSV!"},
      {"indrgb", [](auto, auto, auto) { EXPECT_EQ(indrgb(0, 0, 9), -1); }, "Warning   2: Incorrect parameter in INDRGB!"},
      {"clrmod", [](auto, auto, auto) { clrmod("FULL"); }, "Warning   3: Incorrect level in CLRMOD!   (   1)"},
      {"vltfil mode", [](auto, auto, auto) { vltfil("x", "KEEP"); }, "Warning   2: Incorrect parameter in VLTFIL!   (KEEP)"},
      {"vltfil open", [](auto, auto, auto) { vltfil("missing.vlt", "LOAD"); }, "Warning  36: File error in VLTFIL!"},
  };
  for (const auto& c : cases) {
    const Zorglb before = zg;
    c.call(one, one, one);
    const auto lines = take_lines();
    ASSERT_EQ(lines.size(), 1u) << c.what;
    EXPECT_EQ(lines[0], " <<<< " + c.line) << c.what;
    EXPECT_EQ(zg, zbt::with_warning_fields(before)) << c.what;
  }
  for (const float* bad_part : {big, nan}) {
    const Zorglb before = zg;
    myvlt(one, bad_part, one, 1);
    EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Warning   2: Incorrect parameter in MYVLT!   (   1)"});
    EXPECT_EQ(zg, zbt::with_warning_fields(before));
  }
  // A bad line in a table file ends the reading: the lines before it are loaded.
  vltfil("bad.vlt", "LOAD");
  EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Warning  56: Incorrect file format in VLTFIL!"});
  EXPECT_EQ(zg.ivlt[0], 128 * 0x010101);
  zorfin();
}

TEST_F(Colour, LevelZeroSetters) {
  // Setters that warn at level 0 still act; the session start overwrites them.
  setind(5, 1, 1, 1);
  EXPECT_EQ(zg.ivlt[5], 0xFFFFFF);
  clrmod("CONT");
  EXPECT_EQ(zg.iclrmd, 2);
  const Zorglb before = zg;
  setclr(3);
  EXPECT_EQ(zg, zbt::with_warning_fields(before));
  metafl("VIRT");
  zorini();
  EXPECT_NE(zg.ivlt[5], 0xFFFFFF);
  EXPECT_EQ(zg.iclrmd, 2);
  zorfin();
}

}  // namespace
