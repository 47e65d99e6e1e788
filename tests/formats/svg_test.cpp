// The SVG driver: the document to the character for a small drawing, the buffer of 50
// points and its lines of five, groups, text, backgrounds and the turned page.
#include <limits>
#include <regex>

#include "draw/colour.h"
#include "draw/line.h"
#include "formats/drivers.h"
#include "frame/page.h"
#include "support/harness.h"

using namespace zb;

namespace {

constexpr std::size_t kHeadLines = 11;

class Svg : public zbt::Fixture {
 protected:
  // A session on a picture of 2970 by 2100 pixels: one pixel per plot unit.
  std::vector<std::string> session(void (*draw)(), const char* scr = "AUTO", int w = 2970, int h = 2100) {
    metafl("SVG");
    scrmod(scr);
    zg.iwsize = 2;
    zg.nwwin = w;
    zg.nhwin = h;
    zorini();
    if (draw) draw();
    zorfin();
    return zbt::read_lines(zg.cplotfl.str());
  }
  static std::vector<std::string> body(const std::vector<std::string>& lines) {
    if (lines.size() < kHeadLines) return {};
    return {lines.begin() + long(kHeadLines), lines.end()};
  }
  using Lines = std::vector<std::string>;
};

constexpr int kRed = 0x010000FF, kGreen = 0x0100FF00;

TEST_F(Svg, SmallDrawingToTheCharacter) {
  const auto lines = session([] {
    xjdraw(100, 200, 3);
    xjdraw(300, 400, 2);
    qqsclr(kRed);
    for (float v : {400.5f, 600.0f}) xjdraw(500, v, 2);
    xjdraw(700, 600, 2);
    xjdraw(700, 800, 2);
    xjdraw(900, 800, 2);
    xjdraw(900, 1000.25f, 2);
    linwid(5);
    dbox(1000, 100, 1200, 300, kGreen);
    const float px[] = {1500, 1800, 1650}, py[] = {100, 100, 350};
    xjpoly(px, py, 3);
    xjdraw(2000, 100, 3);
    xjdraw(2100, 100, 2);
  });
  const Lines gold = {
      R"(<?xml version="1.0" encoding="ISO-8859-1" standalone="no"?>)",
      R"(<!DOCTYPE svg PUBLIC "-//W3C//DTD SVG 20010904//EN")",
      R"(  "http://www.w3.org/TR/2001/REC-SVG-20010904/DTD/svg10.dtd">)",
      R"(<!-- Created by ZORBEL (https://zorbel.org))",
      R"(Version:  9.0)",
      "(date)",
      R"(-->)",
      R"(<svg width="2970" height="2100")",
      R"(  xmlns="http://www.w3.org/2000/svg")",
      R"(  xmlns:xlink="http://www.w3.org/1999/xlink">)",
      "",
      R"(<g fill="none" stroke="#000000" stroke-width="1.000">)",
      R"(<line x1="100.00" y1="200.00" x2="300.00" y2="400.00"/>)",
      R"(</g>)",
      R"(<g fill="none" stroke="#ff0000" stroke-width="1.000">)",
      R"(<polyline points=")",
      R"( 300.00 400.00 500.00 400.50 500.00 600.00 700.00 600.00 700.00 800.00)",
      R"( 900.00 800.00 900.00 1000.25"/>)",
      R"(</g>)",
      R"(<g fill="none" stroke="#ff0000" stroke-width="5.000">)",
      R"(<rect x="1000.00" y="100.00" width="200.00" height="200.00")",
      R"(fill="#00ff00" stroke="none"/>)",
      R"(<polygon fill="#ff0000" points=")",
      R"( 1500.00 100.00 1800.00 100.00 1650.00 350.00"/>)",
      R"(<line x1="2000.00" y1="100.00" x2="2100.00" y2="100.00"/>)",
      R"(</g>)",
      R"(</svg>)",
      "",
  };
  ASSERT_EQ(lines.size(), gold.size());
  for (std::size_t i = 0; i < gold.size(); ++i) {
    if (i == 5) {
      EXPECT_TRUE(std::regex_match(lines[i], std::regex(R"(Date   : \d\d\.\d\d\.\d{4} \d\d:\d\d:\d\d)"))) << lines[i];
      continue;
    }
    EXPECT_EQ(lines[i], gold[i]) << "line " << i + 1;
  }
  std::string log;
  EXPECT_EQ(zbt::run("xmllint --noout " + zg.cplotfl.str(), &log), 0) << log;
}

TEST_F(Svg, BufferOfFiftyPointsAndLinesOfFive) {
  struct Case {
    int draws;           // draws after a move at (0, 0)
    Lines expect;
  };
  auto row = [](int from, int n) {
    std::string s;
    for (int i = from; i < from + n; ++i) s += " " + itoa(i) + ".00 " + itoa(2 * i) + ".00";
    return s;
  };
  const Case cases[] = {
      {1, {R"(<line x1="0.00" y1="0.00" x2="1.00" y2="2.00"/>)"}},
      {4, {R"(<polyline points=")", row(0, 5) + "\"/>"}},
      {9, {R"(<polyline points=")", row(0, 5), row(5, 5) + "\"/>"}},
      {10, {R"(<polyline points=")", row(0, 5), row(5, 5), row(10, 1) + "\"/>"}},
  };
  for (const auto& c : cases) {
    static int n;
    n = c.draws;
    const auto b = body(session([] {
      xjdraw(0, 0, 3);
      for (int i = 1; i <= n; ++i) xjdraw(float(i), float(2 * i), 2);
    }));
    Lines expect = {R"(<g fill="none" stroke="#000000" stroke-width="1.000">)"};
    expect.insert(expect.end(), c.expect.begin(), c.expect.end());
    expect.insert(expect.end(), {"</g>", "</svg>", ""});
    EXPECT_EQ(b, expect) << c.draws << " draws";
  }
  // 50 draws in a row: one polyline of 50 points; the next starts at the last of them.
  const auto b = body(session([] {
    for (int i = 1; i <= 50; ++i) xjdraw(float(i), float(2 * i), 2);
  }));
  Lines expect = {R"(<g fill="none" stroke="#000000" stroke-width="1.000">)", R"(<polyline points=")"};
  for (int k = 0; k < 10; ++k) expect.push_back(row(5 * k, 5) + (k == 9 ? "\"/>" : ""));
  expect.push_back(R"(<line x1="49.00" y1="98.00" x2="50.00" y2="100.00"/>)");
  expect.insert(expect.end(), {"</g>", "</svg>", ""});
  EXPECT_EQ(b, expect);
}

TEST_F(Svg, DrawAfterStartAndMoveAfterMove) {
  const auto b = body(session([] {
    xjdraw(10, 20, 2);   // from (0, 0)
    xjdraw(30, 40, 3);
    xjdraw(50, 60, 3);   // a lone move writes nothing
    xjdraw(70, 80, 2);
  }));
  EXPECT_EQ(b, (Lines{R"(<g fill="none" stroke="#000000" stroke-width="1.000">)",
                      R"(<line x1="0.00" y1="0.00" x2="10.00" y2="20.00"/>)",
                      R"(<line x1="50.00" y1="60.00" x2="70.00" y2="80.00"/>)", "</g>", "</svg>", ""}));
}

TEST_F(Svg, ColourChangeClosesTheGroupAndTheNextStrokeGoesOn) {
  const auto b = body(session([] {
    xjdraw(0, 0, 3);
    xjdraw(10, 0, 2);
    qqsclr(kRed);
    xjdraw(10, 10, 2);
    penwid(2.5f);
    xjdraw(0, 10, 2);
  }));
  EXPECT_EQ(b, (Lines{R"(<g fill="none" stroke="#000000" stroke-width="1.000">)",
                      R"(<line x1="0.00" y1="0.00" x2="10.00" y2="0.00"/>)", "</g>",
                      R"(<g fill="none" stroke="#ff0000" stroke-width="1.000">)",
                      R"(<line x1="10.00" y1="0.00" x2="10.00" y2="10.00"/>)", "</g>",
                      R"(<g fill="none" stroke="#ff0000" stroke-width="2.500">)",
                      R"(<line x1="10.00" y1="10.00" x2="0.00" y2="10.00"/>)", "</g>", "</svg>", ""}));
}

TEST_F(Svg, TextGroupsAndCharacters) {
  const auto b = body(session([] {
    xjdraw(0, 0, 3);
    xjdraw(5, 5, 2);
    qqsvg5('&', 100, 200);
    qqsvg5('<', 120, 200);
    zg.xbshft = 10;           // raised by the baseline shift, straight up at angle 0
    qqsvg5(128, 140, 200);    // WinAnsi O umlaut
    zg.xbshft = 0;
    zg.nangle = 90;
    zg.xsin = 1;
    zg.xcos = 0;
    zg.xoffs = 4;             // at 90 degrees the shift moves x
    qqsvg5(200, 160, 200);    // beyond the table: a blank
    zg.xoffs = 0;
    qqsvg5('>', 180, 200);
    xjdraw(0, 0, 3);
    xjdraw(6, 6, 2);
  }));
  const std::string tgroup1 = R"(<g font-family="Times" font-weight="normal" font-style="normal")";
  const std::string tgroup2 = R"(font-size="53" stroke="none" fill="#000000">)";
  // A stroke still in the buffer while no group is open goes out after the text; it has
  // the text's colour, so the picture is the same.
  EXPECT_EQ(b, (Lines{tgroup1, tgroup2,
                      R"(<text x="100.00" y="200.00">&amp;</text>)",
                      R"(<text x="120.00" y="200.00">&lt;</text>)",
                      "<text x=\"140.00\" y=\"190.00\">\xD6</text>",
                      R"(<text x="156.00" y="200.00" rotate="-90"> </text>)",
                      R"(<text x="180.00" y="200.00" rotate="-90">&gt;</text>)", "</g>",
                      R"(<g fill="none" stroke="#000000" stroke-width="1.000">)",
                      R"(<line x1="0.00" y1="0.00" x2="5.00" y2="5.00"/>)",
                      R"(<line x1="0.00" y1="0.00" x2="6.00" y2="6.00"/>)", "</g>", "</svg>", ""}));
}

TEST_F(Svg, BackgroundsByScreenMode) {
  const Lines black = {R"(<g fill="none" stroke="#000000" stroke-width="1.000">)",
                       R"(<rect x="0.00" y="0.00" width="2970.00" height="2100.00")",
                       R"(fill="#000000" stroke="none"/>)", "</g>"};
  for (const char* scr : {"NORE", "ERAS", "NOER", "REVE", "AUTO"}) {
    const auto b = body(session(nullptr, scr));
    const bool painted = b.size() >= 4 && Lines(b.begin(), b.begin() + 4) == black;
    const bool want = std::string(scr) != "REVE" && std::string(scr) != "AUTO";
    EXPECT_EQ(painted, want) << scr;
    EXPECT_EQ(b.back(), "") << scr;
  }
}

TEST_F(Svg, TurnedPageMapsPlotXToDeviceY) {
  pagmod("MOVI");
  // Picture 2100 wide, 2970 high: again one pixel per plot unit.
  const auto lines = session(
      [] {
        xjdraw(100, 200, 3);
        xjdraw(300, 200, 2);
        dbox(100, 200, 300, 400, kRed);
      },
      "AUTO", 2100, 2970);
  EXPECT_EQ(lines[7], R"(<svg width="2100" height="2970")");
  EXPECT_EQ(body(lines), (Lines{R"(<g fill="none" stroke="#000000" stroke-width="1.000">)",
                                R"(<rect x="200.00" y="2669.00" width="200.00" height="200.00")",
                                R"(fill="#ff0000" stroke="none"/>)",
                                R"(<line x1="200.00" y1="2869.00" x2="200.00" y2="2669.00"/>)", "</g>",
                                "</svg>", ""}));
}

TEST_F(Svg, HexColours) {
  EXPECT_EQ(qqsvg6(0, 0, 0), "000000");
  EXPECT_EQ(qqsvg6(255, 16, 171), "ff10ab");
  EXPECT_EQ(qqsvg6(-5, 300, 9), "00ff09");   // held to 0..255
}

TEST_F(Svg, DefaultPictureAndFileName) {
  metafl("SVG");
  zorini();
  xjdraw(0, 0, 3);
  xjdraw(2969, 2099, 2);
  zorfin();
  EXPECT_EQ(zg.cplotfl.str(), "zorbel.svg");
  const auto lines = zbt::read_lines("zorbel.svg");
  EXPECT_EQ(lines[7], R"(<svg width="853" height="603")");
  // devscl = min(852 / 2969, 602 / 2099): the short side fills the picture.
  EXPECT_EQ(lines[kHeadLines + 1], R"(<line x1="0.00" y1="0.00" x2="851.52" y2="602.00"/>)");
}

TEST_F(Svg, BadInputKeepsTheDocumentWellFormed) {
  // Without a session nothing is open: the calls go nowhere.
  qqsvg2(1, 2, 2);
  qqsvg1(2);
  qqsvg5('a', 0, 0);
  svg_polygon(1, 1, 2);
  svg_polygon(0, 0, 9);
  qqsvg2(0, 0, 999);
  const auto lines = session([] {
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float inf = std::numeric_limits<float>::infinity();
    xjdraw(nan, 5, 3);
    xjdraw(1e30f, -1e30f, 2);
    qqsvg2(inf, nan, 2);
    qqsvg2(0, 0, 12345);
    for (int m : {-3, 2, 9, 1, 2, 0, 0}) qqsvg1(m);
    for (int c : {-7, 0, 9, 127, 187, 1000}) qqsvg5(c, 10, 10);
    qqsvg5('x', nan, inf);
    qqsvg4(nan, 0, -5, 1e30f, 999, -999, 3);
    qqsvg3(-1, 256, 1 << 30);
    zg.nhchar = 2000000000;
    qqsvg1(0);
    qqsvg5('x', 1, 1);
    const float px[] = {nan, 1, 2}, py[] = {0, inf, 2};
    xjpoly(px, py, 3);
    xjpoly(px, py, -4);
    xjpoly(nullptr, py, 3);
    for (int i = 0; i < 200; ++i) qqsvg2(float(i), float(i), i % 3 == 0 ? 3 : 2);
  });
  ASSERT_GT(lines.size(), kHeadLines);
  EXPECT_EQ(lines[lines.size() - 2], "</svg>");
  std::string log;
  EXPECT_EQ(zbt::run("xmllint --noout " + zg.cplotfl.str(), &log), 0) << log;
}

}  // namespace
