// The end-of-run protocol printed by zorfin.
#include <ctime>

#include "frame/frame.h"

namespace zb {

namespace {

std::string two(int v) { return (v < 10 ? "0" : "") + itoa(v); }

}  // namespace

// Date as dd.mm.yyyy and time as hh:mm:ss from the system clock.
void clock_strings(std::string& date, std::string& time) {
  const std::time_t now = std::time(nullptr);
  std::tm t{};
  localtime_r(&now, &t);
  date = two(t.tm_mday) + "." + two(t.tm_mon + 1) + "." + itoa(t.tm_year + 1900);
  time = two(t.tm_hour) + ":" + two(t.tm_min) + ":" + two(t.tm_sec);
}

void dprcol(int mode) {
  if (zg.lunerr == 0 || zg.iprot == 0) return;
  std::string date, time;
  clock_strings(date, time);
  const std::string rule = "  " + std::string(66, '<');
  auto put = [](const std::string& s) { lun_write(zg.lunerr, s); };
  put("   ");
  put(rule);
  put("  <<" + std::string(16, ' ') + "END  OF  ZORBEL / VERSION " + fmt_f(kVersion, 3, 1) + "  " +
      std::string(15, ' ') + "<<");
  put("  <<  Date    : " + pad(date, 10) + "  Time    : " + pad(time, 8) +
      "  Pageformat: " + pad(zg.cpagfmt.full(), 4) + "  <<");
  put("  <<  Vectors : " + fmt_il(zg.nvect, 10) + "  Warnings: " + fmt_il(zg.nwarn, 8) +
      "  Fileformat: " + pad(zg.cfmt.full(), 4) + "  <<");
  if (mode != 10) {
    const std::string name = mode != 0 ? std::string(zg.cplotfl.full().substr(0, 48)) : "";
    put("  <<  " + pad("Metafile: " + name, 58) + "  <<");
  }
  if (mode >= 10) put("  <<  " + pad("Err-file: " + std::string(zg.cerrfl.full().substr(0, 48)), 58) + "  <<");
  put(rule);
  put("   ");
}

}  // namespace zb
