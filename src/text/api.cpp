// Exported routines of text: font sets, character settings and the internal routines of the
// stroke alphabets. Strings and numbers are in api_strings.cpp.
#include "frame/frame.h"
#include "text/text.h"

using namespace zb;

ZB_EXPORT void zoralf_() noexcept { zoralf(); }
ZB_EXPORT void complx_() noexcept { complx(); }
ZB_EXPORT void simplx_() noexcept { simplx(); }
ZB_EXPORT void duplx_() noexcept { duplx(); }
ZB_EXPORT void triplx_() noexcept { triplx(); }
ZB_EXPORT void gothic_() noexcept { gothic(); }
ZB_EXPORT void comgot_() noexcept { comgot(); }
ZB_EXPORT void helve_() noexcept { helve(); }
ZB_EXPORT void helves_() noexcept { helves(); }
ZB_EXPORT void helvet_() noexcept { helvet(); }
ZB_EXPORT void serif_() noexcept { serif(); }

ZB_EXPORT void basalf_(const char* c, int lc) noexcept { basalf(fstr(c, lc)); }
ZB_EXPORT void smxalf_(const char* calph, const char* cstr1, const char* cstr2, const int* n, int la, int l1, int l2) noexcept { smxalf(fstr(calph, la), std::string_view(cstr1, std::size_t(l1 > 0 ? l1 : 0)), std::string_view(cstr2, std::size_t(l2 > 0 ? l2 : 0)), *n); }
ZB_EXPORT void gmxalf_(const char* calph, char* cstr1, char* cstr2, int* n, int la, int l1, int l2) noexcept { std::string a, b; gmxalf(fstr(calph, la), a, b, *n); fput(cstr1, l1, a); fput(cstr2, l2, b); }
ZB_EXPORT void getalf_(char* c, int lc) noexcept { fput(c, lc, getalf()); }
ZB_EXPORT void eushft_(const char* cnat, const char* cshf, int ln, int ls) noexcept { eushft(fstr(cnat, ln), std::string_view(cshf, std::size_t(ls > 0 ? ls : 0))); }
ZB_EXPORT void getshf_(const char* cnat, char* cshf, int ln, int ls) noexcept { fput(cshf, ls, getshf(fstr(cnat, ln))); }
ZB_EXPORT void chacod_(const char* c, int lc) noexcept { chacod(fstr(c, lc)); }
ZB_EXPORT void chawth_(const float* xfac) noexcept { chawth(*xfac); }
ZB_EXPORT void chaspc_(const float* xspc) noexcept { chaspc(*xspc); }
ZB_EXPORT void chaang_(const float* angle) noexcept { chaang(*angle); }
ZB_EXPORT void fixspc_(const float* xfac) noexcept { fixspc(*xfac); }
ZB_EXPORT void iangle_(const int* ndeg) noexcept { iangle(*ndeg); }
ZB_EXPORT void shdcha_() noexcept { shdcha(); }

ZB_EXPORT void lcinit_(const int* ifont) noexcept { lcinit(*ifont); }
ZB_EXPORT void lcsets_(const short packed[], const int* n) noexcept { lcsets(packed, *n); }
ZB_EXPORT void lcomro_() noexcept { lcomro(); }
ZB_EXPORT void lcomgr_() noexcept { lcomgr(); }
ZB_EXPORT void lcmath_() noexcept { lcmath(); }
ZB_EXPORT void lcomit_() noexcept { lcomit(); }
ZB_EXPORT void lcital_() noexcept { lcital(); }
ZB_EXPORT void lcomsc_() noexcept { lcomsc(); }
ZB_EXPORT void lcomcy_() noexcept { lcomcy(); }
ZB_EXPORT void lgroma_() noexcept { lgroma(); }
ZB_EXPORT void lgital_() noexcept { lgital(); }
ZB_EXPORT void lgscri_() noexcept { lgscri(); }
ZB_EXPORT void alfcha_(const int* ich) noexcept { alfcha(*ich); }
ZB_EXPORT void salfpa_(const int* ialf) noexcept { salfpa(*ialf); }
ZB_EXPORT void gcspec_(int* idx, int* iflag) noexcept { gcspec(*idx, *iflag); }
ZB_EXPORT void qqgcod_(const int* ich, int* icode) noexcept { *icode = qqgcod(*ich); }
ZB_EXPORT void strsft_(char* c, int lc) noexcept { if (c == nullptr || lc <= 0) return; std::string s(c, std::size_t(lc)); strsft(s); fput(c, lc, s); }
