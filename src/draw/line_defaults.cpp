// Defaults of the line pipeline's plot parameters (resall) and the reset keywords it
// answers. Widths, caps and joins already written to a device are not rewritten here.
#include "draw/line.h"
#include "frame/frame.h"

namespace zb {

namespace {

void page_window() {
  zg.nclpx1 = 0;
  zg.nclpy1 = 0;
  zg.nclpx2 = zg.nxpag;
  zg.nclpy2 = zg.nypag;
  zg.iclpcirc = 0;
}

}  // namespace

void resall_line() {
  zg.itypln = 0;
  zg.npatln = 1;
  zg.npattn.fill(1);
  inityp();
  zg.xoffln = 0.0f;
  zg.ifirst = 0;
  zg.nthick = 1;
  zg.ilinw = 1;
  zg.ilncap = 2;
  zg.ilnjoin = 2;
  zg.xmiter = 2.0f;
  zg.iclpmd = 0;
  zg.iclpbd = 0;
  zg.ngrace = -1;
  page_window();
  zg.nclax1 = zg.nclsx1 = 0;
  zg.nclay1 = zg.nclsy1 = 0;
  zg.nclax2 = zg.nclsx2 = zg.nxpag;
  zg.nclay2 = zg.nclsy2 = zg.nypag;
  zg.xclpc = zg.yclpc = zg.xclpr = 0.0f;
  zg.ihidln = 0;
  zg.ishield = 0;
}

void reset_line(std::string_view key) {
  if (key == "GRAC") {
    zg.ngrace = -1;
  } else if (key == "THKC") {
    zg.nthick = 1;
  } else if (key == "NOCL" || key == "CLPM") {
    zg.iclpmd = 0;
  } else if (key == "CLPB" || key == "CLPW") {
    qqstrk();
    zg.iclpbd = 0;
    page_window();
  } else if (key == "NOHI" || key == "SHLS") {
    qqstrk();   // a hidden-line mode ends with what it has drawn
  } else if (key == "SHIE") {
    qqstrk();
    zg.ishield = 0;
  }
}

}  // namespace zb
