// Metastable steam: vapour that has crossed the saturation line without
// condensing, by (p, T), from the supplementary IAPWS-IF97 equation for this
// region. Its Gibbs function has region 2's form, so the relations are
// region 2's; only the coefficients differ. Nothing in the library dispatches
// here: a caller asks for metastable values explicitly.
#include <cmath>

#include "process/metastable_tables.h"
#include "regions/constants.h"
#include "regions/region2_tables.h"
#include "regions/water_calculator.h"

namespace kvt {

using W = WaterCalculator;

// The sums of gamma that a core needs: the residual part with shifts SA, SB
// (pi in powerA, tau - 0.5 in powerB), then, for S > 0, the ideal part's tau
// derivatives up to order S from powerB refilled with tau. The ln(pi) and
// 1/pi terms of the ideal part are added by the cores that read them. Every
// call fills the tables it reads: the range rule of this family runs other
// cores on them just before.
template <int SA, int SB, int S>
Gibbs W::MetastableSums(double pi, double tau) {
  using namespace metastable;
  constexpr int32_t countA = FillCount(I, SA), countB = FillCount(J, SB);
  powerA.Fill<countA>(pi);
  powerB.Fill<countB>(tau - 0.5);
  const TermSums t = SumTerms<SA, SB, N, I, J>(powerA, powerB);
  Gibbs g{t.s, t.sA, t.sAA, t.sB, t.sBB, t.sAB};
  if constexpr (S > 0) AddIdealTerms<S, N0, region2::J0>(powerB, tau, g);
  return g;
}

double W::VMSPT(double p, double T) {
  const double pi = p / P2STAR;
  const Gibbs g = MetastableSums<1, 0, 0>(pi, TSTAR2 / T);
  return (1.0 / pi + g.gp) * RGAS * T / P2STAR;
}

double W::UMSPT(double p, double T) {
  const double pi = p / P2STAR, tau = TSTAR2 / T;
  Gibbs g = MetastableSums<1, 1, 1>(pi, tau);
  g.gp += 1.0 / pi;
  return RGAS * T * (tau * g.gt - pi * g.gp);
}

double W::SMSPT(double p, double T) {
  const double pi = p / P2STAR, tau = TSTAR2 / T;
  Gibbs g = MetastableSums<0, 1, 1>(pi, tau);
  g.g += std::log(pi);
  return RGAS * (tau * g.gt - g.g);
}

// h = R T tau gamma_tau, and T tau is the reducing temperature.
double W::HMSPT(double p, double T) {
  const Gibbs g = MetastableSums<0, 1, 1>(p / P2STAR, TSTAR2 / T);
  return RGAS * TSTAR2 * g.gt;
}

double W::CPMSPT(double p, double T) {
  const double tau = TSTAR2 / T;
  const Gibbs g = MetastableSums<0, 2, 2>(p / P2STAR, tau);
  return -g.gtt * RGAS * tau * tau;
}

// cv and w need gamma_pi and gamma_pipi, in which the ideal part is 1/pi and
// -1/pi^2, and the tau derivatives.
double W::CVMSPT(double p, double T) {
  const double pi = p / P2STAR, tau = TSTAR2 / T;
  Gibbs g = MetastableSums<2, 2, 2>(pi, tau);
  g.gp += 1.0 / pi;
  g.gpp -= 1.0 / (pi * pi);
  const double d = g.gp - g.gpt * tau;
  return (d * d / g.gpp - g.gtt * tau * tau) * RGAS;
}

double W::WMSPT(double p, double T) {
  const double pi = p / P2STAR, tau = TSTAR2 / T;
  Gibbs g = MetastableSums<2, 2, 2>(pi, tau);
  g.gp += 1.0 / pi;
  g.gpp -= 1.0 / (pi * pi);
  const double d = g.gp - g.gpt * tau;
  return g.gp * std::sqrt(RGAS * T / (d * d / (g.gtt * tau * tau) - g.gpp));
}

// (T (dv/dT)p - v) / cp written in the reduced derivatives; the ideal part
// has no mixed derivative, so only the residual enters gamma_pitau.
double W::JOULETHOMPSONMSPT(double p, double T) {
  const double tau = TSTAR2 / T;
  const Gibbs g = MetastableSums<1, 2, 2>(p / P2STAR, tau);
  return g.gpt * T / (P2STAR * g.gtt * tau);
}

// Transport and derived values: the single-phase formulas with the
// metastable v, cp and w, without any saturation logic.
double W::THERMCONDMSPT(double p, double T) { return THERMCONDRT(1 / VMSPT(p, T), T); }
double W::DYNVISMSPT(double p, double T) { return DYNVISRT(1 / VMSPT(p, T), T); }
double W::PRANDTLEMSPT(double p, double T) {
  const double mu = DYNVISMSPT(p, T);
  const double cp = CPMSPT(p, T);
  return mu * cp / THERMCONDMSPT(p, T);
}
double W::KINVISMSPT(double p, double T) {
  const double mu = DYNVISMSPT(p, T);
  return mu * VMSPT(p, T);
}
// Isentropic exponent from the speed of sound, k = w^2 / (v p); not cp / cv.
double W::KMSPT(double p, double T) {
  const double w = WMSPT(p, T);
  return w * w / (VMSPT(p, T) * p);
}

}  // namespace kvt
