// Record fields of the 2-D axis system: position, lengths, scaling, the settings of the
// axes (per axis x, y, z at index 0, 1, 2) and the frame around the system.
#pragma once
#include "util/fstr.h"

namespace zb {

struct AxesState {
  // Position and size.
  int nxa = 0, nya = 0, nxa0 = 0, nya0 = 0;   // lower left corner and its default
  int nxl = 0, nyl = 0, nzl = 0;              // axis lengths
  int nxl0 = 0, nyl0 = 0, nzl0 = 0;           // their defaults
  int nxcros = 0, nycros = 0;                 // crossing point (axsorg), centre of a polar system
  int icrosf = 0;                             // 1: the crossing point was given by axsorg
  int iaxtyp = 0;                             // 0 RECT, 1 CROS
  int iaxknd = 0;                             // 0 graf, 1 polar, 2 grafmp, 3 graf3d

  // Scaling as used for drawing; xorg, yorg are the first labels (exponents on log axes).
  int ilogx = 0, ilogy = 0, ilogz = 0;
  float xa = 0.0f, xe = 1.0f, xorg = 0.0f, xstp = 1.0f;
  float ya = 0.0f, ye = 1.0f, yorg = 0.0f, ystp = 1.0f;
  float xscl = 1.0f, yscl = 1.0f;             // plot units per user unit
  float xpos0 = 0.0f, ypos0 = 0.0f;           // nxa, nya as reals
  float xumin = 0.0f, xumax = 1.0f, yumin = 0.0f, yumax = 1.0f;   // user range, sorted

  // Automatic scaling from data (setscl).
  int iautox = 0, iautoy = 0, iautoz = 0;
  std::array<float, 3> xmn{}, xmx{};

  // Sides bottom, right, top, left: 0 nothing, 1 line, 2 ticks, 3 labels, 4 name.
  std::array<int, 4> iside{4, 2, 2, 4};
  int iax2gf = 0;                             // ax2grf: no top and right axes
  int inogrf = 0;                             // nograf: graf draws nothing
  int iaxbgd = -1;                            // axsbgd colour, -1 none
  int icentr = 0, icentd = 0;                 // center requested; centring done
  int ineglg = 0;                             // neglog set
  float xneglg = 0.0f;                        // its value
  int inochk = 0;                             // nochek: no messages on points outside
  int ipolst = 0, ipoldr = 0;                 // polar: where angle 0 points, its direction

  // Settings per axis.
  std::array<int, 3> ilabtp{1, 1, 1};         // label type, index in the keyword list
  std::array<int, 3> ilabcl{};                // 0 plain, 1 time, 2 map, 3 date
  std::array<int, 3> ilabst{2, 2, 2};         // log labels: 2 value, 1 power of ten, 3 exponent
  std::array<int, 3> ilabct{};                // 1: the mantissa is the centre of the label
  std::array<int, 3> ilabdg{1, 1, 1};         // digits after the point, -1 no point
  std::array<int, 3> nlabds{24, 24, 24};      // ticks to labels
  std::array<int, 3> nnamds{30, 30, 30};      // labels to name
  std::array<int, 3> nticks{2, 2, 2};         // ticks per label interval
  std::array<int, 3> iticps{};                // 0 LABE, 1 REVE, 2 CENT
  std::array<int, 3> ilabor{};                // 0 HORI, 1 VERT
  std::array<int, 3> ilabjs{};                // 0 AUTO, 1 LEFT, 2 RIGH, 3 OUTW, 4 INWA
  std::array<int, 3> ilabps{};                // 0 TICK, 1 CENT, 2 SHIF
  std::array<int, 3> iaxend{};                // 0 NONE .. 6 LAST
  std::array<int, 3> inamjs{};                // 0 CENT, 1 LEFT, 2 RIGH
  std::array<int, 3> iaxlin{1, 1, 1};         // 1: the axis line is drawn
  std::array<FStr<132>, 3> caxnam{};          // axis names
  std::array<FStr<32>, 60> caxlab{};          // user labels, 20 per axis
  std::array<int, 3> nmylab{};                // highest user label set
  std::array<int, 12> iaxclr{-1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1};   // line, ticks, labels, name

  // Shared by the axes.
  int ntcmaj = 24, ntcmin = 16;               // tick lengths
  int nhname = 36;                            // name height
  int irvynm = 0;                             // rvynam
  int ilogtc = 0;                             // logtic 0 AUTO, 1 FULL
  int irgtlb = 0;                             // rgtlab
  int itmopt = 0;                             // timopt: time labels with colons

  // Drawing state of one axis: signed distances and lengths (settic), the parts that
  // sgrafp hides for one side, and what it saved.
  int isgdir = 1, ntmajs = 24, ntmins = 16;   // sign of the direction, signed tick lengths
  int irvtgl = 0;                             // rvline: the end a tick starts from
  FStr<132> csgnam;
  int nsgtic = 0, isglin = 0, isglab = 0;

  // Frame of the axis system.
  int frame = 1;                              // thickness; 0 none, negative inward
  int ifrmcl = -1;                            // colour of frames, -1 current

  // Titles above or below the axis system.
  std::array<FStr<132>, 4> ctitle{};          // lines 1 to 4, from top to bottom
  FStr<4> ctitul = FStr<4>("0000");           // "1" at place i: line i underlined
  int ititjs = 0;                             // 0 CENT, 1 LEFT, 2 RIGH
  int ititps = 0;                             // 0 ABOV, 1 BELO
  int nhtitl = 0;                             // title height, 0 the current height
  int nvkytt = 0;                             // shift of the titles toward the axis system

  bool operator==(const AxesState&) const = default;
};

}  // namespace zb
