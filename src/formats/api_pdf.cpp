// Exported routines of the PDF output.
#include <algorithm>

#include "formats/pdf.h"
#include "frame/frame.h"

using namespace zb;

ZB_EXPORT void pdfmod_(const char* copt, const char* ckey, int l1, int l2) noexcept { pdfmod(fstr(copt, l1), fstr(ckey, l2)); }
ZB_EXPORT void pdfmrk_(const char* cstr, const char* copt, int l1, int l2) noexcept { pdfmrk(fstr(cstr, l1), fstr(copt, l2)); }
ZB_EXPORT void pdfbuf_(char* cbuf, const int* nmax, int* nlen, int lc) noexcept { pdfbuf(cbuf, std::min(*nmax, std::max(lc, 0)), *nlen); }
ZB_EXPORT void qqpdf8_(const unsigned char p[], const int* n, const float* x, const float* y, const float* w, const float* h, const float* xp, const float* yp, const float* wp, const float* hp, const int* icomp, const int* irot, int* ierr) noexcept { qqpdf8(p, *n, *x, *y, *w, *h, *xp, *yp, *wp, *hp, *icomp, *irot, *ierr); }
