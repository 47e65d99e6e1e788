// Exported routines of the raster folder.
#include "frame/frame.h"
#include "raster/raster.h"

using namespace zb;

ZB_EXPORT void imgini_() noexcept { imgini(); }
ZB_EXPORT void imgfin_() noexcept { imgfin(); }
ZB_EXPORT void imgbox_(const int* nx, const int* ny, const int* nw, const int* nh) noexcept { imgbox(*nx, *ny, *nw, *nh); }
ZB_EXPORT void imgclp_(const int* nx, const int* ny, const int* nw, const int* nh) noexcept { imgclp(*nx, *ny, *nw, *nh); }
ZB_EXPORT void imgsiz_(const int* nw, const int* nh) noexcept { imgsiz(*nw, *nh); }
ZB_EXPORT void imgfmt_(const char* copt, int lc) noexcept { imgfmt(fstr(copt, lc)); }
ZB_EXPORT void imgmod_(const char* copt, int lc) noexcept { imgmod(fstr(copt, lc)); }
ZB_EXPORT void window_(const int* nx, const int* ny, const int* nw, const int* nh) noexcept { window(*nx, *ny, *nw, *nh); }
ZB_EXPORT void winsiz_(const int* nw, const int* nh) noexcept { winsiz(*nw, *nh); }
ZB_EXPORT void rtiff_(const char* cfil, int lc) noexcept { rtiff(fstr(cfil, lc)); }
ZB_EXPORT void rpng_(const char* cfil, int lc) noexcept { rpng(fstr(cfil, lc)); }
ZB_EXPORT void rppm_(const char* cfil, int lc) noexcept { rppm(fstr(cfil, lc)); }
ZB_EXPORT void rbmp_(const char* cfil, int lc) noexcept { rbmp(fstr(cfil, lc)); }
ZB_EXPORT void rgif_(const char* cfil, int lc) noexcept { rgif(fstr(cfil, lc)); }
ZB_EXPORT void rbfpng_(char cbuf[], const int* nmax, int* nlen) noexcept { rbfpng(cbuf, *nmax, *nlen); }
ZB_EXPORT void pngmod_(const char* copt, const char* ckey, int lc1, int lc2) noexcept { pngmod(fstr(copt, lc1), fstr(ckey, lc2)); }
ZB_EXPORT void gifmod_(const char* copt, const char* ckey, int lc1, int lc2) noexcept { gifmod(fstr(copt, lc1), fstr(ckey, lc2)); }
ZB_EXPORT void tifmod_(const int* n, const char* cunit, const char* ckey, int lc1, int lc2) noexcept { tifmod(*n, fstr(cunit, lc1), fstr(ckey, lc2)); }
ZB_EXPORT void qqvlin_(const int* ix1, const int* iy1, const int* ix2, const int* iy2) noexcept { qqvlin(*ix1, *iy1, *ix2, *iy2); }
ZB_EXPORT void qqvfll_(const int* ix1, const int* iy1, const int* ix2, const int* iy2, const int* iclr) noexcept { qqvfll(*ix1, *iy1, *ix2, *iy2, *iclr); }
ZB_EXPORT void qqvftr_(const int x[], const int y[], const int* iclr) noexcept { qqvftr(x, y, *iclr); }
ZB_EXPORT void qqvwpx_(const int* ix, const int* iy, const int* iclr) noexcept { qqvwpx(*ix, *iy, *iclr); }
ZB_EXPORT void qqvrpx_(const int* ix, const int* iy, int* iclr, const int* iflag) noexcept { qqvrpx(*ix, *iy, *iclr, *iflag); }
ZB_EXPORT void qqvclr_(const int* iclr) noexcept { qqvclr(*iclr); }
ZB_EXPORT void qqvers_() noexcept { qqvers(); }
ZB_EXPORT int qqgind_(const int* ir, const int* ig, const int* ib) noexcept { return qqgind(*ir, *ig, *ib); }
