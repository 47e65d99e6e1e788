// Session start and end, page change, the page-dependent defaults and the origin.
#include "draw/device.h"
#include "draw/line.h"
#include "frame/frame.h"

namespace zb {

void defvar() {
  zg.nxpag = int(zg.fpagx / zg.unitfac + 0.5f);
  zg.nypag = int(zg.fpagy / zg.unitfac + 0.5f);
  zg.nxl0 = int(2.0f * float(zg.nxpag + 1) / 3.0f + 0.5f);
  zg.nyl0 = int(2.0f * float(zg.nypag + 1) / 3.0f + 0.5f);
  zg.nzl0 = zg.nyl0;
  zg.nxa0 = (zg.nxpag - zg.nxl0) / 2;
  zg.nya0 = zg.nypag - jqquni(300);
}

void zorini() {
  if (jqqlev(0, 0, "ZORINI")) return;
  zg.ilevel = 1;
  zg.nvect = 0;
  zg.nwarn = 0;
  zg.nstrk = 0;
  zg.ifin = 0;
  zg.irevscr = zg.iscrset;
  if (zg.irevscr == 4) {
    const int d = zg.idev;
    zg.irevscr = (d == 511 || d == 503 || d == 504 || d == 801) ? 2 : 0;
  }
  if (zg.idev == 0) {
    zg.idev = 201;
    zg.cfmt = "ZMET";
  }
  zorlog();
  defvar();
  zg.nxwin = zg.nywin = 0;
  if (zg.iwsize == 1) {
    zg.nxwin = zg.nxwin0;
    zg.nywin = zg.nywin0;
  }
  if (zg.iwsize == 1 || zg.iwsize == 2) {
    zg.nwimg = zg.nwwin;
    zg.nhimg = zg.nhwin;
  } else if (zg.nxpag <= zg.nypag) {
    zg.nwimg = 603;
    zg.nhimg = 853;
  } else {
    zg.nwimg = 853;
    zg.nhimg = 603;
  }
  zg.ndepth = 8;
  if (zg.idev >= 101) {
    zori02();
    zori03();
  } else {
    zori01();
  }
  resall();
}

void zorfin() {
  if (jqqlev(1, 3, "ZORFIN")) return;
  qqstrk();
  int mode = device_end();
  zg.ilevel = 0;
  zg.ifin = 1;
  zorlog();
  device_after_close();
  if (zg.iwinap == 1 || zg.ierrdv == 1 || zg.lunplt == 6) {
    if (zg.ierrop == 1) {
      lun_close(17);
      mode += 10;
      zg.ierrop = 0;
    }
    if (zg.lunerr == 17) zg.lunerr = 6;
  }
  dprcol(mode);
}

void newpag() {
  if (jqqlev(1, 1, "NEWPAG")) return;
  qqstrk();
  ++zg.npagno;
  device_newpage();
}

void erase() {
  if (jqqlev(1, 3, "ERASE")) return;
  qqstrk();
  device_erase();
}

void origin(int nx, int ny) {
  if (jqqlev(1, 1, "ORIGIN")) return;
  zg.nxorg = nx;
  zg.nyorg = ny;
}

void getor(int& nx, int& ny) {
  chkini("GETOR");
  nx = zg.nxorg;
  ny = zg.nyorg;
}

void getpag(int& nx, int& ny) {
  chkini("GETPAG");
  nx = zg.nxpag + 1;
  ny = zg.nypag + 1;
}

}  // namespace zb
