// Numbered warnings: the table of texts, the warning lines, and the settings of the channel.
#include "frame/frame.h"

#include <array>

namespace zb {

namespace {

constexpr std::array<const char*, 58> kWarnings = {
    "Negative parameter",
    "Incorrect parameter",
    "Incorrect level",
    "X coordinate out of page",
    "Y coordinate out of page",
    "Same tick number as in a call before",
    "First radius greater than second radius",
    "Start angle greater/equal end angle",
    "Step equal zero",
    "Begin and end of scaling are equal",
    "Axis length < 2",
    "Startlabel out of scaling",
    "Linear scaling must be used",
    "Linear interpolation must be used",
    "No call to LEGINI before",
    "String too long for legend line",
    "Not enough store for the legend buffer",
    "Incorrect character after the EUSHFT operator",
    "The basealphabet cannot be used",
    "No metafile",
    "The routine must be called after ZORFIN",
    "The metafile is deleted before",
    "Non positive minimum for log scaling (set to 0.1)",
    "Non positive maximum for log scaling (set to 1.0)",
    "Minimum equal maximum (added -1 and +1)",
    "Too many intersections",
    "Non positive values for log scaling",
    "Number of bars unequal number of main ticks",
    "Sum of data is zero",
    "Incorrect number of points",
    "Incorrect number of points for spline interpolation",
    "No increasing X coordinates for spline interpolation",
    "Incorrect viewpoint",
    "No call to GRFINI before",
    "Confusion of GRAF3D and GRAF3",
    "File error",
    "Incorrect filename",
    "Singular matrix",
    "Too many pages for CGM-File (max. length * 327 cm)",
    "Fileformat and output device are incompatible",
    "Incorrect device for HPGL file",
    "More legend lines than calls to curve",
    "Instruction code: incorrect parameter",
    "Instruction code: incorrect tabulator index",
    "Instruction code: no integer value",
    "Instruction code: unknown command",
    "Blanking buffer overflow",
    "No call to PSFONT",
    "Fileformat is not PostScript",
    "Incorrect sign for step",
    "Non positive parameter",
    "Hiddenline overflow",
    "Not enough memory",
    "No call to IMGFIN",
    "No call to IMGINI",
    "Incorrect file format",
    "Control characters must be different",
    "Array is out of screen",
};

// Common part of the three warning routines; tail is what stands behind the name.
void warning_line(int icode, std::string_view tail) {
  errmes(icode);
  if (zg.lunerr == 0 || zg.iwarn == 0) return;
  qqerrfil();
  std::string line = " <<<< Warning" + fmt_i(icode, 4) + ": ";
  line += zg.cerrmsg.view();
  line += " in ";
  line += zg.cproc.view();
  line += tail;
  lun_write(zg.lunerr, line);
}

}  // namespace

void errmes(int icode) {
  ++zg.nwarn;
  if (zg.lunerr == 0 || icode > 100 || zg.iwarn == 0) return;
  if (icode >= 1 && icode <= 58) {
    zg.cerrmsg = kWarnings[std::size_t(icode - 1)];
  } else {
    lun_write(zg.lunerr, " <<<< Incorrect parameter in ERRMES!" + fmt_i(icode, 4));
    zg.cerrmsg = "";
  }
}

void warnin(int icode) { warning_line(icode, "!"); }
void warni1(int icode, int ival) { warning_line(icode, "!   (" + fmt_i(ival, 4) + ")"); }
void warnc1(int icode, std::string_view cstr) {
  std::size_t n = cstr.size();
  while (n > 0 && cstr[n - 1] == ' ') --n;
  warning_line(icode, "!   (" + std::string(cstr.substr(0, n)) + ")");
}

void qqserr(std::string_view cstr) { zg.cerrmsg = cstr; }

void qqerrfil() {
  const bool due = zg.iwinap == 1 || zg.ierrdv == 1 || (zg.ilevel > 0 && zg.lunplt == 6);
  if (!due || zg.ierrop == 1) return;
  if (zg.ierrnm == 0) zg.cerrfl = "zorbel.err";
  std::string name = zg.cerrfl.str();
  gfilnn(name);
  zg.cerrfl = name;
  if (lun_open(17, name, "w")) zg.ierrop = 1;
}

int default_lunerr() {
  return (zg.iwinap == 1 || zg.ierrdv == 1 || zg.lunplt == 6) ? 17 : 6;
}

void errmod(std::string_view cstr, std::string_view cmod) {
  chkini("ERRMOD");
  const int i = jqqind("WARN+CHEC+PROT+ALL ", 4, cstr);
  const int j = jqqind("OFF +ON  ", 2, cmod);
  if (i == 0 || j == 0) return;
  const int on = j - 1;
  if (i == 1 || i == 4) zg.iwarn = on;
  if (i == 2 || i == 4) zg.ichek = on;
  if (i == 3 || i == 4) zg.iprot = on;
}

void errdev(std::string_view cstr) {
  if (jqqlev(0, 0, "ERRDEV")) return;
  const int i = jqqind("CONS+FILE", 2, cstr);
  if (i > 0) zg.ierrdv = i - 1;
}

void errfil(std::string_view cfil) {
  if (jqqlev(0, 0, "ERRFIL")) return;
  zg.cerrfl = cfil;
  zg.ierrnm = 1;
}

void unit(int nu) {
  chkini("UNIT");
  if (nu < 0 || nu > 1000 || nu == 15 || nu == 16) {
    warni1(2, nu);
    return;
  }
  zg.lunerr = nu;
}

void getuni(int& nu) {
  chkini("GETUNI");
  nu = zg.lunerr;
}

void lsechk(std::string_view cstr) {
  if (jqqlev(0, 0, "LSECHK")) return;
  const int i = jqqind("ON  +OFF ", 2, cstr);
  if (i > 0) zg.ilsechk = i == 1 ? 1 : 0;
}

}  // namespace zb
