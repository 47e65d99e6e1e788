// Reads the pen stream of a metafile back into plot coordinates. The file holds fields of
// 10 characters: x and y as fractions of the longer page side, y upward, then the pen code
// 2.0 or 3.0 when it changes; fields of 9.0 and above are colours or the end record.
#pragma once
#include <algorithm>
#include <string>
#include <vector>

#include "support/harness.h"

namespace zbt {

struct PenStep {
  float x, y;
  int code;   // 3 move, 2 draw
};

inline std::vector<PenStep> metafile_pen(const std::string& file) {
  std::string all;
  for (const auto& l : read_lines(file)) all += l;
  std::vector<double> f;
  for (std::size_t i = 0; i + 10 <= all.size(); i += 10) f.push_back(std::stod(all.substr(i, 10)));
  const float mx = float(std::max(zb::zg.nxpag, zb::zg.nypag));
  std::vector<PenStep> steps;
  int code = 0;
  for (std::size_t i = 0; i + 1 < f.size();) {
    if (f[i] > 1.5) {
      ++i;
      continue;
    }
    const float x = float(f[i] * mx), y = float(zb::zg.nypag) - float(f[i + 1] * mx);
    i += 2;
    if (i < f.size() && (f[i] == 2.0 || f[i] == 3.0)) code = int(f[i++]);
    steps.push_back({x, y, code});
  }
  return steps;
}

}  // namespace zbt
