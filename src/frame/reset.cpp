// resall sets every plot parameter to its default; reset restores those of one routine,
// named by the first four letters of its name.
#include "draw/line.h"
#include "frame/frame.h"

namespace zb {

namespace {

// The 132 keywords of reset, at a pitch of 5 characters for jqqind.
constexpr std::string_view kResetKeys =
    "ALL +ORIG+AXSP+AXSL+AX3L+NAME+TICK+DIGI+INTA+LABE+NOLI+SETG+TICL+LABD+NAMD+LABP+LABT+"
    "LABJ+RVYN+MIXA+SETR+COLR+SCAL+LFTT+VKYT+IMGC+MYLA+NOCH+HEIG+KWLC+KWLS+KWLA+NOFI+COLM+"
    "RGTL+TITL+HNAM+SETB+SETC+COLO+UNIT+VKXB+VKYB+WIDB+NOBA+CENT+TIMO+ANGL+AXEN+TICP+GRAC+"
    "FRAM+LINS+CHNC+HTIT+IANG+BASA+MXAL+SMXA+EXPZ+SETS+POLC+BARW+SHDP+NOAR+CHAB+SETE+SETM+"
    "NEWM+THKC+BARP+BARG+BARD+BART+NOGR+PIEE+PIEL+PIEV+CHNP+LINC+CLRC+PATC+NOHI+SURV+SHLS+"
    "AXIS+PROJ+MAPP+MAPR+MAPM+MAPS+NOCL+CLPM+CLPB+CLPW+VIEW+CHAW+CHAS+NUMO+SHDC+MDFM+CHAA+"
    "FIXS+SYMR+AUTR+SURS+SURC+ZSCA+LEGC+MIXL+FLAB+AXCL+NUMF+SHIE+FRME+CIRC+SPLM+EUSH+MIXC+"
    "CONC+CONM+CONG+NOBG+NEGL+LOGT+LABC+FILB+FILC+WIND+WINS+WINM+GAPC";

}  // namespace

void resall() {
  resall_line();
  resall_colour();
  zg.lunerr = default_lunerr();
  zg.iwarn = 1;
  zg.iprot = 1;
  zg.ichek = 1;
  resall_device();
  resall_fill();
  resall_prims();
  resall_formats();
  resall_raster();
  resall_axes();
  resall_charts();
  resall_contour();
  resall_graph3d();
  resall_maps();
  resall_shield();
  resall_widgets();
  resall_logo();
  resall_text();   // last: loads the default stroke alphabet
}

void reset(std::string_view ckey) {
  chkini("RESET");
  const int i = jqqind(kResetKeys, 132, ckey);
  if (i == 0) return;
  const std::string key = upper(ckey.substr(0, 4)) + std::string(4 - std::min<std::size_t>(4, ckey.size()), ' ');
  if (key == "ALL ") {
    resall();
    return;
  }
  if (key == "ORIG") {
    zg.nxorg = zg.nyorg = 0;
  } else if (key == "UNIT") {
    zg.lunerr = default_lunerr();
  }
  reset_device(key);
  reset_line(key);
  reset_colour(key);
  reset_fill(key);
  reset_prims(key);
  reset_formats(key);
  reset_raster(key);
  reset_text(key);
  reset_axes(key);
  reset_charts(key);
  reset_contour(key);
  reset_graph3d(key);
  reset_maps(key);
  reset_shield(key);
  reset_widgets(key);
  reset_logo(key);
}

}  // namespace zb
