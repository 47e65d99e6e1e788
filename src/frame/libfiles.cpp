// The library's own files below the installation directory ($ZORBEL, default
// /usr/local/zorbel): map data, the usage log and the device list; the user's map file;
// files opened for reading plot files back; the environment and the user's name.
#include <cstdlib>

#include "frame/frame.h"
#include "frame/libfiles.h"

namespace zb {

[[gnu::weak]] bool mapfil_name(std::string& name, int& form) {
  name.clear();
  form = 0;
  return false;
}

std::string qqgetenv(std::string_view cname) {
  std::string name(cname.substr(0, 132));
  const char* v = std::getenv(name.c_str());
  return v ? std::string(v) : std::string();
}

std::string gusrid() {
  std::string u = qqgetenv("LOGNAME");
  return u.empty() ? std::string(" ") : u;
}

std::string data_dir() {
  if (zg.ldatdir == 0) {
    std::string d = qqgetenv("ZORBEL");
    while (!d.empty() && d.back() == ' ') d.pop_back();
    if (d.empty()) d = "/usr/local/zorbel";
    zg.cdatdir = d;
    zg.ldatdir = int(std::min<std::size_t>(d.size(), 256));
  }
  return std::string(zg.cdatdir.full().substr(0, std::size_t(zg.ldatdir)));
}

// Kinds 1..17 map data, 18 the usage log, 19 the device list, 21..24 coastlines of four
// resolutions, 25 the user's map file. Data files are opened read-only and binary; the
// readers take records of 80 (map data) or 4 bytes (coastlines) by position.
void sopnfl(int kind, int& lun, int& ierr) {
  static constexpr const char* kGshhs[] = {"/map/gshhs_l.b", "/map/gshhs_i.b", "/map/gshhs_h.b",
                                           "/map/gshhs_f.b"};
  std::string name;
  const char* mode = "rb";
  lun = 16;
  if (kind >= 1 && kind <= 17) {
    name = data_dir() + "/map/map" + itoa(kind) + ".dat";
    zg.nrecio = 0;
  } else if (kind == 18) {
    name = data_dir() + "/zorbel.log";
    mode = "ab";
    lun = 15;
    // Status old: the log is only written where the file exists.
    if (!file_exists(name)) {
      ierr = 1;
      return;
    }
  } else if (kind == 19) {
    name = data_dir() + "/device.dat";
  } else if (kind >= 21 && kind <= 24) {
    name = data_dir() + kGshhs[kind - 21];
    zg.nrecio = 0;
  } else if (kind == 25) {
    int form = 0;
    if (!mapfil_name(name, form) || name.empty()) {
      ierr = 2;
      lun_write(zg.lunerr, " <<<< Open error: " + name);
      return;
    }
    if (form == 1) zg.nrecio = 0;
  } else {
    ierr = 2;
    return;
  }
  ierr = lun_open(lun, name, mode) ? 0 : 1;
  if (ierr != 0 && kind != 18 && kind != 19) lun_write(zg.lunerr, " <<<< Open error: " + name);
}

// Mode 1: a text file from its start; mode 2: a file of 80-byte records. The channels of
// the plot file, the error file and standard output are not given away.
void qqopen(int lun, std::string_view cfil, int mode, int& ierr) {
  if ((mode != 1 && mode != 2) || lun == 6 || lun == 15 || lun == 17 || cfil.empty()) {
    ierr = 2;
    return;
  }
  ierr = lun_open(lun, std::string(cfil), mode == 2 ? "rb" : "r") ? 0 : 1;
}

// One line per process in the usage log, if the log exists: user name, at column 14 the
// date, the time and the version. A failed open is silent and tried again next time.
void zorlog() {
  if (zg.ilogdn != 0) return;
  int lun = 0, ierr = 0;
  sopnfl(18, lun, ierr);
  if (ierr != 0) return;
  std::string date, time;
  clock_strings(date, time);
  lun_write(lun, pad(gusrid(), 13) + date + "  " + time + " " + fmt_f(kVersion, 4, 1) + "  f90");
  lun_close(lun);
  zg.ilogdn = 1;
}

}  // namespace zb
