// The line pipeline: style stage (strtqq, connqq), stroke buffer (qqmove, qqdraw, qqstrk)
// with software thick lines, and clipping (clip2d), ending in xjdraw. Setters of line
// style, width and clipping, and the public drawing routines.
#pragma once
#include <string_view>

namespace zb {

// Style stage: plot coordinates without origin; dashes and the offset of thick curves.
void strtqq(float x, float y);      // starts a line; the dash pattern runs on
void connqq(float x, float y);      // continues it in the current style
void lineqq(int ix1, int iy1, int ix2, int iy2);
void inityp();                      // restarts the dash pattern
void thklin(int ix1, int iy1, int ix2, int iy2);   // lineqq once per thkcrv offset
void thklnx(float x1, float y1, float x2, float y2);   // rline once per thkcrv offset

// Stroke buffer: plot coordinates with the origin added, up to 100 points a stroke.
void qqmove(float x, float y);      // new stroke
void qqdraw(float x, float y);      // next point of the stroke
void xline(const float* xray, const float* yray);   // qqmove of the first, qqdraw of the second
void qqstrk();                      // draws and empties the stroke buffer; thick lines here

// Clipping.
void clip2d(float x1, float y1, float x2, float y2);   // clipped segment to the device
int jqqclp(float x, float y);       // 0 inside the clipping window or circle, 1 outside
void setclp();                      // rectangle and circle of the axis system
void sclpax(int mode);              // 0 clip to the axis system, 1 restore
// endgrf: ends clpbor("AXIS") (iclpbd 2) by restoring the saved window.
void release_axis_clip();
// Cuts a box (origin added) to the clipping window; false if nothing remains.
bool clip_box(float& x1, float& y1, float& x2, float& y2);

// Public routines.
void lintyp(int ntyp);
void myline(const int* nray, int n);
void gettyp(int& ntyp);
void linwid(int nw);
void penwid(float xw);
void getlin(int& nw);
void lncap(std::string_view copt);
void lnjoin(std::string_view copt);
void lnmlt(float xf);
void thkcrv(int n);
void grace(int ngrace);
void clpwin(int nx, int ny, int nw, int nh);
void clpbor(std::string_view copt);
void clpmod(std::string_view cmod);
void noclip();
void getclp(int& nx, int& ny, int& nw, int& nh);
void line(int nx1, int ny1, int nx2, int ny2);
void rline(float x1, float y1, float x2, float y2);
void xmove(float x, float y);
void xdraw(float x, float y);

// Owned elsewhere, called by the pipeline; until their owners link in, defaults that pass
// the segment straight on (or leave the point alone) stand in.
void dhline(float x, float y, int mode);                // hidden-line surfaces, ihidln 1
void qqbl01(float x1, float y1, float x2, float y2);    // shield regions, ishield > 0
void proj3d(float& x, float& y);                         // plane of a 3-D box, ixfpts bit 1
void btrf01(float& x, float& y);                         // base transformation, ixfpts bit 2
void qqwext(int code, int value);                        // screen settings; 11..14 clip window
bool azimuthal_circle_clip();   // maps: an azimuthal map whose picture is clipped to a circle

}  // namespace zb
