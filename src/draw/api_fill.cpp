// Exported routines of area fill and hatching.
#include "draw/fill.h"
#include "frame/frame.h"

using namespace zb;

ZB_EXPORT void areaf_(const int nxray[], const int nyray[], const int* n) noexcept { areaf(nxray, nyray, *n); }
ZB_EXPORT void shdpat_(const int* ipat) noexcept { shdpat(*ipat); }
ZB_EXPORT void mypat_(const int* iangle, const int* itype, const int* idens, const int* icross) noexcept { mypat(*iangle, *itype, *idens, *icross); }
ZB_EXPORT void getpat_(int* ipat) noexcept { getpat(*ipat); }
ZB_EXPORT void noarln_() noexcept { noarln(); }
ZB_EXPORT void dareaf_(const float xray[], const float yray[], const int* n) noexcept { dareaf(xray, yray, *n); }
ZB_EXPORT void arealx_(const float xray[], const float yray[], const int* n) noexcept { arealx(xray, yray, *n); }
ZB_EXPORT void gkwfa_(const int* n, const float xray[], const float yray[], const float* xstep, void (*span)(const float*, const float*)) noexcept { gkwfa(*n, xray, yray, *xstep, span); }
ZB_EXPORT void dlinef_(const float xpair[], const float ypair[]) noexcept { dlinef(xpair, ypair); }
ZB_EXPORT void ffllin_(const float xpair[], const float ypair[]) noexcept { ffllin(xpair, ypair); }
ZB_EXPORT void trfro2_(float xray[], float yray[], const int* n, const float* xsin, const float* xcos) noexcept { trfro2(xray, yray, *n, *xsin, *xcos); }
