// Record fields of the vector file formats.
#pragma once
#include "util/fstr.h"

namespace zb {

struct FormatsState {
  // CGM: level-0 choices (kept over sessions) and the picture count of the file.
  int icgmbg = 0, icgmpc = 0, icgmver = 1;  // cgmbgd flag, cgmpic flag, cgmver
  int icgmr = 255, icgmg = 255, icgmb = 255;   // background of the pictures, 0..255
  FStr<256> ccgmnam;                        // picture name
  int ncgmpic = 1;                          // number of the current picture

  int iwmfmd = 0;                           // wmfmod

  // PDF: pdfmod, kept over sessions. Bit 0 deflates the content, bit 1 keeps the file in
  // memory for pdfbuf.
  int ipdfmod = 1;

  // SVG: the open group, the stroke width and the current colour.
  int isvggr = 0;                           // 0 none, 1 stroke group, 2 text group
  float xsvgwd = 1.0f;                      // stroke-width of the next stroke group
  int isvgft = 0;                           // font index of the open text group
  int ir = 0, ig = 0, ib = 0;               // current colour, 0..255 each

  bool operator==(const FormatsState&) const = default;
};

}  // namespace zb
