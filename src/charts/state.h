// Record fields of the charts: the curve modes and markers, the attribute cycle that runs
// from curve to curve, the spline settings, and what each curve leaves for its legend line.
#pragma once
#include <array>

#include "util/fstr.h"

namespace zb {

struct ChartsState {
  // Curves.
  int ipolcv = 0;          // 0 LINE, 1 STEP, 2 BARS, 3 SPLI, 4 PSPL, 5 STEM, 6 STAI, 7 FBAR
  int nmrk = 0;            // 0 line only; n > 0 line and every n-th symbol; n < 0 symbols only
  int nsym = 0;            // current symbol
  int hsym = 36;           // symbol size in plot units (symbols, wind barbs, markers)
  int igapcv = 0;          // 1: gaps of more than xgapcv break the line
  float xgapcv = 0.0f;
  int nspord = 3;          // degree of the splines; the order is one more
  int nsppts = 200;        // intervals of an evaluated spline
  float xbarw = 0.75f;     // above 0 share of the point spacing; 0 or below plot units

  // Attribute cycle.
  int ichncv = 0;          // 0 NONE, 1 COLO, 2 LINE, 3 BOTH
  int ninccv = 1;          // curves per attribute set
  int ncrvcn = 1;          // curves since the last change
  int iatnum = 1;          // index into iclrcy and ilincy, 1..30
  int iplegn = 1;          // 1: the next curve records its legend line
  int nlegct = 0;          // legend counter: curves (or bar sets) numbered so far

  // Samples of the legend lines as the curves left them.
  int ilegpt = 0;          // 1: samples come from legpat, curves record nothing
  int ilegpk = 0;          // 1: the next record takes the current area pattern
  int nlegcv = 0;          // highest curve number recorded
  std::array<int, 30> ilegty{};   // line style, -1 none
  std::array<int, 30> ilegth{};   // line count
  std::array<int, 30> ilegsy{};   // symbol, -1 none
  std::array<int, 30> ilegco{};   // colour
  std::array<int, 30> ilegpa{};   // area pattern, -1 none

  bool operator==(const ChartsState&) const = default;
};

}  // namespace zb
