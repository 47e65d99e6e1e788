// Screen and raster back ends still to come: each entry takes the call and does nothing.
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
void zori_raster() {}
void qqvlin(int, int, int, int) {}
void qqvfll(int, int, int, int, int) {}
void qqvclr(int) {}
void qqvers() {}
void qqvfin() {}
void qqrfil(const char*, int) {}

}  // namespace zb
