// Defaults of this folder's plot parameters (resall) and the reset keywords it answers.
#include "frame/frame.h"

namespace zb {

namespace {

void axis_position() {
  zg.nxa = zg.nxa0;
  zg.nya = zg.nya0;
  zg.icrosf = 0;
}

void label_types() {
  zg.ilabtp = {1, 1, 1};
  zg.ilabcl = {0, 0, 0};
  zg.ilabst = {2, 2, 2};
  zg.ilabct = {0, 0, 0};
}

void user_labels() {
  zg.nmylab = {0, 0, 0};
  for (auto& s : zg.caxlab) s = "";
}

void title_lines() {
  for (auto& s : zg.ctitle) s = "";
  zg.ctitul = "0000";
}

}  // namespace

void resall_axes() {
  axis_position();
  zg.nxl = zg.nxl0;
  zg.nyl = zg.nyl0;
  zg.nzl = zg.nzl0;
  zg.iaxtyp = 0;
  zg.iaxbgd = -1;
  zg.ilogx = zg.ilogy = zg.ilogz = 0;
  zg.iautox = zg.iautoy = zg.iautoz = 0;
  zg.iside = {4, 2, 2, 4};
  zg.iax2gf = 0;
  zg.inogrf = 0;
  zg.icentr = zg.icentd = 0;
  zg.ineglg = 0;
  zg.xneglg = 0.0f;
  zg.inochk = 0;
  zg.ipolst = zg.ipoldr = 0;
  label_types();
  zg.ilabdg = {1, 1, 1};
  zg.nlabds.fill(jqquni(24));
  zg.nnamds.fill(jqquni(30));
  zg.nticks = {2, 2, 2};
  zg.iticps = {0, 0, 0};
  zg.ilabor = {0, 0, 0};
  zg.ilabjs = {0, 0, 0};
  zg.ilabps = {0, 0, 0};
  zg.iaxend = {0, 0, 0};
  zg.inamjs = {0, 0, 0};
  zg.iaxlin = {1, 1, 1};
  for (auto& s : zg.caxnam) s = "";
  user_labels();
  zg.iaxclr.fill(-1);
  zg.ntcmaj = jqquni(24);
  zg.ntcmin = jqquni(16);
  zg.nhname = jqquni(36);
  zg.irvynm = zg.ilogtc = zg.irgtlb = zg.itmopt = 0;
  zg.frame = 1;
  zg.ifrmcl = -1;
  title_lines();
  zg.ititjs = zg.ititps = 0;
  zg.nhtitl = zg.nvkytt = 0;
}

void reset_axes(std::string_view key) {
  if (key == "AXSP") axis_position();
  if (key == "AXSL" || key == "AX3L") {
    zg.nxl = zg.nxl0;
    zg.nyl = zg.nyl0;
  }
  if (key == "AX3L") zg.nzl = zg.nzl0;
  if (key == "NAME") for (auto& s : zg.caxnam) s = "";
  if (key == "TICK") zg.nticks = {2, 2, 2};
  if (key == "DIGI" || key == "INTA") zg.ilabdg = {1, 1, 1};
  if (key == "LABE") label_types();
  if (key == "NOLI") zg.iaxlin = {1, 1, 1};
  if (key == "SETG") zg.iside = {4, 2, 2, 4};
  if (key == "TICL") {
    zg.ntcmaj = jqquni(24);
    zg.ntcmin = jqquni(16);
  }
  if (key == "LABD") zg.nlabds.fill(jqquni(24));
  if (key == "NAMD") zg.nnamds.fill(jqquni(30));
  if (key == "LABP") zg.ilabps = {0, 0, 0};
  if (key == "LABT") zg.ilabor = {0, 0, 0};
  if (key == "LABJ") zg.ilabjs = {0, 0, 0};
  if (key == "RVYN") zg.irvynm = 0;
  if (key == "MYLA") user_labels();
  if (key == "NOCH") zg.inochk = 0;
  if (key == "RGTL") zg.irgtlb = 0;
  if (key == "HNAM") zg.nhname = jqquni(36);
  if (key == "CENT") zg.icentr = zg.icentd = 0;
  if (key == "TIMO") zg.itmopt = 0;
  if (key == "AXEN") zg.iaxend = {0, 0, 0};
  if (key == "TICP") zg.iticps = {0, 0, 0};
  if (key == "NOGR") zg.inogrf = 0;
  if (key == "SCAL") zg.ilogx = zg.ilogy = zg.ilogz = 0;
  if (key == "SETS") zg.iautox = zg.iautoy = zg.iautoz = 0;
  if (key == "NEGL") {
    zg.ineglg = 0;
    zg.xneglg = 0.0f;
  }
  if (key == "LOGT") zg.ilogtc = 0;
  if (key == "AXCL") zg.iaxclr.fill(-1);
  if (key == "FRAM") zg.frame = 1;
  if (key == "TITL") title_lines();
  if (key == "LFTT") zg.ititjs = 0;
  if (key == "HTIT") zg.nhtitl = 0;
  if (key == "VKYT") zg.nvkytt = 0;
}

}  // namespace zb
