// Properties by p, T and dryness x. A state on the saturation line is told
// by p and T only up to the band of WATERSTATEAREA; inside it x places the
// state between the phases, outside it x is ignored.
#include "frame/engine.h"
#include "regions/water_calculator.h"

namespace kvt {

using W = WaterCalculator;

double W::ByAreaPTX(PTCore r1, PTCore r2, PTCore r3, PTCore r5, TXCore wet, double p, double T,
                    double x) {
  switch (WATERSTATEAREA(p, T)) {
    case 1: return (this->*r1)(p, T);
    case 2: return (this->*r2)(p, T);
    case 3: return (this->*r3)(p, T);
    case 4: return (this->*wet)(T, x);
    case 5: return (this->*r5)(p, T);
    default: raise(4);
  }
}

// The derived quantities outside the band go on to the p,T composite, which
// resolves the area once more with WATERSTATEAREA2.
double W::WetOrPT(PTCore pt, TXCore wet, double p, double T, double x) {
  if (WATERSTATEAREA(p, T) == 4) return (this->*wet)(T, x);
  return (this->*pt)(p, T);
}

double W::VPTX(double p, double T, double x) {
  return ByAreaPTX(&W::V1PT, &W::V2PT, &W::V3PT, &W::V5PT, &W::VSTX, p, T, x);
}
double W::UPTX(double p, double T, double x) {
  return ByAreaPTX(&W::U1PT, &W::U2PT, &W::U3PT, &W::U5PT, &W::USTX, p, T, x);
}
double W::SPTX(double p, double T, double x) {
  return ByAreaPTX(&W::S1PT, &W::S2PT, &W::S3PT, &W::S5PT, &W::SSTX, p, T, x);
}
double W::HPTX(double p, double T, double x) {
  return ByAreaPTX(&W::H1PT, &W::H2PT, &W::H3PT, &W::H5PT, &W::HSTX, p, T, x);
}
double W::CPPTX(double p, double T, double x) {
  return ByAreaPTX(&W::CP1PT, &W::CP2PT, &W::CP3PT, &W::CP5PT, &W::CPSTX, p, T, x);
}
double W::CVPTX(double p, double T, double x) {
  return ByAreaPTX(&W::CV1PT, &W::CV2PT, &W::CV3PT, &W::CV5PT, &W::CVSTX, p, T, x);
}
double W::WPTX(double p, double T, double x) {
  return ByAreaPTX(&W::W1PT, &W::W2PT, &W::W3PT, &W::W5PT, &W::WSTX, p, T, x);
}
double W::JOULETHOMPSONPTX(double p, double T, double x) {
  return ByAreaPTX(&W::JOULETHOMPSON1PT, &W::JOULETHOMPSON2PT, &W::JOULETHOMPSON3PT,
                   &W::JOULETHOMPSON5PT, &W::JOULETHOMPSONSTX, p, T, x);
}
double W::THERMCONDPTX(double p, double T, double x) {
  return WetOrPT(&W::THERMCONDPT, &W::THERMCONDSTX, p, T, x);
}
double W::DYNVISPTX(double p, double T, double x) {
  return WetOrPT(&W::DYNVISPT, &W::DYNVISSTX, p, T, x);
}
double W::PRANDTLEPTX(double p, double T, double x) {
  return WetOrPT(&W::PRANDTLEPT, &W::PRANDTLESTX, p, T, x);
}
double W::KINVISPTX(double p, double T, double x) {
  return WetOrPT(&W::KINVISPT, &W::KINVISSTX, p, T, x);
}
double W::KPTX(double p, double T, double x) { return WetOrPT(&W::KPT, &W::KSTX, p, T, x); }

}  // namespace kvt
