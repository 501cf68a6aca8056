// The outlet of an expansion (a turbine stage, or a throttle at eff = 0):
// the inlet's h and s, the isentropic outlet enthalpy at p2, the real one by
// the efficiency on the enthalpy drop, then the property at (p2, h2). p2 is
// not compared with p1: above it the same formula describes a compression.
#include "frame/engine.h"
#include "regions/water_calculator.h"

namespace kvt {

using W = WaterCalculator;

double W::OutletEnthalpy(double h1, double s1, double p2, double eff) {
  const double h2s = HPS(p2, s1);
  return h1 - (h1 - h2s) * eff;
}

double W::ExpansionH2(double p1, double T1, double p2, double eff) {
  const double h1 = HPT(p1, T1);
  const double s1 = SPT(p1, T1);
  return OutletEnthalpy(h1, s1, p2, eff);
}

double W::ExpansionH2X(double p1, double T1, double x1, double p2, double eff) {
  const double h1 = HPTX(p1, T1, x1);
  const double s1 = SPTX(p1, T1, x1);
  return OutletEnthalpy(h1, s1, p2, eff);
}

double W::HOUTLET(double, double h2) { return h2; }

}  // namespace kvt
