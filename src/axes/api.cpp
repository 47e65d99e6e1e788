// Exported routines of the 2-D axis system.
#include "axes/axes.h"
#include "frame/frame.h"

using namespace zb;

ZB_EXPORT void qqpos2_(const float* xu, const float* yu, float* xp, float* yp) noexcept { qqpos2(*xu, *yu, *xp, *yp); }
ZB_EXPORT void qqrel2_(const float* xu, const float* yu, float* xp, float* yp) noexcept { qqrel2(*xu, *yu, *xp, *yp); }
ZB_EXPORT float xposn_(const float* x) noexcept { return xposn(*x); }
ZB_EXPORT float yposn_(const float* y) noexcept { return yposn(*y); }
ZB_EXPORT int nxposn_(const float* x) noexcept { return nxposn(*x); }
ZB_EXPORT int nyposn_(const float* y) noexcept { return nyposn(*y); }
ZB_EXPORT float xinvrs_(const int* n) noexcept { return xinvrs(*n); }
ZB_EXPORT float yinvrs_(const int* n) noexcept { return yinvrs(*n); }
