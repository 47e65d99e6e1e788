// Exported routines of the device layer.
#include <algorithm>

#include "draw/device.h"
#include "frame/frame.h"

using namespace zb;

ZB_EXPORT void metafl_(const char* c, int lc) noexcept { metafl(fstr(c, lc)); }
ZB_EXPORT void getmfl_(char* c, int lc) noexcept { fput(c, lc, getmfl()); }
ZB_EXPORT void xjdraw_(const float* x, const float* y, const int* icode) noexcept { xjdraw(*x, *y, *icode); }
ZB_EXPORT void xjpoly_(const float xray[], const float yray[], const int* n) noexcept { xjpoly(xray, yray, *n); }
ZB_EXPORT void dbox_(const float* x1, const float* y1, const float* x2, const float* y2, const int* iclr) noexcept { dbox(*x1, *y1, *x2, *y2, *iclr); }
ZB_EXPORT void qqsclr_(const int* iclr) noexcept { qqsclr(*iclr); }
ZB_EXPORT void sendbf_() noexcept { sendbf(); }
ZB_EXPORT void qqsbuf_(const char* cbuf, const int* n, int lc) noexcept { qqsbuf(cbuf, std::min(*n, lc)); }
ZB_EXPORT void qpsbuf_(const char* cbuf, const int* n, int lc) noexcept { qpsbuf(cbuf, *n == -1 ? -1 : std::min(*n, lc)); }
ZB_EXPORT void drwpsc_(const float* x, const float* y, const int* icode) noexcept { drwpsc(*x, *y, *icode); }
ZB_EXPORT void inipsc_(const int* lun) noexcept { inipsc(*lun); }
ZB_EXPORT void dtdraw_(const int* ix, const int* iy, const int* icode) noexcept { dtdraw(*ix, *iy, *icode); }
ZB_EXPORT void dtdr12_(const int* ix, const int* iy, const int* icode) noexcept { dtdr12(*ix, *iy, *icode); }
ZB_EXPORT void gtk12b_(const int* ix, const int* iy, char* c, int lc) noexcept { char a[5]; gtk12b(*ix, *iy, a); fput(c, lc, std::string_view(a, 5)); }
