// What ghostscript makes of dashed and clipped lines on PostScript: the dashes and gaps
// of a rendered row, and a line cut to its window.
#include <fstream>

#include "draw/line.h"
#include "frame/page.h"
#include "support/harness.h"

using namespace zb;

namespace {

class LineRender : public zbt::Fixture {
 protected:
  // Renders the file at 72 dpi to grey pixels, rows from the top of the paper.
  bool render(const std::string& ps) {
    std::string log;
    if (zbt::run("gs -q -dSAFER -dNOPAUSE -dBATCH -sDEVICE=pgmraw -r72 -sOutputFile=page.pgm " + ps, &log) != 0) {
      ADD_FAILURE() << log;
      return false;
    }
    std::ifstream in("page.pgm", std::ios::binary);
    // Header: magic, width, height, maxval, with comment lines between.
    std::vector<std::string> head;
    while (head.size() < 4 && in) {
      std::string tok;
      in >> tok;
      if (!tok.empty() && tok[0] == '#') {
        std::getline(in, tok);
        continue;
      }
      head.push_back(tok);
    }
    in.get();
    if (head.size() < 4) return false;
    const std::string magic = head[0];
    w = std::stoi(head[1]);
    h = std::stoi(head[2]);
    pix.resize(std::size_t(w) * std::size_t(h));
    in.read(reinterpret_cast<char*>(pix.data()), std::streamsize(pix.size()));
    return magic == "P5" && bool(in);
  }
  // Dark runs [first, last] along a pixel row.
  std::vector<std::pair<int, int>> runs(int row) const {
    std::vector<std::pair<int, int>> r;
    for (int x = 0; x < w; ++x) {
      const bool dark = pix[std::size_t(row) * std::size_t(w) + std::size_t(x)] < 128;
      if (dark && (r.empty() || r.back().second != x - 1)) r.push_back({x, x});
      else if (dark) r.back().second = x;
    }
    return r;
  }
  int w = 0, h = 0;
  std::vector<unsigned char> pix;
};

// Unturned A4 landscape: a plot unit is 0.18618 points; the origin on paper is 21.26
// points right of and 28.35 points above the lower left corner of the paper.
int column(float x) { return int(21.26f + x * 0.18618f); }
int row(int height, float y) { return height - int(28.35f + (2099.0f - y) * 0.18618f + 0.5f); }

TEST_F(LineRender, DashesAndAClippedLineAsGhostscriptDrawsThem) {
  pagmod("NONE");
  metafl("POST");
  zorini();
  lncap("CUT");
  linwid(10);
  const int pat[2] = {100, 100};
  myline(pat, 2);
  line(100, 1000, 2900, 1000);
  lintyp(0);
  clpwin(1000, 1200, 500, 200);
  line(0, 1300, 2969, 1300);
  zorfin();
  ASSERT_TRUE(render(zg.cplotfl.str()));
  const auto dashes = runs(row(h, 1000));
  ASSERT_EQ(dashes.size(), 14u);
  for (std::size_t i = 0; i < dashes.size(); ++i) {
    const int len = dashes[i].second - dashes[i].first + 1;
    EXPECT_NEAR(len, 18.6, 1.5) << "dash " << i;
    EXPECT_NEAR(dashes[i].first, column(100.0f + 200.0f * float(i)), 1.5) << "dash " << i;
  }
  const auto cut = runs(row(h, 1300));
  ASSERT_EQ(cut.size(), 1u);
  EXPECT_NEAR(cut[0].first, column(1000), 1.5);
  EXPECT_NEAR(cut[0].second, column(1499), 1.5);
}

}  // namespace
