// Wet steam: a mixture of saturated water and saturated steam at one
// temperature, by the dryness x (the mass share of steam). The mixture has no
// equation of its own; it mixes the saturated values, transport properties
// included (mass-weighted means, no two-phase model).
#include <cmath>

#include "frame/engine.h"
#include "regions/water_calculator.h"

namespace kvt {

namespace {
constexpr double kEntropySplit = 5210.88782493073;  // J/(kg K): where Tsat(h,s) holds
constexpr double kTLow = 273.15999999999;
constexpr double kTCrit = 647.096;
constexpr double kHalfBracket = 0.5;  // K, around the backward value
}  // namespace

using W = WaterCalculator;

double W::Mix(TCore water, TCore steam, double T, double x) {
  const double a = (this->*water)(T);
  const double b = (this->*steam)(T);
  return a * (1 - x) + b * x;
}

double W::Dryness(TCore water, TCore steam, double T, double y) {
  const double a = (this->*water)(T);
  const double b = (this->*steam)(T);
  return (y - a) / (b - a);
}

double W::VSTX(double T, double x) { return Mix(&W::VSWT, &W::VSST, T, x); }
double W::USTX(double T, double x) { return Mix(&W::USWT, &W::USST, T, x); }
double W::SSTX(double T, double x) { return Mix(&W::SSWT, &W::SSST, T, x); }
double W::HSTX(double T, double x) { return Mix(&W::HSWT, &W::HSST, T, x); }
double W::CPSTX(double T, double x) { return Mix(&W::CPSWT, &W::CPSST, T, x); }
double W::CVSTX(double T, double x) { return Mix(&W::CVDPSWT, &W::CVDPSST, T, x); }
double W::THERMCONDSTX(double T, double x) {
  return Mix(&W::THERMCONDSWT, &W::THERMCONDSST, T, x);
}
double W::DYNVISSTX(double T, double x) { return Mix(&W::DYNVISSWT, &W::DYNVISSST, T, x); }
double W::PRANDTLESTX(double T, double x) {
  return Mix(&W::PRANDTLESWT, &W::PRANDTLESST, T, x);
}
double W::KINVISSTX(double T, double x) { return Mix(&W::KINVISSWT, &W::KINVISSST, T, x); }

// dv/dp along the isentrope on each side of the line, from the two-phase cv:
// A for water, B for steam.
void W::IsentropeSlopes(double T, double& A, double& B) {
  const double a = 1 / DPDTST(T);  // dT/dp along the line
  A = -(a * a / T) * CVDPSWT(T);
  B = -(a * a / T) * CVDPSST(T);
}

double W::KSTX(double T, double x) {
  double A, B;
  IsentropeSlopes(T, A, B);
  const double v = VSTX(T, x), p = PST(T);
  return -v / (p * (A * (1 - x) + B * x));
}

double W::WSTX(double T, double x) {
  const double v = VSTX(T, x), p = PST(T), k = KSTX(T, x);
  return std::sqrt(v * p * k);
}

// Along the line dT/dp is the Joule-Thomson coefficient, whatever x is.
double W::JOULETHOMPSONSTX(double T, double) { return 1 / DPDTST(T); }

double W::XSTV(double T, double y) { return Dryness(&W::VSWT, &W::VSST, T, y); }
double W::XSTU(double T, double y) { return Dryness(&W::USWT, &W::USST, T, y); }
double W::XSTS(double T, double y) { return Dryness(&W::SSWT, &W::SSST, T, y); }
double W::XSTH(double T, double y) { return Dryness(&W::HSWT, &W::HSST, T, y); }
double W::XSTCP(double T, double y) { return Dryness(&W::CPSWT, &W::CPSST, T, y); }
double W::XSTCV(double T, double y) { return Dryness(&W::CVDPSWT, &W::CVDPSST, T, y); }
double W::XSTTHERMCOND(double T, double y) {
  return Dryness(&W::THERMCONDSWT, &W::THERMCONDSST, T, y);
}
double W::XSTDYNVIS(double T, double y) { return Dryness(&W::DYNVISSWT, &W::DYNVISSST, T, y); }
double W::XSTKINVIS(double T, double y) { return Dryness(&W::KINVISSWT, &W::KINVISSST, T, y); }
double W::XSTPRANDTLE(double T, double y) {
  return Dryness(&W::PRANDTLESWT, &W::PRANDTLESST, T, y);
}

// k = -v / (p (A (1 - x) + B x)) solved for x in closed form; not clamped.
double W::XSTK(double T, double k) {
  double A, B;
  IsentropeSlopes(T, A, B);
  const double p = PST(T), v1 = VSWT(T), v2 = VSST(T);
  return (A * p * k + v1) / ((A - B) * p * k + v1 - v2);
}

// w^2 = -v^2 / (A + x (B - A)) is a quadratic in x; a speed that no dryness
// gives is reported as a floating-point failure (error 1).
double W::XSTW(double T, double w) {
  double A, B;
  IsentropeSlopes(T, A, B);
  const double v1 = VSWT(T), v2 = VSST(T), dv = v2 - v1;
  const double a2 = dv * dv;
  const double b1 = (B - A) * w * w + 2 * dv * v1;
  const double c1 = v1 * v1 + A * w * w;
  const double r = std::sqrt(b1 * b1 - 4 * a2 * c1);
  const double x1 = (r - b1) / (2 * a2);
  if (x1 >= 0 && x1 <= 1) return x1;
  const double x2 = (-b1 - r) / (2 * a2);
  if (x2 >= 0 && x2 <= 1) return x2;
  raise(1);
}

// The Joule-Thomson coefficient of wet steam does not depend on x: the value
// is only checked against the line. A negative y makes the relative error
// negative and so always passes.
double W::XSTJOULETHOMPSON(double T, double y) {
  const double j = 1 / DPDTST(T);
  const double e = y == 0 ? std::fabs(j - y) : std::fabs(j - y) / y;
  if (e <= engine->tolerance) return 0.0;
  raise(2);
}

// Bisection on the enthalpy of the wet state, with x from the entropy at each
// trial temperature.
void W::BisectWet(double h, double s, double low, double high, double& T, double& x) {
  const double threshold = h * engine->tolerance;
  const int32_t limit = engine->maxIteration;
  int64_t count = 0;  // wider than any cap: cannot overflow
  for (;;) {
    T = (low + high) / 2;
    ++count;
    if (T == kTCrit || T == kTLow) break;
    double xs = XSTS(T, s);
    if (xs < 0) xs = 0;
    if (xs > 1) xs = 1;
    x = xs;
    const double hm = HSTX(T, xs);
    if (h <= hm) high = T;
    else low = T;
    if (count > limit) break;
    if (std::fabs(hm - h) <= threshold) break;
  }
  // A bracket shrunk to the tolerance counts as converged.
  if (count >= limit && std::fabs(high - low) > engine->tolerance * T) raise(3);
}

double W::TXSHS(double h, double s, double& T, double& x) {
  if (s <= kEntropySplit) {
    BisectWet(h, s, kTLow, kTCrit, T, x);
    return 1.0;
  }
  T = TSATHS(h, s);
  if (engine->toleranceMode != 0) BisectWet(h, s, T - kHalfBracket, T + kHalfBracket, T, x);
  x = XSTS(T, s);
  return 1.0;
}

double W::TSHS(double h, double s) {
  double T = 0, x = 0;
  TXSHS(h, s, T, x);
  return T;
}

}  // namespace kvt
