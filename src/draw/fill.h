// Area fill: every filled polygon of the library passes through dareaf, which fills it
// natively where the device can, and otherwise hatches it with scan lines drawn through the
// line pipeline.
#pragma once

namespace zb {

// Span routine of the polygon scan: two x and two y values.
using SpanFn = void (*)(const float* xpair, const float* ypair);

// Public routines.
void areaf(const int* nxray, const int* nyray, int n);
void shdpat(int ipat);
void mypat(int iangle, int itype, int idens, int icross);
void getpat(int& ipat);
void noarln();

// Internal: plot coordinates relative to the origin unless said otherwise.
void dareaf(const float* xray, const float* yray, int n);   // fill, current pattern and colour
void arealx(const float* xray, const float* yray, int n);   // outline, closed
// Even-odd scan of a polygon on heights that are multiples of xstep; false if a scan line
// had more than 100 crossings (warning 26) or the scan could not run.
bool gkwfa(int n, const float* xray, const float* yray, float xstep, SpanFn span);
void dlinef(const float* xpair, const float* ypair);        // span routine of dareaf
void ffllin(const float* xpair, const float* ypair);        // span routine of the font fill
void trfro2(float* xray, float* yray, int n, float xsin, float xcos);
void set_pattern_code(int code, bool wmf_rule);             // splits a code into its parts

}  // namespace zb
