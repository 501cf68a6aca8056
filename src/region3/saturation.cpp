// The saturation line (IAPWS-IF97 region 4): saturation pressure and
// temperature, the exact slope dp/dT, rough saturated densities as start
// values, and the h,s equations on the line. The equations are in MPa and
// kJ; results are scaled to Pa and J at the end.
#include <cmath>

#include "region3/saturation_tables.h"
#include "regions/water_calculator.h"

namespace kvt {

namespace {

constexpr double TC = 647.096;
constexpr double RHOC = 322.0;

}  // namespace

// PST and TSP: region3/saturation_line.h.

// d/dT of (2C / (D - B))^4, D = sqrt(B^2 - 4AC), by the chain rule through
// theta(T).
double WaterCalculator::DPDTST(double T) const {
  using saturation::n;
  const double q = T - n[10];
  const double theta = T + n[9] / q;
  const double dtheta = 1 - n[9] / (q * q);
  const double A = theta * theta + n[1] * theta + n[2];
  const double B = n[3] * theta * theta + n[4] * theta + n[5];
  const double C = n[6] * theta * theta + n[7] * theta + n[8];
  const double dA = (2 * theta + n[1]) * dtheta;
  const double dB = (2 * n[3] * theta + n[4]) * dtheta;
  const double dC = (2 * n[6] * theta + n[7]) * dtheta;
  const double D = std::sqrt(B * B - 4 * A * C);
  const double dD = (2 * B * dB - 4 * (dA * C + dC * A)) / (2 * D);
  const double c2 = 2 * C, c2sq = c2 * c2;
  const double m = D - B, m2 = m * m;
  const double ratio = c2sq * c2 / (m2 * m2 * m);
  return 1000000.0 * ratio * (4 * (2 * m * dC - 2 * C * (dD - dB)));
}

// Saturated liquid density after the 1992 supplementary release on
// saturation properties, in powers of (1 - T / Tc)^(1/3).
double WaterCalculator::ROUGHRSWT(double T) {
  const double theta = std::pow(1 - T / TC, 0.3333333333333333);
  powerA.Fill<110>(theta);
  const PowerTable& x = powerA;
  return RHOC * (1 + 1.99274064 * x.Power<1>() + 1.09965342 * x.Power<2>() -
                 0.510839303 * x.Power<5>() - 1.75493479 * x.Power<16>() -
                 45.5170352 * x.Power<43>() - 674694.45 * x.Power<110>());
}

// Saturated vapour density, same release, in powers of (1 - T / Tc)^(1/6).
double WaterCalculator::ROUGHRSST(double T) {
  const double theta = std::pow(1 - T / TC, 0.16666666666666666);
  powerA.Fill<71>(theta);
  const PowerTable& x = powerA;
  return RHOC * std::exp(-2.0315024 * x.Power<2>() - 2.6830294 * x.Power<4>() -
                         5.38626492 * x.Power<8>() - 17.2991605 * x.Power<18>() -
                         44.7586581 * x.Power<37>() - 63.9201063 * x.Power<71>());
}

// h'3a(s). Only this branch is evaluated: below its range the value is its
// extrapolation, which is good enough for a start value.
double WaterCalculator::ROUGHHSWS(double s) {
  using namespace saturation;
  const double sigma = s / 3800.0;
  powerA.Fill<32>(sigma - 1.09);
  powerB.Fill<36>(sigma + 0.0000366);
  return 1700000.0 * SumTerms<0, 0, H3A_N, H3A_I, H3A_J>(powerA, powerB).s;
}

// h''2ab(s), again the one branch only.
double WaterCalculator::ROUGHHSSS(double s) {
  using namespace saturation;
  powerA.Fill<36>(5210.0 / s - 0.513);
  powerB.Fill<32>(s / 9200.0 - 0.524);
  return 2800000.0 * std::exp(SumTerms<0, 0, H2AB_N, H2AB_I, H2AB_J>(powerA, powerB).s);
}

// Tsat(h,s) of wet steam; valid above s = 5210.88782493073 J/(kg K), which
// the caller decides.
double WaterCalculator::TSATHS(double h, double s) {
  using namespace saturation;
  powerA.Fill<28>(h / 2800000.0 - 0.119);
  powerB.Fill<36>(s / 9200.0 - 1.07);
  return 550.0 * SumTerms<0, 0, TSAT_N, TSAT_I, TSAT_J>(powerA, powerB).s;
}

}  // namespace kvt
