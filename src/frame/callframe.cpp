// The frame every routine opens with: level check, keyword lookup, range and date checks,
// and the first-call initialisation of the process.
#include "frame/frame.h"

#include <bit>

namespace zb {

Zorglb zg;

namespace {
bool g_initialised = false;
}

void first_call_init() {
  zg.xpi = 3.14159274f;
  zg.fpi = 0.0174532924f;
  zg.eps = 1.0e-35f;
  zg.ilittle = std::endian::native == std::endian::little ? 1 : 0;
  zg.lunerr = 6;
  zg.iwarn = 1;
  zg.ilevel = 0;
  zg.idev = 0;
  zg.xsclfac = 1.0f;
  zg.isclmd = 0;
  zg.fpagx = 2969.0f;
  zg.fpagy = 2099.0f;
  zg.cpagfmt = "DA4L";
  zg.unitfac = 1.0f;
  zg.ipgmod = 0;
  zg.iscrset = 4;
  zg.ifilst = zg.ifilmd = zg.ierrdv = zg.ierrnm = zg.ierrop = 0;
  zg.iwsize = zg.ihworg = zg.ihwpag = 0;
  zg.ix11md = 2;
  zg.iwinap = 0;
  zg.ixidkd = 0;
  zg.icgmbg = zg.icgmpc = 0;
  zg.icgmver = 1;
  zg.imgrgb = zg.iwmfmd = zg.ipngtr = zg.igiftr = 0;
  zg.ipdfmod = 1;
  zg.ntifres = 100;
  zg.itifun = 2;
}

int jqqlev(int nmin, int nmax, std::string_view cname) {
  if (!g_initialised) {
    g_initialised = true;
    first_call_init();
  }
  zg.cproc = cname;
  if (nmin <= zg.ilevel && zg.ilevel <= nmax) return 0;
  warni1(3, zg.ilevel);
  return 1;
}

void chkini(std::string_view cname) { jqqlev(1, 3, cname); }

int jqqind(std::string_view clist, int nlist, std::string_view cstr) {
  char key[4] = {' ', ' ', ' ', ' '};
  for (std::size_t i = 0; i < 4 && i < cstr.size(); ++i) key[i] = upper(cstr[i]);
  for (int i = 0; i < nlist; ++i) {
    const std::size_t at = std::size_t(i) * 5;
    if (at >= clist.size()) break;
    bool same = true;
    for (std::size_t k = 0; k < 4; ++k) {
      const char t = at + k < clist.size() ? clist[at + k] : ' ';
      if (t != key[k]) { same = false; break; }
    }
    if (same) return i + 1;
  }
  warnc1(2, cstr);
  return 0;
}

int jqqval(int ival, int nmin, int nmax) {
  if (ival < nmin || (nmin <= nmax && ival > nmax)) {
    warni1(2, ival);
    return 1;
  }
  return 0;
}

int jqqyvl(int iy) {
  if (zg.ipgorg == 0 || zg.iyflip != 0) return iy;
  return zg.nypag - iy;
}

int jqquni(int nval) { return int(float(nval) / zg.unitfac + 0.5f); }

int jqqdat(int iday, int imonth, int iyear) {
  if (iday < 1 || iday > 31) { warni1(2, iday); return 1; }
  if (imonth < 1 || imonth > 12) { warni1(2, imonth); return 1; }
  if (iyear < 1000) { warni1(2, iyear); return 1; }
  if (imonth == 2) {
    const bool leap = (iyear % 4 == 0 && iyear % 100 != 0) || iyear % 400 == 0;
    if (iday > 29 || (iday == 29 && !leap)) { warni1(2, iday); return 1; }
  }
  return 0;
}

void upstr(char* s, int len) {
  const std::string_view v = fstr(s, len);
  for (std::size_t i = 0; i < v.size(); ++i) s[i] = upper(s[i]);
}

float trmlen(std::string_view s) {
  std::size_t n = s.size();
  while (n > 0 && s[n - 1] == ' ') --n;
  return float(n) + 0.5f;
}

void getlev(int& nlev) { nlev = zg.ilevel; }

void reset_process_state() {
  for (int lun : {15, 17}) lun_close(lun);
  zg = Zorglb{};
  g_initialised = false;
}

}  // namespace zb
