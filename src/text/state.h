// Record fields of text: character height and angle, the loaded font set with its glyph tables,
// the character settings, and the working set of the string being drawn.
#pragma once
#include <array>
#include <cstdint>

#include "util/fstr.h"

namespace zb {

inline constexpr int kMaxAlfPoints = 8500;   // point pool of a font set
inline constexpr int kMaxAlfWords = 6000;    // glyph index of a font set

struct TextState {
  int nhchar = 36;                 // character height in plot units
  int nangle = 0;                  // text angle in degrees
  float xcos = 1.0f, xsin = 0.0f;  // its cosine and sine

  // The loaded font set: point pool, glyph index and per-alphabet metrics (index 0 is alphabet 1).
  std::array<int16_t, kMaxAlfPoints> ichx{}, ichy{};
  std::array<int16_t, kMaxAlfWords> ichidx{};
  std::array<int, 6> ialfidx{};    // first word of the alphabet's records, from 1
  std::array<int, 6> ialfpts{};    // pool base of its contour starts, from 1
  std::array<int, 6> nalfch{};     // character positions, blank included
  std::array<int, 6> nalfrec{};    // records stored: the positions 2 .. nalfrec + 1 have glyphs
  std::array<int, 6> ncwid{}, nchgt{};
  std::array<float, 6> xalfsp{};
  std::array<int, 6> ialffull{};
  int ifont = 0;                   // font number of the set
  int nalf = 0;                    // alphabets loaded so far
  int nblank = 6;                  // width of a blank in font units
  float xfixmul = 1.4f;            // factor of fixed spacing
  int nidxused = 0, nptsused = 0;  // words and points used while the set loads
  int ifnttp = 0;                  // 0 stroke alphabets; else a device font (PostScript, X11, bitmap)

  // Character settings.
  int ibasalf = 1;                 // base alphabet of all strings
  int ismxalf = 0;                 // some alphabet shift is defined
  std::array<int, 6> ismxtab{};    // alphabet of shift n (7 instructions), 0 undefined
  std::array<int, 6> ismxin{}, ismxout{};   // codes that open and close shift n
  int ieushf = 0;                  // eushft was called
  std::array<int, 7> inatsh{};     // shift character of each national mode, 0 none
  int ichcod = 0;                  // code of strings: 0 STAN, 1 ISO 8859-1, 2 ISO 8859-2
  float xchwth = 1.0f;             // chawth: width factor
  float xchspc = 0.0f;             // chaspc: additional letter gap / height
  float xchang = 0.0f;             // chaang: slant, tan of the angle
  int ifixsp = 0;                  // fixspc: fixed spacing on
  float xfixsp = 1.0f;             // fixspc: its factor
  float xitang = 3.732f;           // iangle: tan of (90 - shear angle) for synthetic italics
  int ishdch = 0;                  // shdcha: outline fonts are filled

  // Working set of the string being drawn, loaded from the settings at its start.
  int ialf = 1;                    // alphabet of the next character
  int istralf = 1;                 // base alphabet of this string
  int nhstr = 36;                  // height at the start of the string
  int ifixstr = 0;
  float xfixstr = 1.0f, xspcstr = 0.0f, xwthstr = 1.0f, xslnstr = 0.0f;
  float xbshft = 0.0f, xoffs = 0.0f;   // baseline shift and additional offset
  int imeasr = 0;                  // measuring only: nothing is drawn
  int iprvsp = -1;                 // result of gcspec for the previous character, -1 at the start
  int ismxcur = 0;                 // shift in force, 0 none
  FStr<20> cinsbuf;                // instruction of an instruction shift being read
  int ninsbuf = 0;
  float xchr = 0.0f, ychr = 0.0f;  // pen in plot coordinates, origin included
  float xstr0 = 0.0f, ystr0 = 0.0f;

  // The alphabet made current by salfpa.
  int icuralf = 0;                 // 0: none, recompute at the next character
  int iaidx = 1, iapts = 1;        // its index start and pool base
  float xcscl = 0.0f, ycscl = 0.0f, xcgap = 0.0f;
  int ishear = 0;                  // the character in hand is sheared

  // Strings and numbers: justification, control characters, exponents, frames, number text.
  int ijust = 0;                   // txtjus: 0 left, 1 centred, 2 right
  int imixexp = 0;                 // mixalf: control characters for exponents and indices active
  FStr<5> ctlchr{"[]$/\\"};        // exponent, index, reset, legend line, TeX command
  float xbasfac = 0.6f;            // setbas: shift of exponents and indices / height
  float xexpfac = 0.8f;            // setexp: height of exponents and indices / height
  float xlinsp = 1.5f;             // linesp: line spacing, also the margin of text frames
  int nfrmess = 0;                 // frmess: thickness of the frame around strings
  int inumfmt = 0;                 // numfmt: 0 FLOA, 1 EXP, 2 FEXP, 3 LOG
  FStr<4> cnumod{".000"};          // numode: decimal sign, group separator, sign, equal digits
  int itexoff = 0;                 // formulas are off while axis labels are drawn
  FStr<256> ctxbuf;                // working copy of the string being drawn
  // Working set of the string being drawn (besides the one of the alphabets above).
  int istrclr = 0;                 // colour at the start of the string
  int iexpfl = 0, iindfl = 0;      // the string raised an exponent, lowered an index
  std::array<float, 20> xtab{};    // tabs of the instruction alphabet, along the baseline

  bool operator==(const TextState&) const = default;
};

}  // namespace zb
