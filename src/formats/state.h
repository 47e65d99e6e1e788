// Record fields of the vector file formats.
#pragma once
#include "util/fstr.h"

namespace zb {

struct FormatsState {
  int icgmbg = 0, icgmpc = 0, icgmvr = 1;   // cgmbgd flag, cgmpic flag, cgmver
  int iwmfmd = 0;                           // wmfmod
  int ipdfmd = 1;                           // pdfmod

  bool operator==(const FormatsState&) const = default;
};

}  // namespace zb
