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
void WaterCalculator::Region5Pi(double pi) {
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
template <int SA, int SB>
Gibbs WaterCalculator::Region5Pass(double tau, Gibbs start, int32_t countB) {
  using namespace region5;
  powerB.Fill(tau, countB);
  double ap[3] = {1.0, 1.0, 1.0}, bp[3] = {1.0, 1.0, 1.0};
  for (int k = 0; k <= SA; ++k) ap[k] = powerA.Power(k);
  for (int k = 0; k <= SB; ++k) bp[k] = powerB.Power(k);

  Gibbs g = start;
  auto ideal = [&](int k) {
    const double e = N0[k] * powerB.Power(J0[k] - SB), j = J0[k];
    g.g += e * bp[SB];
    if constexpr (SB >= 1) g.gt += j * e * bp[SB - 1];
    if constexpr (SB >= 2) g.gtt += j * (j - 1) * e;
  };
  for (int k = 0; k < 5; ++k) {
    const double t = N[k] * powerA.Power(I[k] - SA) * powerB.Power(J[k] - SB);
    const double i = I[k], j = J[k];
    g.g += t * ap[SA] * bp[SB];
    if constexpr (SA >= 1) g.gp += i * t * ap[SA - 1] * bp[SB];
    if constexpr (SA >= 2) g.gpp += i * (i - 1) * t * bp[SB];
    if constexpr (SB >= 1) g.gt += j * t * ap[SA] * bp[SB - 1];
    if constexpr (SB >= 2) g.gtt += j * (j - 1) * t * ap[SA];
    if constexpr (SA >= 1 && SB >= 1) g.gpt += i * j * t * ap[SA - 1] * bp[SB - 1];
    ideal(k);
  }
  ideal(5);
  return g;
}

template <int SA, int SB>
Gibbs WaterCalculator::Region5Sums(double pi, double tau, Gibbs start, int32_t countB) {
  Region5Pi<SA>(pi);
  return Region5Pass<SA, SB>(tau, start, countB);
}

}  // namespace kvt
