// Plot file names: setfil and getfil, and gfilnn, which makes a name free for a new file
// by deleting the old one, stopping, or numbering versions name_1.ext, name_2.ext, ...
#include "frame/frame.h"

namespace zb {

void setfil(std::string_view cfil) {
  if (jqqlev(0, 0, "SETFIL")) return;
  zg.cplotfl = cfil;
  zg.ifilst = 1;
}

std::string getfil() {
  chkini("GETFIL");
  return zg.cplotfl.str();
}

void filmod(std::string_view cmod) {
  if (jqqlev(0, 3, "FILMOD")) return;
  const int i = jqqind("COUN+DELE+BREA", 3, cmod);
  if (i > 0) zg.ifilmd = i - 1;
}

bool gfilnn(std::string& cfil) {
  while (!cfil.empty() && cfil.back() == ' ') cfil.pop_back();
  if (!file_exists(cfil)) return true;
  if (zg.ifilmd == 1) {
    std::remove(cfil.c_str());
    return true;
  }
  if (zg.ifilmd == 2) qqstop("<<<< STOP in ZORINI <<<<", "File: " + cfil + "  exist!");
  const std::size_t slash = cfil.rfind('/');
  std::size_t dot = cfil.rfind('.');
  if (dot != std::string::npos && slash != std::string::npos && dot < slash) dot = std::string::npos;
  const std::string stem = dot == std::string::npos ? cfil : cfil.substr(0, dot);
  const std::string ext = dot == std::string::npos ? std::string() : cfil.substr(dot);
  for (int n = 1; n <= 9999; ++n) {
    std::string cand = stem + "_" + itoa(n) + ext;
    if (!file_exists(cand)) {
      cfil = cand;
      return true;
    }
  }
  qqstop("<<<< STOP in ZORINI <<<<", "More than 9999 file versions!");
}

}  // namespace zb
