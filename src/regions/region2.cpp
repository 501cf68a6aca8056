// Region 2, steam: gamma = gamma0 (ideal gas) + gammar (residual), with
// pi = p / 1 MPa and B = tau - 0.5 in the power tables for the residual pass.
#include <cmath>

#include "regions/region2_sums.h"

namespace kvt {

namespace {

// Region 2 at a fixed temperature: tau, the powers of B = tau - 0.5 for the
// residual part and those of tau for the ideal part.
struct Region2AtT {
  explicit Region2AtT(double T) : tau(TSTAR2 / T), B(tau - 0.5), powers(tau) {}
  double tau;
  FixedPowers<FillCount(region2::J, 1)> B;
  FixedPowers<FillCount(region2::J0, 1)> powers;
};

const Region2AtT kAtTMID(TMID);

}  // namespace

double WaterCalculator::V2PT(double p, double T) {
  const Gibbs g = Region2Residual<1, 0>(p, TSTAR2 / T);
  return (g.gp + 1.0 / (p / P2STAR)) / P2STAR * RGAS * T;
}

double WaterCalculator::U2PT(double p, double T) {
  const double tau = TSTAR2 / T, pi = p / P2STAR;
  Gibbs g = Region2Residual<1, 1>(p, tau);
  // The ideal tau-derivative by square-and-multiply powers, without a table.
  for (int i = 0; i < 9; ++i) {
    const int32_t e = region2::J0[i] - 1;
    uint32_t bits = static_cast<uint32_t>(e < 0 ? -e : e);
    double power = 1.0, square = tau;
    while (bits != 0) {
      if (bits & 1u) power *= square;
      square *= square;
      bits >>= 1;
    }
    if (e < 0) power = 1.0 / power;
    g.gt += region2::J0[i] * region2::N0[i] * power;
  }
  g.gp += 1.0 / pi;
  return (g.gt * tau - g.gp * pi) * RGAS * T;
}

double WaterCalculator::S2PT(double p, double T) {
  const double tau = TSTAR2 / T;
  Gibbs g = Region2Residual<0, 1>(p, tau);
  Region2Ideal<1>(powerA, tau, g);
  g.g += std::log(p / P2STAR);
  return (tau * g.gt - g.g) * RGAS;
}

double WaterCalculator::H2PT(double p, double T) {
  const double tau = TSTAR2 / T;
  Gibbs g = Region2Residual<0, 1>(p, tau);
  Region2Ideal<1>(powerA, tau, g);
  return g.gt * RGAS * 540.0;
}

// The residual part at fixed tau, then the ideal part, as in H2PT and S2PT.
double WaterCalculator::H2PTMID(double p) {
  Region2FillA<0>(p);
  const TermSums t = SumTerms<0, 1, region2::N, region2::I, region2::J>(powerA, kAtTMID.B);
  Gibbs g{t.s, t.sA, t.sAA, t.sB, t.sBB, t.sAB};
  AddIdealTerms<1, region2::N0, region2::J0>(kAtTMID.powers, g);
  return g.gt * RGAS * 540.0;
}

double WaterCalculator::S2PTMID(double p) {
  Region2FillA<0>(p);
  const TermSums t = SumTerms<0, 1, region2::N, region2::I, region2::J>(powerA, kAtTMID.B);
  Gibbs g{t.s, t.sA, t.sAA, t.sB, t.sBB, t.sAB};
  AddIdealTerms<1, region2::N0, region2::J0>(kAtTMID.powers, g);
  g.g += std::log(p / P2STAR);
  return (kAtTMID.tau * g.gt - g.g) * RGAS;
}

double WaterCalculator::CP2PT(double p, double T) {
  const double tau = TSTAR2 / T;
  Gibbs g = Region2Residual<0, 2>(p, tau);
  Region2Ideal<2>(powerA, tau, g);
  return -g.gtt * RGAS * tau * tau;
}

// cv and w need gamma_pi and gamma_pipi, where the ideal part is 1/pi and
// -1/pi^2, and gamma_tautau.
double WaterCalculator::CV2PT(double p, double T) {
  const double tau = TSTAR2 / T, pi = p / P2STAR;
  Gibbs g = Region2Residual<2, 2>(p, tau);
  Region2Ideal<2>(powerA, tau, g);
  g.gp += 1.0 / pi;
  g.gpp -= 1.0 / (pi * pi);
  const double d = g.gp - g.gpt * tau;
  return (d * d / g.gpp - g.gtt * tau * tau) * RGAS;
}

double WaterCalculator::W2PT(double p, double T) {
  const double tau = TSTAR2 / T, pi = p / P2STAR;
  Gibbs g = Region2Residual<2, 2>(p, tau);
  Region2Ideal<2>(powerA, tau, g);
  g.gp += 1.0 / pi;
  g.gpp -= 1.0 / (pi * pi);
  const double d = g.gp - g.gpt * tau;
  return g.gp * std::sqrt(RGAS * T / (d * d / (g.gtt * tau * tau) - g.gpp));
}

double WaterCalculator::JOULETHOMPSON2PT(double p, double T) {
  const double tau = TSTAR2 / T;
  Gibbs g = Region2Residual<1, 2>(p, tau);
  Region2Ideal<2>(powerA, tau, g);
  return g.gpt * T / (P2STAR * g.gtt * tau);
}

double WaterCalculator::VUSHCVWDERPT2PT(double p, double T, Out14& out) {
  const double tau = TSTAR2 / T, pi = p / P2STAR;
  Gibbs g = Region2Residual<2, 2>(p, tau);
  Region2Ideal<2>(powerB, tau, g);
  g.g += std::log(pi);
  g.gp += 1.0 / pi;
  g.gpp -= 1.0 / (pi * pi);
  GibbsOutputs(g, p, T, tau, P2STAR, TSTAR2, out);
  return 1.0;
}

}  // namespace kvt
