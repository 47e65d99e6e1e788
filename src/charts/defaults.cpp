// Defaults of this folder's plot parameters (resall) and the reset keywords it answers:
// POLC, BARW, CHNC, SPLM and GAPC.
#include "charts/charts.h"
#include "frame/frame.h"

namespace zb {

void resall_charts() {
  zg.ipolcv = 0;
  zg.nmrk = 0;
  zg.hsym = jqquni(36);
  zg.igapcv = 0;
  zg.xgapcv = 0.0f;
  zg.nspord = 3;
  zg.nsppts = 200;
  zg.xbarw = 0.75f;
  zg.ichncv = 0;
  zg.ninccv = 1;
  zg.ilegpk = 0;
  end_curves();
}

void reset_charts(std::string_view key) {
  if (key == "POLC") zg.ipolcv = 0;
  if (key == "BARW") zg.xbarw = 0.75f;
  if (key == "CHNC") zg.ichncv = 0;
  if (key == "SPLM") {
    zg.nspord = 3;
    zg.nsppts = 200;
  }
  if (key == "GAPC") {
    zg.igapcv = 0;
    zg.xgapcv = 0.0f;
  }
}

}  // namespace zb
