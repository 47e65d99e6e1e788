// Record fields of the call frame, the session and the page: levels, warning channel,
// output choice, plot file and page geometry.
#pragma once
#include "util/fstr.h"

namespace zb {

struct FrameState {
  // Constants set by the first-call initialisation.
  float xpi = 3.14159274f;       // pi
  float fpi = 0.0174532924f;     // degrees to radians
  float eps = 1.0e-35f;          // what tests of reals take for zero
  int ilittle = 1;               // 1 on a little-endian host

  // Call frame and warnings.
  int ilevel = 0;
  FStr<8> cproc;
  FStr<60> cerrmsg;
  int nwarn = 0;
  int lunerr = 6;                // 6 stdout, 17 error file, 0 silent, other: caller's channel
  int iwarn = 1, iprot = 1, ichek = 1;
  int ierrdv = 0, ierrnm = 0, ierrop = 0;
  FStr<256> cerrfl;
  int lunplt = 0;
  int ilsechk = 0;               // lsechk: stored only
  int iyflip = 0;                // guard against flipping y twice (pagorg BOTT)

  // Session and output file.
  int idev = 0;
  FStr<4> cfmt;
  FStr<256> cplotfl;
  int ifin = 0, ifilst = 0, ifilmd = 0;

  // Page.
  float fpagx = 2969.0f, fpagy = 2099.0f;
  FStr<4> cpagfmt = FStr<4>("DA4L");
  int nxpag = 2969, nypag = 2099;
  float unitfac = 1.0f, xsclfac = 1.0f;
  int isclmd = 0, ipgmod = 0, ipgorg = 0;
  int iscrset = 4, irevscr = 0;
  int nxorg = 0, nyorg = 0;

  // Library files.
  FStr<256> cdatdir;
  int ldatdir = 0;
  int nrecio = 0;
  int ilogdn = 0;                // 1 once the usage log was written (once per process)

  bool operator==(const FrameState&) const = default;
};

}  // namespace zb
