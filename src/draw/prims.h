// Geometric primitives: circles, ellipses, arcs, rectangles, sectors, symbols, arrows,
// wind barbs and boxes, in plot coordinates and as rl* twins in user coordinates.
// Curves, legends, pies, polar grids and maps draw their shapes through these.
#pragma once

namespace zb {

// Plot coordinates, integer arguments, levels 1 to 3. Each y passes through jqqyvl.
void circle(int nx, int ny, int nr);
void ellips(int nx, int ny, int na, int nb);
void arcell(int nx, int ny, int na, int nb, float alpha, float beta, float theta);
void pie(int nx, int ny, int nr, float alpha, float beta);
void rectan(int nx, int ny, int nw, int nh);
void rndrec(int nx, int ny, int nw, int nh, int iopt);
void sector(int nx, int ny, int nr1, int nr2, float alpha, float beta, int ncol);
void symbol(int nsym, int nx, int ny);
void vector(int nx1, int ny1, int nx2, int ny2, int ivec);
void trifll(const float* xray, const float* yray);
void point(int nx, int ny, int nb, int nh, int ncol);
void recfll(int nx, int ny, int nw, int nh, int ncol);
void pagfll(int ncol);
void strtpt(float x, float y);
void connpt(float x, float y);
void xpolyl(const float* xray, const float* yray, int n);   // not level-checked
void windbr(float xv, int nx, int ny, int nw, float a);     // not level-checked

// Settings.
void circsp(int nspc);
void symrot(float xang);
void mysymb(const float* xray, const float* yray, int n, int isym, int iflag);

// Computations at every level.
void bezier(const float* xray, const float* yray, int n, float* xpray, float* ypray, int np);
void circ3p(float x1, float y1, float x2, float y2, float x3, float y3, float& xm, float& ym,
            float& r);

// User coordinates of the current axis system, levels 2 and 3.
void pointx(float x, float y, int nb, int nh, int ncol);
void rlpoin(float x, float y, int nb, int nh, int ncol);
void rlarc(float xm, float ym, float xa, float xb, float alpha, float beta, float theta);
void rlarea(const float* xray, const float* yray, int n);
void rlcirc(float xm, float ym, float r);
void rlconn(float x, float y);
void rlell(float xm, float ym, float a, float b);
void rlpie(float xm, float ym, float r, float alpha, float beta);
void rlrec(float x, float y, float w, float h);
void rlrnd(float x, float y, float w, float h, int iopt);
void rlsec(float xm, float ym, float r1, float r2, float alpha, float beta, int ncol);
void rlstrt(float x, float y);
void rlsymb(int nsym, float x, float y);
void rlvec(float x1, float y1, float x2, float y2, int ivec);
void rlwind(float xv, float x, float y, int nw, float a);

// Internal. elpsln is the one outline routine: iline 1 keeps the dash pattern, 0 draws
// solid; iclose 1 closes an open arc through the centre. y is already mapped.
void elpsln(int nx, int ny, int nr1, int nr2, float alpha, float beta, float theta, int iline,
            int iclose);
// A symbol at the size hsym, without checks, y already mapped.
void dsymbl(int nsym, int nx, int ny);
// Ring sector in the Kyocera printer language; ipat 1 to 9 is a grey pattern.
void kdarc(int nx, int ny, int nr2, int nr1, float beta, float alpha, int ipat);

}  // namespace zb
