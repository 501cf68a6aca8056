// The one pass over the region 5 equation, shared by the forward cores and
// the inversions. pi goes into powerA by direct products (at most pi^3 is
// ever read), tau into powerB by Fill.
#pragma once

#include <cstdint>

#include "regions/region5_tables.h"
#include "regions/water_calculator.h"

namespace kvt {

// pi, pi^2 and, when no derivative by pi is taken (SA = 0), pi^3 into entries
// 1 to 3 of powerA: a solve in T at fixed p writes them once for all passes.
template <int SA>
KVT_PASS void WaterCalculator::Region5Pi(double pi) {
  double* a = powerA.values;
  a[1] = a[0] * pi;
  a[2] = a[1] * pi;
  if constexpr (SA == 0) a[3] = a[2] * pi;
}

// One pass over the five residual terms, each followed by the ideal term of
// the same position, and the sixth ideal term behind the loop. SA and SB are
// the derivative orders needed by pi and by tau: the base term is
// n pi^(I-SA) tau^(J-SB), multiplied up to each sum. `start` carries the
// ln(pi), 1/pi and -1/pi^2 of the ideal part that the caller needs. The
// powers of pi must already stand in powerA (Region5Pi<SA>).
template <int SA, int SB, int32_t countB>
KVT_PASS Gibbs WaterCalculator::Region5Pass(double tau, Gibbs start) {
  using namespace region5;
  powerB.Fill<countB>(tau);
  const PowerTable &a = powerA, &b = powerB;

  Gibbs g = start;
  auto ideal = [&](auto k) {
    constexpr double j = J0[k];
    const double e = N0[k] * b.Power<J0[k] - SB>();
    g.g += e * b.Power<SB>();
    if constexpr (SB >= 1) g.gt += j * e * b.Power<SB - 1>();
    if constexpr (SB >= 2) g.gtt += j * (j - 1) * e;
  };
  ForEachIndex<5>([&](auto k) {
    constexpr double i = I[k], j = J[k];
    const double t = N[k] * a.Power<I[k] - SA>() * b.Power<J[k] - SB>();
    g.g += t * a.Power<SA>() * b.Power<SB>();
    if constexpr (SA >= 1) g.gp += i * t * a.Power<SA - 1>() * b.Power<SB>();
    if constexpr (SA >= 2) g.gpp += i * (i - 1) * t * b.Power<SB>();
    if constexpr (SB >= 1) g.gt += j * t * a.Power<SA>() * b.Power<SB - 1>();
    if constexpr (SB >= 2) g.gtt += j * (j - 1) * t * a.Power<SA>();
    if constexpr (SA >= 1 && SB >= 1) g.gpt += i * j * t * a.Power<SA - 1>() * b.Power<SB - 1>();
    ideal(k);
  });
  ideal(std::integral_constant<size_t, 5>{});
  return g;
}

template <int SA, int SB, int32_t countB>
KVT_PASS Gibbs WaterCalculator::Region5Sums(double pi, double tau, Gibbs start) {
  Region5Pi<SA>(pi);
  return Region5Pass<SA, SB, countB>(tau, start);
}

}  // namespace kvt
