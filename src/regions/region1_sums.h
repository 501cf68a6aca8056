// The region 1 basic equation as one pass over its terms, shared by the
// forward cores and the inversions. A = 7.1 - pi sits in powerA, B = tau - 1.222
// in powerB; a solve at fixed p fills powerA once and only refills powerB.
#pragma once

#include "regions/constants.h"
#include "regions/region1_tables.h"
#include "regions/water_calculator.h"

namespace kvt {

template <int SA>
KVT_PASS void WaterCalculator::Region1FillA(double p) {
  powerA.Fill<FillCount(region1::I, SA)>(7.1 - p / P1STAR);
}

// Derivatives by pi and tau from powerA as it stands (dA/dpi = -1 turns the
// sign of the odd pi-derivatives).
template <int SA, int SB>
KVT_PASS Gibbs WaterCalculator::Region1Pass(double tau) {
  using namespace region1;
  powerB.Fill<FillCount(J, SB)>(tau - 1.222);
  const TermSums t = SumTerms<SA, SB, N, I, J>(powerA, powerB);
  return {t.s, -t.sA, t.sAA, t.sB, t.sBB, -t.sAB};
}

template <int SA, int SB>
KVT_PASS Gibbs WaterCalculator::Region1Sums(double p, double tau) {
  Region1FillA<SA>(p);
  return Region1Pass<SA, SB>(tau);
}

}  // namespace kvt
