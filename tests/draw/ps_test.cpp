// The PostScript and EPS driver: the file head, path batching, records, boxes, colours,
// pages and backgrounds.
#include <regex>
#include <sstream>

#include "frame/page.h"
#include "support/harness.h"

using namespace zb;

namespace {

class PostScript : public zbt::Fixture {
 protected:
  std::vector<std::string> session(const char* fmt, void (*draw)() = nullptr, const char* scr = "AUTO") {
    metafl(fmt);
    scrmod(scr);
    zorini();
    if (draw) draw();
    zorfin();
    return zbt::read_lines(zg.cplotfl.str());
  }
  static std::vector<std::string> body(const std::vector<std::string>& lines, std::size_t head) {
    return {lines.begin() + long(head), lines.end()};
  }
};

constexpr std::size_t kHeadLines = 86;

TEST_F(PostScript, HeadLineByLine) {
  const auto lines = session("POST");
  const auto gold = zbt::read_lines(ZB_SOURCE_DIR "/tests/data/ps_head_post.txt");
  ASSERT_EQ(gold.size(), kHeadLines);
  ASSERT_GE(lines.size(), kHeadLines);
  for (std::size_t i = 0; i < kHeadLines; ++i) {
    if (i == 3) {
      EXPECT_TRUE(std::regex_match(lines[i], std::regex(R"(%%CreationDate: \d\d\.\d\d\.\d{4}, \d\d:\d\d:\d\d)"))) << lines[i];
      continue;
    }
    EXPECT_EQ(lines[i], gold[i]) << "line " << i + 1;
  }
  // resall sets the foreground colour: black on POST.
  EXPECT_EQ(body(lines, kHeadLines), std::vector<std::string>{"0 0 0 f showpage "});
}

TEST_F(PostScript, EpsAndBackgrounds) {
  struct Case { const char* fmt; const char* scr; bool background; const char* first; };
  const Case cases[] = {
      {"POST", "AUTO", false, "%!PS-Adobe-2.0"},  {"POST", "ERASE", false, "%!PS-Adobe-2.0"},
      {"EPS", "AUTO", false, "%!PS-Adobe-3.0 EPSF-3.0"}, {"EPS", "ERAS", true, "%!PS-Adobe-3.0 EPSF-3.0"},
      {"PSCL", "AUTO", true, "%!PS-Adobe-2.0"},  {"PSCL", "REVERS", false, "%!PS-Adobe-2.0"},
      {"PS", "auto", false, "%!PS-Adobe-2.0"},    {"PS", "NORE", true, "%!PS-Adobe-2.0"},
  };
  for (const auto& c : cases) {
    const auto lines = session(c.fmt, nullptr, c.scr);
    EXPECT_EQ(lines[0], c.first) << c.fmt;
    const std::string bg = "    0     0  3898  5514 0 0 0 e ";
    EXPECT_EQ(lines[kHeadLines] == bg, c.background) << c.fmt << " scrmod " << c.scr << ": " << lines[kHeadLines];
  }
}

TEST_F(PostScript, PathsOfFiftyPoints) {
  // 51 points: one path of 50, a second from point 50 to 51.
  const auto lines = session("POST", [] {
    xjdraw(0, 0, 3);
    for (int i = 1; i <= 50; ++i) xjdraw(float(i), float(2 * i), 2);
  });
  std::string text;
  for (const auto& l : body(lines, kHeadLines)) {
    EXPECT_LE(l.size(), 80u);
    text += l;
  }
  // Paths as lists of "x y u" and "x y d" tokens, ended by "p".
  std::istringstream in(text);
  std::vector<std::vector<std::string>> paths;
  std::vector<std::string> tok;
  for (std::string t; in >> t;) {
    if (t == "u") paths.push_back({tok[tok.size() - 2] + " " + tok.back()});
    if (t == "d") paths.back().push_back(tok[tok.size() - 2] + " " + tok.back());
    tok.push_back(t);
  }
  ASSERT_EQ(paths.size(), 2u);
  EXPECT_EQ(paths[0].size(), 50u);
  EXPECT_EQ(paths[1].size(), 2u);
  // Turned page: device x is plot y times devscl, device y plot x times devscl.
  EXPECT_EQ(paths[0][0], "0 0");
  EXPECT_EQ(paths[0][1], "4 2");
  EXPECT_EQ(paths[1][0], paths[0][49]);
  EXPECT_EQ(paths[1][0], "182 91");
  EXPECT_EQ(paths[1][1], "186 93");
}

TEST_F(PostScript, MoveAfterMoveIsAOnePointPath) {
  const auto lines = session("POST", [] {
    xjdraw(100, 100, 3);
    xjdraw(200, 200, 3);
    xjdraw(300, 400, 2);
  });
  EXPECT_EQ(body(lines, kHeadLines), (std::vector<std::string>{"0 0 0 f 186 186 u p 371 371 u 743 557 d p showpage "}));
}

TEST_F(PostScript, UnturnedPageFlipsY) {
  metafl("POST");
  zg.ipgmod = 2;
  zorini();
  xjdraw(100, 0, 3);
  xjdraw(100, 2099, 2);
  zorfin();
  const auto lines = zbt::read_lines(zg.cplotfl.str());
  EXPECT_EQ(lines[2], "%%Creator: ZORBEL  9.0 P");
  EXPECT_EQ(lines.back(), "0 0 0 f 186 3898 u 186 0 d p showpage ");
}

TEST_F(PostScript, RecordsNeverSplitTokens) {
  metafl("POST");
  zorini();
  std::string tok(79, 'x');
  tok += ' ';
  qpsbuf("ab ");
  qpsbuf(tok);   // exactly 80: a record of its own
  qpsbuf("cd   ef ");
  qpsbuf(nullptr, -1);
  zorfin();
  const auto lines = body(zbt::read_lines(zg.cplotfl.str()), kHeadLines);
  EXPECT_EQ(lines, (std::vector<std::string>{"0 0 0 f ab ", tok, "cd ef ", "showpage "}));
}

TEST_F(PostScript, BoxColourAndPages) {
  const auto lines = session("PSCL", [] {
    qqsclr(0x01FF0000 | 0x000080);   // explicit r=128, g=0, b=255
    dbox(100, 200, 300, 400, 0x0100FF00);
    newpag();
    xjdraw(10, 10, 3);
    xjdraw(20, 20, 2);
  });
  // Tokens are packed by blanks: the column layout of the numbers does not survive.
  EXPECT_EQ(body(lines, kHeadLines + 1), (std::vector<std::string>{
                                             "255 255 255 f 128 0 255 f 371 186 743 557 0 255 0 e copypage ",
                                             "%%Page: 1        2 ",
                                             "0 0 3898 5514 0 0 0 e 128 0 255 f 19 19 u 37 37 d p showpage ",
                                         }));
}

TEST_F(PostScript, BoxOutsideThePageDrawsNothing) {
  const auto lines = session("POST", [] { dbox(3000, 100, 3100, 200, 0); });
  EXPECT_EQ(body(lines, kHeadLines), std::vector<std::string>{"0 0 0 f showpage "});
}

TEST_F(PostScript, GhostscriptReadsEveryVariant) {
  for (const char* fmt : {"POST", "PSCL", "EPS", "PS"}) {
    session(fmt, [] {
      xjdraw(10, 10, 3);
      for (int i = 0; i < 120; ++i) xjdraw(float(10 + 20 * i), float(10 + 15 * i), 2);
      dbox(500, 500, 900, 900, 0x010000FF);
      newpag();
      xjdraw(10, 10, 3);
      xjdraw(2000, 10, 2);
    });
    std::string log;
    EXPECT_EQ(zbt::run("gs -q -dSAFER -dNOPAUSE -dBATCH -sDEVICE=nullpage " + zg.cplotfl.str(), &log), 0) << fmt << log;
    EXPECT_EQ(log.find("Error"), std::string::npos) << fmt << log;
  }
}

}  // namespace
