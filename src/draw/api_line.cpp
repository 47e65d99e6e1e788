// Exported routines of the line pipeline.
#include "draw/line.h"
#include "frame/frame.h"

using namespace zb;

ZB_EXPORT void strtqq_(const float* x, const float* y) noexcept { strtqq(*x, *y); }
ZB_EXPORT void connqq_(const float* x, const float* y) noexcept { connqq(*x, *y); }
ZB_EXPORT void lineqq_(const int* ix1, const int* iy1, const int* ix2, const int* iy2) noexcept { lineqq(*ix1, *iy1, *ix2, *iy2); }
ZB_EXPORT void inityp_() noexcept { inityp(); }
ZB_EXPORT void thklin_(const int* ix1, const int* iy1, const int* ix2, const int* iy2) noexcept { thklin(*ix1, *iy1, *ix2, *iy2); }
ZB_EXPORT void thklnx_(const float* x1, const float* y1, const float* x2, const float* y2) noexcept { thklnx(*x1, *y1, *x2, *y2); }
ZB_EXPORT void qqmove_(const float* x, const float* y) noexcept { qqmove(*x, *y); }
ZB_EXPORT void qqdraw_(const float* x, const float* y) noexcept { qqdraw(*x, *y); }
ZB_EXPORT void xline_(const float xray[], const float yray[]) noexcept { xline(xray, yray); }
ZB_EXPORT void qqstrk_() noexcept { qqstrk(); }
ZB_EXPORT void clip2d_(const float* x1, const float* y1, const float* x2, const float* y2) noexcept { clip2d(*x1, *y1, *x2, *y2); }
ZB_EXPORT int jqqclp_(const float* x, const float* y) noexcept { return jqqclp(*x, *y); }
ZB_EXPORT void setclp_() noexcept { setclp(); }
ZB_EXPORT void sclpax_(const int* mode) noexcept { sclpax(*mode); }
ZB_EXPORT void lintyp_(const int* ntyp) noexcept { lintyp(*ntyp); }
ZB_EXPORT void solid_() noexcept { lintyp(0); }
ZB_EXPORT void dot_() noexcept { lintyp(1); }
ZB_EXPORT void dash_() noexcept { lintyp(2); }
ZB_EXPORT void chndsh_() noexcept { lintyp(3); }
ZB_EXPORT void chndot_() noexcept { lintyp(4); }
ZB_EXPORT void dashm_() noexcept { lintyp(5); }
ZB_EXPORT void dotl_() noexcept { lintyp(6); }
ZB_EXPORT void dashl_() noexcept { lintyp(7); }
ZB_EXPORT void myline_(const int nray[], const int* n) noexcept { myline(nray, *n); }
ZB_EXPORT void gettyp_(int* ntyp) noexcept { gettyp(*ntyp); }
ZB_EXPORT void linwid_(const int* nw) noexcept { linwid(*nw); }
ZB_EXPORT void penwid_(const float* xw) noexcept { penwid(*xw); }
ZB_EXPORT void getlin_(int* nw) noexcept { getlin(*nw); }
ZB_EXPORT void lncap_(const char* c, int lc) noexcept { lncap(fstr(c, lc)); }
ZB_EXPORT void lnjoin_(const char* c, int lc) noexcept { lnjoin(fstr(c, lc)); }
ZB_EXPORT void lnmlt_(const float* xf) noexcept { lnmlt(*xf); }
ZB_EXPORT void thkcrv_(const int* n) noexcept { thkcrv(*n); }
ZB_EXPORT void grace_(const int* ngrace) noexcept { grace(*ngrace); }
ZB_EXPORT void clpwin_(const int* nx, const int* ny, const int* nw, const int* nh) noexcept { clpwin(*nx, *ny, *nw, *nh); }
ZB_EXPORT void clpbor_(const char* c, int lc) noexcept { clpbor(fstr(c, lc)); }
ZB_EXPORT void clpmod_(const char* c, int lc) noexcept { clpmod(fstr(c, lc)); }
ZB_EXPORT void noclip_() noexcept { noclip(); }
ZB_EXPORT void getclp_(int* nx, int* ny, int* nw, int* nh) noexcept { getclp(*nx, *ny, *nw, *nh); }
ZB_EXPORT void line_(const int* nx1, const int* ny1, const int* nx2, const int* ny2) noexcept { line(*nx1, *ny1, *nx2, *ny2); }
ZB_EXPORT void rline_(const float* x1, const float* y1, const float* x2, const float* y2) noexcept { rline(*x1, *y1, *x2, *y2); }
ZB_EXPORT void xmove_(const float* x, const float* y) noexcept { xmove(*x, *y); }
ZB_EXPORT void xdraw_(const float* x, const float* y) noexcept { xdraw(*x, *y); }
