// Text tests: a session on the metafile whose pen stream is read back into plot coordinates,
// and the advance of single characters measured with alfcha.
#pragma once
#include <cmath>
#include <string>
#include <vector>

#include "support/harness.h"
#include "support/metafile.h"
#include "text/text.h"

namespace zbt {

using Pen = PenStep;

class TextSession : public Fixture {
 protected:
  void open(const char* fmt = "POST") {
    zb::metafl(fmt);
    zb::zorini();
    take_text();
  }
  // Pen steps of the lines that draw() puts on a metafile page.
  template <class F>
  std::vector<Pen> drawn(F draw) {
    open("ZMET");
    draw();
    zb::zorfin();
    take_text();
    // Only the points of drawn segments: the stream also holds moves of the page's start and end.
    const auto all = metafile_pen(zb::zg.cplotfl.str());
    std::vector<Pen> pts;
    for (std::size_t i = 1; i < all.size(); ++i)
      if (all[i].code == 2) {
        if (pts.empty() || all[i - 1].code != 2) pts.push_back({all[i - 1].x, all[i - 1].y, 3});
        pts.push_back(all[i]);
      }
    return pts;
  }
  // How far the pen moves for one character of the current alphabet at height nh.
  static float advance(int ich, int nh = 21) {
    zb::zg.nhchar = nh;
    zb::begin_string();
    zb::zg.imeasr = 1;
    zb::zg.xchr = zb::zg.ychr = 0.0f;
    zb::alfcha(ich);
    zb::zg.imeasr = 0;
    return zb::zg.xchr;
  }
};

}  // namespace zbt
