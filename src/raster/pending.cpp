// Screen back end still to come: each entry takes the call and does nothing; the screen's
// picture reads as black.
#include <cstring>

#include "raster/drivers.h"

namespace zb {

bool qqwchk() { return false; }
void zori_window() {}
void qqwdrw(int, int, int) {}
void qqwfll(int, int, int, int, int) {}
void qqwclr(int) {}
void qqwers() {}
void qqwsbf() {}
void qqwnpg() {}
void qqwfin(int) {}
int qqwimg(int) { return 0; }
void qqwrdr(unsigned char* buf, int, int, int nw, int nh, int iflag) {
  if (buf != nullptr && nw > 0 && nh > 0)
    std::memset(buf, 0, std::size_t(nw) * std::size_t(nh) * (iflag == 1 ? 3u : 1u));
}
void qqwfil(const char*, int, int& ierr) { ierr = 0; }

}  // namespace zb
