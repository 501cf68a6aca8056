// The saturation pressure and temperature of IAPWS-IF97 (Equations 30 and
// 31), defined inline: nearly every composite passes here, and so do the
// exports kvtPST and kvtTSP, whose whole cost these few operations are.
#pragma once

#include <cmath>

#include "region3/saturation_tables.h"
#include "regions/water_calculator.h"

namespace kvt {

// sqrt without the branch by which the library call sets errno for a
// negative argument: the same correctly rounded root, and the same NaN.
inline double RootOf(double x) {
#if defined(__SSE2_MATH__)
  double r;
  asm("sqrtsd %1, %0" : "=x"(r) : "x"(x));
  return r;
#else
  return std::sqrt(x);
#endif
}

// Equation 30, the quadratic in beta = (p / 1 MPa)^(1/4) solved for beta.
inline double WaterCalculator::PST(double T) const {
  using saturation::n;
  const double theta = T + n[9] / (T - n[10]);
  const double A = theta * theta + n[1] * theta + n[2];
  const double B = n[3] * theta * theta + n[4] * theta + n[5];
  const double C = n[6] * theta * theta + n[7] * theta + n[8];
  const double y = 2 * C / (RootOf(B * B - 4 * A * C) - B);
  const double y2 = y * y;
  return y2 * y2 * 1000000.0;
}

// Equation 31, the same quadratic solved for theta.
inline double WaterCalculator::TSP(double p) const {
  using saturation::n;
  const double beta2 = RootOf(p / 1000000.0);
  const double beta = RootOf(beta2);
  const double E = beta2 + n[3] * beta + n[6];
  const double F = n[1] * beta2 + n[4] * beta + n[7];
  const double G = n[2] * beta2 + n[5] * beta + n[8];
  const double D = 2 * G / (-F - RootOf(F * F - 4 * E * G));
  const double s = n[10] + D;
  return (s - RootOf(s * s - 4 * (n[9] + n[10] * D))) / 2;
}

}  // namespace kvt
