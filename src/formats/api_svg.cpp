// Exported routines of the SVG output.
#include "formats/drivers.h"
#include "frame/frame.h"

using namespace zb;

ZB_EXPORT void qqsvg1_(const int* imode) noexcept { qqsvg1(*imode); }
ZB_EXPORT void qqsvg2_(const float* x, const float* y, const int* icode) noexcept { qqsvg2(*x, *y, *icode); }
ZB_EXPORT void qqsvg3_(const int* r, const int* g, const int* b) noexcept { qqsvg3(*r, *g, *b); }
ZB_EXPORT void qqsvg4_(const float* x, const float* y, const float* w, const float* h, const int* r, const int* g, const int* b) noexcept { qqsvg4(*x, *y, *w, *h, *r, *g, *b); }
ZB_EXPORT void qqsvg5_(const int* ic, const float* x, const float* y) noexcept { qqsvg5(*ic, *x, *y); }
ZB_EXPORT void qqsvg6_(const int* r, const int* g, const int* b, char* chex, int lc) noexcept { fput(chex, lc, qqsvg6(*r, *g, *b)); }
