// Ring sectors: the PostScript record on turned and upright pages, the scanned polygon of
// the other outputs with angles in every quadrant and across 360, the Kyocera record, and
// warnings 1, 7, 8 and 51.
#include <numbers>

#include "draw/prims_support.h"
#include "frame/page.h"

using namespace zb;
using zbt::Pt;
using zbt::Stroke;

namespace {

class Sectors : public zbt::PrimsFixture {
 protected:
  static std::string flat(const std::string& body) {
    std::string s;
    for (char c : body)
      if (c != '\n') s += c;
    return s;
  }
  static std::string rgb(int ncol) {
    int r, g, b;
    qqgrgb(ncol, r, g, b);
    return std::to_string(r) + " " + std::to_string(g) + " " + std::to_string(b);
  }
};

TEST_F(Sectors, PostScriptRecord) {
  std::string colour;
  // Turned page (the default landscape): device x is plot y, angles gain 90 degrees. The
  // record's blanks are packed by the token writer.
  const std::string turned = flat(ps_body([&] {
    sector(1000, 800, 0, 300, 0, 360, 255);
    sector(1000, 800, 100, 300, -45.5f, 30.25f, 300);
    colour = rgb(255) + " sec " + "1486 1857 186 557 44.50 120.25 " + rgb(44) + " sec ";
  }));
  EXPECT_NE(turned.find("1486 1857 0 557 90.00 450.00 " + colour), std::string::npos) << turned;
  // A full disc is one record.
  std::size_t n = 0;
  for (std::size_t at = turned.find(" sec "); at != std::string::npos;
       at = turned.find(" sec ", at + 1))
    ++n;
  EXPECT_EQ(n, 2u);
  EXPECT_TRUE(zbt::ghostscript_accepts(ps_file));

  // Upright page: x, nypag - y, angles as given.
  metafl("POST");
  setpag("DA4P");
  zorini();
  sector(1000, 800, 0, 300, 10, 100, 255);
  const int y = int(float(zg.nypag - 800) * zg.devscl + 0.5f);
  colour = rgb(255);
  zorfin();
  const std::string upright = flat(zbt::read_file(zg.cplotfl.str()));
  EXPECT_NE(upright.find("1857 " + std::to_string(y) + " 0 557 10.00 100.00 " + colour + " sec "),
            std::string::npos)
      << upright;
}

TEST_F(Sectors, RecordLeavesThePenColourAlone) {
  const std::string body = flat(ps_body([] {
    setclr(100);
    sector(1000, 800, 0, 300, 0, 90, 20);
    EXPECT_EQ(zg.ipenclr, 100);
  }));
  EXPECT_EQ(body.find("sec "), body.rfind("sec "));
}

// Page angle in degrees 0 .. 360 of p seen from c.
float page_angle(Pt p, Pt c) {
  float a = std::atan2(c.y - p.y, p.x - c.x) * 180.0f / std::numbers::pi_v<float>;
  return a < 0.0f ? a + 360.0f : a;
}

// True if the angle t lies in alpha .. beta (degrees, beta above alpha) within tol.
bool in_span(float t, float alpha, float beta, float tol) {
  const float from = std::fmod(std::fmod(alpha, 360.0f) + 360.0f, 360.0f);
  float d = t - from;
  while (d < -tol) d += 360.0f;
  return d <= (beta - alpha) + tol || beta - alpha >= 360.0f;
}

TEST_F(Sectors, ScannedRingInEveryQuadrant) {
  struct Case { float alpha, beta; int nr1; };
  const Case cases[] = {
      {0, 90, 0},     {90, 180, 0},    {180, 270, 100}, {270, 360, 100}, {45, 135, 50},
      {135, 225, 0},  {225, 315, 150}, {315, 405, 0},   {-45, 45, 100},  {300, 420, 0},
      {10, 370, 100}, {0, 720, 0},     {-200, -100, 60}, {340, 360, 0},
  };
  const Pt c{1200, 1000};
  const int nr2 = 300;
  for (const auto& k : cases) {
    const std::string what = std::to_string(k.alpha) + " .. " + std::to_string(k.beta);
    const auto s = strokes([&] { sector(1200, 1000, k.nr1, nr2, k.alpha, k.beta, 5); }, false);
    ASSERT_FALSE(s.empty()) << what;
    // Horizontal spans 2 apart, every point and midpoint inside the ring sector.
    float sum = 0.0f;
    for (const auto& st : s) {
      ASSERT_EQ(st.size(), 2u) << what;
      EXPECT_FLOAT_EQ(st[0].y, st[1].y) << what;
      sum += std::fabs(st[1].x - st[0].x) * 2.0f;
      const Pt mid{0.5f * (st[0].x + st[1].x), st[0].y};
      for (Pt p : {st[0], st[1], mid}) {
        const float r = zbt::dist(p, c);
        EXPECT_LE(r, float(nr2) + 1.0f) << what;
        if (r < 15.0f) continue;   // near the centre the angle says nothing
        EXPECT_GE(r, float(k.nr1) - 1.0f) << what;
        EXPECT_TRUE(in_span(page_angle(p, c), k.alpha, k.beta, 1.5f))
            << what << " at " << page_angle(p, c);
      }
    }
    // The area as the angles say, within the error of scanning.
    const float span = std::min(k.beta - k.alpha, 360.0f) * std::numbers::pi_v<float> / 180.0f;
    const float area = 0.5f * span * float(nr2 * nr2 - k.nr1 * k.nr1);
    EXPECT_NEAR(sum / area, 1.0f, 0.04f) << what;
  }
}

TEST_F(Sectors, KyoceraRecord) {
  metafl("KYOC");
  zorini();
  sector(1000, 800, 100, 300, 30, 120, 25);   // pattern 25 modulo 10
  sector(1000, 800, 100, 300, 30, 120, 30);   // pattern 0: nothing
  const float s = zg.devscl;
  zorfin();
  auto i4 = [](int v) { return zb::fmt_i(v, 4); };
  const std::string want = "MAP " + i4(int(1000 * s + 0.5f)) + "," + i4(int(800 * s + 0.5f)) +
                           "; FPAT   1,  8, 64,  0,  4,  0, 16,128; ARC " +
                           i4(int(100 * s + 0.5f)) + "," + i4(int(300 * s + 0.5f)) + "," +
                           i4(-30) + "," + i4(60) + ";";
  EXPECT_EQ(want.size(), 77u);
  std::size_t found = 0;
  for (const auto& l : zbt::read_lines(zg.cplotfl.str()))
    if (l.find("ARC") != std::string::npos) {
      ++found;
      EXPECT_NE(l.find(want), std::string::npos) << l;
    }
  EXPECT_EQ(found, 1u);
}

TEST_F(Sectors, BadRadiiAndAngles) {
  struct Case { int nr1, nr2; float alpha, beta; const char* line; };
  const float nan = std::numeric_limits<float>::quiet_NaN();
  const float inf = std::numeric_limits<float>::infinity();
  const Case cases[] = {
      {200, 100, 0, 90, " <<<< Warning   7: First radius greater than second radius in SECTOR!"},
      {0, 100, 90, 90, " <<<< Warning   8: Start angle greater/equal end angle in SECTOR!"},
      {0, 100, 90, 30, " <<<< Warning   8: Start angle greater/equal end angle in SECTOR!"},
      {0, 100, nan, 30, " <<<< Warning   8: Start angle greater/equal end angle in SECTOR!"},
      {0, 100, 0, nan, " <<<< Warning   8: Start angle greater/equal end angle in SECTOR!"},
      {0, 100, 0, inf, " <<<< Warning   8: Start angle greater/equal end angle in SECTOR!"},
      // The angle test comes before the radius order.
      {200, 100, 90, 90, " <<<< Warning   8: Start angle greater/equal end angle in SECTOR!"},
      {0, 0, 0, 90, " <<<< Warning  51: Non positive parameter in SECTOR!   (   0)"},
      {0, -3, 0, 90, " <<<< Warning  51: Non positive parameter in SECTOR!   (  -3)"},
      {-1, 100, 0, 90, " <<<< Warning   1: Negative parameter in SECTOR!   (  -1)"},
  };
  metafl("POST");
  zorini();
  for (const auto& c : cases) {
    take_lines();
    const Zorglb before = zg;
    sector(1000, 800, c.nr1, c.nr2, c.alpha, c.beta, 3);
    EXPECT_EQ(take_lines(), std::vector<std::string>{c.line});
    EXPECT_EQ(zg, zbt::with_warning_fields(before)) << c.line;
  }
  zorfin();
  EXPECT_EQ(zbt::read_file(zg.cplotfl.str()).find(" sec "), std::string::npos);
}

}  // namespace
