// Exported routines of strings and numbers: drawing, measuring, the settings of text, the
// control characters and the internal routines of number texts and instructions.
#include "frame/frame.h"
#include "text/text.h"

using namespace zb;

namespace {

// A character argument as it stands, blanks included.
std::string_view raw(const char* c, int lc) { return c == nullptr || lc <= 0 ? std::string_view() : std::string_view(c, std::size_t(lc)); }

}  // namespace

ZB_EXPORT void messag_(const char* c, const int* nx, const int* ny, int lc) noexcept { messag(fstr(c, lc), *nx, *ny); }
ZB_EXPORT void rlmess_(const char* c, const float* x, const float* y, int lc) noexcept { rlmess(fstr(c, lc), *x, *y); }
ZB_EXPORT void number_(const float* x, const int* ndig, const int* nx, const int* ny) noexcept { number(*x, *ndig, *nx, *ny); }
ZB_EXPORT void rlnumb_(const float* x, const int* ndig, const float* xp, const float* yp) noexcept { rlnumb(*x, *ndig, *xp, *yp); }
ZB_EXPORT int nlmess_(const char* c, int lc) noexcept { return nlmess(fstr(c, lc)); }
ZB_EXPORT int nlnumb_(const float* x, const int* ndig) noexcept { return nlnumb(*x, *ndig); }
ZB_EXPORT void height_(const int* nh) noexcept { height(*nh); }
ZB_EXPORT void angle_(const int* nang) noexcept { angle(*nang); }
ZB_EXPORT void txtjus_(const char* c, int lc) noexcept { txtjus(fstr(c, lc)); }
ZB_EXPORT void numfmt_(const char* c, int lc) noexcept { numfmt(fstr(c, lc)); }
ZB_EXPORT void numode_(const char* cdec, const char* cgrp, const char* csign, const char* cfix, int l1, int l2, int l3, int l4) noexcept { numode(fstr(cdec, l1), fstr(cgrp, l2), fstr(csign, l3), fstr(cfix, l4)); }
ZB_EXPORT void linesp_(const float* xfac) noexcept { linesp(*xfac); }
ZB_EXPORT void frmess_(const int* nfrm) noexcept { frmess(*nfrm); }
ZB_EXPORT void getang_(int* nang) noexcept { getang(*nang); }
ZB_EXPORT void gethgt_(int* nh) noexcept { gethgt(*nh); }

ZB_EXPORT void mixalf_() noexcept { mixalf(); }
ZB_EXPORT void setmix_(const char* cchar, const char* cmix, int lc, int lm) noexcept { setmix(raw(cchar, lc), fstr(cmix, lm)); }
ZB_EXPORT void getmix_(char* cchar, const char* cmix, int lc, int lm) noexcept { fput(cchar, lc, getmix(fstr(cmix, lm))); }
ZB_EXPORT void newmix_() noexcept { newmix(); }
ZB_EXPORT void setbas_(const float* xfac) noexcept { setbas(*xfac); }
ZB_EXPORT void setexp_(const float* xfac) noexcept { setexp(*xfac); }

ZB_EXPORT void qqmess_(const char* c, const int* nx, const int* ny, int lc) noexcept { qqmess(fstr(c, lc), *nx, *ny); }
ZB_EXPORT void dtext_(const char* c, const int* nx, const int* ny, const int* nang, const int* nh, int lc) noexcept { dtext(fstr(c, lc), *nx, *ny, *nang, *nh); }
ZB_EXPORT void qqgmsg_(const char* c, int* nheight, int* ndepth, int* nlen, int lc) noexcept { qqgmsg(fstr(c, lc), *nheight, *ndepth, *nlen); }
ZB_EXPORT void inscmd_(const char* c, const int* n, int lc) noexcept { inscmd(raw(c, lc), *n); }
ZB_EXPORT void smixal_(const int* ich, int* ialf, int* iflag) noexcept { *iflag = smixal(*ich, *ialf) ? 1 : 0; }
ZB_EXPORT void fcha_(const float* x, const int* ndig, int* nlen, char* c, int lc) noexcept { std::string s; fcha(*x, *ndig, *nlen, s); fput(c, lc, s); }
ZB_EXPORT void flen_(const float* x, const int* ndig, int* nlen) noexcept { flen(*x, *ndig, *nlen); }
ZB_EXPORT void gexpno_(const float* x, const int* ndig, int* nlen, char* c, const int* iopt, int lc) noexcept { std::string s; gexpno(*x, *ndig, *nlen, s, *iopt); fput(c, lc, s); }
ZB_EXPORT void intcha_(const int* n, int* nlen, char* c, int lc) noexcept { std::string s; intcha(*n, *nlen, s); fput(c, lc, s); }
ZB_EXPORT void gnustr_(char* c, int* nlen, const char* cmode, int lc, int lm) noexcept { std::string s(raw(c, lc)); gnustr(s, *nlen, raw(cmode, lm)); fput(c, lc, s); }
