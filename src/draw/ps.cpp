// PostScript and EPS driver: the file head with its macros, and the path writer that
// batches pen moves into paths of up to 50 points.
#include <array>

#include "draw/device.h"
#include "frame/frame.h"

namespace zb {

namespace {

int npath = 0;
std::array<int, 50> ipthx{}, ipthy{};
int ipthx0 = 0, ipthy0 = 0;

// Macro lines of the head, in file order.
constexpr const char* kMacros[] = {
    "2 setlinecap 2 setlinejoin",
    "/cm {0.1417322835 mul} def /rgb {255 div} def /lc 1 string def",
    "/u  { /y exch cm def /x exch cm def newpath  x y moveto } def",
    "/d  { /y exch cm def /x exch cm def x y lineto } def",
    "/p  { stroke } def",
    "/e { /b exch rgb def /g exch rgb def",
    " /r exch rgb def /v exch cm def /w exch cm def /y exch cm def",
    " /x exch cm def gsave r g b setrgbcolor newpath x y moveto",
    " w y lineto w v lineto x v lineto closepath fill grestore } def",
    "/f { /b exch rgb def /g exch rgb def",
    " /r exch rgb def r g b setrgbcolor } def",
    "/text { /c1 exch def /a exch def /y exch cm def /x exch cm def",
    " /Name exch def gsave x y moveto x y translate a rotate c1 0 gt",
    " { Name stringwidth 2 div neg exch 2 div neg exch rmoveto }",
    " {} ifelse Name show grestore } def /font { /h exch def",
    " /s exch def s findfont h scalefont setfont } def",
    "/c { /a exch def /y exch cm def /x exch cm def /i exch def",
    " gsave x y moveto x y translate a rotate lc 0 i put lc",
    " stringwidth 2 div neg exch 2 div neg exch rmoveto lc show",
    " grestore } def",
    "/sec { /b exch rgb def /g exch rgb def /r exch rgb def",
    " /a2 exch def /a exch def /r2 exch cm def /r1 exch cm def",
    " /y exch cm def /x exch cm def gsave r g b setrgbcolor newpath",
    " x y r1 a a2 arc x y r2 a2 a arcn closepath fill grestore } def",
    "/tri { /y3 exch cm def /x3 exch cm def /y2 exch cm def",
    " /x2 exch cm def /y1 exch cm def /x1 exch cm def",
    " gsave newpath x1 y1 moveto",
    " x2 y2 lineto x3 y3 lineto closepath fill grestore } def",
    "/Reencsmalldict 12 dict def",
    "/ReEncodeSmall",
    "{ Reencsmalldict begin",
    "  /NewCodesAndNames exch def",
    "  /NewFontName exch def",
    "  /BaseFontName exch def",
    "  /BaseFontDict",
    "  BaseFontName findfont def",
    "  /NewFont BaseFontDict",
    "  maxlength dict def",
    "  BaseFontDict",
    "  { exch dup /FID ne",
    "    { dup /Encoding eq",
    "      { exch dup length array copy",
    "        NewFont 3 1 roll put",
    "      }",
    "      { exch NewFont 3 1 roll put",
    "      } ifelse",
    "      }",
    "      {pop pop} ifelse",
    "    } forall",
    "    NewFont",
    "    /FontName NewFontName put",
    "    NewCodesAndNames aload pop",
    "    NewCodesAndNames",
    "    length 2 idiv",
    "    { NewFont /Encoding get",
    "    3 1 roll put  } repeat",
    "    NewFontName NewFont",
    "    definefont pop end } def",
    " /GermanVec [ 8#177 /Adieresis",
    " 8#200 /Odieresis 8#201 /Udieresis 8#202 /adieresis",
    " 8#203 /odieresis 8#204 /udieresis 8#205 /germandbls",
    " 8#206 /Aring     8#207 /Oslash    8#210 /AE",
    " 8#211 /aring     8#212 /oslash    8#213 /ae",
    " 8#214 /Ntilde    8#215 /ntilde    8#216 /Ccedilla",
    " 8#217 /ccedilla  8#220 /Edieresis 8#221 /Idieresis",
    " 8#222 /edieresis 8#223 /idieresis 8#224 /Aacute",
    " 8#225 /Eacute    8#226 /Iacute    8#227 /Oacute",
    " 8#230 /Uacute    8#231 /aacute    8#232 /eacute",
    " 8#233 /iacute    8#234 /oacute    8#235 /uacute",
    " 8#236 /Agrave    8#237 /Egrave    8#240 /Igrave",
    " 8#241 /Ograve    8#242 /Ugrave    8#243 /agrave",
    " 8#244 /egrave    8#245 /igrave    8#246 /ograve",
    " 8#247 /ugrave      8#250 /Acircumflex 8#251 /Ecircumflex",
    " 8#252 /Icircumflex 8#253 /Ocircumflex 8#254 /Ucircumflex",
    " 8#255 /acircumflex 8#256 /ecircumflex 8#257 /icircumflex",
    " 8#260 /ocircumflex 8#261 /ucircumflex 8#262 /Atilde",
    " 8#263 /atilde 8#264 /Otilde 8#265 /otilde 8#266 /Yacute",
    " 8#267 /yacute 8#270 /ydieresis",
    " 8#271 /exclamdown 8#272 /questiondown ] def",
};

int rnd(float v) { return int(v + 0.5f); }

void put_point(int x, int y, const char* op) { qpsbuf(fmt_i(x, 5) + " " + fmt_i(y, 5) + op); }

void flush_path() {
  if (npath == 0) return;
  put_point(ipthx[0], ipthy[0], " u ");
  for (int i = 1; i < npath; ++i) put_point(ipthx[std::size_t(i)], ipthy[std::size_t(i)], " d ");
  qpsbuf("p ");
}

}  // namespace

bool psc_turned() { return zg.nxpag > zg.nypag && zg.ipgmod != 2; }

void psc_reset() {
  npath = 0;
  ipthx0 = ipthy0 = 0;
}

void drwpsc(float x, float y, int icode) {
  if (icode == 2) {
    if (npath == 0) {
      ipthx[0] = ipthx0;
      ipthy[0] = ipthy0;
      npath = 1;
    }
    ipthx[std::size_t(npath)] = rnd(x);
    ipthy[std::size_t(npath)] = rnd(y);
    ++npath;
    if (npath < 50) return;
  }
  flush_path();
  if (icode == 999) {
    if (npath > 0) {
      ipthx0 = ipthx[std::size_t(npath - 1)];
      ipthy0 = ipthy[std::size_t(npath - 1)];
    }
    npath = 0;
    return;
  }
  // After a full batch the next path starts at the batch's last point.
  if (icode == 2) {
    ipthx[0] = ipthx[49];
    ipthy[0] = ipthy[49];
    npath = 1;
    return;
  }
  npath = 1;
  ipthx[0] = rnd(x);
  ipthy[0] = rnd(y);
}

// Factor f of the head: the part of the page fit that is not in devscl.
float psc_factor = 1.0f;

void inipsc(int lun) {
  psc_reset();
  const bool turned = psc_turned();
  const float x0 = zg.ihworg ? 2.0f * float(zg.nhworx) : 150.0f;
  const float y0 = zg.ihworg ? 2.0f * float(zg.nhwory) : 200.0f;
  const float p = 0.14173229f;
  const float a = float(turned ? zg.nypag : zg.nxpag);
  const float b = float(turned ? zg.nxpag : zg.nypag);
  const float f = psc_factor;
  auto line = [lun](const std::string& s) { lun_write(lun, s); };
  line(zg.idev == 503 ? "%!PS-Adobe-3.0 EPSF-3.0" : "%!PS-Adobe-2.0");
  line("%%BoundingBox: " + fmt_i(int(x0 * p), 8) + fmt_i(int(y0 * p), 8) +
       fmt_i(int((a * zg.devscl * f + x0) * p + 1.0f), 8) +
       fmt_i(int((b * zg.devscl * f + y0) * p + 1.0f), 8));
  line("%%Creator: ZORBEL " + fmt_f(kVersion, 4, 1) + (turned ? " L" : " P"));
  std::string date, time;
  clock_strings(date, time);
  line("%%CreationDate: " + date + ", " + time);
  line("%%EndComments");
  line("%%Page: 1 1");
  for (const char* m : kMacros) line(m);
  const std::string ff = fmt_f(f, 10, 6) + fmt_f(f, 10, 6);
  if (!zg.ihworg) {
    line("  150 cm   200 cm translate 5 cm setlinewidth " + ff + " scale");
  } else {
    line(fmt_i(int(x0), 5) + " cm " + fmt_i(int(y0), 5) + " cm translate 5 cm setlinewidth " + ff +
         " scale");
  }
  if ((zg.idev == 502 || zg.idev == 503 || zg.idev == 504) && zg.irevscr != 2) {
    const int w = int(float(turned ? zg.nypag : zg.nxpag) * zg.devscl + 0.5f);
    const int h = int(float(turned ? zg.nxpag : zg.nypag) * zg.devscl + 0.5f);
    line("    0     0 " + fmt_i(w, 5) + " " + fmt_i(h, 5) + " 0 0 0 e ");
  }
}

// A line attribute of the graphics state (width, cap, join, miter limit). PostScript
// applies it when a path is stroked, so the pending path is stroked first.
void psc_gstate(const std::string& rec) {
  xjdraw(0.0f, 0.0f, 999);
  qpsbuf(rec);
}

}  // namespace zb
