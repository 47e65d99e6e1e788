// Locale-independent number formatting in the column forms of the library's text output:
// integers right-justified in a width (I), fixed point (F) and exponent form (E).
#pragma once
#include <string>

namespace zb {

// Integer right-justified in at least w columns.
std::string fmt_i(long v, int w);
// Integer left-justified in exactly w columns (wider if it does not fit).
std::string fmt_il(long v, int w);
// Fixed point with d decimals, right-justified in w columns; a leading "0" before the point
// is dropped when the field would otherwise overflow; wider if it still does not fit.
std::string fmt_f(double v, int w, int d);
// Exponent form 0.dddE+xx with d digits, right-justified in w columns.
std::string fmt_e(double v, int w, int d);
// Shortest decimal form of an integer, no blanks.
std::string itoa(long v);
// Pads s with blanks on the right (or cuts it) to exactly w characters.
std::string pad(std::string_view s, int w);

}  // namespace zb
