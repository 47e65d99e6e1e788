// The library's own files below the installation directory ($ZORBEL, default
// /usr/local/zorbel): map data, the usage log and the device list.
#include <cstdlib>

#include "frame/frame.h"

namespace zb {

namespace {
bool g_logged = false;
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
    if (!file_exists(name)) { ierr = 1; return; }
  } else if (kind == 19) {
    name = data_dir() + "/device.dat";
  } else if (kind >= 21 && kind <= 24) {
    name = data_dir() + kGshhs[kind - 21];
    zg.nrecio = 0;
  } else {
    ierr = 2;
    return;
  }
  ierr = lun_open(lun, name, mode) ? 0 : 1;
  if (ierr != 0 && kind != 18 && kind != 19) lun_write(zg.lunerr, " <<<< Open error: " + name);
}

void qqopen(int lun, std::string_view cfil, int mode, int& ierr) {
  ierr = lun_open(lun, std::string(cfil), mode == 2 ? "rb" : "r") ? 0 : 1;
}

void zorlog() {
  if (g_logged) return;
  int lun = 0, ierr = 0;
  sopnfl(18, lun, ierr);
  if (ierr != 0) return;
  std::string date, time;
  clock_strings(date, time);
  lun_write(lun, pad(gusrid(), 13) + date + "  " + time + " " + fmt_f(kVersion, 4, 1) + "  f90");
  lun_close(lun);
  g_logged = true;
}

}  // namespace zb
