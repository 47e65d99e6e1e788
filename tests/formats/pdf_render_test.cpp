// PDF pages as readers see them: one picture rendered through EPS by ghostscript and
// through PDF by pdftoppm, both checked against the drawn shapes point by point (a flip or
// turn shows); text, an image and a form rendered; and bad input to every entry point,
// after which the file still passes qpdf --check.
#include <cmath>
#include <functional>
#include <limits>

#include "formats/drivers.h"
#include "formats/pdf.h"
#include "formats/pdf_support.h"
#include "frame/page.h"

using namespace zb;

namespace {

struct Rect {
  int x1, y1, x2, y2;
  long rgb;
};

// The picture, in drawing order, in plot units; all edges at multiples of 100, so samples
// at 50 + 100 k lie well inside or outside every shape. The red F is one polygon.
const Rect kBlue = {100, 200, 1100, 1000, 0x0000FF};
const Rect kF[3] = {{300, 300, 500, 900, 0xFF0000}, {500, 300, 900, 500, 0xFF0000}, {500, 600, 800, 700, 0xFF0000}};
const Rect kGreen = {1200, 200, 1900, 500, 0x00C000};
const Rect kYellow = {1500, 1500, 1900, 1900, 0xFFFF00};
const Rect kMagenta = {100, 1700, 300, 1900, 0xFF00FF};
const Rect kLine = {1200, 700, 1900, 900, 0x000000};   // a wide line with long caps, samples inside

int explicit_colour(long rgb) { return 0x01000000 | int((rgb & 0xFF) << 16) | int(rgb & 0xFF00) | int((rgb >> 16) & 0xFF); }

void draw_picture() {
  dbox(float(kBlue.x1), float(kBlue.y1), float(kBlue.x2), float(kBlue.y2), explicit_colour(kBlue.rgb));
  shdpat(16);
  setclr(explicit_colour(0xFF0000));
  const int fx[10] = {300, 900, 900, 500, 500, 800, 800, 500, 500, 300};
  const int fy[10] = {300, 300, 500, 500, 600, 600, 700, 700, 900, 900};
  areaf(fx, fy, 10);
  for (const Rect& r : {kGreen, kYellow, kMagenta})
    dbox(float(r.x1), float(r.y1), float(r.x2), float(r.y2), explicit_colour(r.rgb));
  setclr(explicit_colour(kLine.rgb));
  linwid(140);   // half a width of 75 plot units in PostScript, 107 in PDF on a shrunk page
  line(1300, 800, 1800, 800);
  linwid(1);
}

long expected_colour(int x, int y) {
  long c = 0xFFFFFF;
  auto in = [&](const Rect& r) { return x > r.x1 && x < r.x2 && y > r.y1 && y < r.y2; };
  if (in(kBlue)) c = kBlue.rgb;
  for (const Rect& r : kF)
    if (in(r)) c = r.rgb;
  for (const Rect& r : {kGreen, kYellow, kMagenta, kLine})
    if (in(r)) c = r.rgb;
  return c;
}

bool close_to(long a, long b) {
  if (a < 0) return false;
  for (int sh : {0, 8, 16})
    if (std::abs(((a >> sh) & 0xFF) - ((b >> sh) & 0xFF)) > 40) return false;
  return true;
}

class PdfRender : public zbt::Fixture {
 protected:
  static constexpr float kDpi = 36.0f;
  static constexpr float k = kDpi / 72.0f;   // pixels per point

  std::string write(const char* fmt, const std::function<void()>& setup) {
    zb::reset_process_state();
    metafl(fmt);
    if (setup) setup();
    zorini();
    draw_picture();
    zorfin();
    return zg.cplotfl.str();
  }
  zbt::Ppm render_pdf(const std::string& f) {
    std::string log;
    EXPECT_EQ(zbt::run("pdftoppm -r 36 " + f + " page", &log), 0) << log;
    EXPECT_EQ(log, "");
    return zbt::Ppm::read("page-1.ppm");
  }
  zbt::Ppm render_eps(const std::string& f) {
    std::string log;
    EXPECT_EQ(zbt::run("gs -q -dSAFER -dNOPAUSE -dBATCH -dEPSCrop -sDEVICE=ppmraw -r36 -o eps.ppm " + f, &log), 0) << log;
    return zbt::Ppm::read("eps.ppm");
  }
  // Samples of the page that differ from the picture, the pixel of a plot point given.
  int mismatches(const zbt::Ppm& img, const std::function<std::pair<int, int>(float, float)>& pixel, std::string* first) {
    int bad = 0;
    for (int y = 50; y < 2000; y += 100)
      for (int x = 50; x < 2000; x += 100) {
        const auto [px, py] = pixel(float(x), float(y));
        const long got = img.at(px, py), want = expected_colour(x, y);
        if (!close_to(got, want)) {
          if (bad++ == 0 && first)
            *first = "plot (" + std::to_string(x) + ", " + std::to_string(y) + "): " + std::to_string(got) + " for " + std::to_string(want);
        }
      }
    return bad;
  }
};

// On a turned page PDF stands upright by /Rotate 90: a plot point maps straight to the
// rendered page. The EPS keeps the paper upright and the page turned on it.
TEST_F(PdfRender, TurnedPageMatchesPostScript) {
  const std::string pdf_name = write("PDF", {});
  const float s = zg.devscl;
  const zbt::Ppm pdf = render_pdf(pdf_name);
  ASSERT_GT(pdf.w, pdf.h);   // landscape as shown
  std::string why;
  auto upright = [&](float x, float y) { return std::pair<int, int>{int(x * s * k), int(y * s * k)}; };
  EXPECT_EQ(mismatches(pdf, upright, &why), 0) << why;
  // The same test finds a mirrored page.
  auto mirrored = [&](float x, float y) { return std::pair<int, int>{int(x * s * k), pdf.h - 1 - int(y * s * k)}; };
  EXPECT_GT(mismatches(pdf, mirrored, nullptr), 40);

  const std::string eps_name = write("EPS", {});
  const zbt::Ppm eps = render_eps(eps_name);
  ASSERT_LT(eps.w, eps.h);
  auto turned = [&](float x, float y) { return std::pair<int, int>{int((0.26f + y * s) * k), eps.h - int((0.35f + x * s) * k)}; };
  EXPECT_EQ(mismatches(eps, turned, &why), 0) << why;
}

TEST_F(PdfRender, UnturnedPagesMatchPostScript) {
  const std::function<void()> setups[] = {[] { pagmod("NONE"); }, [] { setpag("DA4P"); }};
  for (const auto& setup : setups) {
    const std::string pdf_name = write("PDF", setup);
    const float s = zg.devscl, ny = float(zg.nypag);
    const zbt::Ppm pdf = render_pdf(pdf_name);
    ASSERT_GT(pdf.h, 0);
    std::string why;
    auto flat = [&](float x, float y) { return std::pair<int, int>{int(x * s * k), pdf.h - int((ny - y) * s * k)}; };
    EXPECT_EQ(mismatches(pdf, flat, &why), 0) << why;
    const std::string eps_name = write("EPS", setup);
    const zbt::Ppm eps = render_eps(eps_name);
    auto flat_eps = [&](float x, float y) {
      return std::pair<int, int>{int((0.26f + x * s) * k), eps.h - int((0.35f + (ny - y) * s) * k)};
    };
    EXPECT_EQ(mismatches(eps, flat_eps, &why), 0) << why;
  }
}

// Base-font text, an RGB image and a form as pdftoppm draws them, on an unturned page.
TEST_F(PdfRender, TextImageAndFormRender) {
  metafl("PDF");
  pagmod("NONE");
  zorini();
  const float m[6] = {1, 0, 0, 1, 40, 300};
  qqpdf5('H', m, 0, 4, 400);   // Helvetica, 40 points
  const unsigned char px[12] = {255, 0, 0, 0, 255, 0, 0, 0, 255, 255, 255, 255};
  qqpdf2(2, 2, 10);
  qqpdf7(px, 12);
  qqpdf2(0, 0, 11);
  qqpdf2(200, 100, 12);
  qqpdf2(100, 100, 14);
  const std::string block = "0 0.5 0 rg 0 0 10 10 re f\n";
  int ierr = -1;
  qqpdf8(reinterpret_cast<const unsigned char*>(block.data()), int(block.size()), 0, 0, 10, 10, 400, 100, 50, 50, 1, 0, ierr);
  EXPECT_EQ(ierr, 0);
  zorfin();
  std::string log;
  ASSERT_EQ(zbt::run("qpdf --check " + zg.cplotfl.str(), &log), 0) << log;
  ASSERT_EQ(zbt::run("pdftoppm -r 72 " + zg.cplotfl.str() + " page", &log), 0) << log;
  EXPECT_EQ(log, "");
  const zbt::Ppm img = zbt::Ppm::read("page-1.ppm");
  ASSERT_EQ(img.h, 391);
  // Image rows run from the top: red, green over blue, white.
  const int top = 391 - 200;
  EXPECT_TRUE(close_to(img.at(225, top + 25), 0xFF0000)) << img.at(225, top + 25);
  EXPECT_TRUE(close_to(img.at(275, top + 25), 0x00FF00));
  EXPECT_TRUE(close_to(img.at(225, top + 75), 0x0000FF));
  EXPECT_TRUE(close_to(img.at(275, top + 75), 0xFFFFFF));
  EXPECT_TRUE(close_to(img.at(425, 391 - 125), 0x008000));   // the form's box, 5 times its size
  // The letter: dark pixels on its baseline's row span, none far above it.
  int dark = 0;
  for (int y = 391 - 330; y < 391 - 300; ++y)
    for (int x = 40; x < 70; ++x) dark += img.at(x, y) < 0x404040 ? 1 : 0;
  EXPECT_GT(dark, 50);
}

// Junk to every entry point, with and without an open file: nothing crashes, and the file
// written is still read without complaint.
TEST_F(PdfRender, BadInputKeepsTheFileValid) {
  const float nan = std::numeric_limits<float>::quiet_NaN(), inf = std::numeric_limits<float>::infinity();
  const float odd[] = {0.0f, -1.0f, 1.0e30f, -1.0e30f, nan, inf, -inf, 12.5f, 3.0f, 64.0f};
  unsigned state = 12345u;
  auto next = [&](unsigned n) {
    state = state * 1103515245u + 12345u;
    return (state >> 8) % n;
  };
  auto junk = [&] {
    const unsigned char bytes[64] = {40, 41, 92, 0, 255, 10, 13};
    const float m[6] = {odd[next(10)], 0, 0, 1, odd[next(10)], odd[next(10)]};
    int ierr = 0, nlen = 0;
    char buf[8];
    for (int i = 0; i < 3000; ++i) {
      switch (next(10)) {
        case 0: qqpdf2(odd[next(10)], odd[next(10)], int(next(20)) - 3); break;
        case 1: qqpdf2(odd[next(10)], odd[next(10)], 999); break;
        case 2: qqpdf3(int(next(600)) - 200, int(next(600)) - 200, int(next(600)) - 200, int(next(3))); break;
        case 3: qqpdf4(odd[next(10)], odd[next(10)], odd[next(10)], odd[next(10)]); break;
        case 4: qqpdf5(int(next(600)) - 300, next(5) == 0 ? nullptr : m, int(next(4)) * 45, int(next(45)) - 5, int(next(300))); break;
        case 5: qqpdf7(next(5) == 0 ? nullptr : bytes, int(next(80)) - 10); break;
        case 6:
          qqpdf8(next(5) == 0 ? nullptr : bytes, int(next(80)) - 10, odd[next(10)], odd[next(10)], odd[next(10)], odd[next(10)],
                 odd[next(10)], odd[next(10)], odd[next(10)], odd[next(10)], int(next(3)), int(next(3)), ierr);
          break;
        case 7: {
          static const char* levels[] = {"CHAP", "SECT", "SUBS", "PARA", "SUBP", "junk", ""};
          pdfmrk(next(2) ? "a (title" : "", levels[next(7)]);
          break;
        }
        case 8: qqpdf6(next(2) ? buf : nullptr, int(next(20)) - 5); break;
        default: pdfbuf(buf, int(next(20)) - 5, nlen); break;
      }
    }
  };
  junk();   // no file open: all ignored
  for (bool compress : {true, false}) {
    metafl("PDF");
    pdfmod(compress ? "ON" : "OFF", "COMP");
    zorini();
    junk();
    newpag();
    const unsigned char big[1] = {1};
    qqpdf2(1.0e5f, 1.0e5f, 10);   // too large an image is refused
    qqpdf7(big, 1);
    zorfin();
    junk();
    std::string log;
    const std::string name = zg.cplotfl.str();
    EXPECT_EQ(zbt::run("qpdf --check " + name, &log), 0) << log;
    EXPECT_NE(log.find("No syntax or stream encoding errors"), std::string::npos) << log;
    const zbt::Pdf pdf = zbt::Pdf::parse(zbt::read_file(name));
    EXPECT_TRUE(pdf.ok()) << (pdf.ok() ? "" : pdf.problems[0]);
    EXPECT_GE(pdf.pages().size(), 2u);
    take_text();
  }
}

}  // namespace
