// De Boor's B-spline routines as the curves use them: the not-a-knot knot sequence, the
// collocation system in band form, its factorisation and solution, and evaluation.
// Arrays are 0-based here; the comments count as de Boor does, from 1.
#pragma once

namespace zb {

inline constexpr int kSplineBand = 1000;   // words of the band matrix: (2k - 1) n at most
inline constexpr int kSplineCoef = 200;    // coefficients, so data points
inline constexpr int kSplineKnots = 220;   // knots, n + k
inline constexpr int kSplineOrder = 20;    // highest order the work arrays take

// Knots t(1..n+k) for data x(1..n) and order k: k-fold ends, interior knots at the data
// (k even) or half-way between them (k odd), leaving out the points next to the ends.
void spnak(const float* x, int n, int k, float* t);
// Coefficients of the spline of order k on the knots t through (tau(i), gtau(i)): 1 on
// success, 2 if the collocation matrix is singular. q takes (2k - 1) n words, bcoef n.
int splint(const float* tau, const float* gtau, const float* t, int n, int k, float* q, float* bcoef);
// LU factorisation without pivoting of a band matrix stored by columns, nroww rows per
// column, the diagonal in row nbandu + 1; false if a pivot is zero (or not a number).
bool banfac(float* w, int nroww, int nrow, int nbandl, int nbandu);
// Solves with the factors of banfac; b is overwritten by the solution.
void banslv(const float* w, int nroww, int nrow, int nbandl, int nbandu, float* b);
// Values at x of the jhigh B-splines of order jhigh that are not zero on t(left)..t(left+1).
void bsplvb(const float* t, int jhigh, float x, int left, float* biatx);
// Value at x of the spline of order k with n coefficients; 0 outside t(1)..t(n+k).
float bvalue(const float* t, const float* bcoef, int n, int k, float x);
// left with xt(left) <= x < xt(left+1); mflag -1 below xt(1) (or x not a number), 1 at or
// beyond xt(lxt), else 0.
void interv(const float* xt, int lxt, float x, int& left, int& mflag);

}  // namespace zb
