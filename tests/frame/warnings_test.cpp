// Warning lines, the warning channel and its settings.
#include "support/harness.h"

using namespace zb;

namespace {

class Warnings : public zbt::Fixture {
 protected:
  void SetUp() override {
    Fixture::SetUp();
    jqqlev(0, 3, "CURVE");
  }
};

TEST_F(Warnings, LinesToTheLetter) {
  warnin(30);
  warni1(11, 1);
  warnc1(2, "XYZ   ");
  warnin(53);
  EXPECT_EQ(take_lines(), (std::vector<std::string>{
                              " <<<< Warning  30: Incorrect number of points in CURVE!",
                              " <<<< Warning  11: Axis length < 2 in CURVE!   (   1)",
                              " <<<< Warning   2: Incorrect parameter in CURVE!   (XYZ)",
                              " <<<< Warning  53: Not enough memory in CURVE!",
                          }));
  EXPECT_EQ(zg.nwarn, 4);
}

TEST_F(Warnings, EveryCodeHasItsText) {
  const std::pair<int, const char*> some[] = {
      {1, "Negative parameter"}, {39, "Too many pages for CGM-File (max. length * 327 cm)"},
      {57, "Control characters must be different"}, {58, "Array is out of screen"}};
  for (auto [code, text] : some) {
    warnin(code);
    EXPECT_EQ(zg.cerrmsg.view(), text);
  }
  for (int code = 1; code <= 58; ++code) {
    warnin(code);
    EXPECT_FALSE(zg.cerrmsg.view().empty()) << code;
  }
}

TEST_F(Warnings, UnknownCodeAndOwnText) {
  warnin(60);
  EXPECT_EQ(take_lines(), (std::vector<std::string>{" <<<< Incorrect parameter in ERRMES!  60",
                                                    " <<<< Warning  60:  in CURVE!"}));
  qqserr("Bad output device");
  warnin(101);
  EXPECT_EQ(take_lines(), std::vector<std::string>{" <<<< Warning 101: Bad output device in CURVE!"});
  EXPECT_EQ(zg.nwarn, 2);
}

TEST_F(Warnings, SilentChannelStillCounts) {
  zg.ilevel = 1;
  unit(0);
  warnin(2);
  EXPECT_EQ(zg.nwarn, 1);
  EXPECT_EQ(take_text(), "");
  errmod("WARN", "ON");
  zg.lunerr = 6;
  errmod("WARN", "OFF");
  warnin(2);
  EXPECT_EQ(take_text(), "");
  EXPECT_EQ(zg.nwarn, 2);
}

TEST_F(Warnings, UnitRefusesPlotChannels) {
  zg.ilevel = 1;
  for (int bad : {15, 16, -1, 1001}) {
    unit(bad);
    EXPECT_EQ(zg.lunerr, 6) << bad;
  }
  EXPECT_EQ(take_lines().back(), " <<<< Warning   2: Incorrect parameter in UNIT!   (1001)");
  unit(17);
  EXPECT_EQ(zg.lunerr, 17);
  int nu = 0;
  getuni(nu);
  EXPECT_EQ(nu, 17);
}

TEST_F(Warnings, CallerChannelWritesItsOwnFile) {
  zg.ilevel = 1;
  unit(23);
  warnin(9);
  lun_close(23);
  EXPECT_EQ(zbt::read_lines("fort.23"), std::vector<std::string>{" <<<< Warning   9: Step equal zero in UNIT!"});
}

TEST_F(Warnings, ErrmodKeywords) {
  zg.ilevel = 1;
  errmod("ALL", "OFF");
  EXPECT_EQ(zg.iwarn + zg.ichek + zg.iprot, 0);
  errmod("CHECK", "ON");
  EXPECT_EQ(zg.ichek, 1);
  errmod("PROT", "on");
  EXPECT_EQ(zg.iprot, 1);
  Zorglb before = zg;
  errmod("NONE", "OFF");   // either keyword wrong: nothing set
  errmod("PROT", "MAYBE");
  EXPECT_EQ(zg, zbt::with_warning_fields(before));
}

TEST_F(Warnings, LevelZeroSettingsAreRefusedInASession) {
  metafl("POST");
  zorini();
  take_lines();
  Zorglb before = zg;
  errdev("FILE");
  errfil("x.err");
  lsechk("ON");
  EXPECT_EQ(take_lines().size(), 3u);
  EXPECT_EQ(zg, zbt::with_warning_fields(before));
  zorfin();
}

TEST_F(Warnings, ErrorFileWhenChosen) {
  errdev("FILE");
  errfil("mine.err");
  metafl("POST");
  zorini();
  EXPECT_EQ(zg.lunerr, 17);
  unit(15);
  EXPECT_EQ(zg.ierrop, 1);
  zorfin();
  EXPECT_EQ(zg.ierrop, 0);
  EXPECT_EQ(zg.lunerr, 6);
  EXPECT_EQ(zbt::read_lines("mine.err"), std::vector<std::string>{" <<<< Warning   2: Incorrect parameter in UNIT!   (  15)"});
  const auto lines = take_lines();
  ASSERT_EQ(lines.size(), 9u);
  EXPECT_EQ(lines[5], "  <<  Metafile: zorbel.psc                                        <<");
  EXPECT_EQ(lines[6], "  <<  Err-file: mine.err                                          <<");
  // The next session opens a new version of the error file.
  zorini();
  warnin(9);
  zorfin();
  EXPECT_TRUE(file_exists("mine_1.err"));
}

}  // namespace
