// Which IAPWS-IF97 region a state given by p and T lies in. The two resolvers
// differ on purpose: WATERSTATEAREA can answer "wet" inside a band of relative
// width `tolerance` around the saturation line and applies the tolerance to
// pressures; WATERSTATEAREA2 never answers "wet" and applies it to
// temperatures.
#include <cmath>

#include "frame/engine.h"
#include "regions/constants.h"
#include "regions/water_calculator.h"

namespace kvt {

namespace {
constexpr double kTB23Top = 863.15;   // B23 temperature at 100 MPa
constexpr double kTR3Low = 623.15;    // lowest temperature of region 3
constexpr double kTCrit = 647.096;
}  // namespace

int32_t WaterCalculator::WATERSTATEAREA(double p, double T) {
  const double tol = engine->tolerance, k = 1 + tol;
  if (T > TMID) return 5;
  if (T >= kTB23Top) return 2;
  if (p <= PCRIT) {
    const double Ts = TSP(p);
    if (std::fabs(Ts - T) / T < tol) return 4;
    if (p <= PSAT350) return T >= Ts ? 2 : 1;
  }
  if (T <= kTR3Low) return 1;
  if (P23T(T) * k < p) return 3;
  return 2;
}

int32_t WaterCalculator::WATERSTATEAREA2(double p, double T) {
  const double k = 1 + engine->tolerance;
  if (TMID * k < T) return 5;
  if (T >= kTB23Top) return 2;
  if (p <= PSAT350) return TSP(p) <= T * k ? 2 : 1;
  if (T <= kTR3Low) return 1;
  if (T23P(p) > T * k) return 3;
  return 2;
}

int32_t WaterCalculator::PHASESTATEPT(double p, double T) {
  if (p > PCRIT) return 3;
  if (T > kTCrit) return 3;
  if (p < PMIN || T < TLOW) raise(2);
  if (PST(T) < p) return 1;
  return 2;
}

}  // namespace kvt
