// Stand-ins for what the formula parser and the shield regions put into string drawing.
// Their owners define the real routines, which take precedence over these weak definitions
// at link time: until then no string is a formula and no region records strings.
#include "frame/frame.h"
#include "text/text.h"

namespace zb {

[[gnu::weak]] bool formula_mode() { return false; }

// Without a parser a formula is drawn as the plain characters it holds.
[[gnu::weak]] void qqparse(std::string_view cstr, int& ierr) {
  ierr = 0;
  for (const char ch : cstr) alfcha(static_cast<unsigned char>(ch));
}

[[gnu::weak]] void formula_extent(float& top, float& bottom) {
  top = float(zg.nhchar);
  bottom = 0.0f;
}

[[gnu::weak]] bool shield_records_strings() { return false; }

[[gnu::weak]] void shlrct(int nx, int ny, int nw, int nh, float xang) {
  (void)nx;
  (void)ny;
  (void)nw;
  (void)nh;
  (void)xang;
}

}  // namespace zb
