// The attribute cycle that runs from curve to curve within an axis system: colour and line
// style by the index iatnum, symbols 1 .. nsymmx - 1, the legend counter, and the sample
// of each legend line as the curve that owns it was drawn.
#include <algorithm>
#include <climits>

#include "charts/charts.h"
#include "frame/frame.h"

namespace zb {

void chnatt() {
  if (zg.ncrvcn == 1) return;
  zg.iatnum = zg.iatnum % 30 + 1;
  if (zg.nlegct < INT_MAX) ++zg.nlegct;
  zg.ncrvcn = 1;
  if (zg.nmrk != 0 && zg.nsymmx > 1) zg.nsym = std::max(zg.nsym, 0) % (zg.nsymmx - 1) + 1;
  zg.iplegn = 1;
}

void resatt() {
  zg.ncrvcn = 1;
  zg.iatnum = 1;
  zg.iplegn = 1;
  zg.nsym = 0;
}

void end_curves() {
  resatt();
  zg.nlegct = 0;
  zg.nlegcv = 0;
}

void slegnd(int ncrv) {
  if (zg.ilegpt != 1 && ncrv >= 1 && ncrv <= 30) {
    const std::size_t i = std::size_t(ncrv - 1);
    zg.ilegty[i] = zg.nmrk < 0 ? -1 : zg.itypln;
    zg.ilegsy[i] = zg.nmrk == 0 ? -1 : zg.nsym;
    zg.ilegth[i] = zg.nthick;
    zg.ilegco[i] = zg.ipenclr;
    zg.ilegpa[i] = zg.ilegpk != 0 ? zg.ipatnr : -1;
  }
  zg.nlegcv = std::max(zg.nlegcv, ncrv);
}

}  // namespace zb
