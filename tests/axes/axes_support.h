// Support of the axis tests: a session on a PostScript file, graf with literal scalings,
// and the placements of the texts that axis drawing hands to the text layer.
#pragma once
#include <string>
#include <vector>

#include "axes/axes.h"
#include "axes/internal.h"
#include "support/harness.h"

namespace zbt {

struct Placed {
  std::string text;
  int nx, ny, nang, nh;
  bool operator==(const Placed&) const = default;
};

inline std::vector<Placed>* g_placed = nullptr;

inline void record_text(std::string_view t, int nx, int ny, int nang, int nh) {
  if (g_placed != nullptr) g_placed->push_back({std::string(t), nx, ny, nang, nh});
}

inline std::ostream& operator<<(std::ostream& os, const Placed& p) {
  return os << '"' << p.text << "\" " << p.nx << ',' << p.ny << " angle " << p.nang << " h " << p.nh;
}

class AxesTest : public Fixture {
 protected:
  void SetUp() override {
    Fixture::SetUp();
    zb::metafl("POST");
    zb::setfil("axes.ps");
    zb::zorini();
    take_lines();
    g_placed = &placed;
    zb::set_axis_text_sink(record_text);
  }
  void TearDown() override {
    zb::set_axis_text_sink(nullptr);
    g_placed = nullptr;
    Fixture::TearDown();
  }
  // graf with values the caller need not keep.
  static void graf(float xa, float xe, float xo, float xs, float ya, float ye, float yo, float ys) {
    zb::graf(xa, xe, xo, xs, ya, ye, yo, ys);
  }
  // Places the axis system at (500, 1500) with the lengths 1001 by 801.
  static void place() {
    zb::axspos(500, 1500);
    zb::axslen(1001, 801);
  }
  std::vector<Placed> placed;
};

}  // namespace zbt
