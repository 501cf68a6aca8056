// Properties by p and T anywhere in the formulation: resolve the area with
// WATERSTATEAREA2, which never answers "wet", and hand over to the region.
// Every ingredient of a derived quantity resolves its area again.
#include "frame/engine.h"
#include "regions/water_calculator.h"

namespace kvt {

double WaterCalculator::ByAreaPT(PTCore r1, PTCore r2, PTCore r3, PTCore r5, double p,
                                 double T) {
  switch (WATERSTATEAREA2(p, T)) {
    case 1: return (this->*r1)(p, T);
    case 2: return (this->*r2)(p, T);
    case 3: return (this->*r3)(p, T);
    case 5: return (this->*r5)(p, T);
    default: raise(4);
  }
}

using W = WaterCalculator;

double W::VPT(double p, double T) { return ByAreaPT(&W::V1PT, &W::V2PT, &W::V3PT, &W::V5PT, p, T); }
double W::UPT(double p, double T) { return ByAreaPT(&W::U1PT, &W::U2PT, &W::U3PT, &W::U5PT, p, T); }
double W::SPT(double p, double T) { return ByAreaPT(&W::S1PT, &W::S2PT, &W::S3PT, &W::S5PT, p, T); }
double W::HPT(double p, double T) { return ByAreaPT(&W::H1PT, &W::H2PT, &W::H3PT, &W::H5PT, p, T); }
double W::CPPT(double p, double T) {
  return ByAreaPT(&W::CP1PT, &W::CP2PT, &W::CP3PT, &W::CP5PT, p, T);
}
double W::CVPT(double p, double T) {
  return ByAreaPT(&W::CV1PT, &W::CV2PT, &W::CV3PT, &W::CV5PT, p, T);
}
double W::WPT(double p, double T) { return ByAreaPT(&W::W1PT, &W::W2PT, &W::W3PT, &W::W5PT, p, T); }
double W::JOULETHOMPSONPT(double p, double T) {
  return ByAreaPT(&W::JOULETHOMPSON1PT, &W::JOULETHOMPSON2PT, &W::JOULETHOMPSON3PT,
                  &W::JOULETHOMPSON5PT, p, T);
}

double W::VUSHCVWDERPTPT(double p, double T, Out14& out) {
  switch (WATERSTATEAREA2(p, T)) {
    case 1: return VUSHCVWDERPT1PT(p, T, out);
    case 2: return VUSHCVWDERPT2PT(p, T, out);
    case 3: return VUSHCVWDERPT3PT(p, T, out);
    case 5: return VUSHCVWDERPT5PT(p, T, out);
    default: raise(4);
  }
}

double W::THERMCONDPT(double p, double T) { return THERMCONDRT(1 / VPT(p, T), T); }
double W::DYNVISPT(double p, double T) { return DYNVISRT(1 / VPT(p, T), T); }
double W::KINVISPT(double p, double T) {
  const double mu = DYNVISPT(p, T);
  return mu * VPT(p, T);
}
double W::PRANDTLEPT(double p, double T) {
  const double mu = DYNVISPT(p, T);
  const double cp = CPPT(p, T);
  return mu * cp / THERMCONDPT(p, T);
}
// Isentropic exponent from the speed of sound, k = w^2 / (p v); not cp / cv.
double W::KPT(double p, double T) {
  const double w = WPT(p, T);
  return w * w / (VPT(p, T) * p);
}

}  // namespace kvt
