// The raster as an output device: sizes, the dispatcher's pixels, VIRT without a file, the
// image calls and their warnings, the picture embedded into PostScript, and one picture
// through PostScript (ghostscript) and PNG compared pixel by pixel.
#include "draw/prims.h"
#include "frame/page.h"
#include "raster/raster_support.h"

using namespace zb;

namespace {

class RasterDevice : public zbt::Fixture {};

TEST_F(RasterDevice, SizesAndKinds) {
  struct Case { const char* fmt; const char* page; const char* mode; int w, h, irgb, depth; };
  const Case cases[] = {{"VIRT", "DA4L", "INDE", 853, 603, 0, 8}, {"VIRT", "DA4P", "INDE", 603, 853, 0, 8},
                        {"PNG", "DA4L", "RGB", 853, 603, 1, 24},  {"PPM", "DA4L", "INDE", 853, 603, 1, 24},
                        {"GIF", "DA4L", "BILE", 853, 603, 0, 8}};
  for (const auto& c : cases) {
    metafl(c.fmt);
    setpag(c.page);
    imgfmt(c.mode);
    zorini();
    int w, h, rgb;
    qqvinf(w, h, rgb);
    EXPECT_EQ(w * 10000 + h, c.w * 10000 + c.h) << c.fmt << " " << c.page;
    EXPECT_EQ(zg.nwimg * 10000 + zg.nhimg, c.w * 10000 + c.h);
    EXPECT_EQ(rgb, c.irgb) << c.fmt;
    EXPECT_EQ(zg.ndepth, c.depth) << c.fmt;
    zorfin();
    qqvinf(w, h, rgb);
    EXPECT_EQ(w, 0);   // freed by zorfin
  }
  imgfmt("INDE");
  window(10, 20, 300, 200);
  metafl("VIRT");
  zorini();
  EXPECT_EQ(zg.nwimg * 10000 + zg.nhimg, 300 * 10000 + 200);
  EXPECT_NEAR(zg.devscl, 199.0f / 2099.0f, 1e-6f);
  zorfin();
  winsiz(41, 31);
  zorini();
  EXPECT_EQ(zg.nwimg * 10000 + zg.nhimg, 41 * 10000 + 31);
  zorfin();
}

TEST_F(RasterDevice, VirtWritesNoFile) {
  metafl("VIRT");
  zorini();
  line(0, 0, 2969, 2099);
  zorfin();
  EXPECT_EQ(zbt::run("test -z \"$(ls -A)\""), 0);
  const std::string text = take_text();   // the protocol names no file
  EXPECT_NE(text.find("Metafile:" + std::string(51, ' ') + "<<"), std::string::npos) << text;
}

// Plot coordinates to pixels by trunc(v devscl + 0.5); lines keep both ends, boxes their
// limits; a turned page (pagmod 1) maps y to x and the page's x from the right to y.
TEST_F(RasterDevice, DispatcherPixels) {
  for (int turned : {0, 1}) {
    metafl("VIRT");
    winsiz(300, 300);   // devscl = 299 / 2969 landscape, or 299 / 2969 turned
    zorini();
    zg.ipgmod = turned;
    setclr(7);
    const float s = zg.devscl;
    auto px = [&](float x, float y) {
      if (turned) return std::array<int, 2>{int(y * s + 0.5f), int((float(zg.nxpag) - x) * s + 0.5f)};
      return std::array<int, 2>{int(x * s + 0.5f), int(y * s + 0.5f)};
    };
    xjdraw(1000.0f, 500.0f, 3);
    xjdraw(1500.0f, 800.0f, 2);
    qqstrk();
    int v = 0;
    for (const auto& p : {px(1000, 500), px(1500, 800)}) {
      qqvrpx(p[0], p[1], v, 0);
      EXPECT_EQ(v, 7) << turned << " " << p[0] << "," << p[1];
    }
    dbox(200.0f, 300.0f, 600.0f, 700.0f, 9);
    auto a = px(200, 300), b = px(600, 700);
    const int x1 = std::min(a[0], b[0]), x2 = std::max(a[0], b[0]);
    const int y1 = std::min(a[1], b[1]), y2 = std::max(a[1], b[1]);
    for (int dx : {-1, 0, 1})
      for (int dy : {-1, 0, 1}) {
        for (auto [x, y] : {std::pair{x1 + dx, y1 + dy}, std::pair{x2 + dx, y2 + dy}}) {
          qqvrpx(x, y, v, 0);
          const bool in = x >= x1 && x <= x2 && y >= y1 && y <= y2;
          EXPECT_EQ(v == 9, in) << turned << " " << x << "," << y;
        }
      }
    // erase clears to the background.
    erase();
    qqvrpx(x1, y1, v, 0);
    EXPECT_EQ(v, 0);
    zorfin();
  }
}

TEST_F(RasterDevice, ImageCallsAndWarnings) {
  metafl("HPGL");
  zorini();
  take_lines();
  Zorglb before = zg;
  imgini();
  imgfin();
  imgbox(-1, 5, 10, 10);
  imgbox(0, 0, 10, 0);
  imgclp(0, 0, 2000, 10);
  imgsiz(0, -3);
  imgmod("GREY");
  winsiz(0, 5);
  window(-2, -7, 5, 5);
  EXPECT_EQ(take_lines(), (std::vector<std::string>{
                              " <<<< Warning  40: Fileformat and output device are incompatible in IMGINI!",
                              " <<<< Warning  55: No call to IMGINI in IMGFIN!",
                              " <<<< Warning   2: Incorrect parameter in IMGBOX!   (  -1)",
                              " <<<< Warning   2: Incorrect parameter in IMGBOX!   (   0)",
                              " <<<< Warning   2: Incorrect parameter in IMGCLP!",
                              " <<<< Warning   2: Incorrect parameter in IMGSIZ!   (  -3)",
                              " <<<< Warning   2: Incorrect parameter in IMGMOD!   (GREY)",
                              " <<<< Warning   2: Incorrect parameter in WINSIZ!   (   0)",
                              " <<<< Warning   2: Incorrect parameter in WINDOW!   (  -7)"}));
  EXPECT_EQ(zg, zbt::with_warning_fields(before));
  zorfin();
  metafl("VIRT");
  zorini();
  imgini();
  take_lines();
  before = zg;
  imgini();
  EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Warning  54: No call to IMGFIN in IMGINI!"});
  EXPECT_EQ(zg, zbt::with_warning_fields(before));
  imgfin();
  EXPECT_EQ(zg.iimgop, 0);
  zorfin();
}

TEST_F(RasterDevice, FailedMemory) {
  // imgini on PostScript gives the image up; the state stays as it was.
  metafl("POST");
  zorini();
  imgsiz(50, 40);
  take_lines();
  Zorglb before = zg;
  detail::alloc_fail_after = 0;
  imgini();
  detail::alloc_fail_after = -1;
  EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Warning  53: Not enough memory in IMGINI!"});
  EXPECT_EQ(zg, zbt::with_warning_fields(before));
  zorfin();
  // A device raster that cannot be had stops the program.
  capture_stdout(nullptr);
  EXPECT_EXIT(
      {
        dup2(2, 1);
        metafl("PNG");
        winsiz(100000, 100000);
        zorini();
      },
      ::testing::ExitedWithCode(1), "Warning  53: Not enough memory in ZORINI!");
}

// The scratch raster of PostScript: a red F on blue drawn into it, embedded, rendered.
TEST_F(RasterDevice, ImageEmbeddedInPostScript) {
  metafl("POST");
  setpag("DA4P");
  zorini();
  imgsiz(40, 60);
  imgbox(300, 400, 800, 1200);
  imgini();
  EXPECT_EQ(zg.nwimg * 100 + zg.nhimg, 4060);
  qqvfll(0, 0, 39, 59, 0x01FF0000);    // blue
  qqvfll(5, 5, 10, 54, 0x010000FF);    // stem, red
  qqvfll(5, 5, 34, 12, 0x010000FF);    // top arm
  qqvfll(5, 26, 24, 32, 0x010000FF);   // middle arm
  imgfin();
  EXPECT_EQ(zg.iimgop, 0);
  EXPECT_EQ(zg.nwimg * 1000 + zg.nhimg, 603853);   // sizes swapped back
  zorfin();
  const std::string name = zg.cplotfl.str();
  const std::string text = zbt::read_file(name);
  // The PostScript buffer breaks records between tokens and drops repeated blanks.
  std::string flat;
  for (char ch : text)
    if (!(isspace((unsigned char)ch) && !flat.empty() && flat.back() == ' ')) flat += isspace((unsigned char)ch) ? ' ' : ch;
  EXPECT_NE(flat.find("/picstr 120 string def gsave "), std::string::npos) << flat.substr(flat.size() - 300);
  const float k = zg.devscl * 0.14173229f;
  const std::string scale = fmt_f(800.0f * k, 10, 3).substr(std::string(fmt_f(800.0f * k, 10, 3)).find_first_not_of(' ')) +
                            " " + fmt_f(1200.0f * k, 10, 3).substr(fmt_f(1200.0f * k, 10, 3).find_first_not_of(' '));
  EXPECT_NE(flat.find(" translate " + scale + " scale 40 60 8 [ 40 0 0 -60 0 60] {currentfile picstr "
                      "readhexstring pop} false 3 colorimage 0000FF0000FF"), std::string::npos) << scale;
  EXPECT_NE(flat.find("0000FF0000FF grestore showpage"), std::string::npos);
  EXPECT_NE(text.find("colorimage \n0000FF0000FF"), std::string::npos);   // the data start a new record
  std::string log;
  ASSERT_EQ(zbt::run("gs -q -dSAFER -dNOPAUSE -dBATCH -sDEVICE=ppmraw -r72 -o page.ppm " + name, &log), 0) << log;
  const zbt::Image page = zbt::parse_ppm(zbt::read_file("page.ppm"));
  ASSERT_GT(page.w, 0);
  // Find the box: the blue area's extent on the rendered page.
  int bx1 = page.w, by1 = page.h, bx2 = -1, by2 = -1;
  for (int y = 0; y < page.h; ++y)
    for (int x = 0; x < page.w; ++x) {
      const auto c = page.at(x, y);
      if (c[2] > 200 && c[0] < 60 && c[1] < 60) {
        bx1 = std::min(bx1, x); bx2 = std::max(bx2, x); by1 = std::min(by1, y); by2 = std::max(by2, y);
      }
    }
  ASSERT_GT(bx2, bx1);
  // 800 x 1200 plot units in the portrait page of 2100 units across.
  EXPECT_NEAR(double(bx2 - bx1 + 1) / (by2 - by1 + 1), 800.0 / 1200.0, 0.03);
  auto colour_at = [&](double u, double v) {   // fractions of the box, from its top left
    return page.at(bx1 + int(u * (bx2 - bx1)), by1 + int(v * (by2 - by1)));
  };
  EXPECT_GT(colour_at(0.19, 0.5)[0], 200);    // stem on the left
  EXPECT_LT(colour_at(0.81, 0.5)[0], 60);     // nothing on the right
  EXPECT_GT(colour_at(0.6, 0.14)[0], 200);    // top arm, near the top
  EXPECT_LT(colour_at(0.6, 0.86)[0], 60);     // no arm at the bottom
  EXPECT_GT(colour_at(0.4, 0.48)[0], 200);    // middle arm
  EXPECT_LT(colour_at(0.6, 0.14)[2], 60);     // red, not blue
}

// The same picture through PostScript and through PNG: after scaling the page onto the
// raster, nearly every pixel has the same colour. A flip or a channel swap fails.
TEST_F(RasterDevice, PostScriptAndPngAgree) {
  auto picture = [] {
    setpag("DA4P");
    zorini();
    recfll(0, 0, 2100, 2970, intrgb(0.0f, 0.0f, 1.0f));
    recfll(400, 500, 250, 1900, intrgb(1.0f, 0.0f, 0.0f));
    recfll(650, 500, 900, 250, intrgb(1.0f, 0.0f, 0.0f));
    recfll(650, 1200, 550, 250, intrgb(1.0f, 0.0f, 0.0f));
    recfll(1300, 2200, 500, 400, intrgb(0.0f, 1.0f, 0.0f));
    zorfin();
    return zg.cplotfl.str();
  };
  metafl("POST");
  const std::string ps = picture();
  metafl("PNG");
  imgfmt("RGB");
  winsiz(211, 298);
  const zbt::Image png = zbt::decode_png(zbt::read_file(picture()));
  imgfmt("INDE");
  std::string log;
  ASSERT_EQ(zbt::run("gs -q -dSAFER -dNOPAUSE -dBATCH -sDEVICE=ppmraw -r72 -o ps.ppm " + ps, &log), 0) << log;
  const zbt::Image page = zbt::parse_ppm(zbt::read_file("ps.ppm"));
  ASSERT_GT(page.w, 0);
  ASSERT_EQ(png.w, 211);
  // The page on the PostScript sheet: the extent of all that is not white.
  int x1 = page.w, y1 = page.h, x2 = -1, y2 = -1;
  for (int y = 0; y < page.h; ++y)
    for (int x = 0; x < page.w; ++x) {
      const auto c = page.at(x, y);
      if (c[0] < 250 || c[1] < 250 || c[2] < 250) {
        x1 = std::min(x1, x); x2 = std::max(x2, x); y1 = std::min(y1, y); y2 = std::max(y2, y);
      }
    }
  ASSERT_GT(x2, x1);
  auto cls = [](std::array<unsigned char, 3> c) { return (c[0] > 127) * 4 + (c[1] > 127) * 2 + (c[2] > 127); };
  int same = 0, all = 0;
  for (int y = 0; y < png.h; ++y)
    for (int x = 0; x < png.w; ++x) {
      const int sx = x1 + int((x + 0.5) * (x2 - x1 + 1) / png.w);
      const int sy = y1 + int((y + 0.5) * (y2 - y1 + 1) / png.h);
      same += cls(png.at(x, y)) == cls(page.at(sx, sy));
      ++all;
    }
  EXPECT_GT(double(same) / all, 0.97) << same << " of " << all;
}

}  // namespace
