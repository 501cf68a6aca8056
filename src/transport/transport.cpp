// Thermal conductivity and dynamic viscosity as functions of density and T
// alone: the 1985 IAPS equations in their industrial forms. No region enters,
// so water, steam, metastable and supercritical states share one formula.
#include <cmath>

#include "regions/water_calculator.h"
#include "transport/transport_tables.h"

namespace kvt {

using namespace transport;

// Conductivity in W/(m K), reduced by 647.256 K and 317.7 kg/m3 (the 1985
// constants, not IF97's critical point). Includes the near-critical term,
// whose factor S switches form at t = 1 with a step, as the release has it.
double WaterCalculator::THERMCONDRT(double rho, double T) {
  const double t = T / TSTARK, r = rho / RHOSTARK;
  double l0 = 0, t15 = 0;
  for (int k = 0; k < 4; ++k) {
    const double power = std::pow(t, k + 0.5);
    if (k == 1) t15 = power;  // t^1.5 returns in the last term of L2
    l0 += K0A[k] * power;
  }
  const double x = r + 2.39219;
  const double l1 = -0.39707 + 0.400302 * r + 1.06 * std::exp(-0.171587 * (x * x));

  const double dt = std::fabs(t - 1.0) + 0.00308976;
  const double g = 1.0 / std::pow(dt, 0.6);
  const double q = 2.0 + 0.0822994 * g;
  const double s = t >= 1.0 ? 1.0 / dt : 10.0932 * g;
  const double t2 = t * t, t4 = t2 * t2, t10 = t4 * t4 * t2;
  const double r2 = r * r, r5 = r2 * r2 * r;
  const double l2 =
      (0.0701309 / t10 + 0.011852) * std::pow(r, 1.8) * std::exp(0.642857 * (1.0 - std::pow(r, 2.8))) +
      0.00169937 * s * std::pow(r, q) * std::exp((q / (1.0 + q)) * (1.0 - std::pow(r, 1.0 + q))) -
      1.02 * std::exp(-4.11717 * t15 - 6.17937 / r5);
  return l0 + l1 + l2;
}

// Viscosity in Pa s with the critical enhancement left out (mu2 = 1), as the
// release advises for industrial use.
double WaterCalculator::DYNVISRT(double rho, double T) {
  const double t = T / TSTARMU, r = rho / RHOSTARMU;
  const double t2 = t * t, t3 = t2 * t;
  const double mu0 = std::sqrt(t) / (MU0H[0] + MU0H[1] / t + MU0H[2] / t2 + MU0H[3] / t3);
  const double e =
      BackwardSum<MU1H, MU1I, MU1J>(powerA, 1.0 / t - 1.0, powerB, r - 1.0);
  return MUSTAR * mu0 * std::exp(r * e);
}

}  // namespace kvt
