// Region 3, near the critical point: the IAPWS-IF97 Helmholtz equation
// phi(delta, tau) = n1 ln(delta) + sum n delta^I tau^J, with delta = rho / 322
// in powerA and tau = 647.096 / T in powerB.
#include <cmath>

#include "regions/constants.h"
#include "region3/region3_tables.h"
#include "regions/water_calculator.h"

namespace kvt {

namespace {

constexpr double RHOC = 322.0;
constexpr double TC = 647.096;

// Fills the tables to FA and FB (at least as far as the shifted exponents
// reach) and sums the 39 polynomial terms; the logarithmic term is left to
// the caller, which adds only what its property needs.
template <int SA, int SB, int FA, int FB>
TermSums Region3Sums(PowerTable& A, PowerTable& B, double delta, double tau) {
  using namespace region3;
  static_assert(FA >= FillCount(I, SA) && FB >= FillCount(J, SB), "power table too short");
  A.Fill<FA>(delta);
  B.Fill<FB>(tau);
  return SumTerms<SA, SB, N, I, J>(A, B);
}

// The reduced derivatives that cp, w, the Joule-Thomson coefficient and the
// many-output evaluation share.
struct Reduced {
  double phi_d, phi_dd, phi_t, phi_tt, phi_dt;
};

Reduced SecondOrder(const TermSums& t, double delta) {
  return {region3::N1 / delta + t.sA, -region3::N1 / (delta * delta) + t.sAA, t.sB, t.sBB,
          t.sAB};
}

}  // namespace

double WaterCalculator::P3RT(double rho, double T) {
  const double delta = rho / RHOC;
  const TermSums t = Region3Sums<1, 0, 10, 26>(powerA, powerB, delta, TC / T);
  const double phi_d = region3::N1 / delta + t.sA;
  return RGAS * rho * T * delta * phi_d;
}

// Since tau T is the constant 647.096, u needs no T.
double WaterCalculator::U3RT(double rho, double T) {
  const TermSums t = Region3Sums<0, 1, 11, 25>(powerA, powerB, rho / RHOC, TC / T);
  return RGAS * TC * t.sB;
}

double WaterCalculator::S3RT(double rho, double T) {
  const double delta = rho / RHOC, tau = TC / T;
  const TermSums t = Region3Sums<0, 1, 11, 25>(powerA, powerB, delta, tau);
  const double phi = region3::N1 * std::log(delta) + t.s;
  return RGAS * (tau * t.sB - phi);
}

double WaterCalculator::H3RT(double rho, double T) {
  const double delta = rho / RHOC, tau = TC / T;
  const TermSums t = Region3Sums<1, 1, 11, 25>(powerA, powerB, delta, tau);
  const double phi_d = region3::N1 / delta + t.sA;
  return RGAS * T * (tau * t.sB + delta * phi_d);
}

double WaterCalculator::CV3RT(double rho, double T) {
  const double tau = TC / T;
  const TermSums t = Region3Sums<0, 2, 11, 24>(powerA, powerB, rho / RHOC, tau);
  return -RGAS * tau * tau * t.sBB;
}

double WaterCalculator::CP3RT(double rho, double T) {
  const double delta = rho / RHOC, tau = TC / T;
  const Reduced f = SecondOrder(Region3Sums<2, 2, 9, 24>(powerA, powerB, delta, tau), delta);
  const double A = 2 * delta * f.phi_d + delta * delta * f.phi_dd;
  const double B = delta * f.phi_d - delta * tau * f.phi_dt;
  const double C = tau * tau * f.phi_tt;
  return RGAS * (B * B / A - C);
}

double WaterCalculator::W3RT(double rho, double T) {
  const double delta = rho / RHOC, tau = TC / T;
  const Reduced f = SecondOrder(Region3Sums<2, 2, 9, 24>(powerA, powerB, delta, tau), delta);
  const double A = 2 * delta * f.phi_d + delta * delta * f.phi_dd;
  const double B = delta * f.phi_d - delta * tau * f.phi_dt;
  const double C = tau * tau * f.phi_tt;
  return std::sqrt(RGAS * T * (A - B * B / C));
}

// mu rho R = -(delta phi_d + delta^2 phi_dd + delta tau phi_dt) /
// ((delta phi_d - delta tau phi_dt)^2 - tau^2 phi_tt (2 delta phi_d +
// delta^2 phi_dd)), here with numerator and denominator divided by delta.
double WaterCalculator::JOULETHOMPSON3RT(double rho, double T) {
  const double delta = rho / RHOC, tau = TC / T;
  const Reduced f = SecondOrder(Region3Sums<2, 2, 9, 24>(powerA, powerB, delta, tau), delta);
  const double C = tau * tau * f.phi_tt;
  const double d1 = f.phi_d, d2 = delta * f.phi_dd, d3 = tau * f.phi_dt;
  const double e = d1 - d3;
  return -(d3 + d1 + d2) / (e * e * delta - (2 * d1 + d2) * C) / RGAS / rho;
}

// The fourteen outputs from one pass. The derivatives at constant p follow
// from those at constant density through dp/dT and dp/drho.
double WaterCalculator::VUSHCVWDERPT3RT(double rho, double T, Out14& out) {
  const double delta = rho / RHOC, tau = TC / T;
  const TermSums t = Region3Sums<2, 2, 9, 24>(powerA, powerB, delta, tau);
  const Reduced f = SecondOrder(t, delta);
  const double phi = region3::N1 * std::log(delta) + t.s;
  const double A = 2 * delta * f.phi_d + delta * delta * f.phi_dd;
  const double B = delta * f.phi_d - delta * tau * f.phi_dt;
  const double C = tau * tau * f.phi_tt;

  const double dpdT = RHOC * RGAS * delta * delta * (f.phi_d - tau * f.phi_dt);
  const double p = RGAS * delta * f.phi_d * rho * T;
  const double w = std::sqrt(RGAS * T * (A - B * B / C));
  const double v = 1.0 / rho;
  const double dvdp = -1.0 / (RGAS * A * T * rho * rho);
  const double dvdT = -dvdp * dpdT;
  const double h = RGAS * T * (tau * f.phi_t + delta * f.phi_d);
  const double dhdp = v - T * dvdT;
  const double cp = RGAS * (B * B / A - C);
  const double u = h - p * v;
  const double dudp = -T * dvdT - p * dvdp;
  const double dudT = cp - p * dvdT;
  const double s = RGAS * (tau * f.phi_t - phi);
  const double dsdp = -dvdT;
  const double dsdT = cp / T;
  const double cv = -RGAS * C;
  const double r[14] = {v, u, s, h, cv, w, dvdp, dudp, dsdp, dhdp, dvdT, dudT, dsdT, cp};
  for (int i = 0; i < 14; ++i) out[i] = r[i];
  return 1.0;
}

}  // namespace kvt
