// Area fill.
#include "draw/fill.h"

#include "draw/line.h"
#include "frame/frame.h"

namespace zb {

void dareaf(const float* xray, const float* yray, int n) {
  if (n < 3 || xray == nullptr || yray == nullptr) return;
  strtqq(xray[0], yray[0]);
  for (int i = 1; i < n; ++i) connqq(xray[i], yray[i]);
  connqq(xray[0], yray[0]);
}

}  // namespace zb
