// Exported routines of the page settings.
#include "frame/frame.h"
#include "frame/page.h"

using namespace zb;

ZB_EXPORT void setpag_(const char* c, int lc) noexcept { setpag(fstr(c, lc)); }
ZB_EXPORT void page_(const int* nx, const int* ny) noexcept { page(*nx, *ny); }
ZB_EXPORT void pagera_() noexcept { pagera(); }
ZB_EXPORT void pagmod_(const char* c, int lc) noexcept { pagmod(fstr(c, lc)); }
ZB_EXPORT void pagorg_(const char* c, int lc) noexcept { pagorg(fstr(c, lc)); }
ZB_EXPORT void units_(const char* c, int lc) noexcept { units(fstr(c, lc)); }
ZB_EXPORT void sclfac_(const float* xfac) noexcept { sclfac(*xfac); }
ZB_EXPORT void sclmod_(const char* c, int lc) noexcept { sclmod(fstr(c, lc)); }
ZB_EXPORT void scrmod_(const char* c, int lc) noexcept { scrmod(fstr(c, lc)); }
ZB_EXPORT void hwpage_(const int* nw, const int* nh) noexcept { hwpage(*nw, *nh); }
ZB_EXPORT void hworig_(const int* nx, const int* ny) noexcept { hworig(*nx, *ny); }
