// The committed glyph tables: regenerated from their sources they are the same bytes, and the
// glyphs of every font set lie in the cells of their metrics.
#include <algorithm>
#include <string>

#include "text/text_support.h"

using namespace zb;

namespace {

class GlyphData : public zbt::TextSession {};

TEST_F(GlyphData, RegenerationReproducesTheCommittedTables) {
  std::string out;
  const int rc = zbt::run("python3 " ZB_SOURCE_DIR "/tools/glyphs/gen_glyphs.py --check", &out);
  EXPECT_EQ(rc, 0) << out;
  EXPECT_NE(out.find("files identical"), std::string::npos) << out;
}

struct Box {
  float x0 = 1e9f, y0 = 1e9f, x1 = -1e9f, y1 = -1e9f;
};

// Font coordinates of the glyph at position idx (2 and up) of alphabet k, offsets applied.
Box glyph_box(int k, int idx) {
  Box b;
  const std::size_t a = std::size_t(k);
  int pos = zg.ialfidx[a];
  for (int r = 2; r < idx; ++r) pos += zg.ichidx[std::size_t(pos - 1)];
  const int len = zg.ichidx[std::size_t(pos - 1)];
  const float unit = zg.ifont > 10 && zg.ialfidx[a] == 1 ? 2.0f : 0.5f;
  for (int cur = pos + 1; cur < pos + len;) {
    const int w = zg.ichidx[std::size_t(cur - 1)];
    const int start = zg.ichidx[std::size_t(cur)];
    float dx = 0, dy = 0;
    if (w < 0) {
      const auto p = uint16_t(zg.ichidx[std::size_t(cur + 1)]);
      dx = float(int8_t(uint8_t(p & 0xFF))) * unit;
      dy = float(int8_t(uint8_t(p >> 8))) * unit;
    }
    for (int i = 0; i < std::abs(w); ++i) {
      const std::size_t at = std::size_t(zg.ialfpts[a] + start - 2 + i);
      const float x = float(zg.ichx[at]) + dx, y = float(zg.ichy[at]) + dy;
      b.x0 = std::min(b.x0, x); b.x1 = std::max(b.x1, x);
      b.y0 = std::min(b.y0, y); b.y1 = std::max(b.y1, y);
    }
    cur += w < 0 ? 3 : 2;
  }
  return b;
}

TEST_F(GlyphData, GlyphsLieInTheirCells) {
  open();
  for (auto load : {zoralf, complx, simplx, duplx, triplx, gothic, comgot, helve, helves, helvet, serif}) {
    load();
    for (int k = 0; k < 6; ++k) {
      const std::size_t a = std::size_t(k);
      if (k == 3 && zg.ialfidx[a] == 1) continue;   // the alias of alphabet 1
      const bool cell = zg.ncwid[a] == 6, outline = zg.ncwid[a] == 200;
      const float lo = cell ? -2.0f : (outline ? -70.0f : -7.0f);
      const float hi = cell ? 9.0f : (outline ? 260.0f : 30.0f);
      for (int idx = 2; idx <= zg.nalfrec[a] + 1; ++idx) {
        const Box b = glyph_box(k, idx);
        EXPECT_GE(b.y0, lo) << "font " << zg.ifont << " alphabet " << k + 1 << " position " << idx;
        EXPECT_LE(b.y1, hi) << "font " << zg.ifont << " alphabet " << k + 1 << " position " << idx;
        // Ink starts at x = 0; only script letters reach back into their neighbour to join.
        EXPECT_GE(b.x0, zg.nalfch[a] == 102 && k == 4 ? -8.0f : 0.0f) << "font " << zg.ifont << " alphabet " << k + 1;
      }
    }
    // Capitals of the roman alphabets are exactly as high as the cell says.
    const Box h = glyph_box(0, 'H' - 31);
    EXPECT_EQ(h.y0, 0.0f) << "font " << zg.ifont;
    EXPECT_EQ(h.y1, zg.ifont == 1 ? 7.0f : (zg.ifont > 10 ? 200.0f : 21.0f)) << "font " << zg.ifont;
  }
}

}  // namespace
