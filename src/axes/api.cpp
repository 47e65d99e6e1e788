// Exported routines of the 2-D axis system.
#include "axes/axes.h"
#include "frame/frame.h"

using namespace zb;

ZB_EXPORT void qqpos2_(const float* xu, const float* yu, float* xp, float* yp) noexcept { qqpos2(*xu, *yu, *xp, *yp); }
ZB_EXPORT void qqrel2_(const float* xu, const float* yu, float* xp, float* yp) noexcept { qqrel2(*xu, *yu, *xp, *yp); }
ZB_EXPORT float xposn_(const float* x) noexcept { return xposn(*x); }
ZB_EXPORT float yposn_(const float* y) noexcept { return yposn(*y); }
ZB_EXPORT int nxposn_(const float* x) noexcept { return nxposn(*x); }
ZB_EXPORT int nyposn_(const float* y) noexcept { return nyposn(*y); }
ZB_EXPORT float xinvrs_(const int* n) noexcept { return xinvrs(*n); }
ZB_EXPORT float yinvrs_(const int* n) noexcept { return yinvrs(*n); }
ZB_EXPORT void graf_(float* xa, float* xe, float* xor0, float* xstp, float* ya, float* ye, float* yor, float* ystp) noexcept { graf(*xa, *xe, *xor0, *xstp, *ya, *ye, *yor, *ystp); }
ZB_EXPORT void endgrf_() noexcept { endgrf(); }
ZB_EXPORT void setscl_(const float xray[], const int* n, const char* cstr, int lc) noexcept { setscl(xray, *n, fstr(cstr, lc)); }
ZB_EXPORT void axslen_(const int* nx, const int* ny) noexcept { axslen(*nx, *ny); }
ZB_EXPORT void axspos_(const int* nx, const int* ny) noexcept { axspos(*nx, *ny); }
ZB_EXPORT void axsorg_(const int* nx, const int* ny) noexcept { axsorg(*nx, *ny); }
ZB_EXPORT void axstyp_(const char* copt, int lc) noexcept { axstyp(fstr(copt, lc)); }
ZB_EXPORT void axsscl_(const char* copt, const char* cax, int lc1, int lc2) noexcept { axsscl(fstr(copt, lc1), fstr(cax, lc2)); }
ZB_EXPORT void scale_(const char* copt, const char* cax, int lc1, int lc2) noexcept { axsscl(fstr(copt, lc1), fstr(cax, lc2)); }
ZB_EXPORT void center_() noexcept { center(); }
ZB_EXPORT void axsbgd_(const int* nclr) noexcept { axsbgd(*nclr); }
ZB_EXPORT void setgrf_(const char* c1, const char* c2, const char* c3, const char* c4, int l1, int l2, int l3, int l4) noexcept { setgrf(fstr(c1, l1), fstr(c2, l2), fstr(c3, l3), fstr(c4, l4)); }
ZB_EXPORT void ax2grf_() noexcept { ax2grf(); }
ZB_EXPORT void nograf_() noexcept { nograf(); }
ZB_EXPORT void neglog_(const float* x) noexcept { neglog(*x); }
ZB_EXPORT void nochek_() noexcept { nochek(); }
ZB_EXPORT void getpos_(int* nx, int* ny) noexcept { getpos(*nx, *ny); }
ZB_EXPORT void getlen_(int* nx, int* ny, int* nz) noexcept { getlen(*nx, *ny, *nz); }
ZB_EXPORT void getscl_(int* nx, int* ny, int* nz) noexcept { getscl(*nx, *ny, *nz); }
ZB_EXPORT void xaxis_(const float* xa, const float* xe, const float* xor0, const float* xstp, const int* nlen, const char* cstr, const int* it, const int* nx, const int* ny, int lc) noexcept { xaxis(*xa, *xe, *xor0, *xstp, *nlen, fstr(cstr, lc), *it, *nx, *ny); }
ZB_EXPORT void yaxis_(const float* xa, const float* xe, const float* xor0, const float* xstp, const int* nlen, const char* cstr, const int* it, const int* nx, const int* ny, int lc) noexcept { yaxis(*xa, *xe, *xor0, *xstp, *nlen, fstr(cstr, lc), *it, *nx, *ny); }
ZB_EXPORT void xaxlg_(const float* xa, const float* xe, const float* xor0, const float* xstp, const int* nlen, const char* cstr, const int* it, const int* nx, const int* ny, int lc) noexcept { xaxlg(*xa, *xe, *xor0, *xstp, *nlen, fstr(cstr, lc), *it, *nx, *ny); }
ZB_EXPORT void yaxlg_(const float* xa, const float* xe, const float* xor0, const float* xstp, const int* nlen, const char* cstr, const int* it, const int* nx, const int* ny, int lc) noexcept { yaxlg(*xa, *xe, *xor0, *xstp, *nlen, fstr(cstr, lc), *it, *nx, *ny); }
ZB_EXPORT void labels_(const char* copt, const char* cax, int lc1, int lc2) noexcept { labels(fstr(copt, lc1), fstr(cax, lc2)); }
ZB_EXPORT void labdig_(const int* ndig, const char* cax, int lc) noexcept { labdig(*ndig, fstr(cax, lc)); }
ZB_EXPORT void digits_(const int* ndig, const char* cax, int lc) noexcept { labdig(*ndig, fstr(cax, lc)); }
ZB_EXPORT void labdis_(const int* ndis, const char* cax, int lc) noexcept { labdis(*ndis, fstr(cax, lc)); }
ZB_EXPORT void labpos_(const char* copt, const char* cax, int lc1, int lc2) noexcept { labpos(fstr(copt, lc1), fstr(cax, lc2)); }
ZB_EXPORT void labjus_(const char* copt, const char* cax, int lc1, int lc2) noexcept { labjus(fstr(copt, lc1), fstr(cax, lc2)); }
ZB_EXPORT void labtyp_(const char* copt, const char* cax, int lc1, int lc2) noexcept { labtyp(fstr(copt, lc1), fstr(cax, lc2)); }
ZB_EXPORT void ticks_(const int* ntics, const char* cax, int lc) noexcept { ticks(*ntics, fstr(cax, lc)); }
ZB_EXPORT void ticlen_(const int* nmaj, const int* nmin) noexcept { ticlen(*nmaj, *nmin); }
ZB_EXPORT void ticpos_(const char* copt, const char* cax, int lc1, int lc2) noexcept { ticpos(fstr(copt, lc1), fstr(cax, lc2)); }
ZB_EXPORT void logtic_(const char* copt, int lc) noexcept { logtic(fstr(copt, lc)); }
ZB_EXPORT void name_(const char* cstr, const char* cax, int lc1, int lc2) noexcept { name(fstr(cstr, lc1), fstr(cax, lc2)); }
ZB_EXPORT void hname_(const int* nh) noexcept { hname(*nh); }
ZB_EXPORT void namdis_(const int* ndis, const char* cax, int lc) noexcept { namdis(*ndis, fstr(cax, lc)); }
ZB_EXPORT void namjus_(const char* copt, const char* cax, int lc1, int lc2) noexcept { namjus(fstr(copt, lc1), fstr(cax, lc2)); }
ZB_EXPORT void rvynam_() noexcept { rvynam(); }
ZB_EXPORT void axends_(const char* copt, const char* cax, int lc1, int lc2) noexcept { axends(fstr(copt, lc1), fstr(cax, lc2)); }
ZB_EXPORT void intax_() noexcept { intax(); }
ZB_EXPORT void noline_(const char* cax, int lc) noexcept { noline(fstr(cax, lc)); }
ZB_EXPORT void axclrs_(const int* nclr, const char* copt, const char* cax, int lc1, int lc2) noexcept { axclrs(*nclr, fstr(copt, lc1), fstr(cax, lc2)); }
ZB_EXPORT void mylab_(const char* cstr, const int* itick, const char* cax, int lc1, int lc2) noexcept { mylab(fstr(cstr, lc1), *itick, fstr(cax, lc2)); }
ZB_EXPORT void rgtlab_() noexcept { rgtlab(); }
ZB_EXPORT void timopt_() noexcept { timopt(); }
ZB_EXPORT void getlab_(char* cx, char* cy, char* cz, int lx, int ly, int lz) noexcept { std::string a, b, c; getlab(a, b, c); fput(cx, lx, a); fput(cy, ly, b); fput(cz, lz, c); }
ZB_EXPORT void getsp1_(int* n1, int* n2, int* n3) noexcept { getsp1(*n1, *n2, *n3); }
ZB_EXPORT void getsp2_(int* n1, int* n2, int* n3) noexcept { getsp2(*n1, *n2, *n3); }
ZB_EXPORT void gettic_(int* n1, int* n2, int* n3) noexcept { gettic(*n1, *n2, *n3); }
ZB_EXPORT void getdig_(int* n1, int* n2, int* n3) noexcept { getdig(*n1, *n2, *n3); }
ZB_EXPORT void gettcl_(int* nmaj, int* nmin) noexcept { gettcl(*nmaj, *nmin); }
ZB_EXPORT void gethnm_(int* nh) noexcept { gethnm(*nh); }
