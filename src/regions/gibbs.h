// One pass over the terms n * A^I * B^J of a Gibbs-type equation, giving the
// sum and its first and second derivatives by A and by B. Each core chooses
// the shifts SA, SB (the highest derivative order it needs in each variable):
// the base term n A^(I-SA) B^(J-SB) is read once from the power tables and
// multiplied up to every sum, so one pass serves all of them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "regions/power_table.h"

namespace kvt {

// Raw sums over the terms; the derivatives are by the table variables A, B.
struct TermSums {
  double s = 0, sA = 0, sAA = 0, sB = 0, sBB = 0, sAB = 0;
};

// Largest |exponent - shift| in a table: how far a power table must be filled.
template <size_t N>
constexpr int32_t FillCount(const int32_t (&e)[N], int32_t shift) {
  int32_t m = 0;
  for (size_t i = 0; i < N; ++i) {
    int32_t d = e[i] - shift;
    if (d < 0) d = -d;
    if (d > m) m = d;
  }
  return m;
}

template <int SA, int SB, size_t N>
inline TermSums SumTerms(const PowerTable& A, const PowerTable& B, const double (&n)[N],
                         const int32_t (&I)[N], const int32_t (&J)[N]) {
  double a[3] = {1.0, 1.0, 1.0}, b[3] = {1.0, 1.0, 1.0};
  for (int k = 0; k <= SA; ++k) a[k] = A.Power(k);
  for (int k = 0; k <= SB; ++k) b[k] = B.Power(k);
  TermSums r;
  for (size_t i = 0; i < N; ++i) {
    const double t = n[i] * A.Power(I[i] - SA) * B.Power(J[i] - SB);
    const double fi = I[i], fj = J[i];
    r.s += t * a[SA] * b[SB];
    if constexpr (SA >= 1) r.sA += fi * t * a[SA - 1] * b[SB];
    if constexpr (SA >= 2) r.sAA += fi * (fi - 1) * t * a[SA - 2] * b[SB];
    if constexpr (SB >= 1) r.sB += fj * t * a[SA] * b[SB - 1];
    if constexpr (SB >= 2) r.sBB += fj * (fj - 1) * t * a[SA] * b[SB - 2];
    if constexpr (SA >= 1 && SB >= 1) r.sAB += fi * fj * t * a[SA - 1] * b[SB - 1];
  }
  return r;
}

// A backward equation: sum of n a^I b^J, with a and b filled into the two
// tables as far as the exponents reach.
template <size_t N>
inline double BackwardSum(PowerTable& A, double a, PowerTable& B, double b, const double (&n)[N],
                          const int32_t (&I)[N], const int32_t (&J)[N]) {
  A.Fill(a, FillCount(I, 0));
  B.Fill(b, FillCount(J, 0));
  return SumTerms<0, 0>(A, B, n, I, J).s;
}

// Reduced Gibbs free energy and its derivatives by pi and tau.
struct Gibbs {
  double g = 0, gp = 0, gpp = 0, gt = 0, gtt = 0, gpt = 0;
};

// Ideal-gas part of a steam equation: adds n0 tau^J0 over the terms, in
// stored order, to gamma and its tau derivatives. `table` is refilled with
// tau and each term reads tau^(J0 - S) once, so even terms whose factor is 0
// take the same pattern. The log and 1/pi terms are the callers'.
template <int S, size_t N>
inline void AddIdealTerms(PowerTable& table, double tau, const double (&n0)[N],
                          const int32_t (&J0)[N], Gibbs& g) {
  table.Fill(tau, FillCount(J0, S));
  double t[3] = {1.0, 1.0, 1.0};
  for (int k = 0; k <= S; ++k) t[k] = table.Power(k);
  for (size_t i = 0; i < N; ++i) {
    const double e = n0[i] * table.Power(J0[i] - S), j = J0[i];
    g.g += e * t[S];
    g.gt += j * e * t[S - 1];
    if constexpr (S >= 2) g.gtt += j * (j - 1) * e * t[S - 2];
  }
}

// The fourteen outputs, in the order of the exports' pointers: v, u, s, h, cv,
// w, (dv/dp)T, (du/dp)T, (ds/dp)T, (dh/dp)T, (dv/dT)p, (du/dT)p, (ds/dT)p, cp.
using Out14 = double[14];

// The fourteen outputs of a Gibbs equation g(pi, tau) with pi = p / pstar,
// tau = tstar / T.
void GibbsOutputs(const Gibbs& g, double p, double T, double tau, double pstar, double tstar,
                  Out14& out);

}  // namespace kvt
