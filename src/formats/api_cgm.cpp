// Exported routines of the CGM output.
#include <cstdint>

#include "formats/drivers.h"
#include "frame/frame.h"

using namespace zb;

ZB_EXPORT void cgmbgd_(const float* xr, const float* xg, const float* xb) noexcept { cgmbgd(*xr, *xg, *xb); }
ZB_EXPORT void cgmpic_(const char* c, int lc) noexcept { cgmpic(fstr(c, lc)); }
ZB_EXPORT void cgmver_(const int* nver) noexcept { cgmver(*nver); }
ZB_EXPORT void inicgm_(const int* imode) noexcept { inicgm(*imode); }
ZB_EXPORT void drwcgm_(const float* x, const float* y, const int* icode) noexcept { drwcgm(*x, *y, *icode); }
ZB_EXPORT void qqcgm1_(const char* c, int lc) noexcept { qqcgm1(fstr(c, lc)); }
ZB_EXPORT void gbyte2_(const int* ilun, short* iword, int* ifirst) noexcept { std::int16_t w = 0; gbyte2(*ilun, w, *ifirst); *iword = w; }
