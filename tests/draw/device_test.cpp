// The device layer: the output table, scales by device class, the text records of the
// simple drivers and Tektronix addressing.
#include <cmath>

#include "support/harness.h"

using namespace zb;

namespace {

class Device : public zbt::Fixture {};

TEST_F(Device, OutputTable) {
  struct Case { const char* key; int idev; const char* ext; };
  const Case cases[] = {
      {"ZMET", 201, "met"}, {"cgm", 211, "cgm"},  {"KYOC", 301, "kyo"}, {"HPGL", 401, "hpg"},
      {"hpa1", 405, "hpg"}, {"TEKT", 151, "tek"}, {"VT340", 103, "   "}, {"LN03", 161, "ln3"},
      {"POST", 501, "psc"}, {"PSCL", 502, "psc"}, {"EPS", 503, "eps"},  {"PS", 504, "ps"},
      {"PDF", 511, "pdf"},  {"XWIN", 72, "   "},  {"XWI1", 72, "   "},  {"XWI8", 79, "   "},
      {"XWND", 80, "   "},  {"MET5", 80, "   "},  {"MET1", 80, "   "},  {"TIFF", 601, "tif"},
      {"IMAGE", 602, "img"}, {"VIRT", 603, "   "}, {"PNG", 604, "png"},  {"PPM", 605, "ppm"},
      {"BMP", 606, "bmp"},  {"GIF", 607, "gif"},  {"JAVA", 701, "java"}, {"WMF", 221, "wmf"},
      {"SVG", 801, "svg"},  {"CONS", 101, "   "},
  };
  for (const auto& c : cases) {
    metafl(c.key);
    EXPECT_EQ(zg.idev, c.idev) << c.key;
    EXPECT_EQ(qqgfxt(c.idev), c.ext) << c.key;
  }
  EXPECT_EQ(zg.imetsel, 1);
  metafl("POST");
  take_lines();
  Zorglb before = zg;
  metafl("NONE");
  metafl("MET0");
  EXPECT_EQ(take_lines().size(), 2u);
  EXPECT_EQ(zg, zbt::with_warning_fields(before));
  metafl("eps ");
  EXPECT_EQ(zg.cfmt.full(), "EPS ");
}

float scale_of(const char* fmt, float sclfac = 1.0f) {
  metafl(fmt);
  zg.xsclfac = sclfac;
  zorini();
  const float s = zg.devscl;
  zorfin();
  return s;
}

TEST_F(Device, ScaleByClass) {
  struct Case { const char* fmt; float scl; float devscl; };
  const Case cases[] = {
      {"ZMET", 1, 1.0f / 2969.0f}, {"HPGL", 1, 4.0f},        {"HPA4", 1, 7600.0f / 2099.0f},
      {"HPA4", 0.5f, 2.0f},        {"HPA1", 1, 4.0f},        {"CGM", 1, 2.0f},
      {"KYOC", 1, 2362.0f / 2099.0f}, {"TEKT", 1, 1023.0f / 2969.0f}, {"LN03", 1, 4095.0f / 2969.0f},
      {"JAVA", 1, 602.0f / 2099.0f}, {"JAVA", 0.5f, 0.5f * 852.0f / 2969.0f},
      {"POST", 1, 3900.0f / 2100.0f}, {"POST", 0.25f, 3900.0f / 2100.0f},
  };
  for (const auto& c : cases) EXPECT_NEAR(scale_of(c.fmt, c.scl), c.devscl, 1e-5f) << c.fmt << " " << c.scl;
}

TEST_F(Device, SimpleDriverRecords) {
  struct Case { const char* fmt; std::vector<std::string> body; };
  const Case cases[] = {
      // Each output starts with the foreground colour of resall: index 255.
      {"ZMET", {"99.000000099.000000086.0000000 0.0336814 0.6396093 3.0000000 0.1010441 0.5722466",
                " 2.0000000 0.0000000 0.0000000 3.0000000 9.0000000"}},
      {"HPGL", {"SP255;PU400,7596;PD1200,6796;PU0,0;"}},
      {"KYOC", {"MAP  113, 225;DAP  338, 450;RES;EXIT;"}},
      {"JAVA", {"  g.setColor (new Color (0,0,0));", "  g.drawLine (29,57,86,115);", "  }", "}"}},
  };
  for (const auto& c : cases) {
    metafl(c.fmt);
    zorini();
    xjdraw(100, 200, 3);
    xjdraw(300, 400, 2);
    zorfin();
    EXPECT_EQ(zbt::read_lines(zg.cplotfl.str()), c.body) << c.fmt;
  }
}

TEST_F(Device, RecordBreaksByClass) {
  // HPGL keeps a piece whole in the next record; the metafile fills records to 80.
  metafl("HPGL");
  zorini();
  for (int i = 0; i < 9; ++i) xjdraw(100.0f + float(i), 200, 2);
  zorfin();
  for (const auto& l : zbt::read_lines(zg.cplotfl.str())) {
    EXPECT_LE(l.size(), 80u);
    EXPECT_EQ(l.back(), ';') << l;
  }
  metafl("ZMET");
  zorini();
  for (int i = 0; i < 9; ++i) xjdraw(100.0f + float(i), 200, 2);
  zorfin();
  const auto lines = zbt::read_lines(zg.cplotfl.str());
  ASSERT_GE(lines.size(), 3u);
  EXPECT_EQ(lines[0].size(), 80u);
  EXPECT_EQ(lines[1].size(), 80u);
}

TEST_F(Device, TektronixShortForm) {
  zg.idev = 151;
  zg.lobuf = 80;
  zg.ctek = {29, 0, 0, 0, 0, 0};
  dtdraw(0, 0, 0);
  dtdraw(100, 200, 3);      // full address behind the mode byte
  dtdraw(101, 200, 2);      // only lo x
  dtdraw(101, 233, 2);      // hi y, lo y, lo x
  dtdraw(200, 233, 2);      // lo y (hi x changed), hi x, lo x
  EXPECT_EQ(std::string(zg.cobuf.c.data(), std::size_t(zg.nobuf)), "\x1d&h#DE'iEi&H");
  char a[5];
  gtk12b(1000, 2001, a);
  EXPECT_EQ(std::string(a, 5), "/dt'Z");   // hi y, extra, lo y, hi x, lo x
}

TEST_F(Device, TerminalSessionsStayInRange) {
  for (const char* fmt : {"TEKT", "LN03"}) {
    metafl(fmt);
    zorini();
    xjdraw(0, 0, 3);
    xjdraw(2969, 2099, 2);
    dbox(10, 10, 40, 40, 5);
    newpag();
    zorfin();
    const std::string text = zbt::read_file(zg.cplotfl.str());
    EXPECT_GT(text.size(), 10u) << fmt;
  }
}

TEST_F(Device, CountsEveryDispatcherCall) {
  metafl("POST");
  zorini();
  const int n = zg.nvect;
  xjdraw(1, 1, 3);
  xjdraw(2, 2, 3);
  xjdraw(3, 3, 2);
  EXPECT_EQ(zg.nvect, n + 3);
  zorfin();
}

TEST_F(Device, UnfinishedOutputsDoNotCrash) {
  for (const char* fmt : {"CGM", "WMF", "PDF", "SVG", "VIRT", "PNG", "TIFF", "GIF", "BMP", "PPM", "XWIN"}) {
    metafl(fmt);
    zorini();
    xjdraw(10, 10, 3);
    xjdraw(100, 100, 2);
    dbox(10, 10, 50, 50, 3);
    qqsclr(5);
    newpag();
    erase();
    sendbf();
    zorfin();
    EXPECT_EQ(zg.ilevel, 0) << fmt;
  }
}

}  // namespace
