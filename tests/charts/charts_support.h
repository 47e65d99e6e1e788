// Support of the curve tests: a metafile session with an axis system of 100 plot units per
// user unit (x 0..10 from 500 to 1500, y 0..10 from 1800 up to 800, nothing drawn), and the
// pen stream read back as moves and draws in plot coordinates.
#pragma once
#include <cmath>
#include <string>
#include <vector>

#include "axes/axes.h"
#include "charts/charts.h"
#include "draw/line_support.h"

namespace zbt {

// A pen step as plot coordinates rounded to 0.01, and whether the pen moved there.
struct Step {
  float x, y;
  bool draw;
  bool operator==(const Step& o) const {
    return std::fabs(x - o.x) < 0.02f && std::fabs(y - o.y) < 0.02f && draw == o.draw;
  }
};

inline std::ostream& operator<<(std::ostream& os, const Step& s) {
  return os << (s.draw ? "D(" : "M(") << s.x << "," << s.y << ")";
}

// Moves and draws of a pen stream; a move to where the pen stands (a new stroke of the
// stroke buffer) is left out.
inline std::vector<Step> steps_of(const std::vector<PenStep>& pen) {
  std::vector<Step> out;
  for (const auto& p : pen) {
    const bool draw = p.code == 2;
    if (!draw && !out.empty() && std::fabs(out.back().x - p.x) < 0.02f && std::fabs(out.back().y - p.y) < 0.02f)
      continue;
    out.push_back({p.x, p.y, draw});
  }
  // The end of the file moves home.
  if (!out.empty() && !out.back().draw && out.back().x < 0.02f && out.back().y > float(zb::zg.nypag) - 0.02f)
    out.pop_back();
  return out;
}

// The plot position of a user point in the test axis system.
inline Step M(float x, float y) { return {500.0f + 100.0f * x, 1800.0f - 100.0f * y, false}; }
inline Step D(float x, float y) { return {500.0f + 100.0f * x, 1800.0f - 100.0f * y, true}; }

class CurveTest : public MetaSession {
 protected:
  // Opens the metafile and the axis system; the clipping window lies grace units outside.
  void begin(int grace = 10) {
    open();
    zb::grace(grace);
    zb::axspos(500, 1800);
    zb::axslen(1001, 1001);
    zb::nograf();
    float xa = 0, xe = 10, xo = 0, xs = 2, ya = 0, ye = 10, yo = 0, ys = 2;
    zb::graf(xa, xe, xo, xs, ya, ye, yo, ys);
    take_text();
  }
  // Ends the session and returns what reached the file.
  std::vector<Step> finish() {
    zb::endgrf();
    zb::zorfin();
    take_text();
    return steps_of(metafile_pen(zb::zg.cplotfl.str()));
  }
  // One curve in a fresh session.
  std::vector<Step> curve_steps(const std::vector<float>& x, const std::vector<float>& y) {
    begin();
    zb::curve(x.data(), y.data(), int(x.size()));
    return finish();
  }
};

}  // namespace zbt
