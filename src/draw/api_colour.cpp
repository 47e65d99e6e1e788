// Exported routines of colour.
#include "draw/colour.h"
#include "frame/frame.h"

using namespace zb;

ZB_EXPORT void setvlt_(const char* c, int lc) noexcept { setvlt(fstr(c, lc)); }
ZB_EXPORT void getvlt_(char* c, int lc) noexcept { fput(c, lc, getvlt()); }
ZB_EXPORT void myvlt_(const float xr[], const float xg[], const float xb[], const int* n) noexcept { myvlt(xr, xg, xb, *n); }
ZB_EXPORT void setind_(const int* i, const float* xr, const float* xg, const float* xb) noexcept { setind(*i, *xr, *xg, *xb); }
ZB_EXPORT void getind_(const int* i, float* xr, float* xg, float* xb) noexcept { getind(*i, *xr, *xg, *xb); }
ZB_EXPORT void color_(const char* c, int lc) noexcept { color(fstr(c, lc)); }
ZB_EXPORT void setclr_(const int* iclr) noexcept { setclr(*iclr); }
ZB_EXPORT void getclr_(int* iclr) noexcept { getclr(*iclr); }
ZB_EXPORT void setrgb_(const float* xr, const float* xg, const float* xb) noexcept { setrgb(*xr, *xg, *xb); }
ZB_EXPORT void getrgb_(float* xr, float* xg, float* xb) noexcept { getrgb(*xr, *xg, *xb); }
ZB_EXPORT int intrgb_(const float* xr, const float* xg, const float* xb) noexcept { return intrgb(*xr, *xg, *xb); }
ZB_EXPORT int indrgb_(const float* xr, const float* xg, const float* xb) noexcept { return indrgb(*xr, *xg, *xb); }
ZB_EXPORT void hsvrgb_(const float* xh, const float* xs, const float* xv, float* xr, float* xg, float* xb) noexcept { hsvrgb(*xh, *xs, *xv, *xr, *xg, *xb); }
ZB_EXPORT void rgbhsv_(const float* xr, const float* xg, const float* xb, float* xh, float* xs, float* xv) noexcept { rgbhsv(*xr, *xg, *xb, *xh, *xs, *xv); }
ZB_EXPORT void colran_(const int* nlow, const int* nhigh) noexcept { colran(*nlow, *nhigh); }
ZB_EXPORT void getran_(int* nlow, int* nhigh) noexcept { getran(*nlow, *nhigh); }
ZB_EXPORT int ncolor_(const float* z) noexcept { return ncolor(*z); }
ZB_EXPORT int ncollg_(const float* z) noexcept { return ncollg(*z); }
ZB_EXPORT void clrcyc_(const int* i, const int* iclr) noexcept { clrcyc(*i, *iclr); }
ZB_EXPORT void lincyc_(const int* i, const int* ityp) noexcept { lincyc(*i, *ityp); }
ZB_EXPORT void patcyc_(const int* i, const int* ipat) noexcept { patcyc(*i, *ipat); }
ZB_EXPORT void revscr_() noexcept { revscr(); }
ZB_EXPORT void clrmod_(const char* c, int lc) noexcept { clrmod(fstr(c, lc)); }
ZB_EXPORT void vltfil_(const char* cfil, const char* cmod, int lcfil, int lcmod) noexcept { vltfil(fstr(cfil, lcfil), fstr(cmod, lcmod)); }
ZB_EXPORT void shwvlt_() noexcept { shwvlt(); }
ZB_EXPORT void qqgidx_(int* idx, const int* ir, const int* ig, const int* ib) noexcept { *idx = qqgidx(*ir, *ig, *ib); }
ZB_EXPORT void qqgrgb_(const int* iclr, float* xr, float* xg, float* xb) noexcept { qqgrgb(*iclr, *xr, *xg, *xb); }
ZB_EXPORT void gbyt03_(const int* iv, int* i1, int* i2, int* i3) noexcept { gbyt03(*iv, *i1, *i2, *i3); }
