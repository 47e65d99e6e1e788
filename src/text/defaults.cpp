// Defaults of this folder's plot parameters (resall) and the reset keywords it answers.
#include "frame/frame.h"
#include "text/alphabet.h"

namespace zb {

namespace {

void clear_shifts() {
  zg.ismxalf = 0;
  zg.ismxtab.fill(0);
  zg.ismxin.fill(0);
  zg.ismxout.fill(0);
  zg.ismxcur = 0;
}

void clear_national() {
  zg.ieushf = 0;
  zg.inatsh.fill(0);
}

constexpr std::string_view kControls = "[]$/\\";   // exponent, index, reset, legend, TeX

// Strings and numbers: justification, control characters, exponents, frames, number text.
void resall_strings() {
  zg.ijust = 0;
  zg.imixexp = 0;
  zg.ctlchr = kControls;
  zg.xbasfac = 0.6f;
  zg.xexpfac = 0.8f;
  zg.xlinsp = 1.5f;
  zg.nfrmess = 0;
  zg.inumfmt = 0;
  zg.cnumod = ".000";
  zg.itexoff = 0;
}

// The reset keywords of the string routines; SETB and SETE do not restore the defaults of
// resall but 0.8 and 1.0.
void reset_strings(std::string_view key) {
  if (key == "MIXA") zg.imixexp = 0;
  if (key == "SETM" || key == "NEWM") zg.ctlchr = kControls;
  if (key == "SETB") zg.xbasfac = 0.8f;
  if (key == "SETE") zg.xexpfac = 1.0f;
  if (key == "LINS") zg.xlinsp = 1.5f;
  if (key == "FRME") zg.nfrmess = 0;
  if (key == "NUMF") zg.inumfmt = 0;
  if (key == "NUMO") zg.cnumod = ".000";
}

}  // namespace

void resall_text() {
  zg.nhchar = jqquni(36);
  zg.nangle = 0;
  zg.xcos = 1.0f;
  zg.xsin = 0.0f;
  zg.ibasalf = 1;
  clear_shifts();
  clear_national();
  zg.ichcod = 0;
  zg.xchwth = 1.0f;
  zg.xchspc = 0.0f;
  zg.xchang = 0.0f;
  zg.ifixsp = 0;
  zg.xfixsp = 1.0f;
  zg.xitang = 3.732f;
  zg.ishdch = 0;
  zg.ialf = 1;
  resall_strings();
  load_default_font();
}

void reset_text(std::string_view key) {
  if (key == "HEIG") {
    zg.nhchar = jqquni(36);
    zg.icuralf = 0;
  }
  if (key == "ANGL") {
    zg.nangle = 0;
    zg.xcos = 1.0f;
    zg.xsin = 0.0f;
  }
  if (key == "IANG") zg.xitang = 3.732f;
  if (key == "BASA") zg.ibasalf = 1;
  if (key == "SMXA") clear_shifts();
  if (key == "EUSH") clear_national();
  if (key == "CHAW") zg.xchwth = 1.0f;
  if (key == "CHAS") zg.xchspc = 0.0f;
  if (key == "CHAA") zg.xchang = 0.0f;
  if (key == "FIXS") zg.ifixsp = 0;
  if (key == "SHDC") zg.ishdch = 0;
  reset_strings(key);
}

}  // namespace zb
