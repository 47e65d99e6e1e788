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

}  // namespace zb
