// The spline core after de Boor: knots, collocation in band form, the band solver and the
// evaluation of a B-spline series. Work arrays are the caller's; nothing is allocated.
#include "charts/spline_core.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace zb {

namespace {

// Entry (r, c), counted from 1, of a band matrix stored column by column.
inline float& band(float* w, int nroww, int r, int c) {
  return w[std::size_t(c - 1) * std::size_t(nroww) + std::size_t(r - 1)];
}
inline float band(const float* w, int nroww, int r, int c) {
  return w[std::size_t(c - 1) * std::size_t(nroww) + std::size_t(r - 1)];
}

inline bool usable_pivot(float p) { return p != 0.0f && std::isfinite(p); }

}  // namespace

void spnak(const float* x, int n, int k, float* t) {
  for (int i = 1; i <= k; ++i) t[i - 1] = x[0];
  for (int i = k + 1; i <= n; ++i) {
    if (k % 2 == 0) {
      t[i - 1] = x[i - k / 2 - 1];
    } else {
      const int j = i - (k - 1) / 2;
      t[i - 1] = 0.5f * (x[j - 1] + x[j - 2]);
    }
  }
  for (int i = n + 1; i <= n + k; ++i) t[i - 1] = x[n - 1] + 1.0e-7f;
}

int splint(const float* tau, const float* gtau, const float* t, int n, int k, float* q, float* bcoef) {
  const int np1 = n + 1, km1 = k - 1, kpkm2 = 2 * km1;
  std::fill(q, q + std::size_t(2 * k - 1) * std::size_t(n), 0.0f);
  int left = k;
  for (int i = 1; i <= n; ++i) {
    const float taui = tau[i - 1];
    const int ilp1mx = std::min(i + k, np1);
    left = std::max(left, i);
    // t(left) <= tau(i) < t(left + 1), with left at most i + k - 1 and n: otherwise the
    // data break the Schoenberg-Whitney condition and the matrix is singular.
    if (!(taui >= t[left - 1])) return 2;
    for (;;) {
      if (taui < t[left]) break;
      ++left;
      if (left < ilp1mx) continue;
      --left;
      if (taui > t[left]) return 2;
      break;
    }
    bsplvb(t, k, taui, left, bcoef);
    // Row i of the matrix holds the k values in the columns left - k + 1 .. left.
    int jj = i - left + 1 + (left - k) * (k + km1);
    for (int j = 1; j <= k; ++j) {
      jj += kpkm2;
      q[jj - 1] = bcoef[j - 1];
    }
  }
  if (!banfac(q, k + km1, n, km1, km1)) return 2;
  for (int i = 0; i < n; ++i) bcoef[i] = gtau[i];
  banslv(q, k + km1, n, km1, km1, bcoef);
  return 1;
}

bool banfac(float* w, int nroww, int nrow, int nbandl, int nbandu) {
  const int middle = nbandu + 1;
  const int nrowm1 = nrow - 1;
  if (nrowm1 < 0) return false;
  if (nbandl <= 0) {
    // Upper triangular: the diagonal must be usable.
    for (int i = 1; i <= nrowm1; ++i)
      if (!usable_pivot(band(w, nroww, middle, i))) return false;
  } else if (nbandu <= 0) {
    // Lower triangular: each column divided by its diagonal.
    for (int i = 1; i <= nrowm1; ++i) {
      const float pivot = band(w, nroww, middle, i);
      if (!usable_pivot(pivot)) return false;
      const int jmax = std::min(nbandl, nrow - i);
      for (int j = 1; j <= jmax; ++j) band(w, nroww, middle + j, i) /= pivot;
    }
  } else {
    for (int i = 1; i <= nrowm1; ++i) {
      const float pivot = band(w, nroww, middle, i);
      if (!usable_pivot(pivot)) return false;
      const int jmax = std::min(nbandl, nrow - i);
      for (int j = 1; j <= jmax; ++j) band(w, nroww, middle + j, i) /= pivot;
      const int kmax = std::min(nbandu, nrow - i);
      for (int kk = 1; kk <= kmax; ++kk) {
        const int ipk = i + kk, midmk = middle - kk;
        const float factor = band(w, nroww, midmk, ipk);
        for (int j = 1; j <= jmax; ++j)
          band(w, nroww, midmk + j, ipk) -= band(w, nroww, middle + j, i) * factor;
      }
    }
  }
  return usable_pivot(band(w, nroww, middle, nrow));
}

void banslv(const float* w, int nroww, int nrow, int nbandl, int nbandu, float* b) {
  const int middle = nbandu + 1;
  if (nrow < 1) return;
  if (nrow == 1) {
    b[0] /= band(w, nroww, middle, 1);
    return;
  }
  // Forward pass with the unit lower factor.
  if (nbandl > 0) {
    for (int i = 1; i <= nrow - 1; ++i) {
      const int jmax = std::min(nbandl, nrow - i);
      for (int j = 1; j <= jmax; ++j) b[i + j - 1] -= b[i - 1] * band(w, nroww, middle + j, i);
    }
  }
  if (nbandu <= 0) {
    for (int i = 1; i <= nrow; ++i) b[i - 1] /= band(w, nroww, 1, i);
    return;
  }
  // Backward pass with the upper factor.
  for (int i = nrow; i > 1; --i) {
    b[i - 1] /= band(w, nroww, middle, i);
    const int jmax = std::min(nbandu, i - 1);
    for (int j = 1; j <= jmax; ++j) b[i - j - 1] -= b[i - 1] * band(w, nroww, middle - j, i);
  }
  b[0] /= band(w, nroww, middle, 1);
}

void bsplvb(const float* t, int jhigh, float x, int left, float* biatx) {
  float deltal[kSplineOrder], deltar[kSplineOrder];
  biatx[0] = 1.0f;
  for (int j = 1; j < jhigh && j < kSplineOrder; ++j) {
    const int jp1 = j + 1;
    deltar[j - 1] = t[left + j - 1] - x;
    deltal[j - 1] = x - t[left - j];
    float saved = 0.0f;
    for (int i = 1; i <= j; ++i) {
      const float term = biatx[i - 1] / (deltar[i - 1] + deltal[jp1 - i - 1]);
      biatx[i - 1] = saved + deltar[i - 1] * term;
      saved = deltal[jp1 - i - 1] * term;
    }
    biatx[jp1 - 1] = saved;
  }
}

float bvalue(const float* t, const float* bcoef, int n, int k, float x) {
  if (n < 1 || k < 1 || k > kSplineOrder) return 0.0f;
  // The interval of x; at the right end of a k-fold last knot the last one counts, so that
  // the spline is continuous from the left there.
  int i = 0, mflag = 0;
  if (x != t[n] || t[n] != t[n + k - 1]) {
    interv(t, n + k, x, i, mflag);
    if (mflag != 0) return 0.0f;
  } else {
    i = n;
  }
  const int km1 = k - 1;
  if (km1 <= 0) return bcoef[i - 1];
  // aj(j) the k coefficients that count on the interval; dl(j) = x - t(i+1-j) and
  // dr(j) = t(i+j) - x, with knots beyond the ends taken as the end knots.
  float aj[kSplineOrder], dl[kSplineOrder], dr[kSplineOrder];
  int jcmin = 1;
  const int imk = i - k;
  if (imk < 0) {
    jcmin = 1 - imk;
    for (int j = 1; j <= i; ++j) dl[j - 1] = x - t[i - j];
    for (int j = i; j <= km1; ++j) {
      aj[k - j - 1] = 0.0f;
      dl[j - 1] = dl[i - 1];
    }
  } else {
    for (int j = 1; j <= km1; ++j) dl[j - 1] = x - t[i - j];
  }
  int jcmax = k;
  const int nmi = n - i;
  if (nmi < 0) {
    jcmax = k + nmi;
    for (int j = 1; j <= jcmax; ++j) dr[j - 1] = t[i + j - 1] - x;
    for (int j = jcmax; j <= km1; ++j) {
      aj[j] = 0.0f;
      dr[j - 1] = dr[jcmax - 1];
    }
  } else {
    for (int j = 1; j <= km1; ++j) dr[j - 1] = t[i + j - 1] - x;
  }
  for (int jc = jcmin; jc <= jcmax; ++jc) aj[jc - 1] = bcoef[imk + jc - 1];
  // De Boor's recurrence down to the value.
  for (int j = 1; j <= km1; ++j) {
    const int kmj = k - j;
    int ilo = kmj;
    for (int jj = 1; jj <= kmj; ++jj) {
      aj[jj - 1] = (aj[jj] * dl[ilo - 1] + aj[jj - 1] * dr[jj - 1]) / (dl[ilo - 1] + dr[jj - 1]);
      --ilo;
    }
  }
  return aj[0];
}

void interv(const float* xt, int lxt, float x, int& left, int& mflag) {
  if (lxt < 1 || !(x >= xt[0])) {
    left = 1;
    mflag = -1;
    return;
  }
  if (x >= xt[lxt - 1]) {
    left = lxt;
    mflag = 1;
    return;
  }
  // xt(lo) <= x < xt(hi) throughout.
  int lo = 1, hi = lxt;
  while (hi - lo > 1) {
    const int mid = lo + (hi - lo) / 2;
    if (x >= xt[mid - 1]) lo = mid;
    else hi = mid;
  }
  left = lo;
  mflag = 0;
}

}  // namespace zb
