// The device-font hooks of alfcha and salfpa while only stroke alphabets exist: no device font
// is ever in force, so a character never leaves the glyph tables.
#include "text/devfont.h"

#include "frame/frame.h"

namespace zb {

bool device_font_applies(int) { return false; }

float device_font_char(int, int) { return float(zg.nblank) * zg.xcscl; }

int device_font_code(int ich, int) { return ich; }

void device_font_alphabet(int) {}

}  // namespace zb
