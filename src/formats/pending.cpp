// Vector-format drivers still to come: each entry takes the call and does nothing, so that
// the outputs can be chosen and a session runs through without a file body.
#include "formats/drivers.h"

namespace zb {

void drwcgm(float, float, int) {}
void inicgm(int) {}
void qqwmf1() {}
void qqwmf2() {}
void qqwmf3(int, int, int) {}
void qqwmf4(int, int, int) {}
void qqwmf5(int, int, int, int, int, int, int) {}
void qqwmf6(int, int, int) {}
void zori_pdf() {}
void qqpdf2(float, float, int) {}
void qqpdf3(int, int, int, int) {}
void qqpdf4(float, float, float, float) {}
int pdf_end() { return 1; }
void zori_svg() {}
void qqsvg2(float, float, int) {}
void qqsvg3(int, int, int) {}
void qqsvg4(float, float, float, float, int, int, int) {}

}  // namespace zb
