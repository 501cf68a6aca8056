// The region 2 basic equation, residual and ideal parts, shared by the forward
// cores and the inversions. pi sits in powerA, B = tau - 0.5 in powerB; a solve
// at fixed p fills powerA once and refills only powerB, so the ideal part of
// a solve reads tau from powerB.
#pragma once

#include "regions/constants.h"
#include "regions/region2_tables.h"
#include "regions/water_calculator.h"

namespace kvt {

template <int SA>
KVT_PASS void WaterCalculator::Region2FillA(double p) {
  powerA.Fill<FillCount(region2::I, SA)>(p / P2STAR);
}

// Residual part from powerA as it stands.
template <int SA, int SB>
KVT_PASS Gibbs WaterCalculator::Region2ResidualPass(double tau) {
  using namespace region2;
  powerB.Fill<FillCount(J, SB)>(tau - 0.5);
  const TermSums t = SumTerms<SA, SB, N, I, J>(powerA, powerB);
  return {t.s, t.sA, t.sAA, t.sB, t.sBB, t.sAB};
}

template <int SA, int SB>
KVT_PASS Gibbs WaterCalculator::Region2Residual(double p, double tau) {
  Region2FillA<SA>(p);
  return Region2ResidualPass<SA, SB>(tau);
}

// Ideal part: adds the nine terms in stored order to gamma and its tau
// derivatives, reading tau^(J0 - S) from `table` refilled with tau. The log
// and 1/pi terms are the callers'.
template <int S>
KVT_PASS void WaterCalculator::Region2Ideal(PowerTable& table, double tau, Gibbs& g) {
  AddIdealTerms<S, region2::N0, region2::J0>(table, tau, g);
}

}  // namespace kvt
