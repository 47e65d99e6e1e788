// Record fields of the line pipeline: stroke buffer, dash pattern, widths, clipping.
#pragma once
#include "util/fstr.h"

namespace zb {

struct LineState {
  // Stroke buffer, in plot coordinates with the origin added.
  int nstrk = 0;
  std::array<float, 100> xstrk{}, ystrk{};
  // Style stage.
  float xlast = 0.0f, ylast = 0.0f;   // last point of strtqq/connqq, origin added
  int ifirst = 0;                     // 1: connqq places the first point of an offset line
  int itypln = 0;                     // lintyp value
  int npatln = 1;                     // entries of the dash pattern
  std::array<int, 10> npattn{1, 1, 1, 1, 1, 1, 1, 1, 1, 1};   // plot units, down/up/down...
  int ipatln = 1;                     // current entry, 1-based
  int ipenup = 0;                     // 0 pen down, 1 pen up
  float xpatrem = 1.0f;               // what remains of the current entry
  float xoffln = 0.0f;                // offset of the line to its left side (thkcrv)
  int nthick = 1;                     // thkcrv
  // Width, caps and joins.
  int ilinw = 1;                      // above 0 software width, below 0 device width -ilinw
  int ilncap = 2;                     // 0 CUT, 1 ROUN, 2 LONG
  int ilnjoin = 2;                    // 0 SHAR, 1 ROUN, 2 TRUN
  float xmiter = 2.0f;                // miter limit
  // Clipping window and circle.
  int nclpx1 = 0, nclpy1 = 0, nclpx2 = 2969, nclpy2 = 2099;
  int iclpcirc = 0;                   // 1 clips to the circle
  float xclpc = 0.0f, yclpc = 0.0f, xclpr = 0.0f;
  int iclpmd = 0;                     // clpmod: 0 AUTO, 1 NONE, 2 CIRC, 3 RECT
  int iclpbd = 0;                     // 0 normal, 1 clpwin, 2 clpbor("AXIS")
  int ngrace = -1;                    // grace: margin round the axis system
  int nclax1 = 0, nclay1 = 0, nclax2 = 2969, nclay2 = 2099;   // rectangle of setclp
  int nclsx1 = 0, nclsy1 = 0, nclsx2 = 2969, nclsy2 = 2099;   // window saved by sclpax(0)
  // Where finished segments go instead of the dispatcher.
  int ihidln = 0;                     // 1 while a hidden-line surface is drawn (dhline)
  int ishield = 0;                    // above 0 while shield regions are defined (qqbl01)
  // Per-point transforms of the stroke buffer, bits kept by their owners: 1 the plane of a
  // 3-D box (proj3d, grfini ... grffin), 2 the base transformation (btrf01).
  int ixfpts = 0;

  bool operator==(const LineState&) const = default;
};

}  // namespace zb
