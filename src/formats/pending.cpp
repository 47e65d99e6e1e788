// Vector-format drivers still to come: each entry takes the call and does nothing, so that
// the outputs can be chosen and a session runs through without a file body.
#include "formats/drivers.h"

namespace zb {

void qqwmf1() {}
void qqwmf2() {}
void qqwmf3(int, int, int) {}
void qqwmf4(int, int, int) {}
void qqwmf5(int, int, int, int, int, int, int) {}
void qqwmf6(int, int, int) {}

}  // namespace zb
