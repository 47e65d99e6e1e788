// What other folders may call of the curves: curve and its settings, the attribute cycle
// that bars, contours and maps share, the legend record of each curve, and splines.
#pragma once
#include <string_view>

namespace zb {

// Public routines.
void curve(const float* xray, const float* yray, int n);
void polcrv(std::string_view copt);
void incmrk(int n);
void marker(int nsym);
void hsymbl(int nh);
void chncrv(std::string_view copt);
void inccrv(int n);
void gapcrv(float xgap);
void splmod(int ngrad, int npts);
void barwth(float x);
void getsym(int& nsym, int& nh);
// The interpolated points of the current spline mode (PSPL parametric, else SPLI) without
// drawing: nout = nsppts + 1 points on success, 0 otherwise.
void spline(const float* xray, const float* yray, int n, float* xout, float* yout, int& nout);

// Attribute cycle. chnatt moves to the next colour, style and symbol and numbers the next
// legend line; resatt starts the cycle again; end_curves is what endgrf clears.
void chnatt();
void resatt();
void end_curves();
// Records the sample of legend line ncrv from the current attributes.
void slegnd(int ncrv);

}  // namespace zb
