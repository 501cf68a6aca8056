// Region 5 inversions. IAPWS-IF97 gives no backward equations here, so each
// solve starts from a straight line in h or s (or a fixed point) and refines
// by Newton iteration on the basic equation. Nothing keeps a solve inside the
// region: outside it, the result is whatever the equation's continuation
// gives.
#include <cmath>

#include "frame/engine.h"
#include "regions/constants.h"
#include "regions/region5_sums.h"
#include "regions/water_calculator.h"
#include "regions/gibbs_newton.h"

namespace kvt {

namespace {

// Straight lines through region 5 that give a start temperature from h or s.
double StartTH(double h) { return h * 0.000369365564435273 - 433.113582272742; }
double StartTS(double s) { return s * 0.603742942732547 - 3660.91547095205; }

// With the range check on, a T that the solve leaves just above the upper
// end of region 5 (within its stop band) is put on it. The lower end is left
// alone.
double SnapHigh(const Engine& e, double T, double tol) {
  if (e.checkRangeMode != 0 && std::fabs(THIGH - T) <= tol && T > THIGH) return THIGH;
  return T;
}

}  // namespace

// Newton in T on h(p, T) = h. No toleranceMode test: without a backward
// equation there is nothing to return but the solved value.
double WaterCalculator::T5PH(double p, double h) {
  double T = StartTH(h);
  const double tol = T * engine->tolerance;
  const int32_t limit = engine->maxIteration;
  int64_t count = 0;  // wider than any cap: cannot overflow
  Region5Pi<0>(p / P5STAR);  // pi is fixed: its powers are written once
  for (;;) {
    const double tau = TSTAR5 / T;
    ++count;
    const Gibbs g = Region5Pass<0, 2, 8>(tau, {});
    const double step = (g.gt * RGAS * 1000.0 - h) / (g.gtt * RGAS * tau * tau);
    T += step;
    if (count > limit) break;
    if (BelowBand(step, tol)) break;
  }
  if (count >= limit) raise(3);
  return SnapHigh(*engine, T, tol);
}

// Newton in T on s(p, T) = s; ds/dT = cp / T.
double WaterCalculator::T5PS(double p, double s) {
  double T = StartTS(s);
  const double tol = T * engine->tolerance;
  const int32_t limit = engine->maxIteration;
  int64_t count = 0;  // wider than any cap: cannot overflow
  const double pi = p / P5STAR;
  const double lnPi = std::log(pi);
  Region5Pi<0>(pi);
  for (;;) {
    const double tau = TSTAR5 / T;
    ++count;
    const Gibbs g = Region5Pass<0, 2, 9>(tau, {lnPi, 0, 0, 0, 0, 0});
    const double step =
        ((g.gt * tau - g.g) * RGAS - s) * T / (g.gtt * RGAS * tau * tau);
    T += step;
    if (count > limit) break;
    if (BelowBand(step, tol)) break;
  }
  if (count >= limit) raise(3);
  return SnapHigh(*engine, T, tol);
}

// T from the straight line in h, then p from an ideal-gas estimate that
// starts at 611 Pa: ln p = ln 611 + (s(611 Pa, T) - s) * k. The factor k has
// the role of 1 / R but is not 1 / 461.526; it is kept as it was fitted.
void WaterCalculator::START5HS(double h, double s, double& p, double& T) {
  T = StartTH(h);
  p = std::exp((S5PT(611.0, T) - s) * 0.002157661830695 + std::log(611.0));
}

double WaterCalculator::PT5HS(double h, double s, double& p, double& T) {
  START5HS(h, s, p, T);
  // With toleranceMode 0 the crude start is the answer.
  if (engine->toleranceMode != 0) NEWTON5HS(h, s, p, T);
  return 1.0;
}

double WaterCalculator::P5HS(double h, double s) {
  double p, T;
  PT5HS(h, s, p, T);
  return p;
}

double WaterCalculator::T5HS(double h, double s) {
  double p, T;
  PT5HS(h, s, p, T);
  return T;
}

// Newton in (p, T) on the residuals of h and s. The Jacobian is
// [[dh/dp, cp], [-dv/dT, cp / T]]. The step is taken before the stop test,
// which therefore judges the residuals of the point before the last step.
void WaterCalculator::NEWTON5HS(double h, double s, double& p, double& T) {
  const auto gibbs = [this](double pp, double tau) {
    const double pi = pp / P5STAR;
    Region5Pi<1>(pi);
    return Region5Pass<1, 2, 7>(tau, {std::log(pi), 1.0 / pi, 0, 0, 0, 0});
  };
  NewtonHS(gibbs, P5STAR, TSTAR5, h, s, h * engine->tolerance, s * engine->tolerance,
           engine->maxIteration, p, T);
}

// Newton in (p, T) on the residuals of v and h. Small values get an
// absolute band; otherwise the band is relative and keeps the sign of its
// value, so a negative h leaves the solve without a way to stop.
void WaterCalculator::NEWTON5RH(double rho, double h, double& p, double& T) {
  const double tolerance = engine->tolerance;
  const double tolr = std::fabs(rho) <= 1.0 ? 10000.0 * tolerance : rho * tolerance;
  const double tolh = std::fabs(h) <= 1.0 ? 10000.0 * tolerance : h * tolerance;
  const auto gibbs = [this](double pp, double tau) {
    const double pi = pp / P5STAR;
    Region5Pi<2>(pi);
    return Region5Pass<2, 2, 7>(tau, {0, 1.0 / pi, -1.0 / (pi * pi), 0, 0, 0});
  };
  NewtonRH(gibbs, P5STAR, TSTAR5, rho, h, tolr, tolh, 1300.0, engine->maxIteration, p, T);
}

// From the middle of region 5; toleranceMode plays no part.
double WaterCalculator::PT5RH(double rho, double h, double& p, double& T) {
  p = 5000000.0;
  T = 1773.15;
  NEWTON5RH(rho, h, p, T);
  return 1.0;
}

}  // namespace kvt
