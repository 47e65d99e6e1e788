// What other folders may call of the 2-D axis system: the conversions between user and
// plot coordinates, the checks of data against the scaling, and the pieces of graf and
// of axis drawing that polar, 3-D, map, chart and grid code reuse.
#pragma once
#include <string>
#include <string_view>

namespace zb {

// User to plot coordinates (no origin added), limited to -1000000 .. 1000000.
void qqpos2(float xu, float yu, float& xp, float& yp);
void qqrel2(float xu, float yu, float& xp, float& yp);   // the same mapping, for curves
// One coordinate alone, without limit; the n forms add 0.5 and truncate. yposn and nyposn
// follow the page origin of pagorg.
float xposn(float x);
float yposn(float y);
int nxposn(float x);
int nyposn(float y);
// Plot to user coordinates.
float xinvrs(int n);
float yinvrs(int n);
// Map projections plug in here: true when a projection mapped the point (the maps folder
// supplies it; the library's own version maps nothing).
bool qqpos2_map(float xu, float yu, float& xp, float& yp);

// Data against the scaling: jqqlog gives warning 27 and returns 1 for a value <= 0 on a
// logarithmic axis (without neglog); chkscl reports points outside the scaling.
int jqqlog(const float* xray, const float* yray, int n);
void chkscl(const float* xray, const float* yray, int n);

// Axes named by an option string: bit 1 x, 2 y, 4 z, for the letters in its first three
// characters.
int gaxsop(std::string_view cax);

// Pieces of graf.
void gscale(float& xa, float& xe, float& xor_, float& xstp, int iaxis);
void erraxs(float xa, float xe, float xor_, float xstp, int nlen, int nx, int ny, int& ierr);
void sxyscl(float xa, float xe, float xor_, float xstp, float ya, float ye, float yor, float ystp);
void sgrafp(int iside, int iflag);
void newori();

// Axis drawing. iaxis 1 is a horizontal axis with the settings of x, 2 and 3 vertical ones
// with the settings of y and z. idir 0 puts ticks, labels and name toward larger plot
// coordinates, 1 toward smaller ones.
void daxis(float xa, float xe, float xor_, float xstp, int nlen, std::string_view cname, int idir,
           int nx, int ny, int ilog, int iaxis);
// Ticks with explicit signed lengths and count; itcps 2 centres them on the axis.
void markx(float xa, float xe, float xor_, float xstp, int nlen, int nmaj, int nmin, int ntic,
           int nx, int ny, int ilog, int itcps, int iaxis);
void settic(int idir, int ireve);
void rvline(int x1, int y1, int x2, int y2);
void endpar(int n, int iaxend, int& i0, int& i1, int& istep);
// Text of label i with value v (an exponent on a logarithmic axis).
std::string glabxy(float v, int i, int ilog, int iaxis);
// Widest label of an axis, in plot units.
int maxnuy(float xa, float xe, float xor_, float xstp, int ilog, int iaxis);
// Nested rectangles around a box, the frame of an axis system.
void dframe(int nx, int ny, int nw, int nh, int nthk, float xang);

// Number texts of labels: fixed notation with ndig places (-1: no point), and exponent
// notation, "*10" with a raised exponent (iopt 1) or "E" (other iopt).
std::string fixed_label(float x, int ndig);
std::string exp_label(float x, int ndig, int iopt);
int label_width(float x, int ndig);   // characters of fixed_label

// Control characters used in label texts: raise and reset.
char label_exp_char();
char label_reset_char();
// Room of the labels of an axis across it, as labelx takes it.
int label_room(float xa, float xe, float xor_, float xstp, int ilog, int iaxis);

// Public routines of the axis system. graf overwrites its arguments when automatic
// scaling is on.
void graf(float& xa, float& xe, float& xor_, float& xstp, float& ya, float& ye, float& yor,
          float& ystp);
void endgrf();
void setscl(const float* xray, int n, std::string_view cstr);
void axslen(int nx, int ny);
void axspos(int nx, int ny);
void axsorg(int nx, int ny);
void axstyp(std::string_view copt);
void axsscl(std::string_view copt, std::string_view cax);
void center();
void axsbgd(int nclr);
void setgrf(std::string_view c1, std::string_view c2, std::string_view c3, std::string_view c4);
void ax2grf();
void nograf();
void neglog(float x);
void nochek();
void getpos(int& nx, int& ny);
void getlen(int& nx, int& ny, int& nz);
void getscl(int& nx, int& ny, int& nz);
void xaxis(float xa, float xe, float xor_, float xstp, int nlen, std::string_view cstr, int it,
           int nx, int ny);
void yaxis(float xa, float xe, float xor_, float xstp, int nlen, std::string_view cstr, int it,
           int nx, int ny);
void xaxlg(float xa, float xe, float xor_, float xstp, int nlen, std::string_view cstr, int it,
           int nx, int ny);
void yaxlg(float xa, float xe, float xor_, float xstp, int nlen, std::string_view cstr, int it,
           int nx, int ny);
void labels(std::string_view copt, std::string_view cax);
void labdig(int ndig, std::string_view cax);
void labdis(int ndis, std::string_view cax);
void labpos(std::string_view copt, std::string_view cax);
void labjus(std::string_view copt, std::string_view cax);
void labtyp(std::string_view copt, std::string_view cax);
void ticks(int ntics, std::string_view cax);
void ticlen(int nmaj, int nmin);
void ticpos(std::string_view copt, std::string_view cax);
void logtic(std::string_view copt);
void name(std::string_view cstr, std::string_view cax);
void hname(int nh);
void namdis(int ndis, std::string_view cax);
void namjus(std::string_view copt, std::string_view cax);
void rvynam();
void axends(std::string_view copt, std::string_view cax);
void intax();
void noline(std::string_view cax);
void axclrs(int nclr, std::string_view copt, std::string_view cax);
void mylab(std::string_view cstr, int itick, std::string_view cax);
void rgtlab();
void timopt();
// Keywords of the label types of the three axes, blank-padded to 8 characters.
void getlab(std::string& cx, std::string& cy, std::string& cz);
void getsp1(int& n1, int& n2, int& n3);
void getsp2(int& n1, int& n2, int& n3);
void gettic(int& n1, int& n2, int& n3);
void getdig(int& n1, int& n2, int& n3);
void gettcl(int& nmaj, int& nmin);
void gethnm(int& nh);

// Titles, grids, lines and axes through the origin, frames and the page header.
void title();
void titlin(std::string_view cstr, int n);
void titjus(std::string_view copt);
void titpos(std::string_view copt);
void htitle(int nh);
void vkytit(int nv);
void lfttit();
void getcen(int& ncen);
void grid(int ixgrid, int iygrid);
void daxgit(int n);   // 1 the line y = 0, 2 the line x = 0, 3 both
void dcross(int n);   // 1 the x axis at y = 0, 2 the y axis at x = 0, 3 both
void frame(int n);
void frmclr(int iclr);
void box2d();
void paghdr(std::string_view cstr1, std::string_view cstr2, int iopt, int idir);
// The page header's line (trailing blanks cut) and its start in corner iopt, direction
// idir, for a line w long at the height hh.
std::string page_header_line(std::string_view cstr1, std::string_view cstr2);
void page_header_start(int iopt, int idir, int w, int hh, int& nx, int& ny);
// Room of the title lines at the top (titpos ABOV) or bottom (BELO), for centring.
int title_room(bool top);
// The polar grid; the polar axis system supplies it (until then a weak stand-in draws nothing).
void grdpol(int igrid, int jgrid);

}  // namespace zb
