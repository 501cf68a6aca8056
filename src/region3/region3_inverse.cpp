// Region 3 by other pairs than (density, T): the IAPWS backward equations give
// a first state, and unless toleranceMode is 0 a Newton iteration in
// (density, T) on the Helmholtz equation refines it.
#include <cmath>

#include "frame/engine.h"
#include "regions/constants.h"
#include "region3/region3_inverse_tables.h"
#include "region3/region3_tables.h"
#include "regions/water_calculator.h"

namespace kvt {

namespace {

constexpr double RHOC = 322.0;
constexpr double TC = 647.096;
constexpr double PSCALE = 100000000.0;  // the releases reduce p by 100 MPa
// 3a / 3b split by entropy, the critical entropy: at or below it is 3a.
constexpr double S3AB = 4412.02148223476;

// Sum of n x^I y^J with x in A and y in B, each filled as far as the
// exponents reach; a negative exponent reads the reciprocal of its entry.
template <class Tab>
double BackwardSum(PowerTable& A, PowerTable& B, double x, double y) {
  constexpr int32_t fa = FillCount(Tab::I, 0), fb = FillCount(Tab::J, 0);
  A.Fill<fa>(x);
  B.Fill<fb>(y);
  return SumTerms<0, 0, Tab::N, Tab::I, Tab::J>(A, B).s;
}

// What the iterations need from one pass over the Helmholtz terms at
// (density, T): pressure, enthalpy, entropy and their slopes.
struct State3 {
  double p, h, s;
  double pR, pT, cv;  // dp/drho at T, dp/dT at rho, cv
};

// Fills powerA from delta to 9 and powerB from tau to 24 (the reach of the
// second derivatives). withA: fill powerA here; T3RH fills it once itself.
// Only the solves by entropy need phi itself, and with it the logarithm.
template <bool WithS>
State3 Evaluate(PowerTable& A, PowerTable& B, double rho, double T, bool withA) {
  using namespace region3;
  const double delta = rho / RHOC, tau = TC / T;
  if (withA) A.Fill<9>(delta);
  B.Fill<24>(tau);
  const TermSums t = SumTerms<2, 2, N, I, J>(A, B);
  const double phi_d = N1 / delta + t.sA;
  const double phi_dd = -N1 / (delta * delta) + t.sAA;
  State3 r;
  r.p = RGAS * rho * T * delta * phi_d;
  r.h = RGAS * T * (tau * t.sB + delta * phi_d);
  r.s = 0;
  if constexpr (WithS) r.s = RGAS * (tau * t.sB - (N1 * std::log(delta) + t.s));
  r.pR = RGAS * T * delta * (2 * phi_d + delta * phi_dd);
  r.pT = rho * RGAS * delta * (phi_d - tau * t.sAB);
  r.cv = -RGAS * tau * tau * t.sBB;
  return r;
}

}  // namespace

double WaterCalculator::H3AB(double p) const {
  const double q = p / 1000000.0;
  return 1000.0 * (2014.64004206875 +
                   q * (3.74696550136983 + q * (-0.0219921901054187 + q * 0.000087513168600995)));
}

double WaterCalculator::T3APHBACK(double p, double h) {
  return BackwardSum<region3back::TPH3A>(powerA, powerB, p / PSCALE + 0.24,
                                         h / 2300000.0 - 0.615) * 760.0;
}
double WaterCalculator::T3BPHBACK(double p, double h) {
  return BackwardSum<region3back::TPH3B>(powerA, powerB, p / PSCALE + 0.298,
                                         h / 2800000.0 - 0.72) * 860.0;
}
double WaterCalculator::V3APHBACK(double p, double h) {
  return BackwardSum<region3back::VPH3A>(powerA, powerB, p / PSCALE + 0.128,
                                         h / 2100000.0 - 0.727) * 0.0028;
}
double WaterCalculator::V3BPHBACK(double p, double h) {
  return BackwardSum<region3back::VPH3B>(powerA, powerB, p / PSCALE + 0.0661,
                                         h / 2800000.0 - 0.72) * 0.0088;
}
double WaterCalculator::T3APSBACK(double p, double s) {
  return BackwardSum<region3back::TPS3A>(powerA, powerB, p / PSCALE + 0.24,
                                         s / 4400.0 - 0.703) * 760.0;
}
double WaterCalculator::T3BPSBACK(double p, double s) {
  return BackwardSum<region3back::TPS3B>(powerA, powerB, p / PSCALE + 0.76,
                                         s / 5300.0 - 0.818) * 860.0;
}
double WaterCalculator::V3APSBACK(double p, double s) {
  return BackwardSum<region3back::VPS3A>(powerA, powerB, p / PSCALE + 0.187,
                                         s / 4400.0 - 0.755) * 0.0028;
}
double WaterCalculator::V3BPSBACK(double p, double s) {
  return BackwardSum<region3back::VPS3B>(powerA, powerB, p / PSCALE + 0.298,
                                         s / 5300.0 - 0.816) * 0.0088;
}
double WaterCalculator::P3AHSBACK(double h, double s) {
  return BackwardSum<region3back::PHS3A>(powerA, powerB, h / 2300000.0 - 1.01,
                                         s / 4400.0 - 0.75) * 99000000.0;
}
// 3b gives the reciprocal of the reduced pressure; 16.6 MPa as the product
// comes out in doubles.
double WaterCalculator::P3BHSBACK(double h, double s) {
  return 16600000.000000002 /
         BackwardSum<region3back::PHS3B>(powerA, powerB, h / 2800000.0 - 0.681,
                                         s / 5300.0 - 0.792);
}

double WaterCalculator::T3PHBACK(double p, double h) {
  return h <= H3AB(p) ? T3APHBACK(p, h) : T3BPHBACK(p, h);
}
double WaterCalculator::V3PHBACK(double p, double h) {
  return h <= H3AB(p) ? V3APHBACK(p, h) : V3BPHBACK(p, h);
}
double WaterCalculator::T3PSBACK(double p, double s) {
  return s <= S3AB ? T3APSBACK(p, s) : T3BPSBACK(p, s);
}
double WaterCalculator::V3PSBACK(double p, double s) {
  return s <= S3AB ? V3APSBACK(p, s) : V3BPSBACK(p, s);
}
double WaterCalculator::P3HSBACK(double h, double s) {
  return s <= S3AB ? P3AHSBACK(h, s) : P3BHSBACK(h, s);
}

// Quasi-Newton on (p, h): the slope of h by T at constant density is taken
// as cv alone. The stop band is on the steps, relative to the start values.
double WaterCalculator::R3PHSOLVE(double p, double h, double& rho, double& T) {
  if (h <= H3AB(p)) {
    rho = 1.0 / V3APHBACK(p, h);
    T = T3APHBACK(p, h);
  } else {
    rho = 1.0 / V3BPHBACK(p, h);
    T = T3BPHBACK(p, h);
  }
  if (engine->toleranceMode == 0) return 1.0;
  const double tolRho = engine->tolerance * rho, tolT = engine->tolerance * T;
  int64_t pass = 0;  // wider than any cap: cannot overflow
  for (;;) {
    ++pass;
    const State3 st = Evaluate<false>(powerA, powerB, rho, T, true);
    const double fp = st.p - p, fh = st.h - h;
    const double hR = st.pR / rho - T * st.pT / (rho * rho);
    const double D = hR * st.pT - st.cv * st.pR;
    const double dT = (fp * hR - fh * st.pR) * (-1.0 / D);
    const double dRho = (fh * st.pT - fp * st.cv) * (-1.0 / D);
    T = T + dT;
    rho = rho + dRho;
    if (pass > engine->maxIteration) break;
    if (std::fabs(dRho) < tolRho && std::fabs(dT) < tolT) break;
  }
  if (pass >= engine->maxIteration) raise(3);
  return 1.0;
}

// Newton on (p, s) with the full Jacobian; stop band and exit as by (p, h).
double WaterCalculator::R3PSSOLVE(double p, double s, double& rho, double& T) {
  if (s <= S3AB) {
    rho = 1.0 / V3APSBACK(p, s);
    T = T3APSBACK(p, s);
  } else {
    rho = 1.0 / V3BPSBACK(p, s);
    T = T3BPSBACK(p, s);
  }
  if (engine->toleranceMode == 0) return 1.0;
  const double tolRho = engine->tolerance * rho, tolT = engine->tolerance * T;
  int64_t pass = 0;  // wider than any cap: cannot overflow
  for (;;) {
    ++pass;
    const State3 st = Evaluate<true>(powerA, powerB, rho, T, true);
    const double fp = st.p - p, fs = st.s - s;
    const double sR = -st.pT / (rho * rho), sT = st.cv / T;
    const double D = sR * st.pT - sT * st.pR;
    const double dT = (fp * sR - fs * st.pR) * (-1.0 / D);
    const double dRho = (fs * st.pT - fp * sT) * (-1.0 / D);
    T = T + dT;
    rho = rho + dRho;
    if (pass > engine->maxIteration) break;
    if (std::fabs(dRho) < tolRho && std::fabs(dT) < tolT) break;
  }
  if (pass >= engine->maxIteration) raise(3);
  return 1.0;
}

// Newton on (h, s). The stop band is on the residuals, and the step of the
// last pass is kept.
void WaterCalculator::R3HSSOLVE(double h, double s, double& rho, double& T) {
  const double tolH = engine->tolerance * h, tolS = engine->tolerance * s;
  int64_t pass = 0;  // wider than any cap: cannot overflow
  for (;;) {
    ++pass;
    const State3 st = Evaluate<true>(powerA, powerB, rho, T, true);
    const double fh = st.h - h, fs = st.s - s;
    const double hR = st.pR / rho - T * st.pT / (rho * rho);
    const double hT = st.pT / rho + st.cv;
    const double sR = -st.pT / (rho * rho), sT = st.cv / T;
    const double E = 1.0 / (hR * sT - hT * sR);
    rho = rho + (fs * hT - fh * sT) * E;
    T = T + (sR * fh - fs * hR) * E;
    if (pass > engine->maxIteration) break;
    if (std::fabs(fh) < tolH && std::fabs(fs) < tolS) break;
  }
  if (pass >= engine->maxIteration) raise(3);
}

double WaterCalculator::T3PH(double p, double h) {
  double rho, T;
  R3PHSOLVE(p, h, rho, T);
  return T;
}

double WaterCalculator::V3PH(double p, double h) {
  if (engine->toleranceMode == 0) return V3PHBACK(p, h);
  double rho, T;
  R3PHSOLVE(p, h, rho, T);
  return 1.0 / rho;
}

double WaterCalculator::T3PS(double p, double s) {
  double rho, T;
  R3PSSOLVE(p, s, rho, T);
  return T;
}

double WaterCalculator::V3PS(double p, double s) {
  if (engine->toleranceMode == 0) return V3PSBACK(p, s);
  double rho, T;
  R3PSSOLVE(p, s, rho, T);
  return 1.0 / rho;
}

// T and v each take their own subregion: h against H3AB(p), s against the
// split entropy, so the two may differ.
void WaterCalculator::RT3HSBACK(double h, double s, double& p, double& rho, double& T) {
  p = P3HSBACK(h, s);
  T = T3PHBACK(p, h);
  rho = 1.0 / V3PSBACK(p, s);
}

double WaterCalculator::P3HS(double h, double s) {
  if (engine->toleranceMode == 0) return P3HSBACK(h, s);
  double p, rho, T;
  RT3HSBACK(h, s, p, rho, T);
  R3HSSOLVE(h, s, rho, T);
  return P3RT(rho, T);
}

double WaterCalculator::T3HS(double h, double s) {
  if (engine->toleranceMode == 0) return T3PHBACK(P3HSBACK(h, s), h);
  double p, rho, T;
  RT3HSBACK(h, s, p, rho, T);
  R3HSSOLVE(h, s, rho, T);
  return T;
}

double WaterCalculator::V3HS(double h, double s) {
  if (engine->toleranceMode == 0) return V3PSBACK(P3HSBACK(h, s), s);
  double p, rho, T;
  RT3HSBACK(h, s, p, rho, T);
  R3HSSOLVE(h, s, rho, T);
  return 1.0 / rho;
}

double WaterCalculator::RT3HS(double h, double s, double& rho, double& T) {
  double p;
  RT3HSBACK(h, s, p, rho, T);
  if (engine->toleranceMode != 0) R3HSSOLVE(h, s, rho, T);
  return 1.0;
}

double WaterCalculator::PT3HS(double h, double s, double& p, double& T) {
  if (engine->toleranceMode == 0) {
    p = P3HSBACK(h, s);
    T = T3PHBACK(p, h);
    return 1.0;
  }
  double rho;
  RT3HSBACK(h, s, p, rho, T);
  R3HSSOLVE(h, s, rho, T);
  p = P3RT(rho, T);
  return 1.0;
}

// No backward equation by (density, h): Newton in T alone from 743.15 K, in
// every mode. Density is fixed, so its powers are filled once.
double WaterCalculator::T3RH(double rho, double h) {
  const double threshold = engine->tolerance * h;
  powerA.Fill<9>(rho / RHOC);
  double T = 743.15;
  int64_t pass = 0;  // wider than any cap: cannot overflow
  for (;;) {
    ++pass;
    const State3 st = Evaluate<false>(powerA, powerB, rho, T, false);
    const double fh = st.h - h;
    const double hT = st.pT / rho + st.cv;
    T = T - fh / hT;
    if (pass >= engine->maxIteration) raise(3);
    if (std::fabs(fh) <= threshold) return T;
  }
}

}  // namespace kvt
