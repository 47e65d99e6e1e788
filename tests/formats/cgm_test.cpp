// The CGM driver: the bytes of the head, polylines, colours, pictures and the end; the
// point list of 50; strings and their pad bytes; the settings and their warnings; reading
// words back.
#include "formats/cgm_support.h"
#include "formats/drivers.h"
#include "frame/page.h"
#include "support/harness.h"

using namespace zb;

namespace {

using Bytes = std::string;

Bytes hex(const char* h) {
  Bytes b;
  for (const char* p = h; *p;) {
    if (*p == ' ') { ++p; continue; }
    b += char(std::stoi(std::string(p, 2), nullptr, 16));
    p += 2;
  }
  return b;
}
Bytes be16(int v) { return {char((v >> 8) & 0xFF), char(v & 0xFF)}; }
// A long-form string parameter as the file holds it (for names below 255 characters).
Bytes str_par(const std::string& s) {
  Bytes b = be16(int(s.size()) + 1) + char(s.size()) + s;
  if (s.size() % 2 == 0) b += '\0';
  return b;
}
// Readable form of a byte string for failure messages.
std::string dump(const Bytes& b) {
  static const char* d = "0123456789ABCDEF";
  std::string s;
  for (std::size_t i = 0; i < b.size(); ++i) {
    if (i && i % 16 == 0) s += '\n';
    s += d[std::uint8_t(b[i]) >> 4];
    s += d[std::uint8_t(b[i]) & 15];
    s += ' ';
  }
  return s;
}

std::string date8() {
  std::string date, time;
  clock_strings(date, time);
  return date.substr(6, 4) + date.substr(3, 2) + date.substr(0, 2);
}

class Cgm : public zbt::Fixture {
 protected:
  Bytes session(void (*draw)(), const char* file = "t.cgm") {
    metafl("CGM");
    setfil(file);
    zorini();
    if (draw) draw();
    zorfin();
    return zbt::read_file(zg.cplotfl.str());
  }
  static std::vector<zbt::CgmElement> elements(const Bytes& b) {
    const auto f = zbt::parse_cgm(b);
    EXPECT_EQ(f.error, "") << dump(b);
    return f.elements;
  }
  static std::vector<std::vector<int>> polylines(const Bytes& b) {
    std::vector<std::vector<int>> out;
    for (const auto& e : elements(b))
      if (zbt::is(e, 4, 1)) {
        out.emplace_back();
        for (std::size_t i = 0; i < e.par.size(); i += 2) out.back().push_back(e.s16(i));
      }
    return out;
  }
};

// The whole file of a small session, byte for byte: head, a colour, a polyline, a second
// picture, the end and the zero bytes up to the record's 80.
TEST_F(Cgm, FileToTheByte) {
  const Bytes file = session([] {
    xjdraw(100, 200, 3);
    xjdraw(300, 400, 2);
    qqsclr(0x010000FF);   // red: the open polyline goes out first
    newpag();
    xjdraw(2969, 0, 2);
  });
  const std::string desc = "\"ProfileId:CALS\",\"ProfileEd:1.0\",\"Source:ZORBEL 9.0\",\"Date:" + date8() +
                           "\",\"ColourClass:colour\"";
  ASSERT_EQ(desc.size(), 89u);
  const Bytes picture1 = hex("00 7F") + str_par("Picture 1") + hex("20 42 00 01  20 C8 0000 0000 1732 1066") +
                         hex("20 E4 FF FF FF 00  00 80");
  const Bytes picture2 = hex("00 7F") + str_par("Picture 2") + hex("20 42 00 01  20 C8 0000 0000 1732 1066") +
                         hex("20 E4 FF FF FF 00  00 80");
  Bytes want = hex("00 3F") + str_par("t.cgm") + hex("10 22 00 01") + hex("10 5F") + str_par(desc) +
               hex("11 66 00 01 FF FF 00 01") + picture1;
  want += hex("50 83 00 00 00 00");                         // foreground of resall: black
  want += hex("40 3F 00 08  00C8 0ED6  0258 0D46");         // (200, 3798) to (600, 3398)
  want += hex("50 83 FF 00 00 00");                         // red
  want += hex("00 A0") + picture2;
  want += hex("40 3F 00 08  0258 0D46  1732 1066");         // from the kept point
  want += hex("00 A0 00 40");
  ASSERT_EQ(file.size() % 80, 0u);
  ASSERT_GE(file.size(), want.size());
  EXPECT_EQ(dump(file.substr(0, want.size())), dump(want));
  EXPECT_EQ(file.substr(want.size()), Bytes(file.size() - want.size(), '\0'));
  EXPECT_EQ(zg.ncgmpic, 2);
}

TEST_F(Cgm, WebCgmHeadHasScalingMode) {
  cgmver(4);
  const auto els = elements(session(nullptr));
  ASSERT_GE(els.size(), 6u);
  EXPECT_EQ(els[1].u16(0), 4);
  EXPECT_EQ(els[2].str(), "\"ProfileId:WebCGM\",\"ProfileEd:1.0\",\"Source:ZORBEL 9.0\",\"Date:" + date8() +
                              "\",\"ColourClass:colour\"");
  ASSERT_TRUE(zbt::is(els[5], 2, 1));
  EXPECT_EQ(els[5].par, (std::vector<std::uint8_t>{0x00, 0x01, 0x3D, 0x4C, 0xCC, 0xC8}));
  // Version 1 has none.
  cgmver(1);
  for (const auto& e : elements(session(nullptr))) EXPECT_FALSE(zbt::is(e, 2, 1));
}

TEST_F(Cgm, EmptyPagesAndBackgrounds) {
  cgmbgd(0.0f, 0.5f, 1.0f);
  cgmpic("Map");
  const auto els = elements(session([] { newpag(); }));
  std::vector<std::string> seq;
  for (const auto& e : els) {
    seq.push_back(std::to_string(e.cls) + "/" + std::to_string(e.id));
    if (zbt::is(e, 0, 3)) EXPECT_EQ(e.str(), "Map");
    if (zbt::is(e, 2, 7)) EXPECT_EQ(e.par, (std::vector<std::uint8_t>{0, 128, 255, 0}));
  }
  // Picture 1: name, colour mode, extent, background, body, the colour of resall, end;
  // picture 2 ends right after its body begins.
  EXPECT_EQ(seq, (std::vector<std::string>{"0/1", "1/1", "1/2", "1/11", "0/3", "2/2", "2/6", "2/7", "0/4",
                                           "5/4", "0/5", "0/3", "2/2", "2/6", "2/7", "0/4", "0/5", "0/2"}));
}

TEST_F(Cgm, DefaultBackgroundIsWhiteInEveryPicture) {
  const auto els = elements(session([] { newpag(); newpag(); }));
  int n = 0;
  for (const auto& e : els)
    if (zbt::is(e, 2, 7)) {
      EXPECT_EQ(e.par, (std::vector<std::uint8_t>{255, 255, 255, 0}));
      ++n;
    }
  EXPECT_EQ(n, 3);
}

TEST_F(Cgm, LongLineIsSplitIntoListsOfFifty) {
  const auto pl = polylines(session([] {
    xjdraw(0, 0, 3);
    for (int i = 1; i < 120; ++i) xjdraw(float(i), float(i % 7), 2);
  }));
  ASSERT_EQ(pl.size(), 3u);
  EXPECT_EQ(pl[0].size(), 100u);
  EXPECT_EQ(pl[1].size(), 100u);
  EXPECT_EQ(pl[2].size(), 44u);
  // Each list starts at the last point of the one before.
  EXPECT_EQ(pl[1][0], pl[0][98]);
  EXPECT_EQ(pl[1][1], pl[0][99]);
  EXPECT_EQ(pl[2][0], pl[1][98]);
  EXPECT_EQ(pl[2][43], 2 * (2099 - 119 % 7));
}

TEST_F(Cgm, MovesColoursAndKeptPoint) {
  const auto pl = polylines(session([] {
    xjdraw(10, 2099, 3);
    xjdraw(20, 2099, 3);      // a move after a move: a list of one point
    xjdraw(30, 2089, 2);
    qqsclr(0x0100FF00);       // flushes; the draw after it repeats the kept point
    xjdraw(40, 2079, 2);
  }));
  EXPECT_EQ(pl, (std::vector<std::vector<int>>{{20, 0}, {40, 0, 60, 20}, {60, 20, 80, 40}}));
}

TEST_F(Cgm, TurnedPageSwapsTheAxes) {
  pagmod("MOVI");
  const Bytes file = session([] {
    xjdraw(100, 200, 3);
    xjdraw(300, 200, 2);
  });
  for (const auto& e : elements(file))
    if (zbt::is(e, 2, 6)) EXPECT_EQ(std::vector<int>({e.u16(4), e.u16(6)}), std::vector<int>({4198, 5938}));
  EXPECT_EQ(polylines(file), (std::vector<std::vector<int>>{{400, 200, 400, 600}}));
}

TEST_F(Cgm, StringsKeepElementsEven) {
  struct Case {
    std::string name;
    std::size_t par_len;   // parameter bytes the length word counts
  };
  const Case cases[] = {{"", 1}, {"a", 2}, {"ab", 3}, {"Picture", 8}, {std::string(254, 'x'), 255},
                        {std::string(255, 'y'), 258}, {std::string(256, 'z'), 259}};
  for (const auto& c : cases) {
    cgmpic(c.name);
    const Bytes file = session(nullptr, "even.cgm");
    const auto els = elements(file);
    ASSERT_GE(els.size(), 5u);
    EXPECT_EQ(els[0].str(), "even.cgm");
    EXPECT_EQ(els[4].str(), c.name) << c.name.size();
    EXPECT_EQ(els[4].par.size(), c.par_len) << c.name.size();
    // The pad byte follows the name exactly when its count is even.
    const std::size_t at = file.find("even.cgm");
    EXPECT_EQ(file.substr(at - 3, 2), hex("00 09"));
    EXPECT_EQ(file.substr(at + 8, 2), hex("00 10"));
    std::remove("even.cgm");
  }
}

TEST_F(Cgm, SettingsAndTheirWarnings) {
  struct Case {
    const char* what;
    void (*call)();
    const char* warning;
  };
  const Case cases[] = {
      {"version 2", [] { cgmver(2); }, " <<<< Warning   2: Incorrect parameter in CGMVER!   (   2)"},
      {"version -1", [] { cgmver(-1); }, " <<<< Warning   2: Incorrect parameter in CGMVER!   (  -1)"},
      {"red above 1", [] { cgmbgd(1.01f, 0.0f, 0.0f); }, " <<<< Warning   2: Incorrect parameter in CGMBGD!"},
      {"blue below 0", [] { cgmbgd(0.0f, 0.0f, -0.01f); }, " <<<< Warning   2: Incorrect parameter in CGMBGD!"},
      {"green NaN", [] { cgmbgd(0.0f, std::numeric_limits<float>::quiet_NaN(), 0.0f); },
       " <<<< Warning   2: Incorrect parameter in CGMBGD!"},
  };
  for (const auto& c : cases) {
    Zorglb before = zg;
    c.call();
    EXPECT_EQ(take_lines(), std::vector<std::string>{c.warning}) << c.what;
    EXPECT_EQ(zg, zbt::with_warning_fields(before)) << c.what;
  }
  cgmbgd(1.0f, 0.2f, 0.0f);
  EXPECT_EQ(std::vector<int>({zg.icgmr, zg.icgmg, zg.icgmb, zg.icgmbg}), std::vector<int>({255, 51, 0, 1}));
  cgmver(4);
  EXPECT_EQ(zg.icgmver, 4);
  // cgmver belongs to level 0.
  metafl("CGM");
  zorini();
  take_lines();
  Zorglb before = zg;
  cgmver(1);
  EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Warning   3: Incorrect level in CGMVER!   (   1)"});
  EXPECT_EQ(zg, zbt::with_warning_fields(before));
  zorfin();
}

TEST_F(Cgm, WordsReadBackAndTheEndStops) {
  const Bytes file = session([] {
    xjdraw(0, 0, 3);
    for (int i = 1; i < 60; ++i) xjdraw(float(10 * i), 5, 2);
  });
  ASSERT_TRUE(lun_open(21, zg.cplotfl.str(), "rb"));
  int first = 1;
  std::int16_t w = 0;
  // Every word of the file, across the record boundaries.
  for (std::size_t i = 0; i < file.size(); i += 2) {
    gbyte2(21, w, first);
    ASSERT_EQ(std::uint16_t(w), (std::uint8_t(file[i]) << 8 | std::uint8_t(file[i + 1]))) << i;
    EXPECT_EQ(first, 0);
  }
  first = 1;
  gbyte2(21, w, first);
  EXPECT_EQ(std::uint16_t(w), 0x003F);
  lun_close(21);
  const std::string name = zg.cplotfl.str();
  EXPECT_EXIT(
      {
        capture_stdout(nullptr);
        lun_open(21, name, "rb");
        int f = 1;
        std::int16_t v;
        for (std::size_t i = 0; i <= file.size(); i += 2) gbyte2(21, v, f);
      },
      ::testing::ExitedWithCode(1), "");
}

TEST_F(Cgm, BadInputStaysInTheFile) {
  // Without a session the bytes go nowhere.
  inicgm(1);
  drwcgm(5, 5, 2);
  qqcgm1(std::string(40000, 'q'));
  drwcgm(0, 0, 999);
  // Points far beyond the 16 bits, not-a-number and wrong codes: the file stays well formed.
  const Bytes file = session([] {
    drwcgm(1.0e9f, -1.0e9f, 3);
    drwcgm(std::numeric_limits<float>::quiet_NaN(), 5.0f, 2);
    drwcgm(0.0f, 0.0f, 77);
    inicgm(0);
    inicgm(3);
  });
  const auto pl = polylines(file);
  ASSERT_FALSE(pl.empty());
  EXPECT_EQ(pl[0], (std::vector<int>{32767, -32768, 0, 5}));
}

TEST_F(Cgm, HugePageGivesWarning39) {
  metafl("CGM");
  setfil("huge.cgm");
  zg.fpagx = 20000.0f;   // a page of 2 m
  zorini();
  EXPECT_EQ(take_lines()[0], " <<<< Warning  39: Too many pages for CGM-File (max. length * 327 cm) in ZORINI!");
  zorfin();
  EXPECT_EQ(zbt::parse_cgm(zbt::read_file("huge.cgm")).error, "");
}

}  // namespace
