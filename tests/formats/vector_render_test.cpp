// One picture through real renderers: PostScript by ghostscript against SVG by
// rsvg-convert, pixel by pixel, and the CGM file through LibreOffice's CGM reader. The
// picture is an upright "F" on a blue box, so that a flip or a swap of channels shows.
#include <fstream>

#include "draw/fill.h"
#include "draw/line.h"
#include "frame/page.h"
#include "support/harness.h"

using namespace zb;

namespace {

struct Raster {
  int w = 0, h = 0;
  std::vector<unsigned char> rgb;
  // Colour class of a pixel: 'r' red, 'b' blue, 'k' dark, '.' anything else.
  char at(int x, int y) const {
    const unsigned char* p = &rgb[3 * (std::size_t(y) * std::size_t(w) + std::size_t(x))];
    if (p[0] > 180 && p[1] < 90 && p[2] < 90) return 'r';
    if (p[0] < 90 && p[1] < 90 && p[2] > 180) return 'b';
    if (p[0] < 90 && p[1] < 90 && p[2] < 90) return 'k';
    return '.';
  }
  int count(char c) const {
    int n = 0;
    for (int y = 0; y < h; ++y)
      for (int x = 0; x < w; ++x) n += at(x, y) == c;
    return n;
  }
};

Raster read_ppm(const std::string& name) {
  Raster r;
  std::ifstream in(name, std::ios::binary);
  // Head: "P6", width, height, maximum, with comment lines ("#") between them.
  std::string magic;
  int maxval = 0;
  auto skip_comments = [&in] {
    while (in >> std::ws && in.peek() == '#') in.ignore(1 << 20, '\n');
  };
  in >> magic;
  skip_comments();
  in >> r.w;
  skip_comments();
  in >> r.h;
  skip_comments();
  in >> maxval;
  in.get();
  if (magic != "P6" || r.w <= 0 || r.h <= 0 || maxval != 255) return {};
  r.rgb.resize(std::size_t(r.w) * std::size_t(r.h) * 3);
  in.read(reinterpret_cast<char*>(r.rgb.data()), std::streamsize(r.rgb.size()));
  return in ? r : Raster{};
}

// Share of pixels whose class differs; flip_b compares with b upside down.
double mismatch(const Raster& a, const Raster& b, bool flip_b = false) {
  int n = 0;
  for (int y = 0; y < a.h; ++y)
    for (int x = 0; x < a.w; ++x) n += a.at(x, y) != b.at(x, flip_b ? b.h - 1 - y : y);
  return double(n) / double(a.w * a.h);
}

const char* kGeometry = "-g200x283";

class VectorRender : public zbt::Fixture {
 protected:
  // The picture in plot coordinates of an A4 portrait page.
  static void picture() {
    dbox(200, 300, 1900, 2700, 0x01FF0000);   // blue
    setclr(0x010000FF);                          // red
    shdpat(16);
    const int fx[] = {500, 1500, 1500, 800, 800, 1300, 1300, 800, 800, 500};
    const int fy[] = {500, 500, 750, 750, 1300, 1300, 1550, 1550, 2400, 2400};
    areaf(fx, fy, 10);
    setclr(0x01000000);                          // black thin frame
    const float x[] = {100, 2000, 2000, 100, 100}, y[] = {100, 100, 2869, 2869, 100};
    strtqq(x[0], y[0]);
    for (int i = 1; i < 5; ++i) connqq(x[i], y[i]);
  }
  std::string session(const char* fmt) {
    metafl(fmt);
    setpag("DA4P");
    zorini();
    picture();
    zorfin();
    return zg.cplotfl.str();
  }
};

TEST_F(VectorRender, PostScriptAndSvgGiveThePicture) {
  const std::string eps = session("EPS");
  const std::string svg = session("SVG");
  std::string log;
  ASSERT_EQ(zbt::run(std::string("gs -q -dSAFER -dNOPAUSE -dBATCH -sDEVICE=ppmraw -dEPSCrop -dEPSFitPage ") +
                         kGeometry + " -o ps.ppm " + eps, &log), 0) << log;
  ASSERT_EQ(zbt::run("rsvg-convert -f pdf -o svg.pdf " + svg, &log), 0) << log;
  ASSERT_EQ(zbt::run(std::string("gs -q -dSAFER -dNOPAUSE -dBATCH -sDEVICE=ppmraw -dPDFFitPage ") + kGeometry +
                         " -o svg.ppm svg.pdf", &log), 0) << log;
  const Raster a = read_ppm("ps.ppm"), b = read_ppm("svg.ppm");
  ASSERT_EQ(a.w, 200);
  ASSERT_EQ(b.w, 200);
  ASSERT_EQ(a.h, b.h);
  // Both show the box and the letter in their colours.
  EXPECT_GT(a.count('r'), 4000);
  EXPECT_GT(a.count('b'), 12000);
  EXPECT_GT(b.count('r'), 4000);
  EXPECT_GT(b.count('b'), 12000);
  // The top of the letter, its arm, is red in both at the same place.
  EXPECT_EQ(a.at(110, 60), 'r');
  EXPECT_EQ(b.at(110, 60), 'r');
  EXPECT_EQ(a.at(110, 150), 'b');
  EXPECT_EQ(b.at(110, 150), 'b');
  EXPECT_LT(mismatch(a, b), 0.02);
  // The picture is not symmetric: upside down it would not pass.
  EXPECT_GT(mismatch(a, b, true), 0.10);
}

TEST_F(VectorRender, LibreOfficeReadsTheCgm) {
  const std::string cgm = session("CGM");
  std::string log;
  const std::string lo = "soffice -env:UserInstallation=file://" + dir +
                         "/lo --headless --convert-to pdf --outdir lo-out " + cgm;
  zbt::run(lo, &log);
  const std::string pdf = "lo-out/" + cgm.substr(0, cgm.size() - 4) + ".pdf";
  ASSERT_FALSE(zbt::read_file(pdf).empty()) << "LibreOffice could not read " << cgm << ": " << log;
  ASSERT_EQ(zbt::run("gs -q -dSAFER -dNOPAUSE -dBATCH -sDEVICE=ppmraw -r20 -o lo.ppm " + pdf, &log), 0) << log;
  const Raster r = read_ppm("lo.ppm");
  ASSERT_GT(r.w, 0);
  // The reader lays the picture out as it likes; find the letter's extent and check it
  // stands upright: its stem at the left runs down, its top arm reaches right.
  int x0 = r.w, x1 = -1, y0 = r.h, y1 = -1;
  for (int y = 0; y < r.h; ++y)
    for (int x = 0; x < r.w; ++x)
      if (r.at(x, y) == 'r') {
        x0 = std::min(x0, x); x1 = std::max(x1, x);
        y0 = std::min(y0, y); y1 = std::max(y1, y);
      }
  ASSERT_GT(x1 - x0, 10) << "no red letter";
  EXPECT_GT(r.count('b'), r.count('r'));
  const int top = y0 + 1, low = y1 - 1;
  EXPECT_EQ(r.at(x1 - 1, top), 'r');   // arm, right end
  EXPECT_EQ(r.at(x0 + 1, low), 'r');   // stem foot
  EXPECT_NE(r.at(x1 - 1, low), 'r');   // no arm at the foot
}

}  // namespace
