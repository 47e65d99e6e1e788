// Session start and end: file names and versions, the protocol, defaults, reset keywords.
#include <sys/stat.h>
#include <unistd.h>

#include <regex>

#include "support/harness.h"

using namespace zb;

namespace {

class Session : public zbt::Fixture {
 protected:
  void run_session(const char* fmt = nullptr) {
    if (fmt) metafl(fmt);
    zorini();
    zorfin();
  }
};

TEST_F(Session, DefaultOutputIsTheMetafile) {
  run_session();
  EXPECT_TRUE(file_exists("zorbel.met"));
  EXPECT_EQ(zg.cfmt.view(), "ZMET");
  EXPECT_EQ(zg.idev, 201);
}

TEST_F(Session, VersionsNeverOverwrite) {
  run_session("POST");
  run_session();
  run_session();
  EXPECT_EQ(zg.cplotfl.view(), "zorbel_2.psc");
  for (const char* f : {"zorbel.psc", "zorbel_1.psc", "zorbel_2.psc"}) EXPECT_TRUE(file_exists(f)) << f;
  // A gap in the series is filled first.
  std::remove("zorbel_1.psc");
  run_session();
  EXPECT_EQ(zg.cplotfl.view(), "zorbel_1.psc");
}

TEST_F(Session, VersionNamesWithoutExtensionAndDottedFolders) {
  struct Case { std::string given, first, second; };
  mkdir("a.b", 0755);
  const Case cases[] = {
      {"plot", "plot", "plot_1"},
      {"a.b/plot", "a.b/plot", "a.b/plot_1"},
      {"a.b/plot.eps", "a.b/plot.eps", "a.b/plot_1.eps"},
      {"x.y.z", "x.y.z", "x.y_1.z"},
  };
  for (const auto& c : cases) {
    std::string name = c.given;
    EXPECT_TRUE(gfilnn(name));
    EXPECT_EQ(name, c.first);
    std::fclose(std::fopen(name.c_str(), "w"));
    name = c.given;
    gfilnn(name);
    EXPECT_EQ(name, c.second);
  }
}

TEST_F(Session, SetfilNameIsVersionedEverySession) {
  metafl("POST");
  setfil("mine.ps   ");
  zorini();
  EXPECT_EQ(zg.ifilst, 2);
  zorfin();
  zorini();
  zorfin();
  EXPECT_EQ(zg.cplotfl.view(), "mine_1.ps");
  EXPECT_EQ(getfil(), "mine_1.ps");
}

TEST_F(Session, DeleteModeReplacesTheFile) {
  std::FILE* f = std::fopen("zorbel.psc", "w");
  std::fputs("old", f);
  std::fclose(f);
  filmod("DELE");
  run_session("POST");
  EXPECT_EQ(zg.cplotfl.view(), "zorbel.psc");
  EXPECT_FALSE(file_exists("zorbel_1.psc"));
  EXPECT_NE(zbt::read_file("zorbel.psc").substr(0, 3), "old");
}

TEST_F(Session, BreakModeStopsOnAnExistingFile) {
  std::fclose(std::fopen("zorbel.psc", "w"));
  filmod("BREA");
  metafl("POST");
  capture_stdout(nullptr);
  EXPECT_EXIT(
      {
        dup2(2, 1);   // the stop message goes to standard output; the death test reads stderr
        zorini();
      },
      ::testing::ExitedWithCode(1), "     <<<< STOP in ZORINI <<<<\n     File: zorbel.psc  exist!");
}

TEST_F(Session, ProtocolLayout) {
  metafl("POST");
  zorini();
  const int vectors = zg.nvect + 1;   // zorfin closes the path: one more call
  warnin(9);
  take_lines();
  zorfin();
  const auto lines = take_lines();
  ASSERT_EQ(lines.size(), 8u);
  const std::string rule = "  " + std::string(66, '<');
  EXPECT_EQ(lines[0], "   ");
  EXPECT_EQ(lines[1], rule);
  EXPECT_EQ(lines[2], "  <<                END  OF  ZORBEL / VERSION 9.0                 <<");
  EXPECT_TRUE(std::regex_match(lines[3], std::regex(R"(  <<  Date    : \d\d\.\d\d\.\d{4}  Time    : \d\d:\d\d:\d\d  Pageformat: DA4L  <<)"))) << lines[3];
  EXPECT_EQ(lines[4], "  <<  Vectors : " + fmt_il(vectors, 10) + "  Warnings: 1         Fileformat: POST  <<");
  EXPECT_EQ(lines[5], "  <<  Metafile: zorbel.psc                                        <<");
  EXPECT_EQ(lines[6], rule);
  EXPECT_EQ(lines[7], "   ");
  for (std::size_t i = 1; i < 7; ++i) EXPECT_EQ(lines[i].size(), 68u) << i;
}

TEST_F(Session, ProtocolOffAndWarningsCountedWhenHidden) {
  metafl("POST");
  zorini();
  errmod("WARN", "OFF");
  warnin(9);
  warnin(9);
  zorfin();
  EXPECT_NE(take_text().find("Warnings: 2 "), std::string::npos);
  zorini();
  errmod("ALL", "OFF");
  zorfin();
  EXPECT_EQ(take_text(), "");
}

TEST_F(Session, SecondZoriniOnlyWarns) {
  metafl("POST");
  zorini();
  take_lines();
  Zorglb before = zg;
  zorini();
  EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Warning   3: Incorrect level in ZORINI!   (   1)"});
  EXPECT_EQ(zg, zbt::with_warning_fields(before));
  zorfin();
  before = zg;
  zorfin();
  EXPECT_EQ(zg, zbt::with_warning_fields(before));
}

TEST_F(Session, PageDefaults) {
  metafl("POST");
  zorini();
  EXPECT_EQ(zg.nxpag, 2969);
  EXPECT_EQ(zg.nypag, 2099);
  EXPECT_EQ(zg.nxl0, 1980);
  EXPECT_EQ(zg.nyl0, 1400);
  EXPECT_EQ(zg.nzl0, 1400);
  EXPECT_EQ(zg.nxa0, 494);
  EXPECT_EQ(zg.nya0, 1799);
  EXPECT_EQ(zg.nwimg, 853);
  EXPECT_EQ(zg.nhimg, 603);
  EXPECT_EQ(zg.irevscr, 0);
  int nx, ny;
  getpag(nx, ny);
  EXPECT_EQ(nx, 2970);
  EXPECT_EQ(ny, 2100);
  origin(10, 20);
  getor(nx, ny);
  EXPECT_EQ(nx * 100 + ny, 1020);
  zorfin();
}

TEST_F(Session, ResetKeywords) {
  metafl("POST");
  zorini();
  origin(5, 6);
  reset("ORIGIN");
  EXPECT_EQ(zg.nxorg + zg.nyorg, 0);
  zg.nxa = 7;
  reset("axspos");
  EXPECT_EQ(zg.nxa, zg.nxa0);
  zg.nhchar = 99;
  reset("HEIGHT");
  EXPECT_EQ(zg.nhchar, 36);
  take_lines();
  Zorglb before = zg;
  reset("NOPE");
  EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Warning   2: Incorrect parameter in RESET!   (NOPE)"});
  EXPECT_EQ(zg, zbt::with_warning_fields(before));
  // Every keyword of the table is accepted.
  for (const char* k : {"ALL", "GAPC", "WINM", "SHIE", "CLPW", "SETB", "SETE", "CHAB", "MYLA"}) {
    const int n = zg.nwarn;
    reset(k);
    EXPECT_EQ(zg.nwarn, n) << k;
  }
  zorfin();
}

TEST_F(Session, SeveralSessionsInOneProcess) {
  for (const char* fmt : {"POST", "EPS", "PSCL", "PS"}) {
    metafl(fmt);
    zorini();
    xjdraw(10, 10, 3);
    xjdraw(100, 100, 2);
    zorfin();
    EXPECT_EQ(zg.ilevel, 0);
    EXPECT_EQ(zg.ifin, 1);
  }
  for (const char* f : {"zorbel.psc", "zorbel.eps", "zorbel_1.psc", "zorbel.ps"}) EXPECT_TRUE(file_exists(f)) << f;
}

}  // namespace
