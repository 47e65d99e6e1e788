// Setters of the curves: mode, markers, symbol and size, the attribute cycle, gaps,
// splines and bar width.
#include <cmath>

#include "charts/charts.h"
#include "frame/frame.h"

namespace zb {

void polcrv(std::string_view copt) {
  chkini("POLCRV");
  const int i = jqqind("LINE+STEP+BARS+SPLI+PSPL+STEM+STAI+FBAR", 8, copt);
  if (i != 0) zg.ipolcv = i - 1;
}

void incmrk(int n) {
  chkini("INCMRK");
  zg.nmrk = n;
}

void marker(int nsym) {
  chkini("MARKER");
  // The user symbol of mysymb may take a number beyond the built-in ones.
  const bool user = zg.nmysym != 0 && nsym == zg.imysym;
  if (!user && jqqval(nsym, 0, zg.nsymmx)) return;
  zg.nsym = nsym;
}

void hsymbl(int nh) {
  chkini("HSYMBL");
  if (jqqval(nh, 1, 10000)) return;
  zg.hsym = nh;
}

void chncrv(std::string_view copt) {
  chkini("CHNCRV");
  const int i = jqqind("NONE+COLO+LINE+BOTH", 4, copt);
  if (i != 0) zg.ichncv = i - 1;
}

void inccrv(int n) {
  chkini("INCCRV");
  if (jqqval(n, 1, 1000000)) return;
  zg.ninccv = n;
}

void gapcrv(float xgap) {
  chkini("GAPCRV");
  if (std::isnan(xgap)) {
    warnin(2);
    return;
  }
  zg.xgapcv = xgap;
  zg.igapcv = 1;
}

void splmod(int ngrad, int npts) {
  chkini("SPLMOD");
  if (jqqval(ngrad, 2, 10) || jqqval(npts, 5, 1000000)) return;
  zg.nspord = ngrad;
  zg.nsppts = npts;
}

void barwth(float x) {
  chkini("BARWTH");
  if (!std::isfinite(x)) {
    warnin(2);
    return;
  }
  zg.xbarw = x;
}

void getsym(int& nsym, int& nh) {
  chkini("GETSYM");
  nsym = zg.nsym;
  nh = zg.hsym;
}

}  // namespace zb
