// Region 1 the way back: T from (p, h) and (p, s), p and T from (h, s) and
// from (density, h). The published backward equations give the start (or the
// answer, with toleranceMode 0); Newton steps on the basic equation make the
// result agree with the forward cores to the engine's tolerance.
#include <cmath>

#include "frame/engine.h"
#include "regions/region1_inverse_tables.h"
#include "regions/region1_sums.h"
#include "regions/gibbs_newton.h"

namespace kvt {

double WaterCalculator::T1PHBACK(double p, double h) {
  using namespace region1::tph;
  return BackwardSum<N, I, J>(powerA, p / 1e6, powerB, h / 2.5e6 + 1.0);
}

double WaterCalculator::T1PSBACK(double p, double s) {
  using namespace region1::tps;
  return BackwardSum<N, I, J>(powerA, p / 1e6, powerB, s / 1000.0 + 2.0);
}

double WaterCalculator::P1HSBACK(double h, double s) {
  using namespace region1::phs;
  return PMAX * BackwardSum<N, I, J>(powerA, h / 3.4e6 + 0.05, powerB, s / 7600.0 + 0.05);
}

// Both single-variable solves end alike: out of passes is error 3 (also when
// the stop held on the last allowed pass), and with range checks on a result
// just under the lowest temperature, by no more than the band, is pulled onto
// it; a result above it stays, however near.
static double FinishRegion1(const Engine& e, double T, double tol, int64_t count, int32_t limit) {
  if (count >= limit) raise(3);
  if (e.checkRangeMode != 0 && std::fabs(TLOW - T) <= tol && T < TLOW) T = TLOW;
  return T;
}

double WaterCalculator::T1PH(double p, double h) {
  double T = T1PHBACK(p, h);
  if (engine->toleranceMode == 0) return T;
  const double tol = T * engine->tolerance;
  const int32_t limit = engine->maxIteration;
  int64_t count = 0;  // wider than any cap: cannot overflow
  Region1FillA<0>(p);
  for (;;) {
    const double tau = TSTAR1 / T;
    ++count;
    const Gibbs g = Region1Pass<0, 2>(tau);
    // -(h(T) - h) / cp, with cp = -R tau^2 gamma_tautau.
    const double step = (RGAS * 1386.0 * g.gt - h) / (RGAS * g.gtt * tau * tau);
    T += step;
    if (count > limit) break;
    if (WithinBand(step, tol)) break;
  }
  return FinishRegion1(*engine, T, tol, count, limit);
}

double WaterCalculator::T1PS(double p, double s) {
  double T = T1PSBACK(p, s);
  if (engine->toleranceMode == 0) return T;
  const double tol = T * engine->tolerance;
  const int32_t limit = engine->maxIteration;
  int64_t count = 0;  // wider than any cap: cannot overflow
  Region1FillA<0>(p);
  for (;;) {
    const double tau = TSTAR1 / T;
    ++count;
    const Gibbs g = Region1Pass<0, 2>(tau);
    // -(s(T) - s) T / cp.
    const double step =
        ((g.gt * tau - g.g) * RGAS - s) * T / (RGAS * g.gtt * tau * tau);
    T += step;
    if (count > limit) break;
    if (BelowBand(step, tol)) break;  // strict, unlike T1PH
  }
  return FinishRegion1(*engine, T, tol, count, limit);
}

// Newton on the residuals of h and s, with the Jacobian from (dh/dp)T, cp,
// (ds/dp)T = -(dv/dT)p and (ds/dT)p = cp / T. The point moves before the stop
// test, which looks at the residuals of the point before the step.
double WaterCalculator::NEWTON1HS(double h, double s, double& p, double& T) {
  const auto gibbs = [this](double pp, double tau) { return Region1Sums<2, 2>(pp, tau); };
  NewtonHS(gibbs, P1STAR, TSTAR1, h, s, RelativeBand(h, engine->tolerance),
           RelativeBand(s, engine->tolerance), engine->maxIteration, p, T);
  return 1.0;
}

// Newton on v and h. A step into negative p or T restarts that variable from
// a plain liquid value; the pass still counts.
double WaterCalculator::NEWTON1RH(double density, double h, double& p, double& T) {
  const auto gibbs = [this](double pp, double tau) { return Region1Sums<2, 2>(pp, tau); };
  NewtonRH(gibbs, P1STAR, TSTAR1, density, h, RelativeBand(density, engine->tolerance),
           RelativeBand(h, engine->tolerance), 300.0, engine->maxIteration, p, T);
  return 1.0;
}

double WaterCalculator::P1HS(double h, double s) {
  double p = P1HSBACK(h, s);
  if (engine->toleranceMode == 0) return p;
  double T = T1PHBACK(p, h);
  NEWTON1HS(h, s, p, T);
  return p;
}

// With toleranceMode 0 the T is the backward T(p,h) at the backward pressure.
double WaterCalculator::PT1HS(double h, double s, double& p, double& T) {
  p = P1HSBACK(h, s);
  T = T1PHBACK(p, h);
  if (engine->toleranceMode != 0) NEWTON1HS(h, s, p, T);
  return 1.0;
}

double WaterCalculator::T1HS(double h, double s) {
  double p, T;
  PT1HS(h, s, p, T);
  return T;
}

// No backward equation by density: always iterate, from a fixed liquid start.
double WaterCalculator::PT1RH(double density, double h, double& p, double& T) {
  p = 10000000.0;
  T = 400.0;
  return NEWTON1RH(density, h, p, T);
}

}  // namespace kvt
