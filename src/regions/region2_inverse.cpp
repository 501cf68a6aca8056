// Region 2 the way back. IAPWS-IF97 splits the steam region into 2a (up to
// 4 MPa), 2b and 2c, each with its own backward equations for T(p,h) and
// T(p,s), and the supplementary release adds p(h,s) in the same split. They
// give the start; Newton steps on the basic equation refine it.
#include <cmath>

#include "frame/engine.h"
#include "regions/region2_inverse_tables.h"
#include "regions/region2_sums.h"
#include "regions/gibbs_newton.h"

namespace kvt {

double WaterCalculator::T2APH(double p, double h) {
  using namespace region2::tpha;
  return BackwardSum<N, I, J>(powerA, p / 1e6, powerB, h / 2e6 - 2.1);
}

double WaterCalculator::T2BPH(double p, double h) {
  using namespace region2::tphb;
  return BackwardSum<N, I, J>(powerA, p / 1e6 - 2.0, powerB, h / 2e6 - 2.6);
}

double WaterCalculator::T2CPH(double p, double h) {
  using namespace region2::tphc;
  return BackwardSum<N, I, J>(powerA, p / 1e6 + 25.0, powerB, h / 2e6 - 1.8);
}

// The exponents of pi are quarter-integers here, so pi^I needs the real power
// function; only the powers of B come from a table. The terms come sorted by
// I, twelve distinct values in all: pow runs once for each. The exponent is
// passed through an empty asm so that the compiler calls pow itself: with a
// constant -1 it would divide instead, which can differ in the last bit.
double WaterCalculator::T2APS(double p, double s) {
  using namespace region2::tpsa;
  const double pi = p / 1e6;
  powerB.Fill<FillCount(J, 0)>(s / 2000.0 - 2.0);
  double sum = 0, piI = 0;
  ForEachIndex<sizeof N / sizeof N[0]>([&](auto k) {
    if constexpr (k == 0 || I[k] != I[k - 1]) {
      double e = I[k];
#if defined(__SSE2_MATH__)
      asm("" : "+x"(e));  // kept in its SSE register
#else
      asm("" : "+m"(e));  // x87 and other targets: through memory
#endif
      piI = std::pow(pi, e);
    }
    sum += N[k] * piI * powerB.Power<J[k]>();
  });
  return sum;
}

double WaterCalculator::T2BPS(double p, double s) {
  using namespace region2::tpsb;
  return BackwardSum<N, I, J>(powerA, p / 1e6, powerB, 10.0 - s / 785.3);
}

double WaterCalculator::T2CPS(double p, double s) {
  using namespace region2::tpsc;
  return BackwardSum<N, I, J>(powerA, p / 1e6, powerB, 2.0 - s / 2925.1);
}

// The p(h,s) equations give the fourth root of the reduced pressure.
static double FourthPower(double x) {
  const double x2 = x * x;
  return x2 * x2;
}

double WaterCalculator::P2AHSBACK(double h, double s) {
  using namespace region2::phsa;
  return P2AB * FourthPower(BackwardSum<N, I, J>(powerA, h / 4.2e6 - 0.5,
                                        powerB, s / 12000.0 - 1.2));
}

double WaterCalculator::P2BHSBACK(double h, double s) {
  using namespace region2::phsb;
  return PMAX * FourthPower(BackwardSum<N, I, J>(powerA, h / 4.1e6 - 0.6,
                                        powerB, s / 7900.0 - 1.01));
}

double WaterCalculator::P2CHSBACK(double h, double s) {
  using namespace region2::phsc;
  return PMAX * FourthPower(BackwardSum<N, I, J>(powerA, h / 3.5e6 - 0.7,
                                        powerB, s / 5900.0 - 1.1));
}

// Boundary 2b/2c, IAPWS-IF97 Equations 20 and 21 (Table 19).
double WaterCalculator::P2B2CH(double h) {
  const double x = h * 0.001;
  return (x * (0.00012809002730136 * x - 0.67955786399241) + 905.84278514723) * 1e6;
}

double WaterCalculator::H2B2CP(double p) {
  return (std::sqrt((p / 1e6 - 4.5257578905948) / 0.00012809002730136) + 2652.6571908428) * 1000.0;
}

// Boundary 2a/2b in the h,s plane.
double WaterCalculator::H2ABS(double s) {
  const double x = s * 0.001;
  return (((27.6349063799944 * x - 421.073558227969) * x + 2575.60716905876) * x -
          3498.98083432139) *
         1000.0;
}

// The choosers. 4 MPa itself is 2a; s = 5850 J/(kg K) is 2c by p,s but not
// by h,s.
double WaterCalculator::T2PHBACK(double p, double h) {
  if (p <= P2AB) return T2APH(p, h);
  if (P2B2CH(h) < p) return T2CPH(p, h);
  return T2BPH(p, h);
}

double WaterCalculator::T2PSBACK(double p, double s) {
  if (p <= P2AB) return T2APS(p, s);
  if (s <= 5850.0) return T2CPS(p, s);
  return T2BPS(p, s);
}

double WaterCalculator::P2HSBACK(double h, double s) {
  if (s < 5850.0) return P2CHSBACK(h, s);
  if (h <= H2ABS(s)) return P2AHSBACK(h, s);
  return P2BHSBACK(h, s);
}

// End of the single-variable solves: out of passes is error 3 (also when the
// stop held on the last allowed pass). With range checks on, a T above the
// top of region 2 comes down to it when it lies within the band, and above
// 10 MPa (where region 5 does not continue the steam region) at any distance.
static double FinishRegion2(const Engine& e, double p, double T, double tol, int64_t count,
                            int32_t limit) {
  if (count >= limit) raise(3);
  if (e.checkRangeMode != 0) {
    const double d = std::fabs(TMID - T);
    if ((d <= tol || p > P5MAX) && T > TMID) T = TMID;
  }
  return T;
}

double WaterCalculator::T2PH(double p, double h) {
  double T = T2PHBACK(p, h);
  if (engine->toleranceMode == 0) return T;
  const double tol = T * engine->tolerance;
  const int32_t limit = engine->maxIteration;
  int64_t count = 0;  // wider than any cap: cannot overflow
  Region2FillA<0>(p);  // pi stays in powerA; the ideal part refills powerB
  for (;;) {
    const double tau = TSTAR2 / T;
    ++count;
    Gibbs g = Region2ResidualPass<0, 2>(tau);
    Region2Ideal<2>(powerB, tau, g);
    const double step = (RGAS * 540.0 * g.gt - h) / (RGAS * g.gtt * tau * tau);
    T += step;
    if (count > limit) break;
    if (BelowBand(step, tol)) break;
  }
  return FinishRegion2(*engine, p, T, tol, count, limit);
}

double WaterCalculator::T2PS(double p, double s) {
  double T = T2PSBACK(p, s);
  if (engine->toleranceMode == 0) return T;
  const double tol = T * engine->tolerance;
  const int32_t limit = engine->maxIteration;
  int64_t count = 0;  // wider than any cap: cannot overflow
  const double lnpi = std::log(p / P2STAR);
  Region2FillA<0>(p);
  for (;;) {
    const double tau = TSTAR2 / T;
    ++count;
    Gibbs g = Region2ResidualPass<0, 2>(tau);
    Region2Ideal<2>(powerB, tau, g);
    const double step =
        ((g.gt * tau - (lnpi + g.g)) * RGAS - s) * T / (RGAS * tau * tau * g.gtt);
    T += step;
    if (count > limit) break;
    if (BelowBand(step, tol)) break;
  }
  return FinishRegion2(*engine, p, T, tol, count, limit);
}

// All derivatives of gamma for a two-variable step at (p, T).
Gibbs WaterCalculator::Region2Full(double p, double tau) {
  const double pi = p / P2STAR;
  Gibbs g = Region2Residual<2, 2>(p, tau);
  Region2Ideal<2>(powerB, tau, g);
  g.g += std::log(pi);
  g.gp += 1.0 / pi;
  g.gpp -= 1.0 / (pi * pi);
  return g;
}

// Newton on the residuals of h and s, as in region 1. The bands are relative
// without a floor, so a negative h or s leaves no way to stop: error 3.
double WaterCalculator::NEWTON2HS(double h, double s, double& p, double& T) {
  const auto gibbs = [this](double pp, double tau) { return Region2Full(pp, tau); };
  NewtonHS(gibbs, P2STAR, TSTAR2, h, s, h * engine->tolerance, s * engine->tolerance,
           engine->maxIteration, p, T);
  return 1.0;
}

// Newton on v and h; a step into negative p or T restarts that variable.
double WaterCalculator::NEWTON2RH(double density, double h, double& p, double& T) {
  const auto gibbs = [this](double pp, double tau) { return Region2Full(pp, tau); };
  NewtonRH(gibbs, P2STAR, TSTAR2, density, h, RelativeBand(density, engine->tolerance),
           RelativeBand(h, engine->tolerance), 400.0, engine->maxIteration, p, T);
  return 1.0;
}

double WaterCalculator::P2HS(double h, double s) {
  double p = P2HSBACK(h, s);
  if (engine->toleranceMode == 0) return p;
  double T = T2PHBACK(p, h);
  NEWTON2HS(h, s, p, T);
  return p;
}

double WaterCalculator::PT2HS(double h, double s, double& p, double& T) {
  p = P2HSBACK(h, s);
  T = T2PHBACK(p, h);
  if (engine->toleranceMode != 0) NEWTON2HS(h, s, p, T);
  return 1.0;
}

double WaterCalculator::T2HS(double h, double s) {
  double p, T;
  PT2HS(h, s, p, T);
  return T;
}

double WaterCalculator::PT2RH(double density, double h, double& p, double& T) {
  p = 1000000.0;
  T = 800.0;
  return NEWTON2RH(density, h, p, T);
}

}  // namespace kvt
