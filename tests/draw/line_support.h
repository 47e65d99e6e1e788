// Line pipeline tests: sessions on the metafile, whose pen stream is read back into plot
// coordinates and cut into drawn segments.
#pragma once
#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "support/harness.h"
#include "support/metafile.h"

namespace zbt {

struct Seg {
  float x1, y1, x2, y2;
};

// The drawn segments of a pen stream, in order.
inline std::vector<Seg> drawn(const std::vector<PenStep>& steps) {
  std::vector<Seg> segs;
  for (std::size_t i = 1; i < steps.size(); ++i)
    if (steps[i].code == 2)
      segs.push_back({steps[i - 1].x, steps[i - 1].y, steps[i].x, steps[i].y});
  return segs;
}

// Merged x intervals drawn along the row y, zero-length pieces left out.
inline std::vector<std::pair<float, float>> runs_at(const std::vector<Seg>& segs, float y) {
  std::vector<std::pair<float, float>> r;
  for (const auto& s : segs) {
    if (std::fabs(s.y1 - y) > 0.01f || std::fabs(s.y2 - y) > 0.01f) continue;
    const float a = std::min(s.x1, s.x2), b = std::max(s.x1, s.x2);
    if (b - a < 0.01f) continue;
    r.push_back({a, b});
  }
  std::sort(r.begin(), r.end());
  std::vector<std::pair<float, float>> m;
  for (const auto& p : r) {
    if (!m.empty() && p.first <= m.back().second + 0.01f) m.back().second = std::max(m.back().second, p.second);
    else m.push_back(p);
  }
  return m;
}

inline bool near(float a, float b, float tol = 0.01f) { return std::fabs(a - b) <= tol; }

inline bool same_seg(const Seg& a, const Seg& b, float tol = 0.01f) {
  return near(a.x1, b.x1, tol) && near(a.y1, b.y1, tol) && near(a.x2, b.x2, tol) && near(a.y2, b.y2, tol);
}

inline std::string show(const std::vector<Seg>& segs) {
  std::string s;
  for (const auto& g : segs)
    s += "(" + std::to_string(g.x1) + "," + std::to_string(g.y1) + ")-(" + std::to_string(g.x2) + "," +
         std::to_string(g.y2) + ") ";
  return s;
}

// A fixture whose sessions write the metafile; close() ends the session and reads back
// what reached the dispatcher.
class MetaSession : public Fixture {
 protected:
  void open(const char* fmt = "ZMET") {
    zb::metafl(fmt);
    zb::zorini();
    take_text();
  }
  std::vector<Seg> close() {
    zb::zorfin();
    take_text();
    return drawn(metafile_pen(zb::zg.cplotfl.str()));
  }
};

}  // namespace zbt
