// Widths: software thick lines with their passes, caps and joins, closed strokes; device
// widths, caps, joins and miter limits on PostScript, checked in the file and by
// ghostscript.
#include "draw/line.h"
#include "draw/line_support.h"
#include "frame/page.h"

using namespace zb;
using zbt::Seg;

namespace {

class Thick : public zbt::MetaSession {};

void expect_segs(const std::vector<Seg>& got, const std::vector<Seg>& want, const char* what) {
  ASSERT_EQ(got.size(), want.size()) << what << ": " << zbt::show(got);
  for (std::size_t i = 0; i < want.size(); ++i)
    EXPECT_TRUE(zbt::same_seg(got[i], want[i])) << what << " segment " << i << ": " << zbt::show(got);
}

TEST_F(Thick, WidthTwoIsTheCentreAndOneOutline) {
  open();
  linwid(2);
  lineqq(100, 100, 200, 100);
  // Centre, then at distance 1 with long caps: left line, end piece, right line back, start piece.
  expect_segs(close(), {{100, 100, 200, 100}, {99, 99, 201, 99}, {201, 99, 201, 101},
                        {201, 101, 99, 101}, {99, 101, 99, 99}}, "linwid 2");
}

TEST_F(Thick, PassesFollowWidthAndUnits) {
  struct Case { const char* unit; int nw; std::vector<float> dist; };
  const Case cases[] = {
      {"CM", 1, {}},
      {"CM", 3, {1.5f}},
      {"CM", 5, {1.5f, 2.5f}},
      {"CM", 8, {1.5f, 3.0f, 4.0f}},
      {"INCH", 2, {1.5f / 2.54f, 2.5f / 2.54f}},   // 2 units are 5 at 0.1 mm
  };
  for (const auto& c : cases) {
    units(c.unit);
    open();
    lncap("CUT");
    linwid(c.nw);
    lineqq(100, 100, 200, 100);
    const auto segs = close();
    std::vector<float> above;   // distances of the outlines above the centre
    for (const auto& s : segs)
      if (s.y1 < 99.9f && zbt::near(s.y1, s.y2, 1e-3f)) above.push_back(100 - s.y1);
    ASSERT_EQ(above.size(), c.dist.size()) << c.unit << " " << c.nw << ": " << zbt::show(segs);
    for (std::size_t i = 0; i < c.dist.size(); ++i) EXPECT_NEAR(above[i], c.dist[i], 0.01) << c.unit << " " << c.nw;
  }
}

TEST_F(Thick, CapsAtTheEnds) {
  struct Case { const char* cap; int nw; float xmax; int on_circle; };
  const Case cases[] = {
      {"CUT", 2, 200, 0}, {"LONG", 2, 201, 0}, {"ROUN", 2, 200, 0},
      {"CUT", 20, 200, 0}, {"LONG", 20, 210, 0}, {"ROUN", 20, 210, 12},
  };
  for (const auto& c : cases) {
    open();
    lncap(c.cap);
    linwid(c.nw);
    lineqq(100, 100, 200, 100);
    const auto segs = close();
    float xmax = 0;
    int on_circle = 0;   // points of the last pass's cap, radius 10 round the end
    for (const auto& s : segs) {
      xmax = std::max({xmax, s.x1, s.x2});
      if (s.x2 > 200.01f && zbt::near(std::hypot(s.x2 - 200, s.y2 - 100), 10.0f)) ++on_circle;
    }
    // A round cap of 12 steps comes within 10 (1 - cos(pi / 26)) of its tip.
    EXPECT_NEAR(xmax, c.xmax, c.cap[0] == 'R' && c.nw == 20 ? 0.08 : 0.01) << c.cap << " " << c.nw;
    EXPECT_EQ(on_circle, c.on_circle) << c.cap << " " << c.nw;
    if (c.nw == 2 && c.cap[0] == 'R') {
      // The cap of half a unit is too small to draw: the ends stay open.
      for (const auto& s : segs) EXPECT_FALSE(zbt::near(s.x1, s.x2)) << zbt::show(segs);
    }
  }
}

TEST_F(Thick, JoinsMiterOrConnect) {
  open();
  lnjoin("SHAR");
  linwid(2);
  strtqq(100, 100);
  connqq(200, 100);
  connqq(200, 200);
  qqstrk();
  lnjoin("TRUN");
  strtqq(300, 100);
  connqq(400, 100);
  connqq(400, 200);
  const auto segs = close();
  expect_segs(segs, {
      {100, 100, 200, 100}, {200, 100, 200, 200},                            // centre
      {99, 99, 201, 99}, {201, 99, 201, 201}, {201, 201, 199, 201},          // outer miter, end
      {199, 201, 199, 101}, {199, 101, 99, 101}, {99, 101, 99, 99},          // inner miter, start
      {300, 100, 400, 100}, {400, 100, 400, 200},
      {299, 99, 400, 99}, {400, 99, 401, 100}, {401, 100, 401, 201}, {401, 201, 399, 201},
      {399, 201, 399, 100}, {399, 100, 400, 101}, {400, 101, 299, 101}, {299, 101, 299, 99},
  }, "joins");
}

TEST_F(Thick, SharpTurnsFallBackFromTheMiter) {
  open();
  lnjoin("SHAR");
  linwid(2);
  // A turn of 150 degrees: the miter would be 3.9 widths, above the limit of 2.
  strtqq(100, 100);
  connqq(200, 100);
  connqq(113.4f, 150);
  const auto segs = close();
  for (const auto& s : segs) EXPECT_LT(std::max(s.x1, s.x2), 201.01f) << zbt::show(segs);
}

TEST_F(Thick, ClosedStrokesHaveNoEndPieces) {
  for (bool closed : {true, false}) {
    open();
    lnjoin("SHAR");
    linwid(2);
    strtqq(100, 100);
    connqq(200, 100);
    connqq(200, 200);
    connqq(100, 200);
    connqq(100, closed ? 100.3f : 150.0f);
    const auto segs = close();
    // Outer corners lie 51 from the centre (150, 150) in the larger coordinate, inner 49.
    auto ring = [](float x, float y) { return std::max(std::fabs(x - 150), std::fabs(y - 150)); };
    int across = 0;
    for (const auto& s : segs) {
      const float a = ring(s.x1, s.y1), b = ring(s.x2, s.y2);
      if ((a > 50.5f && b < 49.5f) || (a < 49.5f && b > 50.5f)) ++across;
    }
    EXPECT_EQ(across > 0, !closed) << zbt::show(segs);
  }
}

TEST_F(Thick, PenwidRoundsOnSoftwareDevices) {
  open();
  penwid(0.4f);
  int nw = 0;
  getlin(nw);
  EXPECT_EQ(nw, 1);
  penwid(2.6f);
  getlin(nw);
  EXPECT_EQ(nw, 3);
  EXPECT_EQ(zg.ilinw, 3);   // the metafile has no widths: software
  close();
}

class ThickPostScript : public zbt::Fixture {
 protected:
  // The file after its head, records joined.
  static std::string body(const std::string& file) {
    const std::string text = zbt::read_file(file);
    const auto at = text.find(" scale\n");
    std::string b;
    for (char ch : text.substr(at + 7)) if (ch != '\n') b += ch;
    return b;
  }
};

TEST_F(ThickPostScript, WidthsCapsJoinsAndMiterGoToTheFile) {
  metafl("POST");
  zorini();
  linwid(3);
  EXPECT_EQ(zg.ilinw, -3);
  lineqq(100, 100, 200, 100);
  lncap("ROUN");
  lnjoin("SHAR");
  linwid(3);
  penwid(0.5f);
  EXPECT_EQ(zg.ilinw, -1);
  penwid(3.0f);
  lnmlt(1.0f);
  lineqq(100, 200, 200, 200);
  int nw = 0;
  getlin(nw);
  EXPECT_EQ(nw, 3);
  zorfin();
  const std::string b = body(zg.cplotfl.str());
  const std::vector<std::string> in_order = {
      "6 cm setlinewidth ", " u ", " d p ", "1 setlinecap ", "0 setlinejoin ", "6 cm setlinewidth 12 cm setmiterlimit ",
      "2.50 cm setlinewidth 10 cm setmiterlimit ", "6.00 cm setlinewidth 12 cm setmiterlimit ",
      "8 cm setmiterlimit ", " u ", " d p ", "showpage "};
  std::size_t at = 0;
  for (const auto& s : in_order) {
    const auto k = b.find(s, at);
    ASSERT_NE(k, std::string::npos) << "missing " << s << " after " << at << " in " << b;
    at = k + s.size();
  }
  // Two lines, one path each: no software passes.
  std::size_t paths = 0;
  for (std::size_t k = b.find(" u "); k != std::string::npos; k = b.find(" u ", k + 1)) ++paths;
  EXPECT_EQ(paths, 2u);
  std::string log;
  EXPECT_EQ(zbt::run("gs -q -dSAFER -dNOPAUSE -dBATCH -sDEVICE=nullpage " + zg.cplotfl.str(), &log), 0) << log;
  EXPECT_EQ(log, "");
}

TEST_F(ThickPostScript, WidthInUnitsAndTheSmallestWidth) {
  units("INCH");
  metafl("POST");
  zorini();
  linwid(1);   // 2 * 1 * 2.54 = 5.08: 5 device units
  linwid(4);   // 20.32: 20
  penwid(0.5f);   // 5 * 0.5 * 2.54 under units up to 2, else 2 * 0.5 * 2.54 = 2.54
  zorfin();
  const std::string b = body(zg.cplotfl.str());
  EXPECT_NE(b.find("5 cm setlinewidth 20 cm setlinewidth 2.54 cm setlinewidth "), std::string::npos) << b;
}

}  // namespace
