// Text drawing: strings and numbers on the page, their lengths, height and angle.
// Other folders draw text through these routines only.
#pragma once
#include <string>
#include <string_view>

#include "text/alphabet.h"

namespace zb {

void messag(std::string_view cstr, int nx, int ny);
void number(float x, int ndig, int nx, int ny);
int nlmess(std::string_view cstr);            // length in plot units
int nlnumb(float x, int ndig);                // length in plot units
void height(int nh);
void angle(int nang);
void qqmess(std::string_view cstr, int nx, int ny);
void dtext(std::string_view cstr, int nx, int ny, int nang, int nh);
std::string gnustr(float x, int ndig);        // the text of a number as number() draws it

}  // namespace zb
