// Region 1, compressed liquid: the IAPWS-IF97 basic equation gamma(pi, tau)
// with A = 7.1 - pi and B = tau - 1.222 in the power tables.
#include <cmath>

#include "regions/region1_sums.h"

namespace kvt {

namespace {

// Region 1 at a fixed temperature: tau and the powers of B = tau - 1.222.
struct Region1AtT {
  explicit Region1AtT(double T) : tau(TSTAR1 / T), B(tau - 1.222) {}
  double tau;
  FixedPowers<FillCount(region1::J, 1)> B;
};

const Region1AtT kAtTLOW(TLOW), kAtR3LOW(623.15);

}  // namespace

double WaterCalculator::V1PT(double p, double T) {
  const Gibbs g = Region1Sums<1, 0>(p, TSTAR1 / T);
  return g.gp * (RGAS / P1STAR) * T;
}

double WaterCalculator::U1PT(double p, double T) {
  const double tau = TSTAR1 / T, pi = p / P1STAR;
  const Gibbs g = Region1Sums<1, 1>(p, tau);
  return (g.gt * tau - g.gp * pi) * RGAS * T;
}

double WaterCalculator::S1PT(double p, double T) {
  const double tau = TSTAR1 / T;
  const Gibbs g = Region1Sums<0, 1>(p, tau);
  return (g.gt * tau - g.g) * RGAS;
}

double WaterCalculator::H1PT(double p, double T) {
  const Gibbs g = Region1Sums<0, 1>(p, TSTAR1 / T);
  return g.gt * RGAS * 1386.0;
}

double WaterCalculator::H1PTLOW(double p) {
  Region1FillA<0>(p);
  return SumTerms<0, 1, region1::N, region1::I, region1::J>(powerA, kAtTLOW.B).sB * RGAS * 1386.0;
}

double WaterCalculator::H1PTR3LOW(double p) {
  Region1FillA<0>(p);
  return SumTerms<0, 1, region1::N, region1::I, region1::J>(powerA, kAtR3LOW.B).sB * RGAS *
         1386.0;
}

double WaterCalculator::S1PTLOW(double p) {
  Region1FillA<0>(p);
  const TermSums t = SumTerms<0, 1, region1::N, region1::I, region1::J>(powerA, kAtTLOW.B);
  return (t.sB * kAtTLOW.tau - t.s) * RGAS;
}

double WaterCalculator::S1PTR3LOW(double p) {
  Region1FillA<0>(p);
  const TermSums t = SumTerms<0, 1, region1::N, region1::I, region1::J>(powerA, kAtR3LOW.B);
  return (t.sB * kAtR3LOW.tau - t.s) * RGAS;
}

double WaterCalculator::CP1PT(double p, double T) {
  const double tau = TSTAR1 / T;
  const Gibbs g = Region1Sums<0, 2>(p, tau);
  return -g.gtt * RGAS * tau * tau;
}

double WaterCalculator::CV1PT(double p, double T) {
  const double tau = TSTAR1 / T;
  const Gibbs g = Region1Sums<2, 2>(p, tau);
  const double d = g.gp - g.gpt * tau;
  return (d * d / g.gpp - g.gtt * tau * tau) * RGAS;
}

double WaterCalculator::W1PT(double p, double T) {
  const double tau = TSTAR1 / T;
  const Gibbs g = Region1Sums<2, 2>(p, tau);
  const double d = g.gp - g.gpt * tau;
  return g.gp * std::sqrt(RGAS * T / (d * d / (g.gtt * tau * tau) - g.gpp));
}

double WaterCalculator::JOULETHOMPSON1PT(double p, double T) {
  const double tau = TSTAR1 / T;
  const Gibbs g = Region1Sums<1, 2>(p, tau);
  return g.gpt * T / (P1STAR * g.gtt * tau);
}

double WaterCalculator::VUSHCVWDERPT1PT(double p, double T, Out14& out) {
  const double tau = (1.0 / T) * TSTAR1;
  const Gibbs g = Region1Sums<2, 2>(p, tau);
  GibbsOutputs(g, p, T, tau, P1STAR, TSTAR1, out);
  return 1.0;
}

}  // namespace kvt
