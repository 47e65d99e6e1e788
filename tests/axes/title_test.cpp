// Titles: placement of each line above and below the axis system, justification, height,
// the shift of vkytit, underlines, blank lines, the room centring gives them; the page
// header's line and corners; warnings and reset keywords.
#include <algorithm>
#include <functional>
#include <limits>
#include <regex>

#include "axes_support.h"
#include "draw/line_support.h"
#include "draw/prims_support.h"
#include "text/text.h"

using namespace zb;

namespace {

class Titles : public zbt::AxesTest {
 protected:
  // The axis system at (500, 1500), 1001 by 801, nothing drawn; titles of height 36 with
  // line spacing 1.5.
  void axes() {
    place();
    nograf();
    graf(0, 10, 0, 2, 0, 8, 0, 2);
    placed.clear();
  }
};

TEST_F(Titles, LinesStandAboveWithLineFourLowest) {
  axes();
  titlin("First", 1);
  titlin("Fourth line", 4);
  title();
  const int l1 = nlmess("First"), l4 = nlmess("Fourth line");
  // Top of the system at 1500 - 801 = 699; line 4 three heights above it, line 1 three
  // line spacings of 54 higher still. A blank line takes no place of its own.
  EXPECT_EQ(placed, (std::vector<zbt::Placed>{{"First", 500 + (1001 - l1) / 2, 699 - 162 - 108, 0, 36},
                                              {"Fourth line", 500 + (1001 - l4) / 2, 699 - 108, 0, 36}}));
}

TEST_F(Titles, JustificationPositionHeightAndShift) {
  axes();
  titlin("Title", 2);
  const int l = nlmess("Title");
  struct Case {
    std::function<void()> set;
    zbt::Placed want;
  };
  const Case cases[] = {
      {[] { titjus("LEFT"); }, {"Title", 500, 699 - 108 - 108, 0, 36}},
      {[] { titjus("RIGH"); }, {"Title", 500 + 1001 - l, 699 - 108 - 108, 0, 36}},
      {[] { lfttit(); }, {"Title", 500, 699 - 108 - 108, 0, 36}},
      {[] { titjus("CENT"); }, {"Title", 500 + (1001 - l) / 2, 699 - 108 - 108, 0, 36}},
      // Below: four heights under the system, line 1 highest.
      {[] { titpos("BELO"); }, {"Title", 500 + (1001 - l) / 2, 1500 + 144 + 54, 0, 36}},
      {[] { vkytit(-30); }, {"Title", 500 + (1001 - l) / 2, 1500 + 144 + 54 + 30, 0, 36}},
      {[] { titpos("ABOV"); }, {"Title", 500 + (1001 - l) / 2, 699 + 30 - 108 - 108, 0, 36}},
      {[] { reset("VKYTIT"); }, {"Title", 500 + (1001 - l) / 2, 699 - 108 - 108, 0, 36}},
  };
  for (const auto& c : cases) {
    c.set();
    placed.clear();
    title();
    ASSERT_EQ(placed.size(), 1u);
    EXPECT_EQ(placed[0], c.want);
  }
  int ncen = -1;
  lfttit();
  getcen(ncen);
  EXPECT_EQ(ncen, 1);
  reset("LFTTIT");
  getcen(ncen);
  EXPECT_EQ(ncen, 0);
  // htitle: its own height, measured and placed at it; the text height returns.
  htitle(50);
  placed.clear();
  title();
  ASSERT_EQ(placed.size(), 1u);
  const int l50 = nlmess_at("Title", 50);
  EXPECT_EQ(placed[0], (zbt::Placed{"Title", 500 + (1001 - l50) / 2, 699 - 75 - 75 - 150, 0, 50}));
  EXPECT_EQ(zg.nhchar, 36);
  EXPECT_EQ(zg.cproc.view(), "TITLE");
}

TEST_F(Titles, TitleRoomForCentring) {
  EXPECT_EQ(title_room(true), 0);
  titlin("a", 1);
  titlin("b", 3);
  EXPECT_EQ(title_room(true), 108);
  EXPECT_EQ(title_room(false), 0);
  titpos("BELO");
  EXPECT_EQ(title_room(false), 108);
  titpos("ABOV");
  // center() leaves half the room of the titles more above the system.
  const int without = (zg.nypag + zg.nyl) / 2, with = (zg.nypag + zg.nyl + 108) / 2;
  reset("TITL");
  place();
  center();
  nograf();
  graf(0, 10, 0, 2, 0, 8, 0, 2);
  const int y0 = zg.nyorg;
  endgrf();
  titlin("a", 1);
  titlin("b", 3);
  reset("CENT");
  center();
  graf(0, 10, 0, 2, 0, 8, 0, 2);
  EXPECT_EQ(zg.nyorg - y0, with - without);
}

TEST_F(Titles, RejectedCallsAndReset) {
  titlin("keep", 1);
  take_lines();
  struct Case {
    std::function<void()> call;
    std::string line;
  };
  const Case cases[] = {
      {[] { titlin("x", 0); }, " <<<< Warning   2: Incorrect parameter in TITLIN!   (   0)"},
      {[] { titlin("x", 5); }, " <<<< Warning   2: Incorrect parameter in TITLIN!   (   5)"},
      {[] { titlin("x", -5); }, " <<<< Warning   2: Incorrect parameter in TITLIN!   (  -5)"},
      {[] { titlin("x", std::numeric_limits<int>::min()); },
       " <<<< Warning   2: Incorrect parameter in TITLIN!   (-2147483648)"},
      {[] { titjus("MIDD"); }, " <<<< Warning   2: Incorrect parameter in TITJUS!   (MIDD)"},
      {[] { titpos("TOP"); }, " <<<< Warning   2: Incorrect parameter in TITPOS!   (TOP)"},
      {[] { htitle(0); }, " <<<< Warning   2: Incorrect parameter in HTITLE!   (   0)"},
      {[] { title(); }, " <<<< Warning   3: Incorrect level in TITLE!   (   1)"},
  };
  for (const auto& c : cases) {
    const Zorglb before = zg;
    c.call();
    EXPECT_EQ(take_lines(), std::vector<std::string>{c.line});
    EXPECT_EQ(zg, zbt::with_warning_fields(before)) << c.line;
  }
  titlin("under", -2);
  EXPECT_EQ(zg.ctitul.view(), "0100");
  htitle(40);
  reset("TITL");
  reset("HTIT");
  for (const auto& t : zg.ctitle) EXPECT_TRUE(t.view().empty());
  EXPECT_EQ(zg.ctitul.view(), "0000");
  EXPECT_EQ(zg.nhtitl, 0);
}

TEST_F(Titles, PageHeaderLine) {
  const std::regex stamp(R"(\d\d\.\d\d\.\d{4}, \d\d:\d\d:\d\d, ZORBEL 9\.0)");
  const std::string l = page_header_line("Left  ", "Right");
  ASSERT_EQ(l.size(), 4u + 1 + 32 + 1 + 5);
  EXPECT_EQ(l.substr(0, 5), "Left ");
  EXPECT_TRUE(std::regex_match(l.substr(5, 32), stamp)) << l;
  EXPECT_EQ(l.substr(37), " Right");
  // Without a first text the stamp starts at place 2; the second text is cut at 132.
  const std::string a = page_header_line("", std::string(200, 'b'));
  EXPECT_EQ(a.size(), 132u);
  EXPECT_EQ(a.substr(34), std::string(98, 'b'));
  // The first text is cut at 100: no room for the second text from 98 on.
  EXPECT_EQ(page_header_line(std::string(120, 'a'), "zz").size(), 100u + 1 + 32);
  EXPECT_EQ(page_header_line(std::string(98, 'a'), "zz").size(), 98u + 1 + 32);
  const std::string last = page_header_line(std::string(97, 'a'), "zz");
  EXPECT_EQ(last.size(), 132u);
  EXPECT_EQ(last.back(), 'z');
}

TEST_F(Titles, PageHeaderCorners) {
  struct Case {
    int iopt, idir, x, y;
  };
  // Page 2969 by 2099, a line 500 long at the height 21.
  const Case cases[] = {{1, 0, 100, 2099 - 15 - 21}, {1, 1, 15, 1999},     {2, 0, 2369, 2063},
                        {2, 1, 2954, 2099 - 500 - 100}, {3, 0, 2369, 15}, {3, 1, 2954, 100},
                        {4, 0, 100, 15},             {4, 1, 15, 600}};
  for (const auto& c : cases) {
    int x = 0, y = 0;
    page_header_start(c.iopt, c.idir, 500, 21, x, y);
    EXPECT_EQ(x, c.x) << c.iopt << " " << c.idir;
    EXPECT_EQ(y, c.y) << c.iopt << " " << c.idir;
  }
}

TEST_F(Titles, PageHeaderDrawsAndGoesOnWithBadOptions) {
  angle(30);
  paghdr("Report", "page 1", 7, 2);
  EXPECT_EQ(take_lines(), (std::vector<std::string>{" <<<< Warning   2: Incorrect parameter in PAGHDR!   (   7)",
                                                    " <<<< Warning   2: Incorrect parameter in PAGHDR!   (   2)"}));
  EXPECT_EQ(zg.nangle, 30);
  EXPECT_EQ(zg.nhchar, 36);
  for (int iopt = 1; iopt <= 4; ++iopt) paghdr("Report", "page 1", iopt, 0);
  zorfin();
  take_lines();
  EXPECT_TRUE(zbt::ghostscript_accepts("axes.ps")) << zbt::read_file("axes.ps").substr(0, 200);
}

class Underline : public zbt::MetaSession {};

TEST_F(Underline, UnderlinedTitleLine) {
  open();
  axspos(500, 1500);
  axslen(1001, 801);
  nograf();
  float xa = 0, xe = 10, xo = 0, xs = 2, ya = 0, ye = 8, yo = 0, ys = 2;
  graf(xa, xe, xo, xs, ya, ye, yo, ys);
  titlin("Underlined", -3);
  const int l = nlmess("Underlined");
  title();
  const std::vector<zbt::Seg> segs = close();
  // Line 3 at y = 699 - 54 - 108 = 537, its underline 1.2 heights lower, half a height
  // beyond the text at both ends.
  const float yu = 537 + 43, x = float(500 + (1001 - l) / 2);
  EXPECT_TRUE(std::any_of(segs.begin(), segs.end(), [&](const zbt::Seg& s) {
    return zbt::same_seg(s, {x - 18, yu, x + float(l) + 18, yu});
  })) << zbt::show(segs).substr(0, 400);
}

}  // namespace
