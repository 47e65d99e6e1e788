// The PDF output as the session sees it: page geometry and the opening of the file at
// zorini, its end at zorfin, and the public routines pdfmod, pdfmrk and pdfbuf, which turn
// the writer's status into numbered warnings.
#include <algorithm>
#include <cstdlib>
#include <string>

#include "formats/drivers.h"
#include "formats/pdf.h"
#include "frame/frame.h"

namespace zb {

namespace {

[[noreturn]] void stop_without_output() {
  lun_close(17);
  std::fflush(nullptr);
  std::exit(1);
}

void custom_warning(std::string_view text) {
  qqserr(text);
  warnin(101);
}

}  // namespace

void zori_pdf() {
  // Paper in points: 3900 by 5600 units of 0.05 mm, or twice the hwpage values.
  float w = 3900.0f, h = 5600.0f;
  if (zg.ihwpag == 1) {
    w = 2.0f * float(zg.xpaper);
    h = 2.0f * float(zg.ypaper);
  }
  w *= 0.5f * 72.0f / 254.0f;
  h *= 0.5f * 72.0f / 254.0f;
  // The page fills the paper; a landscape page stands turned on it. The scale limit of
  // sclmod DOWN (in devscl) shrinks the drawing, not the paper.
  const float nx = float(zg.nxpag), ny = float(zg.nypag);
  float pw, ph;
  int irot;
  if (nx > ny && zg.ipgmod != 2) {
    const float s = std::min(h / nx, w / ny);
    irot = 1;
    pw = ny * s;
    ph = nx * s;
  } else {
    const float s = std::min(w / nx, h / ny);
    irot = 0;
    pw = nx * s;
    ph = ny * s;
  }
  int ierr = 0;
  const std::string path = zg.cplotfl.str();
  qqpdf1(path.c_str(), int(pw + 1.0f), int(ph + 1.0f), zg.ipdfmod, irot, ierr);
  if (ierr == -1) {
    warnin(36);
    stop_without_output();
  }
  if (ierr == -2) {
    warnin(53);
    stop_without_output();
  }
  if (zg.irevscr != 2) {
    qqpdf3(0, 0, 0, 1);
    qqpdf4(0.0f, 0.0f, pw, ph);
  }
}

int pdf_end() {
  const bool buffered = pdf_buffered();
  qqpdf2(0.0f, 0.0f, 1);
  return buffered ? 0 : 1;
}

void pdfmod(std::string_view copt, std::string_view ckey) {
  if (jqqlev(0, 0, "PDFMOD")) return;
  const int on = jqqind("OFF +ON  ", 2, copt);
  if (on == 0) return;
  const int key = jqqind("COMP+BUFF", 2, ckey);
  if (key == 0) return;
  const int bit = key == 1 ? 1 : 2;
  zg.ipdfmod = on == 2 ? (zg.ipdfmod | bit) : (zg.ipdfmod & ~bit);
}

void pdfmrk(std::string_view cstr, std::string_view copt) {
  if (jqqlev(1, 3, "PDFMRK")) return;
  if (zg.idev != 511) return;
  // An unknown level is refused by the writer as out of range.
  static constexpr std::string_view kLevels = "CHAP+SECT+SUBS+PARA+SUBP";
  const std::string key = pad(upper(copt.substr(0, std::min<std::size_t>(copt.size(), 4))), 4);
  int level = 5;
  for (int i = 0; i < 5; ++i)
    if (kLevels.substr(std::size_t(i) * 5, 4) == key) level = i;
  std::size_t a = 0, b = cstr.size();
  while (a < b && cstr[a] == ' ') ++a;
  while (b > a && cstr[b - 1] == ' ') --b;
  const std::string title(cstr.substr(a, std::min<std::size_t>(b - a, 256)));
  int ierr = 0;
  qqpdf9(title.c_str(), level, ierr);
  if (ierr == 1 || ierr == 4) custom_warning("Bad parameter");
  else if (ierr == 2) custom_warning("Bad structure for bookmarks");
  else if (ierr == 3) custom_warning("Not enough memory");
}

void pdfbuf(char* cbuf, int nmax, int& nlen) {
  nlen = 0;
  if (jqqlev(0, 0, "PDFBUF")) return;
  if (zg.idev != 511) {
    custom_warning("Output format is not PDF");
    return;
  }
  if ((zg.ipdfmod & 2) == 0) {
    custom_warning("Buffer output is not enabled for PDF");
    return;
  }
  const int r = qqpdf6(cbuf, nmax);
  if (r == -1) warnin(53);
  else if (r == -2) custom_warning("Internal PDF buffer is empty");
  else if (r == -3) custom_warning("Buffer too small for PDF file");
  else nlen = r;
}

}  // namespace zb
