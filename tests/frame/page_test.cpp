// Pages, units and the library's own files: every page keyword, own page sizes, units and
// the defaults that follow from them, the level-0 setters and their warnings, the page
// frame, the installation directory, the usage log and files opened for reading.
#include <cstdlib>
#include <limits>
#include <regex>

#include "draw/draw.h"
#include "frame/page.h"
#include "support/harness.h"

using namespace zb;

namespace {

class Page : public zbt::Fixture {
 protected:
  void SetUp() override {
    zbt::Fixture::SetUp();
    const char* l = std::getenv("LOGNAME");
    logname = l ? l : "";
  }
  void TearDown() override {
    unsetenv("ZORBEL");
    if (logname.empty()) unsetenv("LOGNAME");
    else setenv("LOGNAME", logname.c_str(), 1);
    zbt::Fixture::TearDown();
  }
  std::string logname;
  void session() {
    zorini();
    take_text();
  }
  void end() {
    zorfin();
    take_text();
  }
};

TEST_F(Page, EveryPageKeywordInBothOrientations) {
  struct Case { const char* key; int nlong, nshort; };
  const Case cases[] = {
      {"DA4", 2969, 2099}, {"DA3", 4199, 2969},  {"DA2", 5939, 4199}, {"DA1", 8409, 5939},
      {"DA0", 11889, 8409}, {"HP4", 2716, 1899}, {"HP3", 3989, 2716}, {"HP2", 5339, 3359},
      {"HP1", 7569, 5339}, {"KY4", 2869, 1999},  {"PS4", 2799, 1949}, {"USA", 2789, 2159},
      {"USB", 4319, 2789}, {"USC", 5589, 4319},  {"USD", 8639, 5589}, {"USE", 11179, 8639},
  };
  for (const auto& c : cases) {
    for (const char* o : {"L", "P", "p", "l"}) {
      std::string key = std::string(c.key) + o;
      if (o[0] == 'p') key[0] = char(key[0] + 32);   // lower case works as well
      setpag(key);
      EXPECT_EQ(take_text(), "") << key;
      session();
      const bool portrait = o[0] == 'P' || o[0] == 'p';
      int nx = 0, ny = 0;
      getpag(nx, ny);
      EXPECT_EQ(nx, (portrait ? c.nshort : c.nlong) + 1) << key;
      EXPECT_EQ(ny, (portrait ? c.nlong : c.nshort) + 1) << key;
      EXPECT_EQ(zg.cpagfmt.view(), std::string(c.key) + (portrait ? "P" : "L")) << key;
      end();
    }
  }
}

TEST_F(Page, UnknownPageKeywordsWarnAndKeepThePage) {
  setpag("USBP");
  for (const char* key : {"DA5L", "DA4", "A4", "DA4X", "", "da4 p"}) {
    const Zorglb before = zg;
    setpag(key);
    EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Warning   2: Incorrect parameter in SETPAG!   (" +
                                                     std::string(key) + ")"}) << key;
    EXPECT_EQ(zg, zbt::with_warning_fields(before)) << key;
  }
  EXPECT_EQ(zg.cpagfmt.view(), "USBP");
}

TEST_F(Page, SetpagChoosesTheMetafileUnlessAnOutputWasChosen) {
  setpag("DA3L");
  EXPECT_EQ(zg.idev, 201);
  EXPECT_EQ(zg.cfmt.view(), "ZMET");
  metafl("POST");
  EXPECT_EQ(zg.idev, 501);
  setpag("DA4P");
  EXPECT_EQ(zg.idev, 501);
  EXPECT_EQ(zg.cfmt.view(), "POST");
}

TEST_F(Page, OwnPageSizesCountPoints) {
  struct Case { const char* unit; int nx, ny; };
  for (const Case& c : {Case{"CM", 3000, 2000}, Case{"INCH", 1000, 800}, Case{"TWIP", 20000, 9000}, Case{"CM", 2, 2}}) {
    units(c.unit);
    page(c.nx, c.ny);
    EXPECT_EQ(zg.cpagfmt.view(), "PAGE");
    session();
    int nx = 0, ny = 0;
    getpag(nx, ny);
    EXPECT_EQ(nx, c.nx) << c.unit;
    EXPECT_EQ(ny, c.ny) << c.unit;
    end();
  }
}

TEST_F(Page, BadSizesWarnAndChangeNothing) {
  units("INCH");
  struct Case { const char* line; void (*call)(); };
  const Case cases[] = {
      {" <<<< Warning   2: Incorrect parameter in PAGE!   (   0)", [] { page(0, 100); }},
      {" <<<< Warning   2: Incorrect parameter in PAGE!   (  -3)", [] { page(100, -3); }},
      {" <<<< Warning   2: Incorrect parameter in PAGE!   (   1)", [] { page(1, 100); }},
      {" <<<< Warning   2: Incorrect parameter in PAGE!   (2000000000)", [] { page(2000000000, 100); }},
      {" <<<< Warning   2: Incorrect parameter in HWPAGE!   (   0)", [] { hwpage(0, 100); }},
      {" <<<< Warning   2: Incorrect parameter in HWPAGE!   (-100)", [] { hwpage(100, -100); }},
      {" <<<< Warning   2: Incorrect parameter in HWPAGE!   (2147483647)", [] { hwpage(100, 2147483647); }},
      {" <<<< Warning   2: Incorrect parameter in HWORIG!   (-2147483648)", [] { hworig(std::numeric_limits<int>::min(), 0); }},
      {" <<<< Warning   2: Incorrect parameter in SCLFAC!", [] { sclfac(0.0f); }},
      {" <<<< Warning   2: Incorrect parameter in SCLFAC!", [] { sclfac(-1.5f); }},
      {" <<<< Warning   2: Incorrect parameter in SCLFAC!", [] { sclfac(std::numeric_limits<float>::quiet_NaN()); }},
      {" <<<< Warning   2: Incorrect parameter in SCLFAC!", [] { sclfac(std::numeric_limits<float>::infinity()); }},
      {" <<<< Warning   2: Incorrect parameter in UNITS!   (MM)", [] { units("MM"); }},
      {" <<<< Warning   2: Incorrect parameter in PAGMOD!   (TURN)", [] { pagmod("TURN"); }},
      {" <<<< Warning   2: Incorrect parameter in SCLMOD!   (UP)", [] { sclmod("UP"); }},
      {" <<<< Warning   2: Incorrect parameter in SCRMOD!   (BLACK)", [] { scrmod("BLACK"); }},
  };
  for (const auto& c : cases) {
    const Zorglb before = zg;
    c.call();
    EXPECT_EQ(take_lines(), std::vector<std::string>{c.line});
    EXPECT_EQ(zg, zbt::with_warning_fields(before)) << c.line;
  }
}

TEST_F(Page, LevelZeroSettersRefuseAnOpenSession) {
  session();
  for (auto call : {+[] { setpag("DA3L"); }, +[] { page(100, 100); }, +[] { units("INCH"); },
                    +[] { sclfac(2.0f); }, +[] { hwpage(10, 10); }, +[] { pagmod("NONE"); }}) {
    const Zorglb before = zg;
    call();
    const auto lines = take_lines();
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_TRUE(lines[0].find("Incorrect level") != std::string::npos) << lines[0];
    EXPECT_EQ(zg, zbt::with_warning_fields(before)) << lines[0];
  }
  end();
  const Zorglb before = zg;
  pagorg("BOTT");   // only within a session
  EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Warning   3: Incorrect level in PAGORG!   (   0)"});
  EXPECT_EQ(zg, zbt::with_warning_fields(before));
}

TEST_F(Page, UnitsAndTheDefaultsThatFollow) {
  struct Case { const char* unit; float fac; int nxpag, nypag, nxl0, nyl0, nxa0, nya0, uni300; };
  const Case cases[] = {
      {"CM", 1.0f, 2969, 2099, 1980, 1400, 494, 1799, 300},
      {"INCH", 2.54f, 1169, 826, 780, 551, 194, 708, 118},
      {"POIN", 0.352778f, 8416, 5950, 5611, 3967, 1402, 5100, 850},
      {"TWIP", 0.176389f, 16832, 11900, 11222, 7934, 2805, 10199, 1701},
      {"cm", 1.0f, 2969, 2099, 1980, 1400, 494, 1799, 300},
  };
  for (const auto& c : cases) {
    units(c.unit);
    EXPECT_FLOAT_EQ(zg.unitfac, c.fac) << c.unit;
    session();
    EXPECT_EQ(zg.nxpag, c.nxpag) << c.unit;
    EXPECT_EQ(zg.nypag, c.nypag) << c.unit;
    EXPECT_EQ(zg.nxl0, c.nxl0) << c.unit;
    EXPECT_EQ(zg.nyl0, c.nyl0) << c.unit;
    EXPECT_EQ(zg.nxa0, c.nxa0) << c.unit;
    EXPECT_EQ(zg.nya0, c.nya0) << c.unit;
    EXPECT_EQ(jqquni(300), c.uni300) << c.unit;
    // The clipping window is the whole page in the units.
    EXPECT_EQ(zg.nclpx2, c.nxpag) << c.unit;
    EXPECT_EQ(zg.nclpy2, c.nypag) << c.unit;
    end();
  }
}

TEST_F(Page, KeywordSettersStoreTheirCodes) {
  struct Case { void (*call)(const char*); const int* field; const char* key; int value; };
  const Case cases[] = {
      {[](const char* k) { pagmod(k); }, &zg.ipgmod, "MOVI", 1}, {[](const char* k) { pagmod(k); }, &zg.ipgmod, "LAND", 0},
      {[](const char* k) { pagmod(k); }, &zg.ipgmod, "PORT", 1}, {[](const char* k) { pagmod(k); }, &zg.ipgmod, "NONE", 2},
      {[](const char* k) { pagmod(k); }, &zg.ipgmod, "comi", 0},
      {[](const char* k) { sclmod(k); }, &zg.isclmd, "FULL", 1}, {[](const char* k) { sclmod(k); }, &zg.isclmd, "NONE", 2},
      {[](const char* k) { sclmod(k); }, &zg.isclmd, "DOWN", 0},
      {[](const char* k) { scrmod(k); }, &zg.iscrset, "ERASE", 0}, {[](const char* k) { scrmod(k); }, &zg.iscrset, "NOERASE", 1},
      {[](const char* k) { scrmod(k); }, &zg.iscrset, "REVERS", 2}, {[](const char* k) { scrmod(k); }, &zg.iscrset, "NOREVERS", 3},
      {[](const char* k) { scrmod(k); }, &zg.iscrset, "AUTO", 4},
  };
  for (const auto& c : cases) {
    c.call(c.key);
    EXPECT_EQ(*c.field, c.value) << c.key;
  }
  sclmod("FULL");
  sclfac(0.5f);
  EXPECT_FLOAT_EQ(zg.xsclfac, 0.5f);
  EXPECT_EQ(zg.isclmd, 0);   // sclfac scales down
  units("INCH");
  hwpage(2000, 1500);
  EXPECT_EQ(zg.xpaper, 5080);
  EXPECT_EQ(zg.ypaper, 3810);
  EXPECT_EQ(zg.ihwpag, 1);
  hworig(100, -20);
  EXPECT_EQ(zg.nhworx, 100);
  EXPECT_EQ(zg.nhwory, -20);
  EXPECT_EQ(zg.ihworg, 1);
  EXPECT_EQ(take_text(), "");
}

TEST_F(Page, PageFrameIgnoresOriginAndDashes) {
  metafl("ZMET");
  session();
  origin(100, 100);
  lintyp(2);
  pagera();
  end();
  std::string all;
  for (const auto& l : zbt::read_lines(zg.cplotfl.str())) all += l;
  // Corners as page fractions of 2969, y upward: the top left (0, 0) is (0, 2099 / 2969).
  std::vector<std::string> fields;
  for (std::size_t i = 0; i + 10 <= all.size(); i += 10) fields.push_back(all.substr(i, 10));
  const std::vector<std::string> corners = {" 0.0000000", " 0.7069721", " 3.0000000", " 0.0000000", " 0.0000000",
                                            " 2.0000000", " 1.0000000", " 0.0000000", " 1.0000000", " 0.7069721",
                                            " 0.0000000", " 0.7069721"};
  auto at = std::search(fields.begin(), fields.end(), corners.begin(), corners.end());
  EXPECT_NE(at, fields.end()) << all;
}

TEST_F(Page, PageOriginBottomTurnsPublicY) {
  metafl("ZMET");
  session();
  pagorg("BOTT");
  EXPECT_EQ(zg.ipgorg, 1);
  EXPECT_EQ(jqqyvl(0), 2099);
  EXPECT_EQ(jqqyvl(2099), 0);
  zg.iyflip = 1;   // routines already in plot coordinates are not turned twice
  EXPECT_EQ(jqqyvl(10), 10);
  zg.iyflip = 0;
  pagorg("top");
  EXPECT_EQ(jqqyvl(10), 10);
  end();
}

TEST_F(Page, DataFilesLiveInTheInstallationDirectory) {
  struct Case { int kind; const char* tail; };
  const Case cases[] = {{1, "/map/map1.dat"}, {17, "/map/map17.dat"}, {21, "/map/gshhs_l.b"},
                        {22, "/map/gshhs_i.b"}, {23, "/map/gshhs_h.b"}, {24, "/map/gshhs_f.b"}};
  setenv("ZORBEL", (dir + "/inst").c_str(), 1);
  for (const auto& c : cases) {
    int lun = 0, ierr = 0;
    zg.nrecio = 7;
    sopnfl(c.kind, lun, ierr);
    EXPECT_NE(ierr, 0);
    EXPECT_EQ(lun, 16);
    EXPECT_EQ(zg.nrecio, 0);
    EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Open error: " + dir + "/inst" + c.tail});
  }
  // Once present, the same file opens.
  ASSERT_EQ(zbt::run("mkdir -p inst/map && printf 'abc' > inst/map/map5.dat"), 0);
  int lun = 0, ierr = 0;
  sopnfl(5, lun, ierr);
  EXPECT_EQ(ierr, 0);
  ASSERT_NE(lun_file(16), nullptr);
  char buf[4] = {};
  EXPECT_EQ(std::fread(buf, 1, 3, lun_file(16)), 3u);
  EXPECT_EQ(std::string(buf), "abc");
  lun_close(16);
  // The device list and unknown kinds are silent.
  for (int kind : {19, 20, 0, 26}) {
    sopnfl(kind, lun, ierr);
    EXPECT_NE(ierr, 0) << kind;
  }
  EXPECT_EQ(take_text(), "");
  // The user's map file needs mapfil.
  sopnfl(25, lun, ierr);
  EXPECT_NE(ierr, 0);
  EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Open error: "});
  // The directory is looked up once.
  setenv("ZORBEL", "/elsewhere", 1);
  EXPECT_EQ(data_dir(), dir + "/inst");
}

TEST_F(Page, DefaultInstallationDirectory) {
  for (const char* value : {static_cast<const char*>(nullptr), "", "   "}) {
    zb::reset_process_state();
    if (value) setenv("ZORBEL", value, 1);
    else unsetenv("ZORBEL");
    int lun = 0, ierr = 0;
    sopnfl(3, lun, ierr);
    EXPECT_NE(ierr, 0);
    EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Open error: /usr/local/zorbel/map/map3.dat"});
    EXPECT_EQ(zg.ldatdir, 17);
  }
}

TEST_F(Page, UsageLogOnlyWhereItExists) {
  setenv("ZORBEL", dir.c_str(), 1);
  setenv("LOGNAME", "tester", 1);
  session();
  end();
  EXPECT_FALSE(file_exists(dir + "/zorbel.log"));   // the library never creates it
  EXPECT_EQ(zg.ilogdn, 0);
  ASSERT_EQ(zbt::run("printf 'earlier\\n' > zorbel.log"), 0);
  session();   // writes the line
  end();       // once per process only
  session();
  end();
  const auto lines = zbt::read_lines("zorbel.log");
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[0], "earlier");
  EXPECT_TRUE(std::regex_match(lines[1], std::regex(R"(tester       \d\d\.\d\d\.\d{4}  \d\d:\d\d:\d\d  9\.0  f90)")))
      << lines[1];
}

TEST_F(Page, UserNameAndEnvironment) {
  setenv("LOGNAME", "alice", 1);
  EXPECT_EQ(gusrid(), "alice");
  unsetenv("LOGNAME");
  EXPECT_EQ(gusrid(), " ");   // length at least 1
  setenv("ZB_TEST_VALUE", "x y", 1);
  EXPECT_EQ(qqgetenv("ZB_TEST_VALUE"), "x y");
  EXPECT_EQ(qqgetenv(std::string(200, 'Z')), "");
  unsetenv("ZB_TEST_VALUE");
  EXPECT_EQ(qqgetenv("ZB_TEST_VALUE"), "");
}

TEST_F(Page, FilesOpenedForReadingBack) {
  ASSERT_EQ(zbt::run("printf 'line one\\n' > plot.met"), 0);
  int ierr = -1;
  qqopen(20, "plot.met", 1, ierr);
  EXPECT_EQ(ierr, 0);
  char buf[16] = {};
  ASSERT_NE(std::fgets(buf, sizeof buf, lun_file(20)), nullptr);
  EXPECT_EQ(std::string(buf), "line one\n");
  lun_close(20);
  qqopen(20, "plot.met", 2, ierr);
  EXPECT_EQ(ierr, 0);
  lun_close(20);
  for (auto c : {std::pair<int, int>{20, 3}, {6, 1}, {15, 1}, {17, 2}}) {
    qqopen(c.first, "plot.met", c.second, ierr);
    EXPECT_NE(ierr, 0) << c.first << " " << c.second;
  }
  qqopen(20, "missing.met", 1, ierr);
  EXPECT_NE(ierr, 0);
}

}  // namespace
