// Exported routines of the curves.
#include "charts/charts.h"
#include "frame/frame.h"

using namespace zb;

ZB_EXPORT void curve_(const float xray[], const float yray[], const int* n) noexcept { curve(xray, yray, *n); }
ZB_EXPORT void polcrv_(const char* copt, int lc) noexcept { polcrv(fstr(copt, lc)); }
ZB_EXPORT void incmrk_(const int* n) noexcept { incmrk(*n); }
ZB_EXPORT void marker_(const int* nsym) noexcept { marker(*nsym); }
ZB_EXPORT void hsymbl_(const int* nh) noexcept { hsymbl(*nh); }
ZB_EXPORT void chncrv_(const char* copt, int lc) noexcept { chncrv(fstr(copt, lc)); }
ZB_EXPORT void inccrv_(const int* n) noexcept { inccrv(*n); }
ZB_EXPORT void gapcrv_(const float* xgap) noexcept { gapcrv(*xgap); }
ZB_EXPORT void splmod_(const int* ngrad, const int* npts) noexcept { splmod(*ngrad, *npts); }
ZB_EXPORT void barwth_(const float* x) noexcept { barwth(*x); }
ZB_EXPORT void getsym_(int* nsym, int* nh) noexcept { getsym(*nsym, *nh); }
ZB_EXPORT void spline_(const float xray[], const float yray[], const int* n, float xout[], float yout[], int* nout) noexcept { spline(xray, yray, *n, xout, yout, *nout); }
