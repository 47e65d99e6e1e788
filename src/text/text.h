// Text drawing: strings and numbers on the page, their lengths and boxes, height and angle,
// exponents and indices, the instruction alphabet and the number texts.
// Other folders draw text through these routines only.
#pragma once
#include <string>
#include <string_view>

#include "text/alphabet.h"

namespace zb {

// Strings and numbers (public).
void messag(std::string_view cstr, int nx, int ny);
void rlmess(std::string_view cstr, float x, float y);
void number(float x, int ndig, int nx, int ny);
void rlnumb(float x, int ndig, float xp, float yp);
int nlmess(std::string_view cstr);            // length in plot units
int nlnumb(float x, int ndig);                // length in plot units
void height(int nh);
void angle(int nang);
void txtjus(std::string_view copt);
void numfmt(std::string_view copt);
void numode(std::string_view cdec, std::string_view cgrp, std::string_view csign, std::string_view cfix);
void linesp(float xfac);
void frmess(int nfrm);
void getang(int& nang);
void gethgt(int& nh);

// Control characters (public).
void mixalf();
void setmix(std::string_view cchar, std::string_view cmix);
std::string getmix(std::string_view cmix);    // the character, blank for a bad keyword
void newmix();
void setbas(float xfac);
void setexp(float xfac);

// Drawing cores (internal).
void qqmess(std::string_view cstr, int nx, int ny);
void dtext(std::string_view cstr, int nx, int ny, int nang, int nh);
// Height (nhchar, or the formula's), depth and length of a string.
void qqgmsg(std::string_view cstr, int& nheight, int& ndepth, int& nlen);
// The same measured at height nh; the current height stays.
void measure_text(std::string_view cstr, int nh, int& nheight, int& ndepth, int& nlen);
int nlmess_at(std::string_view cstr, int nh);
// One instruction of the instruction alphabet: a letter and its argument, n characters.
void inscmd(std::string_view ccmd, int n);
// Height of the text for the rest of the string, without call frame: 1 .. 10000.
void set_text_height(float nh);

// Number texts (internal).
void fcha(float x, int ndig, int& nlen, std::string& cstr);     // fixed notation
void flen(float x, int ndig, int& nlen);                         // its width
void gexpno(float x, int ndig, int& nlen, std::string& cstr, int iopt);   // exponent notation
void intcha(int n, int& nlen, std::string& cstr);                // integer, no blanks
// Applies the decimal sign, groups and sign of cmode (4 characters as cnumod) to a number text.
void gnustr(std::string& cstr, int& nlen, std::string_view cmode);
std::string gnustr(float x, int ndig);        // the text that number() draws, control characters included
std::string apply_numode(std::string_view cstr);   // gnustr with the settings of numode

// Axis labels: while one lives, the control characters are on and formulas off (when force
// is true); everything comes back when it ends.
class ForcedMix {
 public:
  explicit ForcedMix(bool force);
  ~ForcedMix();
  ForcedMix(const ForcedMix&) = delete;
  ForcedMix& operator=(const ForcedMix&) = delete;

 private:
  bool force_;
  int mix_, texoff_;
};

// Owned by the formula parser and the shield regions; until they link in, weak stand-ins
// keep strings plain and unrecorded.
bool formula_mode();                                  // TeX mode is on
void qqparse(std::string_view cstr, int& ierr);       // one pass over a formula
void formula_extent(float& top, float& bottom);       // highest and lowest point of the last formula
bool shield_records_strings();                        // a shield region wants the boxes of strings
void shlrct(int nx, int ny, int nw, int nh, float xang);

}  // namespace zb
