// Setters and getters of the axis system and of the axes: position, size, type, scaling
// mode, sides, labels, ticks, names and colours.
#include <cmath>

#include "axes/axes.h"
#include "frame/frame.h"

namespace zb {

namespace {

constexpr std::string_view kLabelTypes =
    "NONE+FLOA+EXP +LOG +CLOG+ELOG+MAP +DMAP+LMAP+TIME+HOUR+SECO+MYLA+FEXP+DATE";

// Sets field[i] = v for each axis that cax names.
template <class T>
void per_axis(std::array<T, 3>& field, std::string_view cax, T v) {
  const int mask = gaxsop(cax);
  for (std::size_t i = 0; i < 3; ++i)
    if (mask & (1 << i)) field[i] = v;
}

// Keyword option per axis: the index in the list, less one, for the axes of cax.
void keyword_per_axis(std::array<int, 3>& field, std::string_view list, int nlist,
                      std::string_view copt, std::string_view cax) {
  const int i = jqqind(list, nlist, copt);
  if (i > 0) per_axis(field, cax, i - 1);
}

bool colour_value(int nclr) { return nclr == -1 || (nclr >= 0 && nclr <= 255) || (nclr >> 24) == 1; }

}  // namespace

void axslen(int nx, int ny) {
  if (jqqlev(1, 1, "AXSLEN")) return;
  if (jqqval(nx, 2, zg.nxpag + 1) || jqqval(ny, 2, zg.nypag + 1)) return;
  zg.nxl = nx;
  zg.nyl = ny;
}

void axspos(int nx, int ny) {
  if (jqqlev(1, 1, "AXSPOS")) return;
  if (jqqval(nx, 0, zg.nxpag) || jqqval(ny, 0, zg.nypag)) return;
  zg.nxa = nx;
  zg.nya = jqqyvl(ny);
  zg.icrosf = 0;
}

void axsorg(int nx, int ny) {
  if (jqqlev(1, 1, "AXSORG")) return;
  if (jqqval(nx, 0, zg.nxpag) || jqqval(ny, 0, zg.nypag)) return;
  zg.nxcros = nx;
  zg.nycros = jqqyvl(ny);
  zg.icrosf = 1;
}

void axstyp(std::string_view copt) {
  chkini("AXSTYP");
  const int i = jqqind("RECT+CROS", 2, copt);
  if (i > 0) zg.iaxtyp = i - 1;
}

void axsscl(std::string_view copt, std::string_view cax) {
  chkini("AXSSCL");
  const int i = jqqind("LIN +LOG ", 2, copt);
  if (i == 0) return;
  const int mask = gaxsop(cax);
  if (mask & 1) zg.ilogx = i - 1;
  if (mask & 2) zg.ilogy = i - 1;
  if (mask & 4) zg.ilogz = i - 1;
}

void center() {
  chkini("CENTER");
  zg.icentr = 1;
}

void axsbgd(int nclr) {
  chkini("AXSBGD");
  if (!colour_value(nclr)) {
    warni1(2, nclr);
    return;
  }
  zg.iaxbgd = nclr;
}

void setgrf(std::string_view c1, std::string_view c2, std::string_view c3, std::string_view c4) {
  if (jqqlev(1, 1, "SETGRF")) return;
  constexpr std::string_view kList = "NONE+LINE+TICK+LABE+NAME";
  const int b = jqqind(kList, 5, c1);
  const int l = b > 0 ? jqqind(kList, 5, c2) : 0;
  const int t = l > 0 ? jqqind(kList, 5, c3) : 0;
  const int r = t > 0 ? jqqind(kList, 5, c4) : 0;
  if (r == 0) return;
  zg.iside = {b - 1, r - 1, t - 1, l - 1};
}

void ax2grf() {
  chkini("AX2GRF");
  zg.iax2gf = 1;
}

void nograf() {
  chkini("NOGRAF");
  zg.inogrf = 1;
}

void neglog(float x) {
  chkini("NEGLOG");
  if (!(x > 0.0f) || !std::isfinite(x)) {
    warnin(2);
    return;
  }
  zg.ineglg = 1;
  zg.xneglg = x;
}

void nochek() {
  chkini("NOCHEK");
  zg.inochk = 1;
}

void getpos(int& nx, int& ny) {
  chkini("GETPOS");
  nx = zg.nxa;
  ny = zg.nya;
}

void getlen(int& nx, int& ny, int& nz) {
  chkini("GETLEN");
  nx = zg.nxl;
  ny = zg.nyl;
  nz = zg.nzl;
}

void getscl(int& nx, int& ny, int& nz) {
  chkini("GETSCL");
  nx = zg.ilogx;
  ny = zg.ilogy;
  nz = zg.ilogz;
}

void labels(std::string_view copt, std::string_view cax) {
  chkini("LABELS");
  const int i = jqqind(kLabelTypes, 15, copt);
  if (i == 0) return;
  const int t = i - 1;
  const int cls = (t >= 6 && t <= 8) ? 2 : (t >= 9 && t <= 11) ? 1 : t == 14 ? 3 : 0;
  const int st = (t == 3 || t == 4) ? 1 : t == 5 ? 3 : 2;
  const int ct = (t == 2 || t == 4) ? 1 : 0;
  per_axis(zg.ilabtp, cax, t);
  per_axis(zg.ilabcl, cax, cls);
  per_axis(zg.ilabst, cax, st);
  per_axis(zg.ilabct, cax, ct);
}

void labdig(int ndig, std::string_view cax) {
  chkini("LABDIG");
  if (jqqval(ndig, -1, 100)) return;
  per_axis(zg.ilabdg, cax, ndig);
}

void labdis(int ndis, std::string_view cax) {
  chkini("LABDIS");
  per_axis(zg.nlabds, cax, ndis);
}

void labpos(std::string_view copt, std::string_view cax) {
  chkini("LABPOS");
  keyword_per_axis(zg.ilabps, "TICK+CENT+SHIF", 3, copt, cax);
}

void labjus(std::string_view copt, std::string_view cax) {
  chkini("LABJUS");
  keyword_per_axis(zg.ilabjs, "AUTO+LEFT+RIGH+OUTW+INWA", 5, copt, cax);
}

void labtyp(std::string_view copt, std::string_view cax) {
  chkini("LABTYP");
  keyword_per_axis(zg.ilabor, "HORI+VERT", 2, copt, cax);
}

void ticks(int ntics, std::string_view cax) {
  chkini("TICKS");
  if (jqqval(ntics, 0, 1000)) return;
  per_axis(zg.nticks, cax, ntics);
}

void ticlen(int nmaj, int nmin) {
  chkini("TICLEN");
  if (jqqval(nmaj, 1, 10000) || jqqval(nmin, 1, 10000)) return;
  zg.ntcmaj = nmaj;
  zg.ntcmin = nmin;
}

void ticpos(std::string_view copt, std::string_view cax) {
  chkini("TICPOS");
  keyword_per_axis(zg.iticps, "LABE+REVE+CENT", 3, copt, cax);
}

void logtic(std::string_view copt) {
  chkini("LOGTIC");
  const int i = jqqind("AUTO+FULL", 2, copt);
  if (i > 0) zg.ilogtc = i - 1;
}

void name(std::string_view cstr, std::string_view cax) {
  chkini("NAME");
  per_axis(zg.caxnam, cax, FStr<132>(cstr));
}

void hname(int nh) {
  chkini("HNAME");
  if (jqqval(nh, 1, 10000)) return;
  zg.nhname = nh;
}

void namdis(int ndis, std::string_view cax) {
  chkini("NAMDIS");
  per_axis(zg.nnamds, cax, ndis);
}

void namjus(std::string_view copt, std::string_view cax) {
  chkini("NAMJUS");
  keyword_per_axis(zg.inamjs, "CENT+LEFT+RIGH", 3, copt, cax);
}

void rvynam() {
  chkini("RVYNAM");
  zg.irvynm = 1;
}

void axends(std::string_view copt, std::string_view cax) {
  chkini("AXENDS");
  keyword_per_axis(zg.iaxend, "NONE+NOFI+NOLA+NOEN+ENDS+FIRS+LAST", 7, copt, cax);
}

void intax() {
  chkini("INTAX");
  zg.ilabdg = {-1, -1, -1};
}

void noline(std::string_view cax) {
  chkini("NOLINE");
  per_axis(zg.iaxlin, cax, 0);
}

void axclrs(int nclr, std::string_view copt, std::string_view cax) {
  chkini("AXCLRS");
  if (!colour_value(nclr)) {
    warni1(2, nclr);
    return;
  }
  const int i = jqqind("LINE+TICK+LABE+NAME+ALL ", 5, copt);
  if (i == 0) return;
  const int mask = gaxsop(cax);
  for (std::size_t ax = 0; ax < 3; ++ax) {
    if ((mask & (1 << ax)) == 0) continue;
    for (std::size_t k = 0; k < 4; ++k)
      if (i == 5 || int(k) == i - 1) zg.iaxclr[ax * 4 + k] = nclr;
  }
}

void mylab(std::string_view cstr, int itick, std::string_view cax) {
  chkini("MYLAB");
  if (jqqval(itick, 1, 20)) return;
  const int mask = gaxsop(cax);
  const std::size_t slot = std::size_t(itick - 1);
  for (std::size_t ax = 0; ax < 3; ++ax) {
    if ((mask & (1 << ax)) && itick <= zg.nmylab[ax] && !zg.caxlab[ax * 20 + slot].view().empty()) {
      warni1(6, itick);
      return;
    }
  }
  for (std::size_t ax = 0; ax < 3; ++ax) {
    if ((mask & (1 << ax)) == 0) continue;
    zg.caxlab[ax * 20 + slot] = cstr;
    zg.nmylab[ax] = std::max(zg.nmylab[ax], itick);
  }
}

void rgtlab() {
  chkini("RGTLAB");
  zg.irgtlb = 1;
}

void timopt() {
  chkini("TIMOPT");
  zg.itmopt = 1;
}

void getlab(std::string& cx, std::string& cy, std::string& cz) {
  chkini("GETLAB");
  auto key = [](int t) { return pad(kLabelTypes.substr(std::size_t(std::clamp(t, 0, 14)) * 5, 4), 8); };
  cx = key(zg.ilabtp[0]);
  cy = key(zg.ilabtp[1]);
  cz = key(zg.ilabtp[2]);
}

void getsp1(int& n1, int& n2, int& n3) {
  chkini("GETSP1");
  n1 = zg.nlabds[0];
  n2 = zg.nlabds[1];
  n3 = zg.nlabds[2];
}

void getsp2(int& n1, int& n2, int& n3) {
  chkini("GETSP2");
  n1 = zg.nnamds[0];
  n2 = zg.nnamds[1];
  n3 = zg.nnamds[2];
}

void gettic(int& n1, int& n2, int& n3) {
  chkini("GETTIC");
  n1 = zg.nticks[0];
  n2 = zg.nticks[1];
  n3 = zg.nticks[2];
}

void getdig(int& n1, int& n2, int& n3) {
  chkini("GETDIG");
  n1 = zg.ilabdg[0];
  n2 = zg.ilabdg[1];
  n3 = zg.ilabdg[2];
}

void gettcl(int& nmaj, int& nmin) {
  chkini("GETTCL");
  nmaj = zg.ntcmaj;
  nmin = zg.ntcmin;
}

void gethnm(int& nh) {
  chkini("GETHNM");
  nh = zg.nhname;
}

}  // namespace zb
