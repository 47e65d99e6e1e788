// Exported routines of the call frame and the session.
#include "frame/frame.h"

using namespace zb;

ZB_EXPORT int jqqlev_(const int* nmin, const int* nmax, const char* c, int lc) noexcept { return jqqlev(*nmin, *nmax, fstr(c, lc)); }
ZB_EXPORT void chkini_(const char* c, int lc) noexcept { chkini(fstr(c, lc)); }
ZB_EXPORT int jqqind_(const char* clist, const int* nlist, const char* cstr, int lclist, int lcstr) noexcept { return jqqind(std::string_view(clist, std::size_t(lclist > 0 ? lclist : 0)), *nlist, std::string_view(cstr, std::size_t(lcstr > 0 ? lcstr : 0))); }
ZB_EXPORT int jqqval_(const int* ival, const int* nmin, const int* nmax) noexcept { return jqqval(*ival, *nmin, *nmax); }
ZB_EXPORT int jqqyvl_(const int* iy) noexcept { return jqqyvl(*iy); }
ZB_EXPORT int jqquni_(const int* nval) noexcept { return jqquni(*nval); }
ZB_EXPORT int jqqdat_(const int* iday, const int* imonth, const int* iyear) noexcept { return jqqdat(*iday, *imonth, *iyear); }
ZB_EXPORT void upstr_(char* c, int lc) noexcept { upstr(c, lc); }
ZB_EXPORT float trmlen_(const char* c, int lc) noexcept { return trmlen(std::string_view(c, std::size_t(lc > 0 ? lc : 0))); }
ZB_EXPORT void getlev_(int* nlev) noexcept { getlev(*nlev); }
ZB_EXPORT void warnin_(const int* icode) noexcept { warnin(*icode); }
ZB_EXPORT void warni1_(const int* icode, const int* ival) noexcept { warni1(*icode, *ival); }
ZB_EXPORT void warnc1_(const int* icode, const char* c, int lc) noexcept { warnc1(*icode, fstr(c, lc)); }
ZB_EXPORT void errmes_(const int* icode) noexcept { errmes(*icode); }
ZB_EXPORT void qqserr_(const char* c, int lc) noexcept { qqserr(fstr(c, lc)); }
ZB_EXPORT void qqerrfil_() noexcept { qqerrfil(); }
ZB_EXPORT void errmod_(const char* cstr, const char* cmod, int lcstr, int lcmod) noexcept { errmod(fstr(cstr, lcstr), fstr(cmod, lcmod)); }
ZB_EXPORT void errdev_(const char* c, int lc) noexcept { errdev(fstr(c, lc)); }
ZB_EXPORT void errfil_(const char* c, int lc) noexcept { errfil(fstr(c, lc)); }
ZB_EXPORT void unit_(const int* nu) noexcept { unit(*nu); }
ZB_EXPORT void getuni_(int* nu) noexcept { getuni(*nu); }
ZB_EXPORT void lsechk_(const char* c, int lc) noexcept { lsechk(fstr(c, lc)); }
ZB_EXPORT void zorini_() noexcept { zorini(); }
ZB_EXPORT void zorfin_() noexcept { zorfin(); }
ZB_EXPORT void newpag_() noexcept { newpag(); }
ZB_EXPORT void erase_() noexcept { erase(); }
ZB_EXPORT void reset_(const char* c, int lc) noexcept { reset(fstr(c, lc)); }
ZB_EXPORT void resall_() noexcept { resall(); }
ZB_EXPORT void defvar_() noexcept { defvar(); }
ZB_EXPORT void zorlog_() noexcept { zorlog(); }
ZB_EXPORT void setfil_(const char* c, int lc) noexcept { setfil(fstr(c, lc)); }
ZB_EXPORT void getfil_(char* c, int lc) noexcept { fput(c, lc, getfil()); }
ZB_EXPORT void filmod_(const char* c, int lc) noexcept { filmod(fstr(c, lc)); }
ZB_EXPORT void gfilnn_(char* c, int lc) noexcept { std::string s(fstr(c, lc)); gfilnn(s); fput(c, lc, s); }
ZB_EXPORT void origin_(const int* nx, const int* ny) noexcept { origin(*nx, *ny); }
ZB_EXPORT void getor_(int* nx, int* ny) noexcept { getor(*nx, *ny); }
ZB_EXPORT void getpag_(int* nx, int* ny) noexcept { getpag(*nx, *ny); }
ZB_EXPORT void sopnfl_(const int* kind, int* lun, int* ierr) noexcept { sopnfl(*kind, *lun, *ierr); }
ZB_EXPORT void qqgetenv_(const char* cname, char* cval, int lcname, int lcval) noexcept { fput(cval, lcval, qqgetenv(fstr(cname, lcname))); }
ZB_EXPORT void gusrid_(char* cuser, int* nl, int lc) noexcept { std::string u = gusrid(); *nl = int(u.size()); fput(cuser, lc, u); }
ZB_EXPORT void qqopen_(const int* lun, const char* cfil, const int* mode, int* ierr, int lc) noexcept { qqopen(*lun, fstr(cfil, lc), *mode, *ierr); }
