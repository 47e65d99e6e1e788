// Area fill: pattern numbers, the even-odd scan with its ranks and grid, hatch line counts,
// angles and groups, the native PostScript fill and its fall-backs, rejected polygons, and
// what ghostscript shows of filled shapes.
#include <algorithm>
#include <cmath>
#include <fstream>
#include <sstream>

#include "support/harness.h"

using namespace zb;

namespace zb {
extern float psc_factor;   // the page fit of the PostScript head
}

namespace {

struct Span {
  float x1, x2, y;
};
std::vector<Span> g_spans;
void collect(const float* xp, const float* yp) { g_spans.push_back({xp[0], xp[1], yp[0]}); }

struct Poly {
  std::vector<float> x, y;
  int n() const { return int(x.size()); }
};

// Even-odd inside test with the half-open rule of the scan.
bool inside(const Poly& p, float px, float py) {
  bool in = false;
  for (int i = 0, j = p.n() - 1; i < p.n(); j = i++) {
    const float yi = p.y[std::size_t(i)], yj = p.y[std::size_t(j)];
    if ((yi <= py) != (yj <= py)) {
      const float xc = p.x[std::size_t(i)] + (py - yi) * (p.x[std::size_t(j)] - p.x[std::size_t(i)]) / (yj - yi);
      if (px < xc) in = !in;
    }
  }
  return in;
}

Poly star(float cx, float cy, float r) {
  Poly p;
  for (int k = 0; k < 5; ++k) {
    const double a = (90.0 + 144.0 * k) * 3.14159265358979 / 180.0;
    p.x.push_back(cx + r * float(std::cos(a)));
    p.y.push_back(cy - r * float(std::sin(a)));
  }
  return p;
}

class Fill : public zbt::Fixture {
 protected:
  void open(const char* fmt = "POST") {
    metafl(fmt);
    zorini();
    take_lines();
  }
  // The tokens of the plot file behind the PostScript head.
  std::vector<std::string> finish_ps() {
    zorfin();
    std::vector<std::string> tok;
    bool body = false;
    for (const auto& l : zbt::read_lines(zg.cplotfl.str())) {
      if (body) {
        std::istringstream in(l);
        for (std::string t; in >> t;) tok.push_back(t);
      }
      if (l.ends_with(" scale")) body = true;
    }
    return tok;
  }
  // Paths of the token stream as lists of device points.
  static std::vector<std::vector<std::pair<int, int>>> paths(const std::vector<std::string>& tok) {
    std::vector<std::vector<std::pair<int, int>>> out;
    for (std::size_t i = 2; i < tok.size(); ++i) {
      if (tok[i] != "u" && tok[i] != "d") continue;
      const std::pair<int, int> pt{std::stoi(tok[i - 2]), std::stoi(tok[i - 1])};
      if (tok[i] == "u") out.push_back({pt});
      else if (!out.empty()) out.back().push_back(pt);
    }
    return out;
  }
  static int count(const std::vector<std::string>& tok, const std::string& word) {
    return int(std::count(tok.begin(), tok.end(), word));
  }
  void areaf_box(int x1, int y1, int x2, int y2) {
    const int nx[4] = {x1, x2, x2, x1}, ny[4] = {y1, y1, y2, y2};
    areaf(nx, ny, 4);
  }
};

TEST_F(Fill, PatternNumbers) {
  struct Case { int ipat, a, t, d, c; float step; int group, skip; };
  const Case cases[] = {
      {0, 0, 0, 0, 0, 2, 0, 0},       {1, 45, 1, 5, 0, 27, 0, 0},    {2, 150, 4, 5, 0, 1, 8, 30},
      {3, 135, 1, 5, 0, 27, 8, 30},    {4, 45, 4, 5, 0, 1, 8, 30},    {5, 45, 1, 5, 1, 27, 8, 30},
      {6, 135, 2, 1, 0, 20, 2, 2},    {7, 45, 4, 5, 1, 1, 8, 30},    {8, 30, 1, 4, 0, 22, 8, 30},
      {9, 45, 2, 1, 1, 20, 2, 2},     {10, 0, 1, 5, 1, 27, 2, 2},    {11, 45, 3, 1, 0, 15, 3, 2},
      {12, 70, 4, 7, 0, 1, 8, 40},    {13, 45, 3, 1, 1, 15, 3, 2},   {14, 0, 4, 5, 1, 1, 8, 30},
      {15, 45, 2, 1, 0, 20, 2, 2},    {16, 0, 1, 0, 0, 2, 2, 2},     {17, 0, 5, 5, 0, 27, 2, 2},
      {45159, 45, 1, 5, 1, 27, 2, 2}, {123456, 123, 4, 5, 0, 1, 8, 30},
  };
  open();
  // Applied in order: types other than 2, 3, 4 keep the groups of the pattern before.
  for (const auto& c : cases) {
    shdpat(c.ipat);
    int got = -1;
    getpat(got);
    EXPECT_EQ(got, c.ipat);
    EXPECT_EQ(zg.ipata, c.a) << c.ipat;
    EXPECT_EQ(zg.ipatt, c.t) << c.ipat;
    EXPECT_EQ(zg.ipatd, c.d) << c.ipat;
    EXPECT_EQ(zg.ipatc, c.c) << c.ipat;
    EXPECT_FLOAT_EQ(zg.xpatst, c.step) << c.ipat;
    EXPECT_EQ(zg.npatgr, c.group) << c.ipat;
    EXPECT_EQ(zg.npatsk, c.skip) << c.ipat;
  }
  mypat(0, 1, 0, 0);
  int got = 0;
  getpat(got);
  EXPECT_EQ(got, 100);   // solid look, but not the number 16 of the native fill
  mypat(179, 7, 9, 1);
  getpat(got);
  EXPECT_EQ(got, 179791);
  EXPECT_FLOAT_EQ(zg.xpatst, 47.0f);
  reset("SHDPAT");
  EXPECT_EQ(zg.ipatnr, 0);
  EXPECT_EQ(zg.ipatt, 0);
  zorfin();
}

TEST_F(Fill, WmfSolidLinesLieCloser) {
  open("WMF");
  shdpat(16);
  EXPECT_FLOAT_EQ(zg.xpatst, 0.4f);
  shdpat(2);
  EXPECT_FLOAT_EQ(zg.xpatst, 1.0f);
  mypat(0, 1, 0, 0);
  EXPECT_FLOAT_EQ(zg.xpatst, 2.0f);
  zorfin();
}

TEST_F(Fill, ScanFollowsTheEvenOddRule) {
  Poly u{{0, 30, 30, 20, 20, 10, 10, 0}, {0, 0, 100, 100, 10, 10, 100, 100}};
  Poly holed{{0, 100, 100, 0, 0, 30, 30, 70, 70, 30, 30, 0}, {0, 0, 100, 100, 50, 50, 70, 70, 30, 30, 50, 50}};
  Poly bowtie{{0, 100, 100, 0}, {0, 100, 0, 100}};
  const Poly shapes[] = {u, holed, bowtie, star(0, 0, 100), star(13.3f, -7.1f, 57.7f)};
  for (const auto& p : shapes) {
    for (float step : {1.0f, 3.0f, 7.5f}) {
      g_spans.clear();
      ASSERT_TRUE(gkwfa(p.n(), p.x.data(), p.y.data(), step, collect));
      ASSERT_FALSE(g_spans.empty());
      const float ylo = *std::min_element(p.y.begin(), p.y.end());
      const float yhi = *std::max_element(p.y.begin(), p.y.end());
      for (float y = std::trunc(ylo / step - 0.5f) * step; y <= yhi + 0.5f * step; y += step) {
        std::vector<Span> row;
        for (const auto& s : g_spans)
          if (s.y == y) row.push_back({std::min(s.x1, s.x2), std::max(s.x1, s.x2), s.y});
        for (float x = -120.0f; x <= 120.0f; x += 0.37f) {
          bool covered = false;
          for (const auto& s : row) covered |= s.x1 < x && x < s.x2;
          bool near_edge = false;
          for (const auto& s : row) near_edge |= std::fabs(x - s.x1) < 0.01f || std::fabs(x - s.x2) < 0.01f;
          if (!near_edge) {
            EXPECT_EQ(covered, inside(p, x, y)) << "x " << x << " y " << y << " step " << step;
          }
        }
      }
    }
  }
}

TEST_F(Fill, SpansComeByRankWithThePenGoingBackAndForth) {
  Poly u{{0, 30, 30, 20, 20, 10, 10, 0}, {0, 0, 100, 100, 10, 10, 100, 100}};
  g_spans.clear();
  ASSERT_TRUE(gkwfa(u.n(), u.x.data(), u.y.data(), 5.0f, collect));
  // First sweep: the foot at y 0 and 5, then the left arm; second sweep: the right arm.
  ASSERT_EQ(g_spans.size(), 38u);
  for (std::size_t k = 0; k < 38; ++k) {
    const Span& s = g_spans[k];
    const bool second = k >= 20;
    const std::size_t i = second ? k - 20 : k;
    EXPECT_FLOAT_EQ(s.y, second ? 10.0f + 5.0f * float(i) : 5.0f * float(i)) << k;
    const float lo = second ? 20.0f : 0.0f, hi = second || i < 2 ? 30.0f : 10.0f;
    // Each sweep starts left to right and turns at each height.
    EXPECT_FLOAT_EQ(s.x1, i % 2 == 0 ? lo : hi) << k;
    EXPECT_FLOAT_EQ(s.x2, i % 2 == 0 ? hi : lo) << k;
  }
}

TEST_F(Fill, ScanHeightsLieOnTheGrid) {
  // Two boxes side by side, one a little lower: both are cut on multiples of the step.
  for (float y0 : {0.0f, 3.3f, -41.7f}) {
    Poly box{{0, 50, 50, 0}, {y0, y0, y0 + 40, y0 + 40}};
    g_spans.clear();
    gkwfa(box.n(), box.x.data(), box.y.data(), 7.0f, collect);
    ASSERT_FALSE(g_spans.empty());
    for (const auto& s : g_spans) {
      EXPECT_FLOAT_EQ(std::remainder(s.y, 7.0f), 0.0f) << y0;
      EXPECT_GE(s.y, y0);
      EXPECT_LT(s.y, y0 + 40);
    }
  }
}

TEST_F(Fill, HatchLineCountAndAngleOfABox) {
  open();
  noarln();
  shdpat(5);   // 45 degrees and a second pass at 135, 27 units apart
  areaf_box(1000, 500, 2000, 1500);
  const auto p = paths(finish_ps());
  // Turned by 45 degrees the box lies between the heights 1060.7 and 2474.9: lines at 27
  // times 40 ... 91. Turned by 135 degrees it lies between -353.6 and 1060.7: 27 times -13 ... 39.
  ASSERT_EQ(p.size(), 105u);
  std::vector<double> rising, falling;
  for (const auto& path : p) {
    ASSERT_EQ(path.size(), 2u);
    const double du = path[1].first - path[0].first, dv = path[1].second - path[0].second;
    EXPECT_NEAR(std::fabs(du), std::fabs(dv), 2.0);
    // Distance of the line from the device origin, along its normal.
    if (du * dv < 0) falling.push_back((path[0].first + path[0].second) / std::sqrt(2.0));
    else rising.push_back((path[0].first - path[0].second) / std::sqrt(2.0));
  }
  ASSERT_EQ(falling.size(), 52u);
  ASSERT_EQ(rising.size(), 53u);
  const double s = 3900.0 / 2100.0;   // device units per plot unit
  for (auto* lines : {&rising, &falling}) {
    std::sort(lines->begin(), lines->end());
    for (std::size_t k = 1; k < lines->size(); ++k) EXPECT_NEAR((*lines)[k] - (*lines)[k - 1], 27.0 * s, 1.5);
  }
  // The first pass (45 degrees) comes first.
  EXPECT_LT((p[0][1].first - p[0][0].first) * (p[0][1].second - p[0][0].second), 0);
}

TEST_F(Fill, GroupsOfLines) {
  struct Case { int type, dens, lines; };
  // Box of 0..200 high with lines every 20 (type 2) or every 1 (type 4).
  const Case cases[] = {{2, 0, 7}, {3, 0, 9}, {4, 0, 16}, {1, 0, 100}, {2, 2, 4}};
  for (const auto& c : cases) {
    open();
    noarln();
    mypat(0, c.type, c.dens, 0);
    if (c.type == 4) areaf_box(100, 1000, 300, 1026);   // 26 lines: 8 drawn, 5 left out, 8, 5
    else if (c.type == 3) areaf_box(100, 1000, 300, 1165);   // 11 lines: 3 drawn, 1 left out, 3, 1, 3
    else if (c.type == 1) areaf_box(100, 1000, 300, 1199);
    else areaf_box(100, 1000, 300, 1200);
    EXPECT_EQ(int(paths(finish_ps()).size()), c.lines) << c.type << " " << c.dens;
  }
}

TEST_F(Fill, NativeFillOnPostScript) {
  open();
  noarln();
  shdpat(16);
  const int nx[3] = {100, 300, 200}, ny[3] = {200, 200, 400};
  areaf(nx, ny, 3);
  const auto tok = finish_ps();
  std::string text;
  for (const auto& t : tok) text += t + " ";
  EXPECT_NE(text.find("371 186 u 371 557 d 743 371 d 371 186 d eofill "), std::string::npos) << text;
  EXPECT_EQ(count(tok, "u"), 1);
}

TEST_F(Fill, FallBacksToHatching) {
  struct Case { const char* what; void (*setup)(); int eofills; };
  const Case cases[] = {
      {"solid", [] {}, 1},
      {"own solid pattern", [] { mypat(0, 1, 0, 0); }, 0},
      {"partly outside the window", [] { clpwin(0, 0, 250, 2000); }, 0},
      {"shield regions", [] { zg.ishield = 1; }, 0},
      {"origin moves it out", [] { origin(2800, 0); }, 0},
  };
  for (const auto& c : cases) {
    open();
    shdpat(16);
    c.setup();
    const int nx[3] = {100, 300, 200}, ny[3] = {200, 200, 400};
    areaf(nx, ny, 3);
    zg.ishield = 0;
    const auto tok = finish_ps();
    EXPECT_EQ(count(tok, "eofill"), c.eofills) << c.what;
    if (c.eofills == 0) {
      EXPECT_GT(count(tok, "u"), 50) << c.what;
    }
  }
}

TEST_F(Fill, OutlineAndEmptyPattern) {
  open();
  shdpat(0);
  areaf_box(100, 100, 200, 200);   // outline only: one closed path of 5 points
  noarln();
  areaf_box(300, 300, 400, 400);   // nothing at all
  const auto p = paths(finish_ps());
  ASSERT_EQ(p.size(), 1u);
  EXPECT_EQ(p[0].size(), 5u);
  EXPECT_EQ(p[0].front(), p[0].back());
}

TEST_F(Fill, LineStyleOfDottedPatternsIsRestored) {
  open();
  lintyp(2);
  shdpat(17);   // dotted lines
  areaf_box(100, 100, 400, 400);
  EXPECT_EQ(zg.itypln, 2);
  EXPECT_EQ(zg.ipatnr, 17);
  zorfin();
}

TEST_F(Fill, TooManyCrossingsLeaveAPartlyFilledArea) {
  // A box with a comb of 61 teeth above it: the scan line through the tips of the teeth
  // crosses their 122 edges and the two sides.
  Poly comb{{0, 1220, 1220}, {0, 0, 200}};
  for (int i = 60; i >= 0; --i) {
    comb.x.push_back(float(20 * i + 10));
    comb.y.push_back(110);
    comb.x.push_back(float(20 * i));
    comb.y.push_back(200);
  }
  g_spans.clear();
  jqqlev(0, 3, "AREAF");
  EXPECT_FALSE(gkwfa(comb.n(), comb.x.data(), comb.y.data(), 5.0f, collect));
  EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Warning  26: Too many intersections in AREAF!   ( 124)"});
  ASSERT_EQ(g_spans.size(), 22u);   // heights 0 ... 105 below the teeth
  for (const auto& s : g_spans) EXPECT_LT(s.y, 110.0f);
}

TEST_F(Fill, RejectedPolygons) {
  open();
  shdpat(16);
  const int nx[1] = {5}, ny[1] = {5};
  struct Case { const char* what; void (*call)(const int*, const int*); std::string line; };
  const Case cases[] = {
      {"one point", [](const int* x, const int* y) { areaf(x, y, 1); }, "Warning   2: Incorrect parameter in AREAF!   (   1)"},
      {"too many", [](const int* x, const int* y) { areaf(x, y, 1000001); }, "Warning   2: Incorrect parameter in AREAF!   (1000001)"},
      {"negative", [](const int* x, const int* y) { areaf(x, y, -4); }, "Warning   2: Incorrect parameter in AREAF!   (  -4)"},
      {"shdpat", [](const int*, const int*) { shdpat(-1); }, "Warning   2: Incorrect parameter in SHDPAT!   (  -1)"},
      {"mypat angle", [](const int*, const int*) { mypat(180, 1, 0, 0); }, "Warning   2: Incorrect parameter in MYPAT!   ( 180)"},
      {"mypat type", [](const int*, const int*) { mypat(0, 8, 0, 0); }, "Warning   2: Incorrect parameter in MYPAT!   (   8)"},
      {"mypat density", [](const int*, const int*) { mypat(0, 1, 10, 0); }, "Warning   2: Incorrect parameter in MYPAT!   (  10)"},
      {"mypat cross", [](const int*, const int*) { mypat(0, 1, 0, 2); }, "Warning   2: Incorrect parameter in MYPAT!   (   2)"},
      {"nan point", [](const int*, const int*) {
         const float x[4] = {0, 10, std::nanf(""), 0}, y[4] = {0, 0, 10, 10};
         jqqlev(1, 3, "DAREAF");
         dareaf(x, y, 4);
       }, "Warning   2: Incorrect parameter in DAREAF!   (   3)"},
      {"infinite point", [](const int*, const int*) {
         const float x[3] = {0, INFINITY, 0}, y[3] = {0, 0, 10};
         jqqlev(1, 3, "DAREAF");
         dareaf(x, y, 3);
       }, "Warning   2: Incorrect parameter in DAREAF!   (   2)"},
  };
  for (const auto& c : cases) {
    const Zorglb before = zg;
    c.call(nx, ny);
    EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< " + c.line}) << c.what;
    EXPECT_EQ(zg, zbt::with_warning_fields(before)) << c.what;
  }
  const auto tok = finish_ps();
  EXPECT_EQ(count(tok, "u"), 0);
  EXPECT_EQ(count(tok, "eofill"), 0);
}

TEST_F(Fill, FailedAllocationGivesWarning53) {
  open();
  mypat(30, 1, 0, 0);
  std::vector<int> nx(60), ny(60);
  for (int i = 0; i < 60; ++i) {
    nx[std::size_t(i)] = 500 + int(300 * std::cos(i * 0.1047));
    ny[std::size_t(i)] = 500 + int(300 * std::sin(i * 0.1047));
  }
  for (long allowed : {0L, 1L, 2L, 3L, 4L, 5L}) {
    detail::alloc_fail_after = allowed;   // areaf's arrays, the hatching's, the scan's
    areaf(nx.data(), ny.data(), 60);
    detail::alloc_fail_after = -1;
    EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Warning  53: Not enough memory in AREAF!"}) << allowed;
  }
  // Small polygons take no memory of their own in areaf.
  detail::alloc_fail_after = 0;
  shdpat(0);
  areaf(nx.data(), ny.data(), 50);
  detail::alloc_fail_after = -1;
  EXPECT_TRUE(take_lines().empty());
  zorfin();
}

TEST_F(Fill, HugePolygonsRunToTheEnd) {
  open();
  noarln();
  mypat(0, 1, 9, 0);
  // A circle of a million points, and a polygon far beyond the page.
  const int n = 1000000;
  std::vector<int> nx(n), ny(n);
  for (int i = 0; i < n; ++i) {
    const double a = 2 * 3.14159265358979 * i / n;
    nx[std::size_t(i)] = 1000 + int(500 * std::cos(a));
    ny[std::size_t(i)] = 1000 + int(500 * std::sin(a));
  }
  areaf(nx.data(), ny.data(), n);
  const int far[4] = {-2000000000, 2000000000, 2000000000, -2000000000};
  const int fary[4] = {-2000000000, -2000000000, 2000000000, 2000000000};
  areaf(far, fary, 4);
  EXPECT_TRUE(take_lines().empty());
  const auto p = paths(finish_ps());
  EXPECT_GT(p.size(), 40u);
}

// Device pixel of a plot point on the default POST page rendered at 18 dpi.
struct Pixmap {
  int w = 0, h = 0;
  std::vector<unsigned char> px;
  int at(int x, int y) const { return px[std::size_t(y * w + x)]; }
};

Pixmap render(const std::string& file) {
  EXPECT_EQ(zbt::run("gs -q -dSAFER -dNOPAUSE -dBATCH -sDEVICE=pgmraw -r18 -sPAPERSIZE=a4 -dFIXEDMEDIA -o page.pgm " + file), 0);
  std::ifstream in("page.pgm", std::ios::binary);
  // Head: "P5", width, height, largest value; ghostscript puts a comment line between.
  std::vector<std::string> head;
  for (std::string l; head.size() < 4 && std::getline(in, l);) {
    if (l.starts_with("#")) continue;
    std::istringstream words(l);
    for (std::string w; words >> w;) head.push_back(w);
  }
  Pixmap pm;
  if (head.size() < 4 || head[0] != "P5") return pm;
  pm.w = std::stoi(head[1]);
  pm.h = std::stoi(head[2]);
  pm.px.resize(std::size_t(pm.w * pm.h));
  in.read(reinterpret_cast<char*>(pm.px.data()), std::streamsize(pm.px.size()));
  return pm;
}

TEST_F(Fill, GhostscriptShowsTheEvenOddStar) {
  // Left star filled natively, right star hatched with the solid look: both keep their
  // centre white and their points black.
  open();
  noarln();
  const Poly left = star(700, 1050, 600), right = star(2200, 1050, 600);
  shdpat(16);
  dareaf(left.x.data(), left.y.data(), 5);
  mypat(0, 1, 0, 0);
  dareaf(right.x.data(), right.y.data(), 5);
  zorfin();
  const Pixmap pm = render(zg.cplotfl.str());
  ASSERT_GT(pm.w, 0);
  // Turned page: device x = plot y, device y = plot x; points of 0.05 mm, origin at
  // (150, 200) units, a factor f between.
  const double s = zg.devscl, f = psc_factor, dpi = 18;
  auto pixel = [&](float x, float y) {
    const double u = (150 + y * s * f) * 0.1417322835, v = (200 + x * s * f) * 0.1417322835;
    return pm.at(int(u * dpi / 72), pm.h - 1 - int(v * dpi / 72));
  };
  for (float cx : {700.0f, 2200.0f}) {
    EXPECT_GT(pixel(cx, 1050), 200) << "centre of the star at " << cx;
    EXPECT_LT(pixel(cx, 1050 - 400), 60) << "upper point of the star at " << cx;
    EXPECT_LT(pixel(cx - 350, 1050 - 110), 60) << "left point of the star at " << cx;
    EXPECT_GT(pixel(cx, 1050 - 650), 200) << "outside, above the upper point at " << cx;
  }
}

}  // namespace
