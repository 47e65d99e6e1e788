// Area fill: every filled polygon of the library passes through dareaf.
#pragma once

namespace zb {

void dareaf(const float* xray, const float* yray, int n);   // plot coordinates without origin

}  // namespace zb
