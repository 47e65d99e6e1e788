// Exported routines of the geometric primitives.
#include "draw/prims.h"
#include "frame/frame.h"

using namespace zb;

ZB_EXPORT void circle_(const int* nx, const int* ny, const int* nr) noexcept { zb::circle(*nx, *ny, *nr); }
ZB_EXPORT void ellips_(const int* nx, const int* ny, const int* na, const int* nb) noexcept { zb::ellips(*nx, *ny, *na, *nb); }
ZB_EXPORT void arcell_(const int* nx, const int* ny, const int* na, const int* nb, const float* alpha, const float* beta, const float* theta) noexcept { zb::arcell(*nx, *ny, *na, *nb, *alpha, *beta, *theta); }
ZB_EXPORT void pie_(const int* nx, const int* ny, const int* nr, const float* alpha, const float* beta) noexcept { zb::pie(*nx, *ny, *nr, *alpha, *beta); }
ZB_EXPORT void rectan_(const int* nx, const int* ny, const int* nw, const int* nh) noexcept { zb::rectan(*nx, *ny, *nw, *nh); }
ZB_EXPORT void rndrec_(const int* nx, const int* ny, const int* nw, const int* nh, const int* iopt) noexcept { zb::rndrec(*nx, *ny, *nw, *nh, *iopt); }
ZB_EXPORT void sector_(const int* nx, const int* ny, const int* nr1, const int* nr2, const float* alpha, const float* beta, const int* ncol) noexcept { zb::sector(*nx, *ny, *nr1, *nr2, *alpha, *beta, *ncol); }
ZB_EXPORT void symbol_(const int* nsym, const int* nx, const int* ny) noexcept { zb::symbol(*nsym, *nx, *ny); }
ZB_EXPORT void vector_(const int* nx1, const int* ny1, const int* nx2, const int* ny2, const int* ivec) noexcept { zb::vector(*nx1, *ny1, *nx2, *ny2, *ivec); }
ZB_EXPORT void trifll_(const float xray[], const float yray[]) noexcept { zb::trifll(xray, yray); }
ZB_EXPORT void point_(const int* nx, const int* ny, const int* nb, const int* nh, const int* ncol) noexcept { zb::point(*nx, *ny, *nb, *nh, *ncol); }
ZB_EXPORT void recfll_(const int* nx, const int* ny, const int* nw, const int* nh, const int* ncol) noexcept { zb::recfll(*nx, *ny, *nw, *nh, *ncol); }
ZB_EXPORT void pagfll_(const int* ncol) noexcept { zb::pagfll(*ncol); }
ZB_EXPORT void strtpt_(const float* x, const float* y) noexcept { zb::strtpt(*x, *y); }
ZB_EXPORT void connpt_(const float* x, const float* y) noexcept { zb::connpt(*x, *y); }
ZB_EXPORT void xpolyl_(const float xray[], const float yray[], const int* n) noexcept { zb::xpolyl(xray, yray, *n); }
ZB_EXPORT void windbr_(const float* xv, const int* nx, const int* ny, const int* nw, const float* a) noexcept { zb::windbr(*xv, *nx, *ny, *nw, *a); }
ZB_EXPORT void circsp_(const int* nspc) noexcept { zb::circsp(*nspc); }
ZB_EXPORT void symrot_(const float* xang) noexcept { zb::symrot(*xang); }
ZB_EXPORT void mysymb_(const float xray[], const float yray[], const int* n, const int* isym, const int* iflag) noexcept { zb::mysymb(xray, yray, *n, *isym, *iflag); }
ZB_EXPORT void bezier_(const float xray[], const float yray[], const int* n, float xpray[], float ypray[], const int* np) noexcept { zb::bezier(xray, yray, *n, xpray, ypray, *np); }
ZB_EXPORT void circ3p_(const float* x1, const float* y1, const float* x2, const float* y2, const float* x3, const float* y3, float* xm, float* ym, float* r) noexcept { zb::circ3p(*x1, *y1, *x2, *y2, *x3, *y3, *xm, *ym, *r); }
ZB_EXPORT void pointx_(const float* x, const float* y, const int* nb, const int* nh, const int* ncol) noexcept { zb::pointx(*x, *y, *nb, *nh, *ncol); }
ZB_EXPORT void rlpoin_(const float* x, const float* y, const int* nb, const int* nh, const int* ncol) noexcept { zb::rlpoin(*x, *y, *nb, *nh, *ncol); }
ZB_EXPORT void rlarc_(const float* xm, const float* ym, const float* xa, const float* xb, const float* alpha, const float* beta, const float* theta) noexcept { zb::rlarc(*xm, *ym, *xa, *xb, *alpha, *beta, *theta); }
ZB_EXPORT void rlarea_(const float xray[], const float yray[], const int* n) noexcept { zb::rlarea(xray, yray, *n); }
ZB_EXPORT void rlcirc_(const float* xm, const float* ym, const float* r) noexcept { zb::rlcirc(*xm, *ym, *r); }
ZB_EXPORT void rlconn_(const float* x, const float* y) noexcept { zb::rlconn(*x, *y); }
ZB_EXPORT void rlell_(const float* xm, const float* ym, const float* a, const float* b) noexcept { zb::rlell(*xm, *ym, *a, *b); }
ZB_EXPORT void rlpie_(const float* xm, const float* ym, const float* r, const float* alpha, const float* beta) noexcept { zb::rlpie(*xm, *ym, *r, *alpha, *beta); }
ZB_EXPORT void rlrec_(const float* x, const float* y, const float* w, const float* h) noexcept { zb::rlrec(*x, *y, *w, *h); }
ZB_EXPORT void rlrnd_(const float* x, const float* y, const float* w, const float* h, const int* iopt) noexcept { zb::rlrnd(*x, *y, *w, *h, *iopt); }
ZB_EXPORT void rlsec_(const float* xm, const float* ym, const float* r1, const float* r2, const float* alpha, const float* beta, const int* ncol) noexcept { zb::rlsec(*xm, *ym, *r1, *r2, *alpha, *beta, *ncol); }
ZB_EXPORT void rlstrt_(const float* x, const float* y) noexcept { zb::rlstrt(*x, *y); }
ZB_EXPORT void rlsymb_(const int* nsym, const float* x, const float* y) noexcept { zb::rlsymb(*nsym, *x, *y); }
ZB_EXPORT void rlvec_(const float* x1, const float* y1, const float* x2, const float* y2, const int* ivec) noexcept { zb::rlvec(*x1, *y1, *x2, *y2, *ivec); }
ZB_EXPORT void rlwind_(const float* xv, const float* x, const float* y, const int* nw, const float* a) noexcept { zb::rlwind(*xv, *x, *y, *nw, *a); }
ZB_EXPORT void elpsln_(const int* nx, const int* ny, const int* nr1, const int* nr2, const float* alpha, const float* beta, const float* theta, const int* iline, const int* iclose) noexcept { zb::elpsln(*nx, *ny, *nr1, *nr2, *alpha, *beta, *theta, *iline, *iclose); }
ZB_EXPORT void dsymbl_(const int* nsym, const int* nx, const int* ny) noexcept { zb::dsymbl(*nsym, *nx, *ny); }
ZB_EXPORT void kdarc_(const int* nx, const int* ny, const int* nr2, const int* nr1, const float* beta, const float* alpha, const int* ipat) noexcept { zb::kdarc(*nx, *ny, *nr2, *nr1, *beta, *alpha, *ipat); }
