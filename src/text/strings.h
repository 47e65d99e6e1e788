// Shared inside the text folder by the string, number and instruction code.
#pragma once
#include <string_view>

namespace zb {

// Truncation toward zero that cannot overflow; not-a-number gives 0.
inline int to_int(float v) {
  if (v != v) return 0;
  if (v > 2.0e9f) return 2000000000;
  if (v < -2.0e9f) return -2000000000;
  return int(v);
}
// Nearest integer, halves away from zero.
inline int nint(float v) { return to_int(v < 0.0f ? v - 0.5f : v + 0.5f); }

// messag without its call frame: y mapped by jqqyvl if map_y, then justified by txtjus.
void place_string(std::string_view cstr, int nx, int ny, bool map_y);
// User coordinates to a start position (rlmess, rlnumb); 999 continues the text.
void user_position(float x, float y, int& nx, int& ny);

}  // namespace zb
