// One pass over the terms n * A^I * B^J of a Gibbs-type equation, giving the
// sum and its first and second derivatives by A and by B. Each core chooses
// the shifts SA, SB (the highest derivative order it needs in each variable):
// the base term n A^(I-SA) B^(J-SB) is read once from the power tables and
// multiplied up to every sum, so one pass serves all of them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <utility>

#include "regions/power_table.h"

// The term passes are inlined into every core, so that each core keeps only
// the sums it reads and the compiler drops the rest.
#define KVT_PASS inline __attribute__((always_inline))

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

namespace terms {

// One term n A^I B^J, read with the shifts SA, SB and multiplied up to each
// sum. The exponents are constants here, so each power is one read (or one
// division for a negative exponent) and each factor I, J, I (I-1) is a
// literal; the products keep the order of the plain loop, so the sums come
// out bit for bit as that loop gives them. A factor 0 still multiplies: an
// infinite power times 0 must give the NaN that marks the result invalid.
template <int SA, int SB, int32_t I, int32_t J, class TA, class TB>
KVT_PASS void AddTerm(TermSums& r, double n, const TA& A, const TB& B) {
  constexpr double fi = I, fj = J;
  const double t = n * A.template Power<I - SA>() * B.template Power<J - SB>();
  r.s += t * A.template Power<SA>() * B.template Power<SB>();
  if constexpr (SA >= 1) r.sA += fi * t * A.template Power<SA - 1>() * B.template Power<SB>();
  if constexpr (SA >= 2)
    r.sAA += fi * (fi - 1) * t * A.template Power<SA - 2>() * B.template Power<SB>();
  if constexpr (SB >= 1) r.sB += fj * t * A.template Power<SA>() * B.template Power<SB - 1>();
  if constexpr (SB >= 2)
    r.sBB += fj * (fj - 1) * t * A.template Power<SA>() * B.template Power<SB - 2>();
  if constexpr (SA >= 1 && SB >= 1)
    r.sAB += fi * fj * t * A.template Power<SA - 1>() * B.template Power<SB - 1>();
}

template <int SA, int SB, const auto& N, const auto& I, const auto& J, class TA, class TB,
          size_t... k>
KVT_PASS TermSums Sum(const TA& A, const TB& B, std::index_sequence<k...>) {
  TermSums r;
  (AddTerm<SA, SB, I[k], J[k]>(r, N[k], A, B), ...);  // in table order
  return r;
}

template <class F, size_t... k>
KVT_PASS void Each(F& f, std::index_sequence<k...>) {
  (f(std::integral_constant<size_t, k>{}), ...);
}

}  // namespace terms

// Calls f(k) for k = 0 .. count-1 in this order, k as a compile-time
// constant (std::integral_constant), so that a loop body can index the
// exponent tables by it and read its powers with constant exponents.
template <size_t count, class F>
KVT_PASS void ForEachIndex(F f) {
  terms::Each(f, std::make_index_sequence<count>{});
}

// One pass over the terms n * A^I * B^J of the table (N, I, J), unrolled at
// compile time. The tables must already hold the powers the shifted
// exponents reach. The callers use only the sums they need; the others are
// dropped by the compiler. A table is a PowerTable or a FixedPowers.
template <int SA, int SB, const auto& N, const auto& I, const auto& J, class TA, class TB>
KVT_PASS TermSums SumTerms(const TA& A, const TB& B) {
  constexpr size_t count = sizeof N / sizeof N[0];
  static_assert(sizeof I / sizeof I[0] == count && sizeof J / sizeof J[0] == count);
  return terms::Sum<SA, SB, N, I, J>(A, B, std::make_index_sequence<count>{});
}

// A backward equation: sum of n a^I b^J, with a and b filled into the two
// tables as far as the exponents reach.
template <const auto& N, const auto& I, const auto& J>
inline double BackwardSum(PowerTable& A, double a, PowerTable& B, double b) {
  A.Fill<FillCount(I, 0)>(a);
  B.Fill<FillCount(J, 0)>(b);
  return SumTerms<0, 0, N, I, J>(A, B).s;
}

// Reduced Gibbs free energy and its derivatives by pi and tau.
struct Gibbs {
  double g = 0, gp = 0, gpp = 0, gt = 0, gtt = 0, gpt = 0;
};

// Ideal-gas part of a steam equation: adds n0 tau^J0 over the terms, in
// stored order, to gamma and its tau derivatives. `table` is refilled with
// tau and each term reads tau^(J0 - S) once, so even terms whose factor is 0
// take the same pattern. The log and 1/pi terms are the callers'.
namespace terms {

template <int S, int32_t J0, class T>
KVT_PASS void AddIdeal(Gibbs& g, double n0, const T& table) {
  constexpr double j = J0;
  const double e = n0 * table.template Power<J0 - S>();
  g.g += e * table.template Power<S>();
  g.gt += j * e * table.template Power<S - 1>();
  if constexpr (S >= 2) g.gtt += j * (j - 1) * e * table.template Power<S - 2>();
}

template <int S, const auto& N0, const auto& J0, class T, size_t... k>
KVT_PASS void AddIdealTerms(const T& table, Gibbs& g, std::index_sequence<k...>) {
  (AddIdeal<S, J0[k]>(g, N0[k], table), ...);
}

}  // namespace terms

// Ideal-gas part of a steam equation: adds n0 tau^J0 over the terms, in
// stored order, to gamma and its tau derivatives. `table` is refilled with
// tau and each term reads tau^(J0 - S) once, so even terms whose factor is 0
// take the same pattern. The log and 1/pi terms are the callers'.
template <int S, const auto& N0, const auto& J0>
KVT_PASS void AddIdealTerms(PowerTable& table, double tau, Gibbs& g) {
  table.Fill<FillCount(J0, S)>(tau);
  AddIdealTerms<S, N0, J0>(static_cast<const PowerTable&>(table), g);
}

// The same from a table that already holds the powers of tau.
template <int S, const auto& N0, const auto& J0, class T>
KVT_PASS void AddIdealTerms(const T& table, Gibbs& g) {
  terms::AddIdealTerms<S, N0, J0>(table, g, std::make_index_sequence<sizeof N0 / sizeof N0[0]>{});
}

// The fourteen outputs, in the order of the exports' pointers: v, u, s, h, cv,
// w, (dv/dp)T, (du/dp)T, (ds/dp)T, (dh/dp)T, (dv/dT)p, (du/dT)p, (ds/dT)p, cp.
using Out14 = double[14];

// The fourteen outputs of a Gibbs equation g(pi, tau) with pi = p / pstar,
// tau = tstar / T.
void GibbsOutputs(const Gibbs& g, double p, double T, double tau, double pstar, double tstar,
                  Out14& out);

}  // namespace kvt
