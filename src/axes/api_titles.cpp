// Exported routines of titles, grids, frames and the page header.
#include "axes/axes.h"
#include "frame/frame.h"

using namespace zb;

ZB_EXPORT void title_() noexcept { title(); }
ZB_EXPORT void titlin_(const char* cstr, const int* n, int lc) noexcept { titlin(fstr(cstr, lc), *n); }
ZB_EXPORT void titjus_(const char* copt, int lc) noexcept { titjus(fstr(copt, lc)); }
ZB_EXPORT void titpos_(const char* copt, int lc) noexcept { titpos(fstr(copt, lc)); }
ZB_EXPORT void htitle_(const int* nh) noexcept { htitle(*nh); }
ZB_EXPORT void vkytit_(const int* nv) noexcept { vkytit(*nv); }
ZB_EXPORT void lfttit_() noexcept { lfttit(); }
ZB_EXPORT void getcen_(int* ncen) noexcept { getcen(*ncen); }
ZB_EXPORT void grid_(const int* ixgrid, const int* iygrid) noexcept { grid(*ixgrid, *iygrid); }
ZB_EXPORT void axgit_() noexcept { daxgit(3); }
ZB_EXPORT void xaxgit_() noexcept { daxgit(1); }
ZB_EXPORT void yaxgit_() noexcept { daxgit(2); }
ZB_EXPORT void cross_() noexcept { dcross(3); }
ZB_EXPORT void xcross_() noexcept { dcross(1); }
ZB_EXPORT void ycross_() noexcept { dcross(2); }
ZB_EXPORT void frame_(const int* n) noexcept { frame(*n); }
ZB_EXPORT void frmclr_(const int* iclr) noexcept { frmclr(*iclr); }
ZB_EXPORT void box2d_() noexcept { box2d(); }
ZB_EXPORT void paghdr_(const char* cstr1, const char* cstr2, const int* iopt, const int* idir, int l1, int l2) noexcept { paghdr(fstr(cstr1, l1), fstr(cstr2, l2), *iopt, *idir); }
