// Record fields of area fill and hatching: the pattern in its four parts, the scan distance
// and grouping it implies, and the state of the hatching pass in hand.
#pragma once
#include "util/fstr.h"

namespace zb {

struct FillState {
  int ipatnr = 0;                  // number given to shdpat, or the code made by mypat
  int ipata = 0;                   // angle in degrees
  int ipatt = 0;                   // type: 0 none, 1 solid lines ... 7 chain-dotted
  int ipatd = 0;                   // density
  int ipatc = 0;                   // 1: a second, crossing pass
  float xpatst = 2.0f;             // distance of the scan lines in plot units
  int npatgr = 0;                  // lines per group
  int npatsk = 0;                  // lines skipped between groups
  int ipatang = 0;                 // angle of the pass in hand
  float xpatsn = 0.0f, xpatcs = 1.0f;   // its sine and cosine
  int ipatsk = 0;                  // 1 while lines are skipped
  int npatdr = 0, npatgp = 0;      // lines drawn and skipped in the group in hand
  float ypatpv = 0.0f;             // height of the last span: a new height is a new line
  int iarln = 1;                   // 1 if areaf draws the outline

  bool operator==(const FillState&) const = default;
};

}  // namespace zb
