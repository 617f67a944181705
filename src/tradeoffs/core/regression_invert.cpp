#include "tradeoffs/core/add_scaled.h"
#include "tradeoffs/core/regression.h"

// Std
#include <algorithm>
#include <cmath>

namespace tnw::tradeoffs {

// Gauss-Jordan without row exchange: a zero pivot is repaired by adding the first later row
// that has a non-zero entry in the pivot column. The zero tests are exact on purpose. Columns
// left of the pivot are not read again (neither as factors, nor by a repair's test, nor into
// InvMatrix), so each step works on the columns from the pivot on only. Of the identity's
// columns k + j, those of the rows j not yet taken as pivots or added in a repair still hold
// their 0s in every other row, which a step with finite factors leaves as they are: a step works
// on the columns up to the last that can hold anything else.
bool Regression::Matrix_Invert() {
  RegressionWork& w = m_work;
  const int k = w.K;
  Matrix a(k + 1, 2 * k + 1);
  for (int r = 1; r <= k; ++r) {
    for (int c = 1; c <= k; ++c) a(r, c) = w.CrossProd(r, c);
    a(r, k + r) = 1.0;
  }
  int reach = 0;  // the identity's columns k + 1 .. k + reach are no longer its own
  for (int r = 1; r <= k; ++r) {
    if (a(r, r) == 0.0) {
      for (int s = r + 1; s <= k; ++s) {
        if (a(s, r) != 0.0) {
          for (int c = r; c <= 2 * k; ++c) a(r, c) += a(s, c);
          reach = std::max(reach, s);
          break;
        }
      }
    }
    if (a(r, r) == 0.0) {
      m_warnings.push_back(kNoInverseWarning);
      w.NoInverse = 1;
      return false;
    }
    reach = std::max(reach, r);
    eliminate(a, r, reach);
  }
  for (int i = 1; i <= k; ++i) {
    for (int j = 1; j <= k; ++j) w.InvMatrix(i, j) = a(i, k + j);
  }
  return true;
}

// One step of the inversion: the pivot row r of `a` scaled to a 1 on the diagonal and taken
// from every other row, on the columns r + 1 .. K + reach. A factor that is not finite turns the
// 0s beyond into NaN, as a step over all columns does: from then on every column is worked on.
void Regression::eliminate(Matrix& a, int r, int& reach) {
  const int k = m_work.K;
  double* pivotRow = &a(r, 0);
  const double factor = 1.0 / pivotRow[r];
  if (!std::isfinite(factor)) reach = k;
  for (int c = r + 1; c <= k + reach; ++c) pivotRow[c] *= factor;
  for (int i = 1; i <= k; ++i) {
    if (i == r) continue;
    double* row = &a(i, 0);
    const double f = row[r];
    if (std::isfinite(f)) {
      addScaled<true>(row, pivotRow, f, r + 1, k + reach + 1);
    } else {
      addScaled<true>(row, pivotRow, f, r + 1, 2 * k + 1);
      reach = k;
    }
  }
}

}  // namespace tnw::tradeoffs
